#pragma once

#include <QPalette>

/// The colours of a dark desktop, as the pictures show it.
[[nodiscard]] QPalette darkPalette();
