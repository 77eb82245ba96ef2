#pragma once

#include <QImage>
#include <QMap>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <functional>
#include <memory>

/// An X display of its own, for as long as the object lives.
class VirtualDisplay {
public:
    VirtualDisplay();
    VirtualDisplay(const VirtualDisplay&) = delete;
    VirtualDisplay& operator=(const VirtualDisplay&) = delete;
    ~VirtualDisplay();
    /// The display's name, as `DISPLAY` wants it; only a colon where the server did not start.
    [[nodiscard]] QString name() const { return name_; }
    /// What the screen shows at this moment. An empty image where it cannot be read.
    [[nodiscard]] QImage screen() const;

private:
    QTemporaryDir folder_;
    QProcess server_;
    QString name_;
};

/// What a user does on keyboard and mouse, one after the other; handed to the display at once.
class Input {
public:
    /// Presses keys, named as xdotool names them: "Tab", "alt+s".
    Input& press(const QStringList& keys);
    Input& press(const QString& key, int times);
    /// Types a text of ASCII letters.
    Input& type(const QString& text);
    Input& click(QPoint onScreen);
    /// Takes hold with the left button and lets go elsewhere.
    Input& drag(QPoint from, QPoint to);
    [[nodiscard]] const QStringList& commands() const { return commands_; }

private:
    QStringList commands_;
};

/// One record of a file: its fields by their names.
using Record = QMap<QString, QString>;

/// The built program on a display of its own, in a folder of its own with the reference tables and empty
/// record files, driven by X events alone. The tests are skipped where Xvfb or xdotool is missing.
///
/// With the environment variable TALIVANE_ROAD_PICTURES set to a folder, picture() keeps what the screen
/// shows there, and so does every failed test.
class XServerTest : public testing::Test {
protected:
    static constexpr int patience = 60 * 1000;

    QTemporaryDir temporary_;
    std::unique_ptr<VirtualDisplay> display_;
    QProcessEnvironment environment_ = QProcessEnvironment::systemEnvironment();
    QProcess program_;
    const QString folder_ = temporary_.path() + QStringLiteral("/Größe und 家");
    const QString settings_ = temporary_.path() + QStringLiteral("/config/Orvenel/Talivane.ini");

    void SetUp() override;
    void TearDown() override;

    /// Puts the sample household's record files in the place of the empty ones, and names it in the settings.
    void moveInTheSampleHousehold();
    void start();
    /// Leaves the program by its menu.
    void quit();

    /// Waits until something is so, or fails the test saying what did not come about. An end of the program
    /// meanwhile is a failure at once.
    [[nodiscard]] bool await(const QString& what, const std::function<bool()>& isSo);
    /// The visible window with that title; empty while there is none.
    QString findWindow(const QString& title);
    /// Waits for a window with that title to be visible and gives it the keyboard.
    void focusWindow(const QString& title);
    /// Waits until no window has that title, and gives the keyboard to the one below.
    void leaveWindow(const QString& title, const QString& below);
    /// Opens a menu or a list, and waits until it is there: keys that come later go to it.
    void openPopup(const Input& input);
    /// Chooses from the open menu or list, and waits until it is gone: keys that come sooner go with it.
    void closePopup(const Input& input);
    /// Where a window stands on the screen; it must be there.
    QRect geometry(const QString& title);
    void send(const Input& input);
    void press(const QStringList& keys) { send(Input().press(keys)); }

    /// The records of a file beside the program, as they lie on the disk.
    [[nodiscard]] QList<Record> records(const QString& file) const;
    /// Waits until a file holds so many records.
    void awaitRecords(const QString& file, qsizetype count);
    /// A value that the program has stored under its settings.
    [[nodiscard]] QString setting(const QString& key) const;
    void awaitSetting(const QString& key, const QString& value);
    [[nodiscard]] QByteArray content(const QString& path) const;
    /// The smallest rectangle of the screen that holds all points of a colour.
    [[nodiscard]] QRect areaOf(QRgb color) const;
    void picture(const QString& name) const;

private:
    bool lost_ = false;

    [[nodiscard]] QSet<QString> shownWindows();
    QString xdotool(const QStringList& arguments);
    void copyAll(const QString& from);
};
