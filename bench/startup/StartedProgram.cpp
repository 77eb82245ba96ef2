#include "FirstPaint.h"
#include "app/Program.h"
#include "app/Startup.h"
#include "core/Global.h"

#include <QAction>
#include <QApplication>

namespace {

/// Opens the report on the home, and tells the memory that the program holds with it.
void openReport(frmView& mainWindow) {
    QTimer::singleShot(0, [] {
        const AfterFirstPaint* telling =
            new AfterFirstPaint(*QApplication::activeModalWidget(), tellMemoryAndEnd);
        Q_UNUSED(telling);
        QApplication::activeModalWidget()->update();
    });
    mainWindow.findChild<QAction*>(QStringLiteral("mnuAdviceRooms"))->trigger();
}

} // namespace

/// The program's own start on the data folder of the first argument, with the settings beside it. With
/// "memory" as second argument it tells what it holds then, with "report" what it holds with the report on
/// the home opened.
int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    if (argc < 2) {
        return 2;
    }
    const QByteArray mode(argc > 2 ? argv[2] : "");
    const QString folder = QString::fromLocal8Bit(argv[1]);
    Program program(folder + QStringLiteral("/settings.ini"));
    Global::use(program.services(folder));
    const AfterFirstPaint ending(program.mainWindow, [&] {
        if (mode == "report") {
            openReport(program.mainWindow);
        } else if (mode == "memory") {
            tellMemoryAndEnd();
        }
        endHere();
    });
    Global::Main();
    return QApplication::exec();
}
