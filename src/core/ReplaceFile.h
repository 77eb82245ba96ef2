#pragma once

#include <QByteArray>
#include <QString>

/// Writes a file that a user named, through a temporary one beside it: what stood there before is replaced
/// when all is written, and kept whole when anything fails. Only where the folder takes no new files is the
/// old one written over. Throws a Failure: 61 disk full, 70 permission denied, 75 path/file access (a folder
/// or a device where the file must go), 76 path not found.
void replaceFile(const QString& path, const QByteArray& content);
