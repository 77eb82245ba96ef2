#pragma once

#include "core/Browser.h"

/// The browser that the desktop associates with web addresses.
class SystemBrowser final : public Browser {
public:
    bool open(const QString& address) override;
};
