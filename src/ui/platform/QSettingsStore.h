#pragma once

#include "core/SettingsStore.h"

#include <QSettings>

/// The settings on QSettings: below the current user's root of the registry on Windows, in an INI file of
/// the user's configuration folder elsewhere. Texts are kept as texts, so that the file can be read and
/// edited; values of any other type are kept as "hex(type):bytes".
class QSettingsStore final : public SettingsStore {
public:
    /// The settings of the user who runs the program.
    QSettingsStore();
    /// The settings in an INI file of one's own.
    explicit QSettingsStore(const QString& iniFile);

    [[nodiscard]] std::optional<SettingValue> value(const QString& section,
                                                    const QString& name) const override;
    bool setValue(const QString& section, const QString& name, const SettingValue& value) override;
    bool removeValue(const QString& section, const QString& name) override;
    bool removeKey(const QString& section, const QString& child) override;
    [[nodiscard]] QList<QString> keys(const QString& section) const override;
    [[nodiscard]] QList<NamedSetting> values(const QString& section) const override;

private:
    /// Opened anew for each call, so that what another process wrote meanwhile is seen.
    [[nodiscard]] QSettings open() const;

    QString location_;
    QSettings::Format format_;
};
