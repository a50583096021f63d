#pragma once

#include "records/RowList.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace vexora {

class BioParts;
class BioSet;
class DataSet;
class Record;
struct SetRows;

/// What a number of the export has to be, in its system unit, but for a part of the last place that
/// was typed.
struct ExpectedValue {
    double value = 0;
    double tolerance = 0;
};

/// What a number in a row is of: a property or a variable with a number of its own.
struct NumberedQuantity {
    bool isProperty = true;
    int number = 1;
};

/// The values of a record in the order in which the export has them: one block for a single value,
/// one for each row of a set that has numbers.
class ExpectedValues {
public:
    explicit ExpectedValues(const Record* record);
    ~ExpectedValues();

    /// Goes on to the next block; false when there is none left.
    bool Next();
    /// The next of the values that the record holds constant; nothing behind the last.
    std::optional<ExpectedValue> NextConstant();
    /// The next number that the head of a reaction's data gives; nothing behind the last.
    std::optional<ExpectedValue> NextOfHead();
    /// A quantity of the block in hand; nothing where the record does not tell.
    std::optional<ExpectedValue> Of(NumberedQuantity quantity) const;
    /// How many values the block in hand has, 0 where the record does not tell.
    std::size_t CountInBlock() const;
    /// The unit in which the quantity leaves, "1" for none; empty where the record does not tell.
    std::string UnitOf(NumberedQuantity quantity) const;

private:
    bool NextRow();
    bool NextBioRow();
    /// The place among the cells of a row, nothing for a quantity that the set has not.
    std::optional<std::size_t> BioColumn(NumberedQuantity quantity) const;

    const Record* record_;
    const DataSet* set_ = nullptr;
    const BioSet* bioSet_ = nullptr;
    std::unique_ptr<SetRows> rows_;
    std::unique_ptr<BioParts> bioParts_;
    std::vector<ExpectedValue> constants_, head_;
    std::size_t constant_ = 0, ofHead_ = 0;
    RowList::const_iterator next_, row_;
    std::size_t nextBio_ = 0; // behind the row in hand
    bool isFirst_ = true;
};

} // namespace vexora
