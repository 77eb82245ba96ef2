#include "nineki/NineKiDrawing.h"
#include "nineki/NineKiWorld.h"
#include "reports/pages/PageSurface.h"
#include "reports/surface/ReportRoutines.h"

#include <QPolygonF>
#include <QTransform>

// Letters, numbers and names stand where they stand at every radius; what can be looked after is that they
// are clear of each other and on the page at the radii that are used.

namespace {

/// A text of the figure and the ground it covers, without the blank of its line above and below.
struct Covered {
    QString text;
    QPolygonF ground;
};

struct Figure {
    const char* name;
    qint32 x;
    qint32 y;
    qint32 radius;
    bool pane;
};

constexpr std::array<Figure, 3> figures{{
    {"large pane", 6000, 6000, 5000, true},
    {"chart on the page", 6000, 5000, 3000, false},
    {"compass on the page", 3500, 4000, 2000, false},
}};

const QStringList sectorNames{QStringLiteral("North"),      QStringLiteral("South-West"),
                              QStringLiteral("East"),       QStringLiteral("South-East"),
                              QStringLiteral("North-West"), QStringLiteral("West"),
                              QStringLiteral("North-East"), QStringLiteral("South")};

/// The signs, and the sector on an axis whose number the sign's wedge covers in a compass.
const QList<std::pair<QString, QString>> signs{
    {QStringLiteral("Rat"), QStringLiteral("North")},
    {QStringLiteral("Ox"), {}},
    {QStringLiteral("Tiger"), {}},
    {QStringLiteral("Rabbit"), QStringLiteral("East")},
    {QStringLiteral("Dragon"), {}},
    {QStringLiteral("Snake"), {}},
    {QStringLiteral("Horse"), QStringLiteral("South")},
    {QStringLiteral("Sheep"), {}},
    {QStringLiteral("Monkey"), {}},
    {QStringLiteral("Rooster"), QStringLiteral("West")},
    {QStringLiteral("Dog"), {}},
    {QStringLiteral("Boar"), {}},
};

/// The letters of a line without accents and descenders reach over its middle.
QRectF inked(const LaidText& text, QPointF topLeft) {
    const double height = text.ascent() * 0.8;
    return {topLeft.x(), topLeft.y() + text.ascent() - height, text.lineWidth(0), height};
}

Covered covered(const PageItem& item) {
    if (const auto* turned = std::get_if<TurnedText>(&item)) {
        QTransform turn;
        turn.translate(turned->topLeft.x(), turned->topLeft.y());
        turn.rotate(-turned->angle);
        return {turned->text->text(), turn.map(QPolygonF(inked(*turned->text, {})))};
    }
    const auto& line = std::get<TextLine>(item);
    return {line.text->text(), QPolygonF(inked(*line.text, line.topLeft))};
}

class FigureLayout : public testing::TestWithParam<Figure>, protected NineKiWorld {
protected:
    /// The texts of what is drawn, each written on a page as the figure's is.
    template<class Draw>
    [[nodiscard]] std::vector<Covered> texts(Draw&& draw) {
        PageSurface page(QSizeF(11906, 15840)); // the narrower and the lower of the usual papers
        if (GetParam().pane) {
            modRooms::prepareCompassPane(page);
        } else {
            modRooms::InitReport(page);
        }
        page.StartDoc();
        draw(page);
        page.EndDoc();
        EXPECT_EQ(page.PageCount(), 1);
        std::vector<Covered> found;
        for (const PageItem& item : page.document().pages.at(0).items) {
            if (std::holds_alternative<TextLine>(item) || std::holds_alternative<TurnedText>(item)) {
                found.push_back(covered(item));
                EXPECT_TRUE(QRectF({}, page.pageSize()).contains(found.back().ground.boundingRect()))
                    << found.back().text.toStdString();
            }
        }
        return found;
    }

    std::vector<Covered> numbersAndLetters(const QString& without = {}) {
        const auto [name, x, y, radius, pane] = GetParam();
        return texts([&](ReportSurface& vp) {
            for (const QString& sector : sectorNames) {
                if (sector != without) {
                    NineKiDrawing::DrawNumber(vp, x, y, radius, sector, 8); // no digit is wider
                }
                NineKiDrawing::DrawLetters(vp, x, y, radius, sector);
            }
            NineKiDrawing::DrawNumber(vp, x, y, radius, QStringLiteral("Center"), 8);
        });
    }

    static void expectClear(const Covered& one, const Covered& other) {
        EXPECT_FALSE(one.ground.intersects(other.ground))
            << one.text.toStdString() << " and " << other.text.toStdString();
    }
};

} // namespace

INSTANTIATE_TEST_SUITE_P(AllFigures, FigureLayout, testing::ValuesIn(figures),
                         [](const auto& tested) { return "radius" + std::to_string(tested.param.radius); });

TEST_P(FigureLayout, numbersAndLetters_standClearOfEachOther) {
    const std::vector<Covered> all = numbersAndLetters();
    ASSERT_EQ(all.size(), 17U);
    for (std::size_t i = 0; i < all.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            expectClear(all[i], all[j]);
        }
    }
}

TEST_P(FigureLayout, signs_standClearOfEachOtherAndOfWhatIsSeenBesideThem) {
    const auto [name, x, y, radius, pane] = GetParam();
    std::vector<Covered> earlier;
    for (const auto& [animal, coveredSector] : signs) {
        const std::vector<Covered> own = texts(
            [&, sign = animal](ReportSurface& vp) { NineKiDrawing::DrawAnimal(vp, x, y, radius, sign); });
        ASSERT_EQ(own.size(), 1U);
        // The small compass is never a chart: the sign's wedge is painted over the number of its sector.
        const bool compassAlone = radius == 2000;
        for (const Covered& other : numbersAndLetters(compassAlone ? coveredSector : QString())) {
            expectClear(own.front(), other);
        }
        for (const Covered& other : earlier) {
            expectClear(own.front(), other);
        }
        earlier.push_back(own.front());
    }
}
