#include "ui/widgets/CaptionLabel.h"

#include "ui/widgets/Caption.h"

CaptionLabel::CaptionLabel(const QString& name, QWidget* parent)
    : QLabel(parent) {
    setObjectName(name);
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setAlignment(Qt::AlignTop | Qt::AlignLeading);
}

void CaptionLabel::setCaption(const QString& caption) {
    caption_ = caption;
    QString shown = shownCaption(caption).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    while (shown.endsWith(u'\n')) {
        shown.chop(1);
    }
    setText(shown);
}
