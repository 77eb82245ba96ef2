#include "compass/windows/frmSetDirection.h"

#include "compass/CompassWorld.h"
#include "compass/windows/PlanWidget.h"
#include "core/Conversion.h"
#include "support/WindowDriver.h"

#include <QLabel>
#include <QPushButton>

using namespace WindowDriver;

namespace {

const QString label = QStringLiteral("frmSetDirection.");
const QString divided = QStringLiteral("Division by zero");

class frmSetDirectionTest : public testing::Test {
protected:
    CompassWorld home_;
    const std::vector<RoomRow> rooms_ = {{.id = 1},
                                         {.id = 2, .left = "120"},
                                         {.id = 3, .top = "120"},
                                         {.id = 4, .left = "120", .top = "120", .floor = "2"}};

    void SetUp() override { home_.open(rooms_, "40", "50", "-80"); }

    static bool show(const std::function<void(QWidget&)>& inside) {
        frmSetDirection window;
        bool saved = false;
        whileModal([&] { saved = window.SetDirection(); }, inside);
        return saved;
    }
    static PlanWidget& plan(QWidget& window) { return control<PlanWidget>(window, "picFloorPlan"); }

    /// Clicks near a point of the plan and gives the point that was really clicked.
    static QPointF clickPlan(QWidget& window, double X, double Y, Qt::MouseButton button = Qt::LeftButton) {
        PlanWidget& widget = plan(window);
        const QPoint pixel = widget.fromPlan({X, Y}).toPoint();
        QTest::mouseClick(&widget, button, Qt::NoModifier, pixel);
        return widget.toPlan(pixel);
    }
    static void expectNorth(double north, double X, double Y) {
        EXPECT_EQ(Global::CurrentLocation->NORTHOFFSET, north);
        EXPECT_EQ(Global::CurrentLocation->LABLEX, X);
        EXPECT_EQ(Global::CurrentLocation->LABLEY, Y);
    }
    static bool isBlank(QWidget& window) { return plan(window).picture().items().empty(); }
};

} // namespace

TEST_F(frmSetDirectionTest, showsTheHomesNameAndWhatToDo) {
    show([](QWidget& window) {
        EXPECT_EQ(window.windowTitle(), QStringLiteral("Set Direction"));
        EXPECT_EQ(control(window, "vsTop").property("caption").toString(), QStringLiteral("Elm && Oak"));
        EXPECT_EQ(control<QLabel>(window, "lblLocation").text(),
                  QStringLiteral(
                      "Click below to indicate the direction of North from the center of the floorplan:"));
        EXPECT_EQ(control<QPushButton>(window, "cmdOK").text(), QStringLiteral("&OK"));
        EXPECT_EQ(control<QPushButton>(window, "cmdCancel").text(), QStringLiteral("&Cancel"));
    });
}

TEST_F(frmSetDirectionTest, click_setsNorthInMemoryAndTurnsTheSectors) {
    show([&](QWidget& window) {
        EXPECT_EQ(home_.direction(1), QStringLiteral("7")); // North at 40
        const QPointF at = clickPlan(window, -100, -100);
        expectNorth(CompassGeometry::pointedAngle(at.x(), at.y()), at.x(), at.y());
        EXPECT_EQ(home_.direction(1), QStringLiteral("1"));
        EXPECT_EQ(home_.direction(4), QStringLiteral("9")); // on another floor
        EXPECT_EQ(home_.storedDirection(1), QStringLiteral("5"));
        const auto& items = plan(window).picture().items();
        const auto letter = std::ranges::find_if(
            items, [](const PlanItem& item) { return std::holds_alternative<PlanText>(item); });
        ASSERT_NE(letter, items.end());
        EXPECT_EQ(std::get<PlanText>(*letter).x, static_cast<float>(at.x()));
        EXPECT_EQ(std::get<PlanText>(*letter).y, static_cast<float>(at.y()));
    });
}

TEST_F(frmSetDirectionTest, click_withAnyButtonCountsAndTheLastOneHolds) {
    show([](QWidget& window) {
        const QString north40 = QStringLiteral("North is 40.0 degrees clockwise from the top; Left and Right "
                                               "turn it by 1 degree, with Shift by 15");
        EXPECT_EQ(plan(window).accessibleDescription(), north40);
        clickPlan(window, 50, 50, Qt::RightButton);
        EXPECT_NE(plan(window).accessibleDescription(), north40);
        EXPECT_NEAR(Global::CurrentLocation->NORTHOFFSET, 135, 1);
        clickPlan(window, -50, 50, Qt::MiddleButton);
        EXPECT_NEAR(Global::CurrentLocation->NORTHOFFSET, 225, 1);
        clickPlan(window, -50, -50);
        EXPECT_NEAR(Global::CurrentLocation->NORTHOFFSET, 315, 1);
    });
}

TEST_F(frmSetDirectionTest, arrowKeys_turnNorthAndOkSavesIt) {
    EXPECT_TRUE(show([&](QWidget& window) {
        EXPECT_EQ(window.focusWidget(), &plan(window));
        press(window, Qt::Key_Right);
        EXPECT_NEAR(Global::CurrentLocation->NORTHOFFSET, 41, 1e-6);
        press(window, Qt::Key_Left, Qt::ShiftModifier);
        press(window, Qt::Key_Left);
        EXPECT_NEAR(Global::CurrentLocation->NORTHOFFSET, 25, 1e-6);
        // The letter N stands as far from the centre as it was clicked.
        EXPECT_NEAR(std::hypot(Global::CurrentLocation->LABLEX, Global::CurrentLocation->LABLEY),
                    std::hypot(50, -80), 1e-6);
        EXPECT_TRUE(plan(window).accessibleDescription().startsWith(QStringLiteral("North is 25.0 degrees")));
        EXPECT_TRUE(control<QLabel>(window, "lblCoord").text().contains(QStringLiteral("Angle = 2")));
        press(window, Qt::Key_Return);
        EXPECT_FALSE(window.isVisible());
    }));
    EXPECT_NEAR(Global::CurrentLocation->NORTHOFFSET, 25, 1e-6);
    EXPECT_NE(home_.storedDirection(1), QStringLiteral("5"));
}

TEST_F(frmSetDirectionTest, arrowKeys_goRoundTheCircleFromANorthThatWasNeverSet) {
    Global::CurrentLocation->NORTHOFFSET = 0;
    show([&](QWidget& window) {
        const double edge = CompassDrawing::unsetNorth(plan(window).picture()).Y;
        press(window, Qt::Key_Left);
        EXPECT_NEAR(Global::CurrentLocation->NORTHOFFSET, 359, 1e-6);
        EXPECT_NEAR(std::hypot(Global::CurrentLocation->LABLEX, Global::CurrentLocation->LABLEY), -edge,
                    1e-6);
        for (int step = 0; step < 24; ++step) { // past straight right, below and left, where no click counts
            press(window, Qt::Key_Right, Qt::ShiftModifier);
        }
        EXPECT_NEAR(Global::CurrentLocation->NORTHOFFSET, 359, 1e-6);
        press(window, Qt::Key_Right);
        EXPECT_EQ(Global::CurrentLocation->NORTHOFFSET, 0);
        press(window, Qt::Key_Up);
        EXPECT_EQ(Global::CurrentLocation->NORTHOFFSET, 0);
    });
}

TEST_F(frmSetDirectionTest, arrowKeys_ofANorthWithoutALettersPlace_turnItAtThePlansEdge) {
    Global::CurrentLocation->LABLEX = 0;
    Global::CurrentLocation->LABLEY = 0;
    show([&](QWidget& window) {
        press(window, Qt::Key_Right);
        EXPECT_NEAR(Global::CurrentLocation->NORTHOFFSET, 41, 1e-6);
        EXPECT_GT(std::hypot(Global::CurrentLocation->LABLEX, Global::CurrentLocation->LABLEY), 0);
    });
}

TEST_F(frmSetDirectionTest, cancelAfterThreeClicks_leavesAllAsBefore) {
    const QByteArray locations = home_.world.read(QStringLiteral("Locations.xml"));
    const QByteArray rooms = home_.world.read(QStringLiteral("Rooms.xml"));
    EXPECT_FALSE(show([](QWidget& window) {
        clickPlan(window, 50, 50);
        clickPlan(window, -50, 50);
        clickPlan(window, -50, -50);
        click(window, "cmdCancel");
        EXPECT_FALSE(window.isVisible());
    }));
    expectNorth(40, 50, -80);
    for (int room = 1; room <= 4; ++room) {
        EXPECT_EQ(home_.direction(room), QStringLiteral("5"));
    }
    EXPECT_EQ(home_.world.read(QStringLiteral("Locations.xml")), locations);
    EXPECT_EQ(home_.world.read(QStringLiteral("Rooms.xml")), rooms);
}

TEST_F(frmSetDirectionTest, closedByItsFrameOrByEscape_countsAsACancel) {
    EXPECT_FALSE(show([](QWidget& window) {
        clickPlan(window, 50, 50);
        window.close();
    }));
    expectNorth(40, 50, -80);
    EXPECT_FALSE(show([](QWidget& window) {
        clickPlan(window, 50, 50);
        press(window, Qt::Key_Escape);
        EXPECT_FALSE(window.isVisible());
    }));
    expectNorth(40, 50, -80);
    EXPECT_EQ(home_.direction(1), QStringLiteral("5"));
}

TEST_F(frmSetDirectionTest, ok_savesNorthAndTheDirectionsOfAllRooms) {
    QPointF at;
    EXPECT_TRUE(show([&](QWidget& window) {
        clickPlan(window, 90, 90);
        at = clickPlan(window, -100, -100);
        click(window, "cmdOK");
        EXPECT_FALSE(window.isVisible());
    }));
    const double north = CompassGeometry::pointedAngle(at.x(), at.y());
    const auto stored = [](double value) { return Conversion::generalNumber(value).toLatin1(); };
    const QByteArray locations = home_.world.read(QStringLiteral("Locations.xml"));
    EXPECT_TRUE(locations.contains("NORTHOFFSET=\"" + stored(north) + "\" LABLEX=\"" + stored(at.x()) +
                                   "\" LABLEY=\"" + stored(at.y()) + "\""))
        << locations.constData();
    EXPECT_EQ(home_.storedDirection(1), QStringLiteral("1"));
    EXPECT_EQ(home_.storedDirection(2), QStringLiteral("3"));
    EXPECT_EQ(home_.storedDirection(3), QStringLiteral("7"));
    EXPECT_EQ(home_.storedDirection(4), QStringLiteral("9"));
}

TEST_F(frmSetDirectionTest, okWithoutAClick_savesTheOldNorthAndTheRoomsDirections) {
    EXPECT_TRUE(show([](QWidget& window) { press(window, Qt::Key_Return); }));
    expectNorth(40, 50, -80);
    EXPECT_TRUE(home_.world.read(QStringLiteral("Locations.xml")).contains("NORTHOFFSET=\"40\""));
    EXPECT_EQ(home_.storedDirection(1), QStringLiteral("7"));
    EXPECT_EQ(home_.storedDirection(4), QStringLiteral("3"));
}

TEST_F(frmSetDirectionTest, roomPutInTheCentreByTheEditor_losesThatAtOnceAndForGoodAfterOk) {
    EXPECT_EQ(home_.direction(1), QStringLiteral("5"));
    EXPECT_TRUE(show([&](QWidget& window) {
        EXPECT_EQ(home_.direction(1), QStringLiteral("7"));
        click(window, "cmdOK");
    }));
    EXPECT_EQ(home_.storedDirection(1), QStringLiteral("7"));
}

TEST_F(frmSetDirectionTest, clickStraightToTheRight_isRefusedAndTheSheetStaysBlankUntilTheNextRedraw) {
    show([&](QWidget& window) {
        PlanWidget& widget = plan(window);
        const QPoint right(widget.width() * 3 / 4, widget.height() / 2);
        ASSERT_EQ(widget.toPlan(right).y(), 0);
        home_.world.prompts.expectError(label + QStringLiteral("picFloorPlan_MouseUp"), 11, divided);
        QTest::mouseClick(&widget, Qt::LeftButton, Qt::NoModifier, right);
        EXPECT_TRUE(isBlank(window));
        expectNorth(40, 50, -80);
        window.resize(window.width() + 40, window.height() + 40);
        QCoreApplication::processEvents();
        EXPECT_FALSE(isBlank(window));
        expectNorth(40, 50, -80);
    });
}

TEST_F(frmSetDirectionTest, clickOnTheCentre_isRefusedToo) {
    show([&](QWidget& window) {
        home_.world.prompts.expectError(label + QStringLiteral("picFloorPlan_MouseUp"), 11, divided);
        clickPlan(window, 0, 0);
        expectNorth(40, 50, -80);
        clickPlan(window, 50, 50); // the next click counts again
        EXPECT_NEAR(Global::CurrentLocation->NORTHOFFSET, 135, 1);
    });
}

TEST_F(frmSetDirectionTest, clickStraightAbove_isANorthOfZeroWhichCountsAsNotSetTheNextTime) {
    QPointF at;
    EXPECT_TRUE(show([&](QWidget& window) {
        PlanWidget& widget = plan(window);
        const QPoint above(widget.width() / 2, widget.height() / 4);
        at = widget.toPlan(above);
        ASSERT_EQ(at.x(), 0);
        QTest::mouseClick(&widget, Qt::LeftButton, Qt::NoModifier, above);
        expectNorth(0, 0, at.y());
        EXPECT_EQ(home_.direction(1), QStringLiteral("6"));
        click(window, "cmdOK");
    }));
    show([&](QWidget& window) {
        const auto& items = plan(window).picture().items();
        const auto letter = std::ranges::find_if(
            items, [](const PlanItem& item) { return std::holds_alternative<PlanText>(item); });
        ASSERT_NE(letter, items.end());
        EXPECT_EQ(std::get<PlanText>(*letter).y, -180); // the edge, and not where it was clicked
    });
}

TEST_F(frmSetDirectionTest, opening_drawsOnce) {
    // A damaged row makes every drawing tell of itself: twice when it is measured, once when it is drawn.
    home_.open({{.id = 1}, {.id = 2, .left = "wide"}, {.id = 3, .top = "120"}}, "40", "50", "-80");
    const QString mismatch = QStringLiteral("Type mismatch");
    const auto expectDrawing = [&] {
        home_.world.prompts.expectError(label + QStringLiteral("Set Pic ScaleMode"), 13, mismatch);
        home_.world.prompts.expectError(label + QStringLiteral("Set Pic ScaleMode"), 13, mismatch);
        home_.world.prompts.expectError(label + QStringLiteral("Draw Rooms"), 13, mismatch);
    };
    expectDrawing();
    EXPECT_TRUE(show([&](QWidget& window) {
        EXPECT_TRUE(home_.world.prompts.isSatisfied());
        expectDrawing();
        clickPlan(window, 50, 50);
        click(window, "cmdOK");
    }));
    // The rest works: North is stored, the sound row before it placed, the damaged one kept as it was.
    EXPECT_NEAR(Global::CurrentLocation->NORTHOFFSET, 135, 1);
    EXPECT_NE(home_.storedDirection(1), QStringLiteral("5"));
    EXPECT_TRUE(home_.world.read(QStringLiteral("Rooms.xml")).contains("LEFT=\"wide\""));
}

TEST_F(frmSetDirectionTest, plansOfOddSizes_areShownAndSaved) {
    const std::vector<std::vector<RoomRow>> homes = {
        {},
        {{.width = "1", .length = "1"}},
        {{.width = "10000", .length = "10000"}, {.id = 2, .left = "9999", .width = "1", .length = "1"}},
        {{.left = "-500", .top = "-700"}, {.id = 2, .left = "90000", .top = "12"}},
        {{.width = "-300", .length = "-300"}},
    };
    for (const std::vector<RoomRow>& rooms : homes) {
        home_.open(rooms);
        EXPECT_TRUE(show([](QWidget& window) {
            window.grab();
            QTest::mouseClick(&plan(window), Qt::LeftButton, Qt::NoModifier, QPoint(30, 40));
            window.grab();
            click(window, "cmdOK");
        }));
        EXPECT_NE(Global::CurrentLocation->NORTHOFFSET, 0);
    }
}

TEST_F(frmSetDirectionTest, withoutAHome_reportsAndShowsNothing) {
    Global::CurrentLocation.reset();
    home_.world.prompts.expectError(label + QStringLiteral("Set Direction"), 91,
                                    QStringLiteral("Object variable or With block variable not set"));
    frmSetDirection window;
    EXPECT_FALSE(window.SetDirection());
    EXPECT_FALSE(window.isVisible());
}

TEST_F(frmSetDirectionTest, unwritableRooms_areReportedOnceAndNorthIsSaved) {
    EXPECT_TRUE(show([&](QWidget& window) {
        clickPlan(window, 50, 50);
        home_.world.remove(QStringLiteral("Rooms.xml"));
        ASSERT_TRUE(QDir(home_.world.folder()).mkdir(QStringLiteral("Rooms.xml")));
        home_.world.prompts.expectError(QStringLiteral("cXMLHandler.Save Document"), 75);
        click(window, "cmdOK");
    }));
    EXPECT_FALSE(home_.world.read(QStringLiteral("Locations.xml")).contains("NORTHOFFSET=\"40\""));
}

TEST_F(frmSetDirectionTest, tab_goesFromTopLeftToBottomRightThroughNamedControls) {
    show([](QWidget& window) {
        expectReadingOrder(window);
        expectNamedControls(window);
        EXPECT_EQ(tabOrder(window).size(), 5U);
        EXPECT_EQ(tabOrder(window).front(), &plan(window));
    });
}
