#pragma once

#include <QStatusBar>
#include <QTimer>

class ElidedLabel;

/// The main window's status bar. Its last two panels are a calendar and a clock of their own, in the user's
/// regional form; "Help" stays empty.
class StatusPanels final : public QStatusBar {
    Q_OBJECT

public:
    explicit StatusPanels(QWidget* parent = nullptr);

    /// Writes a panel by its key; a key that there is none of is passed over.
    void setPanel(const QString& key, const QString& text);
    [[nodiscard]] QString panel(const QString& key) const;

protected:
    void showEvent(QShowEvent* event) override;

private:
    ElidedLabel* addPanel(const QString& key, const QString& accessibleName, int stretch);
    void showNow();

    QTimer untilNextMinute_;
};
