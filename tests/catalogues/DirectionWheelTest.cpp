#include "catalogues/DirectionWheel.h"

#include "support/RecordedReport.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

float width(const DirectionSector& sector) {
    return sector.to > sector.from ? sector.to - sector.from : sector.to + 360 - sector.from;
}

} // namespace

TEST(DirectionWheel, sectors_meetAllAroundTheTurn) {
    float total = 0;
    for (const DirectionSector& sector : directionSectors) {
        EXPECT_EQ(std::ranges::count(directionSectors, sector.to, &DirectionSector::from), 1)
            << sector.directionId;
        total += width(sector);
    }
    EXPECT_EQ(total, 360);
}

TEST(DirectionWheel, sectors_ofOppositeDirections_lieAcrossTheCentre) {
    for (const DirectionSector& sector : directionSectors) {
        const auto* const opposite =
            std::ranges::find(directionSectors, 10 - sector.directionId, &DirectionSector::directionId);
        ASSERT_NE(opposite, directionSectors.end());
        EXPECT_EQ(width(*opposite), width(sector));
        EXPECT_EQ(std::max(sector.from, opposite->from) - std::min(sector.from, opposite->from), 180);
    }
}

TEST(DirectionWheel, drawSector_drawsFromTheFarBoundBack) {
    RecordedReport report;
    drawSector(report.vp, 6000, 7500, 5335, directionIds::West);
    EXPECT_EQ(report.spelledCalls(),
              std::vector<std::string>{"DrawCircle(6000,7500,5335,-0.2617993950843811,0.2617993950843811)"});
}

TEST(DirectionWheel, drawSector_directionWithoutASector_drawsNothing) {
    RecordedReport report;
    for (const qint32 id : {directionIds::Center, 0, 10, -1}) {
        drawSector(report.vp, 6000, 7500, 5335, id);
    }
    EXPECT_TRUE(report.calls().empty());
}
