#pragma once

#include <QString>

/// Opens addresses in the user's web browser.
class Browser {
public:
    virtual ~Browser() = default;

    /// False only when no application is associated with the address.
    virtual bool open(const QString& address) = 0;
};
