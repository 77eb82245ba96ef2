#include "profiles/windows/BrowserWorld.h"
#include "support/HostileNames.h"

#include <QXmlStreamReader>

using namespace WindowDriver;

namespace {

/// A household whose first person bears a name that a careless program breaks on.
class ReportedNames : public BrowserWorld, public testing::WithParamInterface<HostileName> {
protected:
    void SetUp() override {
        BrowserWorld::SetUp();
        cProfile& person = *Global::CurrentProfile;
        person.GetProfile(1);
        person.PROFILENAME = GetParam().name;
        ASSERT_TRUE(person.UpdateProfile());
    }

    /// The words of all elements of a kind on a saved page, a line end for each break.
    static QStringList elements(const QByteArray& html, QStringView kind) {
        QStringList found;
        QXmlStreamReader reader(html);
        bool inside = false;
        while (!reader.atEnd()) {
            reader.readNext();
            if (reader.isStartElement() && reader.name() == kind) {
                inside = true;
                found << QString();
            } else if (reader.isEndElement() && reader.name() == kind) {
                inside = false;
            } else if (inside && reader.isStartElement() && reader.name() == u"br") {
                found.back() += u'\n';
            } else if (inside && reader.isCharacters()) {
                found.back() += reader.text();
            }
        }
        EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
        return found;
    }
};

INSTANTIATE_TEST_SUITE_P(Hostile, ReportedNames, testing::ValuesIn(hostileNames),
                         [](const auto& tested) { return tested.param.kind; });

} // namespace

TEST_P(ReportedNames, inListBandAndSavedReport_areWhole) {
    expectSaveBox(world_.file(QStringLiteral("name.html")));
    showProfiles([](QWidget& window) {
        EXPECT_EQ(control<QComboBox>(window, "cboProfiles").currentText(), GetParam().name);
        EXPECT_EQ(title(window).replace(QStringLiteral("&&"), QStringLiteral("&")), GetParam().name);
        choose(window, "mnuFile", "mnuFileSaveAs");
    });
    QString expected = GetParam().name;
    expected.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    const QByteArray html = world_.read(QStringLiteral("name.html"));
    EXPECT_EQ(elements(html, u"h1"), QStringList{expected});
    EXPECT_EQ(elements(html, u"h2").value(0), QStringLiteral("Profile for a South person"));
}
