#pragma once

#include <string>
#include <vector>

#include "records/Outline.h"

namespace vexora {

/// One thing that two versions of a document say differently.
struct Difference {
    /// The labels from the source down to the node, as the later version has them, else the
    /// earlier one.
    std::vector<std::string> path;
    std::string what;   // the field, or the row and its column; empty when the whole node differs
    std::string before; // empty for what is only in the later version
    std::string after;  // empty for what is only in the earlier version
    enum class Kind { Changed, OnlyBefore, OnlyAfter } kind = Kind::Changed;
    /// The identities from below the source down to the node, for RecordAt.
    std::vector<std::string> place = {};
};

/// What has changed from one outline to another. Texts are compared as typed: "1.0" and "1.00"
/// differ. The order of nodes and of rows means nothing. A node that has come or gone is one
/// difference, whatever stands below it.
std::vector<Difference> DifferencesOf(const Outline& before, const Outline& after);

/// "path: what: before -> after" in one line.
std::string DifferenceText(const Difference& difference);

} // namespace vexora
