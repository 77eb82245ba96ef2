#include "core/windows/DateField.h"

#include "core/Clock.h"
#include "core/Conversion.h"
#include "core/Global.h"
#include "core/clsCalendar.h"
#include "ui/platform/WidgetPlacement.h"

#include <QLineEdit>

namespace {

constexpr double twipsPerPixel = 15;
/// How far right of the field's left edge the calendar stands, in twips: the field's text stays in sight.
constexpr double besideField = 700;
/// The calendar's position that is a point.
constexpr qint16 atPoint = 3;

} // namespace

QString DateField::pick(clsCalendar& calendar, const QLineEdit& field) {
    const QString start = Conversion::isDate(field.text())
                              ? Conversion::shortDate(QVariant(field.text()))
                              : Conversion::shortDate(Global::service(&Services::clock).today());
    const WidgetPlacement form(*field.window());
    const QPoint corner = field.mapTo(field.window(), QPoint());
    const double left = form.Left() + corner.x() * twipsPerPixel + besideField;
    const double top = form.Top() + corner.y() * twipsPerPixel;
    return Conversion::shortDate(calendar.ShowCalendar(atPoint, &form, left, top, start));
}
