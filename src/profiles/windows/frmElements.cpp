#include "profiles/windows/frmElements.h"

#include "catalogues/cElement.h"
#include "core/Failure.h"
#include "profiles/cProfile.h"

frmElements::frmElements(QWidget* parent)
    : ReportBrowser({.name = QStringLiteral("frmElements"),
                     .caption = QStringLiteral("Elements"),
                     .listName = QStringLiteral("cboElements"),
                     .labelName = QStringLiteral("lblElement"),
                     .label = QStringLiteral("Element:"),
                     .info = QStringLiteral(
                         "The Eight Directions of the compass, plus the Center, are associated with one of "
                         "the five Elements.  Each Element has a characteristic energy which can be "
                         "maintained by decorating in the Element's colors, patterns and materials.  Or, its "
                         "energy can be calmed or enhanced by decorating with the colors, patterns and "
                         "materials associated with another Element."),
                     .nameField = QStringLiteral("ELEMENTNAME"),
                     .keyField = QStringLiteral("ELEMENTID"),
                     .fillRoutine = QStringLiteral("Fill Elements"),
                     .saveAsLabel = QStringLiteral("frmElements.mnuFileSaveAs_Click")},
                    parent) {}

frmElements::~frmElements() = default;

cElement& frmElements::element() {
    if (element_ == nullptr) {
        element_ = std::make_unique<cElement>();
    }
    return *element_;
}

cXMLHandler& frmElements::records() {
    return *element().oXMLElements;
}

qint32 frmElements::currentKey() const {
    if (Global::CurrentProfile == nullptr) {
        throw failure(ErrorNumber::ObjectNotSet);
    }
    return Global::CurrentProfile->oElement.ELEMENTID;
}

void frmElements::get(qint32 key) {
    element().GetElement(key);
}

QString frmElements::shownName() {
    return element().ELEMENTNAME;
}

const cColor& frmElements::shownColor() {
    return element().oColor;
}

void frmElements::DrawCompass(ReportSurface& vp, qint32 x, qint32 y) {
    element().DrawCompass(vp, x, y);
}

void frmElements::GenerateReport(ReportSurface& vp, bool ToPrint) {
    element().GenerateReport(vp, ToPrint);
}
