#pragma once

/// A figure that the project holds itself to: the median time of one benchmark over that of another,
/// measured within the same run so that the machine's speed falls out.
struct Ratio {
    const char* what;
    const char* measured;
    const char* baseline;
    double limit;
    /// Off where one of the two has work for several processors at once.
    bool onOneProcessor = true;
};

/// Adds a ratio to those that are printed at the end of the run. The result is only there so that a
/// namespace-scope constant can make the call.
bool addRatio(const Ratio& ratio);

/// Two figures that are not times, and their unit.
struct Quotient {
    double measured;
    double baseline;
    const char* unit;
};

/// A ratio whose two figures are measured by a function of its own.
struct QuotientRatio {
    const char* what;
    Quotient (*measure)();
    double limit;
};

/// The same as `addRatio` for figures that are not times.
bool addQuotient(const QuotientRatio& ratio);
