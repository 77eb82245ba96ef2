#pragma once

#include "store/cXMLHandler.h"

#include <QString>

#include <memory>

/// The eight personal directions of people, by their own direction and gender. A look-up goes by the id
/// alone, so of the rows of the two genders it takes the earlier one.
// The fields stand in the order of their reading, each name beside its id.
class cPersonalDirection { // NOLINT(clang-analyzer-optin.performance.Padding)
public:
    /// The store on `PersonalDirections.xml`. Callers also search and walk it directly.
    std::unique_ptr<cXMLHandler> oXMLPersonalDirections;
    /// The id of the direction of the person that the row is for.
    qint32 PERSONALDIRECTIONID = 0;
    QString GENDER;
    QString GROUP;

    // The beneficial directions: id and name of each.
    qint32 SUCCESSDIRECTIONID = 0;
    QString SUCCESSDIRECTION;
    qint32 HEALTHDIRECTIONID = 0;
    QString HEALTHDIRECTION;
    qint32 ROMANCEDIRECTIONID = 0;
    QString ROMANCEDIRECTION;
    qint32 DEVELOPMENTDIRECTIONID = 0;
    QString DEVELOPMENTDIRECTION;

    // The problematic ones.
    qint32 BADLUCKDIRECTIONID = 0;
    QString BADLUCKDIRECTION;
    qint32 OBSTACLEDIRECTIONID = 0;
    QString OBSTACLEDIRECTION;
    qint32 ILLNESSDIRECTIONID = 0;
    QString ILLNESSDIRECTION;
    qint32 DESTRUCTIONDIRECTIONID = 0;
    QString DESTRUCTIONDIRECTION;

    /// Loads the file.
    cPersonalDirection();

    /// Reads the file anew. Always true: a file that is missing shows itself at the first look-up.
    bool LoadPersonalDirections();

    /// Fills the fields from the first row with this id. False when there is none; the fields then keep
    /// what they held.
    bool GetPersonalDirections(qint32 lPersonalDirectionID);

private:
    QString folder;
};
