// The coded description of a sample taken apart and put together again. Nothing here knows a form
// or a database: codes are passed through as they stand.
//
//   source[,value+unit[,method]] ; purification,... ; value+unit[,method],...
//   ns | xx                                            (not described; no sample)
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vexora {

/// True for a unit that counts what is not the compound (water, halide).
bool IsImpurityUnit(std::string_view code);

/// One statement of purity: the number as typed, the code of the unit, the code of the method or
/// free text in round brackets. An empty number is no statement.
struct PurityStatement {
    /// The number stays as typed, for its digits belong to the statement; the unit tells purity
    /// from impurity and what the per cent count ("m%" mole, "w%" mass).
    std::string Value, Unit, Method;
};

/// Codes as the vocabulary has them. Either Availability alone is given, or the rest.
struct SampleDescription {
    /// "ns": the paper does not describe it; "xx": no sample was used.
    std::string Availability; // "", "ns" or "xx"
    std::string Source;
    /// As it was bought or made, before the authors worked on it.
    PurityStatement Initial;
    /// In the order in which the steps were done.
    std::vector<std::string> Purification;
    /// Behind the last step; each method of analysis states its own.
    std::vector<PurityStatement> Final;
};

/// The line for the record. A number that is not numeric adds nothing.
std::string ComposeDescription(const SampleDescription& description);

/// The parts of a line, or nothing when it cannot be taken apart. Commas and semicolons inside
/// brackets belong to the free text.
std::optional<SampleDescription> ParseDescription(std::string_view text);

/// A free text as it stands in the line: without brackets and semicolons, commas as blanks, in
/// round brackets; empty when nothing remains.
/// The brackets part it from the codes; a mark of the line inside would cut it in two.
std::string FreeText(std::string_view typed);

/// What is wrong with a typed purity, in words for the user; empty for an empty or sound one.
std::string CheckPurityValue(std::string_view typed);

} // namespace vexora
