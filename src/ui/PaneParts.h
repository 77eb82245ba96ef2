#pragma once

#include <QString>
#include <QVariant>

class ComboList;
class QComboBox;
class QVBoxLayout;
class QWidget;
class TitleBand;
class ViewFrame;
class cXMLHandler;

/// What the two panes are made of alike.
namespace PaneParts {

/// The title band at the pane's top, over the pane's picture as long as nothing else stands there.
TitleBand* addBand(QWidget& pane, QVBoxLayout& column, const QString& name, const QString& picture);

/// The list of records. A text can be edited in it; nothing is added to it by typing.
QComboBox* makeList(QWidget& pane, const QString& name, const QString& accessibleName,
                    const QString& toolTip);

/// Refills a list from all records of a store, in the order of the file, up to the first without a name.
void fillList(ViewFrame& frame, ComboList& list, cXMLHandler& store, const QString& nameField,
              const QString& keyField);

/// Stores which record was used last, for the next start.
void rememberLast(const QString& setting, const QVariant& id);

} // namespace PaneParts
