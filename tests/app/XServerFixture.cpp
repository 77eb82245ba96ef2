#include "app/XServerFixture.h"

#include <QDir>
#include <QElapsedTimer>
#include <QSettings>
#include <QStandardPaths>
#include <QXmlStreamReader>
#include <QtEndian>

using namespace Qt::StringLiterals;

namespace {

const QString settingsPath = u"SOFTWARE/Orvenel/Talivane/"_s;

} // namespace

VirtualDisplay::VirtualDisplay() {
    constexpr int patience = 60 * 1000;
    // Without a reset, which the server makes when its last client has gone and the next may be coming.
    server_.start(u"Xvfb"_s, {u"-displayfd"_s, u"1"_s, u"-noreset"_s, u"-screen"_s, u"0"_s, u"1280x900x24"_s,
                              u"-nolisten"_s, u"tcp"_s, u"-fbdir"_s, folder_.path()});
    // The server writes its number once it takes connections.
    QByteArray number;
    while (!number.endsWith('\n') && server_.waitForReadyRead(patience)) {
        number += server_.readAllStandardOutput();
    }
    name_ = u':' + QString::fromLatin1(number.trimmed());
}

VirtualDisplay::~VirtualDisplay() {
    server_.terminate();
    server_.waitForFinished();
}

QImage VirtualDisplay::screen() const {
    // The server keeps its picture in a file in the form of X window dumps: a head of big-endian numbers, a
    // table of colours of twelve bytes each, and the points from the top left on.
    enum Field : qsizetype { HeadSize = 0, Width = 4, Height = 5, LineSize = 12, Colors = 19, Fields = 25 };
    constexpr qsizetype wordSize = 4;
    constexpr qsizetype colorSize = 12;
    QFile file(folder_.path() + u"/Xvfb_screen0"_s);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    const QByteArray dump = file.readAll();
    if (dump.size() < Fields * wordSize) {
        return {};
    }
    const auto head = [&](Field field) {
        return static_cast<qsizetype>(qFromBigEndian<quint32>(dump.constData() + field * wordSize));
    };
    const qsizetype points = head(HeadSize) + head(Colors) * colorSize;
    if (dump.size() < points + head(LineSize) * head(Height)) {
        return {};
    }
    return QImage(reinterpret_cast<const uchar*>(dump.constData() + points), static_cast<int>(head(Width)),
                  static_cast<int>(head(Height)), head(LineSize), QImage::Format_RGB32)
        .copy();
}

Input& Input::press(const QStringList& keys) {
    commands_ << u"key"_s << u"--delay"_s << u"0"_s << keys;
    return *this;
}

Input& Input::press(const QString& key, int times) {
    return times > 0 ? press(QStringList(times, key)) : *this;
}

Input& Input::type(const QString& text) {
    commands_ << u"type"_s << u"--delay"_s << u"0"_s << u"--args"_s << u"1"_s << text;
    return *this;
}

Input& Input::click(QPoint onScreen) {
    commands_ << u"mousemove"_s << QString::number(onScreen.x()) << QString::number(onScreen.y())
              << u"click"_s << u"1"_s;
    return *this;
}

Input& Input::drag(QPoint from, QPoint to) {
    const auto move = [this](QPoint place) {
        commands_ << u"mousemove"_s << QString::number(place.x()) << QString::number(place.y());
    };
    move(from);
    commands_ << u"mousedown"_s << u"1"_s;
    move((from + to) / 2);
    move(to);
    commands_ << u"mouseup"_s << u"1"_s;
    return *this;
}

void XServerTest::SetUp() {
    for (const char* tool : {"Xvfb", "xdotool"}) {
        if (QStandardPaths::findExecutable(QString::fromLatin1(tool)).isEmpty()) {
            GTEST_SKIP() << tool << " is not installed";
        }
    }
    ASSERT_TRUE(QDir().mkpath(folder_));
    copyAll(QStringLiteral(TALIVANE_DATA_DIR));
    ASSERT_TRUE(QFile::copy(QStringLiteral(TALIVANE_PROGRAM), folder_ + u"/talivane"_s));

    display_ = std::make_unique<VirtualDisplay>();
    ASSERT_GT(display_->name().size(), 1) << "Xvfb did not start";
    environment_.insert(u"DISPLAY"_s, display_->name());
    environment_.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
    environment_.insert(u"XDG_CONFIG_HOME"_s, temporary_.path() + u"/config"_s);
    environment_.insert(u"XDG_RUNTIME_DIR"_s, temporary_.path());
    environment_.insert(u"HOME"_s, temporary_.path()); // where the print dialog proposes to put its file
    program_.setProcessEnvironment(environment_);
    program_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
}

void XServerTest::TearDown() {
    if (HasFailure() && display_ != nullptr) {
        picture(u"failure"_s);
    }
    if (program_.state() != QProcess::NotRunning) {
        program_.kill();
        program_.waitForFinished(patience);
    }
}

void XServerTest::copyAll(const QString& from) {
    for (const QString& name : QDir(from).entryList({u"*.xml"_s}, QDir::Files)) {
        QFile::remove(folder_ + u'/' + name);
        ASSERT_TRUE(QFile::copy(from + u'/' + name, folder_ + u'/' + name));
    }
}

void XServerTest::moveInTheSampleHousehold() {
    copyAll(QStringLiteral(TALIVANE_DATA_DIR "/sample"));
    QSettings settings(settings_, QSettings::IniFormat);
    settings.setValue(settingsPath + u"StartUp/LastProfile"_s, u"1"_s);
    settings.setValue(settingsPath + u"StartUp/LastLocation"_s, u"1"_s);
}

void XServerTest::start() {
    program_.start(folder_ + u"/talivane"_s, {});
    ASSERT_TRUE(program_.waitForStarted(patience));
    focusWindow(u"Feng Shui"_s);
}

void XServerTest::quit() {
    press({u"alt+f"_s, u"x"_s});
    ASSERT_TRUE(program_.waitForFinished(patience)) << "the program does not end";
    EXPECT_EQ(program_.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program_.exitCode(), 0);
}

bool XServerTest::await(const QString& what, const std::function<bool()>& isSo) {
    constexpr int pace = 10;
    QElapsedTimer waited;
    waited.start();
    while (!isSo()) {
        if (lost_) {
            return false; // who lost the way once need not wait again
        }
        if (waited.elapsed() > patience) {
            lost_ = true;
            ADD_FAILURE() << qPrintable(what) << ": does not come about";
            return false;
        }
        if (program_.waitForFinished(pace) || program_.state() == QProcess::NotRunning) {
            lost_ = true;
            ADD_FAILURE() << qPrintable(what) << ": the program has ended with " << program_.exitCode();
            return false;
        }
    }
    return true;
}

QString XServerTest::xdotool(const QStringList& arguments) {
    QProcess tool;
    tool.setProcessEnvironment(environment_);
    tool.start(u"xdotool"_s, arguments);
    if (!tool.waitForFinished(patience)) {
        tool.kill();
        tool.waitForFinished();
        ADD_FAILURE() << "xdotool " << qPrintable(arguments.join(u' ')) << " did not come back";
    }
    return QString::fromUtf8(tool.readAllStandardOutput());
}

QString XServerTest::findWindow(const QString& title) {
    // A window that vanishes under the search ends the tool; then there is none.
    return xdotool({u"search"_s, u"--onlyvisible"_s, u"--name"_s, u'^' + title + u'$'}).section(u'\n', 0, 0);
}

void XServerTest::focusWindow(const QString& title) {
    QString window;
    ASSERT_TRUE(await(u"window "_s + title, [&] {
        window = findWindow(title);
        return !window.isEmpty();
    }));
    xdotool({u"windowfocus"_s, u"--sync"_s, window});
}

void XServerTest::leaveWindow(const QString& title, const QString& below) {
    ASSERT_TRUE(await(u"end of window "_s + title, [&] { return findWindow(title).isEmpty(); }));
    focusWindow(below);
}

QSet<QString> XServerTest::shownWindows() {
    const QStringList windows = xdotool({u"search"_s, u"--onlyvisible"_s, u"--class"_s, u"talivane"_s})
                                    .split(u'\n', Qt::SkipEmptyParts);
    return {windows.begin(), windows.end()};
}

void XServerTest::openPopup(const Input& input) {
    // A window that is just going may still be counted before, so it is a new one that is waited for. A key
    // that comes in the instant in which a window goes is lost; a person would press it again.
    constexpr int pause = 3000;
    const QSet<QString> before = shownWindows();
    send(input);
    QElapsedTimer pressed;
    pressed.start();
    ASSERT_TRUE(await(u"a menu or list"_s, [&] {
        const bool open = !(shownWindows() - before).isEmpty();
        if (!open && pressed.elapsed() > pause) {
            send(input);
            pressed.restart();
        }
        return open;
    }));
}

void XServerTest::closePopup(const Input& input) {
    const QSet<QString> before = shownWindows();
    send(input);
    ASSERT_TRUE(await(u"end of the menu or list"_s, [&] { return !(before - shownWindows()).isEmpty(); }));
}

QRect XServerTest::geometry(const QString& title) {
    QMap<QString, int> told;
    for (const QString& line :
         xdotool({u"getwindowgeometry"_s, u"--shell"_s, findWindow(title)}).split(u'\n')) {
        told.insert(line.section(u'=', 0, 0), line.section(u'=', 1).toInt());
    }
    return {told.value(u"X"_s), told.value(u"Y"_s), told.value(u"WIDTH"_s), told.value(u"HEIGHT"_s)};
}

void XServerTest::send(const Input& input) {
    xdotool(input.commands());
}

QList<Record> XServerTest::records(const QString& file) const {
    QList<Record> found;
    QXmlStreamReader reader(content(folder_ + u'/' + file));
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement && reader.qualifiedName() == u"z:row"_s) {
            Record record;
            for (const QXmlStreamAttribute& field : reader.attributes()) {
                record.insert(field.name().toString(), field.value().toString());
            }
            found << record;
        }
    }
    return found;
}

void XServerTest::awaitRecords(const QString& file, qsizetype count) {
    ASSERT_TRUE(
        await(u"%1 records in %2"_s.arg(count).arg(file), [&] { return records(file).size() == count; }));
}

QString XServerTest::setting(const QString& key) const {
    const QSettings settings(settings_, QSettings::IniFormat);
    return settings.value(settingsPath + key).toString();
}

void XServerTest::awaitSetting(const QString& key, const QString& value) {
    ASSERT_TRUE(await(key + u" = "_s + value, [&] { return setting(key) == value; }));
}

QByteArray XServerTest::content(const QString& path) const {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QRect XServerTest::areaOf(QRgb color) const {
    const QImage screen = display_->screen();
    QRect area;
    for (int y = 0; y < screen.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(screen.constScanLine(y));
        for (int x = 0; x < screen.width(); ++x) {
            if ((line[x] & RGB_MASK) == (color & RGB_MASK)) {
                area |= QRect(x, y, 1, 1);
            }
        }
    }
    return area;
}

void XServerTest::picture(const QString& name) const {
    const QString folder = qEnvironmentVariable("TALIVANE_ROAD_PICTURES");
    if (!folder.isEmpty()) {
        const auto* test = testing::UnitTest::GetInstance()->current_test_info();
        display_->screen().save(
            u"%1/%2-%3.png"_s.arg(folder, QString::fromLatin1(test->test_suite_name()), name));
    }
}
