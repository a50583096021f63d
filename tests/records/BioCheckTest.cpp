#include "records/DocumentCheck.h"

#include "records/BioSet.h"
#include "records/RoundTripFixture.h"
#include "reference/Text.h"

#include <tuple>

namespace vexora::test {

namespace {

const std::string Compounds =
    "^L 50997 NNNNN &\n^S 1 cm;;99%,gc\n^L 57487 NNNNN &\n"
    "BL 12650883 & 1LYZ C613H959N193O185S10 8 lysozyme\n^S 1 cm;;99%,gc\n";
const std::string Isomerization = "^A & O B & & & & &\nBR 1 1\n"
                                  "BP 1 50997 0 1 50997 D-glucose C6H12O6 180.156 0 -1 S 0 & &\n"
                                  "BP 0 57487 0 & 57487 D-fructose C6H12O6 180.156 0 1 S 0 & &\n"
                                  "BP 0 7732185 0 1 7732185 water H2O 18.0153 0 0 & 0 & &\n"
                                  "BC 7732185 Solvent S 1 &\n"
                                  "BV KM 1 & & 0.01 P &\nBV T K & & * V &\n"
                                  "BV pH 1 S & & C 7.0\nBV Ic mol/dm3 S & & C 0.1\n"
                                  "BE\nBM Liquid chromatography\nB0 0 0\n"
                                  "BD 0.92 298.15 0.05\nBD 1.10 313.15 0.05\n";
const std::string Unfolding =
    "^A & O B & & & & &\nBN 1\n"
    "BP 12650883 0 1 & lysozyme 12650883 C613H959N193O185S10 14313 8 & 1LYZ\n"
    "BP 7732185 0 1 & water 7732185 H2O 18.0153 0 & &\n"
    "BH D 1 Native Denatured S S & &\nBC 7732185 Solvent S 1 &\n"
    "BV H kJ/mol & & 2% P &\nBV T12 K & & & P &\nBV pH 1 S & & V &\nBV Ic mol/dm3 S & & C 0.1\n"
    "BE\nBM Differential scanning calorimetry\nBD 509 348.6 4.5\nBD & 340 3\n";

} // namespace

class BioCheck : public RoundTripFixture {
protected:
    /// What is found in bio sets when the one text in the document becomes the other.
    std::string After(const std::string& from, const std::string& to) {
        std::string text = kHead + Compounds + Isomerization + Unfolding;
        const std::size_t at = text.find(from);
        if (at == std::string::npos) return "no such text";
        Read(text.replace(at, from.size(), to));
        std::string found;
        for (const DocumentFinding& finding : CheckDocument()) {
            const bool isOfSet = dynamic_cast<const BioSet*>(finding.record) != nullptr;
            if (!isOfSet) continue;
            EXPECT_EQ(finding.line, finding.record->Line);
            const std::string name = finding.record->ShowKey() + ": ";
            const std::string shown = Replace(Replace(finding.text, name, ""),
                                              name.substr(0, name.size() - 2) + ", ", "");
            found += std::string(SeverityWord(finding.severity)) + ": " + shown + "|";
        }
        return found;
    }
};

TEST_F(BioCheck, EachFaultHasItsOwnWordsAndASoundSetHasNone) {
    const std::tuple<std::string, std::string, std::string> cases[] = {
        {"BE", "BE", ""},
        // Who takes part.
        {"0 -1 S 0", "0 0.x S 0", "error: D-glucose has an invalid coefficient: 0.x|"},
        {"0 -1 S 0", "0 & S 0", "warning: no coefficient of D-glucose is stated|"},
        {"0 -1 S 0", "0 -1 & 0", "warning: no phase of D-glucose is stated|"},
        {"0 -1 S 0", "0 -1 Q9 0", "error: Unknown phase Q9|"},
        {"BP 1 50997 0 1", "BP 1 50997 0 7", "error: D-glucose has no sample 7|"},
        {"BP 1 50997 0 1", "BP 0 50997 0 &", "warning: no participant has a sample|"},
        // The chemical notation.
        {"0 -1 S 0", "0 -2 S 0",
         "error: the reaction is not balanced; reactants have left over C 6, H 12, O 6|"},
        {"BP 0 57487 0 & 57487 D-fructose C6H12O6 180.156 0 1 S",
         "BP 0 7782447 0 & 7782447 oxygen O2 31.99 0 1 S",
         "error: the reaction is not balanced; reactants have left over C 6, H 12, O 4|"},
        {"BP 0 57487 0 & 57487 D-fructose C6H12O6 180.156 0 1 S",
         "BP 0 1003 0 & 1003 some C6H13O6 181 0 1 S",
         "warning: hydrogen is not balanced in chemical notation; products have left over H 1|"},
        {"BR 1 1\nBP 1 50997 0 1 50997 D-glucose C6H12O6 180.156 0 -1 S",
         "BR 1 0\nBP 1 50997 0 1 50997 D-glucose C6H12O6 180.156 0 -2 S", ""},
        // The solution.
        {"BC 7732185 Solvent S 1", "BC 7732185 Salt S 1",
         "error: unknown function of water: Salt|"},
        {"BC 7732185 Solvent S 1", "BC 7732185 Cofactor S 1",
         "warning: the content of the co-factor water is not stated|"},
        {"BC 7732185 Solvent S 1", "BC 7732185 Solvent S 9", "error: water has no sample 9|"},
        // Quantities.
        {"BV KM 1", "BV QQ 1", "error: unknown property QQ|"},
        {"BV KM 1", "BV KM mol",
         "error: apparent equilibrium constant (molaLity): unknown unit mol|"},
        {"BV T K & &", "BV X 1 S &",
         "error: mole fraction (Solution): no component is stated|error: mole fraction (Solution): "
         "row 1: value 298.15 is not valid (and 1 more)|hint: no temperature is stated|"},
        {"BV T K & &", "BV X 1 S 64175",
         "error: mole fraction of 64175 (Solution): component not described: 64175|error: mole "
         "fraction of 64175 (Solution): row 1: value 298.15 is not valid (and 1 more)|hint: no "
         "temperature is stated|"},
        {"0.01 P", "1,1 P",
         "error: apparent equilibrium constant (molaLity): this is no uncertainty: 1,1|"},
        {"S & & C 7.0", "S & * C 7.0", "error: pH (Solution): this is no uncertainty: *|"},
        {"C 7.0", "C seven", "error: pH (Solution): this is no number: seven|"},
        {"C 7.0", "C 70", "warning: pH (Solution): value 70 is suspicious|"},
        {"Ic mol/dm3 S & & C 0.1\nBE\nBM L", "Ic mol/dm3 S & & C -0.1\nBE\nBM L",
         "error: ionic strength (molaRity basis) (Solution): value -0.1 is not valid|"},
        {"BV pH 1 S & & C 7.0\nBV Ic mol/dm3 S & & C 0.1\n", "",
         "hint: no pH is stated|hint: no ionic strength is stated|"},
        // Rows and method.
        {"BM Liquid chromatography\n", "", "warning: no method is stated|"},
        {"BD 0.92", "BD a",
         "error: apparent equilibrium constant (molaLity): row 1: this is no number: a|"},
        {"BD 0.92", "BD &",
         "error: apparent equilibrium constant (molaLity): row 1: a value is missing|"},
        {"298.15 0.05", "-298.15 0.05", "error: temperature: row 1: value -298.15 is not valid|"},
        {"298.15 0.05", "298.15 b", "error: temperature: row 1: this is no uncertainty: b|"},
        {"BD 0.92 298.15 0.05\nBD 1.10 313.15 0.05\n", "", "warning: the data set has no rows|"},
        // A transition.
        {"Native Denatured", "Native Native", "error: the final state is the initial one: Native|"},
        {"Native Denatured", "& Denatured", "error: no initial state is stated|"},
        {"Native Denatured S S", "Native Denatured Q9 S", "error: Unknown phase Q9|"},
        {"BH D", "BH Z", "error: unknown kind of bio property Z|"},
        {"Solvent S 1 &\nBV H", "Catalyst S 1 &\nBV H",
         "error: unknown function of water: Catalyst|"},
        {"2% P", "& P", "hint: no uncertainty is stated|"},
    };
    for (const auto& [from, to, told] : cases)
        EXPECT_EQ(After(from, to), told) << from << " -> " << to;
}

} // namespace vexora::test
