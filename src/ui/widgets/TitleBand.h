#pragma once

#include "ui/widgets/Caption.h"
#include "ui/widgets/ElidedLabel.h"

#include <optional>

/// The band at the top of a window or pane: its title on the accent colour of whom or what it is about, or
/// on paper grey. The caption is one of the program's captions, in which "&&" stands for an ampersand.
class TitleBand final : public ElidedLabel {
    Q_OBJECT
    Q_PROPERTY(QString caption READ caption WRITE setCaption)

public:
    explicit TitleBand(QWidget* parent = nullptr);

    [[nodiscard]] QString caption() const { return caption_; }
    void setCaption(const QString& caption);

    /// Puts a widget at the band's end; the title stops before it, and its text gets the title's colour.
    void addWidget(QWidget* widget);

    /// The ground's colour; nothing for paper grey.
    void setAccent(const std::optional<QColor>& color);

    [[nodiscard]] QColor ground() const;
    [[nodiscard]] QColor textColor() const override;
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void setTitleFont();
    void colorWidgets();

    QString caption_;
    std::optional<QColor> accent_;
};
