#pragma once

#include "core/VersionRecord.h"

#include <QLocale>
#include <QString>

class Browser;
class Clock;
class MainWindow;
class Printer;
class Prompts;
class SettingsStore;

/// The seams through which the program reaches its surroundings. They are handed in once at start; in a
/// test each is a scripted stand-in. A service that is not handed in fails its caller with error 91.
struct Services {
    Prompts* prompts = nullptr;
    SettingsStore* settings = nullptr;
    Clock* clock = nullptr;
    MainWindow* mainWindow = nullptr;
    Printer* printer = nullptr;
    Browser* browser = nullptr;
    /// Folder of the executable, beside which all record files lie.
    QString applicationPath;
    /// The application's title, part of the settings' paths.
    QString title = VersionRecord::title.toString();
    /// The user's regional settings.
    QLocale locale = QLocale::system();
};
