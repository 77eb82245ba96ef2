#include "ui/platform/QSettingsStore.h"

#include <QDir>
#include <QHash>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QStringDecoder>

namespace {

constexpr qint32 textType = 1;
constexpr qint32 binaryType = 3;
constexpr qint32 doubleWordType = 4;

#ifdef Q_OS_WIN
/// QSettings' own name for a key's unnamed value.
const QString unnamed = QStringLiteral(".");
#else
const QString unnamed = QStringLiteral("(Default)");
#endif

QString escaped(const QString& part) {
    // QSettings takes "/" and "\" for the separators of a path.
    QString text = part;
    text.replace(u'%', QStringLiteral("%25"));
    text.replace(u'/', QStringLiteral("%2F"));
    text.replace(u'\\', QStringLiteral("%5C"));
    return text;
}

QString unescaped(const QString& part) {
    QString text = part;
    text.replace(QStringLiteral("%5C"), QStringLiteral("\\"));
    text.replace(QStringLiteral("%2F"), QStringLiteral("/"));
    text.replace(QStringLiteral("%25"), QStringLiteral("%"));
    return text;
}

QString groupOf(const QString& section) {
    QStringList parts;
    for (const QString& part : section.split(u'\\', Qt::SkipEmptyParts)) {
        parts.append(escaped(part));
    }
    return parts.join(u'/');
}

QString nameInStore(const QString& name) {
    return name.isEmpty() ? unnamed : escaped(name);
}

QString nameFromStore(const QString& stored) {
    return stored == unnamed ? QString() : unescaped(stored);
}

const QRegularExpression& hexForm() {
    static const QRegularExpression form(QStringLiteral("^hex\\((\\d{1,9})\\):((?:[0-9a-f]{2})*)$"));
    return form;
}

/// The text of a text value; nothing when the bytes are no text that would come back as the same bytes.
std::optional<QString> plainText(const SettingValue& value) {
    if (value.type != textType || !value.data.endsWith('\0')) {
        return std::nullopt;
    }
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder(value.data.chopped(1));
    if (decoder.hasError() || text.contains(QChar(u'\0')) || hexForm().match(text).hasMatch()) {
        return std::nullopt;
    }
    return text;
}

QVariant toStore(const SettingValue& value) {
    if (const std::optional<QString> text = plainText(value)) {
        return *text;
    }
    return QStringLiteral("hex(%1):%2").arg(value.type).arg(QString::fromLatin1(value.data.toHex()));
}

SettingValue fromStore(const QVariant& stored) {
    switch (stored.typeId()) {
    case QMetaType::QByteArray:
        return {binaryType, stored.toByteArray()};
    case QMetaType::Int:
    case QMetaType::UInt: {
        const auto number = stored.toUInt();
        QByteArray bytes;
        for (unsigned shift = 0; shift < 32; shift += 8) {
            bytes.append(static_cast<char>((number >> shift) & 0xFFU));
        }
        return {doubleWordType, bytes};
    }
    default:
        break;
    }
    // An INI file that was edited by hand reads a text with commas as a list.
    const QString text =
        stored.typeId() == QMetaType::QStringList ? stored.toStringList().join(u',') : stored.toString();
    if (const QRegularExpressionMatch match = hexForm().match(text); match.hasMatch()) {
        return {match.captured(1).toInt(), QByteArray::fromHex(match.captured(2).toLatin1())};
    }
    QByteArray data = text.toUtf8();
    data.append('\0');
    return {textType, data};
}

bool written(QSettings& settings) {
    settings.sync();
    return settings.status() == QSettings::NoError;
}

/// All that lies below the key `name` of the open group, by path.
QHash<QString, QVariant> contentsOf(QSettings& settings, const QString& name) {
    QHash<QString, QVariant> contents;
    settings.beginGroup(name);
    for (const QString& key : settings.allKeys()) {
        contents.insert(name + u'/' + key, settings.value(key));
    }
    settings.endGroup();
    return contents;
}

} // namespace

QSettingsStore::QSettingsStore()
#ifdef Q_OS_WIN
    : location_(QStringLiteral("HKEY_CURRENT_USER"))
    , format_(QSettings::NativeFormat)
#else
    : location_(QDir(QStandardPaths::writableLocation(QStandardPaths::ConfigLocation))
                    .filePath(QStringLiteral("Orvenel/Talivane.ini")))
    , format_(QSettings::IniFormat)
#endif
{
}

QSettingsStore::QSettingsStore(const QString& iniFile)
    : location_(iniFile)
    , format_(QSettings::IniFormat) {}

QSettings QSettingsStore::open() const {
    return QSettings(location_, format_);
}

std::optional<SettingValue> QSettingsStore::value(const QString& section, const QString& name) const {
    QSettings settings = open();
    settings.beginGroup(groupOf(section));
    if (!settings.childKeys().contains(nameInStore(name))) {
        return std::nullopt;
    }
    return fromStore(settings.value(nameInStore(name)));
}

bool QSettingsStore::setValue(const QString& section, const QString& name, const SettingValue& value) {
    QSettings settings = open();
    settings.beginGroup(groupOf(section));
    settings.setValue(nameInStore(name), toStore(value));
    return written(settings);
}

bool QSettingsStore::removeValue(const QString& section, const QString& name) {
    QSettings settings = open();
    settings.beginGroup(groupOf(section));
    if (!settings.childKeys().contains(nameInStore(name))) {
        return false;
    }
    // QSettings removes a value together with the key of the same name.
    const QHash<QString, QVariant> key = contentsOf(settings, nameInStore(name));
    settings.remove(nameInStore(name));
    for (auto entry = key.begin(); entry != key.end(); ++entry) {
        settings.setValue(entry.key(), entry.value());
    }
    return written(settings);
}

bool QSettingsStore::removeKey(const QString& section, const QString& child) {
    QSettings settings = open();
    settings.beginGroup(groupOf(section));
    const QString name = escaped(child);
    if (name.isEmpty() || !settings.childGroups().contains(name)) {
        return false;
    }
    const bool hasNamesake = settings.childKeys().contains(name);
    const QVariant namesake = settings.value(name);
    settings.remove(name);
    if (hasNamesake) {
        settings.setValue(name, namesake);
    }
    return written(settings);
}

QList<QString> QSettingsStore::keys(const QString& section) const {
    QSettings settings = open();
    settings.beginGroup(groupOf(section));
    QList<QString> names;
    for (const QString& group : settings.childGroups()) {
        names.append(unescaped(group));
    }
    return names;
}

QList<NamedSetting> QSettingsStore::values(const QString& section) const {
    QSettings settings = open();
    settings.beginGroup(groupOf(section));
    QList<NamedSetting> found;
    for (const QString& key : settings.childKeys()) {
        found.append({nameFromStore(key), fromStore(settings.value(key))});
    }
    return found;
}
