#pragma once

#include <QByteArrayList>
#include <QString>
#include <QStringList>

#include <vector>

class ReportSurface;

/// Why a transcript cannot be made: what to tell the developer, and the program's exit code.
struct Refusal {
    enum ExitCode { NotThere = 1, BadArguments = 2 };

    ExitCode exitCode = BadArguments;
    QString message;
};

/// A report that transcripts can be made of. A new report joins by a row in the table of Reports.cpp.
struct TranscriptReport {
    QString name;
    /// Its arguments, as the usage text shows them.
    QString parameters;
    qsizetype fewestArguments = 0;
    qsizetype mostArguments = 0;
    /// Chooses the current person and home by the arguments and runs the builder. Throws a Refusal.
    void (*write)(const QStringList& arguments, ReportSurface& vp) = nullptr;
    /// In place of a report: figures that are worked out, as lines of JSON. Throws a Refusal.
    QByteArrayList (*figures)(const QStringList& arguments) = nullptr;
};

[[nodiscard]] const std::vector<TranscriptReport>& transcriptReports();

/// Loads the record files and makes the home with that id the current one. Throws a Refusal for an unknown
/// one.
void chooseLocation(const QString& argument);
