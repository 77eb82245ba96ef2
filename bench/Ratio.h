#pragma once

/// A figure that the project holds itself to: the median time of one benchmark over that of another,
/// measured within the same run so that the machine's speed falls out.
struct Ratio {
    const char* what;
    const char* measured;
    const char* baseline;
    double limit;
};

/// Adds a ratio to those that are printed at the end of the run. The result is only there so that a
/// namespace-scope constant can make the call.
bool addRatio(const Ratio& ratio);
