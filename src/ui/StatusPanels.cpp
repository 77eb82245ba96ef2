#include "ui/StatusPanels.h"

#include "core/Clock.h"
#include "core/Conversion.h"
#include "core/Global.h"
#include "ui/widgets/ElidedLabel.h"

#include <QTime>

StatusPanels::StatusPanels(QWidget* parent)
    : QStatusBar(parent) {
    setObjectName(QStringLiteral("sbInfo"));
    setAccessibleName(tr("Status"));
    setSizeGripEnabled(false);
    addPanel(QStringLiteral("Help"), tr("Help"), 2);
    addPanel(QStringLiteral("Profile"), tr("Current profile"), 3);
    addPanel(QStringLiteral("Location"), tr("Current location"), 3);
    addPanel(QStringLiteral("Date"), tr("Date"), 0);
    addPanel(QStringLiteral("Time"), tr("Time"), 0);
    untilNextMinute_.setSingleShot(true);
    untilNextMinute_.setTimerType(Qt::PreciseTimer);
    connect(&untilNextMinute_, &QTimer::timeout, this, &StatusPanels::showNow);
}

ElidedLabel* StatusPanels::addPanel(const QString& key, const QString& accessibleName, int stretch) {
    auto* panel = new ElidedLabel(this);
    panel->setObjectName(key);
    panel->setAccessibleName(accessibleName);
    panel->setFrameStyle(static_cast<int>(QFrame::Panel) | static_cast<int>(QFrame::Sunken));
    if (stretch == 0) {
        panel->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    }
    addWidget(panel, stretch);
    return panel;
}

void StatusPanels::setPanel(const QString& key, const QString& text) {
    if (auto* panel = findChild<ElidedLabel*>(key); panel != nullptr) {
        panel->setText(text);
    }
}

QString StatusPanels::panel(const QString& key) const {
    const auto* panel = findChild<ElidedLabel*>(key);
    return panel == nullptr ? QString() : panel->text();
}

void StatusPanels::showNow() {
    constexpr int minute = 60 * 1000;
    const QTime now = QTime::currentTime();
    passOver([&] {
        setPanel(QStringLiteral("Date"), Conversion::shortDate(Global::service(&Services::clock).today()));
        setPanel(QStringLiteral("Time"), Global::services().locale.toString(now, QLocale::ShortFormat));
    });
    untilNextMinute_.start(minute - now.msecsSinceStartOfDay() % minute);
}

void StatusPanels::showEvent(QShowEvent* event) {
    QStatusBar::showEvent(event);
    showNow();
}
