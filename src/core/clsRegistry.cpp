#include "core/clsRegistry.h"

#include "core/Conversion.h"
#include "core/Global.h"

#include <QStringList>

#include <array>

namespace {

enum RegistryType : qint32 {
    None,
    Text,
    ExpandText,
    Binary,
    DoubleWord,
    BigEndianDoubleWord,
    Link,
    MultiText
};

constexpr std::array<const char*, 8> typeNames = {"REG_NONE",   "REG_SZ",      "REG_EXPAND_SZ",
                                                  "REG_BINARY", "REG_DWORD",   "REG_DWORD_BIG_ENDIAN",
                                                  "REG_LINK",   "REG_MULTI_SZ"};

/// The store, or nothing for a root key that this program has no part in.
SettingsStore* storeOf(quint32 group) {
    return group == clsRegistry::CurrentUser ? &Global::service(&Services::settings) : nullptr;
}

QString valueName(const QString& key) {
    return key == u"*" ? QString() : key;
}

QString withoutClosingNul(const QByteArray& data) {
    return QString::fromUtf8(data.chopped(data.isEmpty() ? 0 : 1));
}

QString typeName(qint32 type) {
    const bool known = type >= 0 && static_cast<std::size_t>(type) < typeNames.size();
    return known ? QString::fromLatin1(typeNames[static_cast<std::size_t>(type)]) : QString::number(type);
}

QString hexadecimalGroups(const QByteArray& data) {
    return data.isEmpty() ? QString() : QStringLiteral("0x") + QString::fromLatin1(data.toHex(' '));
}

QString doubleWord(const QByteArray& data, bool bigEndian) {
    quint32 number = 0;
    for (qsizetype i = 0; i < qMin<qsizetype>(4, data.size()); ++i) {
        const quint32 byte = static_cast<quint8>(data.at(i));
        number = bigEndian ? (number << 8U) | byte : number | (byte << (8U * static_cast<quint32>(i)));
    }
    return QStringLiteral("0x0%1 (%2)").arg(number, 0, 16).arg(number);
}

} // namespace

void clsRegistry::Company(const QString& name) {
    company_ = name.isEmpty() ? defaultCompany() : name.trimmed();
}

void clsRegistry::AppName(const QString& name) {
    appName_ = name.isEmpty() ? defaultAppName() : name.trimmed();
}

bool clsRegistry::DeleteSetting(quint32 GROUP, const QString& Section, const QString& Key) {
    return routine(u"clsRegistry.DeleteSetting", false, [&](bool& result) {
        SettingsStore* store = storeOf(GROUP);
        if (store == nullptr) {
            return;
        }
        if (!Key.isEmpty()) {
            result = store->removeValue(Section, valueName(Key));
            return;
        }
        const qsizetype split = Section.lastIndexOf(u'\\');
        result = store->removeKey(Section.left(qMax<qsizetype>(split, 0)), Section.mid(split + 1));
    });
}

std::optional<QStringList> clsRegistry::GetAllKeys(quint32 GROUP, const QString& Section) const {
    return routine(u"clsRegistry.GetAllKeys", std::optional<QStringList>(), [&](auto& result) {
        const SettingsStore* store = storeOf(GROUP);
        const QStringList names = store == nullptr ? QStringList() : QStringList(store->keys(Section));
        if (!names.isEmpty()) {
            result = names;
        }
    });
}

std::optional<QList<NamedSetting>> clsRegistry::GetAllSettings(quint32 GROUP, const QString& Section) const {
    return routine(u"clsRegistry.GetAllSettings", std::optional<QList<NamedSetting>>(), [&](auto& result) {
        const SettingsStore* store = storeOf(GROUP);
        const QList<NamedSetting> found = store == nullptr ? QList<NamedSetting>() : store->values(Section);
        if (!found.isEmpty()) {
            result = found;
        }
    });
}

QString clsRegistry::GetSetting(quint32 GROUP, const QString& Section, const QString& Key,
                                const QString& Default) const {
    return routine(u"clsRegistry.GetSetting", Default, [&](QString& result) {
        const SettingsStore* store = storeOf(GROUP);
        const auto value = store == nullptr ? std::nullopt : store->value(Section, valueName(Key));
        if (value && !value->data.isEmpty()) {
            result = withoutClosingNul(value->data);
        }
    });
}

bool clsRegistry::SaveSetting(quint32 GROUP, const QString& Section, const QString& Key,
                              const QVariant& Setting, qint32 KeyType) {
    return routine(u"clsRegistry.SaveSetting", false, [&](bool& result) {
        SettingsStore* store = storeOf(GROUP);
        if (store == nullptr) {
            return;
        }
        QByteArray data = Conversion::storedText(Setting).toUtf8();
        data.append('\0');
        result = store->setValue(Section, valueName(Key), {KeyType, data});
    });
}

void clsRegistry::CopyTree(quint32 GROUP, const QString& sSource, const QString& sDest) {
    routine(u"clsRegistry.CopyTree", [&] {
        // Listed before anything is written: a copy into the source itself would never end.
        const QStringList keys = GetAllKeys(GROUP, sSource).value_or(QStringList());
        for (const NamedSetting& setting : GetAllSettings(GROUP, sSource).value_or(QList<NamedSetting>())) {
            const QString name = setting.name.isEmpty() ? QStringLiteral("*") : setting.name;
            SaveSetting(GROUP, sDest, name, withoutClosingNul(setting.value.data), setting.value.type);
        }
        for (const QString& key : keys) {
            CopyTree(GROUP, sSource + u'\\' + key, sDest + u'\\' + key);
        }
    });
}

void clsRegistry::DisplayTree(quint32 GROUP, const QString& Section, OutlineGrid& tbl,
                              qint32 lOutlineLevel) const {
    routine(u"clsRegistry.DisplayTree", [&] {
        const auto addRow = [&](const QString& cells) {
            tbl.AddItem(cells);
            tbl.IsSubtotal(tbl.Rows() - 1, true);
            tbl.RowOutlineLevel(tbl.Rows() - 1, lOutlineLevel);
        };
        for (const NamedSetting& setting : GetAllSettings(GROUP, Section).value_or(QList<NamedSetting>())) {
            addRow(QStringList{setting.name, typeName(setting.value.type),
                               FormatValues(setting.value.data, setting.value.type)}
                       .join(u'\t'));
        }
        for (const QString& key : GetAllKeys(GROUP, Section).value_or(QStringList())) {
            addRow(key);
            DisplayTree(GROUP, Section + u'\\' + key, tbl, lOutlineLevel + 1);
        }
    });
}

QString clsRegistry::FormatValue(const QByteArray& vValue, qint32 nType) const {
    return routine(u"clsRegistry.FormatValue", QString(), [&](QString& result) {
        switch (nType) {
        case Text:
        case ExpandText:
        case Link:
            result = withoutClosingNul(vValue);
            break;
        case DoubleWord:
        case BigEndianDoubleWord:
            result = doubleWord(vValue, nType == BigEndianDoubleWord);
            break;
        default:
            result = hexadecimalGroups(vValue);
        }
    });
}

QString clsRegistry::FormatValues(const QByteArray& vValue, qint32 nType) const {
    return routine(u"clsRegistry.FormatValues", QString(), [&](QString& result) {
        if (nType != MultiText) {
            result = FormatValue(vValue, nType);
            return;
        }
        QStringList parts;
        for (const QByteArray& part : vValue.split('\0')) {
            if (!part.isEmpty()) {
                parts << QString::fromUtf8(part);
            }
        }
        result = parts.join(u"\r\n");
    });
}
