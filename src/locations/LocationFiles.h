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

} // namespace LocationFiles
