#include "nineki/windows/frmNineKi.h"

#include "core/Failure.h"
#include "core/windows/CalendarButton.h"
#include "core/windows/DateField.h"
#include "core/windows/frmCalendar.h"
#include "nineki/NineKiReports.h"
#include "profiles/cProfile.h"
#include "reports/surface/ReportRoutines.h"
#include "reports/windows/ReportStrip.h"
#include "ui/widgets/ElidedLabel.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>

namespace {

constexpr int between = 8;
constexpr int edge = 16;
const QString chartMode = QStringLiteral("CHART");

QLabel* makeLabel(QWidget* parent, const QString& name) {
    auto* label = new QLabel(parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    return label;
}

void prepareDocument(ReportSurface& vp, void (*prepare)(ReportSurface&)) {
    prepare(vp);
    vp.StartDoc();
    vp.EndDoc();
}

const cProfile& currentProfile() {
    if (Global::CurrentProfile == nullptr) {
        throw failure(ErrorNumber::ObjectNotSet);
    }
    return *Global::CurrentProfile;
}

} // namespace

/// What a mode says. A label without a text is hidden.
struct frmNineKi::ModeTexts {
    QString mode;
    QString title;
    QString moveDate;
    QString direction;
    QString info;
    QString dateInfo;
    /// The captions of the pages, a vertical bar between them.
    QString tabs;
};

frmNineKi::frmNineKi(QWidget* parent)
    : CompassReportWindow(QStringLiteral("frmNineKi"), parent)
    , calendar_(frmCalendar::over(this)) {
    lblProfile = new ElidedLabel(this);
    lblProfile->setObjectName(QStringLiteral("lblProfile"));
    lblProfile->setTextMargin(0);
    QFont bold = lblProfile->font();
    bold.setBold(true);
    lblProfile->setFont(bold);
    tabMoving = new QTabWidget(this);
    tabMoving->setObjectName(QStringLiteral("tabMoving"));
    tabMoving->setAccessibleName(tr("Kind of advice"));
    tabMoving->tabBar()->setAccessibleName(tr("Kind of advice"));
    buildDirectionPage();
    buildTimePage();

    auto* column = new QVBoxLayout;
    column->setSpacing(between);
    column->addWidget(lblProfile);
    column->addWidget(tabMoving);
    buildAround(column, label(QStringLiteral("mnuFilePrint_Click")));
    txtMoveDate->setFocus();
    // The first report decides on the way forward; until then it is open.
    strip().cmdNext->setEnabled(true);

    report().onFooter = [this] { vpReport_Footer(); };
    connect(tabMoving, &QTabWidget::currentChanged, this, &frmNineKi::tabMoving_Switch);
    connect(txtMoveDate, &QLineEdit::textChanged, this, &frmNineKi::txtMoveDate_Change);
    connect(cboDirection, &QComboBox::currentIndexChanged, this, &frmNineKi::cboDirection_Click);
    connect(cmdDate, &QPushButton::clicked, this, &frmNineKi::cmdDate_Click);
}

frmNineKi::~frmNineKi() = default;

void frmNineKi::buildPage(QWidget* page, QLabel* info, const QList<QWidget*>& fields, int index) {
    info->setWordWrap(true);
    auto* button = new QPushButton(QStringLiteral("&Advise"), page);
    button->setObjectName(QStringLiteral("cmdAdvise%1").arg(index));
    button->setAccessibleName(tr("Advise"));
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, index] { cmdAdvise_Click(index); });
    cmdAdvise.at(static_cast<std::size_t>(index)) = button;

    auto* row = new QHBoxLayout;
    row->setSpacing(between);
    for (QWidget* field : fields) {
        row->addWidget(field);
    }
    row->addWidget(button);
    row->addStretch(1);
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(edge, between, edge, between);
    column->setSpacing(between);
    column->addWidget(info);
    column->addLayout(row);
    tabMoving->addTab(page, QString());
}

void frmNineKi::buildDirectionPage() {
    constexpr int dateLetters = 16;
    vsDirection = new QWidget(tabMoving);
    vsDirection->setObjectName(QStringLiteral("vsDirection"));
    lblInfo = makeLabel(vsDirection, QStringLiteral("lblInfo"));
    lblMovedate = makeLabel(vsDirection, QStringLiteral("lblMovedate"));
    txtMoveDate = new QLineEdit(vsDirection);
    txtMoveDate->setObjectName(QStringLiteral("txtMoveDate"));
    txtMoveDate->setFixedWidth(txtMoveDate->fontMetrics().horizontalAdvance(u'0') * dateLetters);
    cmdDate = new CalendarButton(QStringLiteral("cmdDate"), vsDirection);
    buildPage(vsDirection, lblInfo, {lblMovedate, txtMoveDate, cmdDate}, 0);
}

void frmNineKi::buildTimePage() {
    vsTime = new QWidget(tabMoving);
    vsTime->setObjectName(QStringLiteral("vsTime"));
    lblDateInfo = makeLabel(vsTime, QStringLiteral("lblDateInfo"));
    lblDirection = makeLabel(vsTime, QStringLiteral("lblDirection"));
    cboDirection = new QComboBox(vsTime);
    cboDirection->setObjectName(QStringLiteral("cboDirection"));
    buildPage(vsTime, lblDateInfo, {lblDirection, cboDirection}, 1);
}

// Every sentence stays whole on its line, so that it can be proof-read and searched for.
// clang-format off
void frmNineKi::AdviseMove() {
    advise(QStringLiteral("AdviseMove"), {
        .mode = QStringLiteral("MOVE"),
        .title = QStringLiteral("Moving Advice"),
        .moveDate = QStringLiteral("Enter Approximate Moving Date:"),
        .direction = QStringLiteral("Select the direction of the move:"),
        .info = QStringLiteral("I would like to know which directions would be beneficial to move towards on the following date:"),
        .dateInfo = QStringLiteral("I would like to know in which years a move in this direction would be beneficial."),
        .tabs = QStringLiteral("Advise me on the best directions for a move|Advise me on the best years for a move")});
}

void frmNineKi::AdviseRenovation() {
    advise(QStringLiteral("AdviseRenovation"), {
        .mode = QStringLiteral("RENOVATION"),
        .title = QStringLiteral("Renovation/Redecoration Advice"),
        .moveDate = QStringLiteral("Enter Approximate Renovation Date:"),
        .direction = QStringLiteral("Select the area of the renovation:"),
        .info = QStringLiteral("I would like to know which areas would be beneficial to renovate on the following date:"),
        .dateInfo = QStringLiteral("I would like to know in which years renovating in this area would be beneficial."),
        .tabs = QStringLiteral("Advise me on the best areas for renovation|Advise me on the best years to renovate")});
}

void frmNineKi::AdviseYearlyChart() {
    advise(QStringLiteral("AdviseYearlyChart"), {
        .mode = chartMode,
        .title = QStringLiteral("Nine Ki Year Charts"),
        .moveDate = QStringLiteral("Enter Nine Ki Chart Date:"),
        .direction = {},
        .info = QStringLiteral("I would like to know the Nine Ki Chart active on the following date:"),
        .dateInfo = {},
        .tabs = QStringLiteral("Advise me on the chart for the year")});
}
// clang-format on

void frmNineKi::advise(const QString& routineName, const ModeTexts& texts) {
    routine(label(routineName), [&] {
        MoveMode = texts.mode;
        Form_Load();
        setTexts(texts);
        lblProfile->setText(currentProfile().PROFILENAME);
        setAccent(Global::accentColor());
        showUntilClosed();
    });
}

void frmNineKi::setTexts(const ModeTexts& texts) {
    setTitle(texts.title);
    setWindowTitle(texts.title);
    lblMovedate->setText(texts.moveDate);
    lblInfo->setText(texts.info);
    lblDirection->setText(texts.direction);
    lblDateInfo->setText(texts.dateInfo);
    for (QWidget* hidden : {static_cast<QWidget*>(lblDirection), static_cast<QWidget*>(lblDateInfo),
                            static_cast<QWidget*>(cboDirection)}) {
        hidden->setHidden(texts.direction.isEmpty());
    }
    const auto spoken = [](QString text) { return text.remove(u':'); };
    txtMoveDate->setAccessibleName(spoken(texts.moveDate));
    cboDirection->setAccessibleName(spoken(texts.direction));
    setTabs(texts.tabs);
}

void frmNineKi::setTabs(const QString& captions) {
    const QStringList texts = captions.split(u'|');
    for (int i = tabMoving->count() - 1; i >= 0; --i) {
        if (i < texts.size()) {
            tabMoving->setTabText(i, texts.at(i));
        } else {
            tabMoving->removeTab(i);
        }
    }
    tabMoving_Switch();
}

void frmNineKi::Form_Load() {
    routine(label(QStringLiteral("Form_Load")), [this] {
        restore();
        {
            const QSignalBlocker filling(cboDirection);
            cboDirection->clear();
            cboDirection->addItems(NineKiReports::directionChoices());
            cboDirection->setCurrentIndex(-1);
        }
        cboDirection->setCurrentIndex(0);
    });
}

void frmNineKi::tabMoving_Switch() {
    cmdAdvise.at(tabMoving->currentIndex() > 0 ? 1 : 0)->setDefault(true);
}

void frmNineKi::cboDirection_Click() {
    routine(label(QStringLiteral("cboDirection_Click")), [this] {
        prepareDocument(compass(), modRooms::prepareCompassPane);
        prepareDocument(report(), modRooms::InitReport);
    });
}

void frmNineKi::txtMoveDate_Change() {
    passOver([this] { modRooms::InitReport(compass()); });
    passOver([this] { modRooms::InitReport(report()); });
}

void frmNineKi::cmdDate_Click() {
    routine(label(QStringLiteral("cmdDate_Click")),
            [this] { txtMoveDate->setText(DateField::pick(calendar_, *txtMoveDate)); });
}

void frmNineKi::cmdAdvise_Click(int Index) {
    routine(label(QStringLiteral("cmdAdvise_Click")), [&] {
        const auto focusDate = [this] { txtMoveDate->setFocus(); };
        if (MoveMode == chartMode) {
            NineKiReports::GetNineKiChart(compass(), report(), txtMoveDate->text(), focusDate);
        } else if (Index != 0) {
            NineKiReports::GetMoveYears(compass(), report(), cboDirection->currentText(), MoveMode,
                                        [this] { cboDirection->setFocus(); });
        } else {
            NineKiReports::GetMoveDirections(compass(), report(), txtMoveDate->text(), MoveMode, focusDate);
        }
        if (report().PreviewPage() >= report().PageCount()) {
            strip().cmdNext->setEnabled(false);
        }
        if (report().PreviewPage() < 2) {
            strip().cmdPrev->setEnabled(false);
        }
    });
}

void frmNineKi::mnuFilePrint_Click() {
    pager().print();
}

void frmNineKi::mnuFileSaveAs_Click() {
    pager().saveAsHtml([this] { cmdAdvise_Click(tabMoving->currentIndex()); });
}

void frmNineKi::vpReport_Footer() {
    constexpr double noteSize = 10;
    ReportSurface& vp = report();
    vp.HdrFontName(QStringLiteral("Ariel"));
    vp.HdrFontBold(false);
    vp.HdrFontItalic(false);
    vp.HdrFontStrikethru(false);
    vp.HdrFontUnderline(false);
    vp.HdrFontSize(noteSize);
}
