#include "ui/RoomFields.h"

#include "core/Failure.h"
#include "locations/cRoom.h"
#include "ui/RoomEditorTest.h"
#include "ui/RoomForm.h"

using namespace Qt::StringLiterals;

namespace {

class RoomFieldsTest : public RoomEditorTest {
protected:
    RoomForm form_;
    cRoom room_;
};

} // namespace

TEST_F(RoomFieldsTest, show_sizesBelowNothing_areShownAsTheyAre) {
    room_.Length = -30;
    RoomFields::show(room_, form_);
    EXPECT_EQ(form_.length.feet->text(), u"-2"_s);
    EXPECT_EQ(form_.length.inches->text(), u"-6"_s);
}

TEST_F(RoomFieldsTest, show_halfAnInch_isRoundedToTheEvenInch) {
    room_.Length = 126.5F;
    room_.WIDTH = 127.5F;
    RoomFields::show(room_, form_);
    EXPECT_EQ(form_.length.inches->text(), u"6"_s);
    EXPECT_EQ(form_.width.inches->text(), u"8"_s);
}

TEST_F(RoomFieldsTest, show_sizeBeyondWholeNumbers_fails) {
    room_.Length = 1e12F;
    EXPECT_THROW(RoomFields::show(room_, form_), Failure);
}

TEST_F(RoomFieldsTest, read_emptyForm_givesTheDefaultsAndLeavesTheFloor) {
    room_.FLOORID = 3;
    room_.RelativeDirection = 1;
    RoomFields::read(form_, room_);
    EXPECT_EQ(room_.DESCRIPTION, u"Unknown"_s);
    EXPECT_EQ(room_.ROOMTYPEID, 1);
    EXPECT_EQ(room_.FLOORID, 3);
    EXPECT_EQ(room_.RelativeDirection, 5);
    EXPECT_EQ(room_.FLOORTYPEID, 1);
    EXPECT_EQ(room_.Length, 120);
    EXPECT_EQ(room_.WIDTH, 120);
}

TEST_F(RoomFieldsTest, clear_undoesWhatShowDid) {
    RoomFields::fillFloors(*form_.cboFloors);
    room_.FLOORID = 1;
    room_.DESCRIPTION = u"Kitchen"_s;
    room_.HasEntrance = true;
    RoomFields::show(room_, form_);
    EXPECT_EQ(form_.cboFloors->currentIndex(), 0);
    RoomFields::clear(form_);
    EXPECT_EQ(form_.cboFloors->currentIndex(), -1);
    EXPECT_EQ(form_.txtDescription->text(), QString());
    EXPECT_EQ(form_.width.feet->text(), QString());
    EXPECT_FALSE(form_.chkEntrance->isChecked());
}

TEST_F(RoomFieldsTest, selectByKey_unknownKey_selectsNothing) {
    RoomFields::fillFloors(*form_.cboFloors);
    RoomFields::selectByKey(*form_.cboFloors, 1);
    RoomFields::selectByKey(*form_.cboFloors, 99);
    EXPECT_EQ(form_.cboFloors->currentIndex(), -1);
}

TEST_F(RoomFieldsTest, fillFloors_filledAgain_holdsEachFloorOnce) {
    RoomFields::fillFloors(*form_.cboFloors);
    const int floors = form_.cboFloors->count();
    RoomFields::fillFloors(*form_.cboFloors);
    EXPECT_EQ(form_.cboFloors->count(), floors);
    EXPECT_GE(floors, 1);
}
