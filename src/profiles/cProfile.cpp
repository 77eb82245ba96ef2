#include "profiles/cProfile.h"

#include "core/Conversion.h"
#include "core/Failure.h"
#include "core/Global.h"
#include "core/MainWindow.h"
#include "core/clsRegistry.h"
#include "store/RecordStore.h"

using namespace Qt::StringLiterals;

namespace {

const QString KEY = u"PROFILEID"_s;

} // namespace

std::unique_ptr<cProfile> Global::CurrentProfile;

std::optional<qint32> Global::accentColor() {
    const cProfile* person = CurrentProfile.get();
    return person != nullptr && person->PROFILEID > 0 ? std::optional(person->oColor.LIGHTCOLORVALUE)
                                                      : std::nullopt;
}

cProfile::cProfile() {
    routine(u"cProfile.Class_Initialize", [this] {
        folder = Global::dataFolder();
        LoadProfiles();
    });
}

bool cProfile::CalculateKUA(QString& sErrorString, const QVariant& vBDay, const QString& sGender) {
    return routine(u"cProfile.Calculate KUA", false, [&](bool& result) {
        if (Conversion::isDate(vBDay)) {
            BIRTHDATE = vBDay;
            GENDER = sGender;
            ADJBIRTHYEAR = Global::CalculateAdjustedYear(vBDay);
            if (oKUAYear.GetKUAYear(ADJBIRTHYEAR)) {
                const bool male = sGender.compare(u"M", Qt::CaseInsensitive) == 0;
                KUANUMBER = male ? oKUAYear.KUANumberMale : oKUAYear.KUANumberFemale;
                GetDetails();
                IsDirty = true;
                result = true;
                return;
            }
        }
        sErrorString = u"Invalid Birthdate"_s;
    });
}

bool cProfile::GetProfile(const QVariant& vProfile) {
    return routine(u"cProfile.Get Profile", false, [&](bool& result) {
        QString id = vProfile.toString();
        if (id.isEmpty()) {
            id = clsRegistry().GetSetting(clsRegistry::CurrentUser, Global::settingsSection(u"StartUp"_s),
                                          u"LastProfile"_s, QString());
        }
        if (id.isEmpty()) {
            CreateProfile();
            result = true;
            return;
        }
        cXMLHandler& store = RecordStore::opened(oXMLProfiles);
        if (!store.Find(KEY, id)) {
            return;
        }
        PROFILEID = Conversion::toLong(store.GetAttribute(KEY));
        PROFILENAME = store.GetAttribute(u"PROFILENAME"_s);
        BIRTHDATE =
            Conversion::shortDate(QVariant(RecordStore::dateText(store.GetAttribute(u"BIRTHDATE"_s))));
        ADJBIRTHYEAR = Conversion::toLong(store.GetAttribute(u"ADJBIRTHYEAR"_s));
        GENDER = store.GetAttribute(u"GENDER"_s);
        KUANUMBER = Conversion::toLong(store.GetAttribute(u"KUANUMBER"_s));
        oKUAYear.GetKUAYear(ADJBIRTHYEAR);
        GetDetails();
        IsDirty = false;
        result = true;
    });
}

void cProfile::CreateProfile() {
    passOver([] { Global::service(&Services::mainWindow).Show(); });
    passOver([] { Global::service(&Services::mainWindow).NewProfile(); });
}

bool cProfile::InsertProfile() {
    return routine(u"cProfile.Insert Profile", false, [this](bool& result) {
        cXMLHandler& store = RecordStore::opened(oXMLProfiles);
        const qint32 id = RecordStore::nextKey(store, KEY);
        store.AddNew();
        store.SetAttribute(KEY, id);
        writeFields(store);
        store.SaveDocument();
        GetProfile(id);
        result = true;
    });
}

bool cProfile::UpdateProfile() {
    return routine(u"cProfile.Update Profile", false, [this](bool& result) {
        cXMLHandler& store = RecordStore::opened(oXMLProfiles);
        if (!store.Find(KEY, PROFILEID)) {
            return;
        }
        writeFields(store);
        store.SaveDocument();
        oKUAYear.GetKUAYear(ADJBIRTHYEAR);
        GetDetails();
        IsDirty = false;
        result = true;
    });
}

bool cProfile::DeleteProfile() {
    return routine(u"cProfile.Delete Profile", false, [this](bool& result) {
        cXMLHandler& store = RecordStore::opened(oXMLProfiles);
        if (store.Find(KEY, PROFILEID) && store.Delete()) {
            store.SaveDocument();
            result = true;
        }
    });
}

bool cProfile::LoadProfiles() {
    return routine(u"cProfile.Load Profiles", false, [this](bool& result) {
        oXMLProfiles = RecordStore::load(folder + u"Profiles.xml"_s);
        result = true;
    });
}

/// Fills the reference objects from the KUA number, the gender and the lunar year; stops at the first
/// look-up that fails and leaves the objects after it as they were.
void cProfile::GetDetails() {
    routine(u"cProfile.Get Details", [this] {
        cXMLHandler& directions = RecordStore::opened(oDirection.oXMLDirections);
        if (!directions.Find(u"KUA"_s, KUANUMBER)) {
            return;
        }
        oDirection.GetDirection(Conversion::toLong(directions.GetAttribute(u"DIRECTIONID"_s)));

        cXMLHandler& personalDirections = RecordStore::opened(oPersonalDirection.oXMLPersonalDirections);
        const QString ownRow = u"//z:row[@PERSONALDIRECTIONID = '%1' and @GENDER = '%2']"_s.arg(
            QString::number(oDirection.DIRECTIONID), GENDER);
        if (!personalDirections.AdvFind(ownRow)) {
            return;
        }
        oPersonalDirection.GetPersonalDirections(
            Conversion::toLong(personalDirections.GetAttribute(u"PERSONALDIRECTIONID"_s)));

        if (oElement.GetElement(oDirection.ElementID) && oColor.GetColor(oDirection.COLORID) &&
            oSymbol.GetSymbol(oDirection.SYMBOLID) && oTOD.GetTOD(oDirection.TODID) &&
            oTrigram.GetTrigram(oDirection.TRIGRAMID)) {
            oAnimal.GetAnimal(oKUAYear.AnimalID);
        }
    });
}

void cProfile::writeFields(cXMLHandler& store) const {
    store.SetAttribute(u"PROFILENAME"_s, PROFILENAME);
    store.SetAttribute(u"BIRTHDATE"_s, BIRTHDATE);
    store.SetAttribute(u"ADJBIRTHYEAR"_s, ADJBIRTHYEAR);
    store.SetAttribute(u"GENDER"_s, GENDER);
    store.SetAttribute(u"KUANUMBER"_s, KUANUMBER);
}
