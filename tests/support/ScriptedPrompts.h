#pragma once

#include "core/Prompts.h"

#include <QString>
#include <QStringList>

#include <deque>
#include <functional>

/// Answers the program's boxes from a script and fails the test on any box that was not expected, on one
/// that differs from what was expected, and on one that never came.
class ScriptedPrompts final : public Prompts {
public:
    ScriptedPrompts() = default;
    ScriptedPrompts(const ScriptedPrompts&) = delete;
    ScriptedPrompts& operator=(const ScriptedPrompts&) = delete;
    ~ScriptedPrompts() override;

    /// The next box must be this one.
    void expectMessage(const QString& title, const QString& text, MessageIcon icon,
                       MessageAnswer answer = MessageAnswer::Ok);
    /// The next box must be the report of a failure.
    void expectError(const QString& label, qint32 number, const QString& description);
    /// The same with any description, for texts that a library words.
    void expectError(const QString& label, qint32 number);
    /// The next box must be this input box.
    void expectInput(const QString& title, const QString& prompt, const QString& initial,
                     const QString& answer);

    /// Whether all that was expected has come; the destructor asks too.
    [[nodiscard]] bool isSatisfied() const { return expected_.empty(); }
    /// Forgets what was expected, for tests of the script itself.
    void clear() { expected_.clear(); }

    /// The pointer shapes that were set, in order.
    [[nodiscard]] const QList<PointerShape>& pointerHistory() const { return pointerHistory_; }
    /// Called while a box is shown.
    std::function<void()> whileShown;

    MessageAnswer messageBox(const QString& title, const QString& text, MessageIcon icon,
                             MessageButtons buttons) override;
    QString inputBox(const QString& title, const QString& prompt, const QString& initial) override;
    [[nodiscard]] PointerShape pointer() const override { return pointer_; }
    void setPointer(PointerShape shape) override;

private:
    struct Expected {
        QString description;
        QString prefix;
        MessageAnswer answer = MessageAnswer::Ok;
        QString input;
    };
    /// Takes the next expectation and fails the test when it does not describe what came.
    Expected take(const QString& shown);

    std::deque<Expected> expected_;
    PointerShape pointer_ = PointerShape::Default;
    QList<PointerShape> pointerHistory_;
};
