#include "faults/OperationSteps.h"

#include "faults/FaultStage.h"
#include "support/WindowDriver.h"

#include <QInputMethodEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QToolButton>

using namespace WindowDriver;

void OperationSteps::enter(QLineEdit& field, const QString& text) {
    field.setFocus();
    field.selectAll();
    QInputMethodEvent input;
    input.setCommitString(text);
    QCoreApplication::sendEvent(&field, &input);
}

void OperationSteps::enter(QWidget& window, const char* name, const QString& text) {
    enter(control<QLineEdit>(window, name), text);
}

void OperationSteps::goToHomes(FaultStage& stage) {
    QTest::mouseClick(&control<QToolButton>(stage.view(), "LOCATION"), Qt::LeftButton);
    QApplication::processEvents();
}

void OperationSteps::startAtHomes(FaultStage& stage) {
    stage.start();
    goToHomes(stage);
}

void OperationSteps::selectKitchen(FaultStage& stage) {
    control<QListWidget>(stage.view(), "lstRooms").setCurrentRow(0);
}

void OperationSteps::editKitchen(FaultStage& stage, const std::function<void(QWidget&)>& inside) {
    selectKitchen(stage);
    whileModal([&] { choose(stage.view(), "mnuLocations", "mnuLocationsOpenRoom"); }, inside);
}

void OperationSteps::setDirections(FaultStage& stage, const std::function<void(QWidget&)>& inside) {
    whileModal([&] { choose(stage.view(), "mnuLocations", "mnuLocationsDirections"); }, inside);
}
