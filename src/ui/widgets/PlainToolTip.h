#pragma once

#include <QString>

/// What to give a tool tip so that it shows a text letter by letter, wrapped where it is long: by itself it
/// would take a text that looks like markup for markup. Nothing for no text, which hides the tip.
inline QString plainToolTip(const QString& text) {
    return text.isEmpty() ? QString() : QStringLiteral("<span>%1</span>").arg(text.toHtmlEscaped());
}
