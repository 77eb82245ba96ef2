#pragma once

#include "faults/Operations.h"
#include "faults/Sandbox.h"

#include <QStringList>

#include <vector>

/// One line of the table: when this happens to that place, these boxes appear, and this is what has changed
/// on the disk afterwards, as the names of the places; nothing else has.
struct FaultRow {
    const char* place;
    std::vector<Fault> faults;
    Operation operation;
    QStringList boxes;
    QStringList changed;
};

using FaultTable = std::vector<FaultRow>;

/// The data files while the program reads.
[[nodiscard]] FaultTable readingRows();
/// The reference tables while advice is worked out.
[[nodiscard]] FaultTable adviceRows();
/// The record files and reference tables while reports on people and elements are read.
[[nodiscard]] FaultTable browsingRows();
/// The record files while the program writes.
[[nodiscard]] FaultTable writingRows();
/// Record files that could not be read, and an entry that must not take their place.
[[nodiscard]] FaultTable enteringRows();
/// Settings, HTML and PDF files, the printer and the browser.
[[nodiscard]] FaultTable surroundingRows();

namespace Boxes {

inline const QString notSet = QStringLiteral("91-Object variable or With block variable not set");
inline const QString find = QStringLiteral("cXMLHandler.Find: ") + notSet;
inline const QString advFind = QStringLiteral("cXMLHandler.AdvFind: ") + notSet;
inline const QString query = QStringLiteral("cXMLHandler.Query: ") + notSet;
inline const QString getMax = QStringLiteral("cXMLHandler.Get Max: ") + notSet;
inline const QString addNew = QStringLiteral("cXMLHandler.Add New: ") + notSet;
inline const QString moveFirst = QStringLiteral("cXMLHandler.Move First: ") + notSet;

inline const QString diskFull = QStringLiteral("61-Disk full");
inline const QString denied = QStringLiteral("70-Permission denied");
inline const QString noFile = QStringLiteral("75-Path/File access error");
inline const QString noPath = QStringLiteral("76-Path not found");

/// The report of a save that failed.
inline QString save(const QString& failure) {
    return QStringLiteral("cXMLHandler.Save Document: ") + failure;
}
/// The report of a save of a file that could not be read: what is in memory is no record file.
inline const QString nothingToSave = save(QStringLiteral("321-Invalid file format"));

/// The same boxes so many times.
inline QStringList times(int count, const QStringList& boxes) {
    QStringList all;
    for (int i = 0; i < count; ++i) {
        all << boxes;
    }
    return all;
}

} // namespace Boxes
