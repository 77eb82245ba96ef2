#include "analysis/AnalysisWorld.h"

#include <algorithm>
#include <array>

// Every number of a person with every direction, type, flooring and set of features of a room: 33,696
// reports, none of which may fail or lack a paragraph.

namespace {

/// How many paragraphs an analysis has, by the features that it heeds.
struct Shape {
    int type;
    std::size_t always;
    bool heedsBeams;
    bool heedsLowCeiling;
};

constexpr std::array<Shape, 13> shapes{{
    {1, 4, true, true},
    {2, 4, true, true},
    {3, 4, false, true},
    {4, 4, true, true},
    {5, 4, false, true},
    {6, 4, false, false},
    {7, 4, true, true},
    {8, 2, false, false},
    {9, 2, false, false},
    {10, 3, false, false},
    {11, 4, false, true},
    {12, 4, true, true},
    {13, 2, false, false},
}};

constexpr int center = 5;

QByteArray flag(bool on) {
    return on ? "True" : "False";
}

QByteArray profilesFile(int number) {
    return "<xml xmlns:s='a' xmlns:rs='b' xmlns:z='#RowsetSchema'><s:Schema id='RowsetSchema'/><rs:data>"
           "<z:row PROFILEID='1' PROFILENAME='Person' BIRTHDATE='1985-02-04T00:00:00' ADJBIRTHYEAR='1985' "
           "GENDER='F' KUANUMBER='" +
           QByteArray::number(number) + "'/></rs:data></xml>";
}

/// The rooms of one type and direction: each flooring with each set of features.
QList<RoomRow> roomsOf(int type, int direction) {
    QList<RoomRow> rooms;
    for (int flooring = 1; flooring <= 4; ++flooring) {
        for (unsigned features = 0; features < 8; ++features) {
            rooms.append({.id = QByteArray::number(rooms.size() + 1),
                          .type = QByteArray::number(type),
                          .direction = QByteArray::number(direction),
                          .flooring = QByteArray::number(flooring),
                          .entrance = flag((features & 1U) != 0),
                          .beams = flag((features & 2U) != 0),
                          .lowCeiling = flag((features & 4U) != 0)});
        }
    }
    return rooms;
}

std::size_t expectedParagraphs(const Shape& shape, int direction, const RoomRow& room) {
    constexpr std::size_t chartLetters = 4;
    std::size_t count = chartLetters + shape.always;
    if (room.entrance == "True") {
        count += direction == center ? 2 : 3;
    }
    count += shape.heedsBeams && room.beams == "True" ? 1 : 0;
    count += shape.heedsLowCeiling && room.lowCeiling == "True" ? 1 : 0;
    return count;
}

/// The texts of each page.
std::vector<std::vector<std::string>> pagesOf(const std::vector<SurfaceCall>& calls) {
    std::vector<std::vector<std::string>> pages(1);
    for (const SurfaceCall& call : calls) {
        if (call.op == QStringLiteral("NewPage")) {
            pages.emplace_back();
        } else if (call.op == QStringLiteral("Write")) {
            pages.back().push_back(call.args.at(0).toString().toStdString());
        }
    }
    return pages;
}

class AllRooms : public testing::TestWithParam<int>, protected AnalysisWorld {
protected:
    void expectWholeAdvice(const Shape& shape, int direction) {
        const QList<RoomRow> rooms = roomsOf(shape.type, direction);
        putRooms(rooms);
        Global::CurrentLocation->LoadRooms();
        report.clear();
        Global::CurrentLocation->AnalyzeRooms(report.vp);
        const auto pages = pagesOf(report.calls());
        ASSERT_EQ(pages.size(), static_cast<std::size_t>(rooms.size()));
        for (std::size_t i = 0; i < pages.size(); ++i) {
            const RoomRow& room = rooms.at(static_cast<qsizetype>(i));
            EXPECT_EQ(pages[i].size(), expectedParagraphs(shape, direction, room)) << room.id.constData();
            // Only an entrance at the centre has nothing to say of the person's directions.
            const bool judged = room.entrance == "False" || direction != center;
            EXPECT_EQ(std::ranges::count(pages[i], std::string()), judged ? 0 : 1) << room.id.constData();
        }
    }
};

} // namespace

TEST_P(AllRooms, everyCombination_isWholeAndWithoutAReportOfFailure) {
    world.write(QStringLiteral("Profiles.xml"), profilesFile(GetParam()));
    Global::CurrentProfile->LoadProfiles();
    ASSERT_TRUE(Global::CurrentProfile->GetProfile(1));
    ASSERT_EQ(Global::CurrentProfile->KUANUMBER, GetParam());
    ASSERT_NE(Global::CurrentProfile->oPersonalDirection.SUCCESSDIRECTIONID, 0);
    for (const Shape& shape : shapes) {
        for (int direction = 1; direction <= 9; ++direction) {
            SCOPED_TRACE("type " + std::to_string(shape.type) + " direction " + std::to_string(direction));
            expectWholeAdvice(shape, direction);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(EveryNumber, AllRooms, testing::Range(1, 10));
