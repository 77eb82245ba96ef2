#pragma once

#include "core/Prompts.h"
#include "soak/Journal.h"

#include <functional>

/// Answers every box by chance. A report of a failure must be one of those that a user's own doing calls for
/// (the list stands with the code); any other fails the test.
class RandomPrompts final : public Prompts {
public:
    /// HTML files go to the folder `exports`.
    RandomPrompts(Journal& journal, QString exports);

    /// The reports of failures that came, each once.
    [[nodiscard]] const QStringList& reports() const { return reports_; }
    /// Called where the list of people was opened over unsaved changes that were not to be saved.
    std::function<void()> onDroppedPerson;

    MessageAnswer messageBox(const QString& title, const QString& text, MessageIcon icon,
                             MessageButtons buttons) override;
    QString inputBox(const QString& title, const QString& prompt, const QString& initial) override;
    [[nodiscard]] PointerShape pointer() const override { return pointer_; }
    void setPointer(PointerShape shape) override { pointer_ = shape; }

private:
    void checkReport(const QString& title, const QString& text);

    Journal& journal_;
    QString exports_;
    QStringList reports_;
    PointerShape pointer_ = PointerShape::Default;
};
