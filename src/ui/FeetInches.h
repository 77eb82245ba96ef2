#pragma once

#include <QString>

/// A plan distance in words, to the nearest inch: 126 inches are "10 ft 6 in", -14 are "-1 ft 2 in".
[[nodiscard]] QString feetAndInches(float inches);
