#include "reference/MixtureCodes.h"

#include "reference/Text.h"
#include "reference/Vocabulary.h"

namespace vexora {

namespace {

bool IsComponent(char c) {
    return c >= '1' && c <= '3';
}

/// Composition of a mixed solvent: "X1S".
bool IsOfSolvent(std::string_view code) {
    return code.size() == 3 && IsComponent(code[1]) && code[2] == 'S';
}

/// Of a solute, or of what it does to its solvent: Henry's law, partial, apparent and solution
/// quantities, osmotic coefficient, absorption coefficients of gases.
bool IsPropertyOfSolute(std::string_view code) {
    const std::string_view stem = ComponentOf(code) > 0 ? code.substr(0, code.size() - 1) : code;
    if (stem != code) return IsOneOf(stem, {"PHM", "PHJ", "HEX"});
    return IsOneOf(code, {"PHx", "HSL", "HA", "CPA", "VA", "AOC", "VLC", "VLR"});
}

} // namespace

int ComponentOf(std::string_view code) {
    if (IsOfSolvent(code)) return code[1] - '0';
    return code.size() > 1 && IsComponent(code.back()) ? code.back() - '0' : 0;
}

bool IsComposition(std::string_view code) {
    constexpr std::string_view letters = "XWVMNJOQBE";
    const bool isContent = (code.size() == 2 && IsComponent(code[1])) || IsOfSolvent(code);
    return isContent && letters.find(code[0]) != letters.npos;
}

std::vector<int> ComponentsOfSolvent(std::string_view solvent) {
    if (solvent == "C") return {1, 2};
    if (solvent == "D") return {1, 3};
    if (solvent == "E") return {2, 3};
    if (solvent.size() == 1 && IsComponent(solvent[0])) return {solvent[0] - '0'};
    return {};
}

bool NeedsSolvent(std::string_view code) {
    const VariableRow* variable = FindVariable(code);
    return (variable && variable->NeedSolvent) || IsOfSolvent(code) || IsPropertyOfSolute(code);
}

} // namespace vexora
