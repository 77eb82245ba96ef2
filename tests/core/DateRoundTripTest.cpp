#include "ConversionWorld.h"
#include "core/Conversion.h"
#include "support/QtPrinting.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

/// Four centuries of dates through both named formats and back.
class DateRoundTripTest : public testing::TestWithParam<const char*> {
protected:
    static void expectAllSurvive(QString (*format)(QDate)) {
        int failures = 0;
        for (QDate date(1800, 1, 1); date <= QDate(2199, 12, 31) && failures < 5; date = date.addDays(1)) {
            const QString text = format(date);
            if (!Conversion::isDate(text) || Conversion::toDate(text) != date) {
                ADD_FAILURE() << qPrintable(text) << " is not read as "
                              << qPrintable(date.toString(Qt::ISODate));
                ++failures;
            }
        }
    }

private:
    ConversionWorld world_{QString::fromLatin1(GetParam())};
};

INSTANTIATE_TEST_SUITE_P(AllLocales, DateRoundTripTest, testing::ValuesIn(testedLocales), localeName);

TEST_P(DateRoundTripTest, shortDate_everyDateFrom1800To2199_survives) {
    expectAllSurvive([](QDate date) { return Conversion::shortDate(date); });
}

TEST_P(DateRoundTripTest, mediumDate_everyDateFrom1800To2199_survives) {
    expectAllSurvive([](QDate date) { return Conversion::mediumDate(date); });
}
