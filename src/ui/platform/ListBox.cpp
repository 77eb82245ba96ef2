#include "ui/platform/ListBox.h"

#include <QListWidget>

void ListBox::Clear() {
    list_.clear();
}

void ListBox::AddItem(const QString& text, qint32 itemData) {
    auto* item = new QListWidgetItem(text, &list_);
    item->setData(Qt::UserRole, itemData);
}

QString ListBox::List(qint32 index) const {
    const QListWidgetItem* item = list_.item(index);
    return item != nullptr ? item->text() : QString();
}

qint32 ListBox::ListCount() const {
    return list_.count();
}

qint32 ListBox::ItemData(qint32 index) const {
    const QListWidgetItem* item = list_.item(index);
    return item != nullptr ? item->data(Qt::UserRole).toInt() : 0;
}

qint32 ListBox::ListIndex() const {
    const QModelIndexList selected = list_.selectionModel()->selectedRows();
    return selected.isEmpty() ? -1 : selected.constFirst().row();
}

void ListBox::setListIndex(qint32 index) {
    list_.setCurrentRow(index, QItemSelectionModel::ClearAndSelect);
}
