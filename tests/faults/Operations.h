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

// The fault comes before a window of advice opens.
extern const Operation reportRooms;      ///< ask for advice on the rooms
extern const Operation chartYear;        ///< ask for the Nine Ki chart of 1 June 2026
extern const Operation adviseMove;       ///< ask where to move on 1 June 2026
extern const Operation adviseRenovation; ///< ask where to renovate on 1 June 2026
extern const Operation adviseYears;      ///< ask in which years to move North
extern const Operation browsePeople;     ///< read the reports on the person on show and on another
extern const Operation browseElements;   ///< read the reports on the person's element and on another
extern const Operation lookAtHome;       ///< look at the compass over the home
extern const Operation lookAtRoom;       ///< look at the compass over the kitchen

// The fault comes before a window of advice opens, whose report then goes to a file.
extern const Operation saveRooms;    ///< save the report on the rooms as HTML
extern const Operation saveRoom;     ///< save the kitchen's report as HTML
extern const Operation saveChart;    ///< save the Nine Ki chart as HTML
extern const Operation saveMove;     ///< save the advice where to move as HTML
extern const Operation saveYears;    ///< save the advice in which years to move as HTML
extern const Operation saveProfile;  ///< save the report on a person as HTML
extern const Operation saveElement;  ///< save the report on an element as HTML
extern const Operation printRooms;   ///< print the report on the rooms into a PDF file
extern const Operation printRoom;    ///< print the kitchen's report into a PDF file
extern const Operation printChart;   ///< print the Nine Ki chart into a PDF file
extern const Operation printProfile; ///< print the report on a person into a PDF file
extern const Operation printElement; ///< print the report on an element into a PDF file
extern const Operation printHome;    ///< print the compass over the home into a PDF file
extern const Operation printPlace;   ///< print the compass over the kitchen into a PDF file

// A device has gone.
extern const Operation printRoomsNowhere; ///< print the report on the rooms where the printer has gone
extern const Operation printHomeNowhere;  ///< print the compass over the home where the printer has gone
extern const Operation askForQuestions;   ///< open the page of questions without a browser
extern const Operation askForSupport;     ///< open the page of support without a browser

} // namespace Operations
