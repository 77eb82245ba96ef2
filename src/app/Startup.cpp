#include "app/Startup.h"

#include "core/Global.h"
#include "core/MainWindow.h"
#include "core/clsRegistry.h"
#include "locations/cLocation.h"
#include "profiles/cProfile.h"

#include <optional>

void Global::Main() {
    routine(u"Global.Main", [] {
        constexpr qint32 monetaryDecimalSeparator = 22;
        // No such record: the objects then simply stay empty.
        const QString firstRun = QStringLiteral("0");

        RegionalDecimal = GetRegionalSetting(monetaryDecimalSeparator);

        std::optional<clsRegistry> registry(std::in_place);
        const auto lastUsed = [&](const QString& setting) {
            return registry->GetSetting(clsRegistry::CurrentUser, settingsSection(QStringLiteral("StartUp")),
                                        setting, firstRun);
        };

        const QString lastLocation = lastUsed(QStringLiteral("LastLocation"));
        CurrentLocation = std::make_unique<cLocation>();
        CurrentLocation->LoadLocations();
        CurrentLocation->LoadFloors();
        CurrentLocation->LoadRooms();
        if (!lastLocation.isEmpty()) {
            CurrentLocation->GetLocation(lastLocation);
        }

        const QString lastProfile = lastUsed(QStringLiteral("LastProfile"));
        CurrentProfile = std::make_unique<cProfile>();
        // The object has loaded its file already; reading it once more does no harm and leaves one way in
        // which the file comes in.
        CurrentProfile->LoadProfiles();
        if (!lastProfile.isEmpty()) {
            CurrentProfile->GetProfile(lastProfile);
        }

        registry.reset();
        service(&Services::mainWindow).Show();
    });
}
