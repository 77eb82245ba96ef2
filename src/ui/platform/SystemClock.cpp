#include "ui/platform/SystemClock.h"

QDate SystemClock::today() const {
    return QDate::currentDate();
}
