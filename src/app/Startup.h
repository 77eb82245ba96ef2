#pragma once

namespace Global {

/// The entry routine: restores the last home and person from the settings and shows the main window, whose
/// events drive everything from then on. The seams must have been handed in. A failure is reported and ends
/// it, so that the main window does not appear; data files that are missing or damaged are no failure here.
void Main();

} // namespace Global
