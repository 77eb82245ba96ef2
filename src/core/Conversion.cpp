#include "core/Conversion.h"

#include "core/Failure.h"
#include "core/Global.h"

#include <QDateTime>
#include <QLocale>

#include <cmath>
#include <limits>
#include <locale>
#include <optional>
#include <sstream>

namespace {

bool isMinus(QChar character) {
    // Some regions, Sweden among them, write the typographic minus sign.
    return character == u'-' || character == QChar(0x2212);
}

bool isBlankLike(QChar character) {
    return character.isSpace() || character == QChar(0x00A0) || character == QChar(0x202F);
}

/// Whether the whole part with separators stands in groups: one to three digits first, then groups of two or
/// three, the last one of three. "1,234" is a number in English, "12,5" is none rather than 125.
bool hasSoundGroups(const QList<qsizetype>& groupLengths) {
    if (groupLengths.size() < 2) {
        return true;
    }
    for (qsizetype i = 1; i < groupLengths.size(); ++i) {
        const bool last = i + 1 == groupLengths.size();
        const qsizetype length = groupLengths.at(i);
        if (length != 3 && (last || length != 2)) {
            return false;
        }
    }
    return groupLengths.first() >= 1 && groupLengths.first() <= 3;
}

/// Rewrites a number in the user's spelling as plain "-1234.5e6"; nothing when it is no number.
class NumberReader {
public:
    NumberReader(QStringView text, const QLocale& locale)
        : rest_(text.trimmed())
        , decimal_(locale.decimalPoint())
        , group_(locale.groupSeparator()) {}

    std::optional<QByteArray> read() {
        readSign();
        while (!rest_.isEmpty() && readWholePart()) {
        }
        if (!hasSoundGroups(groups_)) {
            return std::nullopt;
        }
        readFraction();
        if (digits_ == 0 || !readExponent() || !rest_.isEmpty()) {
            return std::nullopt;
        }
        return plain_;
    }

private:
    void readSign() {
        if (!rest_.isEmpty() && (isMinus(rest_.front()) || rest_.front() == u'+')) {
            if (isMinus(rest_.front())) {
                plain_ += '-';
            }
            rest_ = rest_.mid(1).trimmed();
        }
    }

    bool readDigit() {
        if (rest_.isEmpty() || !rest_.front().isDigit()) {
            return false;
        }
        plain_ += static_cast<char>('0' + rest_.front().digitValue());
        rest_ = rest_.mid(1);
        return true;
    }

    bool readWholePart() {
        if (readDigit()) {
            ++digits_;
            if (groups_.isEmpty()) {
                groups_.append(0);
            }
            ++groups_.last();
            return true;
        }
        const bool blankGroup =
            !group_.isEmpty() && isBlankLike(group_.front()) && isBlankLike(rest_.front()) && digits_ > 0;
        if (blankGroup || (!group_.isEmpty() && rest_.startsWith(group_) && digits_ > 0)) {
            rest_ = rest_.mid(blankGroup ? 1 : group_.size());
            groups_.append(0);
            return true;
        }
        return false;
    }

    void readFraction() {
        if (!rest_.startsWith(decimal_)) {
            return;
        }
        rest_ = rest_.mid(decimal_.size());
        plain_ += '.';
        while (readDigit()) {
            ++digits_;
        }
    }

    bool readExponent() {
        if (rest_.isEmpty() || (rest_.front() != u'e' && rest_.front() != u'E')) {
            return true;
        }
        rest_ = rest_.mid(1);
        plain_ += 'e';
        if (!rest_.isEmpty() && (isMinus(rest_.front()) || rest_.front() == u'+')) {
            plain_ += isMinus(rest_.front()) ? '-' : '+';
            rest_ = rest_.mid(1);
        }
        bool any = false;
        while (readDigit()) {
            any = true;
        }
        return any;
    }

    QStringView rest_;
    QString decimal_;
    QString group_;
    QByteArray plain_;
    QList<qsizetype> groups_;
    int digits_ = 0;
};

/// The value of a plain number; infinite beyond the range. One too small to be told from 0 is 0.
double valueOf(const QByteArray& plain) {
    bool inRange = false;
    const double value = plain.toDouble(&inRange);
    if (inRange) {
        return value;
    }
    std::istringstream stream(plain.toStdString());
    stream.imbue(std::locale::classic());
    double extreme = 0;
    stream >> extreme;
    return stream.fail() ? std::numeric_limits<double>::infinity() : extreme;
}

/// A finite number's shortest plain form with at most `significant` digits, decimal separator included.
QString plainNumber(double value, int significant) {
    if (!std::isfinite(value)) {
        throw failure(ErrorNumber::Overflow);
    }
    const QByteArray scientific = QByteArray::number(value, 'e', significant - 1);
    const qsizetype mark = scientific.indexOf('e');
    const int exponent = scientific.mid(mark + 1).toInt();
    const bool plain = exponent > -significant && exponent < significant;
    QByteArray text =
        plain ? QByteArray::number(value, 'f', qMax(0, significant - 1 - exponent)) : scientific.left(mark);
    if (text.contains('.')) {
        while (text.endsWith('0')) {
            text.chop(1);
        }
        if (text.endsWith('.')) {
            text.chop(1);
        }
    }
    QString result = QString::fromLatin1(text);
    result.replace(u'.', Global::services().locale.decimalPoint());
    if (!plain) {
        result += exponent < 0 ? QStringLiteral("E-") : QStringLiteral("E+");
        result += QString::number(qAbs(exponent)).rightJustified(2, u'0');
    }
    return result;
}

} // namespace

bool Conversion::isNumeric(QStringView text) {
    const auto plain = NumberReader(text, Global::services().locale).read();
    return plain && std::isfinite(valueOf(*plain));
}

double Conversion::toDouble(QStringView text) {
    const auto plain = NumberReader(text, Global::services().locale).read();
    if (!plain) {
        throw failure(ErrorNumber::TypeMismatch);
    }
    const double value = valueOf(*plain);
    if (!std::isfinite(value)) {
        throw failure(ErrorNumber::Overflow);
    }
    return value;
}

float Conversion::toSingle(QStringView text) {
    const double value = toDouble(text);
    if (std::abs(value) > static_cast<double>(std::numeric_limits<float>::max())) {
        throw failure(ErrorNumber::Overflow);
    }
    return static_cast<float>(value);
}

qint32 Conversion::toLong(QStringView text) {
    return toLong(toDouble(text));
}

qint32 Conversion::toLong(double value) {
    const double rounded = std::nearbyint(value); // to even, the default rounding mode
    const bool fits = rounded >= static_cast<double>(std::numeric_limits<qint32>::min()) &&
                      rounded <= static_cast<double>(std::numeric_limits<qint32>::max());
    if (!fits) {
        throw failure(ErrorNumber::Overflow);
    }
    return static_cast<qint32>(rounded);
}

QString Conversion::generalNumber(double value) {
    return plainNumber(value, 15);
}

QString Conversion::generalNumber(float value) {
    return plainNumber(static_cast<double>(value), 7);
}

QString Conversion::storedText(const QVariant& value) {
    switch (value.typeId()) {
    case QMetaType::QDate: // not by way of a point in time: some days have no midnight in some time zones
        return value.toDate().toString(QStringLiteral("yyyy-MM-dd'T00:00:00'"));
    case QMetaType::QDateTime:
        return value.toDateTime().toString(QStringLiteral("yyyy-MM-dd'T'HH:mm:ss"));
    case QMetaType::Bool:
        return value.toBool() ? QStringLiteral("True") : QStringLiteral("False");
    case QMetaType::Double:
        return generalNumber(value.toDouble());
    case QMetaType::Float:
        return generalNumber(value.toFloat());
    default:
        return value.toString();
    }
}
