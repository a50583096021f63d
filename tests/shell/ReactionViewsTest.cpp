#include "records/Differences.h"
#include "records/Outline.h"
#include "records/clsC.h"
#include "records/clsE.h"
#include "records/clsQ.h"
#include "shell/ReadingPane.h"
#include "shell/ShellFixture.h"

namespace vexora::test {

namespace {

const std::string Head = "^A & O B & & & & ::Method:STATBOMB:\n";
const std::string Reactions =
    "^L 65850 NNNNN &\n^S 1 cm;;99.9m%,gc\n"
    "^Q CMO 65850 7782447 124389 7732185 Y N & & & & & &\n" +
    Head +
    "^c -1 -7.5 7 3 0 0 0 0 HR Z 65850 1 C G G L & & & & 1 & & & & & & & M & & & & & & & "
    "0.5 0 0 0 0 0 0 0 & P 298.15 3000 298.15 101.325 -26434 & & &\n"
    "^X 0 HR & - & & & - & & & + 95 5 - & & - & & &\n"
    "^Q OTH 10544726 10102440 999999994 999999994 N Y & & & & & &\n"
    "^A & O & & & & & &\n"
    "^H -1 2 0 0 0 0 & & & & & & KP S 1 Y & & & T C XI1 S & & & & G 12 & & & & & & P 101.325 & & & "
    "& "
    "& &\n^d 25 0.5 0.146 &\n^d 35 0.5 0.32 &\n^M 0\n";

} // namespace

class ReactionViews : public ShellFixture {
protected:
    clsQ& Reaction(std::size_t position) {
        return *Globals().recR.Item(std::size_t{1})->recQ.Item(position);
    }
};

TEST_F(ReactionViews, ThePaneReadsReactionsAndTheirDataInWords) {
    ASSERT_TRUE(Start(WriteDocument(Reactions)));
    EXPECT_EQ(
        LinesOf(ReadingHtml(&Reaction(1))),
        "benzoic acid + 7.5 oxygen = 7 carbon dioxide + 3 water\n"
        "Class: Combustion with oxygen\nbenzoic acid: C7H6O2\noxygen: O2\n"
        "carbon dioxide: CO2\nwater: H2O\nHolds: 1 property change, 0 equilibria\n"
        "Molar enthalpy of reaction: -26434 J/g of benzoic acid \u00B1 5 (95 % confidence)\n");
    EXPECT_EQ(
        LinesOf(ReadingHtml(Reaction(1).recC.Item(std::size_t{1}).get())),
        "Molar enthalpy of reaction\n"
        "Reaction: benzoic acid (Crystal) + 7.5 oxygen (Gas) = 7 carbon dioxide (Gas) + 3 "
        "water (Liquid)\n"
        "Value: -26434 J/g of benzoic acid \u00B1 5 (95 % confidence)\n"
        "In system units: -3228.2 kJ/mol\n"
        "Initial state: 298.15 K, 3000 kPa\nFinal state: 298.15 K, 101.325 kPa\n"
        "Standard state: Pure compound\nSample of benzoic acid: 1\n"
        "Molality - amount of participant per mass of solvent, mol/kg (benzoic acid): 0.5\n"
        "Method: Static bomb calorimetry\nPurpose: Principal objective of the work\nSet: 1\n");
    EXPECT_EQ(LinesOf(ReadingHtml(Reaction(2).recE.Item(std::size_t{1}).get())),
              "Equilibrium constant in terms of partial pressure\n"
              "Reaction: dinitrogen tetroxide = 2 nitrogen dioxide\n"
              "Against temperature: 25 to 35 C\n"
              "Against initial mole fraction of dinitrogen tetroxide: 0.5\n"
              "Values: 0.146 to 0.32\nRows: 2\n"
              "Temperature, C Initial mole fraction of dinitrogen tetroxide Value\n"
              "25 0.5 0.146\n35 0.5 0.32\nData are: Experimental values\n"
              "Constant pressure: 101.325 kPa\n"
              "Gas: dinitrogen tetroxide, nitrogen dioxide\nSet: 1\n"
              "Still missing\nA statement of uncertainty\n");
    ClickNode("^E: Equilibrium constant in terms of partial pressure (1, Set 1)");
    EXPECT_EQ(Globals().CurrentKey, "RQE");
    EXPECT_EQ(CurrentSet(), Reaction(2).recE.Item(std::size_t{1}));
}

TEST_F(ReactionViews, TheSearchKnowsParticipantsClassesAndVariables) {
    ASSERT_TRUE(Start(WriteDocument(Reactions)));
    const std::string combustion = "benzoic ac|", constant = "^E: Equili|",
                      enthalpy = "^C: Molar |";
    const std::pair<const char*, std::string> cases[] = {
        {"combustion", combustion}, {"10102-44-0", "dinitrogen|nitrogen d|"},
        {"bomb", enthalpy},         {"-26434", enthalpy},
        {"initial", constant},      {"0.1..0.2", constant}};
    for (const auto& [words, found] : cases)
        EXPECT_EQ(Found(words), found) << words;
}

TEST_F(ReactionViews, DifferencesNameTheFieldsOfTheirLines) {
    ASSERT_TRUE(Start(WriteDocument(Reactions)));
    const Outline before = OutlineOfDocument();
    clsC& value = *Reaction(1).recC.Item(std::size_t{1});
    value.PARTICIPANT_PHASE(4, "G");
    value.FINAL_PRESSURE = "100";
    value.MassOf("");
    clsE& set = *Reaction(2).recE.Item(std::size_t{1});
    set.COMPONENTS_IN_PHASE(1, "1");
    set.CNVARVALUE(1, "100");
    std::string told;
    for (const Difference& difference : DifferencesOf(before, OutlineOfDocument()))
        told += difference.what + ": " + difference.before + " -> " + difference.after + "\n";
    EXPECT_EQ(told, "participant of the mass: 65850 -> S\n"
                    "phase 4: L -> G\n"
                    "final pressure: 101.325 -> 100\n"
                    "participants in phase 1: 12 -> 1\n"
                    "value of constant 1: 101.325 -> 100\n");
}

} // namespace vexora::test
