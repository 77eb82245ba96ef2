#pragma once

#include <QLabel>

/// Running text on a window: a caption of the program, wrapped to the room that there is. Empty lines at its
/// end take no room.
class CaptionLabel final : public QLabel {
    Q_OBJECT
    Q_PROPERTY(QString caption READ caption WRITE setCaption)

public:
    explicit CaptionLabel(const QString& name, QWidget* parent = nullptr);

    [[nodiscard]] QString caption() const { return caption_; }
    void setCaption(const QString& caption);

private:
    QString caption_;
};
