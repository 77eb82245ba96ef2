#include "faults/Operations.h"

#include "faults/FaultStage.h"
#include "faults/OperationSteps.h"
#include "support/WindowDriver.h"
#include "ui/PlanRoom.h"
#include "ui/PlanView.h"
#include "ui/widgets/RecordList.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QMouseEvent>
#include <QRegularExpression>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace OperationSteps;
using namespace WindowDriver;

namespace {

/// So long that a file that takes it up needs more room on the disk.
const QString longName = QString(20000, u'n');

/// Types a name over the one in a list's field.
void rename(QWidget& window, const char* list, const QString& name) {
    enter(*control<RecordList>(window, list).lineEdit(), name);
}

void fillPerson(FaultStage& stage, const QString& name) {
    enter(stage.view(), "txtProfileName", name);
    enter(stage.view(), "txtBirthDate", u"2/4/1985"_s);
    click(stage.view(), "optFemale");
    click(stage.view(), "cmdCalcProfile");
}

void fillHome(FaultStage& stage, const QString& name) {
    enter(stage.view(), "txtLocation", name);
    enter(stage.view(), "txtNumFloors", u"1"_s);
}

void chooseSecondPerson(FaultStage& stage) {
    auto& list = control<RecordList>(stage.view(), "cboProfileName");
    list.showPopup();
    list.view()->setCurrentIndex(list.model()->index(1, 0));
    QTest::keyClick(list.view(), Qt::Key_Return);
}

/// Enters a new room. The sizes that it gets by default count as a change after the save; the question about
/// them is answered with No.
void newRoom(FaultStage& stage, const std::function<void(QWidget&)>& inside) {
    stage.boxes.answer = MessageAnswer::No;
    whileModal([&] { click(stage.view(), "cmdRoom"); }, inside);
}

void dragKitchen(FaultStage& stage) {
    auto& plan = control<PlanView>(stage.view(), "picFloorPlan");
    PlanRoom* kitchen = plan.findChildren<PlanRoom*>().constFirst();
    const auto send = [&](QEvent::Type type, QPointF onScreen, Qt::MouseButton button,
                          Qt::MouseButtons buttons) {
        QMouseEvent event(type, kitchen->mapFromGlobal(onScreen), onScreen, button, buttons, Qt::NoModifier);
        QApplication::sendEvent(kitchen, &event);
    };
    const QPointF from = kitchen->mapToGlobal(QPointF(20, 20));
    const QPointF to = from + QPointF(40, 40);
    send(QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
    send(QEvent::MouseMove, (from + to) / 2, Qt::NoButton, Qt::LeftButton);
    send(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton);
    send(QEvent::MouseButtonRelease, to, Qt::LeftButton, Qt::NoButton);
}

} // namespace

namespace Operations {

const Operation start{"start", [](FaultStage& stage) {
                          stage.strike();
                          stage.start();
                      }};

const Operation startAndAddPerson{"start and add a person", [](FaultStage& stage) {
                                      stage.strike();
                                      stage.start();
                                      fillPerson(stage, u"New"_s);
                                      click(stage.view(), "cmdSaveProfile");
                                  }};

const Operation startAndAddHome{"start and add a home", [](FaultStage& stage) {
                                    stage.strike();
                                    startAtHomes(stage);
                                    if (stage.view().Mode != u"INSERT"_s) {
                                        click(stage.view(), "cmdNewLocation");
                                    }
                                    fillHome(stage, u"New"_s);
                                    click(stage.view(), "cmdSaveLocation");
                                }};

const Operation startAndAddRoom{"start and add a room", [](FaultStage& stage) {
                                    stage.strike();
                                    startAtHomes(stage);
                                    newRoom(stage, [](QWidget& window) {
                                        enter(window, "txtDescription", u"New"_s);
                                        click(window, "cmdOK");
                                    });
                                }};

const Operation startElsewhere{"start with other decimal separators", [](FaultStage& stage) {
                                   static const QRegularExpression decimal(u"(\\d)\\.(\\d)"_s);
                                   QString records = QString::fromUtf8(stage.content());
                                   ASSERT_TRUE(records.contains(decimal));
                                   stage.put(records.replace(decimal, u"\\1,\\2"_s).toUtf8());
                                   stage.strike();
                                   stage.start();
                               }};

const Operation startChooseAndEnd{"start, choose a person and end", [](FaultStage& stage) {
                                      stage.strike();
                                      stage.start();
                                      chooseSecondPerson(stage);
                                      stage.view().close();
                                  }};

const Operation choosePerson{"choose a person", [](FaultStage& stage) {
                                 stage.start();
                                 stage.strike();
                                 chooseSecondPerson(stage);
                             }};

const Operation showHomes{"show the homes", [](FaultStage& stage) {
                              stage.start();
                              stage.strike();
                              goToHomes(stage);
                          }};

const Operation openRoom{"open a room", [](FaultStage& stage) {
                             startAtHomes(stage);
                             stage.strike();
                             editKitchen(stage, [](QWidget& window) { click(window, "cmdCancel"); });
                         }};

const Operation renamePerson{"rename a person", [](FaultStage& stage) {
                                 stage.start();
                                 rename(stage.view(), "cboProfileName", longName);
                                 stage.strike();
                                 click(stage.view(), "cmdSaveProfile");
                             }};

const Operation addPerson{"add a person", [](FaultStage& stage) {
                              stage.start();
                              click(stage.view(), "cmdNewProfile");
                              fillPerson(stage, longName);
                              stage.strike();
                              click(stage.view(), "cmdSaveProfile");
                          }};

const Operation deletePerson{"delete a person", [](FaultStage& stage) {
                                 stage.start();
                                 stage.strike();
                                 click(stage.view(), "cmdDelProfile");
                             }};

const Operation renameHome{"rename a home", [](FaultStage& stage) {
                               startAtHomes(stage);
                               rename(stage.view(), "cboLocation", longName);
                               stage.strike();
                               click(stage.view(), "cmdSaveLocation");
                           }};

const Operation addHome{"add a home", [](FaultStage& stage) {
                            startAtHomes(stage);
                            click(stage.view(), "cmdNewLocation");
                            fillHome(stage, longName);
                            stage.strike();
                            click(stage.view(), "cmdSaveLocation");
                        }};

const Operation deleteHome{"delete a home", [](FaultStage& stage) {
                               startAtHomes(stage);
                               stage.strike();
                               choose(stage.view(), "mnuLocations", "mnuLocationsDelete");
                           }};

const Operation addFloor{"add a floor", [](FaultStage& stage) {
                             startAtHomes(stage);
                             stage.strike();
                             choose(stage.view(), "mnuLocations", "mnuLocationsNewFloor");
                         }};

const Operation addRoom{"add a room", [](FaultStage& stage) {
                            startAtHomes(stage);
                            newRoom(stage, [&](QWidget& window) {
                                enter(window, "txtDescription", longName);
                                stage.strike();
                                click(window, "cmdOK");
                            });
                        }};

const Operation changeRoom{"change a room", [](FaultStage& stage) {
                               startAtHomes(stage);
                               editKitchen(stage, [&](QWidget& window) {
                                   enter(window, "txtDescription", longName);
                                   stage.strike();
                                   click(window, "cmdOK");
                               });
                           }};

const Operation removeRoom{"remove a room", [](FaultStage& stage) {
                               startAtHomes(stage);
                               selectKitchen(stage);
                               stage.strike();
                               click(stage.view(), "cmdDelRoom");
                           }};

const Operation moveRoom{"move a room", [](FaultStage& stage) {
                             startAtHomes(stage);
                             stage.strike();
                             dragKitchen(stage);
                         }};

const Operation setNorth{"set North", [](FaultStage& stage) {
                             startAtHomes(stage);
                             setDirections(stage, [&](QWidget& window) {
                                 press(window, Qt::Key_Right);
                                 stage.strike();
                                 click(window, "cmdOK");
                             });
                         }};

} // namespace Operations
