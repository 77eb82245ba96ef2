#include "profiles/windows/ReportBrowser.h"

#include "catalogues/cColor.h"
#include "core/Conversion.h"
#include "core/Global.h"
#include "reports/surface/ReportRoutines.h"
#include "store/cXMLHandler.h"
#include "ui/platform/ComboList.h"
#include "ui/widgets/TitleBand.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace {

/// Where the compass stands on its pane, in twips.
constexpr qint32 compassMiddle = 6000;
constexpr int noEntry = -1;

} // namespace

ReportBrowser::ReportBrowser(const Texts& texts, QWidget* parent)
    : CompassReportWindow(texts.name, parent)
    , texts_(texts)
    , combo_(new QComboBox(this))
    , list_(std::make_unique<ComboList>(*combo_)) {
    constexpr int between = 8;
    constexpr int betweenGroups = 24;
    constexpr int listLetters = 24;
    setWindowTitle(texts.caption);

    auto* label = new QLabel(texts.label, this);
    label->setObjectName(texts.labelName);
    combo_->setObjectName(texts.listName);
    combo_->setAccessibleName(QString(texts.label).remove(u':'));
    combo_->setMinimumContentsLength(listLetters);
    combo_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    auto* lblInfo = new QLabel(texts.info, this);
    lblInfo->setObjectName(QStringLiteral("lblInfo"));
    lblInfo->setTextFormat(Qt::PlainText);
    lblInfo->setWordWrap(true);

    auto* choice = new QHBoxLayout;
    choice->setSpacing(between);
    choice->addWidget(label);
    choice->addWidget(combo_);
    auto* row = new QHBoxLayout;
    row->setSpacing(betweenGroups);
    row->addLayout(choice);
    row->setAlignment(choice, Qt::AlignTop);
    row->addWidget(lblInfo, 1);
    buildAround(row, texts.saveAsLabel);
    combo_->setFocus();
    closeButton().setDefault(true);
    setPrintable(false);
    connect(combo_, &QComboBox::currentIndexChanged, this, &ReportBrowser::list_Click);
}

ReportBrowser::~ReportBrowser() = default;

void ReportBrowser::ShowModal() {
    Form_Load();
    showUntilClosed();
}

void ReportBrowser::Form_Load() {
    routine(label(QStringLiteral("Form_Load")), [this] {
        restore();
        fill();
        Global::FindInData(*list_, QString::number(currentKey()), 0, noEntry);
    });
}

void ReportBrowser::fill() {
    routine(label(texts_.fillRoutine), [this] {
        list_->Clear();
        cXMLHandler& store = records();
        for (bool more = store.MoveFirst(); more; more = store.MoveNext()) {
            list_->AddItem(store.GetAttribute(texts_.nameField),
                           Conversion::toLong(store.GetAttribute(texts_.keyField)));
        }
    });
}

void ReportBrowser::list_Click() {
    routine(label(texts_.listName + QStringLiteral("_Click")), [this] {
        if (list_->ListCount() == 0 || list_->ListIndex() < 0) {
            return;
        }
        get(list_->ItemData(list_->ListIndex()));
        setTitle(captionText(shownName()));
        setAccent(shownColor().LIGHTCOLORVALUE);

        modRooms::prepareCompassPane(compass());
        compass().StartDoc();
        DrawCompass(compass(), compassMiddle, compassMiddle);
        compass().EndDoc();

        modRooms::prepareReportPane(report());
        writeReport(false);
        pager().showFirstPage();
        setPrintable(true);
    });
}

void ReportBrowser::writeReport(bool toPrint) {
    printing = toPrint;
    report().StartDoc();
    GenerateReport(report(), printing);
    report().EndDoc();
}

void ReportBrowser::mnuFilePrint_Click() {
    routine(label(QStringLiteral("mnuFilePrint_Click")), [this] {
        writeReport(true);
        pager().print();
        list_Click();
    });
}

void ReportBrowser::mnuFileSaveAs_Click() {
    pager().saveAsHtml([this] { writeReport(true); });
    list_Click();
}
