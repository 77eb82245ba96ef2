#pragma once

#include "core/Clock.h"

/// The machine's own calendar.
class SystemClock final : public Clock {
public:
    [[nodiscard]] QDate today() const override;
};
