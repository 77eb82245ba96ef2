#include "core/Global.h"

#include "core/ListControl.h"
#include "core/Prompts.h"

#include <QDir>
#include <QLocale>

#include <array>

QString Global::RegionalDecimal;
qint32 Global::CurrentFloorID = 0;

namespace {

Services& currentServices() {
    static Services services;
    return services;
}

} // namespace

void Global::use(const Services& services) {
    currentServices() = services;
}

const Services& Global::services() {
    return currentServices();
}

QString Global::dataFolder() {
    QString folder = services().applicationPath;
    const bool ends = folder.endsWith(QDir::separator()) || folder.endsWith(u'/');
    return ends ? folder : folder + QDir::separator();
}

QString Global::settingsSection(const QString& name) {
    return QStringLiteral("SOFTWARE\\Orvenel\\") + services().title + u'\\' + name;
}

void Global::HandleError(QStringView label, qint32 number, const QString& description) {
    Prompts* prompts = services().prompts;
    if (prompts == nullptr) {
        return;
    }
    PointerShape kept = PointerShape::Default;
    passOver([&] { kept = prompts->pointer(); });
    passOver([&] { prompts->setPointer(PointerShape::Default); });
    passOver([&] {
        const QString text =
            label.toString() + QStringLiteral("\r\n") + QString::number(number) + u'-' + description;
        prompts->messageBox(label.toString(), text, MessageIcon::Critical, MessageButtons::Ok);
    });
    passOver([&] { prompts->setPointer(kept); });
}

QString Global::GetRegionalSetting(qint32 item) {
    const QString none = QString(1, QChar(u'\0'));
    QString result = none;
    passOver([&] {
        const QLocale& locale = services().locale;
        switch (item) {
        case 14: // decimal separator
        case 22: // monetary decimal separator: the same one, so that repaired numbers can be read back
            result = locale.decimalPoint();
            break;
        case 15: // thousands separator
        case 23: // monetary thousands separator
            result = locale.groupSeparator();
            break;
        case 20: // currency symbol
            result = locale.currencySymbol();
            break;
        default:
            break;
        }
    });
    return result.isEmpty() ? none : result;
}

void Global::FindInData(ListControl& list, const QString& key, qint32 first, qint32 fallback) {
    passOver([&] {
        const qint32 count = list.ListCount();
        if (count == 0 || first > count) {
            return;
        }
        qint32 found = first;
        while (found < count &&
               QString::number(list.ItemData(found)).compare(key, Qt::CaseInsensitive) != 0) {
            ++found;
        }
        list.setListIndex(found < count ? found : fallback);
    });
}

float Global::CompassToRadians(float degrees) {
    constexpr double radiansPerDegree = PI / 180;
    return static_cast<float>(PI / 2 - static_cast<double>(degrees) * radiansPerDegree);
}

qint32 Global::OppositeDirection(qint32 directionId) {
    return 10 - directionId;
}

QVariant Global::NormalizeBoolean(const QVariant& value) {
    static const QString falseText = QStringLiteral("False");
    static const QString trueText = QStringLiteral("True");
    struct Spelling {
        QStringView upper;
        bool meaning;
    };
    static constexpr std::array<Spelling, 8> spellings = {{{u"FALSE", false},
                                                           {u"TRUE", true},
                                                           {u"N", false},
                                                           {u"Y", true},
                                                           {u"NO", false},
                                                           {u"YES", true},
                                                           {u"0", false},
                                                           {u"1", true}}};
    const QString upper = value.toString().toUpper();
    for (const Spelling& spelling : spellings) {
        if (upper == spelling.upper) {
            return spelling.meaning ? trueText : falseText;
        }
    }
    // Beyond the spellings a value may equal a flag as a number: nothing at all and 0 are false, -1 is true.
    if (!value.isValid()) {
        return falseText;
    }
    bool numeric = false;
    const double number = value.toDouble(&numeric);
    if (numeric && number == 0) {
        return falseText;
    }
    if (numeric && number == -1) {
        return trueText;
    }
    return false;
}
