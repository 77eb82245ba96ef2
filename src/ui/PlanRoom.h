#pragma once

#include <QWidget>

class PlanView;

/// One room on the floor plan: `recRoom` of an index. It is placed in inches, shows its name at the top left
/// and tells what the mouse and the keyboard do to it. It moves only when it is told to.
class PlanRoom final : public QWidget {
    Q_OBJECT
    Q_PROPERTY(qint32 Index READ Index CONSTANT)
    Q_PROPERTY(bool selected READ isSelected)

public:
    PlanRoom(qint32 index, PlanView& plan);

    /// The entry of the list of rooms that this one stands for.
    [[nodiscard]] qint32 Index() const { return index_; }
    [[nodiscard]] float Left() const { return left_; }
    [[nodiscard]] float Top() const { return top_; }
    [[nodiscard]] float Width() const { return width_; }
    [[nodiscard]] float Height() const { return height_; }
    void setLeft(float inches) { Move(inches, top_); }
    void setTop(float inches) { Move(left_, inches); }
    /// Sets the extent along x, or y. Fails with error 380 (Invalid property value) for a negative one.
    void setWidth(float inches);
    void setHeight(float inches);
    void Move(float left, float top);

    /// Shows the room's name, each word on a line of its own.
    void setDescription(const QString& description);
    void setSelected(bool selected);
    [[nodiscard]] bool isSelected() const { return selected_; }

    /// Where the room stands and how large it is, in words.
    [[nodiscard]] QString placeText() const;

    /// Puts the widget where the room stands at the plan's present scale.
    void placeOnPlan();

    /// The colour of a selected room.
    static const QColor selectionColor;

Q_SIGNALS:
    /// `onPlan` is a point of the plan's widget; the room itself may move under the mouse.
    void mouseDown(Qt::MouseButton button, QPointF onPlan, QPoint onScreen);
    void mouseMoved(QPointF onPlan);
    void mouseUp(Qt::MouseButton button, QPointF onPlan);
    void doubleClicked();
    /// The key that opens a menu was pressed.
    void menuKeyPressed(QPoint onScreen);
    /// Who handles the key accepts the event.
    void keyDown(QKeyEvent* event);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    [[nodiscard]] QRect textArea() const;
    [[nodiscard]] bool textFits() const;

    PlanView& plan_;
    qint32 index_;
    float left_ = 0;
    float top_ = 0;
    float width_ = 120;
    float height_ = 120;
    QString description_;
    QStringList lines_;
    bool selected_ = false;
};
