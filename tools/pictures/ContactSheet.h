#pragma once

#include <QString>

/// Draws all pictures that the records are shown with, at two sizes and with their names, onto one sheet.
void drawContactSheet(const QString& folder, const QString& suffix);
