#include "core/Conversion.h"
#include "core/Failure.h"
#include "core/Global.h"

#include <QDateTime>
#include <QLocale>
#include <QRegularExpression>
#include <QVarLengthArray>

#include <algorithm>
#include <optional>

namespace {

/// No spelling of a date is longer; what is longer need not be searched for months and weekdays.
constexpr qsizetype longestDate = 100;

struct MonthName {
    QString name;
    int month;
};

/// The year of two digits means 1930 to 2029.
int fullYear(int year, qsizetype digits) {
    return digits > 2 ? year : year + (year < 30 ? 2000 : 1900);
}

std::optional<QDate> checkedDate(int year, int month, int day) {
    const QDate date(year, month, day);
    return date.isValid() && year >= 100 && year <= 9999 ? std::optional(date) : std::nullopt;
}

QString withoutClosingPoints(QString name) {
    while (name.endsWith(u'.')) {
        name.chop(1);
    }
    return name;
}

/// All spellings of the months in the user's language and in English, longest first, so that "thg 12" is not
/// taken for "thg 1".
QList<MonthName> monthNames(const QLocale& locale) {
    QList<MonthName> names;
    for (const QLocale& each : {locale, QLocale::c()}) {
        for (int month = 1; month <= 12; ++month) {
            for (const QLocale::FormatType format : {QLocale::LongFormat, QLocale::ShortFormat}) {
                for (const QString& name : {withoutClosingPoints(each.monthName(month, format)),
                                            withoutClosingPoints(each.standaloneMonthName(month, format))}) {
                    // A month that is only a number ("2", "2月") is read as the number that it is.
                    if (std::any_of(name.cbegin(), name.cend(),
                                    [](QChar c) { return c.isLetter() && c != u'月'; })) {
                        names.append({name, month});
                    }
                }
            }
        }
    }
    std::stable_sort(names.begin(), names.end(),
                     [](const MonthName& a, const MonthName& b) { return a.name.size() > b.name.size(); });
    return names;
}

/// Words that may stand in a date without changing it: weekdays, and "4 de febrero de 1965".
QStringList fillerWords(const QLocale& locale) {
    QStringList words;
    for (const QLocale& each : {locale, QLocale::c()}) {
        for (int day = 1; day <= 7; ++day) {
            words << withoutClosingPoints(each.dayName(day, QLocale::LongFormat))
                  << withoutClosingPoints(each.dayName(day, QLocale::ShortFormat));
        }
    }
    words << QStringLiteral("de") << QStringLiteral("of");
    words.removeAll(QString());
    std::stable_sort(words.begin(), words.end(),
                     [](const QString& a, const QString& b) { return a.size() > b.size(); });
    return words;
}

/// The order of year, month and day in a regional format, for example "dMy".
QString orderOf(const QString& format) {
    QString order;
    bool quoted = false;
    for (const QChar character : format) {
        quoted = quoted != (character == u'\'');
        if (!quoted && QStringView(u"yMd").contains(character) && !order.contains(character)) {
            order += character;
        }
    }
    return order;
}

/// The regional short form with a year of four digits.
QString fullShortFormat(const QLocale& locale) {
    static const QRegularExpression year(QStringLiteral("y+"));
    return locale.dateFormat(QLocale::ShortFormat).replace(year, QStringLiteral("yyyy"));
}

/// How dates are written in a region. Finding it out takes far longer than reading a date.
struct RegionalDates {
    explicit RegionalDates(const QLocale& region)
        : locale(region)
        , months(monthNames(region))
        , fillers(fillerWords(region))
        , shortFormat(fullShortFormat(region))
        , shortOrder(orderOf(shortFormat))
        , longOrder(orderOf(region.dateFormat(QLocale::LongFormat))) {}

    QLocale locale;
    QList<MonthName> months;
    QStringList fillers;
    QString shortFormat;
    QString shortOrder;
    QString longOrder;
};

const RegionalDates& regionalDates() {
    const QLocale& locale = Global::services().locale;
    static RegionalDates dates(locale);
    if (dates.locale != locale) {
        dates = RegionalDates(locale);
    }
    return dates;
}

enum class Role { Free, Year, Month, Day };

struct DateToken {
    int value = 0;
    qsizetype digits = 0;
    Role role = Role::Free;
};

using DateTokens = QVarLengthArray<DateToken, 4>;

Role roleOfSuffix(QChar suffix) {
    switch (suffix.unicode()) {
    case u'年':
    case u'년':
        return Role::Year;
    case u'月':
    case u'월':
        return Role::Month;
    case u'日':
    case u'일':
        return Role::Day;
    default:
        return Role::Free;
    }
}

/// Takes a text apart into the three parts of a date.
class DateReader {
public:
    DateReader(QStringView text, const RegionalDates& region)
        : rest_(text)
        , region_(region) {}

    /// The parts; nothing when there are not three of them or the text holds anything else.
    std::optional<DateTokens> read() {
        while (!rest_.isEmpty()) {
            if (!skipSeparator() && !readNumber() && !readMonth() && !skipFiller()) {
                return std::nullopt;
            }
        }
        return tokens_.size() == 3 ? std::optional(tokens_) : std::nullopt;
    }

private:
    bool skipSeparator() {
        static constexpr QStringView separators = u".,/-";
        const bool found = separators.contains(rest_.front()) || rest_.front().isSpace();
        rest_ = rest_.mid(found ? 1 : 0);
        return found;
    }

    bool readNumber() {
        DateToken token;
        while (token.digits < rest_.size() && rest_.at(token.digits).isDigit()) {
            token.value = token.value * 10 + rest_.at(token.digits).digitValue();
            if (++token.digits > 4) {
                return false;
            }
        }
        if (token.digits == 0) {
            return false;
        }
        rest_ = rest_.mid(token.digits);
        if (!rest_.isEmpty()) {
            token.role = roleOfSuffix(rest_.front());
            rest_ = rest_.mid(token.role == Role::Free ? 0 : 1);
        }
        tokens_.append(token);
        for (const QStringView ordinal :
             {QStringView(u"st"), QStringView(u"nd"), QStringView(u"rd"), QStringView(u"th")}) {
            if (skipWord(ordinal)) {
                break;
            }
        }
        return true;
    }

    bool readMonth() {
        for (const MonthName& each : region_.months) {
            if (skipWord(each.name)) {
                tokens_.append({each.month, 0, Role::Month});
                return true;
            }
        }
        return false;
    }

    bool skipFiller() {
        return std::any_of(region_.fillers.cbegin(), region_.fillers.cend(),
                           [this](const QString& word) { return skipWord(word); });
    }

    /// Takes `word` from the front where it ends there: "Mar" is not the front of "Marx", nor "thg 1" that of
    /// "thg 12".
    bool skipWord(QStringView word) {
        if (!rest_.startsWith(word, Qt::CaseInsensitive)) {
            return false;
        }
        if (word.size() < rest_.size()) {
            const QChar next = rest_.at(word.size());
            if (next.isLetter() || next.isMark() || (next.isDigit() && word.back().isDigit())) {
                return false;
            }
        }
        rest_ = rest_.mid(word.size());
        return true;
    }

    QStringView rest_;
    const RegionalDates& region_;
    DateTokens tokens_;
};

std::optional<QDate> numericDate(const DateTokens& tokens, const RegionalDates& region) {
    QStringView order = region.shortOrder;
    const bool yearFirst = tokens.first().digits > 2;
    if (yearFirst) {
        order = u"yMd";
    } else if (tokens.last().digits > 2 && order.startsWith(u'y')) {
        // Where the short form begins with the year, a text that ends in one follows the long form's order.
        order = region.longOrder.indexOf(u'd') < region.longOrder.indexOf(u'M') ? u"dMy" : u"Mdy";
    }
    const auto part = [&](QChar name) { return tokens.at(order.indexOf(name)); };
    if (part(u'M').digits > 2 || part(u'd').digits > 2) {
        return std::nullopt;
    }
    int month = part(u'M').value;
    int day = part(u'd').value;
    if (!yearFirst && month > 12 && day <= 12) {
        std::swap(month, day); // only one reading makes a date
    }
    return checkedDate(fullYear(part(u'y').value, part(u'y').digits), month, day);
}

std::optional<QDate> dateWithMonth(DateTokens tokens) {
    const auto month = std::find_if(tokens.begin(), tokens.end(),
                                    [](const DateToken& token) { return token.role == Role::Month; });
    const int monthValue = month->value;
    tokens.erase(month);
    const bool yearFirst = tokens.first().role == Role::Year || tokens.last().role == Role::Day ||
                           (tokens.first().digits > 2 || tokens.first().value > 31);
    const DateToken year = yearFirst ? tokens.first() : tokens.last();
    const DateToken day = yearFirst ? tokens.last() : tokens.first();
    if (day.digits > 2) {
        return std::nullopt;
    }
    return checkedDate(fullYear(year.value, year.digits), monthValue, day.value);
}

/// Cuts a time of day off the end of a date.
QStringView withoutTime(QStringView text) {
    if (!text.contains(u':')) {
        return text;
    }
    static const QRegularExpression time(
        QStringLiteral("(?:T|\\s+)([01]?\\d|2[0-3]):[0-5]\\d(?::[0-5]\\d(?:[.,]\\d+)?)?"
                       "(?:\\s*[AaPp]\\.?[Mm]\\.?)?(?:Z|[+-]\\d\\d:?\\d\\d)?$"));
    const QRegularExpressionMatch match = time.match(text);
    return match.hasMatch() ? text.left(match.capturedStart()) : text;
}

std::optional<QDate> parsedDate(QString text) {
    if (text.size() > longestDate) {
        return std::nullopt;
    }
    text.removeIf([](QChar c) { return c == QChar(0x200E) || c == QChar(0x200F) || c == QChar(0x061C); });
    const RegionalDates& region = regionalDates();
    const auto tokens = DateReader(withoutTime(QStringView(text).trimmed()), region).read();
    if (!tokens) {
        return std::nullopt;
    }
    const auto months = std::count_if(tokens->cbegin(), tokens->cend(),
                                      [](const DateToken& token) { return token.role == Role::Month; });
    if (months > 1) {
        return std::nullopt;
    }
    return months == 1 ? dateWithMonth(*tokens) : numericDate(*tokens, region);
}

std::optional<QDate> dateOf(const QVariant& value) {
    switch (value.typeId()) {
    case QMetaType::QDate:
    case QMetaType::QDateTime:
        return value.toDate().isValid() ? std::optional(value.toDate()) : std::nullopt;
    case QMetaType::QString:
        return parsedDate(value.toString());
    default:
        return std::nullopt;
    }
}

} // namespace

bool Conversion::isDate(const QVariant& value) {
    return dateOf(value).has_value();
}

QDate Conversion::toDate(const QVariant& value) {
    const auto date = dateOf(value);
    if (!date) {
        throw failure(ErrorNumber::TypeMismatch);
    }
    return *date;
}

QString Conversion::shortDate(QDate date) {
    const RegionalDates& region = regionalDates();
    return region.locale.toString(date, region.shortFormat);
}

QString Conversion::shortDate(const QVariant& value) {
    const auto date = dateOf(value);
    return date ? shortDate(*date) : value.toString();
}

QString Conversion::mediumDate(QDate date) {
    const QLocale& locale = Global::services().locale;
    const QString month = withoutClosingPoints(locale.monthName(date.month(), QLocale::ShortFormat));
    const QString day = locale.toString(date, QStringLiteral("dd"));
    return day + u'-' + month + u'-' + locale.toString(date, QStringLiteral("yyyy"));
}
