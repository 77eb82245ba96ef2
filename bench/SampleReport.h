#pragma once

#include <QString>

class ReportSurface;

/// A report like that on a home, which the benchmarks of layout, PDF and HTML share.
namespace SampleReport {

constexpr int rooms = 100;
constexpr int paragraphsOfRoom = 7;

/// A paragraph of five sentences.
[[nodiscard]] QString paragraph(int index);

/// Writes the report: each room begins a page with a wheel and a summary beside it.
void write(ReportSurface& surface);

} // namespace SampleReport
