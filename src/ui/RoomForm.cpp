#include "ui/RoomForm.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>

#include <limits>

using namespace Qt::StringLiterals;

/// What is written beside a control, and what is told about it.
struct RoomForm::Field {
    QString name;
    QString labelName;
    QString caption;
    QString toolTip;
    QString accessibleName;
};

namespace {

constexpr int between = 8;
constexpr int group = 16;

QLabel* makeLabel(const QString& name, const QString& caption, QWidget* parent) {
    auto* label = new QLabel(caption, parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace

RoomForm::RoomForm(QWidget* parent)
    : QWidget(parent) {
    auto* rows = new QFormLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(between);
    rows->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
    rows->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);

    txtDescription = addText(*rows, {u"txtDescription"_s, u"lblDescription"_s, u"Description:"_s,
                                     u"Enter a short name for this Room"_s, tr("Description")});
    cboRoomType =
        addList(*rows, {u"cboRoomType"_s, u"lblRoomType"_s, u"What kind of room is this?:"_s,
                        u"Select a type of room from the List"_s, tr("What kind of room is this?")});
    cboFloors = addList(*rows, {u"cboFloors"_s, u"lblFloors"_s, u"Select a floor:"_s,
                                u"Select the floor the room is on"_s, tr("Floor")});
    cboLocation =
        addList(*rows, {u"cboLocation"_s, u"lblLocation"_s, u"Location:"_s,
                        u"Select the approximate direction the room lies from the center of your home"_s,
                        tr("Location")});
    cboFlooring = addList(*rows, {u"cboFlooring"_s, u"lblFlooring"_s, u"Flooring:"_s,
                                  u"Select the type of floor the room has"_s, tr("Flooring")});
    length = addExtent(*rows, u"Length"_s);
    width = addExtent(*rows, u"Width"_s);

    QLabel* lblCheckAll = makeLabel(u"lblCheckAll"_s, u"Check All That Apply:"_s, this);
    lblCheckAll->setContentsMargins(0, group - between, 0, 0);
    rows->addRow(nullptr, lblCheckAll);
    chkLowCeiling = addCheck(*rows, {u"chkLowCeiling"_s,
                                     {},
                                     u"Has a Low Ceiling"_s,
                                     u"Check here if there is a low ceiling in the room"_s,
                                     {}});
    chkExposedBeams = addCheck(*rows, {u"chkExposedBeams"_s,
                                       {},
                                       u"Has Exposed Beams"_s,
                                       u"Check here if the room has any exposed beams or duct work"_s,
                                       {}});
    chkEntrance = addCheck(*rows, {u"chkEntrance"_s,
                                   {},
                                   u"Has Main Entrance"_s,
                                   u"Check here if the Front or Back door opens into this room"_s,
                                   {}});
}

void RoomForm::addRow(QFormLayout& rows, const Field& field, QWidget* control, QWidget* buddy) {
    QLabel* label = makeLabel(field.labelName, field.caption, this);
    label->setToolTip(field.toolTip);
    label->setBuddy(buddy);
    rows.addRow(label, control);
}

QLineEdit* RoomForm::makeText(const Field& field) {
    auto* text = new QLineEdit(this);
    text->setObjectName(field.name);
    text->setAccessibleName(field.accessibleName);
    text->setToolTip(field.toolTip);
    // A stored text is shown whole, however long it is, so that a save does not cut it.
    text->setMaxLength(std::numeric_limits<int>::max());
    connect(text, &QLineEdit::textChanged, this, &RoomForm::edited);
    return text;
}

QLineEdit* RoomForm::addText(QFormLayout& rows, const Field& field) {
    QLineEdit* text = makeText(field);
    addRow(rows, field, text, text);
    return text;
}

QComboBox* RoomForm::addList(QFormLayout& rows, const Field& field) {
    auto* list = new QComboBox(this);
    list->setObjectName(field.name);
    list->setAccessibleName(field.accessibleName);
    list->setToolTip(field.toolTip);
    // A long name in the list does not widen the column.
    list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    connect(list, &QComboBox::currentIndexChanged, this, &RoomForm::edited);
    addRow(rows, field, list, list);
    return list;
}

RoomForm::Extent RoomForm::addExtent(QFormLayout& rows, const QString& word) {
    const QString toolTip = u"Enter the %1 of the room in Feet and Inches"_s.arg(word);
    auto* line = new QHBoxLayout;
    line->setSpacing(between);
    const auto add = [&](const QString& unit, const QString& suffix) {
        const QString part = word + suffix;
        QLineEdit* text = makeText({u"txt"_s + part, {}, {}, toolTip, word + u' ' + unit});
        QLabel* label = makeLabel(u"lbl"_s + part, unit + u':', this);
        label->setToolTip(toolTip);
        label->setBuddy(text);
        line->addWidget(label);
        line->addWidget(text, 1);
        return text;
    };
    Extent extent;
    extent.feet = add(u"Feet"_s, u"Ft"_s);
    line->addSpacing(between);
    extent.inches = add(u"Inches"_s, u"In"_s);
    QLabel* label = makeLabel(u"lbl"_s + word, word + u':', this);
    label->setToolTip(toolTip);
    rows.addRow(label, line);
    return extent;
}

QCheckBox* RoomForm::addCheck(QFormLayout& rows, const Field& field) {
    auto* check = new QCheckBox(field.caption, this);
    check->setObjectName(field.name);
    check->setAccessibleName(field.caption);
    check->setToolTip(field.toolTip);
    connect(check, &QCheckBox::toggled, this, &RoomForm::edited);
    rows.addRow(nullptr, check);
    return check;
}
