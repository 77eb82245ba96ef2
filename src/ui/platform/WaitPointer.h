#pragma once

#include "core/Global.h"
#include "core/Prompts.h"

/// Shows the hourglass for as long as it lives, around work that may take a moment.
class WaitPointer {
public:
    WaitPointer()
        : prompts_(Global::service(&Services::prompts))
        , before_(prompts_.pointer()) {
        prompts_.setPointer(PointerShape::Hourglass);
    }
    WaitPointer(const WaitPointer&) = delete;
    WaitPointer& operator=(const WaitPointer&) = delete;
    ~WaitPointer() {
        passOver([this] { prompts_.setPointer(before_); });
    }

private:
    Prompts& prompts_;
    PointerShape before_;
};
