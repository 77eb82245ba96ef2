#pragma once

#include <QDate>

/// Today's date, behind a seam so that a test can stand on any day.
class Clock {
public:
    virtual ~Clock() = default;
    [[nodiscard]] virtual QDate today() const = 0;
};
