#include "app/Program.h"
#include "app/Startup.h"
#include "core/Clock.h"
#include "core/Global.h"
#include "core/Prompts.h"
#include "core/clsRegistry.h"
#include "pictures/ContactSheet.h"
#include "pictures/DarkPalette.h"
#include "pictures/PictureFile.h"
#include "pictures/ReportPictures.h"
#include "pictures/WindowTour.h"
#include "ui/widgets/ColorContrast.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFont>
#include <QStyleFactory>
#include <QTemporaryDir>
#include <QWidget>

#include <algorithm>
#include <array>
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

/// Describes a screen of that size; on one that is large enough every window has the size that it is designed
/// in, at 200% as well. The path is that of the description.
QString describedScreen(const QTemporaryDir& folder, QSize size) {
    QString path = folder.filePath(QStringLiteral("screen.json"));
    QFile file(path);
    const QString description =
        QStringLiteral(R"({"screens": [{"name": "screen", "x": 0, "y": 0, "width": %1, "height": %2,)"
                       R"( "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
    if (!file.open(QIODevice::WriteOnly) ||
        file.write(description.arg(size.width()).arg(size.height()).toUtf8()) < 0) {
        stop(QStringLiteral("cannot write ") + path);
    }
    return path;
}

/// How the windows are shown in one set of pictures.
struct Mode {
    const char* name;
    QSize screen = QSize(2880, 2000);
    const char* scale = "1";
    bool dark = false;
    int points = 0;
};

/// The sets: 14pt has the desktop's text at 14 points, small a screen of 1024 by 700.
const std::array<Mode, 5> modes{{{.name = "light"},
                                 {.name = "dark", .dark = true},
                                 {.name = "200", .scale = "2"},
                                 {.name = "14pt", .points = 14},
                                 {.name = "small", .screen = QSize(1024, 700)}}};

} // namespace

/// Renders the windows and the record pictures in one of the modes, on a copy of the sample household; in the
/// light theme the report pages as well.
int main(int argc, char** argv) {
    const QString wanted = argc == 4 ? QString::fromLocal8Bit(argv[3]) : QString();
    const auto* mode =
        std::ranges::find(modes, wanted, [](const Mode& each) { return QString::fromLatin1(each.name); });
    if (mode == modes.end()) {
        stop(QStringLiteral("usage: talivane_pictures DATA_DIR OUT_DIR light|dark|200|14pt|small"));
    }
    const QTemporaryDir records;
    qputenv("QT_QPA_PLATFORM",
            "offscreen:configfile=" + describedScreen(records, mode->screen).toLocal8Bit());
    qputenv("QT_SCALE_FACTOR", mode->scale);
    const QApplication application(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setCursorFlashTime(0); // or it depends on the moment whether a field's cursor is seen
    if (mode->dark) {
        QApplication::setPalette(darkPalette());
    }
    QApplication::setPalette(
        ColorContrast::legibleSelection(QApplication::palette()).resolve(QApplication::palette()));
    if (mode->points > 0) {
        QFont font = QApplication::font();
        font.setPointSize(mode->points);
        QApplication::setFont(font);
    }
    const QString data = QString::fromLocal8Bit(argv[1]);
    const QString folder = QString::fromLocal8Bit(argv[2]);
    copyFiles(data, records.path());
    copyFiles(data + QStringLiteral("/sample"), records.path());

    UnaskedPrompts prompts;
    FixedClock clock;
    Program program(records.filePath(QStringLiteral("settings.ini")));
    Services services = program.services(records.path());
    services.prompts = &prompts;
    services.clock = &clock;
    services.locale = QLocale(QLocale::English, QLocale::UnitedStates);
    Global::use(services);
    for (const QString& name : {QStringLiteral("LastLocation"), QStringLiteral("LastProfile")}) {
        clsRegistry().SaveSetting(clsRegistry::CurrentUser,
                                  Global::settingsSection(QStringLiteral("StartUp")), name, 1);
    }
    Global::Main();
    const bool isLight = mode == modes.begin();
    const QString suffix = isLight ? QString() : u'-' + wanted;
    QApplication::processEvents();
    const auto save = [&](QWidget& window, const QString& name) {
        savePicture(window.grab().toImage(), folder + u'/' + name + suffix + QStringLiteral(".png"));
    };
    visitWindows(program.mainWindow, save);
    visitBoxes(save);
    drawContactSheet(folder, suffix);
    if (isLight) {
        const QString pages = folder + QStringLiteral("/pages");
        if (!QDir().mkpath(pages)) {
            stop(QStringLiteral("cannot make ") + pages);
        }
        paintReports(pages);
    }
    return EXIT_SUCCESS;
}
