#pragma once

#include <QString>

#include <memory>

class QComboBox;
class RoomForm;
class cRoom;
class cXMLHandler;

/// The way between a room's fields and the controls of its form, and what the form's lists offer. All of it
/// fails by a thrown Failure.
namespace RoomFields {

/// Fills a list from all records of a file, in its order: the field `kind` + "NAME" as the text and `kind` +
/// "ID" as the number.
void fillList(QComboBox& combo, const std::unique_ptr<cXMLHandler>& store, const QString& kind);

/// Fills a list with the floors of the current home.
void fillFloors(QComboBox& combo);

/// Selects the entry of that number, or nothing.
void selectByKey(QComboBox& combo, qint32 key);

/// Empties the texts, selects nothing and unchecks the boxes.
void clear(RoomForm& form);

/// Shows a room; its size in whole feet and inches, rounded to the inch.
void show(const cRoom& shown, RoomForm& form);

/// Takes a room from the form. A size is kept with its fractions of an inch; what is no number counts as
/// nothing, and a size of nothing is ten feet. What was left out becomes "Unknown", the first type and
/// flooring, and the centre of the home. A room whose floor is not in the list keeps it.
void read(RoomForm& form, cRoom& entered);

} // namespace RoomFields
