#pragma once

#include "core/Browser.h"
#include "core/Clock.h"
#include "core/MainWindow.h"
#include "core/Printer.h"
#include "support/MemorySettings.h"
#include "support/ScriptedPrompts.h"

#include <QLocale>
#include <QStringList>
#include <QTemporaryDir>

/// Stands in for the main window and notes what was asked of it.
class ScriptedMainWindow final : public MainWindow {
public:
    [[nodiscard]] const QStringList& calls() const { return calls_; }
    void Show() override { calls_ << QStringLiteral("Show"); }
    void NewProfile() override { calls_ << QStringLiteral("NewProfile"); }
    void NewLocation() override { calls_ << QStringLiteral("NewLocation"); }

private:
    QStringList calls_;
};

/// A printer whose user accepts or refuses as told, and that counts what reaches it.
class ScriptedPrinter final : public Printer {
public:
    bool accept = true;
    qint32 dialogs = 0;
    qint32 printedPages = 0;
    qint32 printedDocuments = 0;

    bool choose() override {
        ++dialogs;
        return accept;
    }
    void print(const PrintableDocument& document) override {
        ++printedDocuments;
        printedPages += document.pageCount;
    }
};

/// Notes the addresses that were opened.
class ScriptedBrowser final : public Browser {
public:
    bool associated = true;
    QStringList opened;

    bool open(const QString& address) override {
        opened << address;
        return associated;
    }
};

/// The surroundings of one test: scripted seams, handed to the program for as long as this object lives, and
/// a data folder of its own, whose path holds blanks and letters beyond ASCII.
class TestWorld {
public:
    enum class Records { Empty, Sample };

    explicit TestWorld(Records records = Records::Empty);
    TestWorld(const TestWorld&) = delete;
    TestWorld& operator=(const TestWorld&) = delete;
    ~TestWorld();

    ScriptedPrompts prompts;
    MemorySettings settings;
    FixedClock clock;
    ScriptedMainWindow mainWindow;
    ScriptedPrinter printer;
    ScriptedBrowser browser;

    /// The data folder, without a separator at its end.
    [[nodiscard]] QString folder() const { return folder_; }
    [[nodiscard]] QString file(const QString& name) const { return folder_ + u'/' + name; }
    [[nodiscard]] QByteArray read(const QString& name) const;
    void write(const QString& name, const QByteArray& content) const;
    void remove(const QString& name) const;

    /// Changes the user's regional settings, the decimal separator of stored numbers included. A world
    /// starts in en_US.
    void setLocale(const QLocale& locale);

private:
    void handIn();

    QTemporaryDir temporary_;
    QString folder_;
    QLocale locale_;
};
