#pragma once

#include "store/cXMLHandler.h"

#include <QString>

#include <memory>

/// The colours, each in three shades. Row i, from 1 to 9, is the colour of direction i.
class cColor {
public:
    /// The store on `Colors.xml`. Callers also search and walk it directly.
    std::unique_ptr<cXMLHandler> oXMLColors;
    qint32 COLORID = 0;
    QString COLORNAME;
    /// The normal shade. All values are colours with red in the lowest byte.
    qint32 COLORVALUE = 0;
    qint32 LIGHTCOLORVALUE = 0;
    qint32 BRIGHTCOLORVALUE = 0;

    /// Loads the file.
    cColor();

    /// Reads the file anew. Always true: a file that is missing shows itself at the first look-up.
    bool LoadColors();

    /// Fills the fields from the first row with this id. False when there is none; the fields then keep
    /// what they held.
    bool GetColor(qint32 lColorID);

private:
    QString folder;
};
