#include "ui/widgets/AccessibleRole.h"

#include <QAccessibleWidget>
#include <QVariant>
#include <QWidget>

namespace {

constexpr const char* roleProperty = "accessibleRole";
constexpr const char* selectedProperty = "selected";

class WidgetOfRole final : public QAccessibleWidget {
public:
    using QAccessibleWidget::QAccessibleWidget;

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State now = QAccessibleWidget::state();
        const QVariant selected = widget()->property(selectedProperty);
        now.selectable = selected.isValid();
        now.selected = selected.toBool();
        return now;
    }
};

QAccessibleInterface* makeWidgetOfRole(const QString& /*className*/, QObject* object) {
    const QVariant role = object->property(roleProperty);
    auto* widget = qobject_cast<QWidget*>(object);
    return role.isValid() && widget != nullptr
               ? new WidgetOfRole(widget, static_cast<QAccessible::Role>(role.toInt()))
               : nullptr;
}

} // namespace

void setAccessibleRole(QWidget& widget, QAccessible::Role role) {
    static const bool installed = [] {
        QAccessible::installFactory(makeWidgetOfRole);
        return true;
    }();
    Q_UNUSED(installed)
    widget.setProperty(roleProperty, static_cast<int>(role));
}
