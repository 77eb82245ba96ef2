#include "ui/widgets/RecordList.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QWheelEvent>

RecordList::RecordList(QWidget* parent)
    : QComboBox(parent) {
    constexpr int narrowest = 12;
    // Made editable by its field: the other way creates the list that drops down, too, which may never
    // happen.
    setLineEdit(new QLineEdit(this));
    setInsertPolicy(NoInsert);
    setCompleter(nullptr);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(narrowest);
    // The widget would choose the entry that the typed text names as soon as the field is left.
    disconnect(lineEdit(), &QLineEdit::editingFinished, this, nullptr);
    connect(lineEdit(), &QLineEdit::textEdited, this, &RecordList::textTyped);
    connect(this, &QComboBox::currentIndexChanged, this, [this] {
        told_ = true;
        Q_EMIT chosen();
    });
    connect(this, &QComboBox::activated, this, [this] {
        if (!told_) {
            Q_EMIT chosen();
        }
    });
}

int RecordList::entryOfText() const {
    const bool current = currentIndex() >= 0 && itemText(currentIndex()) == currentText();
    return current ? currentIndex() : findText(currentText(), Qt::MatchExactly | Qt::MatchCaseSensitive);
}

void RecordList::showPopup() {
    Q_EMIT dropDown();
    told_ = false;
    QComboBox::showPopup();
    if (const int entry = entryOfText(); entry >= 0) {
        view()->setCurrentIndex(model()->index(entry, modelColumn(), rootModelIndex()));
    }
}

void RecordList::keyPressEvent(QKeyEvent* event) {
    told_ = false;
    const bool steps = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down ||
                       event->key() == Qt::Key_PageUp || event->key() == Qt::Key_PageDown;
    if (steps && (event->modifiers() & Qt::AltModifier) == 0) {
        // The program shows records by writing their names; a step starts from the one on show.
        if (const int entry = entryOfText(); entry >= 0) {
            const QSignalBlocker silence(this);
            setCurrentIndex(entry);
        }
    }
    QComboBox::keyPressEvent(event);
}

void RecordList::wheelEvent(QWheelEvent* event) {
    event->ignore();
}
