#pragma once

#include <optional>
#include <string_view>

#include "records/UnitConversion.h"

namespace vexora {

class clsData;
class DataSet;
class SingleValue;

/// Whether anything is stated about the uncertainty of a value, or of the property in any row of a
/// set: a statement that is meant to hold, a figure of the evaluation, a precision in the comment.
bool StatesUncertainty(const SingleValue& value);
bool StatesUncertainty(const DataSet& set);

/// The uncertainty of a value [system unit]: the figure of the evaluation, else the combined one or
/// that of the author, where they are meant to hold. Nothing where none is a number above 0.
/// Levels of confidence are not looked at.
std::optional<double> UncertaintyOf(const SingleValue& value);

/// The same of the property in the rows of a set; what a row states goes before what the set does.
class UncertaintyOfRows {
public:
    /// The set has to stay while this is asked.
    explicit UncertaintyOfRows(const DataSet& set);
    std::optional<double> Of(const clsData& row) const;

private:
    const DataSet& set_;
    bool byRow_;
    UnitConversion unit_;
};

} // namespace vexora
