#include "ui/platform/ComboList.h"

#include <QComboBox>
#include <QSignalBlocker>

void ComboList::Clear() {
    combo_.clear();
}

void ComboList::AddItem(const QString& text, qint32 itemData) {
    // The widget would select the first entry that an empty list gets; a filled list must stay without a
    // selection until somebody chooses, so that choosing entry 0 is a change.
    const QSignalBlocker silence(combo_);
    const int selected = combo_.currentIndex();
    const QString edited = combo_.isEditable() ? combo_.currentText() : QString();
    combo_.addItem(text, itemData);
    combo_.setCurrentIndex(selected);
    if (combo_.isEditable()) {
        combo_.setEditText(edited);
    }
}

qint32 ComboList::ListCount() const {
    return combo_.count();
}

qint32 ComboList::ItemData(qint32 index) const {
    return combo_.itemData(index).toInt();
}

qint32 ComboList::ListIndex() const {
    return combo_.currentIndex();
}

void ComboList::setListIndex(qint32 index) {
    combo_.setCurrentIndex(index);
}
