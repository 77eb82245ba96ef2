#include "app/Startup.h"
#include "core/Global.h"
#include "ui/frmView.h"
#include "ui/platform/DialogPrompts.h"
#include "ui/platform/QSettingsStore.h"
#include "ui/platform/SystemBrowser.h"
#include "ui/platform/SystemClock.h"
#include "ui/platform/SystemPrinter.h"
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

    DialogPrompts prompts;
    QSettingsStore settings;
    SystemClock clock;
    SystemPrinter printer;
    SystemBrowser browser;
    frmView mainWindow;

    Services services;
    services.prompts = &prompts;
    services.settings = &settings;
    services.clock = &clock;
    services.mainWindow = &mainWindow;
    services.printer = &printer;
    services.browser = &browser;
    services.applicationPath = QApplication::applicationDirPath();
    Global::use(services);

    Global::Main();
    return mainWindow.isVisible() ? QApplication::exec() : EXIT_FAILURE;
}
