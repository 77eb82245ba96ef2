#pragma once

#include <QAccessible>

class QWidget;

/// Makes a widget that paints itself known to screen readers as what it is, instead of a nameless area. A
/// widget with a property `selected` is told as selectable too. Call it before the widget has a
/// name: what a screen reader was told once stays.
void setAccessibleRole(QWidget& widget, QAccessible::Role role);
