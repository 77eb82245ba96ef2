#pragma once

#include <QApplication>
#include <QDirIterator>
#include <QFontDatabase>
#include <QPixmapCache>
#include <QWidget>

#include <malloc.h>

#include <cstddef>

#ifdef __SANITIZE_ADDRESS__
extern "C" std::size_t __sanitizer_get_current_allocated_bytes(); // its header does not come with GCC
#endif

/// What a process holds: the objects that its windows are made of, and the bytes of its heap.
struct Footprint {
    qsizetype topLevels = 0;
    qsizetype widgets = 0;
    qsizetype objects = 0;
    qsizetype bytes = 0;

    static Footprint now() {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
        QPixmapCache::clear();
        forgetFonts();
        Footprint found;
        found.topLevels = QApplication::topLevelWidgets().size();
        found.widgets = QApplication::allWidgets().size();
        found.objects = qApp->findChildren<QObject*>().size();
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (const QWidget* window : windows) {
            found.objects += 1 + window->findChildren<QObject*>().size();
        }
#ifdef __SANITIZE_ADDRESS__
        found.bytes = static_cast<qsizetype>(__sanitizer_get_current_allocated_bytes());
#else
        found.bytes = static_cast<qsizetype>(mallinfo2().uordblks);
#endif
        return found;
    }

private:
    /// Drops the letters that were drawn in any size, which the toolkit keeps for a while: it does so when
    /// the program's own fonts change.
    static void forgetFonts() {
        QDirIterator fonts(QStringLiteral("/usr/share/fonts"), {QStringLiteral("*.ttf")}, QDir::Files,
                           QDirIterator::Subdirectories);
        if (fonts.hasNext()) {
            QFontDatabase::removeApplicationFont(QFontDatabase::addApplicationFont(fonts.next()));
        }
    }
};
