#include "ui/FloorPlan.h"

#include "core/Conversion.h"
#include "core/Failure.h"
#include "core/Global.h"
#include "locations/LocationFiles.h"
#include "store/RecordStore.h"
#include "ui/CurrentHome.h"
#include "ui/PlanRoom.h"
#include "ui/PlanView.h"
#include "ui/ViewFrame.h"
#include "ui/frmRoom.h"
#include "ui/platform/ComboList.h"
#include "ui/widgets/ElidedLabel.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr int betweenRelated = 8;

cXMLHandler& storedRooms() {
    return RecordStore::opened(currentHome().oXMLRooms);
}

QString roomsOfFloor(qint32 floorId) {
    return u"//z:row[@FLOORID = '%1']"_s.arg(floorId);
}

QPushButton* zoomButton(QWidget* parent, const QString& name, const QString& caption,
                        const QString& accessibleName) {
    auto* button = new QPushButton(caption, parent);
    button->setObjectName(name);
    button->setAccessibleName(accessibleName);
    button->setFixedWidth(button->sizeHint().height() + betweenRelated);
    return button;
}

} // namespace

FloorPlan::FloorPlan(ViewFrame& frame, const ComboList& floors, QWidget* parent)
    : PaneSplitter(parent)
    , frame_(frame)
    , floors_(floors)
    , readOut_(new ElidedLabel(parent)) {
    setObjectName(u"vsSplit"_s);
    setAccessibleName(tr("Rooms and floor plan"));
    buildZoom();
    buildList();
    vsRight = new FloorPlanDesk(this);
    picFloorPlan = &vsRight->plan();
    setStretchFactor(0, 0);
    setStretchFactor(1, 1);
    readOut_->setObjectName(u"lblRoomPlace"_s);
    readOut_->setAccessibleName(tr("Place of the room"));
    createRoom();
}

void FloorPlan::showEvent(QShowEvent* event) {
    PaneSplitter::showEvent(event);
    // Shares given before the pane has its size are lost when it is laid out unseen.
    if (!shared_) {
        shared_ = true;
        setSizes({width() / 5, width() - width() / 5});
    }
}

void FloorPlan::buildZoom() {
    vsZoom = new QWidget(parentWidget());
    vsZoom->setObjectName(u"vsZoom"_s);
    vsZoom->setAccessibleName(tr("Zoom"));
    auto* lblZoom = new QLabel(u"Zoom:"_s, vsZoom);
    lblZoom->setObjectName(u"lblZoom"_s);
    QPushButton* cmdMinus = zoomButton(vsZoom, u"cmdMinus"_s, u"-"_s, tr("Zoom out"));
    QPushButton* cmdPlus = zoomButton(vsZoom, u"cmdPlus"_s, u"+"_s, tr("Zoom in"));
    connect(cmdMinus, &QPushButton::clicked, this, &FloorPlan::cmdMinus_Click);
    connect(cmdPlus, &QPushButton::clicked, this, &FloorPlan::cmdPlus_Click);
    auto* row = new QHBoxLayout(vsZoom);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(betweenRelated);
    row->addWidget(lblZoom);
    row->addWidget(cmdMinus);
    row->addWidget(cmdPlus);
}

void FloorPlan::buildList() {
    constexpr int narrowest = 120;
    auto* vsLeft = new QWidget(this);
    vsLeft->setObjectName(u"vsLeft"_s);
    vsLeft->setAccessibleName(tr("Rooms"));
    lstRooms = new QListWidget(vsLeft);
    lstRooms->setObjectName(u"lstRooms"_s);
    lstRooms->setAccessibleName(tr("Rooms of the floor"));
    lstRooms->setMinimumWidth(narrowest);
    lstRooms->setTextElideMode(Qt::ElideRight);
    lstRooms->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    lstRooms->installEventFilter(this);
    rooms_.emplace(*lstRooms);
    connect(lstRooms, &QListWidget::itemSelectionChanged, this, &FloorPlan::lstRooms_Click);
    connect(lstRooms, &QListWidget::itemDoubleClicked, this, &FloorPlan::lstRooms_DblClick);
    auto* row = new QHBoxLayout(vsLeft);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(lstRooms);
}

/// The next element of the rectangles; it stays hidden.
PlanRoom& FloorPlan::createRoom() {
    const auto index = static_cast<qint32>(recRoom.size());
    auto* room = new PlanRoom(index, *picFloorPlan);
    QWidget::setTabOrder(recRoom.empty() ? static_cast<QWidget*>(lstRooms) : recRoom.back(), room);
    recRoom.push_back(room);
    connect(room, &PlanRoom::mouseDown, this,
            [this, index](Qt::MouseButton button, QPointF onPlan, QPoint onScreen) {
                recRoom_MouseDown(index, button, onPlan, onScreen);
            });
    connect(room, &PlanRoom::mouseMoved, this, &FloorPlan::recRoom_MouseMove);
    connect(room, &PlanRoom::mouseUp, this, &FloorPlan::recRoom_MouseUp);
    connect(room, &PlanRoom::doubleClicked, this, [this, index] { recRoom_DblClick(index); });
    connect(room, &PlanRoom::menuKeyPressed, this, &FloorPlan::menuWanted);
    connect(room, &PlanRoom::keyDown, this, [this](QKeyEvent* event) { recRoom_KeyDown(*event); });
    return *room;
}

qint32 FloorPlan::selectedFloor() const {
    if (floors_.ListIndex() < 0) {
        throw failure(ErrorNumber::InvalidPropertyArrayIndex);
    }
    return floors_.ItemData(floors_.ListIndex());
}

void FloorPlan::setScale() {
    const cLocation& home = currentHome();
    picFloorPlan->setScaleHeight(home.PLANLENGTH);
    picFloorPlan->setScaleWidth(home.PLANWIDTH);
}

void FloorPlan::Clear() {
    picFloorPlan->Clear();
}

void FloorPlan::ClearList() {
    rooms_->Clear();
    showPlace();
}

void FloorPlan::hideRooms() {
    drag_.reset();
    const bool inPlan = picFloorPlan->isAncestorOf(QApplication::focusWidget());
    for (auto room = recRoom.rbegin(); room != recRoom.rend(); ++room) {
        (*room)->hide();
        (*room)->setSelected(false);
        (*room)->setFocusPolicy(Qt::ClickFocus);
    }
    if (inPlan) {
        lstRooms->setFocus(); // or the focus would wander to the next button
    }
}

void FloorPlan::FillRooms() {
    passOver([this] { ClearList(); });
    passOver([this] { hideRooms(); });
    passOver([] { currentHome().LoadRooms(); });
    qint32 count = 0;
    passOver([&] {
        cXMLHandler& rooms = storedRooms();
        count = rooms.Query(roomsOfFloor(selectedFloor())) ? rooms.ResultCount : 0;
    });
    for (qint32 index = 0; index < count; ++index) {
        showRoom(index);
    }
    passOver([this] { DrawRooms(); });
    passOver([this] {
        for (const auto& entry :
             {u"mnuLocationsDirections"_s, u"mnuLocationsOpenRoom"_s, u"mnuLocationsDeleteRoom"_s}) {
            frame_.setEntryEnabled(entry, rooms_->ListCount() > 0);
        }
    });
}

/// Lists and shows one result of the query for a floor's rooms.
void FloorPlan::showRoom(qint32 index) {
    const auto stored = [](const QString& attribute) { return storedRooms().GetAttribute(attribute, true); };
    qint32 roomId = 0;
    QString description;
    passOver([&] { storedRooms().GetResult(index); });
    passOver([&] { description = stored(u"DESCRIPTION"_s); });
    passOver([&] { roomId = Conversion::toLong(stored(u"ROOMID"_s)); });
    passOver([&] { rooms_->AddItem(description, roomId); });
    passOver([&] {
        if (static_cast<std::size_t>(index) >= recRoom.size()) {
            createRoom();
        }
    });
    PlanRoom& room = *recRoom.at(static_cast<std::size_t>(index));
    passOver([&] { room.setTop(LocationFiles::distance(stored(u"TOP"_s))); });
    passOver([&] { room.setLeft(LocationFiles::distance(stored(u"LEFT"_s))); });
    passOver([&] { room.setWidth(LocationFiles::distance(stored(u"WIDTH"_s))); });
    passOver([&] { room.setHeight(LocationFiles::distance(stored(u"LENGTH"_s))); });
    passOver([&] { room.setDescription(description); });
    passOver([&] { room.show(); });
}

void FloorPlan::DrawRooms() {
    routine(u"frmView.Draw Rooms", [this] {
        Clear();
        const qint32 floor = floors_.ListIndex();
        if (floor < 1) {
            return;
        }
        SetPicScaleMode();
        cXMLHandler& rooms = storedRooms();
        const qint32 count = rooms.Query(roomsOfFloor(floors_.ItemData(floor - 1))) ? rooms.ResultCount : 0;
        for (qint32 index = 0; index < count; ++index) {
            rooms.GetResult(index);
            drawOutline();
        }
    });
}

/// Draws the four lines of the selected result and its name, edge by edge: what a damaged number does not
/// concern is drawn before it fails.
void FloorPlan::drawOutline() {
    cXMLHandler& rooms = storedRooms();
    const auto whole = [&](const QString& attribute) {
        return Conversion::toLong(rooms.GetAttribute(attribute, true));
    };
    const auto sum = [](qint32 one, qint32 other) {
        return Conversion::toLong(static_cast<double>(one) + static_cast<double>(other));
    };
    constexpr qint32 textInset = 10;
    const qint32 left = whole(u"LEFT"_s);
    const qint32 top = whole(u"TOP"_s);
    const qint32 right = sum(left, whole(u"WIDTH"_s));
    picFloorPlan->drawLine({left, top}, {right, top});
    const qint32 bottom = sum(top, whole(u"LENGTH"_s));
    picFloorPlan->drawLine({left, bottom}, {right, bottom});
    picFloorPlan->drawLine({left, top}, {left, bottom});
    picFloorPlan->drawLine({right, top}, {right, bottom});
    picFloorPlan->print({sum(left, textInset), sum(top, textInset)},
                        rooms.GetAttribute(u"DESCRIPTION"_s, true));
}

void FloorPlan::SetPicScaleMode() {
    routine(u"frmView.Set Pic ScaleMode", [this] {
        constexpr double doubled = 2;
        const auto middle = [](qint32 from, qint32 to) {
            return Conversion::toLong((static_cast<double>(to) - from) / doubled + from);
        };
        PlanLeft = PlanView::ScaleLeft;
        PlanRight = Conversion::toLong(picFloorPlan->ScaleWidth() * doubled);
        PlanTop = PlanView::ScaleTop;
        PlanBottom = Conversion::toLong(picFloorPlan->ScaleHeight() * doubled);
        PlanCenterX = middle(PlanLeft, PlanRight);
        PlanCenterY = middle(PlanTop, PlanBottom);
    });
}

void FloorPlan::showPlace() {
    const qint32 index = rooms_->ListIndex();
    if (index < 0 || static_cast<std::size_t>(index) >= recRoom.size()) {
        readOut_->setText(QString());
        return;
    }
    readOut_->setText(rooms_->List(index) + u": "_s +
                      recRoom.at(static_cast<std::size_t>(index))->placeText());
}

void FloorPlan::zoomBy(qint32 inches) {
    cLocation& home = currentHome();
    const auto changed = [inches](qint32 extent) {
        return Conversion::toLong(static_cast<double>(extent) + inches);
    };
    home.PLANLENGTH = changed(home.PLANLENGTH);
    home.PLANWIDTH = changed(home.PLANWIDTH);
    setScale();
    FillRooms();
    Q_EMIT zoomed();
}

void FloorPlan::cmdPlus_Click() {
    constexpr qint32 nearer = -100;
    routine(u"frmView.cmdPlus_Click", [this] { zoomBy(nearer); });
}

void FloorPlan::cmdMinus_Click() {
    constexpr qint32 further = 100;
    routine(u"frmView.cmdMinus_Click", [this] { zoomBy(further); });
}

void FloorPlan::mnuLocationsNewRoom_Click() {
    routine(u"frmView.mnuLocationsNewRoom_Click", [this] {
        if (!frmRoom(window()).NewRoom(currentHome().LocationID, selectedFloor())) {
            return;
        }
        FillRooms();
        rooms_->setListIndex(rooms_->ListCount() - 1);
        // The editor may have put the room on another floor, and left this one empty.
        if (rooms_->ListIndex() >= 0) {
            recRoom.at(static_cast<std::size_t>(rooms_->ListIndex()))->raise();
        }
    });
}

void FloorPlan::mnuLocationsOpenRoom_Click() {
    routine(u"frmView.mnuLocationsOpenRoom_Click", [this] { openSelectedRoom(); });
}

void FloorPlan::openSelectedRoom() {
    if (rooms_->ListIndex() < 0) {
        return;
    }
    const qint32 roomId = rooms_->ItemData(rooms_->ListIndex());
    if (!frmRoom(window()).OpenRoom(roomId)) {
        return;
    }
    FillRooms();
    if (roomId >= 0) {
        Global::FindInData(*rooms_, QString::number(roomId), 0, -1);
    }
}

void FloorPlan::mnuLocationsDeleteRoom_Click() {
    routine(u"frmView.mnuLocationsDeleteRoom_Click", [this] {
        if (rooms_->ListIndex() < 0) {
            return;
        }
        cXMLHandler& rooms = storedRooms();
        if (rooms.Find(u"ROOMID"_s, rooms_->ItemData(rooms_->ListIndex()))) {
            rooms.Delete();
            rooms.SaveDocument();
            FillRooms();
        }
    });
}

QList<QWidget*> FloorPlan::tabStops() const {
    return {vsZoom->findChild<QPushButton*>(u"cmdMinus"_s), vsZoom->findChild<QPushButton*>(u"cmdPlus"_s),
            lstRooms, recRoom.front()};
}

bool FloorPlan::eventFilter(QObject* watched, QEvent* event) {
    if (watched == lstRooms && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            mnuLocationsOpenRoom_Click();
            return true;
        }
    }
    return PaneSplitter::eventFilter(watched, event);
}
