#include "core/windows/frmCalendar.h"

#include "core/Global.h"
#include "core/windows/DayCell.h"
#include "core/windows/DayGrid.h"
#include "core/windows/UpDown.h"

#include <QGridLayout>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QScreen>

#include <algorithm>

namespace {

constexpr int edge = 8;
constexpr int daysPerWeek = 7;
constexpr double twipsPerPixel = 15;

/// A label as wide as the widest of `texts`, so that nothing jumps when it changes.
QLabel* makeReadOut(const QString& name, const QStringList& texts, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignCenter);
    QFont bold = label->font();
    bold.setWeight(QFont::DemiBold);
    label->setFont(bold);
    int widest = 0;
    for (const QString& text : texts) {
        widest = std::max(widest, QFontMetrics(bold).horizontalAdvance(text));
    }
    label->setMinimumWidth(widest + edge);
    return label;
}

QPushButton* makeButton(const QString& name, const QString& caption, const QString& accessibleName,
                        QWidget* parent) {
    auto* button = new QPushButton(caption, parent);
    button->setObjectName(name);
    button->setAccessibleName(accessibleName);
    return button;
}

QSize screenSize() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen != nullptr ? screen->size() : QSize();
}

} // namespace

frmCalendar::frmCalendar(QWidget* parent)
    : QDialog(parent) {
    setObjectName(QStringLiteral("frmCalendar"));
    setWindowTitle(QStringLiteral("Calendar"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(edge, edge, edge, edge);
    column->setSpacing(edge);
    column->setSizeConstraint(QLayout::SetFixedSize);
    column->addLayout(buildMonthAndYear());
    days_ = buildDays();
    column->addWidget(days_);
    column->addLayout(buildButtons());
    days_->setFocus();
    adjustSize(); // its size decides where it stands
}

clsCalendar::WindowFactory frmCalendar::over(QWidget* owner) {
    return [owner] { return std::make_unique<frmCalendar>(owner); };
}

QLayout* frmCalendar::buildMonthAndYear() {
    QStringList months;
    for (int month = 1; month <= 12; ++month) {
        months << Global::services().locale.standaloneMonthName(month);
    }
    lblMonth = makeReadOut(QStringLiteral("lblMonth"), months, this);
    lblYear = makeReadOut(QStringLiteral("lblYear"), {QStringLiteral("0000")}, this);
    udMonth = new UpDown(QStringLiteral("udMonth"), lblMonth, this);
    udMonth->setNames(tr("Previous month"), tr("Next month"));
    udYear = new UpDown(QStringLiteral("udYear"), lblYear, this);
    udYear->setNames(tr("Previous year"), tr("Next year"));
    const auto forward = [this](UpDown* arrows, auto click, auto step) {
        connect(arrows, click, this, [this, step] {
            if (mParent != nullptr) {
                step(*mParent);
            }
        });
    };
    forward(udMonth, &UpDown::DownClick, [](clsCalendar& calendar) { calendar.DecrementMonth(); });
    forward(udMonth, &UpDown::UpClick, [](clsCalendar& calendar) { calendar.IncrementMonth(); });
    forward(udYear, &UpDown::DownClick, [](clsCalendar& calendar) { calendar.DecrementYear(); });
    forward(udYear, &UpDown::UpClick, [](clsCalendar& calendar) { calendar.IncrementYear(); });
    auto* row = new QHBoxLayout;
    row->setSpacing(edge);
    row->addWidget(udMonth);
    row->addStretch();
    row->addWidget(udYear);
    return row;
}

DayGrid* frmCalendar::buildDays() {
    static constexpr std::array<const char*, daysPerWeek> heads = {"Sun", "Mon", "Tue", "Wed",
                                                                   "Thu", "Fri", "Sat"};
    auto* sheet = new DayGrid(this);
    sheet->setObjectName(QStringLiteral("days"));
    sheet->setAccessibleName(tr("Days"));
    auto* grid = new QGridLayout(sheet);
    grid->setContentsMargins(edge / 2, edge / 2, edge / 2, edge / 2);
    grid->setSpacing(0);
    for (int weekday = 0; weekday < daysPerWeek; ++weekday) {
        auto* head = new QLabel(QString::fromLatin1(heads.at(static_cast<std::size_t>(weekday))), sheet);
        head->setObjectName(QStringLiteral("lblwk%1").arg(weekday));
        head->setAlignment(Qt::AlignCenter);
        head->setForegroundRole(QPalette::Text);
        head->setContentsMargins(2, 0, 2, 0);
        grid->addWidget(head, 0, weekday);
        grid->setColumnStretch(weekday, 1);
    }
    auto* rule = new QFrame(sheet);
    rule->setFrameShape(QFrame::HLine);
    rule->setFrameShadow(QFrame::Plain);
    rule->setForegroundRole(QPalette::Mid);
    grid->addWidget(rule, 1, 0, 1, daysPerWeek);
    for (qint16 index = 0; index < cellCount; ++index) {
        auto* day = new DayCell(sheet);
        day->setObjectName(QStringLiteral("lblDay%1").arg(index));
        connect(day, &DayCell::clicked, this, [this, index] { lblDay_Click(index); });
        lblDay.at(static_cast<std::size_t>(index)) = day;
        grid->addWidget(day, 2 + index / daysPerWeek, index % daysPerWeek);
    }
    return sheet;
}

QLayout* frmCalendar::buildButtons() {
    QPushButton* cmdOK = makeButton(QStringLiteral("cmdOK"), QStringLiteral("&OK"), tr("OK"), this);
    cmdOK->setDefault(true);
    QPushButton* cmdCancel =
        makeButton(QStringLiteral("cmdCancel"), QStringLiteral("&Cancel"), tr("Cancel"), this);
    connect(cmdOK, &QPushButton::clicked, this, &frmCalendar::cmdOK_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &frmCalendar::cmdCancel_Click);
    auto* row = new QHBoxLayout;
    row->setSpacing(edge);
    row->addWidget(cmdOK, 1);
    row->addWidget(cmdCancel, 1);
    return row;
}

double frmCalendar::screenWidth() const {
    return screenSize().width() * twipsPerPixel;
}

double frmCalendar::screenHeight() const {
    return screenSize().height() * twipsPerPixel;
}

void frmCalendar::setYear(const QString& year) {
    lblYear->setText(year);
}

void frmCalendar::setMonth(const QString& month) {
    lblMonth->setText(month);
}

CalendarCell frmCalendar::cell(qint16 index) const {
    return lblDay.at(static_cast<std::size_t>(index))->cell();
}

void frmCalendar::setCell(qint16 index, const CalendarCell& cell) {
    DayCell* day = lblDay.at(static_cast<std::size_t>(index));
    day->setCell(cell);
    const QStringList date = {cell.caption, lblMonth->text(), lblYear->text()};
    day->setAccessibleName(cell.enabled ? date.join(u' ') : QString());
    if (cell.marked) {
        days_->setAccessibleName(day->accessibleName()); // read aloud where the keyboard is
    }
}

void frmCalendar::showModal() {
    exec();
}

void frmCalendar::lblDay_Click(qint16 index) {
    if (mParent != nullptr) {
        mParent->SetDay(index);
    }
}

void frmCalendar::cmdOK_Click() {
    hide();
}

void frmCalendar::cmdCancel_Click() {
    if (mParent != nullptr) {
        mParent->CurrentDate = mParent->HoldDate;
    }
    hide();
}

void frmCalendar::keyPressEvent(QKeyEvent* event) {
    const bool shifted = event->modifiers().testFlag(Qt::ShiftModifier);
    if (event->matches(QKeySequence::Cancel)) {
        cmdCancel_Click(); // the toolkit's own way would keep the date
        return;
    }
    if (mParent == nullptr) {
        QDialog::keyPressEvent(event);
        return;
    }
    switch (event->key()) {
    case Qt::Key_Left:
        mParent->moveByDays(-1);
        break;
    case Qt::Key_Right:
        mParent->moveByDays(1);
        break;
    case Qt::Key_Up:
        mParent->moveByDays(-daysPerWeek);
        break;
    case Qt::Key_Down:
        mParent->moveByDays(daysPerWeek);
        break;
    case Qt::Key_PageUp:
        shifted ? mParent->DecrementYear() : mParent->DecrementMonth();
        break;
    case Qt::Key_PageDown:
        shifted ? mParent->IncrementYear() : mParent->IncrementMonth();
        break;
    default:
        QDialog::keyPressEvent(event);
        break;
    }
}
