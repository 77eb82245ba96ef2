#pragma once

#include <QString>
#include <QWidget>

/// Compares what windows show with what the record files hold, each file loaded anew by the class that owns
/// it. What differs fails the test.
namespace Screen {

/// What the main window may show although it is not stored and Save is off. Each is taken back as soon as the
/// screen and the files are the same once more.
struct Leftovers {
    /// Changes that the list of people was opened over, and that were not to be saved: a person stays as
    /// calculated.
    bool person = false;
    /// A name that was typed before North was set: setting it turns Save off and stores North alone.
    bool homeName = false;
};

/// The main window: both lists of records, and the person or the home on show unless it has unsaved changes.
void expectMainWindowShowsStored(QWidget& frmView, Leftovers& leftovers);

/// The room editor after a save of this room.
void expectEditorShowsStored(QWidget& frmRoom, const QString& roomId);

/// The window that sets North, and the rooms of the home, after a save.
void expectNorthStored(double shownNorth);

} // namespace Screen
