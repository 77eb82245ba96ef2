#include "reports/pages/HtmlText.h"

#include <QList>

namespace {

bool isForbidden(char32_t character) {
    const bool control = (character < 0x20 && character != U'\t') || (character >= 0x7F && character < 0xA0);
    const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
    const bool nonCharacter = (character >= 0xFDD0 && character <= 0xFDEF) || (character & 0xFFFE) == 0xFFFE;
    return control || surrogate || nonCharacter;
}

bool isLineEnd(char32_t character) {
    return character == U'\r' || character == U'\n' || character == QChar::LineSeparator ||
           character == QChar::ParagraphSeparator;
}

void appendCharacter(QString& html, char32_t character) {
    switch (character) {
    case U'&':
        html += QLatin1String("&amp;");
        break;
    case U'<':
        html += QLatin1String("&lt;");
        break;
    case U'>':
        html += QLatin1String("&gt;");
        break;
    case U'"':
        html += QLatin1String("&quot;");
        break;
    default:
        if (isForbidden(character)) {
            html += QChar(QChar::ReplacementCharacter);
        } else {
            html += QStringView(QChar::fromUcs4(character));
        }
    }
}

} // namespace

void appendEscaped(QString& html, QStringView text) {
    const QList<uint> characters = text.toUcs4(); // unpaired surrogates are replaced on this road
    for (const uint character : characters) {
        appendCharacter(html, character);
    }
}

void appendLines(QString& html, QStringView text) {
    uint previous = 0;
    const QList<uint> characters = text.toUcs4();
    for (const uint character : characters) {
        if (!isLineEnd(character)) {
            appendCharacter(html, character);
        } else if (character != U'\n' || previous != U'\r') { // the two together are one line end
            html += QLatin1String("<br/>");
        }
        previous = character;
    }
}

QString htmlNumber(double value) {
    QString number = QString::number(value, 'f', 2);
    while (number.endsWith(u'0')) {
        number.chop(1);
    }
    if (number.endsWith(u'.')) {
        number.chop(1);
    }
    return number == QLatin1String("-0") ? QStringLiteral("0") : number;
}

QString cssOf(const TextStyle& style) {
    QString css = QStringLiteral("font-size:%1pt;color:%2").arg(htmlNumber(style.points), style.color.name());
    if (!style.face.isEmpty()) {
        QString face = style.face;
        face.remove(u'\'').remove(u'\\');
        css += QStringLiteral(";font-family:'%1',Arial,sans-serif").arg(face);
    }
    return css;
}
