#pragma once

#include "core/Failure.h"
#include "profiles/cProfile.h"

/// The shared person; fails with error 91 where there is none.
[[nodiscard]] inline cProfile& currentPerson() {
    if (Global::CurrentProfile == nullptr) {
        throw failure(ErrorNumber::ObjectNotSet);
    }
    return *Global::CurrentProfile;
}
