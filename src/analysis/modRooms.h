#pragma once

#include <QtGlobal>

class ReportSurface;

/// The room advice: what a stored room and the current person's directions have to say to each other. The
/// analyses write into an open document and never open or close one, so that several rooms share a document.
/// Each reads the room's record anew from the file; one that is not there is passed over in silence. The page
/// conventions that all reports share are in reports/surface/ReportRoutines.h.
namespace modRooms {

/// Draws the wheel of the eight directions, South at the top, about a centre in twips. The sector of
/// `Direction` stands out; 5, the centre of a home, has none.
void DrawVPChart(ReportSurface& vp, double X, double Y, qint32 Direction);

void AnalyzeBedroom(qint32 RoomID, ReportSurface& vp);
void AnalyzeFamilyRoom(qint32 RoomID, ReportSurface& vp);

/// Bathrooms and laundry rooms. They drain the place where they lie, so a beneficial direction is a warning.
void AnalyzeBathroom(qint32 RoomID, ReportSurface& vp);

void AnalyzeDiningRoom(qint32 RoomID, ReportSurface& vp);

/// The one whole analysis in which the person plays no part.
void AnalyzeKitchen(qint32 RoomID, ReportSurface& vp);

void AnalyzeHomeOffice(qint32 RoomID, ReportSurface& vp);
void AnalyzeHallWay(qint32 RoomID, ReportSurface& vp);
void AnalyzeCloset(qint32 RoomID, ReportSurface& vp);
void AnalyzeGym(qint32 RoomID, ReportSurface& vp);

/// The section on the main entrance, which every other analysis takes in for the room that has it: no chart,
/// no position, its paragraphs follow in the flow.
void AnalyzeEntranceWay(qint32 RoomID, ReportSurface& vp);

} // namespace modRooms
