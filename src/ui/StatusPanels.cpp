#include "ui/StatusPanels.h"

#include "core/Clock.h"
#include "core/Conversion.h"
#include "core/Global.h"
#include "ui/widgets/ElidedLabel.h"

#include <QPainter>

namespace {

/// A hairline between two panels, visible on light and dark desktops.
class Separator final : public QWidget {
public:
    explicit Separator(QWidget* parent)
        : QWidget(parent) {
        setFixedWidth(1);
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        constexpr float faint = 0.3F;
        QColor line = palette().color(QPalette::WindowText);
        line.setAlphaF(faint);
        QPainter(this).fillRect(rect(), line);
    }
};

/// The regional form of a time of day without its seconds, which a clock that ticks by the minute cannot
/// show.
QString timeText(const QLocale& locale, QTime time) {
    QString format = locale.timeFormat(QLocale::ShortFormat);
    for (const QString& seconds : {QStringLiteral(":ss"), QStringLiteral(".ss"), QStringLiteral(":s")}) {
        format.remove(seconds);
    }
    return locale.toString(time, format);
}

} // namespace

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
    if (stretch == 0) {
        panel->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    }
    if (findChildren<ElidedLabel*>().size() > 1) {
        addWidget(new Separator(this));
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
    passOver([&] {
        const QDateTime now = Global::service(&Services::clock).now();
        setPanel(QStringLiteral("Date"), Conversion::shortDate(now.date()));
        setPanel(QStringLiteral("Time"), timeText(Global::services().locale, now.time()));
        untilNextMinute_.start(minute - now.time().msecsSinceStartOfDay() % minute);
    });
}

void StatusPanels::showEvent(QShowEvent* event) {
    QStatusBar::showEvent(event);
    showNow();
}
