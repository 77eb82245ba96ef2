#pragma once

#include <QString>

/// The pages of the maker's web site that the Help menu leads to.
namespace HelpLinks {

/// Opens a page of the site in the browser. Where no application is there for it, an information box of
/// that title names the address instead.
void open(const QString& page, const QString& boxTitle);

} // namespace HelpLinks
