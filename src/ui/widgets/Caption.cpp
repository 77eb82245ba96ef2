#include "ui/widgets/Caption.h"

QString captionText(QString text) {
    return text.replace(u'&', QStringLiteral("&&"));
}

QString shownCaption(const QString& caption) {
    QString shown;
    for (qsizetype i = 0; i < caption.size(); ++i) {
        if (caption.at(i) == u'&') {
            ++i;
            if (i == caption.size()) {
                break;
            }
        }
        shown.append(caption.at(i));
    }
    return shown;
}
