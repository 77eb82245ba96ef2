#include "core/Conversion.h"
#include "core/Failure.h"
#include "core/Global.h"

#include <QDateTime>
#include <QLocale>
#include <QRegularExpression>

#include <algorithm>
#include <optional>

namespace {

/// Private characters that stand for month 1 to 12 once a name was recognised.
constexpr char16_t monthMarker = 0xE000;

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


/// All spellings of the months in the user's language and in English, longest first, so that "thg 12" is not
/// taken for "thg 1".
QList<MonthName> monthNames(const QLocale& locale) {
    QList<MonthName> names;
    for (const QLocale& each : {locale, QLocale::c()}) {
        for (int month = 1; month <= 12; ++month) {
            for (const QLocale::FormatType format : {QLocale::LongFormat, QLocale::ShortFormat}) {
                for (QString name : {each.monthName(month, format), each.standaloneMonthName(month, format)}) {
                    while (name.endsWith(u'.')) {
                        name.chop(1);
                    }
                    // A month that is only a number ("2", "2月") is read as the number that it is.
                    if (std::any_of(name.cbegin(), name.cend(), [](QChar c) { return c.isLetter() && c != u'月'; })) {
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
            words << each.dayName(day, QLocale::LongFormat) << each.dayName(day, QLocale::ShortFormat);
        }
    }
    words << QStringLiteral("de") << QStringLiteral("of");
    std::stable_sort(words.begin(), words.end(),
                     [](const QString& a, const QString& b) { return a.size() > b.size(); });
    return words;
}

/// The words of one language; finding them takes far longer than reading a date, and they never change.
struct DateWords {
    QLocale locale;
    QList<MonthName> months;
    QStringList fillers;
};

const DateWords& wordsOf(const QLocale& locale) {
    static DateWords words = {locale, monthNames(locale), fillerWords(locale)};
    if (words.locale != locale) {
        words = {locale, monthNames(locale), fillerWords(locale)};
    }
    return words;
}

/// Replaces whole words of `text` that equal `word`, without regard to case.
void replaceWord(QString& text, const QString& word, const QString& replacement) {
    qsizetype at = 0;
    while (!word.isEmpty() && (at = text.indexOf(word, at, Qt::CaseInsensitive)) >= 0) {
        const qsizetype end = at + word.size();
        const bool startsWord = at == 0 || !text.at(at - 1).isLetter();
        const bool endsWord = end == text.size() || !text.at(end).isLetterOrNumber();
        if (startsWord && endsWord) {
            text.replace(at, word.size(), replacement);
            at += replacement.size();
        } else {
            ++at;
        }
    }
}

enum class Role { Free, Year, Month, Day };

struct DateToken {
    int value = 0;
    qsizetype digits = 0;
    Role role = Role::Free;
};

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

/// The numbers and months of a text that holds nothing else but separators; empty when it does.
QList<DateToken> tokensOf(QStringView text) {
    static constexpr QStringView separators = u" \t.,/-";
    QList<DateToken> tokens;
    for (qsizetype i = 0; i < text.size();) {
        const QChar character = text.at(i);
        if (character.unicode() > monthMarker && character.unicode() <= monthMarker + 12) {
            tokens.append({character.unicode() - monthMarker, 0, Role::Month});
            ++i;
        } else if (character.digitValue() >= 0) {
            DateToken token;
            for (; i < text.size() && text.at(i).digitValue() >= 0 && token.digits < 5; ++i, ++token.digits) {
                token.value = token.value * 10 + text.at(i).digitValue();
            }
            if (i < text.size() && roleOfSuffix(text.at(i)) != Role::Free) {
                token.role = roleOfSuffix(text.at(i));
                ++i;
            }
            tokens.append(token);
        } else if (separators.contains(character) || character.isSpace()) {
            ++i;
        } else {
            return {};
        }
    }
    return tokens;
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

std::optional<QDate> numericDate(const QList<DateToken>& tokens, const QLocale& locale) {
    QString order = orderOf(locale.dateFormat(QLocale::ShortFormat));
    const bool yearFirst = tokens.first().digits > 2;
    if (yearFirst) {
        order = QStringLiteral("yMd");
    } else if (tokens.last().digits > 2 && order.startsWith(u'y')) {
        // Where the short form begins with the year, a text that ends in one follows the long form's order.
        const QString spoken = orderOf(locale.dateFormat(QLocale::LongFormat));
        order = spoken.indexOf(u'd') < spoken.indexOf(u'M') ? QStringLiteral("dMy") : QStringLiteral("Mdy");
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

std::optional<QDate> dateWithMonth(QList<DateToken> tokens) {
    const auto month = std::find_if(tokens.begin(), tokens.end(),
                                    [](const DateToken& token) { return token.role == Role::Month; });
    const int monthValue = month->value;
    tokens.erase(month);
    const bool yearFirst = tokens.first().role == Role::Year || tokens.last().role == Role::Day ||
                           (tokens.first().digits > 2 || tokens.first().value > 31);
    const DateToken year = yearFirst ? tokens.first() : tokens.last();
    const DateToken day = yearFirst ? tokens.last() : tokens.first();
    if (day.digits > 2 || day.role == Role::Month || year.role == Role::Month) {
        return std::nullopt;
    }
    return checkedDate(fullYear(year.value, year.digits), monthValue, day.value);
}

std::optional<QDate> parsedDate(QString text) {
    const QLocale& locale = Global::services().locale;
    static const QRegularExpression directionMarks(QStringLiteral("[\\x{200E}\\x{200F}\\x{061C}]"));
    text = text.remove(directionMarks).trimmed();
    static const QRegularExpression time(
        QStringLiteral("(?:T|\\s+)([01]?\\d|2[0-3]):[0-5]\\d(?::[0-5]\\d(?:[.,]\\d+)?)?"
                       "(?:\\s*[AaPp]\\.?[Mm]\\.?)?(?:Z|[+-]\\d\\d:?\\d\\d)?$"));
    text.remove(time);
    const DateWords& words = wordsOf(locale);
    for (const MonthName& name : words.months) {
        replaceWord(text, name.name, QString(QChar(monthMarker + name.month)));
    }
    for (const QString& word : words.fillers) {
        replaceWord(text, word, QString());
    }
    static const QRegularExpression ordinal(QStringLiteral("(?<=\\d)(?:st|nd|rd|th)\\b"),
                                            QRegularExpression::CaseInsensitiveOption);
    text.remove(ordinal);

    const QList<DateToken> tokens = tokensOf(text);
    if (tokens.size() != 3) {
        return std::nullopt;
    }
    const auto months = std::count_if(tokens.cbegin(), tokens.cend(),
                                      [](const DateToken& token) { return token.role == Role::Month; });
    return months == 1 ? dateWithMonth(tokens) : numericDate(tokens, locale);
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
    const QLocale& locale = Global::services().locale;
    QString format = locale.dateFormat(QLocale::ShortFormat);
    static const QRegularExpression year(QStringLiteral("y+"));
    format.replace(year, QStringLiteral("yyyy"));
    return locale.toString(date, format);
}

QString Conversion::shortDate(const QVariant& value) {
    const auto date = dateOf(value);
    return date ? shortDate(*date) : value.toString();
}

QString Conversion::mediumDate(QDate date) {
    const QLocale& locale = Global::services().locale;
    QString month = locale.monthName(date.month(), QLocale::ShortFormat);
    while (month.endsWith(u'.')) {
        month.chop(1);
    }
    const QString day = locale.toString(date, QStringLiteral("dd"));
    return day + u'-' + month + u'-' + locale.toString(date, QStringLiteral("yyyy"));
}
