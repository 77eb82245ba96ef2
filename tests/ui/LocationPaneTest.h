#pragma once

#include "app/Startup.h"
#include "core/Global.h"
#include "locations/cLocation.h"
#include "profiles/cProfile.h"
#include "support/QtPrinting.h"
#include "support/RecordFiles.h"
#include "support/TestWorld.h"
#include "support/WindowDriver.h"
#include "ui/FloorPlan.h"
#include "ui/PlanRoom.h"
#include "ui/PlanView.h"
#include "ui/StatusPanels.h"
#include "ui/frmView.h"
#include "ui/widgets/RecordList.h"
#include "ui/widgets/TitleBand.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPushButton>
#include <QToolButton>
#include <QXmlStreamReader>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace WindowDriver;

/// The main window with the location pane in front, over the sample household: home 1, "Elm Street", with
/// nine rooms on its first floor and eight on its second.
class LocationPaneTest : public testing::Test {
protected:
    using Row = QMap<QString, QString>;

    TestWorld world_{TestWorld::Records::Sample};
    std::unique_ptr<frmView> view_ = std::make_unique<frmView>();
    const QString startUp_ = Global::settingsSection(u"StartUp"_s);

    void SetUp() override {
        Services services = Global::services();
        services.mainWindow = view_.get();
        Global::use(services);
        world_.settings.setText(startUp_, u"LastProfile"_s, u"1"_s);
        world_.settings.setText(startUp_, u"LastLocation"_s, u"1"_s);
    }
    void TearDown() override {
        view_.reset();
        Global::CurrentProfile.reset();
        Global::CurrentLocation.reset();
    }
    /// Starts the program on the records as they are, and goes to the location pane.
    void start() {
        Global::Main();
        view_->resize(1100, 760);
        pressLocations();
    }
    void startEmpty() {
        for (const char* name : {"Locations.xml", "Floors.xml", "Rooms.xml"}) {
            world_.write(QString::fromLatin1(name), recordFile({}));
        }
        world_.settings.removeValue(startUp_, u"LastLocation"_s);
        start();
    }
    void pressLocations() {
        QTest::mouseClick(&control<QToolButton>(*view_, "LOCATION"), Qt::LeftButton);
        QApplication::processEvents();
    }
    /// Puts a text into a visible field key by key.
    void type(const char* name, const QString& text) {
        auto& field = control<QLineEdit>(*view_, name);
        field.selectAll();
        QTest::keyClick(&field, Qt::Key_Delete);
        QTest::keyClicks(&field, text);
    }
    /// Edits the name of the home on show.
    void rename(const QString& name) {
        auto& list = control<RecordList>(*view_, "cboLocation");
        list.lineEdit()->selectAll();
        QTest::keyClicks(list.lineEdit(), name);
    }
    void run(const char* entry) { choose(*view_, "mnuLocations", entry); }
    void chooseFloor(int index) {
        auto& list = control<QComboBox>(*view_, "cboFloors");
        list.setFocus();
        while (list.currentIndex() < index) {
            QTest::keyClick(&list, Qt::Key_Down);
        }
        while (list.currentIndex() > index) {
            QTest::keyClick(&list, Qt::Key_Up);
        }
    }

    [[nodiscard]] QString text(const char* label) const { return control<QLabel>(*view_, label).text(); }
    [[nodiscard]] QString panel() const {
        return control<StatusPanels>(*view_, "sbInfo").panel(u"Location"_s);
    }
    [[nodiscard]] QString band() const { return control<TitleBand>(*view_, "vsTopLocation").caption(); }
    [[nodiscard]] QString homeName() const { return control<QComboBox>(*view_, "cboLocation").currentText(); }
    [[nodiscard]] QString floorName() const { return control<QComboBox>(*view_, "cboFloors").currentText(); }
    [[nodiscard]] bool shown(const char* name) const { return control(*view_, name).isVisible(); }
    [[nodiscard]] bool enabled(const char* name) const { return control(*view_, name).isEnabled(); }
    [[nodiscard]] bool entryEnabled(const char* name) const {
        return control<QAction>(*view_, name).isEnabled();
    }
    [[nodiscard]] QString setting(const QString& name) const { return world_.settings.text(startUp_, name); }
    static QStringList entries(const QComboBox& list) {
        QStringList texts;
        for (int i = 0; i < list.count(); ++i) {
            texts << list.itemText(i);
        }
        return texts;
    }
    [[nodiscard]] QStringList floors() const { return entries(control<QComboBox>(*view_, "cboFloors")); }
    [[nodiscard]] QStringList homes() const { return entries(control<QComboBox>(*view_, "cboLocation")); }

    // The rooms.

    [[nodiscard]] QListWidget& list() const { return control<QListWidget>(*view_, "lstRooms"); }
    [[nodiscard]] QStringList listed() const {
        QStringList texts;
        for (int i = 0; i < list().count(); ++i) {
            texts << list().item(i)->text();
        }
        return texts;
    }
    [[nodiscard]] int selected() const {
        const auto rows = list().selectionModel()->selectedRows();
        return rows.isEmpty() ? -1 : rows.constFirst().row();
    }
    [[nodiscard]] PlanView& plan() const { return control<PlanView>(*view_, "picFloorPlan"); }
    [[nodiscard]] PlanRoom& room(qint32 index) const {
        for (PlanRoom* candidate : plan().findChildren<PlanRoom*>()) {
            if (candidate->Index() == index) {
                return *candidate;
            }
        }
        throw std::runtime_error("there is no such room");
    }
    [[nodiscard]] qsizetype visibleRooms() const {
        const auto all = plan().findChildren<PlanRoom*>();
        return std::count_if(all.begin(), all.end(), [](const PlanRoom* each) { return each->isVisible(); });
    }
    /// The pixel of the plan at so many inches.
    [[nodiscard]] QPointF at(double x, double y) const { return QPointF(x, y) * plan().pixelsPerInch(); }

    // The mouse, as the system would send it: the press goes to what lies under it, the rest to the same.

    void press(QPointF onPlan, Qt::MouseButton button = Qt::LeftButton) {
        held_ = plan().childAt(onPlan.toPoint());
        held_ = held_ == nullptr ? &plan() : held_;
        send(QEvent::MouseButtonPress, onPlan, button, button);
    }
    void moveTo(QPointF onPlan) { send(QEvent::MouseMove, onPlan, Qt::NoButton, Qt::LeftButton); }
    void release(QPointF onPlan, Qt::MouseButton button = Qt::LeftButton) {
        send(QEvent::MouseButtonRelease, onPlan, button, Qt::NoButton);
    }
    void drag(QPointF from, QPointF to) {
        press(from);
        moveTo((from + to) / 2);
        moveTo(to);
        release(to);
    }

    // The records on disk.

    [[nodiscard]] QList<Row> rows(const QString& file) const {
        QList<Row> found;
        QXmlStreamReader reader(world_.read(file));
        while (!reader.atEnd()) {
            if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == u"row") {
                Row row;
                for (const QXmlStreamAttribute& attribute : reader.attributes()) {
                    row.insert(attribute.name().toString(), attribute.value().toString());
                }
                found << row;
            }
        }
        EXPECT_FALSE(reader.hasError()) << qPrintable(reader.errorString());
        return found;
    }
    [[nodiscard]] Row row(const QString& file, const QString& key, const QString& value) const {
        for (const Row& each : rows(file)) {
            if (each.value(key) == value) {
                return each;
            }
        }
        return {};
    }
    [[nodiscard]] QString stored(const QString& roomId, const QString& field) const {
        return row(u"Rooms.xml"_s, u"ROOMID"_s, roomId).value(field);
    }
    void writeRooms(const QByteArrayList& records) { world_.write(u"Rooms.xml"_s, recordFile(records)); }

private:
    void send(QEvent::Type type, QPointF onPlan, Qt::MouseButton button, Qt::MouseButtons buttons) {
        const QPointF onScreen = plan().mapToGlobal(onPlan);
        QMouseEvent event(type, held_->mapFromGlobal(onScreen), onScreen, button, buttons, Qt::NoModifier);
        QApplication::sendEvent(held_, &event);
    }

    QWidget* held_ = nullptr;
};
