#pragma once

#include <string>

namespace vexora {

/// How far values of one curve of a plot may lie apart, as parts of the value.
struct CurveTolerances {
    double pressure = 0.01;
    double other = 0.001; // of temperatures, of the absolute one
    bool operator==(const CurveTolerances&) const = default;
};

/// What a person set that no record keeps: it lasts until the workbench ends.
struct Sitting {
    CurveTolerances Curves;
    bool PlotBeside = false;  // tables stand beside their plot
    std::string DocumentPath; // full, empty for a document without a file; told by the shell
};

/// That of the globals in force, new with them.
Sitting& TheSitting();

} // namespace vexora
