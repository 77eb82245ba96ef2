#include "support/ScriptedPrompts.h"

#include <gtest/gtest.h>

namespace {

QString described(const QString& title, const QString& text, MessageIcon icon, MessageButtons buttons) {
    return QStringLiteral("message box [%1] [%2] icon %3 buttons %4")
        .arg(title, text)
        .arg(static_cast<int>(icon))
        .arg(static_cast<int>(buttons));
}

MessageButtons buttonsFor(MessageIcon icon) {
    return icon == MessageIcon::Question ? MessageButtons::YesNo : MessageButtons::Ok;
}

QString describedInput(const QString& title, const QString& prompt, const QString& initial) {
    return QStringLiteral("input box [%1] [%2] [%3]").arg(title, prompt, initial);
}

} // namespace

ScriptedPrompts::~ScriptedPrompts() {
    for (const Expected& missing : expected_) {
        ADD_FAILURE() << "expected but never shown: " << qPrintable(missing.description + missing.prefix);
    }
}

void ScriptedPrompts::expectMessage(const QString& title, const QString& text, MessageIcon icon,
                                    MessageAnswer answer) {
    expected_.push_back({described(title, text, icon, buttonsFor(icon)), {}, answer, {}});
}

void ScriptedPrompts::expectError(const QString& label, qint32 number, const QString& description) {
    expectMessage(label, QStringLiteral("%1\r\n%2-%3").arg(label).arg(number).arg(description),
                  MessageIcon::Critical);
}

void ScriptedPrompts::expectError(const QString& label, qint32 number) {
    const QString start = QStringLiteral("%1\r\n%2-").arg(label).arg(number);
    expected_.push_back(
        {{}, QStringLiteral("message box [%1] [%2").arg(label, start), MessageAnswer::Ok, {}});
}

void ScriptedPrompts::expectInput(const QString& title, const QString& prompt, const QString& initial,
                                  const QString& answer) {
    expected_.push_back({describedInput(title, prompt, initial), {}, MessageAnswer::Ok, answer});
}

ScriptedPrompts::Expected ScriptedPrompts::take(const QString& shown) {
    if (expected_.empty()) {
        ADD_FAILURE() << "unexpected " << qPrintable(shown);
        return {};
    }
    Expected next = expected_.front();
    expected_.pop_front();
    if (next.prefix.isEmpty()) {
        EXPECT_EQ(next.description.toStdString(), shown.toStdString());
    } else {
        EXPECT_TRUE(shown.startsWith(next.prefix))
            << qPrintable(shown) << " does not start with " << qPrintable(next.prefix);
    }
    return next;
}

MessageAnswer ScriptedPrompts::messageBox(const QString& title, const QString& text, MessageIcon icon,
                                          MessageButtons buttons) {
    const Expected expected = take(described(title, text, icon, buttons));
    if (whileShown) {
        whileShown();
    }
    return expected.answer;
}

QString ScriptedPrompts::inputBox(const QString& title, const QString& prompt, const QString& initial) {
    return take(describedInput(title, prompt, initial)).input;
}

void ScriptedPrompts::setPointer(PointerShape shape) {
    pointer_ = shape;
    pointerHistory_.append(shape);
}
