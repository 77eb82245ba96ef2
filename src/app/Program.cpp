#include "app/Program.h"

Program::Program(const QString& settingsFile)
    : settings(settingsFile) {}

Services Program::services(const QString& folder) {
    Services services;
    services.prompts = &prompts;
    services.settings = &settings;
    services.clock = &clock;
    services.mainWindow = &mainWindow;
    services.printer = &printer;
    services.browser = &browser;
    services.applicationPath = folder;
    return services;
}
