#pragma once

#include "soak/Journal.h"
#include "support/HostileNames.h"

/// What the random user enters.
namespace Entries {

/// A name for anything: mostly a sound one, now and then none or one that a careless program breaks on.
inline QString name(Journal& journal) {
    static const QStringList sound{
        QStringLiteral("Ann Example"),          QStringLiteral("Ben"),     QStringLiteral("Elm Street"),
        QStringLiteral("Den & Study"),          QStringLiteral("Kitchen"), QStringLiteral("Größe"),
        QStringLiteral("A room of four words"), QStringLiteral("x"),       QStringLiteral("家")};
    if (journal.oneIn(40)) {
        return {};
    }
    return journal.oneIn(5) ? journal.oneOf(hostileNames).name : journal.oneOf(sound);
}

/// A text for the field of that name.
inline QString textFor(const QString& field, Journal& journal) {
    static const QStringList dates{QStringLiteral("2/4/1965"),   QStringLiteral("1985-02-03"),
                                   QStringLiteral("12/31/1999"), QStringLiteral("Feb 29, 2000"),
                                   QStringLiteral("1/1/100"),    QStringLiteral("12/31/9999"),
                                   QStringLiteral("7/4/76"),     QStringLiteral("2/30/1990"),
                                   QStringLiteral("soon"),       QString()};
    static const QStringList kua{QStringLiteral("1"), QStringLiteral("5"),   QStringLiteral("9"),
                                 QStringLiteral("7"), QStringLiteral("0"),   QStringLiteral("10"),
                                 QString(),           QStringLiteral("six"), QStringLiteral("4.5")};
    static const QStringList counts{QStringLiteral("1"), QStringLiteral("2"),   QStringLiteral("3"),
                                    QStringLiteral("0"), QStringLiteral("12"),  QStringLiteral("-1"),
                                    QString(),           QStringLiteral("two"), QStringLiteral("1e99")};
    static const QStringList extents{QStringLiteral("10"),
                                     QStringLiteral("6"),
                                     QStringLiteral("12"),
                                     QStringLiteral("0"),
                                     QString(),
                                     QStringLiteral("ten"),
                                     QStringLiteral("6.5"),
                                     QStringLiteral("-4"),
                                     QStringLiteral("1,000"),
                                     QStringLiteral("99999")};
    if (field.contains(QStringLiteral("Date"))) {
        return journal.oneOf(dates);
    }
    if (field == QStringLiteral("txt9Ki")) {
        return journal.oneOf(kua);
    }
    if (field == QStringLiteral("txtNumFloors")) {
        return journal.oneOf(counts);
    }
    if (field.endsWith(QStringLiteral("Ft")) || field.endsWith(QStringLiteral("In"))) {
        return journal.oneOf(extents);
    }
    return name(journal);
}

} // namespace Entries
