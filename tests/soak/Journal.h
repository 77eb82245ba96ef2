#pragma once

#include <QString>
#include <QStringList>

#include <random>
#include <string>

/// The dice of a run and what was done with them. All chance comes from one seed, so that the same seed does
/// the same again. Where the process dies, the last actions are printed all the same.
class Journal {
public:
    explicit Journal(quint64 seed);
    Journal(const Journal&) = delete;
    Journal& operator=(const Journal&) = delete;
    ~Journal();

    /// A number from 0 up to, but not including, `count`, which must be above 0.
    int below(int count) { return static_cast<int>(dice_() % static_cast<quint64>(count)); }
    /// True once in so many times.
    bool oneIn(int times) { return below(times) == 0; }
    /// One of several, which must not be empty.
    template<class Choices>
    auto& oneOf(Choices& choices) {
        return choices[static_cast<typename Choices::size_type>(below(static_cast<int>(std::size(choices))))];
    }

    /// Notes an action of the user and counts it.
    void act(const QString& action);
    /// Notes what came of the action.
    void remark(const QString& text);
    [[nodiscard]] int actions() const { return actions_; }
    /// How to do this run again, and its last actions.
    [[nodiscard]] static std::string story();

private:
    void write(const QString& line);

    std::mt19937_64 dice_;
    int actions_ = 0;
};
