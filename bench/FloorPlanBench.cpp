#include "BenchWorld.h"
#include "Ratio.h"
#include "core/Global.h"
#include "locations/cLocation.h"
#include "ui/LocationPane.h"
#include "ui/PlanRoom.h"
#include "ui/ViewFrame.h"

#include <QApplication>
#include <QFile>
#include <QMouseEvent>
#include <benchmark/benchmark.h>

#include <cstdlib>

namespace {

/// As many rooms as one floor of the measured homes has at most; the others are on the floor above.
constexpr int roomsOfFloor = 200;

class NoFrame final : public ViewFrame {
public:
    void setPanel(Pane /*pane*/, const QString& /*name*/) override {}
    void setEntryEnabled(const QString& /*name*/, bool /*enabled*/) override {}
    void connectEntry(const QString& /*name*/, std::function<void()> /*handler*/) override {}
    void pressButton(Pane /*pane*/) override {}
    void popUpLocations(const QPoint& /*onScreen*/) override {}
};

/// The location pane on the screen, with a home of so many rooms.
class ShownHome {
public:
    explicit ShownHome(int rooms)
        : world_(rooms) {
        moveRestUpstairs();
        Global::CurrentLocation = std::make_unique<cLocation>();
        Global::CurrentLocation->LoadLocations();
        Global::CurrentLocation->LoadFloors();
        Global::CurrentLocation->LoadRooms();
        pane_ = std::make_unique<LocationPane>(frame_);
        pane_->resize(1100, 700);
        pane_->show();
        pane_->OpenLocation(1);
        QApplication::processEvents();
        for (PlanRoom* room : pane_->findChildren<PlanRoom*>()) {
            dragged_ = room->Index() == 0 ? room : dragged_;
        }
        if (dragged_ == nullptr || !dragged_->isVisible()) {
            std::abort();
        }
    }
    ShownHome(const ShownHome&) = delete;
    ShownHome& operator=(const ShownHome&) = delete;
    ~ShownHome() {
        pane_.reset();
        Global::CurrentLocation.reset();
    }

    /// Drags a room to and fro, with everything painted on the way; it is stored at its drop.
    void drag() {
        const QPointF hold(5, 5);
        way_ = -way_;
        send(QEvent::MouseButtonPress, hold, Qt::LeftButton, Qt::LeftButton);
        send(QEvent::MouseMove, hold + QPointF(way_, way_), Qt::NoButton, Qt::LeftButton);
        send(QEvent::MouseButtonRelease, hold, Qt::LeftButton, Qt::NoButton);
    }

private:
    void moveRestUpstairs() {
        QFile file(world_.file(QStringLiteral("Rooms.xml")));
        if (!file.open(QIODevice::ReadWrite)) {
            std::abort();
        }
        QByteArray content = file.readAll();
        qsizetype at = 0;
        for (int room = 0; at >= 0; ++room) {
            at = content.indexOf(R"(FLOORID="1")", at + 1);
            if (at >= 0 && room >= roomsOfFloor) {
                content[at + 9] = '2';
            }
        }
        file.seek(0);
        file.write(content);
    }
    void send(QEvent::Type type, QPointF within, Qt::MouseButton button, Qt::MouseButtons buttons) {
        QMouseEvent event(type, within, dragged_->mapToGlobal(within), button, buttons, Qt::NoModifier);
        QApplication::sendEvent(dragged_, &event);
        QApplication::processEvents();
    }

    BenchWorld world_;
    NoFrame frame_;
    std::unique_ptr<LocationPane> pane_;
    PlanRoom* dragged_ = nullptr;
    double way_ = 40;
};

template<int rooms>
void BM_DropRoom(benchmark::State& state) {
    ShownHome home(rooms);
    while (state.KeepRunning()) {
        home.drag();
    }
}
BENCHMARK(BM_DropRoom<10>)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_DropRoom<100>)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_DropRoom<1000>)->Unit(benchmark::kMillisecond)->UseRealTime();

/// What no drop can do without.
void BM_SaveThousandRooms(benchmark::State& state) {
    const BenchWorld world(1000);
    cXMLHandler store;
    store.LoadDocument(world.file(QStringLiteral("Rooms.xml")));
    while (state.KeepRunning()) {
        if (!store.SaveDocument()) {
            std::abort();
        }
    }
}
BENCHMARK(BM_SaveThousandRooms)->Unit(benchmark::kMillisecond)->UseRealTime();

[[maybe_unused]] const bool added =
    addRatio(
        {"a drop with 100 rooms in the file to one with 10", "BM_DropRoom<100>", "BM_DropRoom<10>", 2}) &&
    addRatio({"a drop with 1,000 rooms in the file, 200 of them shown, to one with 10", "BM_DropRoom<1000>",
              "BM_DropRoom<10>", 4}) &&
    addRatio({"a drop with 1,000 rooms in the file to saving that file alone", "BM_DropRoom<1000>",
              "BM_SaveThousandRooms", 5});

} // namespace
