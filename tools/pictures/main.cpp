#include "app/Startup.h"
#include "compass/windows/frmRoomDirection.h"
#include "compass/windows/frmSetDirection.h"
#include "core/Global.h"
#include "core/clsRegistry.h"
#include "locations/cLocation.h"
#include "reports/pages/PagePainter.h"
#include "reports/pages/PageSurface.h"
#include "ui/frmView.h"
#include "ui/platform/DialogPrompts.h"
#include "ui/platform/QSettingsStore.h"
#include "ui/platform/SystemBrowser.h"
#include "ui/platform/SystemClock.h"
#include "ui/platform/SystemPrinter.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QImage>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QStyleFactory>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdio>
#include <cstdlib>

namespace {

[[noreturn]] void stop(const QString& why) {
    std::fprintf(stderr, "%s\n", qPrintable(why));
    std::exit(EXIT_FAILURE);
}

void save(const QImage& image, const QString& path) {
    if (!image.save(path)) {
        stop(QStringLiteral("cannot write ") + path);
    }
    std::printf("%s\n", qPrintable(path));
}

void copyFiles(const QString& from, const QString& to) {
    const QDir source(from);
    for (const QString& name : source.entryList({QStringLiteral("*.xml")}, QDir::Files)) {
        QFile::remove(to + u'/' + name);
        if (!QFile::copy(source.filePath(name), to + u'/' + name)) {
            stop(QStringLiteral("cannot copy ") + name);
        }
    }
}

QPalette darkPalette() {
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(0x2E2E2E));
    palette.setColor(QPalette::WindowText, QColor(0xEDEDED));
    palette.setColor(QPalette::Base, QColor(0x1F1F1F));
    palette.setColor(QPalette::AlternateBase, QColor(0x2A2A2A));
    palette.setColor(QPalette::ToolTipBase, QColor(0x3A3A3A));
    palette.setColor(QPalette::ToolTipText, QColor(0xEDEDED));
    palette.setColor(QPalette::Text, QColor(0xEDEDED));
    palette.setColor(QPalette::Button, QColor(0x3A3A3A));
    palette.setColor(QPalette::ButtonText, QColor(0xEDEDED));
    palette.setColor(QPalette::Mid, QColor(0x4A4A4A));
    palette.setColor(QPalette::Highlight, QColor(0x3D7EBF));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, QColor(0x8A8A8A));
    }
    return palette;
}

/// Takes the picture of a modal window that `open` shows, after `use` has used it, and closes it.
void grabModal(
    const std::function<void()>& open, const QString& path,
    const std::function<void(QWidget&)>& use = [](QWidget&) {}) {
    QTimer::singleShot(300, [&] {
        QWidget* window = QApplication::activeModalWidget();
        if (window == nullptr) {
            stop(QStringLiteral("no window came for ") + path);
        }
        use(*window);
        save(window->grab().toImage(), path);
        window->close();
    });
    open();
}

/// The compass over the sample home's first floor, and over its dining room, which three directions share.
void grabCompassViews(const QString& homePath, const QString& roomPath) {
    constexpr qint32 diningRoom = 2;
    Global::CurrentFloorID = 1;
    grabModal([] { frmSetDirection().SetDirection(); }, homePath);
    grabModal([] { frmRoomDirection().ShowDirection(QStringLiteral("Dining Room"), diningRoom); }, roomPath);
}

/// The windows that tell of people and of time, each with its report.
void grabAdvice(frmView& mainWindow, const std::function<QString(const QString&)>& path) {
    const auto grab = [&](const QString& entry, const QString& name,
                          const std::function<void(QWidget&)>& use) {
        grabModal([&] { mainWindow.findChild<QAction*>(entry)->trigger(); }, path(name),
                  [&](QWidget& window) {
                      window.resize(1040, 720); // more than the screen that is not there has
                      use(window);
                  });
    };
    const auto advise = [](QWidget& window) {
        window.findChild<QLineEdit*>(QStringLiteral("txtMoveDate"))->setText(QStringLiteral("3/15/2027"));
        window.findChild<QPushButton*>(QStringLiteral("cmdAdvise0"))->click();
    };
    grab(QStringLiteral("mnuAdviceProfile"), QStringLiteral("profile-report"), [](QWidget&) {});
    grab(QStringLiteral("mnuAdviceNineKi"), QStringLiteral("year-chart"), advise);
    grab(QStringLiteral("mnuAdviceMoving"), QStringLiteral("moving-directions"), advise);
    grab(QStringLiteral("mnuAdviceMoving"), QStringLiteral("moving-years"), [](QWidget& window) {
        window.findChild<QTabWidget*>(QStringLiteral("tabMoving"))->setCurrentIndex(1);
        window.findChild<QComboBox*>(QStringLiteral("cboDirection"))
            ->setCurrentText(QStringLiteral("South-East"));
        window.findChild<QPushButton*>(QStringLiteral("cmdAdvise1"))->click();
    });
}

void grabWindows(frmView& mainWindow, const QString& folder, const QString& suffix) {
    const auto path = [&](const QString& name) {
        return folder + u'/' + name + suffix + QStringLiteral(".png");
    };
    QApplication::processEvents();
    save(mainWindow.grab().toImage(), path(QStringLiteral("main-window")));
    auto* pages = mainWindow.findChild<QTabWidget*>(QStringLiteral("tabProfile"));
    for (const auto& [page, name] :
         {std::pair(1, "main-window-directions"), std::pair(2, "main-window-elements")}) {
        pages->setCurrentIndex(page);
        QApplication::processEvents();
        save(mainWindow.grab().toImage(), path(QString::fromLatin1(name)));
    }
    pages->setCurrentIndex(0);
    grabModal([&] { mainWindow.findChild<QAction*>(QStringLiteral("mnuAdviceRooms"))->trigger(); },
              path(QStringLiteral("room-report")));
    grabCompassViews(path(QStringLiteral("set-direction")), path(QStringLiteral("room-direction")));
    grabAdvice(mainWindow, path);
}

/// The first page of the home's report as it comes out of the printer, at 96 dots to the inch.
void paintReportPage(const QString& folder) {
    PageSurface surface;
    Global::CurrentLocation->AnalyzeRooms(surface);
    constexpr double dotsPerTwip = 96.0 / 1440;
    QImage image((surface.pageSize() * dotsPerTwip).toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(dotsPerTwip, dotsPerTwip);
    paintPage(painter, surface.document(), 0, PaintTarget::Paper);
    painter.end();
    save(image, folder + QStringLiteral("/room-report-page.png"));
}

} // namespace

/// Renders the windows in the light theme, the dark theme or at 200%, on a copy of the sample household.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QString mode = argc == 4 ? QString::fromLocal8Bit(argv[3]) : QString();
    if (mode == u"200") {
        qputenv("QT_SCALE_FACTOR", "2");
    }
    const QApplication application(argc, argv);
    if (mode != u"light" && mode != u"dark" && mode != u"200") {
        stop(QStringLiteral("usage: talivane_pictures DATA_DIR OUT_DIR light|dark|200"));
    }
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    if (mode == u"dark") {
        QApplication::setPalette(darkPalette());
    }
    const QString data = QString::fromLocal8Bit(argv[1]);
    const QString folder = QString::fromLocal8Bit(argv[2]);
    const QTemporaryDir records;
    copyFiles(data, records.path());
    copyFiles(data + QStringLiteral("/sample"), records.path());

    DialogPrompts prompts;
    QSettingsStore settings(records.filePath(QStringLiteral("settings.ini")));
    SystemClock clock;
    SystemPrinter printer;
    SystemBrowser browser;
    frmView mainWindow;
    Services services;
    services.prompts = &prompts;
    services.settings = &settings;
    services.clock = &clock;
    services.mainWindow = &mainWindow;
    services.printer = &printer;
    services.browser = &browser;
    services.applicationPath = records.path();
    services.locale = QLocale(QLocale::English, QLocale::UnitedStates);
    Global::use(services);
    for (const QString& name : {QStringLiteral("LastLocation"), QStringLiteral("LastProfile")}) {
        clsRegistry().SaveSetting(clsRegistry::CurrentUser,
                                  Global::settingsSection(QStringLiteral("StartUp")), name, 1);
    }
    Global::Main();
    grabWindows(mainWindow, folder, mode == u"light" ? QString() : u'-' + mode);
    if (mode == u"light") {
        paintReportPage(folder);
    }
    return EXIT_SUCCESS;
}
