#pragma once

#include <QString>

/// The icon of a message box; the values are the classic button flags.
enum class MessageIcon : qint32 { Critical = 16, Question = 32, Exclamation = 48, Information = 64 };

/// The buttons that a message box offers.
enum class MessageButtons : qint32 { Ok, YesNo };

/// What the user answered.
enum class MessageAnswer : qint32 { Ok, Yes, No };

/// The shape of the screen's mouse pointer.
enum class PointerShape : qint32 { Default = 0, Arrow = 1, Hourglass = 11 };

/// The way to the user outside the windows: message boxes, input boxes and the mouse pointer.
/// No other code may show a box of its own, so that every question can be answered by a script in a test.
class Prompts {
public:
    virtual ~Prompts() = default;

    /// Shows a message and waits for the user. `text` is plain text; a line break is CR LF.
    virtual MessageAnswer messageBox(const QString& title, const QString& text, MessageIcon icon,
                                     MessageButtons buttons) = 0;

    /// Asks for one line of text, starting from `initial`. The empty text when the user cancels.
    virtual QString inputBox(const QString& title, const QString& prompt, const QString& initial) = 0;

    [[nodiscard]] virtual PointerShape pointer() const = 0;
    virtual void setPointer(PointerShape shape) = 0;
};
