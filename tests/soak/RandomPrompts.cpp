#include "soak/RandomPrompts.h"

#include "core/Global.h"
#include "profiles/cProfile.h"
#include "soak/Entries.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <utility>

namespace {

/// A report that may come, and what the user did for it.
struct Excused {
    const char* label;
    qint32 number;
    const char* why;
    /// Whether it may come only where nobody is stored, and so no number is known.
    bool nobody = false;
};

constexpr std::array excused{
    Excused{"frmView.LoadProfileFromScreen", 13, "saved with letters where the number belongs"},
    Excused{"frmView.Save Location", 6, "saved with more floors than a number holds"},
    Excused{"frmView.cmdPlus_Click", 380, "zoomed in past zero"},
    Excused{"frmView.cmdMinus_Click", 380, "zoomed out from below zero"},
    Excused{"frmView.ClearScreenLocation", 380, "opened a home that was saved zoomed in past zero"},
    Excused{"clsCalendar.DecrementYear", 5, "stepped to before the year 100"},
    Excused{"clsCalendar.DecrementMonth", 5, "stepped to before the year 100"},
    Excused{"clsCalendar.IncrementYear", 5, "stepped to behind the year 9999"},
    Excused{"clsCalendar.IncrementMonth", 5, "stepped to behind the year 9999"},
    Excused{"frmRoomDirection.picFloorPlan_MouseMove", 11, "pointed at the very height of the centre"},
    Excused{"frmSetDirection.picFloorPlan_MouseMove", 11, "pointed at the very height of the centre"},
    Excused{"frmSetDirection.picFloorPlan_MouseUp", 11, "clicked at the very height of the centre"},
    Excused{"cNineKi.Calc Move Compass", 9, "asked for advice on a move for nobody", true},
    Excused{"cNineKi.Calc Nine Ki Chart", 9, "asked for a year's chart for nobody", true},
    Excused{"frmView.mnuLocationsNewRoom_Click", 381, "added a room where there is no floor"},
};

} // namespace

RandomPrompts::RandomPrompts(Journal& journal, QString exports)
    : journal_(journal)
    , exports_(std::move(exports)) {}

void RandomPrompts::checkReport(const QString& title, const QString& text) {
    // Saving as HTML to a path that cannot be written, whatever window it is done in.
    const bool refusedFile =
        text.contains(QStringLiteral("\r\n76-")) || text.contains(QStringLiteral("\r\n75-"));
    const bool known = std::any_of(excused.begin(), excused.end(), [&](const Excused& each) {
        const QString label = QString::fromLatin1(each.label);
        return title == label && (!each.nobody || Global::CurrentProfile->KUANUMBER == 0) &&
               text.startsWith(QStringLiteral("%1\r\n%2-").arg(label).arg(each.number));
    });
    const QString report = QString(text).replace(QStringLiteral("\r\n"), QStringLiteral(" "));
    EXPECT_TRUE(known || refusedFile) << "no user's doing calls for the report " << qPrintable(report);
    if (!reports_.contains(report)) {
        reports_ << report;
    }
}

MessageAnswer RandomPrompts::messageBox(const QString& title, const QString& text, MessageIcon icon,
                                        MessageButtons buttons) {
    MessageAnswer answer = MessageAnswer::Ok;
    if (buttons == MessageButtons::YesNo) {
        answer = journal_.oneIn(2) ? MessageAnswer::Yes : MessageAnswer::No;
    }
    journal_.remark(QStringLiteral("box \"%1\": %2 -> %3")
                        .arg(title, text.left(90),
                             answer == MessageAnswer::Yes  ? QStringLiteral("Yes")
                             : answer == MessageAnswer::No ? QStringLiteral("No")
                                                           : QStringLiteral("OK")));
    if (title == QStringLiteral("Select Profile") && answer == MessageAnswer::No) {
        onDroppedPerson();
    }
    if (icon == MessageIcon::Critical) {
        checkReport(title, text);
    }
    return answer;
}

QString RandomPrompts::inputBox(const QString& title, const QString& /*prompt*/, const QString& initial) {
    QString answer;
    if (journal_.oneIn(4)) {
        answer = initial;
    } else if (title == QStringLiteral("Save to HTML")) {
        const QStringList files{exports_ + QStringLiteral("/one.html"),
                                exports_ + QStringLiteral("/two.html"), QString(),
                                exports_ + QStringLiteral("/no such folder/three.html")};
        answer = journal_.oneOf(files);
    } else {
        answer = journal_.oneIn(4) ? QString() : Entries::name(journal_);
    }
    journal_.remark(QStringLiteral("input \"%1\" -> \"%2\"").arg(title, answer.left(60)));
    return answer;
}
