// The chain of quantities of a data set, made from the set: what the evaluation of uncertainties
// and the range tests of its rows work on. A head for the property, an item for each variable; the
// statements of the set stand in them as defaults of the rows.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace vexora {

class clsProperty;
class DataSet;
class SingleValue;
class clsX;
struct Quantity;

/// The chain of a set: units and relations of its quantities, its statements and the precisions of
/// its comment, all in the units in which the rows are entered. Texts and values are empty.
std::shared_ptr<clsProperty> BuildChain(const DataSet& set);
/// The same with the rows in the units of the paper or not, whatever the set says.
/// The table of a set may be brought to system units while the set itself is still as it was.
std::shared_ptr<clsProperty> BuildChain(const DataSet& set, bool original);
std::shared_ptr<clsProperty> BuildChain(const SingleValue& value);

/// The statements of an item become the defaults of its quantity; what is not stated is emptied.
void TakeMasters(clsProperty& item, const clsX& statements);

/// The precision of a quantity, read from a file in its system unit, as it reads in the unit of its
/// values; molarMass in g/mol. Per cent, and texts that are no number, stay.
/// 0 g/mol for a unit that needs none; where the unit cannot be converted the text stays.
void PrecisionInEnteredUnit(clsProperty& item, double molarMass);

/// A statement as it reads in the entered unit of a variable: one read from a file stands in the
/// system unit. Per cent, and texts that are no number, stay.
std::string EnteredStatement(std::string_view text, std::string_view unitCode, bool inSystemUnit);
/// An item with its statements in the entered unit; that of the property (N = 0) always is.
clsX InEnteredUnit(const clsX& item, std::string_view unitCode);

/// Codes, names and units of the items of a set, for the dialog that edits them.
/// The record file has no names: they follow from the codes, and the units from the set.
void NameStatements(DataSet& set);
void NameStatements(DataSet& set, bool original);
/// The quantities of a set with their names and units, whatever its statements bear.
std::vector<Quantity> NamedQuantities(const DataSet& set);
std::vector<Quantity> NamedQuantities(const DataSet& set, bool original);
/// The items of a single value, the property first, with their codes, names and units.
std::vector<clsX> NamedStatements(const SingleValue& value);

} // namespace vexora
