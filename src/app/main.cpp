#include "app/Program.h"
#include "app/Startup.h"
#include "core/Global.h"
#include "core/VersionRecord.h"
#include "ui/widgets/ColorContrast.h"
#include "ui/widgets/SvgIcon.h"

#include <QApplication>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QApplication::setApplicationName(VersionRecord::title.toString());
    QApplication::setDesktopFileName(VersionRecord::desktopId.toString());
    QApplication::setPalette(ColorContrast::legibleSelection(QApplication::palette()));
    QApplication::setWindowIcon(svgIcon(QStringLiteral(":/talivane/pictures/talivane.svg")));

    Program program;
    Global::use(program.services(QApplication::applicationDirPath()));

    Global::Main();
    return program.mainWindow.isVisible() ? QApplication::exec() : EXIT_FAILURE;
}
