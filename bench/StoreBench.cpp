#include "BenchWorld.h"
#include "Ratio.h"
#include "store/cXMLHandler.h"

#include <QFile>
#include <benchmark/benchmark.h>
#include <pugixml.hpp>

#include <fcntl.h>
#include <unistd.h>

#include <cstdlib>
#include <string>

namespace {

constexpr int rooms = 10000;
const QString fileName = QStringLiteral("Rooms.xml");

void BM_LoadDocument(benchmark::State& state) {
    const BenchWorld world(rooms);
    while (state.KeepRunning()) {
        cXMLHandler store;
        if (!store.LoadDocument(world.file(fileName)) || store.RecordCount != rooms) {
            std::abort();
        }
    }
}
BENCHMARK(BM_LoadDocument)->Unit(benchmark::kMillisecond)->UseRealTime();

void BM_LoadWithPugixml(benchmark::State& state) {
    const BenchWorld world(rooms);
    const QByteArray path = QFile::encodeName(world.file(fileName));
    while (state.KeepRunning()) {
        pugi::xml_document document;
        if (!document.load_file(path.constData())) {
            std::abort();
        }
    }
}
BENCHMARK(BM_LoadWithPugixml)->Unit(benchmark::kMillisecond)->UseRealTime();

void BM_SaveDocument(benchmark::State& state) {
    const BenchWorld world(rooms);
    cXMLHandler store;
    store.LoadDocument(world.file(fileName));
    while (state.KeepRunning()) {
        if (!store.SaveDocument()) {
            std::abort();
        }
    }
}
BENCHMARK(BM_SaveDocument)->Unit(benchmark::kMillisecond)->UseRealTime();

class StringWriter final : public pugi::xml_writer {
public:
    std::string text;
    void write(const void* data, std::size_t size) override {
        text.append(static_cast<const char*>(data), size);
    }
};

/// Serialises in memory, writes over the file and flushes it to disk, without any check.
void BM_SaveWithPugixml(benchmark::State& state) {
    const BenchWorld world(rooms);
    const QByteArray path = QFile::encodeName(world.file(fileName));
    pugi::xml_document document;
    document.load_file(path.constData());
    while (state.KeepRunning()) {
        StringWriter writer;
        document.save(writer, "\t", pugi::format_indent | pugi::format_no_declaration, pugi::encoding_utf8);
        const int file = open(path.constData(), O_WRONLY | O_TRUNC | O_CLOEXEC);
        const ssize_t written = write(file, writer.text.data(), writer.text.size());
        if (written != static_cast<ssize_t>(writer.text.size()) || fsync(file) != 0 || close(file) != 0) {
            std::abort();
        }
    }
}
BENCHMARK(BM_SaveWithPugixml)->Unit(benchmark::kMillisecond)->UseRealTime();

[[maybe_unused]] const bool added =
    addRatio(
        {"LoadDocument of 10,000 rooms to a bare parse", "BM_LoadDocument", "BM_LoadWithPugixml", 1.5}) &&
    addRatio({"SaveDocument of 10,000 rooms to a bare serialise, write and flush", "BM_SaveDocument",
              "BM_SaveWithPugixml", 1.5});

} // namespace
