#include "FirstPaint.h"

#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>

/// What the program's start is measured against: a main window of the same size with the same menus and
/// nothing in it. With an argument it tells the memory that it holds.
int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QMainWindow window;
    const QList<QList<const char*>> menus = {
        {"&File", "E&xit"},
        {"&Profiles", "&New Profile", "&Save Profile", "&Delete Profile", "", "&Calculate KUA"},
        {"&Locations", "&New Location", "&Save Location", "&Delete Location", "", "Set Directions...", "",
         "New Floor", "Rename Floor...", "Delete Floor", "", "Open Room...", "New Room...", "Delete Room"},
        {"&Advice", "On &Moving...", "On Re&novations...", "On Nine &Ki Chart...", "On &Rooms...",
         "On &Elements...", "On &Profiles..."},
        {"&Help", "&FAQs", "&Support", "&About..."},
    };
    for (const QList<const char*>& entries : menus) {
        QMenu* menu = window.menuBar()->addMenu(QString::fromLatin1(entries.first()));
        for (const char* entry : entries.sliced(1)) {
            *entry == '\0' ? menu->addSeparator() : menu->addAction(QString::fromLatin1(entry));
        }
    }
    window.resize(1100, 760);
    const AfterFirstPaint ending(window, argc > 1 ? tellMemoryAndEnd : endHere);
    window.show();
    return QApplication::exec();
}
