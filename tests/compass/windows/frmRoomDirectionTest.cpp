#include "compass/windows/frmRoomDirection.h"

#include "compass/CompassWorld.h"
#include "compass/windows/PlanWidget.h"
#include "support/WindowDriver.h"

#include <QCheckBox>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QPushButton>

using namespace WindowDriver;

namespace {

const QString divided = QStringLiteral("Division by zero");

/// A printer that puts the page on a picture, a pixel to ten twips.
class PaperPrinter final : public Printer {
public:
    static constexpr double twipsPerPixel = 10;
    QImage page;
    int documents = 0;
    int dialogs = 0;

    bool choose() override {
        ++dialogs;
        return true;
    }
    void print(const PrintableDocument& document) override {
        ++documents;
        EXPECT_EQ(document.pageCount, 1);
        EXPECT_EQ(document.title.toStdString(), Global::CurrentLocation->DESCRIPTION.toStdString());
        EXPECT_FALSE(document.title.isEmpty());
        page = QImage((document.pageSize / twipsPerPixel).toSize(), QImage::Format_RGB32);
        page.fill(Qt::white);
        QPainter painter(&page);
        painter.scale(1 / twipsPerPixel, 1 / twipsPerPixel);
        document.paint(painter, 0);
    }
    [[nodiscard]] bool hasColour() const {
        for (int y = 0; y < page.height(); ++y) {
            for (int x = 0; x < page.width(); ++x) {
                // The dot in the centre is red in either case.
                const QColor color = page.pixelColor(x, y);
                if (color.saturation() > 40 && color.green() > 100) {
                    return true;
                }
            }
        }
        return false;
    }
    /// Whether anything stands in a part of the page, given in fractions of it.
    [[nodiscard]] bool hasInk(const QRectF& part) const {
        for (int y = qRound(part.top() * page.height()); y < part.bottom() * page.height(); ++y) {
            for (int x = qRound(part.left() * page.width()); x < part.right() * page.width(); ++x) {
                if (page.pixelColor(x, y).lightness() < 100) {
                    return true;
                }
            }
        }
        return false;
    }
};

class frmRoomDirectionTest : public testing::Test {
protected:
    CompassWorld home_;
    PaperPrinter printer_;

    void SetUp() override {
        home_.open({{.id = 1}, {.id = 2, .left = "240", .width = "120", .length = "240"}}, "40", "30", "-30");
        Services services = Global::services();
        services.printer = &printer_;
        Global::use(services);
    }
    static void show(const std::function<void(QWidget&)>& inside, qint32 room = 2) {
        frmRoomDirection window;
        whileModal([&] { window.ShowDirection(QStringLiteral("Bed & Bath"), room); }, inside);
        EXPECT_FALSE(window.isVisible());
    }
    static PlanWidget& plan(QWidget& window) { return control<PlanWidget>(window, "picFloorPlan"); }
    static QString readOut(QWidget& window) { return control<QLabel>(window, "lblCoord").text(); }
};

} // namespace

TEST_F(frmRoomDirectionTest, showsTheRoomUnderItsDescription) {
    show([](QWidget& window) {
        EXPECT_EQ(window.windowTitle(), QStringLiteral("Room Directions"));
        EXPECT_EQ(control(window, "vsTop").property("caption").toString(), QStringLiteral("Bed && Bath"));
        EXPECT_EQ(control<QCheckBox>(window, "chkColor").text(), QStringLiteral("Print Color"));
        EXPECT_FALSE(control<QCheckBox>(window, "chkColor").isChecked());
        EXPECT_EQ(control<QPushButton>(window, "cmdPrint").text(), QStringLiteral("&Print"));
        EXPECT_EQ(control<QPushButton>(window, "cmdClose").text(), QStringLiteral("&Close"));
        EXPECT_EQ(readOut(window), QString());
        EXPECT_EQ(plan(window).picture().scale(), (PlanScale{-160, -160, 320, 320})); // right beyond bottom
    });
}

TEST_F(frmRoomDirectionTest, notesTheDirectionInMemoryOnlyAndNeverSavesIt) {
    show([](QWidget& window) { click(window, "cmdClose"); });
    EXPECT_EQ(home_.direction(2), QStringLiteral("6")); // the sector that holds 0 with North at 40
    EXPECT_EQ(home_.direction(1), QStringLiteral("5"));
    EXPECT_EQ(home_.storedDirection(2), QStringLiteral("5"));
}

TEST_F(frmRoomDirectionTest, northOfZero_stillShowsNorthAtTheTop) {
    home_.open({{.id = 2}});
    show([](QWidget& window) {
        const QImage picture = plan(window).grab().toImage();
        const auto below = [&](double part) {
            return picture.pixelColor(qRound(picture.width() * 0.47), qRound(picture.height() * part));
        };
        EXPECT_EQ(below(0.2), QColor(255, 245, 213));
        EXPECT_EQ(below(0.8), QColor(218, 165, 200));
    });
    EXPECT_EQ(home_.direction(2), QStringLiteral("1"));
}

TEST_F(frmRoomDirectionTest, mouse_isReadOutInInchesAndDegrees) {
    home_.open({{.id = 2}}, "40");
    show([](QWidget& window) {
        PlanWidget& widget = plan(window);
        const int side = widget.width(); // 320 inches
        QTest::mouseMove(&widget, QPoint(side * 5 / 8, side / 4));
        const QPointF at = widget.toPlan(QPoint(side * 5 / 8, side / 4));
        EXPECT_NEAR(at.x(), 40, 1);
        EXPECT_NEAR(at.y(), -80, 1);
        EXPECT_EQ(readOut(window), QStringLiteral("X = %1, Y = %2, Angle = %3")
                                       .arg(at.x(), 0, 'g', 15)
                                       .arg(at.y(), 0, 'g', 15)
                                       .arg(CompassGeometry::pointedAngle(at.x(), at.y()), 0, 'g', 15));
    });
}

TEST_F(frmRoomDirectionTest, mouseAtTheCentresHeight_isReportedOncePerMoveAndTheReadOutStays) {
    show([&](QWidget& window) {
        PlanWidget& widget = plan(window);
        QTest::mouseMove(&widget, QPoint(20, 20));
        const QString before = readOut(window);
        const QString label = QStringLiteral("frmRoomDirection.picFloorPlan_MouseMove");
        home_.world.prompts.expectError(label, 11, divided);
        QTest::mouseMove(&widget, QPoint(30, widget.height() / 2));
        EXPECT_TRUE(home_.world.prompts.isSatisfied());
        // No move, which the system may still tell of; the test library's own mouse would not.
        const QPointF same(30, widget.height() / 2);
        QMouseEvent again(QEvent::MouseMove, same, widget.mapToGlobal(same), Qt::NoButton, Qt::NoButton,
                          Qt::NoModifier);
        QApplication::sendEvent(&widget, &again);
        home_.world.prompts.expectError(label, 11, divided);
        QTest::mouseMove(&widget, QPoint(31, widget.height() / 2));
        EXPECT_EQ(readOut(window), before);
        QTest::mouseMove(&widget, QPoint(31, 40));
        EXPECT_NE(readOut(window), before);
    });
}

TEST_F(frmRoomDirectionTest, click_setsNothing) {
    show([](QWidget& window) {
        QTest::mouseClick(&plan(window), Qt::LeftButton, Qt::NoModifier, QPoint(20, 30));
        EXPECT_EQ(Global::CurrentLocation->NORTHOFFSET, 40);
        EXPECT_FALSE(plan(window).picture().items().empty());
    });
}

TEST_F(frmRoomDirectionTest, print_outlinesUnlessColourIsTickedAndTheHomesNameAtTheTop) {
    show([&](QWidget& window) {
        click(window, "cmdPrint");
        EXPECT_EQ(printer_.documents, 1);
        EXPECT_EQ(printer_.dialogs, 0);
        EXPECT_FALSE(printer_.hasColour());
        EXPECT_TRUE(printer_.hasInk({0.03, 0.03, 0.3, 0.06}));  // the title
        EXPECT_TRUE(printer_.hasInk({0.2, 0.2, 0.6, 0.6}));     // the plan
        EXPECT_FALSE(printer_.hasInk({0.9, 0.03, 0.07, 0.04})); // and not all over
        QTest::mouseClick(&control(window, "chkColor"), Qt::LeftButton, Qt::NoModifier, QPoint(8, 8));
        ASSERT_TRUE(control<QCheckBox>(window, "chkColor").isChecked());
        click(window, "cmdPrint");
        EXPECT_EQ(printer_.documents, 2);
        EXPECT_TRUE(printer_.hasColour());
    });
}

TEST_F(frmRoomDirectionTest, printerThatIsMissing_isReportedUnderItsLabel) {
    Services services = Global::services();
    services.printer = nullptr;
    Global::use(services);
    home_.world.prompts.expectError(QStringLiteral("frmRoomDirection.cmdPrint_Click"), 91,
                                    QStringLiteral("Object variable or With block variable not set"));
    show([](QWidget& window) {
        click(window, "cmdPrint");
        EXPECT_TRUE(window.isVisible());
    });
}

TEST_F(frmRoomDirectionTest, damagedRoom_isReportedAndTheWindowStillShowsAndPrints) {
    home_.open({{.id = 1}, {.id = 2, .width = "?"}, {.id = 3}}, "40");
    const auto expectError = [&](const char* routineName) {
        home_.world.prompts.expectError(QStringLiteral("frmRoomDirection.") + QLatin1String(routineName), 13,
                                        QStringLiteral("Type mismatch"));
    };
    for (const char* name : {"Set Pic ScaleMode", "Set Pic ScaleMode", "Draw Room"}) {
        expectError(name);
    }
    show([&](QWidget& window) {
        for (const char* name : {"Set Printer ScaleMode", "Set Printer ScaleMode", "Print Room"}) {
            expectError(name);
        }
        click(window, "cmdPrint");
        EXPECT_EQ(printer_.documents, 1);
    });
    show([](QWidget& window) { EXPECT_FALSE(plan(window).picture().items().empty()); }, 3);
}

TEST_F(frmRoomDirectionTest, roomThatIsGone_showsTheCompassAlone) {
    show(
        [](QWidget& window) {
            EXPECT_EQ(plan(window).picture().scale(), (PlanScale{-100, -100, 200, 200}));
        },
        99);
}

TEST_F(frmRoomDirectionTest, homeThatIsGone_isReportedUnderTheLabelOfTheEvent) {
    show([&](QWidget& window) {
        const QString notSet = QStringLiteral("Object variable or With block variable not set");
        Global::CurrentLocation.reset();
        home_.world.prompts.expectError(QStringLiteral("frmRoomDirection.picFloorPlan_Resize"), 91, notSet);
        window.resize(window.width() + 40, window.height() + 40);
        QCoreApplication::processEvents();
        EXPECT_TRUE(home_.world.prompts.isSatisfied());
        home_.world.prompts.expectError(QStringLiteral("frmRoomDirection.cmdPrint_Click"), 91, notSet);
        click(window, "cmdPrint");
    });
    home_.world.prompts.expectError(QStringLiteral("frmRoomDirection.Load Rooms"), 91);
    home_.world.prompts.expectError(QStringLiteral("frmRoomDirection.Show Direction"), 91);
    frmRoomDirection window;
    window.ShowDirection(QStringLiteral("Nowhere"), 2);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(frmRoomDirectionTest, enterAndEscape_close) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        show([&](QWidget& window) {
            press(window, key);
            EXPECT_FALSE(window.isVisible());
        });
    }
    EXPECT_EQ(printer_.documents, 0);
}

TEST_F(frmRoomDirectionTest, plan_isSquareAndAsLargeAsItGoes) {
    show([](QWidget& window) {
        for (const QSize size : {QSize(700, 700), QSize(1200, 640), QSize(640, 900)}) {
            window.resize(size);
            QCoreApplication::processEvents();
            const PlanWidget& sheet = plan(window);
            EXPECT_EQ(sheet.width(), sheet.height());
            EXPECT_EQ(sheet.width() % 2, 0);
            const QWidget& desk = control(window, "vsDetail");
            EXPECT_GE(sheet.width(), std::min(desk.width(), desk.height()) - 33);
        }
    });
}

TEST_F(frmRoomDirectionTest, placement_isStoredAtTheEndAndRestoredAtTheNextStart) {
    show([](QWidget& window) {
        window.move(40, 30);
        window.resize(760, 700);
    });
    show([](QWidget& window) {
        EXPECT_EQ(window.pos(), QPoint(40, 30));
        EXPECT_EQ(window.size(), QSize(760, 700));
    });
}

TEST_F(frmRoomDirectionTest, tab_goesFromTopLeftToBottomRightThroughNamedControls) {
    show([](QWidget& window) {
        expectReadingOrder(window);
        expectNamedControls(window);
        EXPECT_EQ(tabOrder(window).size(), 3U);
    });
}
