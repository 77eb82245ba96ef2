#pragma once

#include "core/SettingsStore.h"

/// A store of settings in memory, in the order of writing. It can be told to refuse writes.
class MemorySettings final : public SettingsStore {
public:
    /// The text of a value, or the null text when it is not there.
    [[nodiscard]] QString text(const QString& section, const QString& name) const;
    void setText(const QString& section, const QString& name, const QString& text);
    /// Every write as "section|name=text", in order.
    [[nodiscard]] const QList<QString>& writes() const { return writes_; }
    void forgetWrites() { writes_.clear(); }
    [[nodiscard]] bool isEmpty() const { return entries_.isEmpty(); }
    void refuseWrites(bool refuse) { refuseWrites_ = refuse; }

    [[nodiscard]] std::optional<SettingValue> value(const QString& section,
                                                    const QString& name) const override;
    bool setValue(const QString& section, const QString& name, const SettingValue& value) override;
    bool removeValue(const QString& section, const QString& name) override;
    bool removeKey(const QString& section, const QString& child) override;
    [[nodiscard]] QList<QString> keys(const QString& section) const override;
    [[nodiscard]] QList<NamedSetting> values(const QString& section) const override;

private:
    struct Entry {
        QString section;
        QString name;
        SettingValue value;
    };
    [[nodiscard]] qsizetype find(const QString& section, const QString& name) const;

    QList<Entry> entries_;
    QList<QString> writes_;
    bool refuseWrites_ = false;
};
