#pragma once

#include <QEvent>
#include <QFile>
#include <QObject>
#include <QTimer>
#include <QWidget>

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <utility>

/// Does something as soon as a window has been painted for the first time.
class AfterFirstPaint final : public QObject {
public:
    AfterFirstPaint(QWidget& window, std::function<void()> deed)
        : QObject(&window)
        , deed_(std::move(deed)) {
        window.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            watched->removeEventFilter(this);
            QTimer::singleShot(0, deed_);
        }
        return QObject::eventFilter(watched, event);
    }

private:
    std::function<void()> deed_;
};

/// Ends the process at once, so that its whole life is the time up to here.
[[noreturn]] inline void endHere() {
    std::_Exit(0);
}

/// Ends the process, telling on standard output how much memory it holds, in kilobytes.
[[noreturn]] inline void tellMemoryAndEnd() {
    QFile status(QStringLiteral("/proc/self/status"));
    if (status.open(QIODevice::ReadOnly)) {
        for (const QByteArray& line : status.readAll().split('\n')) {
            if (line.startsWith("VmRSS:")) {
                std::puts(line.mid(6).simplified().constData());
                std::fflush(stdout);
            }
        }
    }
    std::_Exit(0);
}
