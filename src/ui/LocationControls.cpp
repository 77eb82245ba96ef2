#include "ui/LocationControls.h"

#include "ui/FloorPlan.h"
#include "ui/PaneParts.h"
#include "ui/widgets/ElidedLabel.h"
#include "ui/widgets/RecordList.h"
#include "ui/widgets/TitleBand.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <initializer_list>

using namespace Qt::StringLiterals;
using PaneParts::makeButton;
using PaneParts::makeLabel;
using PaneParts::named;

namespace {

constexpr int between = 8;
constexpr int betweenGroups = 16;
constexpr int windowEdge = 24;
/// The columns of the fields: label, field, room to spare, zoom.
enum Column : int { LabelColumn, FieldColumn, SpareColumn, ZoomColumn };
constexpr int widestField = 360;
/// The rows of the pane: band, fields, plan, read-out, buttons.
enum Row : int { PlanRow = 2, ReadOutRow = 3 };

} // namespace

LocationControls::LocationControls(QWidget& pane)
    : pane_(pane) {
    auto* column = new QVBoxLayout(&pane);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    vsTopLocation = new TitleBand(&pane);
    vsTopLocation->setObjectName(u"vsTopLocation"_s);
    column->addWidget(vsTopLocation);
    column->addWidget(makeFields());
    column->addWidget(makeButtons());
}

QWidget* LocationControls::makeFields() {
    auto* fields = new QWidget(&pane_);
    auto* grid = new QGridLayout(fields);
    grid->setContentsMargins(windowEdge, betweenGroups, windowEdge, betweenGroups);
    grid->setHorizontalSpacing(between);
    grid->setVerticalSpacing(between);
    grid->setColumnStretch(FieldColumn, 2);
    grid->setColumnStretch(SpareColumn, 1);

    lblLocation = makeLabel(u"lblLocation"_s, u"Select a Location to analyze:"_s, fields);
    cboLocation = PaneParts::makeList(*fields, u"cboLocation"_s, QObject::tr("Location"),
                                      u"Select a Location from the List"_s);
    txtLocation = named(new QLineEdit(fields), u"txtLocation"_s, QObject::tr("Name of the new location"),
                        u"Enter a description for the Location"_s);
    lblFloors = makeLabel(u"lblFloors"_s, u"Select a floor:"_s, fields);
    cboFloors = named(new QComboBox(fields), u"cboFloors"_s, QObject::tr("Floor"),
                      u"Select the Floor to display in the floorplan."_s);
    txtNumFloors = named(new QLineEdit(fields), u"txtNumFloors"_s, QObject::tr("Number of floors"),
                         u"Number of floors at this location, including the basement"_s);
    cboFloors->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    txtLocation->hide();
    txtNumFloors->hide();
    int row = 0;
    for (const auto& [label, list, text] : std::initializer_list<std::tuple<QLabel*, QComboBox*, QLineEdit*>>{
             {lblLocation, cboLocation, txtLocation}, {lblFloors, cboFloors, txtNumFloors}}) {
        grid->addWidget(label, row, LabelColumn);
        for (QWidget* field : std::initializer_list<QWidget*>{list, text}) {
            field->setMaximumWidth(widestField);
            field->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
            grid->addWidget(field, row, FieldColumn);
        }
        grid->setRowMinimumHeight(row, std::max(list->sizeHint().height(), text->sizeHint().height()));
        ++row;
    }
    return fields;
}

QWidget* LocationControls::makeButtons() {
    auto* buttons = new QWidget(&pane_);
    cmdNewLocation =
        makeButton(u"cmdNewLocation"_s, u"&New"_s, u"Click New to create a New Location"_s, buttons);
    cmdSaveLocation =
        makeButton(u"cmdSaveLocation"_s, u"&Save"_s, u"Click Save to Save the Location"_s, buttons);
    cmdRoom = makeButton(u"cmdRoom"_s, u"&Add Room"_s,
                         u"Click Add Room to add a New Room to the floorplan."_s, buttons);
    cmdDelRoom = makeButton(u"cmdDelRoom"_s, u"Remove Room"_s,
                            u"Click Remove Room to delete a room from the floorplan"_s, buttons);
    PaneParts::makeAlike({cmdNewLocation, cmdSaveLocation, cmdRoom, cmdDelRoom}, u"Cancel"_s);
    // Its letter is also that of the menu "Advice". Were both to act, neither would at the first press; so
    // the menu has it, as everywhere.
    cmdRoom->setShortcut(QKeySequence());
    auto* row = new QHBoxLayout(buttons);
    row->setContentsMargins(windowEdge, between, windowEdge, betweenGroups);
    row->setSpacing(between);
    row->addWidget(cmdNewLocation);
    row->addWidget(cmdSaveLocation);
    row->addStretch(1);
    row->addWidget(cmdRoom);
    row->addWidget(cmdDelRoom);
    return buttons;
}

void LocationControls::addFloorPlan(FloorPlan& plan) {
    auto* grid = static_cast<QGridLayout*>(cboLocation->parentWidget()->layout());
    grid->addWidget(plan.zoomPanel(), 1, ZoomColumn);
    auto* column = static_cast<QVBoxLayout*>(pane_.layout());
    column->insertWidget(PlanRow, &plan, 1);
    plan.readOut()->setTextMargin(windowEdge);
    column->insertWidget(ReadOutRow, plan.readOut());
    column->insertSpacing(ReadOutRow, between);
    setTabOrder(plan);
}

void LocationControls::setTabOrder(const FloorPlan& plan) const {
    QList<QWidget*> order{cboLocation, txtLocation, cboFloors, txtNumFloors};
    order += plan.tabStops();
    order += {cmdNewLocation, cmdSaveLocation, cmdRoom, cmdDelRoom};
    for (qsizetype i = 1; i < order.size(); ++i) {
        QWidget::setTabOrder(order.at(i - 1), order.at(i));
    }
}

void LocationControls::showState(bool open) const {
    lblLocation->setText(open ? u"Select a Location to analyze:"_s
                              : u"Enter the name for the new location and click Save:"_s);
    lblFloors->setText(open ? u"Select a floor:"_s : u"Number of floors:"_s);
    txtLocation->setVisible(!open);
    txtNumFloors->setVisible(!open);
    cboLocation->setVisible(open);
    cboFloors->setVisible(open);
    cmdSaveLocation->setEnabled(!open);
    cmdNewLocation->setText(open ? u"New"_s : u"Cancel"_s);
    cmdNewLocation->setAccessibleName(cmdNewLocation->text());
    cmdNewLocation->setToolTip(open ? u"Click New to create a New Location"_s
                                    : u"Click Cancel to abandon the New Location"_s);
    for (QPushButton* button : {cmdRoom, cmdDelRoom}) {
        button->setEnabled(open);
        button->setVisible(open);
    }
}
