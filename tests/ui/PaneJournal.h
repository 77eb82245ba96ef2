#pragma once

#include "support/TestWorld.h"
#include "ui/ViewFrame.h"

#include <QStringList>

#include <utility>

/// What the pane did, step by step. The record file and the mode tell nothing of themselves, so that each
/// step looks first whether they changed before it.
class Journal {
public:
    Journal(const TestWorld& world, const QString& file)
        : world_(world)
        , file_(file) {}

    const QString* mode = nullptr;

    void note(const QString& step) {
        noteSilentChanges();
        steps_ << step;
    }
    /// The steps since the last call.
    QStringList take() {
        noteSilentChanges();
        return std::exchange(steps_, {});
    }

private:
    void noteSilentChanges() {
        const QByteArray records = world_.read(file_);
        if (std::exchange(records_, records) != records) {
            steps_ << QStringLiteral("file saved");
        }
        if (mode != nullptr && *mode != mode_) {
            mode_ = *mode;
            steps_ << QStringLiteral("mode ") + mode_;
        }
    }

    const TestWorld& world_;
    QString file_;
    QStringList steps_;
    QByteArray records_;
    QString mode_;
};

/// Settings that note every write.
class NotedSettings final : public SettingsStore {
public:
    NotedSettings(MemorySettings& settings, Journal& journal)
        : settings_(settings)
        , journal_(journal) {}
    std::optional<SettingValue> value(const QString& section, const QString& name) const override {
        return settings_.value(section, name);
    }
    bool setValue(const QString& section, const QString& name, const SettingValue& value) override {
        journal_.note(name + u'=' + QString::fromUtf8(value.data.chopped(1)));
        return settings_.setValue(section, name, value);
    }
    bool removeValue(const QString& section, const QString& name) override {
        return settings_.removeValue(section, name);
    }
    bool removeKey(const QString& section, const QString& child) override {
        return settings_.removeKey(section, child);
    }
    QList<QString> keys(const QString& section) const override { return settings_.keys(section); }
    QList<NamedSetting> values(const QString& section) const override { return settings_.values(section); }

private:
    MemorySettings& settings_;
    Journal& journal_;
};

/// A main window of which the pane sees nothing but this.
class NotedFrame final : public ViewFrame {
public:
    /// Of the menu entries only `entries` are noted.
    NotedFrame(Journal& journal, const QStringList& entries)
        : journal_(journal)
        , entries_(entries) {}
    void setPanel(Pane /*pane*/, const QString& name) override {
        journal_.note(QStringLiteral("panel ") + name);
    }
    void setEntryEnabled(const QString& name, bool enabled) override {
        if (entries_.contains(name)) {
            journal_.note(name + (enabled ? QStringLiteral(" on") : QStringLiteral(" off")));
        }
    }
    void connectEntry(const QString& /*name*/, std::function<void()> /*handler*/) override {}
    void pressButton(Pane pane) override {
        journal_.note(pane == Pane::Profile ? QStringLiteral("button PROFILE")
                                            : QStringLiteral("button LOCATION"));
    }
    void popUpLocations(const QPoint& /*onScreen*/) override {}

private:
    Journal& journal_;
    QStringList entries_;
};
