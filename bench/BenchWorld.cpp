#include "BenchWorld.h"

#include "core/Global.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLocale>
#include <QProcess>
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>

namespace {

[[noreturn]] void stop(const QString& what) {
    std::fprintf(stderr, "A benchmark ran into a box: %s\n", qPrintable(what));
    std::exit(1);
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

} // namespace

QByteArray roomsFile(int rooms) {
    QFile empty(QStringLiteral(TALIVANE_DATA_DIR "/Rooms.xml"));
    if (!empty.open(QIODevice::ReadOnly)) {
        stop(QStringLiteral("no Rooms.xml"));
    }
    QByteArray file = empty.readAll();
    QByteArray rows = "<rs:data>\n";
    for (int i = 1; i <= rooms; ++i) {
        const auto flag = [i](int bit) { return ((i >> bit) & 1) != 0 ? "True" : "False"; };
        rows +=
            QStringLiteral("\t\t<z:row ROOMID=\"%1\" LOCATIONID=\"1\" FLOORID=\"1\" ROOMTYPEID=\"%2\" "
                           "FLOORTYPEID=\"%3\" DESCRIPTION=\"Room %1\" TOP=\"%4\" LEFT=\"%5\" LENGTH=\"126\" "
                           "WIDTH=\"120.5\" RELATIVEDIRECTION=\"%6\" HASENTRANCE=\"%7\" "
                           "HASEXPOSEDBEAMS=\"%8\" HASLOWCEILING=\"%9\" />\n")
                .arg(i)
                .arg(i % 13 + 1)
                .arg(i % 4 + 1)
                .arg(i % 40 * 12)
                .arg(i % 37 * 12)
                .arg(i % 9 + 1)
                .arg(QString::fromLatin1(i % 10 == 0 ? "True" : "False"), // a main entrance is rare
                     QString::fromLatin1(flag(1)), QString::fromLatin1(flag(2)))
                .toUtf8();
    }
    rows += "\t</rs:data>";
    const qsizetype at = file.indexOf("<rs:data");
    const qsizetype end = file.indexOf("</xml>");
    return file.left(at) + rows + '\n' + file.mid(end);
}

MessageAnswer BenchWorld::NoPrompts::messageBox(const QString& title, const QString& text,
                                                MessageIcon /*icon*/, MessageButtons /*buttons*/) {
    stop(title + u'\n' + text);
}

QString BenchWorld::NoPrompts::inputBox(const QString& title, const QString& prompt,
                                        const QString& /*initial*/) {
    stop(title + u'\n' + prompt);
}

BenchWorld::BenchWorld(int rooms) {
    const QString data = QStringLiteral(TALIVANE_DATA_DIR);
    copyFiles(data, folder_.path());
    copyFiles(data + QStringLiteral("/sample"), folder_.path());
    QFile file(folder_.filePath(QStringLiteral("Rooms.xml")));
    if (!file.open(QIODevice::WriteOnly) || file.write(roomsFile(rooms)) < 0) {
        stop(QStringLiteral("cannot write Rooms.xml"));
    }
    Services services;
    services.prompts = &prompts_;
    services.applicationPath = folder_.path();
    services.locale = QLocale(QLocale::English, QLocale::UnitedStates);
    Global::use(services);
    Global::RegionalDecimal = Global::GetRegionalSetting(22);
}

BenchWorld::~BenchWorld() {
    Global::use({});
}

void BenchWorld::rememberPersonAndHome() const {
    QFile file(this->file(QStringLiteral("settings.ini")));
    if (!file.open(QIODevice::WriteOnly) ||
        file.write("[SOFTWARE]\nOrvenel\\Talivane\\StartUp\\LastLocation=1\n"
                   "Orvenel\\Talivane\\StartUp\\LastProfile=1\n") < 0) {
        stop(QStringLiteral("cannot write the settings"));
    }
}

void wholeLife(benchmark::State& state, const QString& program, const QStringList& arguments) {
    while (state.KeepRunning()) {
        QElapsedTimer timer;
        timer.start();
        QProcess process;
        process.start(program, arguments);
        const bool finished = process.waitForFinished() && process.exitCode() == 0;
        state.SetIterationTime(static_cast<double>(timer.nsecsElapsed()) * 1e-9);
        if (!finished) {
            state.SkipWithError("the program did not reach its first picture");
        }
    }
}
