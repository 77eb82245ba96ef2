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

    // A label's own hints shape its whole text anew for each width that they try. Here it is shaped once.
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] int heightForWidth(int width) const override;

protected:
    void changeEvent(QEvent* event) override;

private:
    /// The room that the text takes in lines of a width.
    [[nodiscard]] QSize textSize(int width) const;
    void forgetSizes();
    [[nodiscard]] int widthOfCharacters(int count) const;

    QString caption_;
    /// The shown text, shaped; nothing where it has to be shaped anew.
    mutable std::unique_ptr<QTextLayout> shaped_;
    /// What it came to for the widths that were asked for.
    mutable std::map<int, QSize> sizes_;
};
