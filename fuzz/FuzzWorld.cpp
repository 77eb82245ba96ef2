#include "FuzzWorld.h"

#include "core/Global.h"
#include "core/Services.h"

#include <QDir>

#include <cstdio>
#include <cstdlib>
#include <cstring>

void broken(const QString& promise) {
    std::fprintf(stderr, "Broken: %s\n", qPrintable(promise));
    std::abort();
}

FuzzWorld::FuzzWorld()
    : folder_(QDir(QStringLiteral("/dev/shm")).exists() ? QStringLiteral("/dev/shm/talivane-fuzz-XXXXXX")
                                                        : QDir::tempPath() + QStringLiteral("/fuzz-XXXXXX")) {
    Services services;
    services.prompts = &user_;
    services.applicationPath = folder_.path();
    services.locale = QLocale(QLocale::English, QLocale::UnitedStates);
    Global::use(services);
}

QByteArray FuzzInput::take(qsizetype size) {
    const QByteArray piece = rest_.left(size);
    rest_ = rest_.mid(size);
    return piece;
}

std::uint8_t FuzzInput::byte() {
    const QByteArray piece = take(1);
    return piece.isEmpty() ? std::uint8_t{0} : static_cast<std::uint8_t>(piece.front());
}

double FuzzInput::number() {
    const QByteArray piece = take(sizeof(double));
    double value = 0;
    std::memcpy(&value, piece.constData(), static_cast<std::size_t>(piece.size()));
    return value;
}

QString FuzzInput::text() {
    const qsizetype size = byte();
    return QString::fromUtf8(take(size));
}
