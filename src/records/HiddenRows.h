#pragma once

#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "records/RecordChecks.h"

namespace vexora {

/// What one row says of the presence of each component (1 to 3, as bits).
struct Presence {
    unsigned absent = 0, present = 0;

    bool IsAbsent(int component) const { return (absent >> component & 1U) != 0; }
    int AbsentCount() const;
    /// Absent here and present there: such a row has no meaning in a lower system.
    bool Contradicts() const { return (absent & present) != 0; }
    Presence& operator|=(const Presence& other);
};

/// The contents of components that the rows of one mixture set state: in columns, by the property
/// or by what is constant.
class StatedContents {
public:
    /// The set has to stay while this is asked.
    explicit StatedContents(const clsMV& set);
    bool IsEmpty() const { return contents_.empty(); }
    Presence Of(const clsData& row) const;

private:
    /// A content by its letter, of a component in a phase, or in the solvent alone.
    struct Content {
        char type = 0;
        int component = 0;
        bool ofSolvent = false;
        std::string phase;
        std::optional<double> constant;
        std::optional<SystemColumn> column;

        std::optional<double> GetValue(const clsData& row) const;
        bool IsFraction() const { return type == 'X' || type == 'W' || type == 'V'; }
    };
    Content* Prepare(const std::string& code, const std::string& phase);
    void TakeFraction(const Content& content, double value, Presence& presence) const;
    void TakeSum(const Content& content, double value, const Content& other, double beside,
                 Presence& presence) const;

    int components_;
    std::vector<int> solvent_;
    std::vector<Content> contents_;
};

/// Which rows of a mixture set lack components, by what the row and the rows tied to it state.
class HiddenRows {
public:
    /// The sets of the mixture have to stay while this is asked.
    explicit HiddenRows(clsMV& set) : set_(set), contents_(set) {}
    /// A component counts as absent only by what the row states itself.
    Presence Of(const clsData& row) const;

private:
    const Presence& OfTie(const std::string& number) const;

    clsMV& set_;
    StatedContents contents_;
    /// By tie number; made at the first row that asks.
    mutable std::optional<std::unordered_map<std::string, Presence>> tied_;
};

} // namespace vexora
