#pragma once

#include "core/Clock.h"
#include "core/Services.h"
#include "ui/frmView.h"
#include "ui/platform/DialogPrompts.h"
#include "ui/platform/QSettingsStore.h"
#include "ui/platform/SystemBrowser.h"
#include "ui/platform/SystemPrinter.h"

/// The program put together: the real implementation of every seam, and the main window.
struct Program {
    DialogPrompts prompts;
    QSettingsStore settings;
    SystemClock clock;
    SystemPrinter printer;
    SystemBrowser browser;
    frmView mainWindow;

    /// With the settings of the user who runs it.
    Program() = default;
    /// With the settings in an INI file of one's own.
    explicit Program(const QString& settingsFile);

    /// What has to be handed in before anything is called; the records lie in the folder.
    [[nodiscard]] Services services(const QString& folder);
};
