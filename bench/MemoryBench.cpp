#include "BenchWorld.h"
#include "Ratio.h"

#include <QProcess>

namespace {

/// What a program tells of its memory, in kilobytes; 0 where it tells nothing.
double told(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished();
    return process.readAllStandardOutput().split(' ').first().toDouble();
}

double withHome(int rooms, const QString& mode) {
    const BenchWorld world(rooms);
    world.rememberPersonAndHome();
    return told(QStringLiteral(TALIVANE_STARTED_PROGRAM), {world.folder(), mode});
}

Quotient atRest() {
    return {withHome(17, QStringLiteral("memory")),
            told(QStringLiteral(TALIVANE_EMPTY_WINDOW), {QStringLiteral("memory")}), "KB"};
}

Quotient ofARoom() {
    const auto added = [](int rooms) {
        return (withHome(rooms, QStringLiteral("report")) - withHome(rooms, QStringLiteral("memory"))) /
               rooms;
    };
    constexpr int many = 300;
    constexpr int few = 100;
    return {added(many), added(few), "KB"};
}

Quotient withReport() {
    constexpr int many = 300;
    return {withHome(many, QStringLiteral("report")), withHome(many, QStringLiteral("memory")), "KB"};
}

[[maybe_unused]] const bool added =
    addQuotient({"memory at rest, with a person and a home: the program to an empty window with its menus",
                 atRest, 1.5}) &&
    addQuotient(
        {"memory with the report on a home of 300 rooms open, to the same program at rest", withReport, 2}) &&
    addQuotient({"memory that a report takes for a room: 300 rooms to 100 rooms", ofARoom, 1.2});

} // namespace
