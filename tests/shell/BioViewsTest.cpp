#include "records/Differences.h"
#include "records/Outline.h"
#include "records/clsBP.h"
#include "records/clsBR.h"
#include "records/clsL.h"
#include "shell/BioShellFixture.h"
#include "shell/ReadingPane.h"

namespace vexora::test {

namespace {

constexpr const char* Reaction = "BioReaction 1 (D-glucose = D-fructose)";
constexpr const char* Transition = "BioProperty Set # 1 (lysozyme) from DSC (Native, Denatured)";

std::string Said(const std::vector<Difference>& differences) {
    std::string told;
    for (const Difference& one : differences)
        told += DifferenceText({{}, one.what, one.before, one.after, one.kind}).substr(2) + "\n";
    return told;
}

} // namespace

class BioViews : public BioShellFixture {
protected:
    static clsBR& TheReaction() { return *Source().recBR.Item(std::size_t{1}); }
    static clsBP& TheTransition() { return *Source().recBP.Item(std::size_t{1}); }
};

TEST_F(BioViews, ThePaneReadsBioSetsInWords) {
    ASSERT_TRUE(Start(WriteBio()));
    EXPECT_EQ(
        LinesOf(ReadingHtml(&TheReaction())),
        std::string(Reaction) +
            "\nNotation: biochemical\nD-glucose: C6H12O6, sample 1, Solution\n"
            "D-fructose: C6H12O6, Solution\nSolvent: water, H2O, sample 1, Solution\n"
            "Apparent equilibrium constant (molaLity): 0.92 to 1.10 \u00B1 0.01\n"
            "Against temperature: 298.15 to 313.15 K, each row with its uncertainty\n"
            "Constant pH (Solution): 7.0\nRows: 2\n"
            "Apparent equilibrium constant (molaLity) Temperature, K\n"
            "0.92 298.15 \u00B1 0.05\n1.10 313.15 \u00B1 0.05\nMethod: Liquid chromatography\n"
            "Purpose: Principal objective of the work\n");
    EXPECT_EQ(LinesOf(ReadingHtml(&TheTransition())),
              std::string(Transition) +
                  "\nSubstance: lysozyme, C613H959N193O185S10, EC 3.2.1.17, PDB 1LYZ, sample 1\n"
                  "Initial state: Native, Solution\nFinal state: Denatured, Solution\n"
                  "Solvent: water, H2O, sample 1, Solution\n"
                  "Enthalpy of transition: 430 to 509 kJ/mol \u00B1 2%\n"
                  "Temperature of 1/2 conversion: 340 to 348.6 K\n"
                  "Against pH (Solution): 3 to 4.5\n"
                  "Constant ionic strength (molaRity basis) (Solution): 0.1 mol/dm3\nRows: 2\n"
                  "Enthalpy of transition, kJ/mol Temperature of 1/2 conversion, K pH (Solution)\n"
                  "509 348.6 4.5\n430 340 3\n"
                  "Method: Differential scanning calorimetry\n"
                  "Purpose: Principal objective of the work\n");
    TheReaction().recD.clear();
    TheReaction().Method.clear();
    TheReaction().Notation = true;
    TheReaction().Participants[0].coefficient = "-2";
    const std::string html = LinesOf(ReadingHtml(&TheReaction()));
    EXPECT_EQ(html.substr(html.find("Still")),
              "Still missing\nCoefficients that balance\nRows\nThe method of measurement\n");
}

TEST_F(BioViews, TheSearchKnowsCompoundsQuantitiesAndValues) {
    ASSERT_TRUE(Start(WriteBio()));
    const std::string reaction = "BioReactio|", transition = "BioPropert|";
    const std::pair<const char*, std::string> cases[] = {{"fructose =", reaction},
                                                         {"57-48-7", "D-fructose|" + reaction},
                                                         {"1lyz", "lysozyme|" + transition},
                                                         {"ec 3.2.1.17", ""},
                                                         {"3.2.1.17", "lysozyme|" + transition},
                                                         {"half conversion", ""},
                                                         {"conversion", transition},
                                                         {"biochemical", reaction},
                                                         {"denatured", transition},
                                                         {"calorimetry", transition},
                                                         {"solvent", reaction + transition},
                                                         {"313.15", reaction},
                                                         {"500..510", transition},
                                                         {"0.1", transition},
                                                         {"mol/dm3", transition}};
    for (const auto& [words, found] : cases)
        EXPECT_EQ(Found(words), found) << words;
}

TEST_F(BioViews, DifferencesNameQuantitiesComponentsAndCells) {
    ASSERT_TRUE(Start(WriteBio()));
    const Outline before = OutlineOfDocument();
    clsBR& reaction = TheReaction();
    reaction.Method = "NMR";
    reaction.Participants[0].coefficient = "-1.0";
    reaction.Components[0].function = "Inert";
    BioQuantity pH = reaction.Quantities()[2];
    pH.value = "7.1";
    reaction.Change(2, pH);
    reaction.recD[1].Cells[0].value = "1.11";
    reaction.recD[0].Cells[1].uncertainty = "0.1";
    clsBP& transition = TheTransition();
    transition.State2 = "Dimer";
    transition.Erase(2); // against pH no more
    EXPECT_EQ(Said(DifferencesOf(before, OutlineOfDocument())),
              "D-glucose, coefficient: -1 -> -1.0\n"
              "component water, function: Solvent -> Inert\n"
              "pH (Solution), value: 7.0 -> 7.1\n"
              "method: Liquid chromatography -> NMR\n"
              "row 1, uncertainty of Temperature: 0.05 -> 0.1\n"
              "row 2, Apparent equilibrium constant (molaLity): 1.10 -> 1.11\n"
              "final state: Denatured -> Dimer\n"
              "pH (Solution), tag of the BV line: BV -> nothing\n"
              "pH (Solution), quantity: pH -> nothing\npH (Solution), unit: 1 -> nothing\n"
              "pH (Solution), phase: S -> nothing\npH (Solution), component: & -> nothing\n"
              "pH (Solution), uncertainty: & -> nothing\npH (Solution), role: V -> nothing\n"
              "pH (Solution), value: & -> nothing\n");
    const Record* record = RecordAt(DifferencesOf(before, OutlineOfDocument())[0].place);
    EXPECT_EQ(record, &reaction);
}

} // namespace vexora::test
