#pragma once

#include <QByteArray>

/// A Latin text as PDF files hold it in their description: two bytes a letter, after the mark of their order.
/// Brackets and backslashes are not meant for it.
inline QByteArray pdfText(const QByteArray& latin) {
    QByteArray written("(\xFE\xFF");
    for (const char letter : latin) {
        written += '\0';
        written += letter;
    }
    return written + ')';
}
