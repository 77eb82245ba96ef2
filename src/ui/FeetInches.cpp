#include "ui/FeetInches.h"

#include <cmath>

QString feetAndInches(float inches) {
    constexpr double inchesPerFoot = 12;
    const double whole = std::round(std::abs(static_cast<double>(inches)));
    const double feet = std::floor(whole / inchesPerFoot);
    const QString sign = inches < 0 && whole > 0 ? QStringLiteral("-") : QString();
    return QStringLiteral("%1%2 ft %3 in")
        .arg(sign)
        .arg(feet, 0, 'f', 0)
        .arg(whole - feet * inchesPerFoot, 0, 'f', 0);
}
