#pragma once

#include <QString>
#include <QStringView>

#include <array>

class cElement;
class cProfile;

/// The panels that show what follows from a person's number.
namespace ProfilePanels {

/// One panel: what stands in front of its value, where the value comes from, and the list that holds the
/// value's picture.
struct Row {
    QStringView panel;
    QStringView leadIn;
    QString (*value)(const cProfile&);
    QStringView list;
};

/// All panels, in the order in which they are filled.
extern const std::array<Row, 15> rows;

/// The panel whose filling also describes the person's element.
inline constexpr QStringView elementPanel = u"vsElement";

/// The panels that are blanked while nobody is on show, in that order; the others keep what they show.
inline constexpr std::array<QStringView, 7> blanked{
    u"vsSuccessDirection", u"vsAnimal", u"vsColor", u"vsSymbol", elementPanel, u"vsTOD", u"vsTrigram",
};

/// The seven picture lists.
inline constexpr std::array<QStringView, 7> pictureLists{
    u"ilDirections", u"ilAnimals", u"ilColors", u"ilSymbols", u"ilElements", u"ilTODs", u"ilTrigrams",
};

/// What is told of an element and its relations to four others, as a caption; the empty text for an element
/// without a name.
[[nodiscard]] QString elementDescription(const cElement& element);

/// What is told of a person's direction, as a caption, under the trigram where the person has one.
[[nodiscard]] QString summary(const cProfile& person);

} // namespace ProfilePanels
