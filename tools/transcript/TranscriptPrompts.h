#pragma once

#include "core/Prompts.h"
#include "reports/surface/RecordingSurface.h"

/// Notes every box in its place among the calls of the report, as the operation MessageBox or InputBox, and
/// answers for a user who declines.
class TranscriptPrompts final : public Prompts {
public:
    explicit TranscriptPrompts(RecordingSurface::Sink sink);

    MessageAnswer messageBox(const QString& title, const QString& text, MessageIcon icon,
                             MessageButtons buttons) override;
    QString inputBox(const QString& title, const QString& prompt, const QString& initial) override;
    [[nodiscard]] PointerShape pointer() const override { return pointer_; }
    void setPointer(PointerShape shape) override { pointer_ = shape; }

private:
    RecordingSurface::Sink sink_;
    PointerShape pointer_ = PointerShape::Default;
};
