#include "app/Program.h"
#include "app/Startup.h"
#include "core/Global.h"
#include "ui/widgets/ColorContrast.h"
#include "ui/widgets/SvgIcon.h"

#include <QApplication>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Talivane"));
    // The name under which desktops know the program's entry and icon.
    QApplication::setDesktopFileName(QStringLiteral("com.orvenel.Talivane"));
    QApplication::setPalette(ColorContrast::legibleSelection(QApplication::palette()));
    QApplication::setWindowIcon(svgIcon(QStringLiteral(":/talivane/pictures/talivane.svg")));

    Program program;
    Global::use(program.services(QApplication::applicationDirPath()));

    Global::Main();
    return program.mainWindow.isVisible() ? QApplication::exec() : EXIT_FAILURE;
}
