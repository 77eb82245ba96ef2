#pragma once

#include "store/cXMLHandler.h"

#include <QString>

#include <memory>

/// The record files that hold decimal numbers. Their numbers have the decimal separator that was in force
/// when they were written; a file with the other one is converted in place at load and saved once, so that
/// its numbers can be read by the regional conventions.
///
/// As everywhere, a file that is missing is not a failed load: it is reported at its first use, which here
/// is the walk over the records.
namespace LocationFiles {

/// A fresh store on `Rooms.xml` of a folder.
[[nodiscard]] std::unique_ptr<cXMLHandler> loadRooms(const QString& folder);

/// A fresh store on `Locations.xml` of a folder.
[[nodiscard]] std::unique_ptr<cXMLHandler> loadLocations(const QString& folder);

/// A stored plan distance, in inches, as it comes back from its form "General Number". Fails with error 13
/// (Type mismatch) for a text that is no number.
[[nodiscard]] float distance(const QString& text);

} // namespace LocationFiles
