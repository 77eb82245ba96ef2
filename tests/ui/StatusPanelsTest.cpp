#include "ui/StatusPanels.h"

#include "support/QtPrinting.h"
#include "support/TestWorld.h"
#include "ui/widgets/ElidedLabel.h"

#include <QTime>
#include <gtest/gtest.h>

namespace {

class StatusPanelsTest : public testing::Test {
protected:
    TestWorld world_;
    StatusPanels panels_;
};

} // namespace

TEST_F(StatusPanelsTest, panels_standInTheirOrder) {
    QStringList keys;
    for (const ElidedLabel* panel : panels_.findChildren<ElidedLabel*>()) {
        keys << panel->objectName();
        EXPECT_FALSE(panel->accessibleName().isEmpty());
    }
    EXPECT_EQ(keys,
              (QStringList{QStringLiteral("Help"), QStringLiteral("Profile"), QStringLiteral("Location"),
                           QStringLiteral("Date"), QStringLiteral("Time")}));
}

TEST_F(StatusPanelsTest, dateAndTime_areTheClocksOwnInRegionalForm) {
    panels_.show();
    EXPECT_EQ(panels_.panel(QStringLiteral("Date")), QStringLiteral("2/14/2026"));
    EXPECT_EQ(panels_.panel(QStringLiteral("Time")), QStringLiteral("9:30 AM"));
}

TEST_F(StatusPanelsTest, time_hasNoSecondsInAnyLocale) {
    for (const char* name : {"en_US", "en_GB", "de_DE", "sv_SE", "fr_FR", "zh_CN", "C"}) {
        world_.setLocale(QLocale(QString::fromLatin1(name)));
        StatusPanels panels;
        panels.show();
        EXPECT_EQ(panels.panel(QStringLiteral("Time")).count(u':'), 1) << name;
    }
}

TEST_F(StatusPanelsTest, setPanel_showsAmpersandsAsTheyAre) {
    panels_.setPanel(QStringLiteral("Profile"), QStringLiteral("Smith & Sons"));
    EXPECT_EQ(panels_.panel(QStringLiteral("Profile")), QStringLiteral("Smith & Sons"));
}

TEST_F(StatusPanelsTest, setPanel_longName_isCutAndDoesNotWidenTheWindow) {
    panels_.resize(900, panels_.sizeHint().height());
    panels_.setPanel(QStringLiteral("Profile"), QStringLiteral("A very long name ").repeated(40));
    panels_.show();
    EXPECT_LE(panels_.minimumSizeHint().width(), 900);
    EXPECT_TRUE(
        panels_.findChild<ElidedLabel*>(QStringLiteral("Profile"))->shownText().endsWith(QChar(0x2026)));
}

TEST_F(StatusPanelsTest, setPanel_unknownKey_isPassedOver) {
    panels_.setPanel(QStringLiteral("Weather"), QStringLiteral("fair"));
    EXPECT_EQ(panels_.panel(QStringLiteral("Weather")), QString());
}
