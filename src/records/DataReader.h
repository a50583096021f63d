// The lines of single values and data sets: definitions, rows, and statements of uncertainty.
#pragma once

#include <string_view>

namespace vexora {

struct ReaderState;

/// The same tags stand for records of other classes behind a compound, a mixture or a reaction.
struct DataLines {
    void (*value)(ReaderState& state, std::string_view line);
    void (*set)(ReaderState& state, std::string_view line);
};
/// Values and sets of the samples of a compound or of a complex, which have no third variable.
extern const DataLines PureLines;
/// Values and sets of a mixture, which name a sample of each component.
extern const DataLines MixtureLines;
/// A reaction has none of either: its data have lines of their own.
extern const DataLines ReactionLines;

/// ^Z ^z ^F ^f: a single value joins its owner.
void ReadValue(ReaderState& state, std::string_view line);
/// ^1 ^2 ^3: a data set joins its owner.
void ReadSet(ReaderState& state, std::string_view line);
/// ^D ^d ^G ^g: a row joins the record just read.
void ReadRow(ReaderState& state, std::string_view line);
/// ^Y: statements of the row just read.
void ReadRowStatements(ReaderState& state, std::string_view line);
/// ^X: a statement about a quantity of the value or set just read.
void ReadStatement(ReaderState& state, std::string_view line);

} // namespace vexora
