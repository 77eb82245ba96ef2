#include "ui/ProfileTabs.h"

#include "ui/widgets/AccentTabBar.h"
#include "ui/widgets/AccessibleRole.h"
#include "ui/widgets/CaptionLabel.h"
#include "ui/widgets/PicturePanel.h"

#include <QFrame>
#include <QGridLayout>
#include <QPainter>
#include <QScrollArea>

using namespace Qt::StringLiterals;

namespace {

constexpr int between = 8;
constexpr int betweenGroups = 16;
/// How wide running text still reads well; the pages grow no wider.
constexpr int widestInCharacters = 130;
/// The colours of the directions chart.
constexpr QRgb beneficialGreen = 0x6AEA97;
constexpr QRgb problematicBlue = 0xAAE3FF;

/// A coloured line.
QFrame* makeRule(const QColor& color, QWidget* parent) {
    constexpr int thickness = 3;
    auto* rule = new QFrame(parent);
    rule->setFixedHeight(thickness);
    rule->setAutoFillBackground(true);
    rule->setBackgroundRole(QPalette::Window);
    QPalette palette = rule->palette();
    palette.setColor(QPalette::Window, color);
    rule->setPalette(palette);
    return rule;
}

} // namespace

ProfileTabs::ProfileTabs(QWidget* parent)
    : QTabWidget(parent)
    , bar_(new AccentTabBar(this)) {
    setObjectName(u"tabProfile"_s);
    setAccessibleName(tr("What follows from the number"));
    bar_->setObjectName(u"tabProfilePages"_s);
    bar_->setAccessibleName(tr("Pages"));
    setTabBar(bar_);
    addSummary();
    addDirections();
    addElements();
}

QWidget* ProfileTabs::addPage(const QString& name, const QString& caption) {
    auto* area = new QScrollArea(this);
    area->setObjectName(name + u"Area"_s);
    setAccessibleRole(*area, QAccessible::Pane);
    area->setAccessibleName(caption);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    auto* page = new QWidget(area);
    page->setObjectName(name);
    page->setAccessibleName(caption);
    page->setMaximumWidth(widestInCharacters * page->fontMetrics().averageCharWidth());
    area->setWidget(page);
    page->setAutoFillBackground(false);
    page->setBackgroundRole(QPalette::Base);
    area->viewport()->setAutoFillBackground(false);
    addTab(area, caption);
    return page;
}

void ProfileTabs::addSummary() {
    QWidget* page = addPage(u"vsProfileSummary"_s, u"Summary"_s);
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(betweenGroups, betweenGroups, betweenGroups, betweenGroups);
    column->setSpacing(betweenGroups);
    auto* row = new QHBoxLayout;
    row->setSpacing(betweenGroups);
    for (const QString& name : {u"vsTOD"_s, u"vsColor"_s, u"vsSymbol"_s}) {
        row->addWidget(new PicturePanel(name, PicturePanel::Place::Under, page), 1);
    }
    column->addLayout(row);
    column->addWidget(new CaptionLabel(u"lblSummary"_s, page), 1);
}

void ProfileTabs::addDirections() {
    QWidget* page = addPage(u"vsAuspicious"_s, u"Directions"_s);
    auto* grid = new QGridLayout(page);
    grid->setContentsMargins(betweenGroups, between, betweenGroups, between);
    grid->setHorizontalSpacing(betweenGroups);
    grid->setVerticalSpacing(between);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    auto* primary = new PicturePanel(u"vsPrimaryDirection"_s, PicturePanel::Place::Beside, page);
    constexpr int primaryWidth = 280;
    primary->setFixedWidth(primaryWidth);
    grid->addWidget(primary, 0, 0, 1, 2, Qt::AlignHCenter);
    grid->setRowMinimumHeight(0, primary->sizeHint().height() + between);
    addDirectionColumn(page, *grid, 0, u"lblAuspiciousDirections"_s, u"Auspicious Directions:"_s,
                       QColor(beneficialGreen),
                       {u"vsSuccessDirection"_s, u"vsHealthDirection"_s, u"vsRomanceDirection"_s,
                        u"vsDevelopmentDirection"_s});
    addDirectionColumn(page, *grid, 1, u"lblInauspiciousDirections"_s, u"Inauspicious Directions:"_s,
                       QColor(problematicBlue),
                       {u"vsBadLuckDirection"_s, u"vsObstacleDirection"_s, u"vsIllnessDirection"_s,
                        u"vsDestructionDirection"_s});
    grid->setRowStretch(grid->rowCount(), 1);
}

void ProfileTabs::addDirectionColumn(QWidget* page, QGridLayout& grid, int column, const QString& labelName,
                                     const QString& caption, const QColor& rule, const QStringList& panels) {
    auto* label = new CaptionLabel(labelName, page);
    label->setCaption(caption);
    int row = 1;
    grid.addWidget(label, row++, column);
    grid.addWidget(makeRule(rule, page), row++, column);
    for (const QString& name : panels) {
        grid.addWidget(new PicturePanel(name, PicturePanel::Place::Beside, page), row++, column);
    }
}

void ProfileTabs::addElements() {
    QWidget* page = addPage(u"vsInauspicious"_s, u"Elements"_s);
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(betweenGroups, betweenGroups, betweenGroups, betweenGroups);
    column->setSpacing(betweenGroups);
    column->addWidget(new PicturePanel(u"vsElement"_s, PicturePanel::Place::Beside, page));
    column->addWidget(new CaptionLabel(u"lblElementDescription"_s, page), 1);
}

void ProfileTabs::paintEvent(QPaintEvent* /*event*/) {
    // The style's own frame is made of translucent lines. Qt hands each of them to threads, which it would
    // have to start for the first window's sake.
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(palette().color(QPalette::Base));
    painter.drawRect(QRect(0, bar_->height() - 1, width() - 1, height() - bar_->height()));
}

void ProfileTabs::setAccent(const std::optional<QColor>& color) {
    bar_->setAccent(color);
}

std::vector<QWidget*> ProfileTabs::tabStops() const {
    std::vector<QWidget*> stops{bar_};
    for (int i = 0; i < count(); ++i) {
        stops.push_back(widget(i));
    }
    return stops;
}
