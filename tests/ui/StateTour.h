#pragma once

#include "support/WindowDriver.h"

#include <QComboBox>

/// Leads the main window through the states that no picture shows: a chosen room; a floor over another one,
/// whose rooms show through; a home and a person that are entered anew.
inline void visitStates(QWidget& mainWindow, const std::function<void(QWidget&, const QString&)>& visit) {
    WindowDriver::click(mainWindow, "LOCATION");
    QTest::keyClick(&WindowDriver::control(mainWindow, "lstRooms"), Qt::Key_Down);
    visit(mainWindow, QStringLiteral("chosen room"));
    WindowDriver::control<QComboBox>(mainWindow, "cboFloors").setCurrentIndex(1);
    visit(mainWindow, QStringLiteral("upper floor"));
    WindowDriver::choose(mainWindow, "mnuLocations", "mnuLocationsNew");
    EXPECT_TRUE(WindowDriver::control(mainWindow, "txtLocation").isVisible());
    visit(mainWindow, QStringLiteral("new home"));
    WindowDriver::click(mainWindow, "PROFILE");
    WindowDriver::choose(mainWindow, "mnuProfiles", "mnuProfilesNew");
    EXPECT_TRUE(WindowDriver::control(mainWindow, "txtProfileName").isVisible());
    visit(mainWindow, QStringLiteral("new person"));
}
