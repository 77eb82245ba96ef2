#pragma once

#include "core/ListControl.h"

#include <QString>

class QListWidget;

/// A list widget seen as the list that records fill and search: texts with a number each, one of which is
/// selected or none. Only the selection counts, not the entry that the keyboard's focus stands on.
class ListBox final : public ListControl {
public:
    explicit ListBox(QListWidget& list)
        : list_(list) {}

    void Clear();
    void AddItem(const QString& text, qint32 itemData);

    [[nodiscard]] QString List(qint32 index) const;
    [[nodiscard]] qint32 ListCount() const override;
    [[nodiscard]] qint32 ItemData(qint32 index) const override;
    [[nodiscard]] qint32 ListIndex() const override;
    void setListIndex(qint32 index) override;

private:
    QListWidget& list_;
};
