#pragma once

#include <QFrame>
#include <QString>

/// One line of plain text that is cut with an ellipsis where it does not fit; the whole text is then the
/// tool tip, and always the accessible text.
class ElidedLabel : public QFrame {
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)

public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    [[nodiscard]] QString text() const { return text_; }
    void setText(const QString& text);

    /// Blank space to the left and right of the text, in logical pixels.
    void setTextMargin(int pixels);

    /// Room at the text's end that it leaves free, in logical pixels.
    void setEndRoom(int pixels);

    /// What the widget shows at its present width.
    [[nodiscard]] QString shownText() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;
    /// The colour of the text.
    [[nodiscard]] virtual QColor textColor() const;

private:
    [[nodiscard]] QRect textRect() const;

    /// How wide the dots are that stand for the rest of a text; 0 where they were not measured yet.
    mutable int dotsWidth_ = 0;
    QString text_;
    int margin_ = 8;
    int endRoom_ = 0;
};
