#include "support/MemorySettings.h"

qsizetype MemorySettings::find(const QString& section, const QString& name) const {
    for (qsizetype i = 0; i < entries_.size(); ++i) {
        if (entries_.at(i).section == section && entries_.at(i).name == name) {
            return i;
        }
    }
    return -1;
}

QString MemorySettings::text(const QString& section, const QString& name) const {
    const auto found = value(section, name);
    return found ? QString::fromUtf8(found->data.chopped(1)) : QString();
}

void MemorySettings::setText(const QString& section, const QString& name, const QString& text) {
    QByteArray data = text.toUtf8();
    data.append('\0');
    setValue(section, name, {1, data});
}

std::optional<SettingValue> MemorySettings::value(const QString& section, const QString& name) const {
    const qsizetype at = find(section, name);
    return at < 0 ? std::nullopt : std::optional(entries_.at(at).value);
}

bool MemorySettings::setValue(const QString& section, const QString& name, const SettingValue& value) {
    if (refuseWrites_) {
        return false;
    }
    writes_.append(section + u'|' + name + u'=' + QString::fromUtf8(value.data.chopped(1)));
    const qsizetype at = find(section, name);
    if (at < 0) {
        entries_.append({section, name, value});
    } else {
        entries_[at].value = value;
    }
    return true;
}

bool MemorySettings::removeValue(const QString& section, const QString& name) {
    const qsizetype at = find(section, name);
    if (at >= 0) {
        entries_.removeAt(at);
    }
    return at >= 0;
}

bool MemorySettings::removeKey(const QString& section, const QString& child) {
    const QString path = section + u'\\' + child;
    return entries_.removeIf([&](const Entry& entry) {
        return entry.section == path || entry.section.startsWith(path + u'\\');
    }) > 0;
}

QList<QString> MemorySettings::keys(const QString& section) const {
    QList<QString> names;
    for (const Entry& entry : entries_) {
        if (entry.section.startsWith(section + u'\\')) {
            const QString name = entry.section.mid(section.size() + 1).section(u'\\', 0, 0);
            if (!names.contains(name)) {
                names.append(name);
            }
        }
    }
    return names;
}

QList<NamedSetting> MemorySettings::values(const QString& section) const {
    QList<NamedSetting> found;
    for (const Entry& entry : entries_) {
        if (entry.section == section) {
            found.append({entry.name, entry.value});
        }
    }
    return found;
}
