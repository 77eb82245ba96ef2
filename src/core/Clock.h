#pragma once

#include <QDateTime>

/// Day and time of day, behind a seam so that a test can stand at any moment.
class Clock {
public:
    virtual ~Clock() = default;
    /// The local date and time.
    [[nodiscard]] virtual QDateTime now() const = 0;
    [[nodiscard]] QDate today() const { return now().date(); }
};

/// The machine's own clock.
class SystemClock final : public Clock {
public:
    [[nodiscard]] QDateTime now() const override { return QDateTime::currentDateTime(); }
};

/// A clock that stands where it was set, so that what is tested, measured or pictured does not change
/// overnight.
class FixedClock final : public Clock {
public:
    FixedClock() = default;
    explicit FixedClock(QDate today) { setToday(today); }
    void setToday(QDate date) { now_.setDate(date); }
    [[nodiscard]] QDateTime now() const override { return now_; }

private:
    QDateTime now_ = QDateTime(QDate(2026, 2, 14), QTime(9, 30, 20));
};
