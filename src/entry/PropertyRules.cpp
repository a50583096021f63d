#include "entry/PropertyRules.h"

#include <cstddef>

#include "reference/Conversions.h"
#include "reference/KVODefinitions.h"
#include "reference/Numbers.h"

namespace vexora {

namespace {

constexpr std::size_t Rejection = 2; // place of "recommends rejection" among the statements
constexpr int KeptBits = 0x7FFB;     // what a reading keeps of a flag word
constexpr const char* UnitOne = "1"; // system unit of a dimensionless quantity

/// Which letters make sense: H second-law enthalpies, S speed of sound as source. Letters of
/// mixtures and reactions are not offered here.
bool LetterApplies(std::string_view letter, std::string_view code) {
    if (letter == "m") return true;
    if (letter == "H") return code == "HTR" || code == "HVP";
    if (letter == "S") return code == "CP" || code == "VPA";
    return false;
}

} // namespace

std::vector<Statement> StatementsFor(std::string_view propertyCode) {
    std::vector<Statement> statements;
    const CodeTexts flags = ValueStatements;
    for (std::size_t i = 0; i < flags.size(); ++i) {
        if (i != Rejection) statements.push_back({std::string(flags[i].text), 1 << i, {}});
    }
    for (const CodeText& entry : LetteredStatements) {
        if (LetterApplies(entry.code, propertyCode))
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
