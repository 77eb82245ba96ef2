#pragma once

#include "app/XServerFixture.h"

#include <optional>

/// What is typed about a person.
struct EnteredPerson {
    QString name;
    QString birthDate;
    bool female = false;
};

/// What follows from what is typed about a person.
struct CalculatedPerson {
    int adjustedYear = 0;
    const char* gender = "";
    int number = 0;
};

/// What is entered about a room. Kind, floor and flooring are the places in their lists, from 0.
struct EnteredRoom {
    QString name;
    int kind = 0;
    int floor = 0;
    int flooring = 0;
    int lengthFeet = 0;
    int lengthInches = 0;
    int widthFeet = 0;
    int widthInches = 0;
    bool lowCeiling = false;
    bool beams = false;
    bool entrance = false;
    /// Where on the plan the user takes the room to, in inches.
    QPoint place;
};

/// The steps that a user takes through the program, each up to its result on the disk.
class RoadTest : public XServerTest {
protected:
    /// An entry of the menu "Locations", counted from the menu's end, of those that can be chosen.
    enum class FromEnd : int {
        NewRoomOnEmptyFloor = 1,
        DeleteRoom = 1,
        DeleteEmptyFloor = 2,
        NewRoom = 2,
        OpenRoom = 3,
        DeleteFloor = 4,
        RenameFloor = 5,
        NewFloor = 6,
        SetDirections = 7
    };

    /// With the cursor in the name field of a new person: enters, calculates and saves.
    void enterPerson(const EnteredPerson& person);
    void newPerson();
    void showLocations();
    /// With the cursor in the name field of a new home: enters and saves.
    void enterHome(const QString& name, int floors);
    void choose(FromEnd entry, bool opensWindow = true);
    void chooseFloor(int index);
    /// Enters a room on the floor that is shown, and closes the editor.
    void addRoom(const EnteredRoom& room);
    /// Drags the selected room from the plan's top left corner, where a new one stands, to its place.
    void placeNewRoom(const EnteredRoom& room);
    /// Enters rooms, sorted by their floors, with the first floor on show, and drags each into its place.
    void enterRooms(const QList<EnteredRoom>& rooms);
    /// Points out North on the plan, in parts of the window's width and height, and presses a button.
    void pointNorth(QPointF inWindow, const QString& button);

    /// Saves the report of a window as a HTML file, and gives its content.
    QByteArray saveHtml(const QString& title,
                        const QStringList& menuKeys = {QStringLiteral("alt+f"), QStringLiteral("s")});
    /// Prints a window's report to a PDF file through the print dialog, and gives its content.
    QByteArray printPdf(const QString& title);
    /// Opens an advice window by its letter in the menu, gives it some input, saves and prints what it shows,
    /// and closes it. The texts must stand in the HTML file, in their order.
    void readAdvice(const QString& letter, const QString& title, const QByteArrayList& texts,
                    const Input& input = {});

    /// Answers a command's question first with Enter, which is No and leaves the file alone, and then with
    /// Yes.
    void confirm(const QString& title, const QString& file, const std::function<void()>& command);

    /// The area of the selected room on the screen; empty where none is to be seen.
    [[nodiscard]] QRect selectedRoom() const;
    void expectPerson(int id, const QString& name, const CalculatedPerson& person) const;
    /// The report on people opens with the current one's, whose name stands over the HTML file.
    void expectCurrentPerson(const QByteArray& nameInHtml);
    /// Compares the rooms on the disk with what was entered, all but their places and directions.
    void expectRooms(const QList<EnteredRoom>& entered) const;
    /// The stored North is the angle of the stored click.
    void expectNorthAsClicked() const;
    /// Compares each room's stored direction with where its middle lies from the home's, seen from North.
    void expectDirections() const;

private:
    void expectRoom(const Record& stored, const EnteredRoom& entered, const QString& floorId) const;

    int exports_ = 0;
    std::optional<QPoint> planCorner_;
};
