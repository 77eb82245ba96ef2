#pragma once

#include "core/Global.h"
#include "nineki/windows/frmNineKi.h"
#include "profiles/cProfile.h"
#include "reports/windows/PreviewWidget.h"
#include "support/QtPrinting.h"
#include "support/RecordFiles.h"
#include "support/TestWorld.h"
#include "support/WindowDriver.h"
#include "ui/widgets/ColorContrast.h"
#include "ui/widgets/ElidedLabel.h"
#include "ui/widgets/TitleBand.h"

#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <gtest/gtest.h>

/// One of the window's public routines.
using AdviceRoutine = void (frmNineKi::*)();

/// The sample household's first person, and the window over it; today is 14 February 2026.
class AdviceWorld : public testing::Test {
protected:
    TestWorld world_{TestWorld::Records::Sample};
    const QString defaultFile_ = world_.folder() + QDir::separator() + QStringLiteral("Temp.html");

    void SetUp() override {
        Global::CurrentProfile = std::make_unique<cProfile>();
        Global::CurrentProfile->GetProfile(1);
    }
    void TearDown() override { Global::CurrentProfile.reset(); }

    static void show(AdviceRoutine advise, const std::function<void(QWidget&)>& inside) {
        frmNineKi window;
        WindowDriver::whileModal([&] { (window.*advise)(); }, inside);
        EXPECT_FALSE(window.isVisible());
    }
    static void showMove(const std::function<void(QWidget&)>& inside) {
        show(&frmNineKi::AdviseMove, inside);
    }
    static void showChart(const std::function<void(QWidget&)>& inside) {
        show(&frmNineKi::AdviseYearlyChart, inside);
    }

    static QTabWidget& tabs(QWidget& window) {
        return WindowDriver::control<QTabWidget>(window, "tabMoving");
    }
    /// Turns to a page as a user does: by a click on its tab.
    static void turnTo(QWidget& window, int page) {
        QTabBar& bar = *tabs(window).tabBar();
        QTest::mouseClick(&bar, Qt::LeftButton, Qt::NoModifier, bar.tabRect(page).center());
        EXPECT_EQ(tabs(window).currentIndex(), page);
    }
    static QLineEdit& date(QWidget& window) {
        return WindowDriver::control<QLineEdit>(window, "txtMoveDate");
    }
    static void typeDate(QWidget& window, const QString& text) {
        date(window).selectAll();
        QTest::keyClicks(&date(window), text);
    }
    static QComboBox& directions(QWidget& window) {
        return WindowDriver::control<QComboBox>(window, "cboDirection");
    }
    /// Walks down the list from the keyboard.
    static void pickDirection(QWidget& window, const QString& name) {
        QComboBox& list = directions(window);
        list.setFocus();
        QTest::keyClick(&list, Qt::Key_Home);
        for (int i = 0; i < list.count() && list.currentText() != name; ++i) {
            QTest::keyClick(&list, Qt::Key_Down);
        }
        EXPECT_EQ(list.currentText(), name);
    }
    static PreviewWidget& pane(QWidget& window, const char* name) {
        return WindowDriver::control<PreviewWidget>(window, name);
    }
    /// The words on the page that a pane shows.
    static QString words(QWidget& window, const char* name) {
        return pane(window, name).accessibleDescription();
    }
    static QString report(QWidget& window) { return words(window, "vpReport"); }
    static QString compass(QWidget& window) { return words(window, "vpCompass"); }
    static bool isEnabled(QWidget& window, const char* name) {
        return WindowDriver::control(window, name).isEnabled();
    }
    static QString pageLabel(QWidget& window) {
        return WindowDriver::control<QLabel>(window, "lblPageCount").text();
    }
    void expectSaveBox(const QString& answer) {
        world_.prompts.expectInput(
            QStringLiteral("Save to HTML"),
            QStringLiteral("Please enter a fully qualified html filename to save the report to."),
            defaultFile_, answer);
    }
    void expectDateBox(const char* title, const char* text) {
        world_.prompts.expectMessage(QString::fromLatin1(title), QString::fromLatin1(text),
                                     MessageIcon::Information);
    }
};
