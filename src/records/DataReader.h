// The lines of single values and data sets: definitions, rows, and statements of uncertainty.
#pragma once

#include <string_view>

namespace vexora {

struct ReaderState;

/// ^Z ^z ^F ^f: a single value joins its sample.
void ReadValue(ReaderState& state, std::string_view line);
/// ^1 ^2 ^3: a data set joins its sample. Pure data have no third variable.
void ReadSet(ReaderState& state, std::string_view line);
/// ^D ^d ^G ^g: a row joins the set just read.
void ReadRow(ReaderState& state, std::string_view line);
/// ^Y: statements of the row just read.
void ReadRowStatements(ReaderState& state, std::string_view line);
/// ^X: a statement about a quantity of the value or set just read.
void ReadStatement(ReaderState& state, std::string_view line);

} // namespace vexora
