#include "ConversionWorld.h"
#include "core/Conversion.h"
#include "support/QtPrinting.h"

#include <QDateTime>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr qint32 TYPE_MISMATCH = 13;

void expectDate(const QVariant& value, QDate date) {
    EXPECT_TRUE(Conversion::isDate(value)) << qPrintable(value.toString());
    EXPECT_EQ(
        failureNumber([&] { EXPECT_EQ(Conversion::toDate(value), date) << qPrintable(value.toString()); }),
        std::nullopt)
        << qPrintable(value.toString());
}

void expectNoDate(const QVariant& value) {
    EXPECT_FALSE(Conversion::isDate(value)) << qPrintable(value.toString().left(40));
    EXPECT_EQ(failureNumber([&] { (void)Conversion::toDate(value); }), TYPE_MISMATCH)
        << qPrintable(value.toString().left(40));
}

const QDate BIRTH_DATE(1965, 2, 4);

} // namespace

class DateInLocaleTest : public testing::TestWithParam<const char*> {
protected:
    ConversionWorld world_{QString::fromLatin1(GetParam())};
};

INSTANTIATE_TEST_SUITE_P(AllLocales, DateInLocaleTest, testing::ValuesIn(testedLocales), localeName);

TEST_P(DateInLocaleTest, toDate_isoDates_areDatesWithAndWithoutTime) {
    for (const QString& text :
         {u"1965-02-04"_s, u" 1965-02-04 "_s, u"1965-2-4"_s, u"1965-02-04T00:00:00"_s,
          u"1965-02-04 00:00:00"_s, u"1965-02-04T23:59:59.999"_s, u"1965-02-04T06:46:00Z"_s,
          u"1965-02-04T06:46:00+08:00"_s, u"1965-02-04 06:46"_s}) {
        expectDate(text, BIRTH_DATE);
    }
}

TEST_P(DateInLocaleTest, toDate_theFallbackTextOfTheLunarYear_isFebruaryFourth) {
    expectDate(u"February 4, 1965"_s, BIRTH_DATE);
    expectDate(u"February 4, 2199"_s, QDate(2199, 2, 4));
    expectDate(u"february 4,1965"_s, BIRTH_DATE);
}

TEST_P(DateInLocaleTest, toDate_valuesThatAreDates_areTakenAsTheyStand) {
    expectDate(BIRTH_DATE, BIRTH_DATE);
    expectDate(QDateTime(BIRTH_DATE, QTime(23, 59)), BIRTH_DATE);
    expectNoDate(QVariant());
    expectNoDate(QDate());
    expectNoDate(QDateTime());
    expectNoDate(19650204);
    expectNoDate(true);
}

TEST_P(DateInLocaleTest, toDate_twoDigitYears_mean1930To2029) {
    for (int year = 1930; year <= 2029; ++year) {
        const QDate date(year, 11, 5);
        QString text = Conversion::shortDate(date);
        text.replace(QString::number(year), QString::number(year).right(2));
        if (text.startsWith(QString::number(year).right(2))) {
            text =
                u"5 November "_s + QString::number(year).right(2); // no region writes a short year in front
        }
        expectDate(text, date);
    }
}

TEST_P(DateInLocaleTest, shortDate_anyDate_showsFourDigitsOfTheYear) {
    for (const int year : {1905, 1930, 1999, 2000, 2005, 2029, 2030, 965}) {
        const QString text = Conversion::shortDate(QDate(year, 3, 7));
        EXPECT_TRUE(text.contains(QString::number(year).rightJustified(4, u'0'))) << qPrintable(text);
        expectDate(text, QDate(year, 3, 7));
    }
}

TEST_P(DateInLocaleTest, mediumDate_anyDate_isDayMonthNameAndFourDigitYear) {
    const QString text = Conversion::mediumDate(BIRTH_DATE);
    EXPECT_TRUE(text.startsWith(u"04-"_s)) << qPrintable(text);
    EXPECT_TRUE(text.endsWith(u"-1965"_s)) << qPrintable(text);
    expectDate(text, BIRTH_DATE);
}

TEST_P(DateInLocaleTest, shortDate_textThatIsADate_isRewritten) {
    EXPECT_EQ(Conversion::shortDate(QVariant(u"1965-02-04 00:00:00"_s)), Conversion::shortDate(BIRTH_DATE));
    EXPECT_EQ(Conversion::shortDate(QVariant(u"no date"_s)), u"no date"_s);
    EXPECT_EQ(Conversion::shortDate(QVariant(QString())), QString());
}

TEST_P(DateInLocaleTest, isDate_textsThatAreNoDates_areRefused) {
    for (const QString& text : {QString(),
                                u" "_s,
                                u"today"_s,
                                u"5"_s,
                                u"12.5"_s,
                                u"12:30"_s,
                                u"1965"_s,
                                u"19650204"_s,
                                u"02/1965"_s,
                                u"1965-02-30"_s,
                                u"1965-13-04"_s,
                                u"1965-00-04"_s,
                                u"1965-02-00"_s,
                                u"February 30, 1965"_s,
                                u"February 4 March 5"_s,
                                u"February February 4"_s,
                                u"31/31/1965"_s,
                                u"0/0/0"_s,
                                u"1/2/3/4"_s,
                                u"February 4, 99999"_s,
                                u"1965-02-04 25:00"_s,
                                u"1965-02-04 12:60"_s,
                                u"1/234/65"_s,
                                u"February 1965 1965"_s,
                                u"February 4, 1965 1965"_s,
                                u"1965-02-04x"_s,
                                u"x1965-02-04"_s,
                                u"Februar"_s,
                                u"Febr 4, 1965 or so"_s}) {
        expectNoDate(text);
    }
}

TEST_P(DateInLocaleTest, isDate_hostileTexts_areRefused) {
    for (const QString& text :
         {QString(QChar(u'\0')), u"1965-02-04"_s + QChar(u'\0'), QString(1000000, u'9'),
          QString(200000, u'1') + u"/2/1965"_s, u"0196512/3"_s, u"1965020412345"_s, u"1234567890"_s,
          u"4/2/00000001965"_s, u"\uE002 4, 1965"_s, u"4-\uE002-1965"_s, u"may "_s.repeated(250000),
          QString(1000000, u'-'), QString(QChar(0xD800)) + u"1965-02-04"_s}) {
        expectNoDate(text);
    }
    // Marks of the writing direction are what some systems put between the parts.
    expectDate(u"\u200F1965-02-04\u200E"_s, BIRTH_DATE);
    expectDate(u"\u200E1965\u200F-02-\u200F04"_s, BIRTH_DATE);
}

namespace {

struct Spelling {
    const char* locale;
    QString text;
};

void PrintTo(const Spelling& spelling, std::ostream* stream) {
    *stream << spelling.locale << ' ' << spelling.text.toStdString();
}

} // namespace

class DateSpellingTest : public testing::TestWithParam<Spelling> {};

INSTANTIATE_TEST_SUITE_P(
    Regions, DateSpellingTest,
    testing::Values(Spelling{"en_US", u"2/4/1965"_s}, Spelling{"en_US", u"02/04/65"_s},
                    Spelling{"en_US", u"2-4-1965"_s}, Spelling{"en_US", u"2.4.1965"_s},
                    Spelling{"en_US", u"Feb 4, 1965"_s}, Spelling{"en_US", u"Feb. 4th, 1965"_s},
                    Spelling{"en_US", u"Thursday, February 4, 1965"_s}, Spelling{"en_US", u"4-Feb-65"_s},
                    Spelling{"en_US", u"4 of February 1965"_s}, Spelling{"en_US", u"2/4/1965 12:00 AM"_s},
                    Spelling{"en_US", u"2/4/1965 11:59:59 p.m."_s}, Spelling{"en_GB", u"04/02/1965"_s},
                    Spelling{"en_GB", u"4 February 1965"_s}, Spelling{"en_GB", u"4/2/65"_s},
                    Spelling{"de_DE", u"04.02.1965"_s}, Spelling{"de_DE", u"4.2.65"_s},
                    Spelling{"de_DE", u"4. Februar 1965"_s}, Spelling{"de_DE", u"Donnerstag, 4. Feb. 1965"_s},
                    Spelling{"sv_SE", u"65-02-04"_s}, Spelling{"sv_SE", u"4 februari 1965"_s},
                    Spelling{"sv_SE", u"4/2 1965"_s}, Spelling{"fr_FR", u"4 février 1965"_s},
                    Spelling{"fr_FR", u"jeudi 4 févr. 1965"_s}, Spelling{"fr_FR", u"04/02/1965"_s},
                    Spelling{"zh_CN", u"1965/2/4"_s}, Spelling{"zh_CN", u"1965年2月4日"_s},
                    Spelling{"zh_CN", u"1965年2月4日星期四"_s}, Spelling{"zh_CN", u"二月 4, 1965"_s},
                    Spelling{"es_ES", u"4 de febrero de 1965"_s}, Spelling{"vi_VN", u"4 tháng 2, 1965"_s},
                    Spelling{"C", u"4 Feb 1965"_s}));

TEST_P(DateSpellingTest, toDate_theSpellingOfARegion_isFebruaryFourth1965) {
    const ConversionWorld world(QString::fromLatin1(GetParam().locale));
    expectDate(GetParam().text, BIRTH_DATE);
}

TEST(DateConversionTest, toDate_monthAboveTwelve_swapsWithTheDay) {
    {
        const ConversionWorld world(u"en_US"_s);
        expectDate(u"31/12/1999"_s, QDate(1999, 12, 31));
        expectDate(u"12/31/1999"_s, QDate(1999, 12, 31));
        expectDate(u"12/11/1999"_s, QDate(1999, 12, 11));
        expectNoDate(u"13/13/1999"_s);
        expectNoDate(u"31/2/1999"_s);
    }
    const ConversionWorld world(u"de_DE"_s);
    expectDate(u"12.31.1999"_s, QDate(1999, 12, 31));
    expectDate(u"12.11.1999"_s, QDate(1999, 11, 12));
}

TEST(DateConversionTest, toDate_monthsOfTwelve_areNotTakenForMonthsOfOne) {
    const ConversionWorld world(u"vi_VN"_s);
    for (int month = 1; month <= 12; ++month) {
        const QDate date(1965, month, 4);
        expectDate(Conversion::mediumDate(date), date);
        expectDate(Conversion::shortDate(date), date);
    }
}

TEST(DateConversionTest, shortDate_tableOfRegions_isTheRegionalOrder) {
    const auto shown = [](const QString& locale) {
        const ConversionWorld world(locale);
        return Conversion::shortDate(QDate(2005, 2, 4));
    };
    EXPECT_EQ(shown(u"en_US"_s), u"2/4/2005"_s);
    EXPECT_EQ(shown(u"en_GB"_s), u"04/02/2005"_s);
    EXPECT_EQ(shown(u"de_DE"_s), u"04.02.2005"_s);
    EXPECT_EQ(shown(u"sv_SE"_s), u"2005-02-04"_s);
    EXPECT_EQ(shown(u"fr_FR"_s), u"04/02/2005"_s);
    EXPECT_EQ(shown(u"zh_CN"_s), u"2005/2/4"_s);
    EXPECT_EQ(shown(u"C"_s), u"4 Feb 2005"_s);
}
