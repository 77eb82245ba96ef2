#pragma once

#include "core/Failure.h"
#include "locations/cLocation.h"

/// The shared home; fails with error 91 where there is none.
[[nodiscard]] inline cLocation& currentHome() {
    if (Global::CurrentLocation == nullptr) {
        throw failure(ErrorNumber::ObjectNotSet);
    }
    return *Global::CurrentLocation;
}
