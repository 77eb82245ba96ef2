// How the user handles the rooms on the plan: selecting, dragging, moving by keys.

#include "core/Conversion.h"
#include "core/Failure.h"
#include "store/RecordStore.h"
#include "ui/CurrentHome.h"
#include "ui/FloorPlan.h"
#include "ui/PlanRoom.h"
#include "ui/PlanView.h"

#include <QKeyEvent>
#include <QListWidget>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

void FloorPlan::lstRooms_Click() {
    passOver([this] {
        const qint32 selected = rooms_->ListIndex();
        for (qint32 index = 0; index < rooms_->ListCount(); ++index) {
            PlanRoom& room = *recRoom.at(static_cast<std::size_t>(index));
            room.setSelected(index == selected);
            // Tab goes to the selected room alone, not through all of them.
            room.setFocusPolicy(index == selected ? Qt::StrongFocus : Qt::ClickFocus);
            room.setDescription(rooms_->List(index));
            if (index == selected) {
                room.raise();
            }
        }
        showPlace();
    });
}

void FloorPlan::lstRooms_DblClick() {
    mnuLocationsOpenRoom_Click();
}

void FloorPlan::recRoom_Click(qint32 Index) {
    passOver([&] { rooms_->setListIndex(Index); });
}

void FloorPlan::recRoom_DblClick(qint32 Index) {
    cancelDrag();
    routine(u"frmView.recRoom_DblClick", [&] {
        rooms_->setListIndex(Index);
        openSelectedRoom();
    });
}

void FloorPlan::recRoom_MouseDown(qint32 Index, Qt::MouseButton Button, QPointF onPlan, QPoint onScreen) {
    passOver([&] {
        if (drag_ && Button != Qt::LeftButton) {
            return; // a room is in the user's hand
        }
        cancelDrag(); // one whose end another window has swallowed
        rooms_->setListIndex(Index);
        CurrentRoomControl = recRoom.at(static_cast<std::size_t>(Index));
        if (Button != Qt::LeftButton) {
            Q_EMIT menuWanted(onScreen);
            return;
        }
        const PlanRoom& held = *CurrentRoomControl;
        const QPointF inches = picFloorPlan->toPlan(onPlan);
        GrabX = Conversion::toLong(inches.x() - static_cast<double>(held.Left()));
        GrabY = Conversion::toLong(inches.y() - static_cast<double>(held.Top()));
        drag_ = Drag{CurrentRoomControl, onPlan, held.Left(), held.Top(), false};
    });
}

void FloorPlan::recRoom_MouseMove(QPointF onPlan) {
    // A trembling hand does not move the room that it clicks; beyond that every pixel counts.
    constexpr double tremor = 3;
    if (!drag_) {
        return;
    }
    if (!drag_->moving && (onPlan - drag_->pressedAt).manhattanLength() < tremor) {
        return;
    }
    drag_->moving = true;
    drag_->room->setCursor(Qt::ClosedHandCursor);
    const QPointF inches = picFloorPlan->toPlan(onPlan);
    drag_->room->Move(static_cast<float>(inches.x()) - static_cast<float>(GrabX),
                      static_cast<float>(inches.y()) - static_cast<float>(GrabY));
    showPlace();
}

void FloorPlan::recRoom_MouseUp(Qt::MouseButton Button, QPointF onPlan) {
    if (!drag_ || Button != Qt::LeftButton) {
        return;
    }
    PlanRoom& source = *drag_->room;
    const bool moved = drag_->moving;
    cancelDrag(); // the room stands where it was until the drop places it
    if (!moved) {
        recRoom_Click(source.Index());
        return;
    }
    if (!QRectF(picFloorPlan->rect()).contains(onPlan)) {
        return; // dropped beside the plan, where nothing takes it
    }
    const QPointF inches = picFloorPlan->toPlan(onPlan);
    const auto X = static_cast<float>(inches.x());
    const auto Y = static_cast<float>(inches.y());
    if (const PlanRoom* under = roomUnder(onPlan.toPoint()); under != nullptr) {
        recRoom_DragDrop(under->Index(), source, X - under->Left(), Y - under->Top());
    } else {
        picFloorPlan_DragDrop(source, X, Y);
    }
}

/// The topmost room at a point of the plan.
PlanRoom* FloorPlan::roomUnder(QPoint pixels) const {
    return qobject_cast<PlanRoom*>(picFloorPlan->childAt(pixels));
}

/// Ends the drag, if there is one, with the room back in its old place.
void FloorPlan::cancelDrag() {
    if (!drag_) {
        return;
    }
    const Drag ended = *drag_;
    drag_.reset();
    ended.room->setCursor(Qt::OpenHandCursor);
    ended.room->Move(ended.left, ended.top);
    showPlace();
}

void FloorPlan::recRoom_DragDrop(qint32 Index, PlanRoom& Source, float X, float Y) {
    routine(u"frmView.recRoom_DragDrop", [&] {
        const PlanRoom& target = *recRoom.at(static_cast<std::size_t>(Index));
        drop(Source, target.Left() + X - static_cast<float>(GrabX),
             target.Top() + Y - static_cast<float>(GrabY));
    });
}

void FloorPlan::picFloorPlan_DragDrop(PlanRoom& Source, float X, float Y) {
    routine(u"frmView.picFloorPlan_DragDrop",
            [&] { drop(Source, X - static_cast<float>(GrabX), Y - static_cast<float>(GrabY)); });
}

/// Puts a room in its new place, on the screen and in the file.
void FloorPlan::drop(PlanRoom& room, float left, float top) {
    room.Move(left, top);
    room.raise();
    showPlace();
    cXMLHandler& rooms = RecordStore::opened(currentHome().oXMLRooms);
    if (rooms.Find(u"ROOMID"_s, rooms_->ItemData(room.Index()))) {
        rooms.SetAttribute(u"LEFT"_s, Conversion::generalNumber(room.Left()));
        rooms.SetAttribute(u"TOP"_s, Conversion::generalNumber(room.Top()));
        rooms.SaveDocument();
    }
}

void FloorPlan::recRoom_KeyDown(QKeyEvent& event) {
    constexpr float inch = 1;
    constexpr float foot = 12;
    const float step = (event.modifiers() & Qt::ShiftModifier) != 0 ? foot : inch;
    float right = 0;
    float down = 0;
    switch (event.key()) {
    case Qt::Key_Left:
        right = -step;
        break;
    case Qt::Key_Right:
        right = step;
        break;
    case Qt::Key_Up:
        down = -step;
        break;
    case Qt::Key_Down:
        down = step;
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        event.accept();
        mnuLocationsOpenRoom_Click();
        return;
    case Qt::Key_Escape:
        event.setAccepted(drag_.has_value());
        cancelDrag();
        return;
    default:
        return;
    }
    event.accept();
    const qint32 index = rooms_->ListIndex();
    if (index < 0 || drag_) {
        return;
    }
    routine(u"frmView.picFloorPlan_DragDrop", [&] {
        PlanRoom& room = *recRoom.at(static_cast<std::size_t>(index));
        drop(room, room.Left() + right, room.Top() + down);
    });
}
