#include "support/WindowDriver.h"

#include <QPushButton>
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

namespace {

class WindowDriverTest : public testing::Test {
protected:
    QWidget window_;

    QPushButton* button(const char* name, int x, int y) {
        auto* made = new QPushButton(&window_);
        made->setObjectName(QString::fromLatin1(name));
        made->setAccessibleName(QString::fromLatin1(name));
        made->setGeometry(x, y, 60, 20);
        return made;
    }
};

} // namespace

TEST_F(WindowDriverTest, control_missing_throws) {
    EXPECT_THROW(WindowDriver::control(window_, "cmdMissing"), std::runtime_error);
}

TEST_F(WindowDriverTest, click_pressesTheButtonButNotADisabledOne) {
    auto* ok = button("cmdOK", 10, 10);
    int clicks = 0;
    QObject::connect(ok, &QPushButton::clicked, ok, [&] { ++clicks; });
    window_.show();
    WindowDriver::click(window_, "cmdOK");
    ok->setEnabled(false);
    WindowDriver::click(window_, "cmdOK");
    EXPECT_EQ(clicks, 1);
}

TEST_F(WindowDriverTest, expectReadingOrder_failsForControlsOutOfOrder) {
    button("cmdSecond", 100, 10);
    button("cmdFirst", 10, 10);
    window_.show();
    static QWidget* shown = nullptr;
    shown = &window_;
    EXPECT_NONFATAL_FAILURE(WindowDriver::expectReadingOrder(*shown), "cmdSecond comes before cmdFirst");
}

TEST_F(WindowDriverTest, expectNamedControls_failsForAControlWithoutAccessibleName) {
    button("cmdNameless", 10, 10)->setAccessibleName(QString());
    window_.show();
    static QWidget* shown = nullptr;
    shown = &window_;
    EXPECT_NONFATAL_FAILURE(WindowDriver::expectNamedControls(*shown), "cmdNameless");
}

TEST_F(WindowDriverTest, whileModal_failsWhenNoWindowComes) {
    EXPECT_NONFATAL_FAILURE(WindowDriver::whileModal([] { QApplication::processEvents(); }, [](QWidget&) {}),
                            "no modal window");
}
