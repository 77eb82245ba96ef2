#include "ui/widgets/PaneSplitter.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>
#include <gtest/gtest.h>

namespace {

/// Two fields side by side in a window that Escape closes.
class PaneSplitterTest : public testing::Test {
protected:
    PaneSplitterTest() {
        auto* column = new QVBoxLayout(&window);
        panes = new PaneSplitter(&window);
        left = new QLineEdit(panes);
        right = new QLineEdit(panes);
        left->setMinimumWidth(100);
        right->setMinimumWidth(150);
        column->addWidget(panes);
        window.resize(600, 200);
        window.show();
        window.activateWindow();
        panes->setSizes({300, 300});
        right->setFocus();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    /// Presses a key where the keyboard is.
    void press(Qt::Key key) const { QTest::keyClick(window.focusWidget(), key); }

    QDialog window;
    PaneSplitter* panes = nullptr;
    QLineEdit* left = nullptr;
    QLineEdit* right = nullptr;
};

} // namespace

TEST_F(PaneSplitterTest, arrowKeysHomeAndEnd_moveTheDividerAsFarAsThePanesLetIt) {
    const int before = left->width();
    press(Qt::Key_F8);
    press(Qt::Key_Right);
    EXPECT_EQ(left->width(), before + 16);
    press(Qt::Key_Left);
    press(Qt::Key_Left);
    EXPECT_EQ(left->width(), before - 16);
    press(Qt::Key_Home);
    EXPECT_EQ(left->width(), 100);
    press(Qt::Key_Left);
    EXPECT_EQ(left->width(), 100);
    press(Qt::Key_End);
    EXPECT_EQ(right->width(), 150);
    EXPECT_EQ(window.focusWidget(), panes->handle(1));
}

TEST_F(PaneSplitterTest, F8EnterAndEscape_goBackToWhereTheKeyboardWas) {
    for (const Qt::Key back : {Qt::Key_F8, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
        press(Qt::Key_F8);
        ASSERT_EQ(window.focusWidget(), panes->handle(1));
        press(back);
        EXPECT_EQ(window.focusWidget(), right);
        EXPECT_TRUE(window.isVisible());
    }
}

TEST_F(PaneSplitterTest, whereTheKeyboardWasHasGone_theDividerLetsItGo) {
    auto* below = new QLineEdit(&window);
    window.layout()->addWidget(below);
    below->show();
    below->setFocus();
    press(Qt::Key_F8);
    delete below;
    press(Qt::Key_Return);
    EXPECT_FALSE(panes->handle(1)->hasFocus());
}

TEST_F(PaneSplitterTest, otherKeys_areNotTheDividers) {
    press(Qt::Key_F8);
    const QList<int> before = panes->sizes();
    QKeyEvent letter(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier);
    QApplication::sendEvent(panes->handle(1), &letter);
    EXPECT_FALSE(letter.isAccepted());
    EXPECT_EQ(panes->sizes(), before);
}

TEST_F(PaneSplitterTest, onePane_hasNoDividerToGoTo) {
    left->setFocus();
    delete right;
    press(Qt::Key_F8);
    EXPECT_EQ(window.focusWidget(), left);
}

TEST_F(PaneSplitterTest, Tab_passesTheDivider) {
    left->setFocus();
    press(Qt::Key_Tab);
    EXPECT_EQ(window.focusWidget(), right);
}

TEST_F(PaneSplitterTest, divider_showsThatItHasTheKeyboard) {
    const QImage before = panes->handle(1)->grab().toImage();
    press(Qt::Key_F8);
    EXPECT_NE(panes->handle(1)->grab().toImage(), before);
    EXPECT_FALSE(panes->handle(1)->accessibleName().isEmpty());
}
