#include "compass/windows/CompassWindow.h"

#include "compass/windows/PlanPainter.h"
#include "compass/windows/PlanWidget.h"
#include "compass/windows/TabularLabel.h"
#include "core/Conversion.h"
#include "core/Global.h"
#include "core/Printer.h"
#include "locations/cLocation.h"
#include "profiles/cProfile.h"
#include "reports/pages/PageSurface.h"
#include "ui/platform/WidgetPlacement.h"
#include "ui/widgets/Caption.h"
#include "ui/widgets/ColorContrast.h"
#include "ui/widgets/TitleBand.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

const QSize designSize(720, 800);
constexpr int edge = 16;
constexpr int between = 8;

/// The click that set North, as it is stored.
CompassGeometry::PlanPoint storedClick(const cLocation& home) {
    return {.X = home.LABLEX, .Y = home.LABLEY};
}

/// A page with a picture on it, inside the margins that every printer leaves.
PrintableDocument printable(const PlanPicture& picture, QSizeF page, const QRectF& area,
                            const QString& title) {
    constexpr double twipsPerPoint = 20;
    constexpr int textPoints = 10;
    return {.pageCount = 1,
            .pageSize = page,
            .paint =
                [&picture, area](QPainter& painter, qint32) {
                    QFont font;
                    font.setPixelSize(static_cast<int>(textPoints * twipsPerPoint));
                    paintPlan(painter, picture, area,
                              {.lineWidth = twipsPerPoint, .font = font, .unitsPerPoint = twipsPerPoint});
                },
            .title = title};
}

} // namespace

CompassWindow::CompassWindow(CompassDrawing::View view, const QString& name, const QString& title,
                             QWidget* parent)
    : QDialog(parent)
    , drawing_(view) {
    setObjectName(name);
    setWindowTitle(title);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    vsTop = new TitleBand(this);
    vsTop->setObjectName(QStringLiteral("vsTop"));
    column->addWidget(vsTop);
    auto* vsMain = new QWidget(this);
    vsMain->setObjectName(QStringLiteral("vsMain"));
    main_ = new QVBoxLayout(vsMain);
    main_->setContentsMargins(0, 0, 0, 0);
    main_->setSpacing(0);
    column->addWidget(vsMain, 1);
    buildPlan();
    buildStrip();
    resize(designSize);
}

void CompassWindow::buildPlan() {
    auto* vsDetail = new PlanDesk(this);
    vsDetail->setObjectName(QStringLiteral("vsDetail"));
    picFloorPlan = vsDetail->picFloorPlan;
    connect(picFloorPlan, &PlanWidget::pointed, this, &CompassWindow::picFloorPlan_MouseMove);
    connect(picFloorPlan, &PlanWidget::resized, this, &CompassWindow::picFloorPlan_Resize);
    main_->addWidget(vsDetail, 1);
}

void CompassWindow::buildStrip() {
    auto* vsSplit = new QWidget(this);
    vsSplit->setObjectName(QStringLiteral("vsSplit"));
    auto* readOut = new QHBoxLayout(vsSplit);
    readOut->setContentsMargins(edge, between, edge, 0);
    lblCoord = new TabularLabel(vsSplit);
    lblCoord->setObjectName(QStringLiteral("lblCoord"));
    readOut->addWidget(lblCoord);
    main_->addWidget(vsSplit);

    auto* vsTrigram = new QWidget(this);
    vsTrigram->setObjectName(QStringLiteral("vsTrigram"));
    buttons_ = new QHBoxLayout(vsTrigram);
    buttons_->setContentsMargins(edge, between, edge, edge);
    buttons_->setSpacing(between);
    chkColor = new QCheckBox(QStringLiteral("Print Color"), vsTrigram);
    chkColor->setObjectName(QStringLiteral("chkColor"));
    chkColor->setAccessibleName(tr("Print Color"));
    buttons_->addWidget(chkColor);
    buttons_->addStretch();
    main_->addWidget(vsTrigram);
    connect(addButton(QStringLiteral("cmdPrint"), QStringLiteral("&Print"), tr("Print")),
            &QPushButton::clicked, this, &CompassWindow::cmdPrint_Click);
}

QPushButton* CompassWindow::addButton(const QString& name, const QString& caption, const QString& spoken) {
    auto* button = new QPushButton(caption, this);
    button->setObjectName(name);
    button->setAccessibleName(spoken);
    button->setAutoDefault(false);
    buttons_->addWidget(button);
    return button;
}

void CompassWindow::addInstruction(QLabel* label) {
    label->setMargin(between);
    label->setIndent(between);
    label->setWordWrap(true);
    main_->insertWidget(0, label);
}

cLocation& CompassWindow::currentLocation() {
    if (Global::CurrentLocation == nullptr) {
        throw failure(ErrorNumber::ObjectNotSet);
    }
    return *Global::CurrentLocation;
}

void CompassWindow::Form_Load(const QString& title) {
    const bool isRoom = drawing_.view() == CompassDrawing::View::Room;
    routine(drawing_.label(isRoom ? u"Form_Load" : u"Form Load"), [this] { restorePlacement(*this); });
    vsTop->setCaption(captionText(title));
    vsTop->setAccent(ColorContrast::fromStored(Global::accentColor()));
    lblCoord->clear();
}

void CompassWindow::Form_Unload() {
    savePlacement(*this);
}

void CompassWindow::drawPlan() {
    const cLocation& home = currentLocation();
    clearPlan();
    // North at the very top counts as not set, even when it was clicked.
    const bool isSet = home.NORTHOFFSET != 0;
    drawPlan(home.NORTHOFFSET, isSet ? std::optional(storedClick(home)) : std::nullopt);
}

void CompassWindow::drawPlan(double north, const std::optional<CompassGeometry::PlanPoint>& clicked) {
    drawing_.DrawCompass(picFloorPlan->picture(), north, clicked);
    drawing_.DrawRooms(picFloorPlan->picture());
    QString description = tr("North is %1 degrees clockwise from the top").arg(north, 0, 'f', 1);
    if (picFloorPlan->focusPolicy() != Qt::NoFocus) {
        description += tr("; Left and Right turn it by 1 degree, with Shift by 15");
    }
    picFloorPlan->setAccessibleDescription(description);
}

void CompassWindow::clearPlan() {
    picFloorPlan->picture().Cls();
    picFloorPlan->update();
}

void CompassWindow::picFloorPlan_Resize() {
    routine(drawing_.label(u"picFloorPlan_Resize"), [this] { drawPlan(); });
}

void CompassWindow::picFloorPlan_MouseMove(double X, double Y) {
    routine(drawing_.label(u"picFloorPlan_MouseMove"), [&] {
        const double angle = CompassGeometry::pointedAngle(X, Y);
        lblCoord->setText(QStringLiteral("X = %1, Y = %2, Angle = %3")
                              .arg(Conversion::generalNumber(X), Conversion::generalNumber(Y),
                                   Conversion::generalNumber(angle)));
    });
}

void CompassWindow::cmdPrint_Click() {
    routine(drawing_.label(u"cmdPrint_Click"), [this] {
        constexpr double margin = 720; // half an inch
        constexpr float titlePoints = 24;
        const cLocation& home = currentLocation();
        const QSizeF pageSize = PageSurface::systemPageSize();
        const QRectF area = QRectF(QPointF(), pageSize).adjusted(margin, margin, -margin, -margin);
        PlanPicture page;
        page.setScale({.ScaleLeft = 0,
                       .ScaleTop = 0,
                       .ScaleWidth = static_cast<float>(area.width()),
                       .ScaleHeight = static_cast<float>(area.height())});
        const float textSize = page.FontSize;
        page.FontSize = titlePoints;
        page.FontBold = true;
        page.CurrentX = page.scale().ScaleLeft;
        page.CurrentY = page.scale().ScaleTop;
        page.Print(home.DESCRIPTION);
        page.FontBold = false;
        page.FontSize = textSize;
        drawing_.PrintCompass(page, home.NORTHOFFSET, storedClick(home), chkColor->isChecked());
        drawing_.PrintRooms(page);
        Global::service(&Services::printer).print(printable(page, pageSize, area, home.DESCRIPTION));
    });
}
