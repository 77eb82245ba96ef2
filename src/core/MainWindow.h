#pragma once

/// What the records and the start-up need of the main window `frmView`.
class MainWindow {
public:
    virtual ~MainWindow() = default;

    /// Shows the window, not modally; creates it at the first call.
    virtual void Show() = 0;

    /// Puts the profile pane into its new state.
    virtual void NewProfile() = 0;

    /// Puts the location pane into its new state.
    virtual void NewLocation() = 0;
};
