#pragma once

#include "reports/pages/TextStyle.h"

#include <QString>

/// Appends text so that HTML and XML read back exactly its characters. What neither may hold (control
/// characters, unpaired surrogates, noncharacters) becomes the replacement character.
void appendEscaped(QString& html, QStringView text);

/// The same with every line end as a line break.
void appendLines(QString& html, QStringView text);

/// A measure as HTML writes it: at most two decimals, a point whatever the locale.
[[nodiscard]] QString htmlNumber(double value);

/// The style's size, colour and, where it is not the default one, face, as CSS declarations.
[[nodiscard]] QString cssOf(const TextStyle& style);
