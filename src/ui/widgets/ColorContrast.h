#pragma once

#include <QColor>

#include <optional>

class QPalette;

/// Colours that belong together on the screen.
namespace ColorContrast {

/// The contrast of two colours, 1 to 21, as the Web Content Accessibility Guidelines 2.1 define it.
[[nodiscard]] double ratio(const QColor& one, const QColor& other);

/// Ink or white, whichever stands out more on the ground; at least 4.5 to 1 on any ground.
[[nodiscard]] QColor textOn(const QColor& ground);

/// The colour that lies so far from the one to the other, 0 to 1.
[[nodiscard]] QColor between(const QColor& one, const QColor& other, double share);

/// Whether the desktop's palette is a dark one.
[[nodiscard]] bool isDark(const QPalette& palette);

/// The palette with a selection whose text stands out by 4.5 to 1 at least: what falls short of it gets a
/// darker ground, or a lighter one under dark text. Only these colours count as set, so that the others go on
/// following the desktop.
[[nodiscard]] QPalette legibleSelection(const QPalette& palette);

/// The ground of bands that have no colour of their own: a warm grey of paper.
[[nodiscard]] QColor paperGrey(const QPalette& palette);

/// A stored colour number, red in the lowest byte.
[[nodiscard]] QColor fromStored(qint32 value);
/// The same for a colour that may be missing.
[[nodiscard]] std::optional<QColor> fromStored(const std::optional<qint32>& value);

} // namespace ColorContrast
