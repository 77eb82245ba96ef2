#pragma once

#include <QColor>
#include <QTabWidget>

#include <optional>
#include <vector>

class AccentTabBar;
class PicturePanel;
class QGridLayout;

/// The pages of the profile pane on which everything stands that follows from a person's number.
class ProfileTabs final : public QTabWidget {
    Q_OBJECT

public:
    explicit ProfileTabs(QWidget* parent = nullptr);

    /// The colour under the selected page's name; nothing for paper grey.
    void setAccent(const std::optional<QColor>& color);

    /// What Tab visits here, in its order.
    [[nodiscard]] std::vector<QWidget*> tabStops() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QWidget* addPage(const QString& name, const QString& caption);
    void addSummary();
    void addDirections();
    void addDirectionColumn(QWidget* page, QGridLayout& grid, int column, const QString& labelName,
                            const QString& caption, const QColor& rule, const QStringList& panels);
    void addElements();

    AccentTabBar* bar_ = nullptr;
};
