#include "ui/platform/DialogPrompts.h"

#include <QApplication>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>

namespace {

/// A box's picture, and what a screen reader says where the eye sees it.
struct BoxPicture {
    QMessageBox::Icon icon;
    QString name;
};

BoxPicture pictureOf(MessageIcon icon) {
    switch (icon) {
    case MessageIcon::Critical:
        return {QMessageBox::Critical, QStringLiteral("Error")};
    case MessageIcon::Question:
        return {QMessageBox::Question, QStringLiteral("Question")};
    case MessageIcon::Exclamation:
        return {QMessageBox::Warning, QStringLiteral("Warning")};
    case MessageIcon::Information:
        break;
    }
    return {QMessageBox::Information, QStringLiteral("Information")};
}

/// The boxes' texts separate lines by CR LF, widgets by LF alone.
QString withPlainLineBreaks(QString text) {
    return text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

} // namespace

MessageAnswer DialogPrompts::messageBox(const QString& title, const QString& text, MessageIcon icon,
                                        MessageButtons buttons) {
    QMessageBox box(QApplication::activeWindow());
    box.setObjectName(QStringLiteral("messageBox"));
    box.setWindowTitle(title);
    box.setTextFormat(Qt::PlainText);
    box.setText(withPlainLineBreaks(text));
    const BoxPicture picture = pictureOf(icon);
    box.setIcon(picture.icon);
    if (auto* shown = box.findChild<QLabel*>(QStringLiteral("qt_msgboxex_icon_label")); shown != nullptr) {
        shown->setAccessibleName(picture.name);
    }
    if (buttons == MessageButtons::YesNo) {
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        box.setDefaultButton(QMessageBox::No);
        box.setEscapeButton(QMessageBox::No);
        return box.exec() == QMessageBox::Yes ? MessageAnswer::Yes : MessageAnswer::No;
    }
    box.setStandardButtons(QMessageBox::Ok);
    box.exec();
    return MessageAnswer::Ok;
}

QString DialogPrompts::inputBox(const QString& title, const QString& prompt, const QString& initial) {
    constexpr int widthForAPath = 560;
    QInputDialog box(QApplication::activeWindow());
    box.setObjectName(QStringLiteral("inputBox"));
    box.setWindowTitle(title);
    box.setInputMode(QInputDialog::TextInput);
    box.setLabelText(withPlainLineBreaks(prompt));
    box.setTextValue(initial);
    for (QLabel* label : box.findChildren<QLabel*>()) {
        label->setTextFormat(Qt::PlainText);
    }
    box.resize(widthForAPath, box.sizeHint().height());
    return box.exec() == QDialog::Accepted ? box.textValue() : QString();
}

PointerShape DialogPrompts::pointer() const {
    const QCursor* cursor = QGuiApplication::overrideCursor();
    if (cursor == nullptr) {
        return PointerShape::Default;
    }
    return cursor->shape() == Qt::WaitCursor ? PointerShape::Hourglass : PointerShape::Arrow;
}

void DialogPrompts::setPointer(PointerShape shape) {
    while (QGuiApplication::overrideCursor() != nullptr) {
        QGuiApplication::restoreOverrideCursor();
    }
    switch (shape) {
    case PointerShape::Default:
        break;
    case PointerShape::Arrow:
        QGuiApplication::setOverrideCursor(Qt::ArrowCursor);
        break;
    case PointerShape::Hourglass:
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        break;
    }
}
