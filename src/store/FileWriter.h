#pragma once

#include <QByteArray>
#include <QString>

/// Writes `content` straight over the file: there is no temporary file and no backup, so a file keeps its
/// place, its owner and its links.
///
/// Within that as little as possible is risked. Blocks for growth are reserved before the first byte
/// changes, so that a full disk fails with the old file whole; one write then covers old and new content,
/// with blanks behind the new content where it is the shorter one; only then is the length cut and the file
/// flushed to disk. Between any two of these calls the file holds the old or the new content, perhaps with
/// blanks behind it: a disk that reserves nothing has its room taken up by blanks behind the old content
/// first.
///
/// Throws a Failure: 52 bad name, 61 disk full, 70 permission denied, 75 path/file access (a folder where
/// the file must go), 76 path not found, 57 for any other fault of the device.
void writeOverFile(const QString& path, const QByteArray& content);
