#include "core/FormPlacement.h"
#include "core/Global.h"
#include "support/QtPrinting.h"
#include "support/TestWorld.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString SECTION = u"SOFTWARE\\Orvenel\\Talivane\\frmView"_s;

/// A window that notes what is set, in order, and can refuse one of it.
class NotedForm final : public FormPlacement {
public:
    QStringList steps;
    QString refused;
    FormState state = FormState::Normal;
    double top = 100;
    double left = 200;
    double height = 300.5;
    double width = 400;

    [[nodiscard]] QString Name() const override { return u"frmView"_s; }
    [[nodiscard]] FormState WindowState() const override { return state; }
    void setWindowState(FormState value) override {
        note(u"WindowState %1"_s.arg(static_cast<int>(value)));
        state = value;
    }
    [[nodiscard]] double Top() const override { return top; }
    void setTop(double twips) override { set(top, u"Top"_s, twips); }
    [[nodiscard]] double Left() const override { return left; }
    void setLeft(double twips) override { set(left, u"Left"_s, twips); }
    [[nodiscard]] double Height() const override { return height; }
    void setHeight(double twips) override { set(height, u"Height"_s, twips); }
    [[nodiscard]] double Width() const override { return width; }
    void setWidth(double twips) override { set(width, u"Width"_s, twips); }

private:
    void note(const QString& step) {
        if (!refused.isEmpty() && step.startsWith(refused)) {
            throw Failure{380, u"Invalid property value"_s};
        }
        steps << step;
    }
    void set(double& field, const QString& name, double twips) {
        note(name + u' ' + QString::number(twips));
        field = twips;
    }
};

} // namespace

class FormSettingsTest : public testing::Test {
protected:
    void store(const QString& name, const QString& text) { world_.settings.setText(SECTION, name, text); }
    void storePlacement(const QString& state) {
        store(u"WindowState"_s, state);
        store(u"Top"_s, u"1"_s);
        store(u"Left"_s, u"-2"_s);
        store(u"Height"_s, u"3.5"_s);
        store(u"Width"_s, u"4"_s);
    }

    TestWorld world_;
    NotedForm form_;
};

TEST_F(FormSettingsTest, GetFormSettings_windowNeverClosed_opensWhereItsDesignPutsIt) {
    Global::GetFormSettings(form_);
    EXPECT_EQ(form_.steps, (QStringList{u"WindowState 0"_s, u"Top 100"_s, u"Left 200"_s, u"Height 300.5"_s,
                                        u"Width 400"_s}));
    EXPECT_TRUE(world_.settings.isEmpty());
}

TEST_F(FormSettingsTest, GetFormSettings_storedPlacement_isSetInOrder) {
    storePlacement(u"NORMAL"_s);
    Global::GetFormSettings(form_);
    EXPECT_EQ(form_.steps,
              (QStringList{u"WindowState 0"_s, u"Top 1"_s, u"Left -2"_s, u"Height 3.5"_s, u"Width 4"_s}));
}

TEST_F(FormSettingsTest, GetFormSettings_partlyStored_keepsTheFormsOwnForTheRest) {
    store(u"Height"_s, u"3"_s);
    Global::GetFormSettings(form_);
    EXPECT_EQ(form_.steps,
              (QStringList{u"WindowState 0"_s, u"Top 100"_s, u"Left 200"_s, u"Height 3"_s, u"Width 400"_s}));
}

TEST_F(FormSettingsTest, GetFormSettings_maximizedOrUnknownText_setsTheStateAlone) {
    const std::vector<std::pair<QString, QString>> states = {
        {u"MAXIMIZED"_s, u"WindowState 2"_s},    {u"MINIMIZED"_s, u"WindowState 1"_s},
        {u"normal"_s, u"WindowState 1"_s},       {u"maximized"_s, u"WindowState 1"_s},
        {u"gone fishing"_s, u"WindowState 1"_s}, {QString(), u"WindowState 1"_s}};
    for (const auto& [text, step] : states) {
        NotedForm form;
        storePlacement(text);
        Global::GetFormSettings(form);
        EXPECT_EQ(form.steps, QStringList{step}) << qPrintable(text);
    }
}

TEST_F(FormSettingsTest, GetFormSettings_placementThatIsNoNumber_isReportedAndStopsThere) {
    storePlacement(u"NORMAL"_s);
    store(u"Left"_s, u"abc"_s);
    world_.prompts.expectError(u"Global.GetFormSettings"_s, 13, u"Type mismatch"_s);
    Global::GetFormSettings(form_);
    EXPECT_EQ(form_.steps, (QStringList{u"WindowState 0"_s, u"Top 1"_s}));
}

TEST_F(FormSettingsTest, GetFormSettings_emptyPlacement_isReported) {
    storePlacement(u"NORMAL"_s);
    store(u"Top"_s, QString());
    world_.prompts.expectError(u"Global.GetFormSettings"_s, 13, u"Type mismatch"_s);
    Global::GetFormSettings(form_);
    EXPECT_EQ(form_.steps, QStringList{u"WindowState 0"_s});
}

TEST_F(FormSettingsTest, GetFormSettings_valueThatTheFormRefuses_isReportedWithItsNumber) {
    storePlacement(u"NORMAL"_s);
    form_.refused = u"Height"_s;
    world_.prompts.expectError(u"Global.GetFormSettings"_s, 380, u"Invalid property value"_s);
    Global::GetFormSettings(form_);
    EXPECT_EQ(form_.steps, (QStringList{u"WindowState 0"_s, u"Top 1"_s, u"Left -2"_s}));
}

TEST_F(FormSettingsTest, SaveFormSettings_everyState_writesStateAndPlacementInOrder) {
    const std::vector<std::pair<FormState, QString>> states = {{FormState::Normal, u"NORMAL"_s},
                                                               {FormState::Maximized, u"MAXIMIZED"_s},
                                                               {FormState::Minimized, u"MINIMIZED"_s},
                                                               {static_cast<FormState>(7), u"MINIMIZED"_s}};
    for (const auto& [state, text] : states) {
        const qsizetype before = world_.settings.writes().size();
        form_.state = state;
        Global::SaveFormSettings(form_);
        const QString key = SECTION + u'|';
        EXPECT_EQ(world_.settings.writes().mid(before),
                  (QList<QString>{key + u"WindowState="_s + text, key + u"Top=100"_s, key + u"Left=200"_s,
                                  key + u"Height=300.5"_s, key + u"Width=400"_s}));
    }
}

TEST_F(FormSettingsTest, SaveFormSettings_windowClosedMaximized_opensMaximized) {
    form_.state = FormState::Maximized;
    Global::SaveFormSettings(form_);
    NotedForm next;
    Global::GetFormSettings(next);
    EXPECT_EQ(next.state, FormState::Maximized);
    EXPECT_EQ(next.steps.size(), 1);
}

TEST_F(FormSettingsTest, SaveFormSettings_otherDecimalSeparator_readsItsOwnNumbersBack) {
    world_.setLocale(QLocale(u"de_DE"_s));
    Global::SaveFormSettings(form_);
    EXPECT_EQ(world_.settings.text(SECTION, u"Height"_s), u"300,5"_s);
    NotedForm next;
    next.height = 1;
    Global::GetFormSettings(next);
    EXPECT_EQ(next.height, 300.5);
}

TEST_F(FormSettingsTest, SaveFormSettings_storeThatRefuses_reportsNothing) {
    world_.settings.refuseWrites(true);
    Global::SaveFormSettings(form_);
    EXPECT_TRUE(world_.settings.isEmpty());
}
