#pragma once

#include "core/Failure.h"
#include "core/Services.h"

#include <QString>
#include <QVariant>

class FormPlacement;
class ListControl;

/// The application-wide module: the few values that everything reads, the one report of a failure, and
/// small helpers. The shared person and home, `CurrentProfile` and `CurrentLocation`, join this namespace
/// in the layers that own them, and so do the routines that need catalogues or records.
namespace Global {

/// The value of pi that all angle work uses, deliberately not a more exact one: stored data and drawings
/// depend on it.
inline constexpr double PI = 314159265359.0 / 1e11;

/// The user's monetary decimal separator; set by `Main`.
extern QString RegionalDecimal;

/// `FLOORID` of the floor that the main window shows.
extern qint32 CurrentFloorID;

/// Hands in the seams. To be called once at start, before anything else of the program runs.
void use(const Services& services);

/// The seams that were handed in.
[[nodiscard]] const Services& services();

/// A service by its member, for example `service(&Services::prompts)`; fails with error 91 when none was
/// handed in.
template<class Service>
[[nodiscard]] Service& service(Service* Services::*member) {
    Service* found = services().*member;
    if (found == nullptr) {
        throw failure(ErrorNumber::ObjectNotSet);
    }
    return *found;
}

/// The application path with the platform's separator at its end, to be put in front of a file name.
[[nodiscard]] QString dataFolder();

/// The settings key "SOFTWARE\Orvenel\" + title + "\" + `name`, for example of "StartUp".
[[nodiscard]] QString settingsSection(const QString& name);

/// Shows the one report of a failure: a critical box titled with the label, whose text is the label, a line
/// break and the number, "-" and the description. The arrow pointer stands while the box does. Goes on past
/// failures of its own.
void HandleError(QStringView label, qint32 number, const QString& description);

/// The user's regional setting `item` by its classic number: 14 decimal separator, 15 thousands separator,
/// 20 currency symbol, 22 monetary decimal separator, 23 monetary thousands separator. For any other number
/// the result is one NUL character, which equals no separator.
[[nodiscard]] QString GetRegionalSetting(qint32 item);

/// Selects the entry of `list` whose item data, as text, equals `key` without regard to case, searching
/// from `first` on; selects `fallback` when there is none. Does nothing on an empty list or when `first`
/// lies beyond the entry count.
void FindInData(ListControl& list, const QString& key, qint32 first, qint32 fallback);

/// Turns a compass bearing (degrees, 0 at the top, clockwise) into a mathematical angle (radians, 0 to the
/// right, counter-clockwise). The factor PI/180 is formed first, so that 90 gives exactly 0.
[[nodiscard]] float CompassToRadians(float degrees);

/// The direction across the centre: 10 minus the id.
[[nodiscard]] qint32 OppositeDirection(qint32 directionId);

/// A stored flag of any spelling as the text "True" or "False"; boolean false for anything else.
[[nodiscard]] QVariant NormalizeBoolean(const QVariant& value);

/// Puts a window where the settings say that it was left. See FormSettings.cpp for the rule.
void GetFormSettings(FormPlacement& form);

/// Stores where a window stands.
void SaveFormSettings(const FormPlacement& form);

} // namespace Global
