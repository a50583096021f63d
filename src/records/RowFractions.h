#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "records/RecordChecks.h"

namespace vexora {

/// Mole ("X"), mass ("W") or volume ("V") fraction of a component (1 to 3).
struct Fraction {
    char kind = 0;
    int component = 0;
};
/// What a code of the tables says: "X1", "W2", "V3". Nothing for any other.
std::optional<Fraction> FractionOf(std::string_view code);

/// A fraction among the quantities of a row; item 0 is the property, then the variables and what is
/// constant.
struct StatedFraction {
    Fraction fraction;
    int item = 0;
    std::string phase;
    /// Those of one kind in one phase have the same number, from 0.
    std::size_t group = 0;
};

/// The fractions that the rows of a mixture set state, whether they stand in a column or are the
/// same for all rows.
class RowFractions {
public:
    /// The set has to stay while this is asked.
    explicit RowFractions(const clsMV& set);
    bool IsEmpty() const { return items_.empty(); }
    /// The first fraction of each group.
    std::vector<StatedFraction> Groups() const;
    /// visit(StatedFraction, value) for each that is a number of a known unit.
    template <class Visit>
    void Each(const clsData& row, Visit visit) const {
        for (const Item& item : items_)
            if (const std::optional<double> value = item.Of(row)) visit(item.stated, *value);
    }
    /// The component that is alone in a phase by what the row states; 0 for none. With no phase any
    /// will do.
    int PureComponent(const clsData& row, std::string_view phase = {}) const;

private:
    struct Item {
        StatedFraction stated;
        std::optional<double> constant;
        std::optional<SystemColumn> column;
        std::optional<double> Of(const clsData& row) const;
    };
    void Add(const clsMV& set, int item, const std::string& code);

    int components_;
    std::vector<Item> items_;
};

} // namespace vexora
