#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

/// One stored setting as the store holds it: a type number (1 is a text) and its bytes. A text is UTF-8
/// and ends in one NUL.
struct SettingValue {
    qint32 type = 1;
    QByteArray data;
};

/// A named setting of a key.
struct NamedSetting {
    QString name;
    SettingValue value;
};

/// The per-user store of settings: keys named by a path with "\" between its parts, each holding values and
/// further keys. The root below which the paths lie is the current user's.
/// Every call opens and closes what it needs; a false or empty answer means that the key or value is not
/// there or cannot be used.
class SettingsStore {
public:
    virtual ~SettingsStore() = default;

    /// The value `name` of the key; the empty name stands for the key's unnamed value. Creates nothing.
    [[nodiscard]] virtual std::optional<SettingValue> value(const QString& section,
                                                            const QString& name) const = 0;
    /// Writes a value and creates the key's whole path as needed.
    virtual bool setValue(const QString& section, const QString& name, const SettingValue& value) = 0;
    virtual bool removeValue(const QString& section, const QString& name) = 0;
    /// Removes the key `child` of `section` with all that is in it.
    virtual bool removeKey(const QString& section, const QString& child) = 0;
    /// The names of the keys directly below `section`, in the store's order.
    [[nodiscard]] virtual QList<QString> keys(const QString& section) const = 0;
    [[nodiscard]] virtual QList<NamedSetting> values(const QString& section) const = 0;
};
