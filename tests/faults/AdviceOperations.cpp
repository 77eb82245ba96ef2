#include "core/Failure.h"
#include "core/Global.h"
#include "faults/FaultStage.h"
#include "faults/OperationSteps.h"
#include "faults/Operations.h"
#include "support/WindowDriver.h"

#include <QComboBox>
#include <QTabWidget>

using namespace Qt::StringLiterals;
using namespace OperationSteps;
using namespace WindowDriver;

namespace {

/// Opens a window from the menu of the advice and does something in it.
void advise(FaultStage& stage, const char* entry, const std::function<void(QWidget&)>& inside) {
    whileModal([&] { choose(stage.view(), "mnuAdvice", entry); }, inside);
}

/// Starts the program and asks for advice, with the fault coming between the two.
void adviseStruck(FaultStage& stage, const char* entry, const std::function<void(QWidget&)>& inside) {
    stage.start();
    stage.strike();
    advise(stage, entry, inside);
}

void adviseOnDate(QWidget& window) {
    enter(window, "txtMoveDate", u"6/1/2026"_s);
    click(window, "cmdAdvise0");
}

void adviseOnDirection(QWidget& window) {
    control<QTabWidget>(window, "tabMoving").setCurrentIndex(1);
    control<QComboBox>(window, "cboDirection").setCurrentText(u"North"_s);
    click(window, "cmdAdvise1");
}

/// Chooses the next of a browser's list.
void readOn(QWidget& window, const char* list) {
    press(control<QComboBox>(window, list), Qt::Key_Down);
}

void saveAsHtml(QWidget& window) {
    choose(window, "mnuFile", "mnuFileSaveAs");
}

void print(QWidget& window) {
    click(window, "cmdPrint");
}

/// Asks for advice with the fault coming before, and has it go somewhere.
void adviseAnd(FaultStage& stage, const char* entry, void (*ask)(QWidget&), void (*then)(QWidget&)) {
    adviseStruck(stage, entry, [&](QWidget& window) {
        ask(window);
        then(window);
    });
}

/// Opens the compass over the home, with the fault coming before.
void lookStruck(FaultStage& stage, const std::function<void(QWidget&)>& inside) {
    startAtHomes(stage);
    stage.strike();
    setDirections(stage, inside);
}

/// Opens the kitchen, with the fault coming before.
void editStruck(FaultStage& stage, const std::function<void(QWidget&)>& inside) {
    startAtHomes(stage);
    stage.strike();
    editKitchen(stage, inside);
}

/// Opens the compass over the kitchen, with the fault coming before.
void lookAtRoomStruck(FaultStage& stage, const std::function<void(QWidget&)>& inside) {
    startAtHomes(stage);
    editKitchen(stage, [&](QWidget& editor) {
        stage.strike();
        whileModal([&] { click(editor, "cmdCompass"); }, inside);
    });
}

/// A printer that was chosen and then vanished.
class VanishedPrinter final : public Printer {
public:
    bool choose() override { return true; }
    void print(const PrintableDocument& /*document*/) override {
        throw Failure{482, QStringLiteral("Printer error")};
    }
};

/// Has the program use no printer but one that has vanished.
void losePrinter() {
    static VanishedPrinter printer;
    Services services = Global::services();
    services.printer = &printer;
    Global::use(services);
}

void openHelp(FaultStage& stage, const char* entry) {
    ScriptedBrowser none;
    none.associated = false;
    stage.start();
    Services services = Global::services();
    services.browser = &none;
    Global::use(services);
    stage.strike();
    choose(stage.view(), "mnuHelp", entry);
}

} // namespace

namespace Operations {

const Operation reportRooms{"report on the rooms", [](FaultStage& stage) {
                                adviseStruck(stage, "mnuAdviceRooms",
                                             [](QWidget& window) { click(window, "cmdOK"); });
                            }};

const Operation chartYear{"chart a year",
                          [](FaultStage& stage) { adviseStruck(stage, "mnuAdviceNineKi", &adviseOnDate); }};

const Operation adviseMove{"advise on a move",
                           [](FaultStage& stage) { adviseStruck(stage, "mnuAdviceMoving", &adviseOnDate); }};

const Operation adviseRenovation{"advise on a renovation", [](FaultStage& stage) {
                                     adviseStruck(stage, "mnuAdviceRenovations", &adviseOnDate);
                                 }};

const Operation adviseYears{
    "advise on years", [](FaultStage& stage) { adviseStruck(stage, "mnuAdviceMoving", &adviseOnDirection); }};

const Operation browsePeople{"read the reports on two people", [](FaultStage& stage) {
                                 adviseStruck(stage, "mnuAdviceProfile",
                                              [](QWidget& window) { readOn(window, "cboProfiles"); });
                             }};

const Operation browseElements{"read the reports on two elements", [](FaultStage& stage) {
                                   adviseStruck(stage, "mnuAdviceElement",
                                                [](QWidget& window) { readOn(window, "cboElements"); });
                               }};

const Operation lookAtHome{"look at the compass over the home", [](FaultStage& stage) {
                               lookStruck(stage, [](QWidget& window) { click(window, "cmdCancel"); });
                           }};

const Operation lookAtRoom{"look at the compass over a room", [](FaultStage& stage) {
                               lookAtRoomStruck(stage, [](QWidget& window) { click(window, "cmdClose"); });
                           }};

const Operation saveRooms{"save the report on the rooms",
                          [](FaultStage& stage) { adviseStruck(stage, "mnuAdviceRooms", &saveAsHtml); }};

const Operation saveRoom{"save the report on a room",
                         [](FaultStage& stage) { editStruck(stage, &saveAsHtml); }};

const Operation saveChart{"save the chart of a year", [](FaultStage& stage) {
                              adviseAnd(stage, "mnuAdviceNineKi", &adviseOnDate, &saveAsHtml);
                          }};

const Operation saveMove{"save the advice on a move", [](FaultStage& stage) {
                             adviseAnd(stage, "mnuAdviceMoving", &adviseOnDate, &saveAsHtml);
                         }};

const Operation saveYears{"save the advice on years", [](FaultStage& stage) {
                              adviseAnd(stage, "mnuAdviceMoving", &adviseOnDirection, &saveAsHtml);
                          }};

const Operation saveProfile{"save the report on a person",
                            [](FaultStage& stage) { adviseStruck(stage, "mnuAdviceProfile", &saveAsHtml); }};

const Operation saveElement{"save the report on an element",
                            [](FaultStage& stage) { adviseStruck(stage, "mnuAdviceElement", &saveAsHtml); }};

const Operation printRooms{"print the report on the rooms",
                           [](FaultStage& stage) { adviseStruck(stage, "mnuAdviceRooms", &print); }};

const Operation printRoom{"print the report on a room", [](FaultStage& stage) { editStruck(stage, &print); }};

const Operation printChart{"print the chart of a year", [](FaultStage& stage) {
                               adviseAnd(stage, "mnuAdviceNineKi", &adviseOnDate, &print);
                           }};

const Operation printProfile{"print the report on a person",
                             [](FaultStage& stage) { adviseStruck(stage, "mnuAdviceProfile", &print); }};

const Operation printElement{"print the report on an element",
                             [](FaultStage& stage) { adviseStruck(stage, "mnuAdviceElement", &print); }};

const Operation printHome{"print the compass over the home",
                          [](FaultStage& stage) { lookStruck(stage, &print); }};

const Operation printPlace{"print the compass over a room",
                           [](FaultStage& stage) { lookAtRoomStruck(stage, &print); }};

const Operation printRoomsNowhere{"print the report on the rooms where no printer is", [](FaultStage& stage) {
                                      stage.start();
                                      losePrinter();
                                      stage.strike();
                                      advise(stage, "mnuAdviceRooms", &print);
                                  }};

const Operation printHomeNowhere{"print the compass over the home where no printer is",
                                 [](FaultStage& stage) {
                                     startAtHomes(stage);
                                     losePrinter();
                                     stage.strike();
                                     setDirections(stage, &print);
                                 }};

const Operation askForQuestions{"open the page of questions",
                                [](FaultStage& stage) { openHelp(stage, "mnuHelpFaqs"); }};

const Operation askForSupport{"open the page of support",
                              [](FaultStage& stage) { openHelp(stage, "mnuHelpSupport"); }};

} // namespace Operations
