#pragma once

#include "core/Prompts.h"

#include <QStringList>

/// Notes every box that comes and answers it, for tests that count reports: a report of a failure is noted as
/// "label: number-description", any other message as "title: text". Questions are answered and not noted.
class NotedBoxes final : public Prompts {
public:
    MessageAnswer answer = MessageAnswer::Yes;
    QString input;

    [[nodiscard]] const QStringList& noted() const { return noted_; }

    MessageAnswer messageBox(const QString& title, const QString& text, MessageIcon icon,
                             MessageButtons buttons) override {
        if (buttons == MessageButtons::YesNo) {
            return answer;
        }
        // A report repeats its title, the label, in its first line.
        const QString firstLine = title + QStringLiteral("\r\n");
        const bool report = icon == MessageIcon::Critical && text.startsWith(firstLine);
        noted_ << title + QStringLiteral(": ") + (report ? text.mid(firstLine.size()) : text);
        return MessageAnswer::Ok;
    }
    QString inputBox(const QString& /*title*/, const QString& /*prompt*/,
                     const QString& /*initial*/) override {
        return input;
    }
    [[nodiscard]] PointerShape pointer() const override { return pointer_; }
    void setPointer(PointerShape shape) override { pointer_ = shape; }

private:
    QStringList noted_;
    PointerShape pointer_ = PointerShape::Default;
};
