#pragma once

#include <QLabel>
#include <QTextLayout>

#include <map>
#include <memory>

/// Running text on a window: a caption of the program, wrapped to the room that there is. Empty lines at its
/// end take no room.
class CaptionLabel final : public QLabel {
    Q_OBJECT
    Q_PROPERTY(QString caption READ caption WRITE setCaption)

public:
    explicit CaptionLabel(const QString& name, QWidget* parent = nullptr);

    [[nodiscard]] QString caption() const { return caption_; }
    void setCaption(const QString& caption);

    // A label shapes its whole text anew for each width that its hints try, and again to paint it. Here it is
    // shaped once.
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    /// Breaks the text, which is not empty, into lines of a width; returns the room that they take.
    QSizeF layLines(int width) const;
    /// The room that the text takes in lines of a width.
    [[nodiscard]] QSize textSize(int width) const;
    /// The width that a label of a width has for its text.
    [[nodiscard]] int textWidth(int labelWidth) const;
    void forgetSizes();
    [[nodiscard]] int widthOfCharacters(int count) const;

    QString caption_;
    /// The shown text, shaped; nothing where it has to be shaped anew.
    mutable std::unique_ptr<QTextLayout> shaped_;
    /// The width of its lines as they stand.
    mutable int laidWidth_ = 0;
    /// What it came to for the widths that were asked for.
    mutable std::map<int, QSize> sizes_;
};
