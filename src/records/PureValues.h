#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "records/RecordChecks.h"

namespace vexora {

/// Temperature [K] and pressure [kPa] of a row, where they are stated.
struct StateOfRow {
    std::optional<double> t, p;
};

/// Temperature and pressure of the rows of any set, from its columns or from what is constant.
class StateOfRows {
public:
    /// The set has to stay while this is asked.
    explicit StateOfRows(const DataSet& set) : t_(set, "T"), p_(set, "P") {}
    StateOfRow Of(const clsData& row) const { return {t_.Of(row), p_.Of(row)}; }

private:
    struct Coordinate {
        Coordinate(const DataSet& set, std::string_view code);
        std::optional<double> Of(const clsData& row) const;
        std::optional<double> constant;
        std::optional<SystemColumn> column;
    };
    Coordinate t_, p_;
};

/// What values of a mixture and of a pure compound have in common when they can be compared: the
/// property in the words of pure data (of a boiling curve PV or TB), the phase, and what else is
/// constant.
struct PureKind {
    std::string code, phase, others;
    bool isBoiling = false;

    /// Nothing for a set that has no like among pure data, or varies in more than compositions,
    /// temperature and pressure.
    static std::optional<PureKind> Of(const DataSet& set);
    /// Values at saturation state no pressure and may be compared all the same, but for a gas.
    bool NeedsPressure() const { return phase == "G" || phase == "FL"; }
    std::string Key() const { return code + "\n" + phase + "\n" + others; }
};

/// A value of a pure compound in its system unit.
struct PureValue {
    double value = 0;
    std::optional<double> uncertainty;
    StateOfRow state;
    std::string setNumber;
    std::shared_ptr<const PureKind> kind; // one for all of a set
};
/// The values of one property of a sample, from its sets and single values. Normal boiling
/// temperatures are values of "TB".
std::vector<PureValue> ValuesOf(const clsS& sample, std::string_view code);

/// The same by their state.
class PureValues {
public:
    PureValues() = default;
    PureValues(const clsS& sample, std::string_view code);
    /// Those at the same temperature, to half a hundredth, and a pressure within 1 per cent where
    /// both are stated; of boiling temperatures those at the same pressure.
    std::vector<const PureValue*> At(const PureKind& kind, const StateOfRow& state) const;

private:
    /// A rounded state: look-ups try those beside it too.
    struct Cell {
        long long place = 0, pressure = 0;
        bool operator==(const Cell&) const = default;
    };
    struct CellHash {
        std::size_t operator()(const Cell& cell) const;
    };
    using Cells = std::unordered_map<Cell, std::vector<PureValue>, CellHash>;
    void Add(const PureValue& value);

    std::unordered_map<std::string, Cells> byKind_;
};

} // namespace vexora
