#include "entry/PropertyRules.h"

#include <cstddef>

#include "entry/PropertyEntries.h"
#include "reference/Conversions.h"
#include "reference/KVODefinitions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

namespace vexora {

namespace {

constexpr std::size_t Rejection = 2; // place of "recommends rejection" among the statements
constexpr int KeptBits = 0x7FFB;     // what a reading keeps of a flag word
constexpr const char* UnitOne = "1"; // system unit of a dimensionless quantity

/// A property of the equilibrium of a liquid mixture with its vapour, or a composition in it.
bool IsOfVaporEquilibrium(std::string_view code) {
    return IsOneOf(code, {"T", "P", "TB", "X1", "X2", "X3", "W1", "W2", "W3"});
}

/// Of reactions: H second-law enthalpies, M, C, W and V what a heat of combustion goes by, L
/// logarithms of equilibrium constants.
bool LetterAppliesToReaction(std::string_view letter, std::string_view code) {
    if (letter == "L") return code.starts_with('K');
    if (letter == "H") return code == "HR";
    return IsOneOf(letter, {"M", "C", "W", "V"}) && IsOneOf(code, {"HR", "UR"});
}

/// Which letters make sense: H second-law enthalpies, S speed of sound as source, Y vapour
/// compositions of mixtures.
bool LetterApplies(std::string_view letter, std::string_view code, std::string_view context) {
    if (letter == "m") return true;
    if (context == "React") return LetterAppliesToReaction(letter, code);
    if (letter == "Y") return IsMixtureContext(context) && IsOfVaporEquilibrium(code);
    if (letter == "H") return code == "HTR" || code == "HVP";
    if (letter == "S") return code == "CP" || code == "VPA";
    return false;
}

} // namespace

std::vector<Statement> StatementsFor(std::string_view propertyCode, std::string_view context) {
    std::vector<Statement> statements;
    const CodeTexts flags = ValueStatements;
    for (std::size_t i = 0; i < flags.size(); ++i) {
        if (i != Rejection) statements.push_back({std::string(flags[i].text), 1 << i, {}});
    }
    for (const CodeText& entry : LetteredStatements) {
        if (LetterApplies(entry.code, propertyCode, context))
            statements.push_back({std::string(entry.text), 0, std::string(entry.code)});
    }
    return statements;
}

int FlagBits(std::string_view flags) {
    return static_cast<int>(ParseInteger(flags).value_or(0) & KeptBits);
}

std::string UnitCode(const PropertyRow& row, std::string_view text) {
    if (text == "Dimensionless") return "D";
    return text == row.Unit ? "S" : ConversionCodeOf(text, row.Unit);
}

std::string PropertyInWords(const PropertyRow& row) {
    return row.Unit == UnitOne ? row.Property : row.Property + ", " + row.Unit;
}

} // namespace vexora
