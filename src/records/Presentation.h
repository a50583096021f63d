#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "reference/KVODefinitions.h"

namespace vexora {

/// How the source presents the data of a set, as the field DATATYPE says it: the letter of the
/// numbers, then "C" calculated, "E" equation, "G" graph. Letters of other meaning are kept.
struct Presentation {
    /// "Y" experimental, "S" smoothed, "C" calculated from the authors' equation, "N" none; empty
    /// where nothing is said.
    std::string numerical; // "Y", "S", "C", "N" (no numbers), or empty
    bool calculated = false, equation = false, graph = false;
    /// Not understood here, but written back: the field may be of a later edition.
    std::string others;
    bool operator==(const Presentation&) const = default;

    /// Takes any text apart; "&" says nothing.
    static Presentation Of(std::string_view dataType);
    /// The field put together again, its letters always in the same order.
    std::string Code() const;
    /// The source is said to hold numbers, or nothing is said.
    bool HasNumbers() const { return numerical != NoNumbers; }

    static constexpr std::string_view NoNumbers = "N";
    /// How numbers come about, with the letters of the field; "No numerical data" last.
    static std::vector<CodeText> Kinds();
};

} // namespace vexora
