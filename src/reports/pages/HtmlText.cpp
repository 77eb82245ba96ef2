#include "reports/pages/HtmlText.h"

#include <QChar>

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

/// Whether a unit of UTF-16 stands in HTML as it is.
bool isPlain(char16_t unit) {
    if (unit < 0x7F) {
        return unit == u'\t' ||
               (unit >= 0x20 && unit != u'&' && unit != u'<' && unit != u'>' && unit != u'"');
    }
    return !QChar::isSurrogate(unit) && !isLineEnd(unit) && !isForbidden(unit);
}

/// Appends runs of plain text whole, and everything else by itself.
void append(QString& html, QStringView text, bool breakLines) {
    qsizetype plain = 0;
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (isPlain(text[at].unicode())) {
            continue;
        }
        html += text.sliced(plain, at - plain);
        char32_t character = text[at].unicode();
        if (breakLines && isLineEnd(character)) {
            if (character != U'\n' || at == 0 || text[at - 1] != u'\r') { // the two together are one line end
                html += QLatin1String("<br/>");
            }
        } else {
            if (text[at].isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate()) {
                character = QChar::surrogateToUcs4(text[at], text[at + 1]);
                ++at;
            }
            appendCharacter(html, character); // which replaces a surrogate without its other half
        }
        plain = at + 1;
    }
    html += text.sliced(plain);
}

} // namespace

void appendEscaped(QString& html, QStringView text) {
    append(html, text, false);
}

void appendLines(QString& html, QStringView text) {
    append(html, text, true);
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
