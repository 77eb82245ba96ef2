#include "pictures/WindowTour.h"

#include "pictures/PictureFile.h"
#include "ui/platform/DialogPrompts.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QTabWidget>
#include <QTimer>

namespace {

/// A stop's name, and the steps that lead to it from the main window, each in the window that the one before
/// has opened: a menu entry or button is pressed, an entry of a list or a page of a tab chosen by its number
/// ("tabs=2"), a text entered or chosen ("date=3/15/2027").
struct WindowStop {
    const char* name;
    QStringList steps;
};

const QString profiles = QStringLiteral("PROFILE");
const QString homes = QStringLiteral("LOCATION");

QList<WindowStop> windowStops() {
    const QString rooms = QStringLiteral("lstRooms=1");
    const QString openRoom = QStringLiteral("mnuLocationsOpenRoom");
    const QString date = QStringLiteral("txtMoveDate=3/15/2027");
    const QString advise = QStringLiteral("cmdAdvise0");
    const QString years = QStringLiteral("tabMoving=1");
    const QString direction = QStringLiteral("cboDirection=South-East");
    const QString adviseYears = QStringLiteral("cmdAdvise1");
    return {
        {"main-window", {profiles, QStringLiteral("tabProfile=0")}},
        {"main-window-directions", {profiles, QStringLiteral("tabProfile=1")}},
        {"main-window-elements", {profiles, QStringLiteral("tabProfile=2")}},
        {"main-window-home", {homes}},
        {"calendar", {profiles, QStringLiteral("cmdDate")}},
        {"room-report", {QStringLiteral("mnuAdviceRooms")}},
        {"profile-report", {QStringLiteral("mnuAdviceProfile")}},
        {"element-report", {QStringLiteral("mnuAdviceElement")}},
        {"moving-directions", {QStringLiteral("mnuAdviceMoving"), date, advise}},
        {"moving-years", {QStringLiteral("mnuAdviceMoving"), years, direction, adviseYears}},
        {"renovation-areas", {QStringLiteral("mnuAdviceRenovations"), date, advise}},
        {"renovation-years", {QStringLiteral("mnuAdviceRenovations"), years, direction, adviseYears}},
        {"year-chart", {QStringLiteral("mnuAdviceNineKi"), date, advise}},
        {"room-editor", {homes, rooms, openRoom}},
        {"room-editor-new", {homes, QStringLiteral("mnuLocationsNewRoom")}},
        {"room-direction", {homes, rooms, openRoom, QStringLiteral("cmdCompass")}},
        {"set-direction", {homes, QStringLiteral("mnuLocationsDirections")}},
        {"about", {QStringLiteral("mnuAbout")}},
    };
}

/// Presses, selects or turns to what a step names.
void perform(QWidget& window, const QString& step) {
    const QString name = step.section(u'=', 0, 0);
    const QString value = step.section(u'=', 1);
    if (auto* action = window.findChild<QAction*>(name); action != nullptr) {
        if (!action->isEnabled()) {
            stop(step + QStringLiteral(" is disabled"));
        }
        action->trigger();
    } else if (auto* button = window.findChild<QAbstractButton*>(name); button != nullptr) {
        button->click();
    } else if (auto* list = window.findChild<QListWidget*>(name); list != nullptr) {
        list->setCurrentRow(value.toInt());
    } else if (auto* tabs = window.findChild<QTabWidget*>(name); tabs != nullptr) {
        tabs->setCurrentIndex(value.toInt());
    } else if (auto* combo = window.findChild<QComboBox*>(name); combo != nullptr) {
        combo->setCurrentText(value);
    } else if (auto* text = window.findChild<QLineEdit*>(name); text != nullptr) {
        text->setText(value);
    } else {
        stop(QStringLiteral("there is no ") + step);
    }
}

/// Makes a step, and hands over the modal window that it opens, if it opens one other than where it was made.
/// The window is closed afterwards. Returns whether one came.
bool handOver(const QWidget* window, const QString& step, const std::function<void()>& make,
              const std::function<void(QWidget&)>& opened) {
    bool came = false;
    QTimer watch; // gone again where the step opens no window
    watch.setSingleShot(true);
    watch.callOnTimeout([&] {
        QWidget* next = QApplication::activeModalWidget();
        if (next == nullptr || next == window) {
            stop(QStringLiteral("no window came for ") + step);
        }
        came = true;
        opened(*next);
        next->close();
    });
    watch.start(0);
    make();
    return came;
}

void walk(QWidget& window, QStringList steps, const std::function<void(QWidget&)>& visit) {
    while (!steps.isEmpty()) {
        const QString step = steps.takeFirst();
        if (handOver(
                &window, step, [&] { perform(window, step); },
                [&](QWidget& next) { walk(next, steps, visit); })) {
            return;
        }
    }
    QApplication::processEvents();
    visit(window);
}

} // namespace

void visitWindows(QWidget& mainWindow, const std::function<void(QWidget&, const QString&)>& visit) {
    for (const WindowStop& next : windowStops()) {
        walk(mainWindow, next.steps, [&](QWidget& window) { visit(window, QString::fromLatin1(next.name)); });
    }
}

void visitBoxes(const std::function<void(QWidget&, const QString&)>& visit) {
    DialogPrompts prompts;
    const auto show = [&](const QString& name, const std::function<void()>& ask) {
        if (!handOver(nullptr, name, ask, [&](QWidget& box) {
                QApplication::processEvents();
                visit(box, name);
            })) {
            stop(QStringLiteral("no box came as ") + name);
        }
    };
    show(QStringLiteral("box-question"), [&] {
        prompts.messageBox(QStringLiteral("Delete Floor"),
                           QStringLiteral("Are you sure that you want to delete floor: Upper Floor?"),
                           MessageIcon::Question, MessageButtons::YesNo);
    });
    show(QStringLiteral("box-failure"), [&] {
        prompts.messageBox(QStringLiteral("cXMLHandler.Save Document"),
                           QStringLiteral("cXMLHandler.Save Document\r\n61-Disk full"), MessageIcon::Critical,
                           MessageButtons::Ok);
    });
    show(QStringLiteral("box-input"), [&] {
        prompts.inputBox(QStringLiteral("Rename Floor"),
                         QStringLiteral("Please Enter a new name for this floor."),
                         QStringLiteral("Upper Floor"));
    });
}
