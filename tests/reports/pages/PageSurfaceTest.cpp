#include "core/Global.h"
#include "reports/pages/PageSurfaceFixture.h"
#include "support/TestWorld.h"

#include <QImage>
#include <QPainter>

#include <cmath>
#include <numbers>

namespace {

constexpr double degree = std::numbers::pi / 180;

class PageSurfaceTest : public PageSurfaceFixture {
protected:
    [[nodiscard]] double sweepOf(double from, double to) {
        surface.StartDoc();
        surface.DrawCircle(6000, 6000, 5000, from * degree, to * degree);
        surface.EndDoc();
        return firstOn<Wedge>(1).sweep / degree;
    }
};

TEST_F(PageSurfaceTest, beforeAnyDocument_thereAreNoPages) {
    EXPECT_EQ(surface.PageCount(), 0);
    EXPECT_EQ(surface.PreviewPage(), 0);
    EXPECT_TRUE(surface.document().pages.empty());
}

TEST_F(PageSurfaceTest, EndDoc_onePage_isPageOneOfOne) {
    surface.StartDoc();
    surface.EndDoc();
    EXPECT_EQ(surface.PreviewPage(), 1);
    EXPECT_EQ(surface.PageCount(), 1);
}

TEST_F(PageSurfaceTest, StartDoc_discardsThePreviousDocumentAndGoesToPageOne) {
    surface.StartDoc();
    surface.Write(lines(3 * linesOfPage));
    surface.EndDoc();
    surface.PreviewPage(3);
    surface.StartDoc();
    EXPECT_EQ(surface.PageCount(), 0);
    EXPECT_EQ(surface.PreviewPage(), 1);
    EXPECT_EQ(surface.CurrentY(), inch);
    surface.EndDoc();
    EXPECT_EQ(surface.PageCount(), 1);
    EXPECT_TRUE(page(1).items.empty());
}

TEST_F(PageSurfaceTest, properties_persistFromDocumentToDocument) {
    surface.BackColor(0x00FF00);
    surface.FontSize(20);
    surface.StartDoc();
    surface.EndDoc();
    surface.StartDoc();
    surface.Write(QStringLiteral("large"));
    surface.EndDoc();
    EXPECT_EQ(page(1).background, QColor(0, 255, 0));
    EXPECT_EQ(linesOn(1).at(0).text->style().points, 20);
}

TEST_F(PageSurfaceTest, everythingOutsideADocument_isPassedOver) {
    surface.Write(QStringLiteral("text"));
    surface.TextBox(QStringLiteral("text"), 0, 0, 5000, 0);
    surface.DrawCircle(1, 1, 1);
    surface.DrawCircle(1, 1, 1, 0, 1);
    surface.DrawRectangle(0, 0, 1, 1);
    surface.NewPage();
    surface.EndDoc();
    EXPECT_EQ(surface.PageCount(), 0);
    surface.StartDoc();
    surface.EndDoc();
    surface.Write(QStringLiteral("late"));
    surface.NewPage();
    surface.EndDoc();
    EXPECT_EQ(surface.PageCount(), 1);
    EXPECT_TRUE(page(1).items.empty());
}

TEST_F(PageSurfaceTest, PreviewPage_staysWithinTheDocument) {
    surface.StartDoc();
    surface.NewPage();
    surface.NewPage();
    surface.EndDoc();
    for (const auto& [set, expected] : {std::pair{2, 2}, {3, 3}, {4, 3}, {0, 1}, {-7, 1}}) {
        surface.PreviewPage(static_cast<qint16>(set));
        EXPECT_EQ(surface.PreviewPage(), expected) << set;
    }
}

TEST_F(PageSurfaceTest, Zoom_takesEffectAlsoInAFitMode) {
    ASSERT_EQ(surface.ZoomMode(), 4);
    surface.Zoom(78);
    EXPECT_EQ(surface.ZoomMode(), 0);
    EXPECT_EQ(surface.Zoom(), 78);
    for (const qint32 mode : {1, 2, 3, 4}) {
        surface.ZoomMode(mode);
        EXPECT_EQ(surface.ZoomMode(), mode);
        EXPECT_EQ(surface.Zoom(), 78) << "a fit mode leaves the percentage alone";
    }
}

TEST_F(PageSurfaceTest, onViewChanged_isCalledForWhatAPreviewShows) {
    int calls = 0;
    surface.onViewChanged = [&calls] { ++calls; };
    const auto callsOf = [&calls](auto&& action) {
        calls = 0;
        action();
        return calls;
    };
    EXPECT_EQ(callsOf([this] { surface.StartDoc(); }), 1);
    EXPECT_EQ(callsOf([this] { surface.Write(lines(200)); }), 0);
    EXPECT_EQ(callsOf([this] { surface.EndDoc(); }), 1);
    EXPECT_EQ(callsOf([this] { surface.PreviewPage(2); }), 1);
    EXPECT_EQ(callsOf([this] { surface.Zoom(50); }), 1);
    EXPECT_EQ(callsOf([this] { surface.ZoomMode(1); }), 1);
    EXPECT_EQ(callsOf([this] { surface.ToolTipText(QStringLiteral("tip")); }), 1);
}

TEST_F(PageSurfaceTest, BackColor_isKeptForThePageOnWhichItWasInForce) {
    surface.StartDoc();
    surface.NewPage();
    surface.BackColor(0x0000FF);
    surface.NewPage();
    surface.BackColor(0xFFFFFF);
    surface.EndDoc();
    EXPECT_EQ(page(1).background, QColor(Qt::white));
    EXPECT_EQ(page(2).background, QColor(255, 0, 0));
    EXPECT_EQ(page(3).background, QColor(Qt::white));
}

TEST_F(PageSurfaceTest, DrawCircle_wedgeWhoseEndLiesBelowItsStart_runsTheShortWayRound) {
    EXPECT_NEAR(sweepOf(75, -255), 30, 1e-6);
}

TEST_F(PageSurfaceTest, DrawCircle_angles_standForTheirDirections) {
    EXPECT_NEAR(sweepOf(0, 90), 90, 1e-6);
    EXPECT_NEAR(sweepOf(90, 0), 270, 1e-6);
    EXPECT_NEAR(sweepOf(-10, 10), 20, 1e-6);
    EXPECT_NEAR(sweepOf(720, 30), 30, 1e-6);
    EXPECT_NEAR(sweepOf(45, 45), 0, 1e-6);
    EXPECT_NEAR(sweepOf(45, 405), 0, 1e-4) << "rounding must not make a whole disc of it";
}

TEST_F(PageSurfaceTest, shapes_takeBrushAndPenAsTheyStand) {
    surface.StartDoc();
    surface.BrushColor(0x030201);
    surface.PenColor(0x0000FF);
    surface.PenWidth(40);
    surface.PenStyle(2);
    surface.DrawCircle(100, 200, 50);
    surface.BrushStyle(1);
    surface.DrawRectangle(30, 40, 10, 20);
    surface.EndDoc();
    const auto& disc = firstOn<Disc>(1);
    EXPECT_EQ(disc.center, QPointF(100, 200));
    EXPECT_EQ(disc.style.fill, QColor(1, 2, 3));
    EXPECT_EQ(disc.style.outline, QColor(255, 0, 0));
    EXPECT_EQ(disc.style.outlineWidth, 40);
    EXPECT_EQ(disc.style.outlineStyle, Qt::DotLine);
    EXPECT_FALSE(firstOn<Rectangle>(1).style.fill.isValid());
    EXPECT_EQ(firstOn<Rectangle>(1).area, QRectF(10, 20, 20, 20));
}

TEST_F(PageSurfaceTest, systemPageSize_isLetterInUsUnitsAndA4Elsewhere) {
    TestWorld world;
    world.setLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    EXPECT_EQ(PageSurface::systemPageSize(), QSizeF(12240, 15840));
    for (const QLocale::Territory territory : {QLocale::Germany, QLocale::UnitedKingdom, QLocale::China}) {
        world.setLocale(QLocale(QLocale::AnyLanguage, territory));
        EXPECT_EQ(PageSurface::systemPageSize(), QSizeF(11906, 16838));
    }
    EXPECT_EQ(PageSurface().PageHeight(), 16838);
}

TEST_F(PageSurfaceTest, FontFace_isTheDefaultFacesName) {
    surface.FontName(QStringLiteral("Liberation Mono"));
    EXPECT_EQ(surface.FontFace(), QStringLiteral("Arial"));
}

TEST_F(PageSurfaceTest, PrintDialog_givesTheUsersAnswer) {
    TestWorld world;
    EXPECT_TRUE(surface.PrintDialog(0));
    world.printer.accept = false;
    EXPECT_FALSE(surface.PrintDialog(0));
    EXPECT_EQ(world.printer.dialogs, 2);
}

TEST_F(PageSurfaceTest, PrintDoc_withoutADocument_printsNothing) {
    TestWorld world;
    surface.PrintDoc();
    EXPECT_EQ(world.printer.printedDocuments, 0);
}

/// Keeps what reaches the printer as a picture of each page.
class PicturePrinter final : public Printer {
public:
    std::vector<QImage> pages;
    QString title;

    bool choose() override { return true; }
    void print(const PrintableDocument& document) override {
        title = document.title;
        for (qint32 page = 0; page < document.pageCount; ++page) {
            QImage picture((document.pageSize / 40).toSize(), QImage::Format_RGB32);
            picture.fill(Qt::white);
            QPainter painter(&picture);
            painter.scale(1.0 / 40, 1.0 / 40);
            document.paint(painter, page);
            pages.push_back(picture);
        }
    }
};

TEST_F(PageSurfaceTest, PrintDoc_paintsEveryPageOnWhitePaper) {
    const TestWorld world;
    PicturePrinter printer;
    Services services = Global::services();
    services.printer = &printer;
    Global::use(services);
    surface.BackColor(0x00FFFF);
    surface.Header(QStringLiteral("The Kitchen"));
    surface.StartDoc();
    surface.NewPage();
    surface.BrushColor(0x0000FF);
    surface.DrawCircle(6000, 6000, 1000);
    surface.EndDoc();
    surface.PrintDoc();
    EXPECT_EQ(printer.title.toStdString(), "The Kitchen");
    ASSERT_EQ(printer.pages.size(), 2U);
    EXPECT_EQ(printer.pages[0].pixelColor(150, 150), QColor(Qt::white));
    EXPECT_EQ(printer.pages[1].pixelColor(150, 150), QColor(Qt::red));
    EXPECT_EQ(printer.pages[1].pixelColor(2, 2), QColor(Qt::white));
}

} // namespace
