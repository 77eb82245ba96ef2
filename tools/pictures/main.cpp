#include "app/Startup.h"
#include "core/Global.h"
#include "core/Prompts.h"
#include "core/clsRegistry.h"
#include "pictures/PictureFile.h"
#include "pictures/ReportPictures.h"
#include "pictures/WindowPictures.h"
#include "ui/frmView.h"
#include "ui/platform/QSettingsStore.h"
#include "ui/platform/SystemBrowser.h"
#include "ui/platform/SystemClock.h"
#include "ui/platform/SystemPrinter.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QStyleFactory>
#include <QTemporaryDir>

#include <cstdlib>

namespace {

/// Answers what a window asks when it is closed with No, and ends the program on anything else: no picture
/// may show a failure.
class UnaskedPrompts final : public Prompts {
public:
    MessageAnswer messageBox(const QString& title, const QString& text, MessageIcon icon,
                             MessageButtons /*buttons*/) override {
        if (icon != MessageIcon::Question) {
            stop(title + QStringLiteral(": ") + text);
        }
        return MessageAnswer::No;
    }
    QString inputBox(const QString& /*title*/, const QString& /*prompt*/,
                     const QString& /*initial*/) override {
        return {};
    }
    [[nodiscard]] PointerShape pointer() const override { return PointerShape::Default; }
    void setPointer(PointerShape /*shape*/) override {}
};

void copyFiles(const QString& from, const QString& to) {
    const QDir source(from);
    for (const QString& name : source.entryList({QStringLiteral("*.xml")}, QDir::Files)) {
        QFile::remove(to + u'/' + name);
        if (!QFile::copy(source.filePath(name), to + u'/' + name)) {
            stop(QStringLiteral("cannot copy ") + name);
        }
    }
}

/// Describes a screen on which every window has the size that it is designed in, at 200% as well. The path is
/// that of the description.
QString largeScreen(const QTemporaryDir& folder) {
    QString path = folder.filePath(QStringLiteral("screen.json"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) ||
        file.write(R"({"screens": [{"name": "large", "x": 0, "y": 0, "width": 2880, "height": 2000,)"
                   R"( "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})") < 0) {
        stop(QStringLiteral("cannot write ") + path);
    }
    return path;
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

} // namespace

/// Renders the windows and the record pictures in the light theme, the dark theme or at 200%, on a copy of
/// the sample household; in the light theme the report pages as well.
int main(int argc, char** argv) {
    const QTemporaryDir records;
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + largeScreen(records).toLocal8Bit());
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
    copyFiles(data, records.path());
    copyFiles(data + QStringLiteral("/sample"), records.path());

    UnaskedPrompts prompts;
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
    const QString suffix = mode == u"light" ? QString() : u'-' + mode;
    QApplication::processEvents();
    takeWindowPictures(mainWindow, folder, suffix);
    drawContactSheet(folder, suffix);
    if (mode == u"light") {
        const QString pages = folder + QStringLiteral("/pages");
        if (!QDir().mkpath(pages)) {
            stop(QStringLiteral("cannot make ") + pages);
        }
        paintReports(pages);
    }
    return EXIT_SUCCESS;
}
