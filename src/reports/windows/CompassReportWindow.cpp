#include "reports/windows/CompassReportWindow.h"

#include "core/Failure.h"
#include "reports/windows/PreviewWidget.h"
#include "reports/windows/ReportMenu.h"
#include "reports/windows/ReportStrip.h"
#include "ui/platform/WidgetPlacement.h"
#include "ui/widgets/ColorContrast.h"
#include "ui/widgets/PaneSplitter.h"
#include "ui/widgets/TitleBand.h"

#include <QAction>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

namespace {

/// Wide enough for a page of the report at the browsers' 78 percent.
const QSize designSize(1184, 800);
const QSize smallestSize(760, 520);
constexpr int edge = 16;
constexpr int between = 8;
/// The compass has two fifths of the width.
constexpr int compassShare = 2;
constexpr int reportShare = 3;

} // namespace

CompassReportWindow::CompassReportWindow(const QString& name, QWidget* parent)
    : QDialog(parent) {
    setObjectName(name);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    setMinimumSize(smallestSize);
    resize(designSize);
}

void CompassReportWindow::buildAround(QLayout* choices, const QString& saveAsLabel) {
    vsTop = new TitleBand(this);
    vsTop->setObjectName(QStringLiteral("vsTop"));
    choices->setContentsMargins(edge, edge, edge, edge);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(vsTop);
    column->addLayout(choices);
    column->addWidget(buildPanes(), 1);
    auto* bottom = new QVBoxLayout;
    bottom->setContentsMargins(edge, between, edge, between);
    bottom->addWidget(buildStrip());
    column->addLayout(bottom);

    addReportMenu(*this, QStringLiteral("mnuFileClose"),
                  {.print = [this] { mnuFilePrint_Click(); },
                   .saveAs = [this] { mnuFileSaveAs_Click(); },
                   .close = [this] { mnuFileClose_Click(); }});
    const ReportLabels labels{.plus = {},
                              .minus = {},
                              .next = label(QStringLiteral("cmdNext_Click")),
                              .previous = label(QStringLiteral("cmdPrev_Click")),
                              .print = label(QStringLiteral("mnuFilePrint_Click")),
                              .saveAs = saveAsLabel};
    pager_ = std::make_unique<ReportPager>(report_, *strip_, ZoomSteps::byTens(), labels);
    connect(vpReport, &PreviewWidget::pageChosen, pager_.get(), &ReportPager::showChosenPage);
}

CompassReportWindow::~CompassReportWindow() {
    // The panes read the surfaces, which go before the window's other children do.
    delete vpCompass;
    delete vpReport;
}

PreviewWidget* CompassReportWindow::buildPane(const QString& name, const QString& accessibleName,
                                              PageSurface& surface) {
    auto* pane = new PreviewWidget(surface, this);
    pane->setObjectName(name);
    pane->setAccessibleName(accessibleName);
    pane->setFrameShape(QFrame::NoFrame);
    return pane;
}

int CompassReportWindow::compassWidth() const {
    constexpr double zoom = 0.38; // that of every compass pane
    constexpr double twipsPerInch = 1440;
    constexpr int deskEdges = 2 * 24;
    const int page = qRound(compass_.pageSize().width() / twipsPerInch * logicalDpiX() * zoom);
    return page + deskEdges + style()->pixelMetric(QStyle::PM_ScrollBarExtent);
}

QWidget* CompassReportWindow::buildPanes() {
    auto* panes = new PaneSplitter(this);
    panes->setObjectName(QStringLiteral("panes"));
    panes->setAccessibleName(tr("Compass and report"));
    panes->setHandleWidth(between);
    vpCompass = buildPane(QStringLiteral("vpCompass"), tr("Compass"), compass_);
    vpReport = buildPane(QStringLiteral("vpReport"), tr("Report"), report_);
    vpCompass->setMinimumWidth(compassWidth());
    panes->addWidget(vpCompass);
    panes->addWidget(vpReport);
    panes->setStretchFactor(0, compassShare);
    panes->setStretchFactor(1, reportShare);
    panes->setSizes({designSize.width() * compassShare, designSize.width() * reportShare});
    return panes;
}

QWidget* CompassReportWindow::buildStrip() {
    strip_ = new ReportStrip(QStringLiteral("Page 1 of 1"), this);
    cmdPrint = strip_->addButton(QStringLiteral("cmdPrint"), QStringLiteral("&Print"));
    connect(cmdPrint, &QPushButton::clicked, this, &CompassReportWindow::cmdPrint_Click);
    cmdClose = strip_->addButton(QStringLiteral("cmdClose"), QStringLiteral("&Close"));
    connect(cmdClose, &QPushButton::clicked, this, &CompassReportWindow::cmdClose_Click);
    return strip_;
}

void CompassReportWindow::setTitle(const QString& caption) {
    vsTop->setCaption(caption);
}

void CompassReportWindow::setAccent(std::optional<qint32> color) {
    vsTop->setAccent(ColorContrast::fromStored(color));
}

void CompassReportWindow::setPrintable(bool printable) {
    cmdPrint->setEnabled(printable);
    for (const char* entry : {"mnuFilePrint", "mnuFileSaveAs"}) {
        findChild<QAction*>(QString::fromLatin1(entry))->setEnabled(printable);
    }
}

void CompassReportWindow::restore() {
    restorePlacement(*this);
}

void CompassReportWindow::showUntilClosed() {
    exec();
    savePlacement(*this);
}

QString CompassReportWindow::label(const QString& routineName) const {
    return objectName() + u'.' + routineName;
}

void CompassReportWindow::mnuFileClose_Click() {
    passOver([this] { hide(); });
}

void CompassReportWindow::cmdPrint_Click() {
    routine(label(QStringLiteral("cmdPrint_Click")), [this] { mnuFilePrint_Click(); });
}

void CompassReportWindow::cmdClose_Click() {
    passOver([this] { mnuFileClose_Click(); });
}
