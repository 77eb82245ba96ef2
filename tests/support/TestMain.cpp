#include <QApplication>
#include <QLocale>
#include <gtest/gtest.h>

#include <cstdlib>

/// Every test program starts the same way: no display, no random order, and neither the machine's locale nor
/// its time zone nor the real user's settings in sight.
int main(int argc, char** argv) {
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("TZ", "UTC");
    qputenv("QT_HASH_SEED", "0");
    qputenv("XDG_CONFIG_HOME", "/nonexistent");
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
