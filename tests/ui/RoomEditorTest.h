#pragma once

#include "core/Global.h"
#include "locations/cLocation.h"
#include "profiles/cProfile.h"
#include "support/QtPrinting.h"
#include "support/RecordFiles.h"
#include "support/TestWorld.h"
#include "support/WindowDriver.h"
#include "ui/frmRoom.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QPushButton>
#include <QXmlStreamReader>
#include <gtest/gtest.h>

/// The room editor over the sample household: opened for a room, driven as a user would, its records read
/// back from the disk.
class RoomEditorTest : public testing::Test {
protected:
    using Row = QMap<QString, QString>;
    using User = std::function<void(QWidget&)>;

    TestWorld world_{TestWorld::Records::Sample};

    void SetUp() override {
        Global::CurrentProfile = std::make_unique<cProfile>();
        Global::CurrentProfile->GetProfile(1);
        openHome();
    }
    void TearDown() override {
        Global::CurrentProfile.reset();
        Global::CurrentLocation.reset();
    }
    static void openHome() {
        Global::CurrentLocation = std::make_unique<cLocation>();
        Global::CurrentLocation->LoadLocations();
        Global::CurrentLocation->LoadFloors();
        Global::CurrentLocation->LoadRooms();
        Global::CurrentLocation->GetLocation(1);
    }

    static bool open(qint32 room, const User& user) {
        bool saved = false;
        frmRoom window;
        WindowDriver::whileModal([&] { saved = window.OpenRoom(room); }, user);
        EXPECT_FALSE(window.isVisible());
        return saved;
    }
    static bool create(qint32 floor, const User& user) {
        bool saved = false;
        frmRoom window;
        WindowDriver::whileModal([&] { saved = window.NewRoom(1, floor); }, user);
        EXPECT_FALSE(window.isVisible());
        return saved;
    }

    /// Puts a text into a field by selecting what is there and pasting over it.
    static void enter(QWidget& window, const char* name, const QString& text) {
        auto& field = WindowDriver::control<QLineEdit>(window, name);
        field.setFocus();
        QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&field, Qt::Key_Delete);
        if (!text.isEmpty()) {
            QGuiApplication::clipboard()->setText(text);
            QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
        }
    }
    /// The same key by key, for texts of plain letters and digits.
    static void type(QWidget& window, const char* name, const QString& text) {
        auto& field = WindowDriver::control<QLineEdit>(window, name);
        field.setFocus();
        QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(&field, text);
    }
    /// Chooses an entry by its first letters.
    static void pick(QWidget& window, const char* name, const QString& letters) {
        auto& list = WindowDriver::control<QComboBox>(window, name);
        list.setFocus();
        QTest::keyClicks(&list, letters);
        EXPECT_TRUE(list.currentText().startsWith(letters)) << qPrintable(list.currentText());
    }
    static void check(QWidget& window, const char* name) {
        auto& box = WindowDriver::control<QCheckBox>(window, name);
        QTest::mouseClick(&box, Qt::LeftButton, Qt::NoModifier, QPoint(8, box.height() / 2));
    }
    static QString text(QWidget& window, const char* name) {
        return WindowDriver::control<QLineEdit>(window, name).text();
    }
    static QString chosen(QWidget& window, const char* name) {
        return WindowDriver::control<QComboBox>(window, name).currentText();
    }
    static bool checked(QWidget& window, const char* name) {
        return WindowDriver::control<QCheckBox>(window, name).isChecked();
    }
    static bool enabled(QWidget& window, const char* name) {
        return WindowDriver::control(window, name).isEnabled();
    }

    /// The rooms as they stand on the disk, in the order of the file.
    [[nodiscard]] QList<Row> storedRooms() const {
        QList<Row> rows;
        QXmlStreamReader reader(world_.read(QStringLiteral("Rooms.xml")));
        while (!reader.atEnd()) {
            if (reader.readNext() == QXmlStreamReader::StartElement &&
                reader.qualifiedName() == QStringLiteral("z:row")) {
                Row row;
                for (const QXmlStreamAttribute& attribute : reader.attributes()) {
                    row.insert(attribute.qualifiedName().toString(), attribute.value().toString());
                }
                rows << row;
            }
        }
        EXPECT_FALSE(reader.hasError()) << qPrintable(reader.errorString());
        return rows;
    }
    [[nodiscard]] Row storedRoom(qint32 id) const {
        for (const Row& row : storedRooms()) {
            if (row.value(QStringLiteral("ROOMID")) == QString::number(id)) {
                return row;
            }
        }
        ADD_FAILURE() << "no room " << id;
        return {};
    }
    [[nodiscard]] QString stored(qint32 id, const char* attribute) const {
        return storedRoom(id).value(QString::fromLatin1(attribute));
    }
    /// Changes an attribute of the first room in the file, which the sample names "Kitchen".
    void damageKitchen(const QByteArray& from, const QByteArray& to) const {
        QByteArray content = world_.read(QStringLiteral("Rooms.xml"));
        const qsizetype row = content.indexOf("<z:row");
        const qsizetype place = content.indexOf(from, row);
        ASSERT_TRUE(row >= 0 && place >= 0 && place < content.indexOf("/>", row));
        content.replace(place, from.size(), to);
        world_.write(QStringLiteral("Rooms.xml"), content);
    }

    void expectCloseQuestion(MessageAnswer answer) {
        world_.prompts.expectMessage(QStringLiteral("Close"),
                                     QStringLiteral("Would you like to save your changes before closing?"),
                                     MessageIcon::Question, answer);
    }
    void expectMissingDescription() {
        world_.prompts.expectMessage(
            QStringLiteral("OK"),
            QStringLiteral("Before you can save your Room, you must enter a Description for it."),
            MessageIcon::Information);
    }
};
