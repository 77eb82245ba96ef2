#pragma once

#include "catalogues/cColor.h"
#include "store/cXMLHandler.h"

#include <QString>

#include <memory>

class ReportSurface;

/// The five elements, with their texts, their cycles and their colour.
class cElement {
public:
    /// The store on `Elements.xml`.
    std::unique_ptr<cXMLHandler> oXMLElements;
    /// The element's colour.
    cColor oColor;
    qint32 ELEMENTID = 0;
    QString ELEMENTNAME;
    QString DESCRIPTION;
    QString DIRECTIONS;
    QString DECORATINGCOLORS;
    QString DECORATINGPATTERNS;
    QString DECORATINGMATERIALS;
    qint32 SUPPORTSELEMENTID = 0;
    qint32 SUPPORTEDBYELEMENTID = 0;
    qint32 DESTROYSELEMENTID = 0;
    qint32 DESTROYEDBYELEMENTID = 0;
    qint32 COLORID = 0;

    /// Loads the file.
    cElement();

    /// Draws the compass of the directions about a centre in twips, South at the top; the directions of this
    /// element stand out of its ring.
    void DrawCompass(ReportSurface& vp, qint32 lX, qint32 lY) const;

    /// Writes the report on this element into an open document: on the screen with a band in its colour,
    /// for the printer (`ToPrint`) without.
    void GenerateReport(ReportSurface& vp, bool ToPrint) const;

    /// Fills the fields from the first row with this id and reads the element's colour. False when either
    /// is missing: without the row nothing changes, without the colour all other fields are filled.
    bool GetElement(qint32 lElementID);

    /// Reads the file anew. Always true: a file that is missing shows itself at the first look-up.
    bool LoadElements();

private:
    QString folder;
};
