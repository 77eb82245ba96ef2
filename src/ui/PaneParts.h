#pragma once

#include <QString>
#include <QVariant>

#include <initializer_list>

class ComboList;
class QLabel;
class QPushButton;
class QWidget;
class RecordList;
class ViewFrame;
class cXMLHandler;

/// What the two panes are made of alike.
namespace PaneParts {

/// A control under its names and with its tool tip.
template<class Control>
Control* named(Control* control, const QString& name, const QString& accessibleName, const QString& toolTip) {
    control->setObjectName(name);
    control->setAccessibleName(accessibleName);
    control->setToolTip(toolTip);
    return control;
}

QPushButton* makeButton(const QString& name, const QString& caption, const QString& toolTip, QWidget* parent);

/// A label that stands before its field.
QLabel* makeLabel(const QString& name, const QString& caption, QWidget* parent);

/// Gives all the buttons the room of the largest, also for a caption that one of them has at times.
void makeAlike(std::initializer_list<QPushButton*> buttons, const QString& otherCaption);

/// The list of records, in which the name of the one on show can be edited.
RecordList* makeList(QWidget& pane, const QString& name, const QString& accessibleName,
                     const QString& toolTip);

/// Refills a list from all records of a store, in the order of the file, up to the first without a name.
void fillList(ViewFrame& frame, ComboList& list, cXMLHandler& store, const QString& nameField,
              const QString& keyField);

/// Stores which record was used last, for the next start.
void rememberLast(const QString& setting, const QVariant& id);

/// A question with Yes and No; true on Yes.
[[nodiscard]] bool ask(const QString& title, const QString& question);

/// What the user should know before going on.
void inform(const QString& title, const QString& text);

/// What did not work.
void warn(const QString& title, const QString& text);

} // namespace PaneParts
