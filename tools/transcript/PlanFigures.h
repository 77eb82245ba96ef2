#pragma once

#include <QByteArrayList>
#include <QStringList>

/// What the compass views work out of a plan, as lines of JSON without their ends. Each throws a Refusal for
/// arguments that it cannot read; a failure of the calculation itself is reported as the views do.
namespace PlanFigures {

/// NORTHOFFSET: the eight sectors in their order.
[[nodiscard]] QByteArrayList sectors(const QStringList& arguments);

/// X Y: the compass angle of a room's middle.
[[nodiscard]] QByteArrayList angle(const QStringList& arguments);

/// X Y: the direction of North after a click.
[[nodiscard]] QByteArrayList north(const QStringList& arguments);

/// LOCATIONID: the direction of every room of the home. Nothing is saved.
[[nodiscard]] QByteArrayList place(const QStringList& arguments);

} // namespace PlanFigures
