#include "ui/widgets/PaneSplitter.h"

#include "ui/widgets/AccessibleRole.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QPointer>
#include <QShortcut>

namespace {

constexpr int step = 16; // pixels

class Divider final : public QSplitterHandle {
public:
    explicit Divider(QSplitter* panes)
        : QSplitterHandle(Qt::Horizontal, panes) {
        setAccessibleRole(*this, QAccessible::Splitter);
        setObjectName(QStringLiteral("divider"));
        setAccessibleName(PaneSplitter::tr("Divider"));
        setAccessibleDescription(PaneSplitter::tr("Left and Right move it, Enter goes back"));
    }

    /// Takes the keyboard, or gives it back.
    void toggle() {
        if (hasFocus()) {
            goBack();
            return;
        }
        cameFrom_ = QApplication::focusWidget();
        setFocus(Qt::ShortcutFocusReason);
    }

protected:
    void keyPressEvent(QKeyEvent* event) override {
        switch (event->key()) {
        case Qt::Key_Left:
            moveTo(x() - step);
            break;
        case Qt::Key_Right:
            moveTo(x() + step);
            break;
        case Qt::Key_Home:
            moveTo(0);
            break;
        case Qt::Key_End:
            moveTo(splitter()->width());
            break;
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Escape: // which would close a window
            goBack();
            break;
        default:
            QSplitterHandle::keyPressEvent(event);
        }
    }
    void focusInEvent(QFocusEvent* /*event*/) override { update(); }
    void focusOutEvent(QFocusEvent* /*event*/) override { update(); }
    void paintEvent(QPaintEvent* event) override {
        if (hasFocus()) { // as a whole: it is too narrow for a frame
            QPainter(this).fillRect(rect(), palette().highlight());
            return;
        }
        QSplitterHandle::paintEvent(event);
    }

private:
    void moveTo(int place) { moveSplitter(closestLegalPosition(place)); }
    void goBack() {
        if (cameFrom_ != nullptr) {
            cameFrom_->setFocus(Qt::ShortcutFocusReason);
        } else {
            clearFocus();
        }
    }

    QPointer<QWidget> cameFrom_;
};

} // namespace

PaneSplitter::PaneSplitter(QWidget* parent)
    : QSplitter(Qt::Horizontal, parent) {
    setChildrenCollapsible(false);
    connect(new QShortcut(Qt::Key_F8, this), &QShortcut::activated, this, [this] {
        if (auto* divider = static_cast<Divider*>(handle(1)); divider != nullptr) {
            divider->toggle();
        }
    });
}

QSplitterHandle* PaneSplitter::createHandle() {
    return new Divider(this);
}
