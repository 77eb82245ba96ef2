#pragma once

#include "core/SettingsStore.h"

/// A settings store for a developers' program: it knows nothing of the user's settings and leaves none.
class NoSettings final : public SettingsStore {
public:
    [[nodiscard]] std::optional<SettingValue> value(const QString& /*section*/,
                                                    const QString& /*name*/) const override {
        return std::nullopt;
    }
    bool setValue(const QString& /*section*/, const QString& /*name*/,
                  const SettingValue& /*value*/) override {
        return false;
    }
    bool removeValue(const QString& /*section*/, const QString& /*name*/) override { return false; }
    bool removeKey(const QString& /*section*/, const QString& /*child*/) override { return false; }
    [[nodiscard]] QList<QString> keys(const QString& /*section*/) const override { return {}; }
    [[nodiscard]] QList<NamedSetting> values(const QString& /*section*/) const override { return {}; }
};
