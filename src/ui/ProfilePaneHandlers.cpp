// What the controls and menu entries of the profile pane do; the pane's states and its filling stand in
// ProfilePane.cpp.

#include "core/Conversion.h"
#include "core/Global.h"
#include "core/windows/DateField.h"
#include "ui/CurrentPerson.h"
#include "ui/PaneParts.h"
#include "ui/ProfilePane.h"
#include "ui/ViewFrame.h"
#include "ui/widgets/RecordList.h"

#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

using namespace Qt::StringLiterals;

using PaneParts::inform;

// Changes.

void ProfilePane::markChanged(QStringView label, bool writing) {
    routine(label, [&] {
        if (!writing) {
            currentPerson().IsDirty = true;
            enableSave(true);
        }
    });
}

void ProfilePane::txtProfileName_Change() {
    markChanged(u"frmView.txtProfileName_Change", frame_.Loading);
}

void ProfilePane::txtBirthDate_Change() {
    markChanged(u"frmView.txtBirthDate_Change", frame_.Loading);
}

void ProfilePane::txt9Ki_Change() {
    markChanged(u"frmView.txt9Ki_Change", frame_.Loading);
}

void ProfilePane::optFemale_Click() {
    markChanged(u"frmView.optFemale_Click", frame_.Loading);
}

void ProfilePane::optMale_Click() {
    markChanged(u"frmView.optMale_Click", frame_.Loading);
}

void ProfilePane::cboProfileName_Change() {
    markChanged(u"frmView.cboProfileName_Change", frame_.Loading || frame_.Filling);
}

// The list.

void ProfilePane::rememberShown() {
    PaneParts::rememberLast(u"LastProfile"_s, currentPerson().PROFILEID);
    frame_.setPanel(Pane::Profile, currentPerson().PROFILENAME);
}

void ProfilePane::cboProfileName_Click() {
    routine(u"frmView.cboProfileName_Click", [this] {
        if (frame_.Filling || profiles_.ListIndex() < 0) {
            return;
        }
        currentPerson().GetProfile(profiles_.ItemData(profiles_.ListIndex()));
        LoadScreenfromProfile();
        rememberShown();
        enableSave(false);
    });
}

bool ProfilePane::askToSave(const QString& title) {
    if (!currentPerson().IsDirty) {
        return true;
    }
    const bool yes =
        PaneParts::ask(title, u"Would you like to save the changes to this profile before proceeding?"_s);
    if (yes) {
        mnuProfilesSave_Click();
    }
    return yes;
}

void ProfilePane::cboProfileName_DropDown() {
    routine(u"frmView.cboProfileName_DropDown", [this] {
        if (!askToSave(u"Select Profile"_s)) {
            LoadScreenfromProfile();
            currentPerson().IsDirty = false;
            enableSave(false);
        }
    });
}

// Calculation.

void ProfilePane::cmdDate_Click() {
    routine(u"frmView.cmdDate_Click", [this] {
        const QString before = ui_.txtBirthDate->text();
        ui_.txtBirthDate->setText(DateField::pick(calendar_, *ui_.txtBirthDate));
        if (ui_.txtBirthDate->text() == before) {
            txtBirthDate_Change(); // the write counts as a change also where it writes the same date
        }
    });
}

void ProfilePane::cmdCalcProfile_Click() {
    routine(u"frmView.cmdCalcProfile_Click", [this] {
        const QString title = u"Calculate KUA Number"_s;
        cProfile& person = currentPerson();
        person.PROFILENAME =
            frame_.Mode == u"INSERT" ? ui_.txtProfileName->text() : ui_.cboProfileName->currentText();
        const QVariant birthDate = ui_.txtBirthDate->text();
        if (!Conversion::isDate(birthDate)) {
            inform(
                title,
                u"You must enter a valid date in the Birthdate field before calculating the KUA number."_s);
            ui_.txtBirthDate->setFocus();
            return;
        }
        if (!ui_.optFemale->isChecked() && !ui_.optMale->isChecked()) {
            inform(title,
                   u"You must select a gender of either Female or Male before calculating the KUA number."_s);
            ui_.optFemale->setFocus();
            return;
        }
        person.GENDER = ui_.optFemale->isChecked() ? u"F"_s : u"M"_s;
        person.BIRTHDATE = Conversion::toDate(birthDate);
        QString problem;
        if (!person.CalculateKUA(problem, person.BIRTHDATE, person.GENDER)) {
            PaneParts::warn(title,
                            u"An Error occured while trying to calculate the KUA number. \r\n"_s + problem);
            return;
        }
        person.IsDirty = true;
        enableSave(true);
        LoadScreenfromProfile();
    });
}

// New, Save, Delete.

void ProfilePane::mnuProfilesNew_Click() {
    routine(u"frmView.mnuProfilesNew_Click", [this] {
        static_cast<void>(askToSave(u"New Profile"_s)); // on No the changes are dropped
        NewProfile();
    });
}

bool ProfilePane::hasAcceptableNumber() {
    constexpr double lowest = 1;
    constexpr double highest = 9;
    const QString title = u"Save Profile"_s;
    const QString advice =
        u" entered.  Click Calculate to generate your 9 Ki number based on your birthdate, or, if you know the number type it in the space provided."_s;
    const QString number = ui_.txt9Ki->text();
    if (number.isEmpty()) {
        inform(title, u"Before you can save your profile, you must have your 9-Ki number"_s + advice);
        return false;
    }
    // A text that is no number fails at its conversion, after the fields before it have been taken over.
    if (Conversion::isNumeric(number) &&
        (Conversion::toDouble(number) > highest || Conversion::toDouble(number) < lowest)) {
        inform(
            title,
            u"Before you can save your profile, you must have a 9-Ki number with a value between 1 and 9"_s +
                advice);
        return false;
    }
    return true;
}

void ProfilePane::mnuProfilesSave_Click() {
    routine(u"frmView.Save Profile", [this] {
        if (!hasAcceptableNumber()) {
            return;
        }
        LoadProfileFromScreen();
        if (frame_.Mode == u"INSERT") {
            insertShown();
        } else if (frame_.Mode == u"UPDATE") {
            updateShown();
        }
        setOpenState(true);
    });
}

void ProfilePane::insertShown() {
    currentPerson().InsertProfile();
    LoadScreenfromProfile();
    rememberShown();
    FillProfiles();
    frame_.Mode = u"UPDATE"_s;
    OpenProfile(currentPerson().PROFILEID);
}

void ProfilePane::updateShown() {
    currentPerson().UpdateProfile();
    FillProfiles();
    LoadScreenfromProfile();
    frame_.setPanel(Pane::Profile, currentPerson().PROFILENAME);
}

void ProfilePane::mnuProfilesDelete_Click() {
    routine(u"frmView.cmdDelProfile_Click", [this] {
        if (ui_.cmdDelProfile->text() == u"Cancel") {
            cancelNew();
        } else {
            deleteShown();
        }
    });
}

void ProfilePane::cancelNew() {
    // `Mode` stays as it is: the next save of the person who comes back stores a copy.
    setOpenState(true);
    Global::FindInData(profiles_, QString::number(PreviousProfileID), 0, 0);
}

void ProfilePane::deleteShown() {
    const QString title = u"Delete Profile"_s;
    const QString question =
        u"Are you sure that you want to delete profile: "_s + currentPerson().PROFILENAME + u"?"_s;
    if (!PaneParts::ask(title, question)) {
        return;
    }
    if (currentPerson().DeleteProfile()) {
        PaneParts::rememberLast(u"LastProfile"_s, QString());
        frame_.setPanel(Pane::Profile, QString());
    } else {
        inform(title,
               u"There was an error while attempting to delete this profile, profile was not deleted."_s);
    }
    frame_.Mode = u"UPDATE"_s;
    FillProfiles();
    OpenProfile();
}

// Buttons that do what a menu entry does.

void ProfilePane::cmdNewProfile_Click() {
    mnuProfilesNew_Click();
}

void ProfilePane::cmdSaveProfile_Click() {
    mnuProfilesSave_Click();
}

void ProfilePane::cmdDelProfile_Click() {
    mnuProfilesDelete_Click();
}
