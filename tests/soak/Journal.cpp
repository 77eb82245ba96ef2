#include "soak/Journal.h"

#include <array>
#include <csignal>
#include <cstdio>
#include <cstring>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/common_interface_defs.h>
#endif

namespace {

/// The last lines, where a dying process still reaches them.
constexpr std::size_t keptLines = 60;
constexpr std::size_t longestLine = 160;
std::array<std::array<char, longestLine>, keptLines> lines;
std::size_t written = 0;
quint64 seedOfRun = 0;
int actionsOfRun = 0;

std::string toldStory() {
    std::string told = "To do this again: TALIVANE_SOAK_SEED=" + std::to_string(seedOfRun) +
                       " TALIVANE_SOAK_ACTIONS=" + std::to_string(actionsOfRun + 1) +
                       " ./dev test -R Soak\nThe last actions:\n";
    for (std::size_t i = written > keptLines ? written - keptLines : 0; i < written; ++i) {
        told += lines.at(i % keptLines).data();
        told += '\n';
    }
    return told;
}

void printStory() {
    const std::string told = toldStory();
    std::fwrite(told.data(), 1, told.size(), stderr);
}

#ifndef __SANITIZE_ADDRESS__
void die(int signal) {
    std::signal(signal, SIG_DFL);
    printStory();
    std::raise(signal);
}
#endif

void tellWhenDying() {
#ifdef __SANITIZE_ADDRESS__
    __sanitizer_set_death_callback(printStory);
#else
    for (const int signal : {SIGSEGV, SIGABRT, SIGFPE, SIGILL, SIGBUS}) {
        std::signal(signal, die);
    }
#endif
}

} // namespace

Journal::Journal(quint64 seed)
    : dice_(seed) {
    written = 0;
    seedOfRun = seed;
    actionsOfRun = 0;
    tellWhenDying();
}

Journal::~Journal() {
    written = 0; // what dies later has nothing to do with this run
}

void Journal::act(const QString& action) {
    actionsOfRun = ++actions_;
    write(QString::number(actions_) + QStringLiteral(": ") + action);
}

void Journal::remark(const QString& text) {
    write(QStringLiteral("    ") + text);
}

void Journal::write(const QString& line) {
    auto& place = lines.at(written % keptLines);
    std::snprintf(place.data(), place.size(), "%s", line.simplified().toUtf8().constData());
    ++written;
}

std::string Journal::story() {
    return toldStory();
}
