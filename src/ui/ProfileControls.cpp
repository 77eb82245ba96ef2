#include "ui/ProfileControls.h"

#include "core/Failure.h"
#include "core/windows/CalendarButton.h"
#include "ui/PaneParts.h"
#include "ui/PictureList.h"
#include "ui/ProfilePanels.h"
#include "ui/ProfileTabs.h"
#include "ui/widgets/CaptionLabel.h"
#include "ui/widgets/RecordList.h"
#include "ui/widgets/TitleBand.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>

#include <algorithm>
#include <initializer_list>

using namespace Qt::StringLiterals;
using PaneParts::makeAlike;
using PaneParts::makeButton;
using PaneParts::makeLabel;
using PaneParts::named;

namespace {

constexpr int between = 8;
constexpr int betweenGroups = 16;
constexpr int windowEdge = 24;

template<class Control>
Control& found(QWidget& pane, QStringView name) {
    auto* control = pane.findChild<Control*>(name.toString());
    if (control == nullptr) {
        throw failure(ErrorNumber::ObjectNotSet);
    }
    return *control;
}

} // namespace

ProfileControls::ProfileControls(QWidget& pane)
    : pane_(pane) {
    for (const QStringView list : ProfilePanels::pictureLists) {
        new PictureList(list.toString(), &pane);
    }
    auto* column = new QVBoxLayout(&pane);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    addBand(*column);
    addDetail(*column);
    addButtons(*column);
    setTabOrder();
    // Their letters are also those of the menus "File" and "Advice". Were both to act, neither would at the
    // first press; so the menus have them, as everywhere.
    optFemale->setShortcut(QKeySequence());
    cmdCalcProfile->setShortcut(QKeySequence());
}

void ProfileControls::addBand(QVBoxLayout& column) {
    constexpr int trigramWidth = 136;
    vsTopProfile = new TitleBand(&pane_);
    vsTopProfile->setObjectName(u"vsTopProfile"_s);
    auto* vsTrigram = new PicturePanel(u"vsTrigram"_s, PicturePanel::Place::Beside, vsTopProfile);
    vsTrigram->setPlaceMarked(false);
    vsTrigram->setFixedWidth(trigramWidth);
    vsTopProfile->addWidget(vsTrigram);
    column.addWidget(vsTopProfile);
}

void ProfileControls::addDetail(QVBoxLayout& column) {
    auto* vsDetailProfile = named(new QWidget(&pane_), u"vsDetailProfile"_s, QObject::tr("Person"), {});
    auto* row = new QHBoxLayout(vsDetailProfile);
    row->setContentsMargins(windowEdge, betweenGroups, windowEdge, between);
    row->setSpacing(betweenGroups);
    row->addWidget(makeEntryColumn(vsDetailProfile), 2);
    tabProfile = new ProfileTabs(vsDetailProfile);
    row->addWidget(tabProfile, 3);
    column.addWidget(vsDetailProfile, 1);
}

QWidget* ProfileControls::makeEntryColumn(QWidget* vsDetailProfile) {
    auto* area = new QScrollArea(vsDetailProfile);
    area->setObjectName(u"entryArea"_s);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setFocusPolicy(Qt::NoFocus);
    auto* content = new QWidget(area);
    auto* grid = new QGridLayout(content);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(between);
    grid->setVerticalSpacing(between);
    grid->setColumnStretch(1, 1);
    addFields(content, *grid);
    addNumber(content, *grid);

    auto* vsAnimal = new PicturePanel(u"vsAnimal"_s, PicturePanel::Place::Beside, content);
    vsAnimal->setToolTip(u"Animal Sign for the Year (adjusted) you were born"_s);
    grid->addWidget(vsAnimal, 5, 0, 1, 3);
    auto* lblInfo = new CaptionLabel(u"lblInfo"_s, content);
    lblInfo->setCaption(
        u"To personalize your feng shui recommendations, calculate your KUA or 9 Ki number.  Enter the date of your birth (using the western calendar), and your gender. Click Calculate when ready.   Or, if you know your 9 Ki number you may enter it in the space provided.  When finished Click Save to save the profile."_s);
    grid->addWidget(lblInfo, 6, 0, 1, 3);
    grid->setRowStretch(6, 1);
    area->setWidget(content);
    content->setAutoFillBackground(false);
    area->viewport()->setAutoFillBackground(false);
    constexpr int widestInCharacters = 72;
    area->setMinimumWidth(content->minimumSizeHint().width());
    area->setMaximumWidth(
        std::max(area->minimumWidth(), widestInCharacters * area->fontMetrics().averageCharWidth()));
    return area;
}

void ProfileControls::addFields(QWidget* parent, QGridLayout& grid) {
    grid.addWidget(makeLabel(u"lblName"_s, u"Enter Your Name:"_s, parent), 0, 0);
    cboProfileName = PaneParts::makeList(*parent, u"cboProfileName"_s, QObject::tr("Profile"),
                                         u"Select a Profile from the List"_s);
    txtProfileName = named(new QLineEdit(parent), u"txtProfileName"_s, QObject::tr("Your name"),
                           u"Enter a Name for the Profile"_s);
    txtProfileName->hide();
    grid.addWidget(cboProfileName, 0, 1, 1, 2);
    grid.addWidget(txtProfileName, 0, 1, 1, 2);
    grid.setRowMinimumHeight(
        0, std::max(cboProfileName->sizeHint().height(), txtProfileName->sizeHint().height()));

    grid.addWidget(makeLabel(u"lblBirthdate"_s, u"Enter Your Birthdate:"_s, parent), 1, 0);
    txtBirthDate = named(new QLineEdit(parent), u"txtBirthDate"_s, QObject::tr("Your birthdate"),
                         u"Enter your birthdate using the Western Calendar Years."_s);
    cmdDate = named(new CalendarButton(u"cmdDate"_s, parent), u"cmdDate"_s,
                    QObject::tr("Choose your birthdate from a calendar"), {});
    auto* dateRow = new QHBoxLayout;
    dateRow->setSpacing(between);
    dateRow->addWidget(txtBirthDate, 1);
    dateRow->addWidget(cmdDate);
    grid.addLayout(dateRow, 1, 1, 1, 2);

    const QString genderTip = u"Used for KUA number calculations"_s;
    optFemale =
        named(new QRadioButton(u"&Female"_s, parent), u"optFemale"_s, QObject::tr("Female"), genderTip);
    optMale = named(new QRadioButton(u"&Male"_s, parent), u"optMale"_s, QObject::tr("Male"), genderTip);
    auto* genders = new QButtonGroup(parent);
    genders->addButton(optFemale);
    genders->addButton(optMale);
    auto* genderRow = new QHBoxLayout;
    genderRow->setSpacing(betweenGroups);
    genderRow->addWidget(optFemale);
    genderRow->addWidget(optMale);
    genderRow->addStretch(1);
    grid.addLayout(genderRow, 2, 1, 1, 2);
}

void ProfileControls::addNumber(QWidget* parent, QGridLayout& grid) {
    grid.addWidget(makeLabel(u"lbl9Ki"_s, u"9 Ki (KUA) Number:"_s, parent), 3, 0);
    txt9Ki = named(new QLineEdit(parent), u"txt9Ki"_s, QObject::tr("9 Ki or KUA number"),
                   u"Used to determine your Element and Directions"_s);
    cmdCalcProfile = makeButton(u"cmdCalcProfile"_s, u"C&alculate"_s,
                                u"Click Calculate to Calculate your KUA number"_s, parent);
    grid.addWidget(txt9Ki, 3, 1);
    grid.addWidget(cmdCalcProfile, 3, 2);
    lblAdjBirthYear = new CaptionLabel(u"lblAdjBirthYear"_s, parent);
    lblAdjBirthYear->setToolTip(u"The Chinese calendar begins in early February"_s);
    grid.addWidget(lblAdjBirthYear, 4, 1, 1, 2);
    grid.setRowMinimumHeight(4, lblAdjBirthYear->fontMetrics().height());
}

void ProfileControls::addButtons(QVBoxLayout& column) {
    cmdNewProfile = makeButton(u"cmdNewProfile"_s, u"&New"_s, u"Click New to create a New Profile"_s, &pane_);
    cmdSaveProfile = makeButton(u"cmdSaveProfile"_s, u"&Save"_s,
                                u"Click Save to Save the changes to this profile"_s, &pane_);
    cmdDelProfile =
        makeButton(u"cmdDelProfile"_s, u"&Delete"_s, u"Click Delete to delete this Profile"_s, &pane_);
    makeAlike({cmdNewProfile, cmdSaveProfile, cmdDelProfile}, u"Cancel"_s);
    auto* row = new QHBoxLayout;
    row->setContentsMargins(windowEdge, between, windowEdge, betweenGroups);
    row->setSpacing(between);
    for (QPushButton* button : {cmdNewProfile, cmdSaveProfile, cmdDelProfile}) {
        row->addWidget(button);
    }
    row->addStretch(1);
    column.addLayout(row);
}

void ProfileControls::setTabOrder() const {
    QWidget* before = cboProfileName;
    for (QWidget* next : std::initializer_list<QWidget*>{txtProfileName, txtBirthDate, cmdDate, optFemale,
                                                         optMale, txt9Ki, cmdCalcProfile}) {
        QWidget::setTabOrder(before, next);
        before = next;
    }
    for (QWidget* next : tabProfile->tabStops()) {
        QWidget::setTabOrder(before, next);
        before = next;
    }
    for (QWidget* next : {cmdNewProfile, cmdSaveProfile, cmdDelProfile}) {
        QWidget::setTabOrder(before, next);
        before = next;
    }
}

PicturePanel& ProfileControls::panel(QStringView name) const {
    return found<PicturePanel>(pane_, name);
}

const PictureList& ProfileControls::pictures(QStringView name) const {
    return found<PictureList>(pane_, name);
}

CaptionLabel& ProfileControls::lblSummary() const {
    return found<CaptionLabel>(pane_, u"lblSummary");
}

CaptionLabel& ProfileControls::lblElementDescription() const {
    return found<CaptionLabel>(pane_, u"lblElementDescription");
}

void ProfileControls::showGender(bool female, bool male) const {
    QButtonGroup* genders = optFemale->group();
    genders->setExclusive(false); // an exclusive group never lets go of its last choice
    optFemale->setChecked(female);
    optMale->setChecked(male);
    genders->setExclusive(true);
}

void ProfileControls::setAccent(const std::optional<QColor>& color) const {
    vsTopProfile->setAccent(color);
    tabProfile->setAccent(color);
}
