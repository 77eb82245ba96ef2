#pragma once

#include <QIcon>
#include <QWidget>

/// A panel with a picture and a caption beside or under it. Its room does not depend on what it shows, so
/// that nothing around it moves when that changes; where the panel has no picture, the picture's place is
/// marked.
class PicturePanel final : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString caption READ caption)

public:
    enum class Place : quint8 { Beside, Under };

    explicit PicturePanel(const QString& name, Place captionPlace, QWidget* parent = nullptr);

    [[nodiscard]] QString caption() const { return leadIn_ + value_; }
    /// The caption is the lead-in followed by the value, which stands out.
    void setCaption(const QString& leadIn, const QString& value);

    [[nodiscard]] const QIcon& picture() const { return picture_; }
    void setPicture(const QIcon& picture);

    /// Whether the picture's place is marked while there is none; it is at first.
    void setPlaceMarked(bool marked);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    [[nodiscard]] QRect pictureRect() const;
    [[nodiscard]] QRect captionRect() const;
    [[nodiscard]] int captionHeight() const;
    void paintCaption(QPainter& painter) const;

    Place captionPlace_;
    QString leadIn_;
    QString value_;
    QIcon picture_;
    bool placeMarked_ = true;
};
