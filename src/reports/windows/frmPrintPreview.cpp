#include "reports/windows/frmPrintPreview.h"

#include "core/Global.h"
#include "locations/cLocation.h"
#include "profiles/cProfile.h"
#include "reports/surface/ReportRoutines.h"
#include "reports/windows/PreviewWidget.h"
#include "reports/windows/ReportMenu.h"
#include "reports/windows/ReportStrip.h"
#include "ui/platform/WaitPointer.h"
#include "ui/platform/WidgetPlacement.h"
#include "ui/widgets/ColorContrast.h"
#include "ui/widgets/TitleBand.h"

#include <QPushButton>
#include <QVBoxLayout>

namespace {

const QSize designSize(900, 720);
const QSize smallestSize(560, 420);

ReportLabels previewLabels() {
    return {.plus = QStringLiteral("frmPrintPreview.cmdPlus_Click"),
            .minus = QStringLiteral("frmPrintPreview.cmdMinus_Click"),
            .next = QStringLiteral("frmPrintPreview.cmdNext_Click"),
            .previous = QStringLiteral("frmPrintPreview.cmdPrev_Click"),
            .print = QStringLiteral("frmPrintPreview.cmdFilePrint_Click"),
            .saveAs = QStringLiteral("frmPrintPreview.mnuFileSaveAs_Click")};
}

/// The home that the report is about; fails with error 91 where there is none.
cLocation& currentLocation() {
    if (Global::CurrentLocation == nullptr) {
        throw failure(ErrorNumber::ObjectNotSet);
    }
    return *Global::CurrentLocation;
}

} // namespace

frmPrintPreview::frmPrintPreview(QWidget* parent)
    : QDialog(parent) {
    setObjectName(QStringLiteral("frmPrintPreview"));
    setWindowTitle(QStringLiteral("Print Preview"));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    setMinimumSize(smallestSize);
    resize(designSize);
    buildControls();
    buildMenu();
    pager_ = std::make_unique<ReportPager>(surface_, *strip_, ZoomSteps::throughModes(), previewLabels());
    connect(vpPrintPreview, &PreviewWidget::pageChosen, pager_.get(), &ReportPager::showChosenPage);
}

frmPrintPreview::~frmPrintPreview() {
    // The preview reads the surface, which goes before the window's other children do.
    delete vpPrintPreview;
}

void frmPrintPreview::buildControls() {
    constexpr int edge = 16;
    constexpr int between = 8;
    vsTop = new TitleBand(this);
    vsTop->setObjectName(QStringLiteral("vsTop"));
    vpPrintPreview = new PreviewWidget(surface_, this);
    vpPrintPreview->setObjectName(QStringLiteral("vpPrintPreview"));
    vpPrintPreview->setFrameShape(QFrame::NoFrame);
    strip_ = new ReportStrip(QStringLiteral("Page 0 of 0"), this);

    QPushButton* cmdPrint = strip_->addButton(QStringLiteral("cmdPrint"), QStringLiteral("&Print"));
    connect(cmdPrint, &QPushButton::clicked, this, &frmPrintPreview::cmdPrint_Click);
    QPushButton* cmdOK = strip_->addButton(QStringLiteral("cmdOK"), QStringLiteral("&OK"));
    cmdOK->setDefault(true);
    connect(cmdOK, &QPushButton::clicked, this, &frmPrintPreview::cmdOK_Click);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(vsTop);
    column->addWidget(vpPrintPreview, 1);
    auto* bottom = new QVBoxLayout;
    bottom->setContentsMargins(edge, between, edge, between);
    bottom->addWidget(strip_);
    column->addLayout(bottom);

    setTabOrder(vpPrintPreview, strip_->cmdMinus);
    setTabOrder(strip_->cmdMinus, strip_->cmdPlus);
    setTabOrder(strip_->cmdPlus, strip_->cmdPrev);
    setTabOrder(strip_->cmdPrev, strip_->cmdNext);
    setTabOrder(strip_->cmdNext, cmdPrint);
    setTabOrder(cmdPrint, cmdOK);
    vpPrintPreview->setFocus();
}

void frmPrintPreview::buildMenu() {
    addReportMenu(*this, QStringLiteral("mnuFileExit"),
                  {.print = [this] { mnuFilePrint_Click(); },
                   .saveAs = [this] { mnuFileSaveAs_Click(); },
                   .close = [this] { mnuFileExit_Click(); }});
}

void frmPrintPreview::Form_Load() {
    routine(u"frmPrintPreview.Form_Load", [this] {
        restorePlacement(*this);
        modRooms::InitReport(surface_);
    });
}

void frmPrintPreview::Form_Unload() {
    savePlacement(*this);
}

void frmPrintPreview::PrintRoomReport() {
    routine(u"frmPrintPreview.PrintRoomReport", [this] {
        Form_Load();
        vsTop->setCaption(captionText(currentLocation().DESCRIPTION) + QStringLiteral(" Room Report"));
        // Not after its first room, as a report of one page is.
        surface_.setTitle(currentLocation().DESCRIPTION + QStringLiteral(" Room Report"));
        vsTop->setAccent(ColorContrast::fromStored(Global::accentColor()));
        analyze();
        exec();
        Form_Unload();
    });
}

void frmPrintPreview::analyze() {
    {
        const WaitPointer wait;
        currentLocation().AnalyzeRooms(surface_);
    }
    pager_->showFirstPage();
}

void frmPrintPreview::mnuFilePrint_Click() {
    pager_->print();
}

void frmPrintPreview::mnuFileSaveAs_Click() {
    pager_->saveAsHtml([this] { analyze(); });
}

void frmPrintPreview::mnuFileExit_Click() {
    passOver([this] { hide(); });
}

void frmPrintPreview::cmdPrint_Click() {
    passOver([this] { mnuFilePrint_Click(); });
}

void frmPrintPreview::cmdOK_Click() {
    passOver([this] { mnuFileExit_Click(); });
}
