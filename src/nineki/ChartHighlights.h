#pragma once

#include "nineki/NineKiSector.h"

#include <optional>
#include <vector>

/// Something noteworthy about a sector of the year's chart.
struct ChartHighlight {
    NineKiFinding finding;
    /// The wedge that is painted over the sector's own for it, if any.
    std::optional<QString> wedge;

    [[nodiscard]] bool operator==(const ChartHighlight&) const = default;
};

/// All that is noteworthy about a sector for the current person, in the order in which it is told. The
/// questions are independent: a sector may collect several highlights or none.
[[nodiscard]] std::vector<ChartHighlight> chartHighlights(NineKiSector& sector);
