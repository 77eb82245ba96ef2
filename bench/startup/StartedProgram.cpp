#include "FirstPaint.h"
#include "app/Startup.h"
#include "core/Global.h"
#include "ui/frmView.h"
#include "ui/platform/DialogPrompts.h"
#include "ui/platform/QSettingsStore.h"
#include "ui/platform/SystemBrowser.h"
#include "ui/platform/SystemClock.h"
#include "ui/platform/SystemPrinter.h"

#include <QApplication>

/// The program's own start on the data folder of the first argument, with the settings beside it.
int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    if (argc != 2) {
        return 2;
    }
    const QString folder = QString::fromLocal8Bit(argv[1]);
    DialogPrompts prompts;
    QSettingsStore settings(folder + QStringLiteral("/settings.ini"));
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
    services.applicationPath = folder;
    Global::use(services);
    const EndAfterFirstPaint ending(mainWindow);
    Global::Main();
    return QApplication::exec();
}
