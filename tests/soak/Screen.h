#pragma once

#include <QString>
#include <QWidget>

/// Compares what windows show with what the record files hold, each file loaded anew by the class that owns
/// it. What differs fails the test.
namespace Screen {

/// The main window: both lists of records, and the person or the home on show unless it has unsaved changes.
/// `dropped` says whether the user answered the list of people with No: such a person is compared with the
/// files again, and the flag cleared, only when both are the same once more.
void expectMainWindowShowsStored(QWidget& frmView, bool& dropped);

/// The room editor after a save of this room.
void expectEditorShowsStored(QWidget& frmRoom, const QString& roomId);

/// The window that sets North, and the rooms of the home, after a save.
void expectNorthStored(double shownNorth);

} // namespace Screen
