#pragma once

#include "core/ListControl.h"

#include <QString>

class QComboBox;

/// A combo box seen as the list that records fill and search: texts with a number each. Unlike the widget
/// itself, the list selects nothing of its own accord while it is filled.
class ComboList final : public ListControl {
public:
    explicit ComboList(QComboBox& combo)
        : combo_(combo) {}

    void Clear();
    void AddItem(const QString& text, qint32 itemData);

    [[nodiscard]] qint32 ListCount() const override;
    [[nodiscard]] qint32 ItemData(qint32 index) const override;
    [[nodiscard]] qint32 ListIndex() const override;
    void setListIndex(qint32 index) override;

private:
    QComboBox& combo_;
};
