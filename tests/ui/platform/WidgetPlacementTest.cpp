#include "ui/platform/WidgetPlacement.h"

#include "core/Global.h"
#include "support/TestWorld.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <gtest/gtest.h>

namespace {

class WidgetPlacementTest : public testing::Test {
protected:
    TestWorld world_;
    QWidget window_;
    const QString section_ = Global::settingsSection(QStringLiteral("frmTest"));

    void SetUp() override {
        window_.setObjectName(QStringLiteral("frmTest"));
        window_.resize(300, 200);
    }
    void store(const char* name, const char* text) {
        world_.settings.setText(section_, QString::fromLatin1(name), QString::fromLatin1(text));
    }
    [[nodiscard]] static QRect screen() { return QGuiApplication::primaryScreen()->availableGeometry(); }
};

} // namespace

TEST_F(WidgetPlacementTest, neverClosed_standsInTheMiddleOfTheScreenAtItsDesignedSize) {
    restorePlacement(window_);
    EXPECT_EQ(window_.size(), QSize(300, 200));
    EXPECT_LE((window_.geometry().center() - screen().center()).manhattanLength(), 2);
    EXPECT_TRUE(world_.settings.isEmpty());
}

TEST_F(WidgetPlacementTest, neverClosed_standsOverTheWindowThatOpenedIt) {
    QWidget child(&window_, Qt::Window);
    child.setObjectName(QStringLiteral("frmChild"));
    child.resize(100, 80);
    window_.move(60, 70);
    restorePlacement(child);
    EXPECT_LE((child.geometry().center() - window_.geometry().center()).manhattanLength(), 2);
}

TEST_F(WidgetPlacementTest, save_writesTwipsFifteenToThePixel) {
    window_.move(40, 20);
    savePlacement(window_);
    EXPECT_EQ(world_.settings.text(section_, QStringLiteral("WindowState")), QStringLiteral("NORMAL"));
    EXPECT_EQ(world_.settings.text(section_, QStringLiteral("Top")), QStringLiteral("300"));
    EXPECT_EQ(world_.settings.text(section_, QStringLiteral("Left")), QStringLiteral("600"));
    EXPECT_EQ(world_.settings.text(section_, QStringLiteral("Height")), QStringLiteral("3000"));
    EXPECT_EQ(world_.settings.text(section_, QStringLiteral("Width")), QStringLiteral("4500"));
}

TEST_F(WidgetPlacementTest, saveAndRestore_bringTheWindowBackWhereItWas) {
    window_.move(40, 20);
    savePlacement(window_);
    QWidget again;
    again.setObjectName(QStringLiteral("frmTest"));
    restorePlacement(again);
    EXPECT_EQ(again.pos(), QPoint(40, 20));
    EXPECT_EQ(again.size(), QSize(300, 200));
}

TEST_F(WidgetPlacementTest, closedMaximized_opensMaximized) {
    window_.setWindowState(Qt::WindowMaximized);
    savePlacement(window_);
    QWidget again;
    again.setObjectName(QStringLiteral("frmTest"));
    restorePlacement(again);
    EXPECT_TRUE(again.windowState().testFlag(Qt::WindowMaximized));
}

TEST_F(WidgetPlacementTest, closedMinimized_opensMinimized) {
    window_.setWindowState(Qt::WindowMinimized);
    savePlacement(window_);
    QWidget again;
    again.setObjectName(QStringLiteral("frmTest"));
    restorePlacement(again);
    EXPECT_TRUE(again.windowState().testFlag(Qt::WindowMinimized));
}

TEST_F(WidgetPlacementTest, unknownWindowStateText_opensMinimized) {
    store("WindowState", "sideways");
    restorePlacement(window_);
    EXPECT_TRUE(window_.windowState().testFlag(Qt::WindowMinimized));
}

TEST_F(WidgetPlacementTest, normalText_bringsAMaximizedWindowBack) {
    window_.setWindowState(Qt::WindowMaximized);
    store("WindowState", "NORMAL");
    restorePlacement(window_);
    EXPECT_FALSE(window_.windowState().testFlag(Qt::WindowMaximized));
}

TEST_F(WidgetPlacementTest, storedOffEveryScreen_comesBackOntoOne) {
    for (const char* far : {"-900000", "900000"}) {
        store("WindowState", "NORMAL");
        store("Top", far);
        store("Left", far);
        restorePlacement(window_);
        EXPECT_TRUE(screen().contains(window_.geometry())) << far;
        EXPECT_EQ(window_.size(), QSize(300, 200)) << far;
    }
}

TEST_F(WidgetPlacementTest, storedWithTheTitleBarAboveTheScreen_comesBackWhereItCanBeDragged) {
    store("WindowState", "NORMAL");
    store("Top", "-1500");
    store("Left", "300");
    restorePlacement(window_);
    EXPECT_EQ(window_.y(), screen().top());
    EXPECT_EQ(window_.x(), 20);
}

TEST_F(WidgetPlacementTest, storedPartlyOffTheScreen_staysWhereItCanStillBeDragged) {
    window_.resize(400, 200);
    store("WindowState", "NORMAL");
    store("Left", "-3000"); // 200 pixels to the left
    store("Top", "300");
    restorePlacement(window_);
    EXPECT_EQ(window_.x(), -200);
}

TEST_F(WidgetPlacementTest, storedLargerThanTheScreen_fitsTheScreen) {
    store("WindowState", "NORMAL");
    store("Top", "0");
    store("Left", "0");
    store("Height", "9000000");
    store("Width", "9000000");
    restorePlacement(window_);
    EXPECT_EQ(window_.size(), screen().size());
}

TEST_F(WidgetPlacementTest, neverClosedAndDesignedWiderThanTheScreen_startsAtItsEdge) {
    window_.resize(screen().width() + 200, screen().height() / 2);
    restorePlacement(window_);
    EXPECT_EQ(window_.x(), screen().left());
    EXPECT_EQ(window_.width(), screen().width());
}

TEST_F(WidgetPlacementTest, enormousNumber_isNoCrash) {
    store("WindowState", "NORMAL");
    store("Top", "1e300");
    store("Left", "-1e300");
    restorePlacement(window_);
    EXPECT_TRUE(screen().intersects(window_.geometry()));
}

TEST_F(WidgetPlacementTest, valueThatIsNoNumber_isReportedUnderTheRoutinesLabel) {
    store("WindowState", "NORMAL");
    store("Top", "high");
    world_.prompts.expectError(QStringLiteral("Global.GetFormSettings"), 13, QStringLiteral("Type mismatch"));
    restorePlacement(window_);
}
