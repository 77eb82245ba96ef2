#pragma once

#include <QPoint>
#include <QString>

#include <functional>

/// The toolbar buttons and panes of the main window.
enum class Pane : quint8 { Profile, Location };

/// What the two panes share with the main window and ask of it.
class ViewFrame {
public:
    virtual ~ViewFrame() = default;

    /// "INSERT" or "UPDATE". One for both panes: the pane that was opened last decides.
    QString Mode;
    /// A list is being refilled; its selection handlers do nothing.
    bool Filling = false;
    /// The program writes to the controls; their change handlers do nothing.
    bool Loading = false;

    /// Shows the pane's record in the status bar.
    virtual void setPanel(Pane pane, const QString& name) = 0;

    /// Enables a menu entry by its name, or disables it. An entry that has nothing to run stays grey.
    virtual void setEntryEnabled(const QString& name, bool enabled) = 0;

    /// Gives a menu entry something to run, from when on it is no longer grey. An unknown name is passed
    /// over.
    virtual void connectEntry(const QString& name, std::function<void()> handler) = 0;

    /// Shows a toolbar button pressed and the other one released; the panes do not change.
    virtual void pressButton(Pane pane) = 0;

    /// Opens the menu of the home's commands at a place of the screen.
    virtual void popUpLocations(const QPoint& onScreen) = 0;
};
