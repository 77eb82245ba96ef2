#pragma once

#include <QString>

class QWidget;

/// Takes a picture of every window of the program, each reached from the main window as a user reaches it.
/// `suffix` joins each file's name.
void takeWindowPictures(QWidget& mainWindow, const QString& folder, const QString& suffix);

/// Draws all pictures that the records are shown with, at two sizes and with their names, onto one sheet.
void drawContactSheet(const QString& folder, const QString& suffix);
