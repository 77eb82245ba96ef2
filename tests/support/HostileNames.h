#pragma once

#include <QString>

#include <array>
#include <ostream>

/// A name that a careless program breaks on.
struct HostileName {
    const char* kind;
    QString name;
};

inline void PrintTo(const HostileName& name, std::ostream* stream) {
    *stream << name.kind;
}

/// What a user can paste into a field for a name.
inline const std::array<HostileName, 8> hostileNames{{
    {"quotes", QStringLiteral("Ann \"the\" O'Neil ``'")},
    {"ampersands", QStringLiteral("A & B && C &amp; D &")},
    {"angleBrackets", QStringLiteral("<b>Ann</b> <!-- ]]> <?x?>")},
    {"fiveThousandCharacters", QString(5000, u'n')},
    {"rightToLeft", QStringLiteral("\u05D0\u05E0\u05D4 \u0639\u0644\u064A")},
    {"astral", QStringLiteral("Ann \U0001F9ED \U00020BB7")},
    {"lineBreaks", QStringLiteral("Ann\nof the\r\nsecond line")},
    {"tabsAndBlanks", QStringLiteral("  Ann\tB  ")},
}};
