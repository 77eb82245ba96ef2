#pragma once

#include <QByteArray>
#include <QProcess>
#include <QStringList>
#include <gtest/gtest.h>

#include <string>
#include <vector>

using Lines = std::vector<std::string>;

/// What a run of the program leaves.
struct Outcome {
    int exitCode = -1;
    QByteArray output;
    QByteArray complaint;

    [[nodiscard]] Lines lines() const {
        Lines all;
        for (qsizetype start = 0; start < output.size();) {
            const qsizetype end = output.indexOf('\n', start);
            EXPECT_GE(end, 0) << "the last line has no end";
            all.push_back(output.mid(start, end - start).toStdString());
            start = end < 0 ? output.size() : end + 1;
        }
        return all;
    }
};

/// Runs the transcript program with these arguments and waits for its end.
inline Outcome runWith(const QStringList& arguments) {
    QProcess process;
    process.start(QStringLiteral(TALIVANE_TRANSCRIPT), arguments);
    Outcome run;
    constexpr int milliseconds = 120000;
    EXPECT_TRUE(process.waitForFinished(milliseconds)) << qPrintable(process.errorString());
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    run.exitCode = process.exitCode();
    run.output = process.readAllStandardOutput();
    run.complaint = process.readAllStandardError();
    return run;
}
