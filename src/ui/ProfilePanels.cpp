#include "ui/ProfilePanels.h"

#include "profiles/cProfile.h"
#include "ui/widgets/Caption.h"

using namespace Qt::StringLiterals;

namespace {

template<auto object, auto field>
QString text(const cProfile& person) {
    return person.*object.*field;
}

constexpr auto own = &cProfile::oPersonalDirection;

const QString paragraphEnd = u"\r\n\r\n"_s;

} // namespace

// clang-format off
const std::array<ProfilePanels::Row, 15> ProfilePanels::rows{{
    {u"vsPrimaryDirection", u"Your Compass Direction is ", text<&cProfile::oDirection, &cDirection::DIRECTIONNAME>, u"ilDirections"},
    {u"vsSuccessDirection", u"Your Success Direction is ", text<own, &cPersonalDirection::SUCCESSDIRECTION>, u"ilDirections"},
    {u"vsHealthDirection", u"Your Health Direction is ", text<own, &cPersonalDirection::HEALTHDIRECTION>, u"ilDirections"},
    {u"vsRomanceDirection", u"Your Romance Direction is ", text<own, &cPersonalDirection::ROMANCEDIRECTION>, u"ilDirections"},
    {u"vsDevelopmentDirection", u"Your Development Direction is ", text<own, &cPersonalDirection::DEVELOPMENTDIRECTION>, u"ilDirections"},
    {u"vsBadLuckDirection", u"Your Bad Luck Direction is ", text<own, &cPersonalDirection::BADLUCKDIRECTION>, u"ilDirections"},
    {u"vsObstacleDirection", u"Your Obstacle Direction is ", text<own, &cPersonalDirection::OBSTACLEDIRECTION>, u"ilDirections"},
    {u"vsIllnessDirection", u"Your Illness Direction is ", text<own, &cPersonalDirection::ILLNESSDIRECTION>, u"ilDirections"},
    {u"vsDestructionDirection", u"Your Destruction Direction is ", text<own, &cPersonalDirection::DESTRUCTIONDIRECTION>, u"ilDirections"},
    {u"vsAnimal", u"Birth Year Sign is ", text<&cProfile::oAnimal, &cAnimal::AnimalName>, u"ilAnimals"},
    {u"vsColor", u"Your Color is ", text<&cProfile::oColor, &cColor::COLORNAME>, u"ilColors"},
    {u"vsSymbol", u"Your Symbol is ", text<&cProfile::oSymbol, &cSymbol::SYMBOLNAME>, u"ilSymbols"},
    {elementPanel, u"Your Element is ", text<&cProfile::oElement, &cElement::ELEMENTNAME>, u"ilElements"},
    {u"vsTOD", u"Your Time of Day is ", text<&cProfile::oTOD, &cTOD::TODNAME>, u"ilTODs"},
    {u"vsTrigram", u"", text<&cProfile::oTrigram, &cTrigram::TRIGRAMNAME>, u"ilTrigrams"},
}};
// clang-format on

QString ProfilePanels::elementDescription(const cElement& element) {
    if (element.ELEMENTNAME.trimmed().isEmpty()) {
        return {};
    }
    cElement related;
    const auto nameOf = [&related](qint32 id) {
        related.GetElement(id);
        return related.ELEMENTNAME;
    };
    const QString supports = nameOf(element.SUPPORTSELEMENTID);
    const QString supportedBy = nameOf(element.SUPPORTEDBYELEMENTID);
    const QString destroys = nameOf(element.DESTROYSELEMENTID);
    const QString destroyedBy = nameOf(element.DESTROYEDBYELEMENTID);
    const QStringList paragraphs{
        element.DESCRIPTION,
        u"It is associated with the compass direction(s) "_s + element.DIRECTIONS + u"."_s,
        u"It is characterized by the colors "_s + element.DECORATINGCOLORS + u", "_s +
            element.DECORATINGPATTERNS + u" and materials such as "_s + element.DECORATINGMATERIALS + u"."_s,
        element.ELEMENTNAME + u" supports the element "_s + supports +
            u" and is supported by the element "_s + supportedBy + u"."_s,
        u"It destroys the element "_s + destroys + u" and is destroyed by the element "_s + destroyedBy +
            u"."_s,
    };
    return captionText(paragraphs.join(paragraphEnd) + paragraphEnd);
}

QString ProfilePanels::summary(const cProfile& person) {
    constexpr qint32 withoutTrigram = 5;
    QString text = person.oDirection.SUMMARY;
    if (person.KUANUMBER != withoutTrigram) {
        text.prepend(u"Summary for the Trigram "_s + person.oTrigram.TRIGRAMNAME + u": "_s + paragraphEnd);
    }
    return captionText(text);
}
