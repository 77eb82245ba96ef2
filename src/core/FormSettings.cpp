#include "core/Conversion.h"
#include "core/FormPlacement.h"
#include "core/Global.h"
#include "core/clsRegistry.h"

#include <array>
#include <utility>

namespace {

const QString stateName = QStringLiteral("WindowState");

/// The numbers of a placement, in the order in which they are read and written.
struct PlacementValue {
    QString name;
    double (FormPlacement::*read)() const;
    void (FormPlacement::*write)(double);
};

const std::array<PlacementValue, 4>& placementValues() {
    static const std::array<PlacementValue, 4> values = {{
        {QStringLiteral("Top"), &FormPlacement::Top, &FormPlacement::setTop},
        {QStringLiteral("Left"), &FormPlacement::Left, &FormPlacement::setLeft},
        {QStringLiteral("Height"), &FormPlacement::Height, &FormPlacement::setHeight},
        {QStringLiteral("Width"), &FormPlacement::Width, &FormPlacement::setWidth},
    }};
    return values;
}

QString textOf(FormState state) {
    switch (state) {
    case FormState::Normal:
        return QStringLiteral("NORMAL");
    case FormState::Maximized:
        return QStringLiteral("MAXIMIZED");
    case FormState::Minimized:
        break;
    }
    return QStringLiteral("MINIMIZED");
}

} // namespace

void Global::GetFormSettings(FormPlacement& form) {
    routine(u"Global.GetFormSettings", [&] {
        const clsRegistry registry;
        const QString section = settingsSection(form.Name());
        const auto setting = [&](const QString& name, const QString& fallback) {
            return registry.GetSetting(clsRegistry::CurrentUser, section, name, fallback);
        };
        const QString state = setting(stateName, textOf(FormState::Normal));
        if (state == textOf(FormState::Normal)) {
            form.setWindowState(FormState::Normal);
            for (const PlacementValue& value : placementValues()) {
                const QString current = Conversion::generalNumber((form.*value.read)());
                (form.*value.write)(Conversion::toDouble(setting(value.name, current)));
            }
        } else if (state == textOf(FormState::Maximized)) {
            form.setWindowState(FormState::Maximized);
        } else {
            form.setWindowState(FormState::Minimized);
        }
    });
}

void Global::SaveFormSettings(const FormPlacement& form) {
    routine(u"Global.SaveFormSettings", [&] {
        clsRegistry registry;
        const QString section = settingsSection(form.Name());
        registry.SaveSetting(clsRegistry::CurrentUser, section, stateName, textOf(form.WindowState()));
        for (const PlacementValue& value : placementValues()) {
            registry.SaveSetting(clsRegistry::CurrentUser, section, value.name, (form.*value.read)());
        }
    });
}
