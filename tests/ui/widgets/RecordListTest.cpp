#include "ui/widgets/RecordList.h"

#include "support/QtPrinting.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QTest>
#include <QWheelEvent>
#include <gtest/gtest.h>

namespace {

/// A list of three records, two of them with names that differ in case only, over another field.
class RecordListTest : public testing::Test {
protected:
    QWidget window_;
    RecordList list_{&window_};
    QLineEdit other_{&window_};
    QStringList told_;

    void SetUp() override {
        list_.addItems({QStringLiteral("Ann"), QStringLiteral("Ben"), QStringLiteral("ann")});
        list_.setCurrentIndex(-1);
        list_.setGeometry(0, 0, 200, 30);
        other_.setGeometry(0, 40, 200, 30);
        QObject::connect(&list_, &RecordList::chosen, &list_,
                         [this] { told_ << QStringLiteral("chosen %1").arg(list_.currentIndex()); });
        QObject::connect(&list_, &RecordList::textTyped, &list_,
                         [this] { told_ << QStringLiteral("typed ") + list_.currentText(); });
        QObject::connect(&list_, &RecordList::dropDown, &list_,
                         [this] { told_ << QStringLiteral("drop down"); });
        window_.show();
        list_.setFocus();
    }
    void pickFromTheOpenList(int entry) {
        list_.showPopup();
        QAbstractItemView* view = list_.view();
        view->setCurrentIndex(list_.model()->index(entry, 0));
        QTest::keyClick(view, Qt::Key_Return);
    }
};

} // namespace

TEST_F(RecordListTest, typedText_isToldOnceForEachKeyAndChoosesNothing) {
    QTest::keyClicks(&list_, QStringLiteral("Be"));
    EXPECT_EQ(told_, QStringList({QStringLiteral("typed B"), QStringLiteral("typed Be")}));
    EXPECT_EQ(list_.currentText(), QStringLiteral("Be")); // not completed
    EXPECT_EQ(list_.currentIndex(), -1);
}

TEST_F(RecordListTest, leavingTheFieldOrPressingEnter_choosesNoNamesakeOfWhatWasTyped) {
    list_.setCurrentIndex(0);
    list_.lineEdit()->selectAll();
    QTest::keyClicks(&list_, QStringLiteral("Ben"));
    told_.clear();
    QTest::keyClick(&list_, Qt::Key_Return);
    other_.setFocus();
    EXPECT_EQ(told_, QStringList());
    EXPECT_EQ(list_.currentIndex(), 0);
    EXPECT_EQ(list_.currentText(), QStringLiteral("Ben"));
    EXPECT_EQ(list_.count(), 3);
}

TEST_F(RecordListTest, writingATextThatIsNoEntry_showsItAndTellsNothing) {
    list_.setEditText(QStringLiteral("Zoe"));
    EXPECT_EQ(list_.currentText(), QStringLiteral("Zoe"));
    EXPECT_EQ(told_, QStringList());
}

TEST_F(RecordListTest, choosingByTheProgram_isToldOnce) {
    list_.setCurrentIndex(1);
    EXPECT_EQ(told_, QStringList({QStringLiteral("chosen 1")}));
}

TEST_F(RecordListTest, choosingFromTheOpenList_isToldOnceAfterTheDropDown) {
    pickFromTheOpenList(1);
    EXPECT_EQ(told_, QStringList({QStringLiteral("drop down"), QStringLiteral("chosen 1")}));
}

TEST_F(RecordListTest, choosingTheSameEntryAgain_isToldAgain) {
    list_.setCurrentIndex(1);
    told_.clear();
    pickFromTheOpenList(1);
    EXPECT_EQ(told_, QStringList({QStringLiteral("drop down"), QStringLiteral("chosen 1")}));
}

TEST_F(RecordListTest, closingTheListWithEscape_choosesNothing) {
    list_.setEditText(QStringLiteral("Ben"));
    list_.showPopup();
    QTest::keyClick(list_.view(), Qt::Key_Escape);
    EXPECT_EQ(told_, QStringList({QStringLiteral("drop down")}));
    EXPECT_EQ(list_.currentText(), QStringLiteral("Ben"));
}

TEST_F(RecordListTest, openList_standsAtTheNameInTheField) {
    list_.setEditText(QStringLiteral("ann"));
    list_.showPopup();
    EXPECT_EQ(list_.view()->currentIndex().row(), 2);
    list_.hidePopup();
    EXPECT_EQ(list_.currentIndex(), -1);
}

TEST_F(RecordListTest, arrowKeys_stepFromTheNameInTheField) {
    list_.setEditText(QStringLiteral("Ben"));
    QTest::keyClick(&list_, Qt::Key_Down);
    EXPECT_EQ(told_, QStringList({QStringLiteral("chosen 2")}));
    QTest::keyClick(&list_, Qt::Key_Up);
    EXPECT_EQ(told_.last(), QStringLiteral("chosen 1"));
}

TEST_F(RecordListTest, wheel_changesNothing) {
    list_.setCurrentIndex(0);
    QWheelEvent wheel(QPointF(10, 10), list_.mapToGlobal(QPointF(10, 10)), QPoint(), QPoint(0, -120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&list_, &wheel);
    EXPECT_EQ(list_.currentIndex(), 0);
    EXPECT_FALSE(wheel.isAccepted());
}

TEST_F(RecordListTest, longNames_doNotWidenTheField) {
    const int before = list_.sizeHint().width();
    list_.addItem(QString(5000, u'n'));
    EXPECT_EQ(list_.sizeHint().width(), before);
}
