#pragma once

#include <QByteArray>
#include <QString>

/// A text as PDF files hold it in their description: two bytes a letter, after the mark of their order, with
/// a backslash before the bytes that have a meaning of their own.
inline QByteArray pdfText(const QString& text) {
    QByteArray written("(\xFE\xFF");
    for (const QChar letter : text) {
        for (const uchar byte : {letter.row(), letter.cell()}) {
            if (byte == '(' || byte == ')' || byte == '\\') {
                written += '\\';
            }
            written += static_cast<char>(byte);
        }
    }
    return written + ')';
}
