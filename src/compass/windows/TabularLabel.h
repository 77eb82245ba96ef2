#pragma once

#include <QLabel>

/// A line of facts, "X = 1, Y = 2", in which nothing jumps when the numbers change: each fact has a column of
/// its own, and every digit the width of the widest.
class TabularLabel final : public QLabel {
    Q_OBJECT

public:
    explicit TabularLabel(QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

    /// Where the character at `index` of the text is painted, in logical pixels from the left edge.
    [[nodiscard]] int positionOf(qsizetype index) const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] int cell() const;
    [[nodiscard]] int columnWidth() const;
    [[nodiscard]] int advanceOf(QChar character) const;
};
