#pragma once

#include <QIcon>

/// A compiled-in vector picture as an icon, sharp at every size and resolution. It is read when it is first
/// painted. Icons of files would do the same, but the plug-in that they need takes a fair share of the
/// program's start to find and load.
[[nodiscard]] QIcon svgIcon(const QString& path);
