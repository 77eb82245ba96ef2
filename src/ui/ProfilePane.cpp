#include "ui/ProfilePane.h"

#include "core/Global.h"
#include "profiles/cProfile.h"
#include "ui/PaneParts.h"
#include "ui/ViewFrame.h"
#include "ui/widgets/ColorContrast.h"
#include "ui/widgets/TitleBand.h"

#include <QComboBox>
#include <QScopedValueRollback>
#include <QVBoxLayout>

namespace {

/// The menu entries of a person, and whether the new state offers them.
struct EntryState {
    const char* name;
    bool whenOpen;
    bool whenNew;
};

constexpr EntryState entryStates[] = {
    {"mnuProfilesSave", false, true},   {"mnuProfilesNew", true, false},
    {"mnuProfilesDelete", true, false}, {"mnuAdviceMoving", true, false},
    {"mnuAdviceNineKi", true, false},   {"mnuAdviceRenovations", true, false},
    {"mnuAdviceProfile", true, false},
};

cProfile& currentProfile() {
    if (Global::CurrentProfile == nullptr) {
        throw failure(ErrorNumber::ObjectNotSet);
    }
    return *Global::CurrentProfile;
}

} // namespace

ProfilePane::ProfilePane(ViewFrame& frame, QWidget* parent)
    : QWidget(parent)
    , frame_(frame)
    , cboProfileName(PaneParts::makeList(*this, QStringLiteral("cboProfileName"), tr("Profile"),
                                         QStringLiteral("Select a Profile from the List")))
    , profiles_(*cboProfileName) {
    setObjectName(QStringLiteral("vsMainProfile"));
    setAccessibleName(tr("Profile"));
    auto* column = new QVBoxLayout(this);
    vsTopProfile = PaneParts::addBand(*this, *column, QStringLiteral("vsTopProfile"),
                                      QStringLiteral(":/talivane/pictures/profiles.svg"));
    // The list is at work already; it gets its place on the pane together with the person's other fields.
    cboProfileName->hide();
    connect(cboProfileName, &QComboBox::currentIndexChanged, this, &ProfilePane::cboProfileName_Click);
}

void ProfilePane::setOpenState(bool open) {
    for (const EntryState& entry : entryStates) {
        frame_.setEntryEnabled(QString::fromLatin1(entry.name), open ? entry.whenOpen : entry.whenNew);
    }
}

void ProfilePane::NewProfile() {
    routine(u"frmView.New Profile", [this] {
        PreviousProfileID = currentProfile().PROFILEID;
        frame_.Mode = QStringLiteral("INSERT");
        frame_.pressButton(Pane::Profile);
        setOpenState(false);
        ClearScreenProfile();
    });
}

void ProfilePane::OpenProfile(const std::optional<QVariant>& ProfileID) {
    routine(u"frmView.Open Profile", [&] {
        frame_.Mode = QStringLiteral("UPDATE");
        setOpenState(true);
        ClearScreenProfile();
        if (!ProfileID) {
            if (profiles_.ListCount() > 0) {
                profiles_.setListIndex(0);
            } else {
                NewProfile();
            }
        } else if (!ProfileID->toString().isEmpty()) {
            if (currentProfile().GetProfile(*ProfileID)) {
                LoadScreenfromProfile();
            } else {
                NewProfile();
            }
        }
    });
}

void ProfilePane::ClearScreenProfile() {
    routine(u"frmView.ClearScreenProfile", [this] {
        const QScopedValueRollback loading(frame_.Loading, true);
        frame_.setPanel(Pane::Profile, QString());
        vsTopProfile->setCaption(QString());
        vsTopProfile->setAccent(std::nullopt);
        profiles_.setListIndex(-1);
        cboProfileName->clearEditText();
    });
}

void ProfilePane::LoadScreenfromProfile() {
    routine(u"frmView.LoadScreenfromProfile", [this] {
        const QScopedValueRollback loading(frame_.Loading, true);
        const cProfile& person = currentProfile();
        vsTopProfile->setCaption(QStringLiteral("  ") + captionText(person.PROFILENAME));
        vsTopProfile->setAccent(ColorContrast::fromStored(person.oColor.LIGHTCOLORVALUE));
        cboProfileName->setEditText(person.PROFILENAME);
    });
}

void ProfilePane::FillProfiles() {
    routine(u"frmView.FillProfiles", [this] {
        const auto& store = currentProfile().oXMLProfiles;
        if (store == nullptr) {
            throw failure(ErrorNumber::ObjectNotSet);
        }
        PaneParts::fillList(frame_, profiles_, *store, QStringLiteral("PROFILENAME"),
                            QStringLiteral("PROFILEID"));
    });
}

void ProfilePane::cboProfileName_Click() {
    routine(u"frmView.cboProfileName_Click", [this] {
        if (frame_.Filling || profiles_.ListIndex() < 0) {
            return;
        }
        cProfile& person = currentProfile();
        person.GetProfile(profiles_.ItemData(profiles_.ListIndex()));
        LoadScreenfromProfile();
        PaneParts::rememberLast(QStringLiteral("LastProfile"), person.PROFILEID);
        frame_.setPanel(Pane::Profile, person.PROFILENAME);
        frame_.setEntryEnabled(QStringLiteral("mnuProfilesSave"), false);
    });
}
