#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "records/DataSet.h"

namespace vexora {

/// The code by which a temperature or pressure of phase equilibrium is known, whichever property
/// code it has; other codes stay.
std::string_view StateCode(std::string_view code);

/// The value of quantity n of a row in its system unit, by the conversion of the set.
double SystemValueOf(const clsData& row, int n, const UnitConversion& entered);

/// Everything that is known of one state of a system, in system units.
struct SystemState {
    struct Cell {
        std::string code, phase; // phase empty for none
        double value = 0;
    };
    std::vector<Cell> cells;
    int point = -1; // row of the set in hand, from 0; -1 where none belongs to it

    std::optional<double> Value(std::string_view code) const;
};

/// The states of a system, gathered from its sets: each set tells one quantity of a state, and rows
/// that bear the same tie number, or have the same values of the same variables, tell of the same
/// one. Sets that repeat a quantity are kept apart in their order. Rows that lack a value are
/// passed over.
class SetStates {
public:
    void Add(const DataSet& set, bool isInHand);
    const std::vector<SystemState>& All() const { return states_; }

private:
    std::string KeyOf(const DataSet& set, const SystemState& state, const clsData& row,
                      const std::string& frame, bool hasTies) const;

    std::vector<SystemState> states_;
    std::unordered_map<std::string, std::size_t> byKey_;
    std::unordered_map<std::string, int> layers_; // sets so far that tell the same quantity
};

/// The phases of a set in one order, whichever is the main one.
std::string PhasesKey(const DataSet& set);

} // namespace vexora
