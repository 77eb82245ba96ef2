#include "compass/windows/frmSetDirection.h"

#include "support/TestWorld.h"
#include "support/WindowDriver.h"

TEST(frmSetDirectionTest, closedByItsFrame_countsAsACancel) {
    TestWorld world;
    frmSetDirection window;
    bool saved = true;
    WindowDriver::whileModal([&] { saved = window.SetDirection(); },
                             [](QWidget& shown) { EXPECT_EQ(shown.windowTitle(), u"Set Direction"); });
    EXPECT_FALSE(saved);
}
