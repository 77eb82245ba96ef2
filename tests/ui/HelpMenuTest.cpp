#include "core/Global.h"
#include "core/VersionRecord.h"
#include "support/QtPrinting.h"
#include "support/TestWorld.h"
#include "support/WindowDriver.h"
#include "ui/frmView.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace WindowDriver;

namespace {

/// A browser that breaks.
class BrokenBrowser final : public Browser {
public:
    qint32 calls = 0;

    bool open(const QString& /*address*/) override {
        ++calls;
        throw failure(ErrorNumber::DeviceError);
    }
};

/// The Help menu of the main window; no record needs to be there.
class HelpMenuTest : public testing::Test {
protected:
    TestWorld world_;
    frmView view_;
    const QString site_ = VersionRecord::site.toString();
    const QString unable_ = u"Unable to open your browser and connect to the site.  Please connect to the "
                            "internet and navigate to "_s;

    void SetUp() override { view_.show(); }
};

} // namespace

TEST_F(HelpMenuTest, mnuHelpFaqs_opensItsPage) {
    choose(view_, "mnuHelp", "mnuHelpFaqs");
    EXPECT_EQ(world_.browser.opened, QStringList{site_ + u"faq.html"_s});
}

TEST_F(HelpMenuTest, mnuHelpSupport_opensItsPage) {
    choose(view_, "mnuHelp", "mnuHelpSupport");
    EXPECT_EQ(world_.browser.opened, QStringList{site_ + u"contact.html"_s});
}

TEST_F(HelpMenuTest, mnuHelpFaqs_withoutABrowser_namesTheAddress) {
    world_.browser.associated = false;
    world_.prompts.expectMessage(u"Frequently Asked Questions"_s, unable_ + site_ + u"faq.html"_s,
                                 MessageIcon::Information);
    choose(view_, "mnuHelp", "mnuHelpFaqs");
    EXPECT_TRUE(world_.prompts.isSatisfied());
    EXPECT_EQ(world_.browser.opened.size(), 1);
}

TEST_F(HelpMenuTest, mnuHelpSupport_withoutABrowser_namesTheAddress) {
    world_.browser.associated = false;
    world_.prompts.expectMessage(u"Support"_s, unable_ + site_ + u"contact.html"_s, MessageIcon::Information);
    choose(view_, "mnuHelp", "mnuHelpSupport");
    EXPECT_TRUE(world_.prompts.isSatisfied());
}

TEST_F(HelpMenuTest, links_anyOtherFailure_isPassedOverInSilence) {
    BrokenBrowser broken;
    Services services = Global::services();
    services.browser = &broken;
    Global::use(services);
    choose(view_, "mnuHelp", "mnuHelpFaqs");
    choose(view_, "mnuHelp", "mnuHelpSupport");
    EXPECT_EQ(broken.calls, 2);
}

TEST_F(HelpMenuTest, mnuAbout_opensTheAboutBoxOverTheMainWindow) {
    whileModal([this] { choose(view_, "mnuHelp", "mnuAbout"); },
               [this](QWidget& window) {
                   EXPECT_EQ(window.objectName(), u"frmAbout"_s);
                   EXPECT_EQ(window.parentWidget(), &view_);
               });
    EXPECT_TRUE(view_.isVisible());
}
