#pragma once

#include <QImage>
#include <QString>

/// Writes a picture as a small PNG of at most 256 colours and prints its path. Ends the program when that
/// fails.
void savePicture(const QImage& image, const QString& path);

/// Ends the program with a message.
[[noreturn]] void stop(const QString& why);
