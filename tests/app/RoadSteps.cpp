#include "app/RoadSteps.h"

#include "support/PdfText.h"

#include <QDir>
#include <QSet>
#include <QTextDocumentFragment>

#include <cmath>
#include <numbers>

using namespace Qt::StringLiterals;

namespace {

const QString mainWindow = u"Feng Shui"_s;
constexpr QRgb selectionColor = qRgb(200, 220, 250);
/// The outline of a selected room, which has another colour than its inside.
constexpr int outline = 2;
constexpr int inchesPerFoot = 12;
/// The place of the centre in the list of directions.
constexpr int centre = 4;

int inches(int feet, int rest) {
    return feet * inchesPerFoot + rest;
}

/// The compass angle of a point seen from the origin, y growing downward.
double angleOf(double x, double y) {
    const double degrees = std::atan2(x, -y) * 180 / std::numbers::pi;
    return degrees < 0 ? degrees + 360 : degrees;
}

/// The directions that a point this many degrees from North may have: two at the border of sectors, where the
/// rounding of a sector's ends decides.
QSet<int> directionsAt(double fromNorth) {
    struct Sector {
        double end;
        int direction;
    };
    constexpr Sector sectors[] = {{15, 1},  {75, 8},  {105, 3}, {165, 4}, {195, 9},
                                  {255, 2}, {285, 7}, {345, 6}, {361, 1}};
    QSet<int> found;
    for (const double shift : {-1.0, 1.0}) {
        const double angle = std::fmod(fromNorth + shift + 360, 360);
        for (const Sector& sector : sectors) {
            if (angle < sector.end) {
                found << sector.direction;
                break;
            }
        }
    }
    return found;
}

} // namespace

void RoadTest::enterPerson(const EnteredPerson& person) {
    const qsizetype before = records(u"Profiles.xml"_s).size();
    Input input;
    input.type(person.name).press({u"Tab"_s}).type(person.birthDate);
    input.press({u"Tab"_s, u"Tab"_s}).press(u"Right"_s, person.female ? 0 : 1);
    input.press({u"space"_s});
    // By the number to the button that calculates it.
    send(input.press({u"Tab"_s, u"Tab"_s, u"space"_s, u"alt+s"_s}));
    awaitRecords(u"Profiles.xml"_s, before + 1);
}

void RoadTest::newPerson() {
    openPopup(Input().press({u"alt+p"_s}));
    closePopup(Input().press({u"n"_s}));
}

void RoadTest::showLocations() {
    constexpr QPoint onTheButton(150, 43);
    send(Input().click(geometry(mainWindow).topLeft() + onTheButton));
}

void RoadTest::enterHome(const QString& name, int floors) {
    const qsizetype before = records(u"Locations.xml"_s).size();
    const qsizetype floorsBefore = records(u"Floors.xml"_s).size();
    send(Input().type(name).press({u"Tab"_s, u"ctrl+a"_s}).type(QString::number(floors)).press({u"alt+s"_s}));
    awaitRecords(u"Locations.xml"_s, before + 1);
    awaitRecords(u"Floors.xml"_s, floorsBefore + floors);
}

void RoadTest::choose(FromEnd entry, bool opensWindow) {
    openPopup(Input().press({u"alt+l"_s}));
    const Input choice = Input().press(u"Up"_s, static_cast<int>(entry)).press({u"Return"_s});
    if (opensWindow) {
        send(choice);
    } else {
        closePopup(choice);
    }
}

void RoadTest::chooseFloor(int index) {
    constexpr QPoint onTheList(350, 170);
    openPopup(Input().click(geometry(mainWindow).topLeft() + onTheList));
    closePopup(Input().press({u"Home"_s}).press(u"Down"_s, index).press({u"Return"_s}));
}

void RoadTest::addRoom(const EnteredRoom& room) {
    const auto stored = records(u"Rooms.xml"_s);
    const QString floorId = records(u"Floors.xml"_s).value(room.floor).value(u"FLOORID"_s);
    const bool first = std::none_of(stored.begin(), stored.end(), [&](const Record& other) {
        return other.value(u"FLOORID"_s) == floorId;
    });
    choose(first ? FromEnd::NewRoomOnEmptyFloor : FromEnd::NewRoom);
    focusWindow(u"Room"_s);
    Input input;
    input.type(room.name);
    const auto pick = [&](int index) { input.press({u"Tab"_s, u"Home"_s}).press(u"Down"_s, index); };
    pick(room.kind);
    pick(room.floor);
    pick(centre); // until North tells the direction
    pick(room.flooring);
    for (const int number : {room.lengthFeet, room.lengthInches, room.widthFeet, room.widthInches}) {
        input.press({u"Tab"_s}).type(QString::number(number));
    }
    for (const bool checked : {room.lowCeiling, room.beams, room.entrance}) {
        input.press({u"Tab"_s}).press(u"space"_s, checked ? 1 : 0);
    }
    send(input.press({u"Return"_s})); // Finish
    awaitRecords(u"Rooms.xml"_s, stored.size() + 1);
    picture(u"room-"_s + QString::number(stored.size()));
    press({u"Escape"_s});
    leaveWindow(u"Room"_s, mainWindow);
}

void RoadTest::confirm(const QString& title, const QString& file, const std::function<void()>& command) {
    const QByteArray before = content(folder_ + u'/' + file);
    command();
    focusWindow(title);
    press({u"Return"_s});
    leaveWindow(title, mainWindow);
    EXPECT_EQ(content(folder_ + u'/' + file), before) << "No was taken for Yes";
    command();
    focusWindow(title);
    picture(title);
    press({u"alt+y"_s});
    leaveWindow(title, mainWindow);
}

QRect RoadTest::selectedRoom() const {
    const QRect inside = areaOf(selectionColor);
    return inside.isEmpty() ? QRect() : inside.adjusted(-outline, -outline, outline, outline);
}

void RoadTest::placeNewRoom(const EnteredRoom& room) {
    const QSizeF size(inches(room.widthFeet, room.widthInches), inches(room.lengthFeet, room.lengthInches));
    const QString id = records(u"Rooms.xml"_s).last().value(u"ROOMID"_s);
    const double oneOff = 1 + size.height() / size.width(); // of a point in height and in width
    QRect shown;
    // A room's edges are drawn on both of its ends.
    const auto scale = [&] { return (shown.width() - 1) / size.width(); };
    ASSERT_TRUE(await(room.name + u" selected in the plan's corner"_s, [&] {
        shown = selectedRoom();
        return !shown.isEmpty() && std::abs((shown.height() - 1) - size.height() * scale()) < oneOff &&
               (!planCorner_ || shown.topLeft() == *planCorner_);
    }));
    planCorner_ = shown.topLeft();
    ASSERT_GT(scale(), 0.5) << "the plan is too small to work on";
    const QPoint way = (QPointF(room.place) * scale()).toPoint();
    const QPoint grip = shown.bottomRight() - QPoint(6, 6);
    send(Input().drag(grip, grip + way));

    // Whole pixels tell the scale roughly; that the room goes exactly with the mouse is seen on the screen.
    const double tolerance = 4 + 0.06 * std::max(room.place.x(), room.place.y());
    Record moved;
    const bool stored = await(room.name + u" in its new place"_s, [&] {
        for (const Record& record : records(u"Rooms.xml"_s)) {
            if (record.value(u"ROOMID"_s) == id) {
                moved = record;
            }
        }
        return std::abs(moved.value(u"LEFT"_s).toDouble() - room.place.x()) < tolerance &&
               std::abs(moved.value(u"TOP"_s).toDouble() - room.place.y()) < tolerance;
    });
    ASSERT_TRUE(stored) << "left " << qPrintable(moved.value(u"LEFT"_s)) << " top "
                        << qPrintable(moved.value(u"TOP"_s));
    ASSERT_TRUE(await(room.name + u" under the mouse where it took hold"_s, [&] {
        return (selectedRoom().topLeft() - shown.topLeft() - way).manhattanLength() <= 2;
    }));
}

void RoadTest::enterRooms(const QList<EnteredRoom>& rooms) {
    int floor = 0;
    for (const EnteredRoom& room : rooms) {
        if (room.floor != floor) {
            floor = room.floor;
            chooseFloor(floor);
        }
        addRoom(room);
        if (HasFatalFailure()) {
            return;
        }
        placeNewRoom(room);
        if (HasFatalFailure()) {
            return;
        }
    }
}

void RoadTest::pointNorth(QPointF inWindow, const QString& button) {
    choose(FromEnd::SetDirections);
    focusWindow(u"Set Direction"_s);
    const QRect window = geometry(u"Set Direction"_s);
    send(Input().click(window.topLeft() +
                       QPointF(inWindow.x() * window.width(), inWindow.y() * window.height()).toPoint()));
    picture(u"north"_s);
    press({button});
    leaveWindow(u"Set Direction"_s, mainWindow);
}

QByteArray RoadTest::saveHtml(const QString& title, const QStringList& menuKeys) {
    const QString path = temporary_.path() + u"/report%1.html"_s.arg(++exports_);
    press(menuKeys);
    focusWindow(u"Save to HTML"_s);
    send(Input().type(path).press({u"Return"_s}));
    leaveWindow(u"Save to HTML"_s, title);
    QByteArray html;
    EXPECT_TRUE(await(path, [&] {
        html = content(path);
        return html.trimmed().endsWith("</html>");
    }));
    return html;
}

QByteArray RoadTest::printPdf(const QString& title) {
    const QString path = temporary_.path() + u"/print.pdf"_s; // what the dialog proposes
    press({u"alt+p"_s});
    focusWindow(u"Print"_s);
    press({u"Return"_s});
    leaveWindow(u"Print"_s, title);
    QByteArray pdf;
    EXPECT_TRUE(await(path, [&] {
        pdf = content(path);
        return pdf.trimmed().endsWith("%%EOF");
    }));
    EXPECT_TRUE(QFile::remove(path)); // or the dialog would ask the next time
    return pdf;
}

void RoadTest::readAdvice(const QString& letter, const QString& title, const QByteArrayList& texts,
                          const Input& input) {
    SCOPED_TRACE(title.toStdString());
    press({u"alt+a"_s, letter});
    focusWindow(title);
    if (!input.commands().isEmpty()) {
        send(input);
    }
    const QByteArray html = saveHtml(title);
    picture(u"advice-"_s + letter);
    qsizetype at = 0;
    for (const QByteArray& text : texts) {
        const qsizetype found = html.indexOf(text, at);
        EXPECT_GE(found, 0) << text.toStdString() << " is missing or out of order";
        at = std::max(found, at);
    }
    const QByteArray pdf = printPdf(title);
    EXPECT_TRUE(pdf.startsWith("%PDF-"));
    const qsizetype name = html.indexOf("<title>") + 7;
    const QByteArray inHtml = html.sliced(name, html.indexOf("</title>") - name);
    const QString inPdf = QTextDocumentFragment::fromHtml(QString::fromUtf8(inHtml)).toPlainText();
    EXPECT_TRUE(pdf.contains("/Title " + pdfText(inPdf))) << inHtml.toStdString();
    EXPECT_EQ(pdf.count("/Type /Page\n"), html.count("<section")) << "the files have other pages";
    press({u"Escape"_s});
    leaveWindow(title, mainWindow);
}

void RoadTest::expectPerson(int id, const QString& name, const CalculatedPerson& person) const {
    SCOPED_TRACE(name.toStdString());
    for (const Record& stored : records(u"Profiles.xml"_s)) {
        if (stored.value(u"PROFILEID"_s).toInt() == id) {
            EXPECT_EQ(stored.value(u"PROFILENAME"_s).toStdString(), name.toStdString());
            EXPECT_EQ(stored.value(u"ADJBIRTHYEAR"_s).toInt(), person.adjustedYear);
            EXPECT_EQ(stored.value(u"GENDER"_s).toStdString(), person.gender);
            EXPECT_EQ(stored.value(u"KUANUMBER"_s).toInt(), person.number);
            return;
        }
    }
    ADD_FAILURE() << "no person " << id;
}

void RoadTest::expectCurrentPerson(const QByteArray& nameInHtml) {
    press({u"alt+a"_s, u"p"_s});
    focusWindow(u"Profiles"_s);
    EXPECT_TRUE(saveHtml(u"Profiles"_s).contains("<title>" + nameInHtml + "</title>"));
    press({u"Escape"_s});
    leaveWindow(u"Profiles"_s, mainWindow);
}

void RoadTest::expectRooms(const QList<EnteredRoom>& entered) const {
    const QList<Record> floors = records(u"Floors.xml"_s);
    const QList<Record> stored = records(u"Rooms.xml"_s);
    ASSERT_EQ(stored.size(), entered.size());
    for (qsizetype i = 0; i < entered.size(); ++i) {
        expectRoom(stored.at(i), entered.at(i), floors.value(entered.at(i).floor).value(u"FLOORID"_s));
        EXPECT_EQ(stored.at(i).value(u"LOCATIONID"_s).toStdString(), "1");
    }
}

void RoadTest::expectNorthAsClicked() const {
    const Record home = records(u"Locations.xml"_s).value(0);
    EXPECT_NEAR(home.value(u"NORTHOFFSET"_s).toDouble(),
                angleOf(home.value(u"LABLEX"_s).toDouble(), home.value(u"LABLEY"_s).toDouble()), 1e-6);
}

void RoadTest::expectRoom(const Record& stored, const EnteredRoom& entered, const QString& floorId) const {
    SCOPED_TRACE(entered.name.toStdString());
    const auto expected = [&](const char* field, const QString& value) {
        EXPECT_EQ(stored.value(QString::fromLatin1(field)).toStdString(), value.toStdString()) << field;
    };
    expected("DESCRIPTION", entered.name);
    expected("FLOORID", floorId);
    expected("ROOMTYPEID", QString::number(entered.kind + 1));
    expected("FLOORTYPEID", QString::number(entered.flooring + 1));
    expected("LENGTH", QString::number(inches(entered.lengthFeet, entered.lengthInches)));
    expected("WIDTH", QString::number(inches(entered.widthFeet, entered.widthInches)));
    const auto flag = [](bool value) { return value ? u"True"_s : u"False"_s; };
    expected("HASENTRANCE", flag(entered.entrance));
    expected("HASEXPOSEDBEAMS", flag(entered.beams));
    expected("HASLOWCEILING", flag(entered.lowCeiling));
}

void RoadTest::expectDirections() const {
    const double north = records(u"Locations.xml"_s).value(0).value(u"NORTHOFFSET"_s).toDouble();
    QRectF home;
    QMap<QString, QPointF> middles;
    QMap<QString, int> directions;
    for (const Record& room : records(u"Rooms.xml"_s)) {
        const auto number = [&](const QString& field) {
            return std::nearbyint(room.value(field).toDouble());
        };
        const QRectF area(number(u"LEFT"_s), number(u"TOP"_s), number(u"WIDTH"_s), number(u"LENGTH"_s));
        home |= area;
        middles.insert(room.value(u"DESCRIPTION"_s), area.center());
        directions.insert(room.value(u"DESCRIPTION"_s), room.value(u"RELATIVEDIRECTION"_s).toInt());
    }
    for (auto middle = middles.begin(); middle != middles.end(); ++middle) {
        const QPointF away = middle.value() - home.center();
        const double fromNorth = std::fmod(angleOf(away.x(), away.y()) - north + 360, 360);
        EXPECT_TRUE(directionsAt(fromNorth).contains(directions.value(middle.key())))
            << qPrintable(middle.key()) << " lies " << fromNorth << " degrees from North, stored as "
            << directions.value(middle.key());
    }
}
