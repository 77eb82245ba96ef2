#include "ui/platform/ComboList.h"

#include "core/Global.h"
#include "support/TestWorld.h"

#include <QComboBox>
#include <gtest/gtest.h>

namespace {

class ComboListTest : public testing::Test {
protected:
    QComboBox combo_;
    ComboList list_{combo_};
    QList<int> clicks_;

    void SetUp() override {
        QObject::connect(&combo_, &QComboBox::currentIndexChanged, &combo_,
                         [this](int index) { clicks_ << index; });
    }
    void fill() {
        list_.AddItem(QStringLiteral("Ann"), 11);
        list_.AddItem(QStringLiteral("Ben"), 7);
        list_.AddItem(QStringLiteral("Zoë"), 0);
    }
};

} // namespace

TEST_F(ComboListTest, AddItem_selectsNothingAndFiresNothing) {
    fill();
    EXPECT_EQ(list_.ListIndex(), -1);
    EXPECT_EQ(list_.ListCount(), 3);
    EXPECT_TRUE(clicks_.isEmpty());
}

TEST_F(ComboListTest, AddItem_editableList_keepsTheTextThatWasTyped) {
    combo_.setEditable(true);
    fill();
    combo_.setEditText(QStringLiteral("typed"));
    list_.AddItem(QStringLiteral("Dora"), 4);
    EXPECT_EQ(combo_.currentText(), QStringLiteral("typed"));
}

TEST_F(ComboListTest, ItemData_isTheNumberOfTheEntry) {
    fill();
    EXPECT_EQ(list_.ItemData(0), 11);
    EXPECT_EQ(list_.ItemData(1), 7);
    EXPECT_EQ(list_.ItemData(2), 0);
}

TEST_F(ComboListTest, setListIndex_firesOnceForAChange) {
    fill();
    list_.setListIndex(0);
    list_.setListIndex(0);
    list_.setListIndex(-1);
    EXPECT_EQ(clicks_, (QList<int>{0, -1}));
}

TEST_F(ComboListTest, Clear_leavesAnEmptyListWithoutSelection) {
    fill();
    list_.setListIndex(2);
    list_.Clear();
    EXPECT_EQ(list_.ListCount(), 0);
    EXPECT_EQ(list_.ListIndex(), -1);
}

TEST_F(ComboListTest, FindInData_selectsTheEntryWithThatNumber) {
    fill();
    Global::FindInData(list_, QStringLiteral("7"), 0, -1);
    EXPECT_EQ(combo_.currentText(), QStringLiteral("Ben"));
}
