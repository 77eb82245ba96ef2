#include "profiles/windows/frmProfiles.h"

#include "catalogues/ColorBand.h"
#include "core/Failure.h"
#include "profiles/cProfile.h"

frmProfiles::frmProfiles(QWidget* parent)
    : ReportBrowser({.name = QStringLiteral("frmProfiles"),
                     .caption = QStringLiteral("Profiles"),
                     .listName = QStringLiteral("cboProfiles"),
                     .labelName = QStringLiteral("lblProfile"),
                     .label = QStringLiteral("Profile:"),
                     .info = QStringLiteral(
                         "The KUA/Nine Ki Number calculated from a person's date of birth determines their "
                         "primary Compass Direction.  The Eight Directions of the compass, plus the Center, "
                         "are associated with one of the five Elements.  A person's Compass Direction and "
                         "Element can give them insight into how to arrange and decorate their home to best "
                         "harmonize with their energy."),
                     .nameField = QStringLiteral("PROFILENAME"),
                     .keyField = QStringLiteral("PROFILEID"),
                     .fillRoutine = QStringLiteral("Fill Profiles"),
                     // The label of the room editor, whose routine it once was.
                     .saveAsLabel = QStringLiteral("frmRoom.mnuFileSaveAs_Click")},
                    parent) {
    report().onNewPage = [this] { vpReport_NewPage(); };
}

frmProfiles::~frmProfiles() = default;

cProfile& frmProfiles::person() {
    if (person_ == nullptr) {
        person_ = std::make_unique<cProfile>();
    }
    return *person_;
}

cXMLHandler& frmProfiles::records() {
    return *person().oXMLProfiles;
}

qint32 frmProfiles::currentKey() const {
    if (Global::CurrentProfile == nullptr) {
        throw failure(ErrorNumber::ObjectNotSet);
    }
    return Global::CurrentProfile->PROFILEID;
}

void frmProfiles::get(qint32 key) {
    person().GetProfile(key);
}

QString frmProfiles::shownName() {
    return person().PROFILENAME;
}

const cColor& frmProfiles::shownColor() {
    return person().oColor;
}

void frmProfiles::DrawCompass(ReportSurface& vp, qint32 x, qint32 y) {
    person().DrawCompass(vp, x, y);
}

void frmProfiles::GenerateReport(ReportSurface& vp, bool ToPrint) {
    person().GenerateReport(vp, ToPrint);
}

void frmProfiles::vpReport_NewPage() {
    routine(label(QStringLiteral("vpReport_NewPage")), [this] {
        if (!isPrinting()) {
            drawColorBand(report(), person().oColor);
        }
    });
}
