#pragma once

#include <QtGlobal>

/// What `FindInData` needs of a combo box or list: entries with a number each, and a selected index.
class ListControl {
public:
    virtual ~ListControl() = default;
    [[nodiscard]] virtual qint32 ListCount() const = 0;
    [[nodiscard]] virtual qint32 ItemData(qint32 index) const = 0;
    [[nodiscard]] virtual qint32 ListIndex() const = 0;
    /// -1 selects nothing. A change of selection fires the control's click handler.
    virtual void setListIndex(qint32 index) = 0;
};
