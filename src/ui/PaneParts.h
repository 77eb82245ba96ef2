#pragma once

#include <QString>
#include <QVariant>

class ComboList;
class QVBoxLayout;
class QWidget;
class RecordList;
class TitleBand;
class ViewFrame;
class cXMLHandler;

/// What the two panes are made of alike.
namespace PaneParts {

/// The title band at the pane's top, over the pane's picture as long as nothing else stands there.
TitleBand* addBand(QWidget& pane, QVBoxLayout& column, const QString& name, const QString& picture);

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
