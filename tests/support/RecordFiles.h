#pragma once

#include <QByteArray>
#include <QByteArrayList>

/// A record file with these records, a line each, and no fields named in its schema.
inline QByteArray recordFile(const QByteArrayList& rows) {
    return R"(<xml xmlns:s="uuid:BDC6E3F0-6DA3-11d1-A2A3-00AA00C14882" xmlns:rs="urn:schemas-microsoft-com:rowset")"
           R"( xmlns:z="#RowsetSchema"><s:Schema id="RowsetSchema"/><rs:data>)"
           "\n" +
           rows.join('\n') + "\n</rs:data></xml>";
}

/// The records of a file's content, each as the text of its line.
inline QByteArrayList recordLines(const QByteArray& content) {
    QByteArrayList found;
    for (const QByteArray& line : content.split('\n')) {
        if (line.contains("<z:row")) {
            found << line.trimmed();
        }
    }
    return found;
}

/// The content without the lines that hold `part`, which must be records.
inline QByteArray withoutRecords(const QByteArray& content, const QByteArray& part) {
    QByteArrayList kept;
    for (const QByteArray& line : content.split('\n')) {
        if (!line.contains("<z:row") || !line.contains(part)) {
            kept << line;
        }
    }
    return kept.join('\n');
}
