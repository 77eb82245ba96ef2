#pragma once

#include "core/Prompts.h"

/// Message boxes, input boxes and the mouse pointer of the desktop, over the window that is active.
/// Texts are shown as they are, never taken for markup. Escape, or closing a question, answers No, and No is
/// also what Enter presses: the questions ask before something is deleted or written over.
class DialogPrompts final : public Prompts {
public:
    MessageAnswer messageBox(const QString& title, const QString& text, MessageIcon icon,
                             MessageButtons buttons) override;
    QString inputBox(const QString& title, const QString& prompt, const QString& initial) override;
    [[nodiscard]] PointerShape pointer() const override;
    void setPointer(PointerShape shape) override;
};
