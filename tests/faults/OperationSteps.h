#pragma once

#include <QString>

#include <functional>

class FaultStage;
class QLineEdit;
class QWidget;

/// What several operations do on their way.
namespace OperationSteps {

/// Types a text over the one in a field.
void enter(QLineEdit& field, const QString& text);
/// The same in the field of that name.
void enter(QWidget& window, const char* name, const QString& text);

/// Goes from the people to the homes.
void goToHomes(FaultStage& stage);
/// Starts the program and goes to the homes.
void startAtHomes(FaultStage& stage);
/// Chooses the kitchen, the first of the rooms, in their list.
void selectKitchen(FaultStage& stage);
/// Opens the kitchen and does something in its window.
void editKitchen(FaultStage& stage, const std::function<void(QWidget&)>& inside);
/// Opens the compass on which North is set and does something in its window.
void setDirections(FaultStage& stage, const std::function<void(QWidget&)>& inside);

} // namespace OperationSteps
