// The rooms on the plan under the user's mouse and keys.

#include "ui/FloorPlan.h"
#include "ui/LocationPaneTest.h"
#include "ui/widgets/ElidedLabel.h"
#include "ui/widgets/PlainToolTip.h"

#include <QHelpEvent>
#include <QMenu>
#include <QToolTip>

namespace {

/// Two rooms: 1, 120 by 100 at (60, 60), and 2, 200 by 200 at (300, 300).
class FloorPlanMouseTest : public LocationPaneTest {
protected:
    void SetUp() override {
        LocationPaneTest::SetUp();
        writeRooms(
            {R"(<z:row ROOMID="1" LOCATIONID="1" FLOORID="1" DESCRIPTION="Wine Cellar" LEFT="60" TOP="60" WIDTH="120" LENGTH="100" ROOMTYPEID="1" FLOORTYPEID="1" RELATIVEDIRECTION="5" HASENTRANCE="False" HASEXPOSEDBEAMS="False" HASLOWCEILING="False"/>)",
             R"(<z:row ROOMID="2" LOCATIONID="1" FLOORID="1" DESCRIPTION="Hall" LEFT="300" TOP="300" WIDTH="200" LENGTH="200" ROOMTYPEID="1" FLOORTYPEID="1" RELATIVEDIRECTION="5" HASENTRANCE="False" HASEXPOSEDBEAMS="False" HASLOWCEILING="False"/>)"});
        start();
    }
    [[nodiscard]] QString readOut() const { return control<ElidedLabel>(*view_, "lblRoomPlace").text(); }
    void expectPlace(const QString& id, double left, double top) const {
        EXPECT_NEAR(stored(id, u"LEFT"_s).toDouble(), left, 0.51);
        EXPECT_NEAR(stored(id, u"TOP"_s).toDouble(), top, 0.51);
        EXPECT_FLOAT_EQ(room(id.toInt() - 1).Left(), stored(id, u"LEFT"_s).toFloat());
        EXPECT_FLOAT_EQ(room(id.toInt() - 1).Top(), stored(id, u"TOP"_s).toFloat());
    }
};

} // namespace

TEST_F(FloorPlanMouseTest, dragOnThePlan_followsTheMouseAndIsStored) {
    drag(at(100, 100), at(250, 130));
    expectPlace(u"1"_s, 210, 90);
    EXPECT_EQ(selected(), 0);
}

TEST_F(FloorPlanMouseTest, lowerRightCorner_staysUnderTheMouseOnThePlan) {
    drag(at(178, 158), at(400, 250));
    expectPlace(u"1"_s, 282, 152);
    EXPECT_NEAR(static_cast<double>(room(0).Left() + room(0).Width()), 402, 0.51);
}

TEST_F(FloorPlanMouseTest, lowerRightCorner_staysUnderTheMouseOverAnotherRoom) {
    drag(at(178, 158), at(420, 420));
    expectPlace(u"1"_s, 302, 322);
    EXPECT_EQ(plan().childAt(at(410, 410).toPoint()), &room(0)) << "the dropped room lies in front";
}

TEST_F(FloorPlanMouseTest, dropOnItself_movesByTheWayOfTheMouse) {
    drag(at(100, 100), at(112, 109));
    expectPlace(u"1"_s, 72, 69);
}

TEST_F(FloorPlanMouseTest, drops_areNeitherSnappedNorKeptInside) {
    drag(at(100, 100), at(2, 598));
    expectPlace(u"1"_s, -38, 558);
    EXPECT_TRUE(stored(u"1"_s, u"LEFT"_s).startsWith(u'-'));
}

TEST_F(FloorPlanMouseTest, eachDrop_writesItsRoomAlone) {
    drag(at(320, 320), at(350, 350));
    EXPECT_EQ(stored(u"1"_s, u"LEFT"_s), u"60"_s);
    EXPECT_EQ(stored(u"2"_s, u"WIDTH"_s), u"200"_s);
    expectPlace(u"2"_s, 330, 330);
}

TEST_F(FloorPlanMouseTest, whileDragged_theDistanceFromTheCornerIsTold) {
    press(at(100, 100));
    moveTo(at(124, 110));
    EXPECT_EQ(
        readOut(),
        u"Wine Cellar: 10 ft 0 in wide, 8 ft 4 in long; 7 ft 0 in from the left, 5 ft 10 in from the top"_s);
    EXPECT_EQ(stored(u"1"_s, u"LEFT"_s), u"60"_s) << "nothing is stored before the drop";
    release(at(124, 110));
    EXPECT_NE(stored(u"1"_s, u"LEFT"_s), u"60"_s);
}

TEST_F(FloorPlanMouseTest, pressWithoutAMove_selectsAndStoresNothing) {
    const QByteArray before = world_.read(u"Rooms.xml"_s);
    press(at(350, 350));
    EXPECT_EQ(selected(), 1);
    moveTo(at(350, 350) + QPointF(1, 1));
    release(at(350, 350) + QPointF(1, 1));
    EXPECT_EQ(world_.read(u"Rooms.xml"_s), before);
    EXPECT_EQ(room(1).Left(), 300.0F);
}

TEST_F(FloorPlanMouseTest, dropBesideThePlan_putsTheRoomBack) {
    const QByteArray before = world_.read(u"Rooms.xml"_s);
    drag(at(100, 100), QPointF(-40, 20));
    EXPECT_EQ(world_.read(u"Rooms.xml"_s), before);
    EXPECT_EQ(room(0).Left(), 60.0F);
    EXPECT_EQ(room(0).Top(), 60.0F);
}

TEST_F(FloorPlanMouseTest, escape_endsTheDragWhereItBegan) {
    const QByteArray before = world_.read(u"Rooms.xml"_s);
    press(at(100, 100));
    moveTo(at(200, 200));
    QTest::keyClick(&room(0), Qt::Key_Escape);
    EXPECT_EQ(room(0).Left(), 60.0F);
    release(at(200, 200));
    EXPECT_EQ(world_.read(u"Rooms.xml"_s), before);
}

TEST_F(FloorPlanMouseTest, otherButtonWhileDragging_isIgnored) {
    press(at(100, 100));
    moveTo(at(200, 200));
    press(at(200, 200), Qt::RightButton);
    EXPECT_FALSE(control<QMenu>(*view_, "mnuLocations").isVisible());
    release(at(200, 200), Qt::RightButton);
    release(at(200, 200));
    expectPlace(u"1"_s, 160, 160);
}

TEST_F(FloorPlanMouseTest, arrowKeyWhileDragging_leavesTheRoomToTheMouse) {
    press(at(100, 100));
    moveTo(at(200, 200));
    QTest::keyClick(&room(0), Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(stored(u"1"_s, u"LEFT"_s), u"60"_s);
    release(at(200, 200));
    expectPlace(u"1"_s, 160, 160);
}

TEST_F(FloorPlanMouseTest, dragWhoseEndIsLost_endsAtTheNextPress) {
    press(at(100, 100));
    moveTo(at(200, 200));
    drag(at(350, 350), at(360, 380));
    EXPECT_EQ(room(0).Left(), 60.0F);
    EXPECT_EQ(stored(u"1"_s, u"LEFT"_s), u"60"_s);
    expectPlace(u"2"_s, 310, 330);
}

TEST_F(FloorPlanMouseTest, failedSave_isReportedAndTheRoomStaysWhereItWasDropped) {
    world_.remove(u"Rooms.xml"_s);
    QDir().mkdir(world_.file(u"Rooms.xml"_s));
    world_.prompts.expectError(u"cXMLHandler.Save Document"_s, 75);
    drag(at(100, 100), at(200, 200));
    EXPECT_NEAR(static_cast<double>(room(0).Left()), 160, 0.51);
}

TEST_F(FloorPlanMouseTest, dropsWithoutAHome_areReportedUnderTheirTargetsLabels) {
    Global::CurrentLocation->oXMLRooms.reset();
    const QString notSet = u"Object variable or With block variable not set"_s;
    world_.prompts.expectError(u"frmView.picFloorPlan_DragDrop"_s, 91, notSet);
    drag(at(100, 100), at(250, 200));
    world_.prompts.expectError(u"frmView.recRoom_DragDrop"_s, 91, notSet);
    drag(at(250, 200), at(400, 400));
}

TEST_F(FloorPlanMouseTest, rightClick_selectsAndOpensTheMenuWithoutADrag) {
    press(at(350, 350), Qt::RightButton);
    EXPECT_EQ(selected(), 1);
    auto& menu = control<QMenu>(*view_, "mnuLocations");
    EXPECT_TRUE(menu.isVisible());
    menu.close();
    moveTo(at(400, 400));
    release(at(400, 400), Qt::RightButton);
    EXPECT_EQ(stored(u"2"_s, u"LEFT"_s), u"300"_s);
    EXPECT_EQ(room(1).Left(), 300.0F);
}

TEST_F(FloorPlanMouseTest, menuKey_opensTheMenuOverTheRoom) {
    list().setCurrentRow(0);
    QContextMenuEvent key(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QApplication::sendEvent(&room(0), &key);
    auto& menu = control<QMenu>(*view_, "mnuLocations");
    EXPECT_TRUE(menu.isVisible());
    menu.close();
}

TEST_F(FloorPlanMouseTest, shiftAndF10_openTheMenuOverTheRoom) {
    list().setCurrentRow(0);
    QTest::keyClick(&room(0), Qt::Key_F10);
    auto& menu = control<QMenu>(*view_, "mnuLocations");
    EXPECT_FALSE(menu.isVisible());
    QTest::keyClick(&room(0), Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_TRUE(menu.isVisible());
    menu.close();
}

TEST_F(FloorPlanMouseTest, roomUnderTheKeyboard_looksUnlikeOneThatIsOnlySelected) {
    list().setFocus();
    list().setCurrentRow(0);
    const QImage selectedOnly = room(0).grab().toImage();
    room(0).setFocus();
    ASSERT_TRUE(room(0).hasFocus());
    EXPECT_NE(room(0).grab().toImage(), selectedOnly);
    list().setFocus();
    EXPECT_EQ(room(0).grab().toImage(), selectedOnly);
}

TEST_F(FloorPlanMouseTest, doubleClick_opensTheRoom) {
    whileModal(
        [this] { QTest::mouseDClick(&room(1), Qt::LeftButton); },
        [](QWidget& window) { EXPECT_EQ(control<QLineEdit>(window, "txtDescription").text(), u"Hall"_s); });
    EXPECT_EQ(selected(), 1);
}

TEST_F(FloorPlanMouseTest, doubleClickInTheList_opensTheRoom) {
    const QPoint entry = list().visualItemRect(list().item(0)).center();
    QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, entry);
    EXPECT_TRUE(room(0).isSelected());
    whileModal([&] { QTest::mouseDClick(list().viewport(), Qt::LeftButton, {}, entry); },
               [](QWidget& window) {
                   EXPECT_EQ(control<QLineEdit>(window, "txtDescription").text(), u"Wine Cellar"_s);
               });
}

TEST_F(FloorPlanMouseTest, selection_colorsOneRoomAndBringsItToTheFront) {
    drag(at(320, 320), at(100, 100)); // room 2 over room 1
    list().setCurrentRow(0);
    EXPECT_TRUE(room(0).isSelected());
    EXPECT_FALSE(room(1).isSelected());
    EXPECT_EQ(plan().childAt(at(120, 120).toPoint()), &room(0));
    list().setCurrentRow(1);
    EXPECT_FALSE(room(0).isSelected());
    EXPECT_EQ(plan().childAt(at(120, 120).toPoint()), &room(1));
}

TEST_F(FloorPlanMouseTest, arrowKeys_moveByAnInchAndWithShiftByAFoot) {
    list().setCurrentRow(1);
    room(1).setFocus();
    QTest::keyClick(&room(1), Qt::Key_Left);
    EXPECT_EQ(stored(u"2"_s, u"LEFT"_s), u"299"_s);
    QTest::keyClick(&room(1), Qt::Key_Down);
    EXPECT_EQ(stored(u"2"_s, u"TOP"_s), u"301"_s);
    QTest::keyClick(&room(1), Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(stored(u"2"_s, u"LEFT"_s), u"311"_s);
    QTest::keyClick(&room(1), Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(stored(u"2"_s, u"TOP"_s), u"289"_s);
    EXPECT_TRUE(readOut().endsWith(u"25 ft 11 in from the left, 24 ft 1 in from the top"_s));
}

TEST_F(FloorPlanMouseTest, enter_opensTheRoomFromPlanAndList) {
    list().setCurrentRow(1);
    const auto isHall = [](QWidget& window) {
        EXPECT_EQ(control<QLineEdit>(window, "txtDescription").text(), u"Hall"_s);
    };
    whileModal([this] { QTest::keyClick(&room(1), Qt::Key_Return); }, isHall);
    whileModal([this] { QTest::keyClick(&list(), Qt::Key_Return); }, isHall);
}

TEST_F(FloorPlanMouseTest, tab_goesFromTheListToTheSelectedRoomAndOn) {
    list().setCurrentRow(1);
    list().setFocus();
    WindowDriver::press(*view_, Qt::Key_Tab);
    EXPECT_EQ(view_->focusWidget(), &room(1));
    WindowDriver::press(*view_, Qt::Key_Tab);
    EXPECT_EQ(view_->focusWidget()->objectName(), u"cmdNewLocation"_s);
    WindowDriver::press(*view_, Qt::Key_Backtab);
    EXPECT_EQ(view_->focusWidget(), &room(1));
}

TEST_F(FloorPlanMouseTest, decimalComma_isWrittenInTheUsersForm) {
    world_.setLocale(QLocale(QLocale::German, QLocale::Germany));
    list().setCurrentRow(0);
    room(0).setLeft(10.5F);
    QTest::keyClick(&room(0), Qt::Key_Right);
    EXPECT_EQ(stored(u"1"_s, u"LEFT"_s), u"11,5"_s);
}

TEST_F(FloorPlanMouseTest, toolTip_isTheNameOfARoomTooSmallToShowIt) {
    const auto tip = [&] {
        QHelpEvent wanted(QEvent::ToolTip, QPoint(5, 5), room(0).mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(&room(0), &wanted);
        const QString text = QToolTip::isVisible() ? QToolTip::text() : QString();
        QToolTip::hideText();
        return text;
    };
    EXPECT_EQ(tip(), QString());
    room(0).resize(room(0).width(), room(0).fontMetrics().height() + 8); // one line of two
    EXPECT_EQ(tip(), plainToolTip(u"Wine Cellar"_s));
    room(0).resize(room(0).fontMetrics().horizontalAdvance(u"Cell"_s), 200);
    EXPECT_EQ(tip(), plainToolTip(u"Wine Cellar"_s));
    room(0).setDescription(u"<img src='cellar.png'><b>Wine</b>"_s);
    EXPECT_EQ(tip(), u"<span>&lt;img src='cellar.png'&gt;&lt;b&gt;Wine&lt;/b&gt;</span>"_s)
        << "a name is no markup";
}

TEST_F(FloorPlanMouseTest, secondPressOfTheRightButton_isAPressLikeTheFirst) {
    // The system calls a quick second press a double click.
    const QPointF middle = room(1).rect().center();
    QMouseEvent second(QEvent::MouseButtonDblClick, middle, room(1).mapToGlobal(middle), Qt::RightButton,
                       Qt::RightButton, Qt::NoModifier);
    QApplication::sendEvent(&room(1), &second);
    auto& menu = control<QMenu>(*view_, "mnuLocations");
    EXPECT_TRUE(menu.isVisible());
    EXPECT_EQ(selected(), 1);
    menu.close();
}
