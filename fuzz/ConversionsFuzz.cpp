// Texts of any kind as numbers and dates, in several regions.

#include "FuzzWorld.h"
#include "core/Conversion.h"
#include "core/Failure.h"
#include "core/Global.h"
#include "core/Services.h"

#include <array>
#include <cmath>
#include <optional>

namespace {

/// The result of a conversion, or nothing where it refuses. Anything but a Failure ends the run.
template<class Convert>
auto tried(const Convert& convert) -> std::optional<decltype(convert())> {
    try {
        return convert();
    } catch (const Failure&) {
        return std::nullopt;
    }
}

void chooseRegion(std::uint8_t number) {
    static const std::array<QLocale, 7> regions{QLocale(QStringLiteral("en_US")),
                                                QLocale(QStringLiteral("en_GB")),
                                                QLocale(QStringLiteral("de_DE")),
                                                QLocale(QStringLiteral("sv_SE")),
                                                QLocale(QStringLiteral("fr_FR")),
                                                QLocale(QStringLiteral("zh_CN")),
                                                QLocale::c()};
    Services services = Global::services();
    services.locale = regions.at(number % regions.size());
    Global::use(services);
}

void checkNumbers(const QString& text) {
    const auto number = tried([&] { return Conversion::toDouble(text); });
    if (number.has_value() != Conversion::isNumeric(text)) {
        broken(QStringLiteral("a text is a number exactly when it converts to one"));
    }
    const auto whole = tried([&] { return Conversion::toLong(text); });
    if (whole && (!number || std::abs(*number - *whole) > 0.5)) {
        broken(QStringLiteral("a whole number is the nearest one"));
    }
    const auto single = tried([&] { return Conversion::toSingle(text); });
    if (single && !number) {
        broken(QStringLiteral("a small number is a number"));
    }
    if (number) {
        const QString shown = Conversion::generalNumber(*number);
        const double back = Conversion::toDouble(shown);
        if (std::abs(back - *number) > std::abs(*number) * 1e-14) {
            broken(QStringLiteral("a number survives its General Number"));
        }
    }
}

void checkDates(const QString& text) {
    const auto date = tried([&] { return Conversion::toDate(text); });
    if (date.has_value() != Conversion::isDate(text)) {
        broken(QStringLiteral("a text is a date exactly when it converts to one"));
    }
    if (!date) {
        if (Conversion::shortDate(QVariant(text)) != text) {
            broken(QStringLiteral("what is no date is shown as it stands"));
        }
        return;
    }
    if (!date->isValid() || Conversion::toDate(Conversion::shortDate(*date)) != *date ||
        Conversion::toDate(Conversion::mediumDate(*date)) != *date ||
        Conversion::toDate(Conversion::storedText(*date)) != *date) {
        broken(QStringLiteral("a date survives its formats"));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const FuzzWorld world;
    FuzzInput input(data, size);
    chooseRegion(input.byte());
    const QString text = QString::fromUtf8(input.rest());
    checkNumbers(text);
    checkDates(text);
    return 0;
}
