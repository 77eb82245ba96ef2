#pragma once

#include <QColor>
#include <QTabBar>

#include <optional>

/// A row of tabs whose selected one is underlined in the window's accent colour.
class AccentTabBar final : public QTabBar {
    Q_OBJECT

public:
    explicit AccentTabBar(QWidget* parent = nullptr);

    /// The line's colour; nothing for paper grey.
    void setAccent(const std::optional<QColor>& color);

    [[nodiscard]] QColor accent() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::optional<QColor> accent_;
};
