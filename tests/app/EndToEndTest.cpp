#include "app/XServerFixture.h"

using namespace Qt::StringLiterals;

class EndToEndTest : public XServerTest {};

TEST_F(EndToEndTest, adviceOnRooms_isShownClosedAndTheProgramEndsWell) {
    moveInTheSampleHousehold();
    start();
    press({u"alt+a"_s, u"r"_s});
    focusWindow(u"Print Preview"_s);
    press({u"Escape"_s});
    leaveWindow(u"Print Preview"_s, u"Feng Shui"_s);
    quit();

    for (const auto& window : {u"frmView"_s, u"frmPrintPreview"_s}) {
        EXPECT_EQ(setting(window + u"/WindowState"_s).toStdString(), "NORMAL") << qPrintable(window);
    }
}
