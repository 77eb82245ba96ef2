#include "core/Global.h"
#include "core/Prompts.h"
#include "locations/cLocation.h"
#include "profiles/cProfile.h"
#include "reports/pages/DocumentFiles.h"
#include "reports/pages/PageSurface.h"
#include "transcript/NoSettings.h"

#include <QDir>
#include <QGuiApplication>

#include <cstdio>
#include <cstdlib>

namespace {

void printLine(std::FILE* stream, const QString& line) {
    std::fputs(line.toLocal8Bit().constData(), stream);
    std::fputc('\n', stream);
}

/// Prints what a box would show, and notes that there was one: a report of this kind has none to show
/// unless something went wrong.
class ConsolePrompts final : public Prompts {
public:
    bool shown = false;

    MessageAnswer messageBox(const QString& title, const QString& text, MessageIcon /*icon*/,
                             MessageButtons buttons) override {
        shown = true;
        printLine(stderr, title + QStringLiteral(": ") + text);
        return buttons == MessageButtons::YesNo ? MessageAnswer::No : MessageAnswer::Ok;
    }
    QString inputBox(const QString& /*title*/, const QString& /*prompt*/,
                     const QString& /*initial*/) override {
        shown = true;
        return {};
    }
    [[nodiscard]] PointerShape pointer() const override { return PointerShape::Default; }
    void setPointer(PointerShape /*shape*/) override {}
};

/// A name as part of a file's name: letters, digits and blanks of any script stay.
QString fileName(QString name) {
    for (QChar& letter : name) {
        if (!letter.isLetterOrNumber() && letter != u' ' && letter != u'-' && !letter.isMark() &&
            !letter.isSurrogate()) {
            letter = u'_';
        }
    }
    return name;
}

bool openFirstProfile() {
    Global::CurrentProfile = std::make_unique<cProfile>();
    cXMLHandler& people = *Global::CurrentProfile->oXMLProfiles;
    return people.MoveFirst() &&
           Global::CurrentProfile->GetProfile(people.GetAttribute(QStringLiteral("PROFILEID")));
}

QStringList locationIds(cLocation& home) {
    QStringList ids;
    for (bool more = home.oXMLLocations->MoveFirst(); more; more = home.oXMLLocations->MoveNext()) {
        ids << home.oXMLLocations->GetAttribute(QStringLiteral("LOCATIONID"));
    }
    return ids;
}

/// Writes the whole-home report of the current home; its rooms may be none, and then so are its files.
void writeReports(const QDir& folder) {
    PageSurface surface;
    Global::CurrentLocation->AnalyzeRooms(surface);
    if (surface.PageCount() < 1) {
        return;
    }
    const QString base = QStringLiteral("%1 - %2 room report")
                             .arg(Global::CurrentLocation->LocationID)
                             .arg(fileName(Global::CurrentLocation->DESCRIPTION));
    const QString pdf = folder.absoluteFilePath(base + QStringLiteral(".pdf"));
    const QString html = folder.absoluteFilePath(base + QStringLiteral(".html"));
    writePdf(surface.document(), pdf);
    printLine(stdout, QDir::toNativeSeparators(pdf));
    writeHtml(surface.document(), html);
    printLine(stdout, QDir::toNativeSeparators(html));
}

void writeAll(const QDir& folder) {
    if (!openFirstProfile()) {
        throw Failure{0, QStringLiteral("There is no profile in the folder.")};
    }
    Global::CurrentLocation = std::make_unique<cLocation>();
    cLocation& home = *Global::CurrentLocation;
    home.LoadLocations();
    home.LoadFloors();
    home.LoadRooms();
    for (const QString& id : locationIds(home)) {
        if (home.GetLocation(id)) {
            writeReports(folder);
        }
    }
}

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 3 || !QDir(arguments.at(1)).exists()) {
        printLine(stderr, QStringLiteral("usage: talivane_sample_reports DATA_DIR OUT_DIR\n"
                                         "Writes the first person's reports for every home of the records in "
                                         "DATA_DIR as PDF and HTML\ninto OUT_DIR and prints their paths."));
        return 2;
    }
    const QDir folder(arguments.at(2));
    if (!folder.mkpath(QStringLiteral("."))) {
        printLine(stderr, QStringLiteral("The folder \"%1\" cannot be made.").arg(arguments.at(2)));
        return EXIT_FAILURE;
    }

    ConsolePrompts prompts;
    NoSettings settings;
    Services services;
    services.prompts = &prompts;
    services.settings = &settings;
    services.applicationPath = QDir(arguments.at(1)).absolutePath();
    Global::use(services);
    Global::RegionalDecimal = Global::GetRegionalSetting(22);
    try {
        writeAll(folder);
    } catch (const Failure& thrown) {
        printLine(stderr, thrown.description);
        return EXIT_FAILURE;
    }
    return prompts.shown ? EXIT_FAILURE : EXIT_SUCCESS;
}
