#pragma once

#include "catalogues/cAnimal.h"
#include "catalogues/cColor.h"
#include "catalogues/cDirection.h"
#include "catalogues/cElement.h"
#include "catalogues/cPersonalDirection.h"
#include "catalogues/cSymbol.h"
#include "catalogues/cTOD.h"
#include "catalogues/cTrigram.h"

#include <QList>

#include <memory>
#include <variant>

using namespace Qt::StringLiterals;

/// A public field of a catalogue and the attribute that it is read from.
template<class Record>
struct FieldOf {
    QString attribute;
    std::variant<qint32 Record::*, QString Record::*> member;

    [[nodiscard]] bool isNumber() const { return member.index() == 0; }
    [[nodiscard]] QString shown(const Record& record) const {
        return isNumber() ? QString::number(record.*std::get<0>(member)) : record.*std::get<1>(member);
    }
};

/// How the members of the family differ.
template<class Record>
struct Description {
    QString file;
    QString getLabel;
    std::unique_ptr<cXMLHandler> Record::*store;
    bool (Record::*load)();
    bool (Record::*get)(qint32);
    /// In reading order, the key first.
    QList<FieldOf<Record>> fields;
};

template<class Record>
Description<Record> description();

template<>
inline Description<cDirection> description() {
    using R = cDirection;
    return {u"Directions.xml"_s,
            u"cDirection.Get Direction"_s,
            &R::oXMLDirections,
            &R::LoadDirections,
            &R::GetDirection,
            {{u"DIRECTIONID"_s, &R::DIRECTIONID},
             {u"DIRECTIONNAME"_s, &R::DIRECTIONNAME},
             {u"SUMMARY"_s, &R::SUMMARY},
             {u"KUA"_s, &R::KUA},
             {u"COLORID"_s, &R::COLORID},
             {u"TODID"_s, &R::TODID},
             {u"ELEMENTID"_s, &R::ElementID},
             {u"SYMBOLID"_s, &R::SYMBOLID},
             {u"TRIGRAMID"_s, &R::TRIGRAMID}}};
}

template<>
inline Description<cColor> description() {
    using R = cColor;
    return {u"Colors.xml"_s,
            u"cColor.Get Color"_s,
            &R::oXMLColors,
            &R::LoadColors,
            &R::GetColor,
            {{u"COLORID"_s, &R::COLORID},
             {u"COLORNAME"_s, &R::COLORNAME},
             {u"COLORVALUE"_s, &R::COLORVALUE},
             {u"LIGHTCOLORVALUE"_s, &R::LIGHTCOLORVALUE},
             {u"BRIGHTCOLORVALUE"_s, &R::BRIGHTCOLORVALUE}}};
}

template<>
inline Description<cAnimal> description() {
    using R = cAnimal;
    return {u"Animals.xml"_s,
            u"cAnimal.Get Animal"_s,
            &R::oXMLAnimals,
            &R::LoadAnimals,
            &R::GetAnimal,
            {{u"ANIMALID"_s, &R::AnimalID},
             {u"ANIMALNAME"_s, &R::AnimalName},
             {u"ELEMENTID"_s, &R::ElementID},
             {u"DIRECTIONID"_s, &R::DIRECTIONID},
             {u"ANIMALDIRECTIONNAME"_s, &R::AnimalDirectionName}}};
}

template<>
inline Description<cPersonalDirection> description() {
    using R = cPersonalDirection;
    return {u"PersonalDirections.xml"_s,
            u"cPersonalDirection.Get Personal Directions"_s,
            &R::oXMLPersonalDirections,
            &R::LoadPersonalDirections,
            &R::GetPersonalDirections,
            {{u"PERSONALDIRECTIONID"_s, &R::PERSONALDIRECTIONID},
             {u"GENDER"_s, &R::GENDER},
             {u"GROUP"_s, &R::GROUP},
             {u"SUCCESSDIRECTIONID"_s, &R::SUCCESSDIRECTIONID},
             {u"SUCCESSDIRECTION"_s, &R::SUCCESSDIRECTION},
             {u"HEALTHDIRECTIONID"_s, &R::HEALTHDIRECTIONID},
             {u"HEALTHDIRECTION"_s, &R::HEALTHDIRECTION},
             {u"ROMANCEDIRECTIONID"_s, &R::ROMANCEDIRECTIONID},
             {u"ROMANCEDIRECTION"_s, &R::ROMANCEDIRECTION},
             {u"DEVELOPMENTDIRECTIONID"_s, &R::DEVELOPMENTDIRECTIONID},
             {u"DEVELOPMENTDIRECTION"_s, &R::DEVELOPMENTDIRECTION},
             {u"BADLUCKDIRECTIONID"_s, &R::BADLUCKDIRECTIONID},
             {u"BADLUCKDIRECTION"_s, &R::BADLUCKDIRECTION},
             {u"OBSTACLEDIRECTIONID"_s, &R::OBSTACLEDIRECTIONID},
             {u"OBSTACLEDIRECTION"_s, &R::OBSTACLEDIRECTION},
             {u"ILLNESSDIRECTIONID"_s, &R::ILLNESSDIRECTIONID},
             {u"ILLNESSDIRECTION"_s, &R::ILLNESSDIRECTION},
             {u"DESTRUCTIONDIRECTIONID"_s, &R::DESTRUCTIONDIRECTIONID},
             {u"DESTRUCTIONDIRECTION"_s, &R::DESTRUCTIONDIRECTION}}};
}

template<>
inline Description<cSymbol> description() {
    using R = cSymbol;
    return {u"Symbols.xml"_s, u"cSymbol.Get Symbol"_s,
            &R::oXMLSymbols,  &R::LoadSymbols,
            &R::GetSymbol,    {{u"SYMBOLID"_s, &R::SYMBOLID}, {u"SYMBOLNAME"_s, &R::SYMBOLNAME}}};
}

template<>
inline Description<cTOD> description() {
    using R = cTOD;
    return {u"TimeOfDay.xml"_s, u"cTOD.Get TOD"_s, &R::oXMLTODs,
            &R::LoadTimeOfDays, &R::GetTOD,        {{u"TODID"_s, &R::TODID}, {u"TODNAME"_s, &R::TODNAME}}};
}

template<>
inline Description<cTrigram> description() {
    using R = cTrigram;
    return {u"Trigrams.xml"_s, u"cTrigram.Get Trigram"_s,
            &R::oXMLTrigrams,  &R::LoadTrigrams,
            &R::GetTrigram,    {{u"TRIGRAMID"_s, &R::TRIGRAMID}, {u"TRIGRAMNAME"_s, &R::TRIGRAMNAME}}};
}

template<>
inline Description<cElement> description() {
    using R = cElement;
    return {u"Elements.xml"_s,
            u"cElement.Get Element"_s,
            &R::oXMLElements,
            &R::LoadElements,
            &R::GetElement,
            {{u"ELEMENTID"_s, &R::ELEMENTID},
             {u"ELEMENTNAME"_s, &R::ELEMENTNAME},
             {u"DESCRIPTION"_s, &R::DESCRIPTION},
             {u"DIRECTIONS"_s, &R::DIRECTIONS},
             {u"DECORATINGCOLORS"_s, &R::DECORATINGCOLORS},
             {u"DECORATINGPATTERNS"_s, &R::DECORATINGPATTERNS},
             {u"DECORATINGMATERIALS"_s, &R::DECORATINGMATERIALS},
             {u"SUPPORTSELEMENTID"_s, &R::SUPPORTSELEMENTID},
             {u"SUPPORTEDBYELEMENTID"_s, &R::SUPPORTEDBYELEMENTID},
             {u"DESTROYSELEMENTID"_s, &R::DESTROYSELEMENTID},
             {u"DESTROYEDBYELEMENTID"_s, &R::DESTROYEDBYELEMENTID},
             {u"COLORID"_s, &R::COLORID}}};
}
