#include "core/Clock.h"
#include "core/Global.h"
#include "reports/pages/PageSurface.h"
#include "reports/surface/RecordingSurface.h"
#include "transcript/NoSettings.h"
#include "transcript/Reports.h"
#include "transcript/TranscriptPrompts.h"

#include <QFileInfo>
#include <QGuiApplication>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace {

void printLine(std::FILE* stream, const QByteArray& line) {
    std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stream);
    std::fputc('\n', stream);
    std::fflush(stream);
}

void printCall(const SurfaceCall& call) {
    printLine(stdout, jsonLine(call));
}

QString usage() {
    QString text =
        QStringLiteral("usage: talivane_transcript DATA_DIR REPORT ARGUMENTS...\n"
                       "Runs a report over the record files of a folder and prints each call on its page\n"
                       "surface as one JSON object a line; the last four print figures of a plan. Reports:");
    for (const TranscriptReport& report : transcriptReports()) {
        text += QStringLiteral("\n  %1 %2").arg(report.name, report.parameters);
    }
    return text;
}

/// The report that is asked for, with the folder and the number of its arguments checked.
const TranscriptReport& chosenReport(const QString& folder, const QString& name,
                                     const QStringList& arguments) {
    const auto& reports = transcriptReports();
    const auto report = std::ranges::find(reports, name, &TranscriptReport::name);
    if (report == reports.end()) {
        throw Refusal{Refusal::BadArguments, QStringLiteral("There is no report \"%1\".").arg(name)};
    }
    if (arguments.size() < report->fewestArguments || arguments.size() > report->mostArguments) {
        throw Refusal{Refusal::BadArguments,
                      QStringLiteral("The report \"%1\" takes %2.").arg(name, report->parameters)};
    }
    if (!QFileInfo(folder).isDir()) {
        throw Refusal{Refusal::BadArguments, QStringLiteral("There is no folder \"%1\".").arg(folder)};
    }
    return *report;
}

void run(const QStringList& words) {
    constexpr qsizetype ahead = 3; // program, folder, report
    if (words.size() < ahead) {
        throw Refusal{Refusal::BadArguments, QStringLiteral("A folder and a report are needed.")};
    }
    const QString& folder = words.at(1);
    const QStringList arguments = words.mid(ahead);
    const TranscriptReport& report = chosenReport(folder, words.at(2), arguments);

    TranscriptPrompts prompts(printCall);
    NoSettings settings;
    SystemClock clock;
    Services services;
    services.prompts = &prompts;
    services.settings = &settings;
    services.clock = &clock;
    services.applicationPath = folder;
    Global::use(services);
    Global::RegionalDecimal = Global::GetRegionalSetting(22); // as at the program's start

    if (report.figures != nullptr) {
        for (const QByteArray& line : report.figures(arguments)) {
            printLine(stdout, line);
        }
        return;
    }
    PageSurface pages;
    RecordingSurface vp(pages, printCall);
    report.write(arguments, vp);
}

} // namespace

int main(int argc, char** argv) {
    // No window is ever shown, so the pages are laid out without a display, the same with one as without.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QGuiApplication application(argc, argv);
    try {
        run(QGuiApplication::arguments());
    } catch (const Refusal& refusal) {
        printLine(stderr, refusal.message.toLocal8Bit());
        if (refusal.exitCode == Refusal::BadArguments) {
            printLine(stderr, usage().toLocal8Bit());
        }
        return refusal.exitCode;
    }
    return EXIT_SUCCESS;
}
