#pragma once

#include "store/cXMLHandler.h"

#include <QString>
#include <QVariant>

#include <memory>
#include <optional>

class ReportSurface;

/// A home: one location record with its floors and their rooms. It owns the three record files; each change
/// is on disk when its routine returns. All operations but the loads need the files loaded: at start
/// `LoadLocations`, `LoadFloors`, `LoadRooms`, then `GetLocation`.
///
/// Plan distances are inches.
class cLocation {
public:
    /// The rooms of all locations.
    std::unique_ptr<cXMLHandler> oXMLRooms;
    /// The floors of all locations.
    std::unique_ptr<cXMLHandler> oXMLFloors;
    std::unique_ptr<cXMLHandler> oXMLLocations;
    qint32 LocationID = 0;
    QString DESCRIPTION;
    /// Vertical extent of the floor plan, in inches.
    qint32 PLANLENGTH = 600;
    /// Horizontal extent of the floor plan, in inches.
    qint32 PLANWIDTH = 600;
    /// The direction of North: compass degrees clockwise from the top of the plan, 0 to 360; 0 means that
    /// North is not set.
    double NORTHOFFSET = 0;
    /// The point on the plan that the user clicked to set North, in coordinates centred on the plan.
    double LABLEX = 0;
    double LABLEY = 0;
    /// The location on screen differs from the stored one.
    bool IsDirty = false;

    /// Touches no file.
    cLocation();

    /// Reads a location by id. Without an id the last one used is taken; when there is none either, the main
    /// window starts a new location. A number that is missing or is none reads as its default. False for an
    /// unknown id; the fields then keep what they held.
    bool GetLocation(const QVariant& vLocation = {});

    /// Starts a new, unsaved location in the main window.
    void CreateLocation();

    /// Stores `DESCRIPTION` as a new location with `lNumFloors` floors, and reads it back. It has neither
    /// plan size nor North until `UpdateLocation` and `UpdateNorthOffset` write them.
    bool InsertLocation(qint32 lNumFloors);

    /// Stores name and plan size. False when the location is not in the file.
    bool UpdateLocation();

    /// Stores `NORTHOFFSET`, `LABLEX` and `LABLEY`. False when the location is not in the file.
    bool UpdateNorthOffset();

    /// Deletes the location with its floors and rooms. A row that refuses cancels the deletion with a
    /// message: nothing is saved, but the files in memory stay part-deleted until the next load.
    bool DeleteLocation();

    /// Deletes a floor of this location with its rooms, in the same way.
    bool DeleteFloor(qint32 lFloorID);

    /// Appends a floor, named after the number of floors.
    bool InsertFloor();

    /// False when the floor is not in the file.
    bool RenameFloor(qint32 lFloorID, const QString& sDescription);

    /// Writes the advice on all rooms of the home, or of one floor. Defined in the analysis layer.
    void AnalyzeRooms(ReportSurface& vp, std::optional<qint32> vFloorID = std::nullopt);

    /// Reads `Rooms.xml` anew and repairs its decimal separators. Always true.
    bool LoadRooms();

    /// Reads `Floors.xml` anew. Always true.
    bool LoadFloors();

    /// Reads `Locations.xml` anew and repairs its decimal separators. Always true.
    bool LoadLocations();

private:
    void addFloor(qint32 locationId, const QString& description);
    bool deleteRooms(const QString& floorId, const QString& title, const QString& refusal);

    QString folder;
};

namespace Global {

/// The one home that the whole user interface shares.
extern std::unique_ptr<cLocation> CurrentLocation;

} // namespace Global
