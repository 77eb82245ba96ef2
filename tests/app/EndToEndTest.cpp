#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <csignal>

namespace {

constexpr int patience = 60 * 1000;

/// An X display of its own, for as long as the object lives.
class VirtualDisplay {
public:
    VirtualDisplay() {
        server_.start(QStringLiteral("Xvfb"),
                      {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                       QStringLiteral("0"), QStringLiteral("1280x900x24"), QStringLiteral("-nolisten"),
                       QStringLiteral("tcp")});
        // The server writes its number once it takes connections.
        QByteArray number;
        while (!number.endsWith('\n') && server_.waitForReadyRead(patience)) {
            number += server_.readAllStandardOutput();
        }
        name_ = u':' + QString::fromLatin1(number.trimmed());
    }
    VirtualDisplay(const VirtualDisplay&) = delete;
    VirtualDisplay& operator=(const VirtualDisplay&) = delete;
    ~VirtualDisplay() {
        server_.terminate();
        server_.waitForFinished(patience);
    }
    [[nodiscard]] QString name() const { return name_; }

private:
    QProcess server_;
    QString name_;
};

class EndToEndTest : public testing::Test {
protected:
    QTemporaryDir temporary_;
    std::unique_ptr<VirtualDisplay> display_;
    QProcessEnvironment environment_ = QProcessEnvironment::systemEnvironment();
    QProcess program_;
    const QString folder_ = temporary_.path() + QStringLiteral("/Größe und 家");
    const QString settings_ = temporary_.path() + QStringLiteral("/config/Orvenel/Talivane.ini");

    void SetUp() override {
        for (const char* tool : {"Xvfb", "xdotool"}) {
            if (QStandardPaths::findExecutable(QString::fromLatin1(tool)).isEmpty()) {
                GTEST_SKIP() << tool << " is not installed";
            }
        }
        QDir().mkpath(folder_);
        copyAll(QStringLiteral(TALIVANE_DATA_DIR));
        copyAll(QStringLiteral(TALIVANE_DATA_DIR "/sample"));
        ASSERT_TRUE(QFile::copy(QStringLiteral(TALIVANE_PROGRAM), folder_ + QStringLiteral("/talivane")));
        QSettings settings(settings_, QSettings::IniFormat);
        settings.setValue(QStringLiteral("SOFTWARE/Orvenel/Talivane/StartUp/LastProfile"),
                          QStringLiteral("1"));
        settings.setValue(QStringLiteral("SOFTWARE/Orvenel/Talivane/StartUp/LastLocation"),
                          QStringLiteral("1"));
        settings.sync();

        display_ = std::make_unique<VirtualDisplay>();
        ASSERT_GT(display_->name().size(), 1) << "Xvfb did not start";
        environment_.insert(QStringLiteral("DISPLAY"), display_->name());
        environment_.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
        environment_.insert(QStringLiteral("XDG_CONFIG_HOME"), temporary_.path() + QStringLiteral("/config"));
        environment_.insert(QStringLiteral("XDG_RUNTIME_DIR"), temporary_.path());
        program_.setProcessEnvironment(environment_);
        program_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    }
    void TearDown() override {
        if (program_.state() != QProcess::NotRunning) {
            program_.kill();
            program_.waitForFinished(patience);
        }
    }
    void copyAll(const QString& from) {
        for (const QString& name : QDir(from).entryList({QStringLiteral("*.xml")}, QDir::Files)) {
            QFile::remove(folder_ + u'/' + name);
            ASSERT_TRUE(QFile::copy(from + u'/' + name, folder_ + u'/' + name));
        }
    }
    void start() {
        program_.start(folder_ + QStringLiteral("/talivane"), {});
        ASSERT_TRUE(program_.waitForStarted(patience));
    }
    QString xdotool(const QStringList& arguments) {
        QProcess tool;
        tool.setProcessEnvironment(environment_);
        tool.start(QStringLiteral("xdotool"), arguments);
        if (!tool.waitForFinished(patience)) {
            tool.kill();
            tool.waitForFinished();
            ADD_FAILURE() << "xdotool " << qPrintable(arguments.join(u' ')) << " did not come back";
        }
        return QString::fromUtf8(tool.readAllStandardOutput()).section(u'\n', 0, 0);
    }
    /// The visible window with that title; empty while there is none, and also when a window vanishes under
    /// the search, which ends the tool.
    QString findWindow(const QString& title) {
        return xdotool({QStringLiteral("search"), QStringLiteral("--onlyvisible"), QStringLiteral("--name"),
                        u'^' + title + u'$'});
    }
    /// Waits for a window with that title to be visible and gives it the keyboard.
    void focusWindow(const QString& title) {
        QElapsedTimer waited;
        waited.start();
        QString window = findWindow(title);
        while (window.isEmpty()) {
            ASSERT_LT(waited.elapsed(), patience) << qPrintable(title) << " does not come";
            window = findWindow(title);
        }
        xdotool({QStringLiteral("windowfocus"), QStringLiteral("--sync"), window});
    }
    void key(const char* keys) { xdotool({QStringLiteral("key"), QString::fromLatin1(keys)}); }
    void waitUntilGone(const QString& title) {
        QElapsedTimer waited;
        waited.start();
        while (!findWindow(title).isEmpty()) {
            ASSERT_LT(waited.elapsed(), patience) << qPrintable(title) << " stays";
        }
    }
};

} // namespace

TEST_F(EndToEndTest, adviceOnRooms_isShownClosedAndTheProgramEndsWell) {
    start();
    focusWindow(QStringLiteral("Feng Shui"));
    key("alt+a");
    key("r");
    focusWindow(QStringLiteral("Print Preview"));
    key("Escape");
    waitUntilGone(QStringLiteral("Print Preview"));
    focusWindow(QStringLiteral("Feng Shui"));
    key("alt+f");
    key("x");
    ASSERT_TRUE(program_.waitForFinished(patience)) << "the program does not end";
    EXPECT_EQ(program_.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program_.exitCode(), 0);

    const QSettings settings(settings_, QSettings::IniFormat);
    for (const char* window : {"frmView", "frmPrintPreview"}) {
        EXPECT_EQ(
            settings
                .value(QStringLiteral("SOFTWARE/Orvenel/Talivane/%1/WindowState").arg(QLatin1String(window)))
                .toString()
                .toStdString(),
            "NORMAL")
            << window;
    }
}
