#include "reports/pages/PagePainter.h"

#include "core/Global.h"
#include "reports/pages/PageSurfaceFixture.h"

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

class PagePainterTest : public PageSurfaceFixture {
protected:
    static constexpr double scale = 1.0 / 20;

    [[nodiscard]] QImage paint(PaintTarget target, double by = scale) const {
        QImage picture((surface.pageSize() * by).toSize(), QImage::Format_RGB32);
        picture.fill(Qt::white);
        QPainter painter(&picture);
        painter.scale(by, by);
        paintPage(painter, surface.document(), 0, target);
        return picture;
    }

    /// The colour of a picture at a place of the page in twips.
    static QColor at(const QImage& picture, QPointF place) {
        return picture.pixelColor(static_cast<int>(place.x() * scale), static_cast<int>(place.y() * scale));
    }

    /// The columns, in twips, between which a band of the page has ink.
    static std::pair<double, double> inkBetween(const QImage& picture, double by, double top, double bottom) {
        int first = picture.width();
        int last = -1;
        for (int y = static_cast<int>(top * by); y < static_cast<int>(bottom * by); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                if (qGray(picture.pixel(x, y)) < 160) {
                    first = std::min(first, x);
                    last = std::max(last, x);
                }
            }
        }
        return {first / by, (last + 1) / by};
    }
};

TEST_F(PagePainterTest, BackColor_isSeenOnTheScreenOnly) {
    surface.BackColor(0xC0FFFF);
    surface.StartDoc();
    surface.EndDoc();
    EXPECT_EQ(at(paint(PaintTarget::Screen), {300, 300}), QColor(255, 255, 0xC0));
    EXPECT_EQ(at(paint(PaintTarget::Paper), {300, 300}), QColor(Qt::white));
}

// The wheel of every chart: South at the top, North at the bottom, East at the left, West at the right.
TEST_F(PagePainterTest, wedges_standWhereTheirBearingsPoint) {
    struct Sector {
        double from;
        double to;
        qint32 color;
    };
    const Sector sectors[]{{195, 165, 0x000001}, {75, 15, 0x000002},   {285, 255, 0x000003},
                           {345, 285, 0x000004}, {165, 105, 0x000006}, {105, 75, 0x000007},
                           {255, 195, 0x000008}, {15, 345, 0x000009}};
    const QPointF center(3500, 3500);
    surface.StartDoc();
    surface.PenStyle(5);
    for (const Sector& sector : sectors) {
        surface.BrushColor(sector.color);
        surface.DrawCircle(center.x(), center.y(), 1440,
                           Global::CompassToRadians(static_cast<float>(sector.from)),
                           Global::CompassToRadians(static_cast<float>(sector.to)));
    }
    surface.EndDoc();
    const QImage picture = paint(PaintTarget::Paper);
    for (const Sector& sector : sectors) {
        const double to = sector.to > sector.from ? sector.to - 360 : sector.to;
        for (const double bearing : {to + 3, (sector.from + to) / 2, sector.from - 3}) {
            const double angle = bearing * std::numbers::pi / 180;
            const QPointF place = center + 1000 * QPointF(std::sin(angle), -std::cos(angle));
            EXPECT_EQ(at(picture, place).red(), sector.color) << sector.color << " at " << bearing;
        }
    }
    EXPECT_EQ(at(picture, center + QPointF(0, -1500)), QColor(Qt::white)) << "outside the radius";
}

TEST_F(PagePainterTest, wedgeFrom75DegreesToMinus255_isThirtyDegreesWide) {
    surface.StartDoc();
    surface.PenStyle(5);
    surface.BrushColor(0x0000FF);
    surface.DrawCircle(6000, 6000, 5000, 75 * Global::PI / 180, -255 * Global::PI / 180);
    surface.EndDoc();
    const QImage picture = paint(PaintTarget::Paper);
    for (int angle = 0; angle < 360; angle += 2) {
        if (angle == 74 || angle == 76 || angle == 104 || angle == 106) {
            continue; // at the edges the colours blend
        }
        const bool inside = angle > 75 && angle < 105;
        EXPECT_EQ(at(picture, pointOnCircle({6000, 6000}, 3000, angle * std::numbers::pi / 180)),
                  QColor(inside ? Qt::red : Qt::white))
            << angle;
    }
}

TEST_F(PagePainterTest, laterItems_coverEarlierOnes) {
    surface.StartDoc();
    surface.BrushColor(0x0000FF);
    surface.DrawRectangle(1000, 1000, 3000, 3000);
    surface.BrushColor(0x00FF00);
    surface.DrawCircle(2000, 2000, 500);
    surface.EndDoc();
    const QImage picture = paint(PaintTarget::Paper);
    EXPECT_EQ(at(picture, {2000, 2000}), QColor(0, 255, 0));
    EXPECT_EQ(at(picture, {1200, 1200}), QColor(Qt::red));
}

TEST_F(PagePainterTest, wedge_hasItsTwoStraightSidesDrawn) {
    surface.StartDoc();
    surface.PenWidth(80);
    surface.BrushColor(0xFFFFFF);
    surface.DrawCircle(6000, 6000, 4000, 0, std::numbers::pi / 2);
    surface.EndDoc();
    const QImage picture = paint(PaintTarget::Paper);
    EXPECT_EQ(at(picture, {8000, 6000}), QColor(Qt::black));
    EXPECT_EQ(at(picture, {6000, 4000}), QColor(Qt::black));
    EXPECT_EQ(at(picture, {4000, 6000}), QColor(Qt::white));
}

TEST_F(PagePainterTest, brushStyleOtherThanSolid_leavesTheShapeUnfilled) {
    surface.StartDoc();
    surface.BrushStyle(1);
    surface.DrawRectangle(1000, 1000, 3000, 3000);
    surface.EndDoc();
    EXPECT_EQ(at(paint(PaintTarget::Paper), {2000, 2000}), QColor(Qt::white));
}

// A turned box starts at its place and runs in the angle's direction, its lines to the right of that.
TEST_F(PagePainterTest, TextBox_turnsCounterClockwiseAboutItsTopLeftCorner) {
    struct Case {
        double angle;
        QRectF ink;
    };
    constexpr double x = 6000;
    constexpr double y = 8000;
    const Case cases[]{{0, {x, y, 2000, 300}},
                       {900, {x, y - 2000, 300, 2000}},
                       {1800, {x - 2000, y - 300, 2000, 300}},
                       {2700, {x - 300, y, 300, 2000}}};
    surface.PageBorder(0);
    for (const Case& turned : cases) {
        surface.StartDoc();
        surface.TextAngle(turned.angle);
        surface.TextBox(QStringLiteral("Development"), x, y, 5000, 0);
        surface.EndDoc();
        const QImage picture = paint(PaintTarget::Paper);
        int inside = 0;
        int outside = 0;
        for (int row = 0; row < picture.height(); ++row) {
            for (int column = 0; column < picture.width(); ++column) {
                if (qGray(picture.pixel(column, row)) < 128) {
                    (turned.ink.contains(QPointF(column, row) / scale) ? inside : outside) += 1;
                }
            }
        }
        EXPECT_GT(inside, 100) << turned.angle;
        EXPECT_EQ(outside, 0) << turned.angle;
    }
}

TEST_F(PagePainterTest, textColor_isTheInk) {
    surface.StartDoc();
    surface.TextColor(0x0000FF);
    surface.FontSize(200);
    surface.Write(QStringLiteral("\u2588\u2588"));
    surface.EndDoc();
    EXPECT_EQ(at(paint(PaintTarget::Paper), {inch + 1500, inch + 2500}), QColor(Qt::red));
}

// No device measures text anew: a line ends at the same twip, whatever the resolution.
// Some faces report an underline that cuts through the feet of their letters.
TEST_F(PagePainterTest, underline_standsClearOfTheLetters) {
    surface.PageBorder(0);
    surface.StartDoc();
    surface.FontSize(14);
    surface.FontBold(true);
    surface.FontUnderline(true);
    surface.Write(QStringLiteral("HHHHH"));
    surface.EndDoc();
    constexpr double by = 0.2;
    const QImage picture = paint(PaintTarget::Paper, by);
    const auto [left, right] = inkBetween(picture, by, 1440, 1900);
    QString bands; // of the picture's rows from the top: letters, nothing, a line from end to end
    for (int y = static_cast<int>(1440 * by); y < static_cast<int>(1900 * by); ++y) {
        int ink = 0;
        for (int x = static_cast<int>(left * by); x < static_cast<int>(right * by); ++x) {
            ink += qGray(picture.pixel(x, y)) < 160 ? 1 : 0;
        }
        const QChar band = ink == 0 ? u'-' : ink > (right - left) * by * 0.95 ? u'=' : u'H';
        if (bands.isEmpty() || bands.back() != band) {
            bands += band;
        }
    }
    EXPECT_EQ(bands.toStdString(), "-H-=-");
}

TEST_F(PagePainterTest, linesEndAtTheSamePlaceAtEveryResolution) {
    surface.PageBorder(0);
    surface.StartDoc();
    surface.Write(words(40));
    surface.EndDoc();
    for (const double dotsPerInch : {72.0, 96.0, 300.0}) {
        const double by = dotsPerInch / 1440;
        const QImage picture = paint(PaintTarget::Paper, by);
        for (const TextLine& line : linesOn(1)) {
            const double top = line.topLeft.y();
            const auto [first, last] = inkBetween(picture, by, top, top + line.text->lineHeight());
            EXPECT_NEAR(first, inch, 2 / by) << dotsPerInch;
            EXPECT_NEAR(last, inch + line.text->lineWidth(line.line), 2 / by + blank) << dotsPerInch;
        }
    }
}

TEST_F(PagePainterTest, rulesAndHeader_arePainted) {
    surface.StartDoc();
    modRooms::SetReportHeader(surface, QStringLiteral("Bedroom"), 0);
    surface.EndDoc();
    const QImage picture = paint(PaintTarget::Paper);
    const QLineF rule = page(1).rules.at(0);
    EXPECT_LT(at(picture, rule.center()).value(), 200);
    const double top = page(1).header.topLeft.y();
    const auto [first, last] = inkBetween(picture, scale, top, top + page(1).header.text->lineHeight());
    EXPECT_NEAR(first, inch, 50);
    EXPECT_NEAR(last, inch + page(1).header.text->lineWidth(0), 50);
}

TEST_F(PagePainterTest, pageThatDoesNotExist_paintsNothing) {
    surface.StartDoc();
    surface.EndDoc();
    QImage picture(100, 100, QImage::Format_RGB32);
    picture.fill(Qt::green);
    QPainter painter(&picture);
    paintPage(painter, surface.document(), -1, PaintTarget::Screen);
    paintPage(painter, surface.document(), 1, PaintTarget::Screen);
    EXPECT_EQ(picture.pixelColor(50, 50), QColor(Qt::green));
}

} // namespace
