#include "catalogues/ElementRelations.h"

#include "catalogues/cColor.h"
#include "catalogues/cDirection.h"
#include "catalogues/cElement.h"
#include "core/Failure.h"

namespace {

/// A test for a destroying relation, and the phrase between the names of the two elements when it holds.
struct DestroyingRelation {
    /// The field of `holder` that names the other element.
    qint32 cElement::*otherId;
    bool secondHolds;
    QStringView phrase;
};

/// In the order of testing; the first that holds gives the reason. The tests repeat each other while every
/// element's row agrees with its opponent's.
constexpr DestroyingRelation DESTROYING_RELATIONS[] = {
    {&cElement::DESTROYSELEMENTID, true, u" Destroys "},
    {&cElement::DESTROYEDBYELEMENTID, true, u" is Destroyed By "},
    {&cElement::DESTROYSELEMENTID, false, u" Destroys "},
    {&cElement::DESTROYEDBYELEMENTID, false, u" is Destroyed By "},
};

qint32 shadeOf(const cColor& color, qint32 shade) {
    switch (shade) {
    case shades::bright:
        return color.BRIGHTCOLORVALUE;
    case shades::normal:
        return color.COLORVALUE;
    case shades::light:
        return color.LIGHTCOLORVALUE;
    default:
        return 0;
    }
}

} // namespace

bool Global::IsCompatible(qint32 direction1, qint32 direction2, QString& elementName, QString& reason) {
    return routine(u"Global.Is Compatible", false, [&](bool& result) {
        // The look-ups go untested, so that an unknown second direction compares the first with itself.
        cDirection direction;
        cElement first;
        direction.GetDirection(direction1);
        first.GetElement(direction.ElementID);
        cElement second;
        direction.GetDirection(direction2);
        second.GetElement(direction.ElementID);

        for (const DestroyingRelation& relation : DESTROYING_RELATIONS) {
            const cElement& holder = relation.secondHolds ? second : first;
            const cElement& other = relation.secondHolds ? first : second;
            if (other.ELEMENTID == holder.*relation.otherId) {
                elementName = second.ELEMENTNAME;
                reason = holder.ELEMENTNAME + relation.phrase.toString() + other.ELEMENTNAME;
                return;
            }
        }
        result = true;
    });
}

qint32 Global::GetDirectionColor(qint32 COLORID, qint32 shade) {
    return routine(u"Global.Get Direction Color", qint32{0}, [&](qint32& result) {
        cColor color;
        if (color.GetColor(COLORID)) {
            result = shadeOf(color, shade);
        }
    });
}

qint32 Global::GetDirectionElementColor(qint32 directionId, qint32 shade) {
    return routine(u"Global.Get Direction Element Color", qint32{0}, [&](qint32& result) {
        cDirection direction;
        if (!direction.GetDirection(directionId)) {
            return;
        }
        cElement element;
        if (!element.GetElement(direction.ElementID)) {
            return;
        }
        cColor color;
        if (color.GetColor(element.COLORID)) {
            result = shadeOf(color, shade);
        }
    });
}
