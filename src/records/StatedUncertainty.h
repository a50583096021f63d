#pragma once

namespace vexora {

class DataSet;
class SingleValue;

/// Whether anything is stated about the uncertainty of a value, or of the property in any row of a
/// set: a statement that is meant to hold, a figure of the evaluation, a precision in the comment.
bool StatesUncertainty(const SingleValue& value);
bool StatesUncertainty(const DataSet& set);

} // namespace vexora
