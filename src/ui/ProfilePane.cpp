#include "ui/ProfilePane.h"

#include "core/Conversion.h"
#include "core/Global.h"
#include "core/windows/frmCalendar.h"
#include "profiles/cProfile.h"
#include "store/RecordStore.h"
#include "ui/CurrentPerson.h"
#include "ui/PaneParts.h"
#include "ui/PictureList.h"
#include "ui/ProfilePanels.h"
#include "ui/ViewFrame.h"
#include "ui/widgets/CaptionLabel.h"
#include "ui/widgets/ColorContrast.h"
#include "ui/widgets/RecordList.h"
#include "ui/widgets/TitleBand.h"

#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

ProfilePane::ProfilePane(ViewFrame& frame, QWidget* parent)
    : QWidget(parent)
    , frame_(frame)
    , ui_(*this)
    , profiles_(*ui_.cboProfileName)
    , calendar_(frmCalendar::over(this)) {
    setObjectName(u"vsMainProfile"_s);
    setAccessibleName(tr("Profile"));
    setFocusProxy(ui_.cboProfileName);
    connectControls();
}

void ProfilePane::connectControls() {
    connect(ui_.cboProfileName, &RecordList::chosen, this, &ProfilePane::cboProfileName_Click);
    connect(ui_.cboProfileName, &RecordList::textTyped, this, &ProfilePane::cboProfileName_Change);
    connect(ui_.cboProfileName, &RecordList::dropDown, this, &ProfilePane::cboProfileName_DropDown);
    connect(ui_.txtProfileName, &QLineEdit::textChanged, this, &ProfilePane::txtProfileName_Change);
    connect(ui_.txtBirthDate, &QLineEdit::textChanged, this, &ProfilePane::txtBirthDate_Change);
    connect(ui_.txtBirthDate, &QLineEdit::returnPressed, ui_.cmdCalcProfile, &QPushButton::click);
    connect(ui_.txt9Ki, &QLineEdit::textChanged, this, &ProfilePane::txt9Ki_Change);
    connect(ui_.cmdDate, &QPushButton::clicked, this, &ProfilePane::cmdDate_Click);
    connect(ui_.cmdCalcProfile, &QPushButton::clicked, this, &ProfilePane::cmdCalcProfile_Click);
    connect(ui_.cmdNewProfile, &QPushButton::clicked, this, &ProfilePane::cmdNewProfile_Click);
    connect(ui_.cmdSaveProfile, &QPushButton::clicked, this, &ProfilePane::cmdSaveProfile_Click);
    connect(ui_.cmdDelProfile, &QPushButton::clicked, this, &ProfilePane::cmdDelProfile_Click);
    connect(ui_.optFemale, &QRadioButton::toggled, this, [this](bool on) {
        if (on) {
            optFemale_Click();
        }
    });
    connect(ui_.optMale, &QRadioButton::toggled, this, [this](bool on) {
        if (on) {
            optMale_Click();
        }
    });
    frame_.connectEntry(u"mnuProfilesNew"_s, [this] { mnuProfilesNew_Click(); });
    frame_.connectEntry(u"mnuProfilesSave"_s, [this] { mnuProfilesSave_Click(); });
    frame_.connectEntry(u"mnuProfilesDelete"_s, [this] { mnuProfilesDelete_Click(); });
    // Deliberately without an effect: the button is the one way to a calculation.
    frame_.connectEntry(u"mnuProfilesCalcKUA"_s, [] {});
}

void ProfilePane::enableSave(bool enabled) {
    if (!enabled && ui_.cmdSaveProfile->hasFocus()) {
        ui_.cboProfileName->setFocus(); // else the focus would go on to the button that deletes
    }
    ui_.cmdSaveProfile->setEnabled(enabled);
    frame_.setEntryEnabled(u"mnuProfilesSave"_s, enabled);
}

void ProfilePane::setOpenState(bool open) {
    const bool wasNew = !ui_.txtProfileName->isHidden();
    ui_.txtProfileName->setVisible(!open);
    ui_.cboProfileName->setVisible(open);
    enableSave(!open);
    ui_.cmdNewProfile->setEnabled(open);
    ui_.cmdNewProfile->setVisible(open);
    for (const QString& entry : {u"mnuProfilesNew"_s, u"mnuAdviceMoving"_s, u"mnuAdviceNineKi"_s,
                                 u"mnuAdviceRenovations"_s, u"mnuAdviceProfile"_s}) {
        frame_.setEntryEnabled(entry, open);
    }
    ui_.cmdDelProfile->setText(open ? u"&Delete"_s : u"Cancel"_s);
    ui_.cmdDelProfile->setAccessibleName(open ? u"Delete"_s : u"Cancel"_s);
    ui_.cmdDelProfile->setToolTip(open ? u"Click Delete to delete this Profile"_s
                                       : u"Click Cancel to abandon the New Profile"_s);
    frame_.setEntryEnabled(u"mnuProfilesDelete"_s, open);
    if (open && wasNew) {
        ui_.cboProfileName->setFocus();
    }
}

void ProfilePane::NewProfile() {
    routine(u"frmView.New Profile", [this] {
        PreviousProfileID = currentPerson().PROFILEID;
        frame_.Mode = u"INSERT"_s;
        frame_.pressButton(Pane::Profile);
        setOpenState(false);
        ClearScreenProfile();
        ui_.txtProfileName->setFocus();
    });
}

void ProfilePane::OpenProfile(const std::optional<QVariant>& ProfileID) {
    routine(u"frmView.Open Profile", [&] {
        frame_.Mode = u"UPDATE"_s;
        setOpenState(true);
        ClearScreenProfile();
        if (!ProfileID) {
            if (profiles_.ListCount() > 0) {
                profiles_.setListIndex(0);
            } else {
                NewProfile();
            }
        } else if (!ProfileID->toString().isEmpty()) {
            if (currentPerson().GetProfile(*ProfileID)) {
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
        ui_.vsTopProfile->setCaption(QString());
        ui_.setAccent(std::nullopt);
        profiles_.setListIndex(-1);
        ui_.cboProfileName->clearEditText();
        ui_.txtProfileName->clear();
        ui_.txtBirthDate->clear();
        ui_.txt9Ki->clear();
        ui_.lblAdjBirthYear->setCaption(QString());
        for (const QStringView name : ProfilePanels::blanked) {
            PicturePanel& panel = ui_.panel(name);
            panel.setCaption(QString(), QString());
            panel.setPicture(QIcon());
        }
        ui_.lblSummary().setCaption(QString());
        ui_.showGender(false, false);
    });
}

void ProfilePane::LoadScreenfromProfile() {
    routine(u"frmView.LoadScreenfromProfile", [this] {
        const QScopedValueRollback loading(frame_.Loading, true);
        const cProfile& person = currentPerson();
        ui_.vsTopProfile->setCaption(u"  "_s + captionText(person.PROFILENAME));
        ui_.setAccent(ColorContrast::fromStored(person.oColor.LIGHTCOLORVALUE));
        ui_.cboProfileName->setEditText(person.PROFILENAME);
        ui_.txtProfileName->setText(person.PROFILENAME);
        ui_.txtBirthDate->setText(Conversion::shortDate(person.BIRTHDATE));
        ui_.txt9Ki->setText(QString::number(person.KUANUMBER));
        ui_.lblAdjBirthYear->setCaption(u"Adjusted Birth Year "_s + QString::number(person.ADJBIRTHYEAR));
        for (const ProfilePanels::Row& row : ProfilePanels::rows) {
            showPanel(row, person);
        }
        ui_.lblSummary().setCaption(ProfilePanels::summary(person));
        const bool female = person.GENDER == u"F";
        ui_.showGender(female, !female);
    });
}

void ProfilePane::showPanel(const ProfilePanels::Row& row, const cProfile& person) {
    const QString value = row.value(person).trimmed();
    PicturePanel& panel = ui_.panel(row.panel);
    if (value.isEmpty()) {
        panel.setCaption(QString(), QString());
        panel.setPicture(QIcon());
    } else {
        panel.setCaption(row.leadIn.toString(), captionText(value));
        panel.setPicture(ui_.pictures(row.list).picture(value));
    }
    if (row.panel == ProfilePanels::elementPanel) {
        ui_.lblElementDescription().setCaption(ProfilePanels::elementDescription(person.oElement));
    }
}

void ProfilePane::LoadProfileFromScreen() {
    routine(u"frmView.LoadProfileFromScreen", [this] {
        cProfile& person = currentPerson();
        person.PROFILENAME =
            ui_.cboProfileName->isHidden() ? ui_.txtProfileName->text() : ui_.cboProfileName->currentText();
        person.BIRTHDATE = Conversion::shortDate(QVariant(ui_.txtBirthDate->text()));
        person.ADJBIRTHYEAR = Global::CalculateAdjustedYear(person.BIRTHDATE);
        person.KUANUMBER = Conversion::toLong(ui_.txt9Ki->text());
        person.GENDER = ui_.optFemale->isChecked() ? u"F"_s : u"M"_s;
    });
}

void ProfilePane::FillProfiles() {
    routine(u"frmView.FillProfiles", [this] {
        PaneParts::fillList(frame_, profiles_, RecordStore::opened(currentPerson().oXMLProfiles),
                            u"PROFILENAME"_s, u"PROFILEID"_s);
    });
}
