#pragma once

#include <QString>

#include <functional>

class QWidget;

/// Opens every window of the program in turn, on each of its pages, each reached from the main window as a
/// user reaches it, and hands it over with the name of the stop, "room-editor". The window is closed again
/// afterwards. Ends the program with a message where a stop cannot be reached.
void visitWindows(QWidget& mainWindow,
                  const std::function<void(QWidget& window, const QString& name)>& visit);

/// Opens each kind of box that asks or tells in turn, with words that the program says, and hands it over in
/// the same way.
void visitBoxes(const std::function<void(QWidget& box, const QString& name)>& visit);
