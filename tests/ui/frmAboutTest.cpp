#include "ui/frmAbout.h"

#include "core/Global.h"
#include "core/VersionRecord.h"
#include "support/QtPrinting.h"
#include "support/TestWorld.h"
#include "support/WindowDriver.h"

#include <QLabel>
#include <QPushButton>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace WindowDriver;

namespace {

class frmAboutTest : public testing::Test {
protected:
    TestWorld world_;
    QWidget owner_;

    void show(const std::function<void(QWidget&)>& inside) {
        whileModal([this] { frmAbout(&owner_).ShowAbout(); }, inside);
    }
    static QString text(QWidget& window, const char* label) { return control<QLabel>(window, label).text(); }
};

} // namespace

TEST(VersionRecord, numbers_areThoseOfTheProject) {
    EXPECT_EQ(VersionRecord::majorNumber, 1);
    EXPECT_EQ(VersionRecord::minorNumber, 0);
    EXPECT_EQ(VersionRecord::revisionNumber, 2);
}

TEST(VersionRecord, texts_areThere) {
    EXPECT_EQ(VersionRecord::title, u"Talivane");
    EXPECT_EQ(Services().title, u"Talivane"_s);
    EXPECT_FALSE(VersionRecord::legalTrademarks.isEmpty());
    EXPECT_FALSE(VersionRecord::legalRights.isEmpty());
    EXPECT_FALSE(VersionRecord::comments.isEmpty());
}

TEST(VersionRecord, site_isAnAddressThatAPageCanFollow) {
    EXPECT_TRUE(VersionRecord::site.startsWith(u"http"));
    EXPECT_TRUE(VersionRecord::site.endsWith(u'/'));
    EXPECT_FALSE(VersionRecord::site.endsWith(u"//"));
}

TEST_F(frmAboutTest, ShowAbout_showsTheVersionRecord) {
    show([](QWidget& window) {
        EXPECT_EQ(window.objectName(), u"frmAbout"_s);
        EXPECT_TRUE(window.isModal());
        EXPECT_EQ(window.windowTitle(), u"About Talivane"_s);
        EXPECT_EQ(text(window, "lblTitle"), u"Talivane"_s);
        EXPECT_EQ(text(window, "lblVersion"), u"Version 1.0.2"_s);
        EXPECT_EQ(text(window, "lblDescription"),
                  VersionRecord::legalTrademarks.toString() + u'\n' + VersionRecord::legalRights.toString());
        EXPECT_EQ(text(window, "lblDisclaimer"), VersionRecord::comments.toString());
    });
}

TEST_F(frmAboutTest, cmdOK_closes) {
    show([](QWidget& window) {
        click(window, "cmdOK");
        EXPECT_FALSE(window.isVisible());
    });
}

TEST_F(frmAboutTest, enterAndEscape_close) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        show([&](QWidget& window) {
            press(window, key);
            EXPECT_FALSE(window.isVisible());
        });
    }
}

TEST_F(frmAboutTest, Image1_isDrawn) {
    show([](QWidget& window) {
        const QImage picture = control(window, "Image1").grab().toImage();
        EXPECT_NE(picture.pixelColor(picture.rect().center()), picture.pixelColor(0, 0));
    });
}

TEST_F(frmAboutTest, texts_standWholeInTheWindow) {
    show([](QWidget& window) {
        for (const char* name : {"lblTitle", "lblVersion", "lblDescription", "lblDisclaimer"}) {
            const auto& label = control<QLabel>(window, name);
            EXPECT_GE(label.height(), label.heightForWidth(label.width())) << name;
            EXPECT_TRUE(window.rect().contains(QRect(label.mapTo(&window, QPoint()), label.size()))) << name;
        }
        EXPECT_GT(control(window, "Line1").width(), 0);
    });
}

TEST_F(frmAboutTest, tab_visitsTheButtonAlone) {
    show([](QWidget& window) {
        expectNamedControls(window);
        EXPECT_EQ(tabOrder(window), std::vector<QWidget*>{&control(window, "cmdOK")});
        EXPECT_EQ(window.focusWidget(), &control(window, "cmdOK"));
    });
}

TEST_F(frmAboutTest, placement_comesBack) {
    show([](QWidget& window) { window.move(37, 23); });
    EXPECT_EQ(world_.settings.text(Global::settingsSection(u"frmAbout"_s), u"WindowState"_s), u"NORMAL"_s);
    show([](QWidget& window) { EXPECT_EQ(window.pos(), QPoint(37, 23)); });
}

TEST_F(frmAboutTest, ShowAbout_badPlacement_isReportedAndTheBoxShowsAllTheSame) {
    world_.settings.setText(Global::settingsSection(u"frmAbout"_s), u"Top"_s, u"high"_s);
    world_.prompts.expectError(u"Global.GetFormSettings"_s, 13, u"Type mismatch"_s);
    show([](QWidget& window) { EXPECT_EQ(text(window, "lblVersion"), u"Version 1.0.2"_s); });
}
