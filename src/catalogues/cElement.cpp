#include "catalogues/cElement.h"

#include "catalogues/Catalogue.h"
#include "core/Failure.h"
#include "core/Global.h"

using namespace Qt::StringLiterals;

cElement::cElement() {
    routine(u"cElement.Initialize Element", [this] {
        folder = Global::dataFolder();
        LoadElements();
    });
}

bool cElement::GetElement(qint32 lElementID) {
    return routine(u"cElement.Get Element", false, [&](bool& result) {
        const bool found = Catalogue::read(oXMLElements, lElementID,
                                           {
                                               {u"ELEMENTID"_s, &ELEMENTID},
                                               {u"ELEMENTNAME"_s, &ELEMENTNAME},
                                               {u"DESCRIPTION"_s, &DESCRIPTION},
                                               {u"DIRECTIONS"_s, &DIRECTIONS},
                                               {u"DECORATINGCOLORS"_s, &DECORATINGCOLORS},
                                               {u"DECORATINGPATTERNS"_s, &DECORATINGPATTERNS},
                                               {u"DECORATINGMATERIALS"_s, &DECORATINGMATERIALS},
                                               {u"SUPPORTSELEMENTID"_s, &SUPPORTSELEMENTID},
                                               {u"SUPPORTEDBYELEMENTID"_s, &SUPPORTEDBYELEMENTID},
                                               {u"DESTROYSELEMENTID"_s, &DESTROYSELEMENTID},
                                               {u"DESTROYEDBYELEMENTID"_s, &DESTROYEDBYELEMENTID},
                                               {u"COLORID"_s, &COLORID},
                                           });
        if (found) {
            // The result is the colour's alone: an element without one has failed, its texts filled.
            result = oColor.GetColor(COLORID);
        }
    });
}

bool cElement::LoadElements() {
    return Catalogue::load(u"cElement.Load Elements", oXMLElements, folder + u"Elements.xml"_s);
}
