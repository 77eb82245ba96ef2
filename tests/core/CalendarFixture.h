#pragma once

#include "core/CalendarWindow.h"
#include "core/Conversion.h"
#include "core/Failure.h"
#include "core/FormPlacement.h"
#include "core/clsCalendar.h"
#include "support/QtPrinting.h"
#include "support/TestWorld.h"

#include <QDateTime>
#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <memory>

using namespace Qt::StringLiterals;

inline constexpr qint32 INVALID_CALL = 5;
inline constexpr qint32 TYPE_MISMATCH = 13;
inline constexpr qint32 NOT_SET = 91;

class PlainForm final : public FormPlacement {
public:
    double top = 0;
    double left = 0;
    double height = 0;
    double width = 0;

    [[nodiscard]] QString Name() const override { return u"form"_s; }
    [[nodiscard]] FormState WindowState() const override { return FormState::Normal; }
    void setWindowState(FormState /*state*/) override {}
    [[nodiscard]] double Top() const override { return top; }
    void setTop(double twips) override { top = twips; }
    [[nodiscard]] double Left() const override { return left; }
    void setLeft(double twips) override { left = twips; }
    [[nodiscard]] double Height() const override { return height; }
    void setHeight(double twips) override { height = twips; }
    [[nodiscard]] double Width() const override { return width; }
    void setWidth(double twips) override { width = twips; }
};

/// What the window showed last; outlives the window.
struct Shown {
    PlainForm form;
    QString month;
    QString year;
    std::array<CalendarCell, CalendarWindow::cellCount> cells;
    qint32 windows = 0;
    qint32 living = 0;
    bool refusesCells = false;

    [[nodiscard]] QStringList captions() const {
        QStringList texts;
        for (const CalendarCell& cell : cells) {
            texts << cell.caption;
        }
        return texts;
    }
    /// The indexes of the cells that hold.
    [[nodiscard]] QList<int> where(bool CalendarCell::*member) const {
        QList<int> found;
        for (std::size_t i = 0; i < cells.size(); ++i) {
            if (cells.at(i).*member) {
                found << static_cast<int>(i);
            }
        }
        return found;
    }
};

class ScriptedWindow final : public CalendarWindow {
public:
    ScriptedWindow(Shown& shown, std::function<void(clsCalendar&)> user)
        : shown_(shown)
        , user_(std::move(user)) {
        ++shown_.windows;
        ++shown_.living;
        shown_.form.width = 3000;
        shown_.form.height = 2400;
    }
    ScriptedWindow(const ScriptedWindow&) = delete;
    ScriptedWindow& operator=(const ScriptedWindow&) = delete;
    ~ScriptedWindow() override { --shown_.living; }

    [[nodiscard]] FormPlacement& placement() override { return shown_.form; }
    [[nodiscard]] double screenWidth() const override { return 15000; }
    [[nodiscard]] double screenHeight() const override { return 12000; }
    void setYear(const QString& year) override { shown_.year = year; }
    void setMonth(const QString& month) override { shown_.month = month; }
    [[nodiscard]] CalendarCell cell(qint16 index) const override {
        return shown_.cells.at(static_cast<std::size_t>(index));
    }
    void setCell(qint16 index, const CalendarCell& cell) override {
        if (shown_.refusesCells) {
            throw failure(ErrorNumber::OutOfMemory);
        }
        shown_.cells.at(static_cast<std::size_t>(index)) = cell;
    }
    void showModal() override {
        ASSERT_NE(mParent, nullptr);
        user_(*mParent);
    }

private:
    Shown& shown_;
    std::function<void(clsCalendar&)> user_;
};

/// A calendar whose user does as told.
class CalendarFixture : public testing::Test {
protected:
    using User = std::function<void(clsCalendar&)>;

    TestWorld world_;
    Shown shown_;
    User user_ = [](clsCalendar&) {};
    clsCalendar calendar_{[this] { return std::make_unique<ScriptedWindow>(shown_, user_); }};

    static void cancel(clsCalendar& calendar) { calendar.CurrentDate = calendar.HoldDate; }
    /// Opens the calendar on `start`, lets the user act and gives the result.
    QVariant pick(const QVariant& start, User user) {
        user_ = std::move(user);
        return calendar_.ShowCalendar(1, nullptr, {}, {}, start);
    }
    void show(QDate date) {
        pick(date, [](clsCalendar&) {});
    }
    /// The cells of the days 1 to `days`, beginning at `first`, all others blank.
    void expectMonth(int first, int days) const {
        QStringList expected;
        for (int i = 0; i < CalendarWindow::cellCount; ++i) {
            const int day = i - first + 1;
            expected << (day >= 1 && day <= days ? QString::number(day) : QString());
            EXPECT_EQ(shown_.cells.at(static_cast<std::size_t>(i)).enabled, !expected.last().isEmpty()) << i;
        }
        EXPECT_EQ(shown_.captions(), expected);
    }
};
