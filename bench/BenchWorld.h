#pragma once

#include "core/Prompts.h"

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

namespace benchmark {
class State;
}

/// The surroundings of a benchmark: a data folder of its own with the reference tables, the sample person,
/// and a home of as many rooms as asked for. A box of any kind ends the run, since it would measure a
/// failure.
class BenchWorld {
public:
    explicit BenchWorld(int rooms);
    BenchWorld(const BenchWorld&) = delete;
    BenchWorld& operator=(const BenchWorld&) = delete;
    ~BenchWorld();

    [[nodiscard]] QString folder() const { return folder_.path(); }
    /// Lets a start on this folder open the sample person and the home.
    void rememberPersonAndHome() const;
    [[nodiscard]] QString file(const QString& name) const { return folder_.filePath(name); }

private:
    class NoPrompts final : public Prompts {
    public:
        MessageAnswer messageBox(const QString& title, const QString& text, MessageIcon icon,
                                 MessageButtons buttons) override;
        QString inputBox(const QString& title, const QString& prompt, const QString& initial) override;
        [[nodiscard]] PointerShape pointer() const override { return PointerShape::Default; }
        void setPointer(PointerShape /*shape*/) override {}
    };

    QTemporaryDir folder_;
    NoPrompts prompts_;
};

/// A `Rooms.xml` of so many rooms in home 1, cycling through all types, floorings, directions and features.
[[nodiscard]] QByteArray roomsFile(int rooms);

/// Measures a program's whole life, from its start to its end; fails where it ends badly.
void wholeLife(benchmark::State& state, const QString& program, const QStringList& arguments);
