#include "ConversionWorld.h"
#include "core/Conversion.h"
#include "support/QtPrinting.h"

#include <QDateTime>
#include <gtest/gtest.h>

#include <cmath>
#include <ctime>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr qint32 TYPE_MISMATCH = 13;
constexpr qint32 OVERFLOW_NUMBER = 6;

void expectNoNumber(const QString& text) {
    EXPECT_FALSE(Conversion::isNumeric(text)) << qPrintable(text.left(40));
    EXPECT_EQ(failureNumber([&] { (void)Conversion::toDouble(text); }), TYPE_MISMATCH)
        << qPrintable(text.left(40));
    EXPECT_EQ(failureNumber([&] { (void)Conversion::toSingle(text); }), TYPE_MISMATCH)
        << qPrintable(text.left(40));
    EXPECT_EQ(failureNumber([&] { (void)Conversion::toLong(text); }), TYPE_MISMATCH)
        << qPrintable(text.left(40));
}

void expectNumber(const QString& text, double value) {
    EXPECT_TRUE(Conversion::isNumeric(text)) << qPrintable(text);
    EXPECT_EQ(failureNumber([&] { EXPECT_EQ(Conversion::toDouble(text), value) << qPrintable(text); }),
              std::nullopt)
        << qPrintable(text);
}

} // namespace

TEST(NumberConversionTest, toLong_halves_roundToTheEvenNeighbour) {
    const ConversionWorld world(u"en_US"_s);
    EXPECT_EQ(Conversion::toLong(u"0.5"), 0);
    EXPECT_EQ(Conversion::toLong(u"1.5"), 2);
    EXPECT_EQ(Conversion::toLong(u"2.5"), 2);
    EXPECT_EQ(Conversion::toLong(u"3.5"), 4);
    EXPECT_EQ(Conversion::toLong(u"-0.5"), 0);
    EXPECT_EQ(Conversion::toLong(u"-1.5"), -2);
    EXPECT_EQ(Conversion::toLong(u"-2.5"), -2);
    EXPECT_EQ(Conversion::toLong(u"2.5000001"), 3);
    EXPECT_EQ(Conversion::toLong(2.4999999), 2);
}

TEST(NumberConversionTest, toLong_outside32Bits_overflows) {
    const ConversionWorld world(u"en_US"_s);
    EXPECT_EQ(Conversion::toLong(u"2147483647"), std::numeric_limits<qint32>::max());
    EXPECT_EQ(Conversion::toLong(u"2147483647.4"), std::numeric_limits<qint32>::max());
    EXPECT_EQ(Conversion::toLong(u"-2147483648"), std::numeric_limits<qint32>::min());
    EXPECT_EQ(Conversion::toLong(u"-2147483648.5"),
              std::numeric_limits<qint32>::min()); // the half goes to even
    for (const QString& text : {u"2147483648"_s, u"2147483647.5"_s, u"-2147483649"_s, u"1e300"_s}) {
        EXPECT_TRUE(Conversion::isNumeric(text)) << qPrintable(text);
        EXPECT_EQ(failureNumber([&] { (void)Conversion::toLong(text); }), OVERFLOW_NUMBER)
            << qPrintable(text);
    }
    EXPECT_EQ(failureNumber([] { (void)Conversion::toLong(std::nan("")); }), OVERFLOW_NUMBER);
}

TEST(NumberConversionTest, toDouble_outsideTheRange_overflowsAndIsNotNumeric) {
    const ConversionWorld world(u"en_US"_s);
    for (const QString& text : {u"1e309"_s, u"-1e309"_s, QString(400, u'9'), u"1e99999999999999999999"_s}) {
        EXPECT_FALSE(Conversion::isNumeric(text)) << qPrintable(text.left(40));
        EXPECT_EQ(failureNumber([&] { (void)Conversion::toDouble(text); }), OVERFLOW_NUMBER);
    }
    expectNumber(u"1e-400"_s, 0);
    expectNumber(u"1e-99999999999999999999"_s, 0);
}

TEST(NumberConversionTest, toSingle_outsideTheRange_overflows) {
    const ConversionWorld world(u"en_US"_s);
    EXPECT_EQ(Conversion::toSingle(u"120.5"), 120.5F);
    EXPECT_EQ(Conversion::toSingle(u"3.4028234e38"), 3.4028234e38F);
    EXPECT_EQ(failureNumber([] { (void)Conversion::toSingle(u"3.5e38"); }), OVERFLOW_NUMBER);
    EXPECT_EQ(failureNumber([] { (void)Conversion::toSingle(u"-1e300"); }), OVERFLOW_NUMBER);
}

TEST(NumberConversionTest, isNumeric_whatTheConversionsTake_isAccepted) {
    const ConversionWorld world(u"en_US"_s);
    expectNumber(u"0"_s, 0);
    expectNumber(u"007"_s, 7);
    expectNumber(u" 42 "_s, 42);
    expectNumber(u"\t42\u00A0"_s, 42);
    expectNumber(u"+5"_s, 5);
    expectNumber(u"- 5"_s, -5);
    expectNumber(u"\u22125"_s, -5);
    expectNumber(u"1."_s, 1);
    expectNumber(u".5"_s, 0.5);
    expectNumber(u"-.5"_s, -0.5);
    expectNumber(u"1,234.5"_s, 1234.5);
    expectNumber(u"1,234,567"_s, 1234567);
    expectNumber(u"12,34,567"_s, 1234567); // groups of two before the last are usual in some regions
    expectNumber(u"1e3"_s, 1000);
    expectNumber(u"1.5E-3"_s, 0.0015);
    expectNumber(u"2E+2"_s, 200);
    expectNumber(u"\u0664\u0662"_s, 42); // digits of other scripts
}

TEST(NumberConversionTest, isNumeric_whatTheConversionsRefuse_isRefused) {
    const ConversionWorld world(u"en_US"_s);
    for (const QString& text :
         {QString(), u" "_s,     u"."_s,       u","_s,      u"-"_s,        u"+-5"_s,   u"--5"_s,
          u"5-"_s,   u"abc"_s,   u"12a"_s,     u"a12"_s,    u"1 2"_s,      u"1.2.3"_s, u"1.234,5"_s,
          u"12,5"_s, u",123"_s,  u"1,,234"_s,  u"1,234,"_s, u"1234,567"_s, u"1e"_s,    u"1e+"_s,
          u"e5"_s,   u"1e5.5"_s, u"1e1,000"_s, u"0x1F"_s,   u"&H1F"_s,     u"$5"_s,    u"5%"_s,
          u"(5)"_s,  u"inf"_s,   u"-inf"_s,    u"nan"_s,    u"True"_s,     u"½"_s,     u"²"_s}) {
        expectNoNumber(text);
    }
}

TEST(NumberConversionTest, isNumeric_hostileTexts_areRefusedOrReadWhole) {
    const ConversionWorld world(u"en_US"_s);
    expectNoNumber(QString(QChar(u'\0')));
    expectNoNumber(u"1"_s + QChar(u'\0'));
    expectNoNumber(u"1"_s + QChar(u'\0') + u'2');
    expectNoNumber(u"\u200F12"_s);
    expectNoNumber(u"12\u202E"_s);
    expectNoNumber(QString(QChar(0xD800)));
    expectNoNumber(QString(1000000, u'9') + u'x');
    expectNoNumber(QString(1000000, u'-'));
    expectNumber(QString(1000000, u'0') + u"12"_s, 12);
    expectNumber(u"0."_s + QString(1000000, u'3'), 1.0 / 3);
}

class NumberInLocaleTest : public testing::TestWithParam<const char*> {
protected:
    ConversionWorld world_{QString::fromLatin1(GetParam())};
    QLocale locale_{QString::fromLatin1(GetParam())};
};

INSTANTIATE_TEST_SUITE_P(AllLocales, NumberInLocaleTest, testing::ValuesIn(testedLocales), localeName);

TEST_P(NumberInLocaleTest, toDouble_theRegionsOwnSpelling_isReadBack) {
    for (const double value : {0.0, 1.0, -1.0, 0.5, -0.25, 12.5, 999.0, 1000.0, 1234.5, -1234567.75, 1e9}) {
        expectNumber(locale_.toString(value, 'f', 2), value);
        expectNumber(locale_.toString(value, 'f', 2).remove(locale_.groupSeparator()), value);
        expectNumber(Conversion::generalNumber(value), value);
    }
}

TEST_P(NumberInLocaleTest, isNumeric_theOtherDecimalSeparator_isNoDecimalSeparator) {
    const QString other = locale_.decimalPoint() == u","_s ? u"."_s : u","_s;
    expectNoNumber(u"12"_s + other + u'5');
    expectNoNumber(u"0"_s + other + u"25"_s);
}

TEST_P(NumberInLocaleTest, generalNumber_anyValue_holdsNoGroupSeparator) {
    const QString point = locale_.decimalPoint();
    EXPECT_EQ(Conversion::generalNumber(1234567.5), u"1234567"_s + point + u'5');
    EXPECT_EQ(Conversion::generalNumber(-0.125), u"-0"_s + point + u"125"_s);
    EXPECT_EQ(Conversion::generalNumber(600.0), u"600"_s);
}

TEST(NumberConversionTest, isNumeric_groupsOfBlanks_areReadWhateverBlankTheyAre) {
    const ConversionWorld world(u"fr_FR"_s);
    expectNumber(u"1 234,5"_s, 1234.5);
    expectNumber(u"1\u00A0234,5"_s, 1234.5);
    expectNumber(u"1\u202F234,5"_s, 1234.5);
    expectNoNumber(u"1 23"_s);
}

TEST(NumberConversionTest, generalNumber_doubles_showAtMostFifteenSignificantDigits) {
    const ConversionWorld world(u"en_US"_s);
    EXPECT_EQ(Conversion::generalNumber(0.1), u"0.1"_s);
    EXPECT_EQ(Conversion::generalNumber(0.1 + 0.2), u"0.3"_s);
    EXPECT_EQ(Conversion::generalNumber(1.0 / 3), u"0.333333333333333"_s);
    EXPECT_EQ(Conversion::generalNumber(-2.0 / 3), u"-0.666666666666667"_s);
    EXPECT_EQ(Conversion::generalNumber(100.0), u"100"_s);
    EXPECT_EQ(Conversion::generalNumber(0.0), u"0"_s);
    EXPECT_EQ(Conversion::generalNumber(-0.0), u"0"_s);
    EXPECT_EQ(Conversion::generalNumber(123456789012345.0), u"123456789012345"_s);
    EXPECT_EQ(Conversion::generalNumber(9.999999999999999), u"10"_s);
    EXPECT_EQ(Conversion::generalNumber(1e15), u"1E+15"_s);
    EXPECT_EQ(Conversion::generalNumber(1.5e300), u"1.5E+300"_s);
    EXPECT_EQ(Conversion::generalNumber(1.5e-20), u"1.5E-20"_s);
}

TEST(NumberConversionTest, generalNumber_floats_showAtMostSevenSignificantDigits) {
    const ConversionWorld world(u"en_US"_s);
    EXPECT_EQ(Conversion::generalNumber(0.1F), u"0.1"_s);
    EXPECT_EQ(Conversion::generalNumber(120.5F), u"120.5"_s);
    EXPECT_EQ(Conversion::generalNumber(1.0F / 3), u"0.3333333"_s);
    EXPECT_EQ(Conversion::generalNumber(1234567.0F), u"1234567"_s);
    EXPECT_EQ(Conversion::generalNumber(16777216.0F), u"1.677722E+07"_s);
}

TEST(NumberConversionTest, generalNumber_whatIsNoNumber_overflows) {
    const ConversionWorld world(u"en_US"_s);
    for (const double value : {std::numeric_limits<double>::infinity(), std::nan("")}) {
        EXPECT_EQ(failureNumber([value] { (void)Conversion::generalNumber(value); }), OVERFLOW_NUMBER);
    }
}

TEST(NumberConversionTest, storedText_anyKindOfValue_hasOneFixedForm) {
    const ConversionWorld world(u"de_DE"_s);
    EXPECT_EQ(Conversion::storedText(42), u"42"_s);
    EXPECT_EQ(Conversion::storedText(-1), u"-1"_s);
    EXPECT_EQ(Conversion::storedText(true), u"True"_s);
    EXPECT_EQ(Conversion::storedText(false), u"False"_s);
    EXPECT_EQ(Conversion::storedText(12.5), u"12,5"_s);
    EXPECT_EQ(Conversion::storedText(12.5F), u"12,5"_s);
    EXPECT_EQ(Conversion::storedText(u" as it stands "_s), u" as it stands "_s);
    EXPECT_EQ(Conversion::storedText(QVariant()), QString());
    EXPECT_EQ(Conversion::storedText(QDate(1965, 2, 4)), u"1965-02-04T00:00:00"_s);
    EXPECT_EQ(Conversion::storedText(QDateTime(QDate(1965, 2, 4), QTime(6, 46, 5))),
              u"1965-02-04T06:46:05"_s);
}

TEST(NumberConversionTest, storedText_dayWithoutMidnight_isStillThatDayAtMidnight) {
    const ConversionWorld world(u"en_US"_s);
    qputenv("TZ", "BRT3BRST,M10.3.0/0,M2.3.0/0"); // clocks go forward at midnight of 21 October 2018
    tzset();
    const QString text = Conversion::storedText(QDate(2018, 10, 21));
    qputenv("TZ", "UTC");
    tzset();
    EXPECT_EQ(text, u"2018-10-21T00:00:00"_s);
}
