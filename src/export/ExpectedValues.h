#pragma once

#include "records/RowList.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace vexora {

class DataSet;
class Record;
struct SetRows;

/// What a number of the export has to be, in its system unit, but for a part of the last place that
/// was typed.
struct ExpectedValue {
    double value = 0;
    double tolerance = 0;
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
    /// Quantity n of the block in hand, 0 the property; nothing where the record does not tell.
    std::optional<ExpectedValue> Of(int n) const;
    /// The unit in which quantity n leaves, "1" for none; empty where the record does not tell.
    std::string UnitOf(int n) const;

private:
    const Record* record_;
    const DataSet* set_ = nullptr;
    std::unique_ptr<SetRows> rows_;
    std::vector<ExpectedValue> constants_, head_;
    std::size_t constant_ = 0, ofHead_ = 0;
    RowList::const_iterator next_, row_;
    bool isFirst_ = true;
};

} // namespace vexora
