#pragma once

#include <QWidget>

class QLabel;

/// A text between two arrows that lead back and forward. The arrows stand still whatever the text.
class UpDown final : public QWidget {
    Q_OBJECT

public:
    /// `name` becomes the objectName; the arrows are named by it with "Down" and "Up" after it.
    UpDown(const QString& name, QLabel* text, QWidget* parent = nullptr);

    /// What the arrows are called aloud, and their tool tips.
    void setNames(const QString& down, const QString& up);

Q_SIGNALS:
    void DownClick();
    void UpClick();
};
