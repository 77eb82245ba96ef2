#pragma once

#include <QString>

/// Paints the pages of the sample household's reports as they come out of the printer, a picture each.
void paintReports(const QString& folder);
