#pragma once

#include "core/Failure.h"
#include "core/Global.h"

#include <QLocale>
#include <QString>
#include <gtest/gtest.h>

#include <array>
#include <optional>
#include <string>

/// The regional settings that the conversions are tested in.
inline constexpr std::array<const char*, 7> testedLocales = {"en_US", "en_GB", "de_DE", "sv_SE",
                                                             "fr_FR", "zh_CN", "C"};

/// Puts the user's regional settings in force for one test; conversions need nothing else.
class ConversionWorld {
public:
    explicit ConversionWorld(const QString& locale) {
        Services services;
        services.locale = QLocale(locale);
        Global::use(services);
    }
    ConversionWorld(const ConversionWorld&) = delete;
    ConversionWorld& operator=(const ConversionWorld&) = delete;
    ~ConversionWorld() { Global::use({}); }
};

/// The number of the failure that `conversion` ends in; nothing when it succeeds.
template<class Conversion>
std::optional<qint32> failureNumber(Conversion&& conversion) {
    try {
        conversion();
    } catch (const Failure& thrown) {
        return thrown.number;
    }
    return std::nullopt;
}

/// Names a parameterised test by its locale.
inline std::string localeName(const testing::TestParamInfo<const char*>& test) {
    return test.param;
}
