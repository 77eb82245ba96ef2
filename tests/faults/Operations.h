#pragma once

class FaultStage;

/// What a user does, with the moment at which something goes wrong. Each runs the real windows.
struct Operation {
    const char* name;
    void (*run)(FaultStage& stage);
};

namespace Operations {

// The fault is there when the program starts.
extern const Operation start;             ///< start the program
extern const Operation startAndAddPerson; ///< start, enter a person, save
extern const Operation startAndAddHome;   ///< start, enter a home of one floor, save
extern const Operation startAndAddRoom;   ///< start, enter a room, save
extern const Operation startElsewhere;    ///< start where the other decimal separator is in use
extern const Operation startChooseAndEnd; ///< start, choose another person, close the window

// The fault comes while the program runs.
extern const Operation choosePerson; ///< choose another person
extern const Operation showHomes;    ///< go to the homes
extern const Operation openRoom;     ///< open the kitchen and close it
extern const Operation reportRooms;  ///< ask for advice on the rooms
extern const Operation chartYear;    ///< ask for the Nine Ki chart of 1 June 2026
extern const Operation adviseMove;   ///< ask where to move on 1 June 2026
extern const Operation renamePerson; ///< give the person a long name, save
extern const Operation addPerson;    ///< enter a person, save
extern const Operation deletePerson; ///< delete the person
extern const Operation renameHome;   ///< give the home a long name, save
extern const Operation addHome;      ///< enter a home of one floor, save
extern const Operation deleteHome;   ///< delete the home
extern const Operation addFloor;     ///< add a floor
extern const Operation addRoom;      ///< enter a room, save; the fault comes before the save
extern const Operation changeRoom;   ///< give the kitchen a long name, save; the fault comes before the save
extern const Operation removeRoom;   ///< remove the kitchen
extern const Operation moveRoom;     ///< drag the kitchen
extern const Operation setNorth;     ///< turn North; the fault comes before OK
extern const Operation saveRooms;    ///< save the report on the rooms as HTML
extern const Operation saveRoom;     ///< save the kitchen's report as HTML
extern const Operation saveChart;    ///< save the Nine Ki chart as HTML
extern const Operation saveProfile;  ///< save the report on a person as HTML
extern const Operation saveElement;  ///< save the report on an element as HTML
extern const Operation printRooms;   ///< print the report on the rooms into a PDF file
extern const Operation printNowhere; ///< print where the printer has gone
extern const Operation askForQuestions; ///< open the page of questions without a browser
extern const Operation askForSupport;   ///< open the page of support without a browser

} // namespace Operations
