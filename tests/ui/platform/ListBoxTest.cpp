#include "ui/platform/ListBox.h"

#include <QListWidget>
#include <QSignalSpy>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class ListBoxTest : public testing::Test {
protected:
    QListWidget widget_;
    ListBox list_{widget_};

    void SetUp() override {
        list_.AddItem(u"Hall"_s, 4);
        list_.AddItem(u"Gym"_s, 9);
    }
};

} // namespace

TEST_F(ListBoxTest, filling_selectsNothing) {
    EXPECT_EQ(list_.ListCount(), 2);
    EXPECT_EQ(list_.ListIndex(), -1);
    EXPECT_EQ(list_.List(1), u"Gym"_s);
    EXPECT_EQ(list_.ItemData(1), 9);
}

TEST_F(ListBoxTest, focus_selectsNothing) {
    widget_.show();
    widget_.setFocus();
    EXPECT_EQ(list_.ListIndex(), -1);
}

TEST_F(ListBoxTest, setListIndex_selectsAndTellsOnce) {
    const QSignalSpy told(&widget_, &QListWidget::itemSelectionChanged);
    list_.setListIndex(1);
    EXPECT_EQ(list_.ListIndex(), 1);
    EXPECT_EQ(told.count(), 1);
    list_.setListIndex(-1);
    EXPECT_EQ(list_.ListIndex(), -1);
}

TEST_F(ListBoxTest, indexesOutside_haveNoTextAndNoNumber) {
    EXPECT_EQ(list_.List(-1), QString());
    EXPECT_EQ(list_.ItemData(2), 0);
}

TEST_F(ListBoxTest, Clear_leavesNothing) {
    list_.setListIndex(0);
    list_.Clear();
    EXPECT_EQ(list_.ListCount(), 0);
    EXPECT_EQ(list_.ListIndex(), -1);
}
