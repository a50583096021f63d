#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "reference/KVODefinitions.h"

namespace vexora {

/// How the source presents the data of a set, as the field DATATYPE says it: the letter of the
/// numbers, then "C" calculated, "E" equation, "G" graph. Letters of other meaning are kept.
struct Presentation {
    std::string numerical; // "Y", "S", "C", "N" (no numbers), or empty
    bool calculated = false, equation = false, graph = false;
    std::string others;
    bool operator==(const Presentation&) const = default;

    static Presentation Of(std::string_view dataType);
    std::string Code() const;
    /// The source is said to hold numbers, or nothing is said.
    bool HasNumbers() const { return numerical != NoNumbers; }

    static constexpr std::string_view NoNumbers = "N";
    /// How numbers come about, with the letters of the field; "No numerical data" last.
    static std::vector<CodeText> Kinds();
};

} // namespace vexora
