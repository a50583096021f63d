#include "records/clsM.h"

#include "records/MixtureLetters.h"
#include "records/Outline.h"
#include "records/RoundTripFixture.h"
#include "records/clsMV.h"
#include "records/clsMZ.h"

#include <map>

namespace vexora {
namespace {

const std::string Head = "\n^R 1932 car lew 1\n"
                         "^L 64175 NNNNN &\n^S 1 ns\n"
                         "^L 67663 NNNNN &\n^S 1 ns\n"
                         "^L 7732185 NNNNN &\n^S 1 ns\n";

class MixtureTest : public test::RoundTripFixture {
protected:
    clsR& Source() const { return *globals.recR.Item(std::size_t{1}); }
    clsM& Mixture(std::size_t position = 1) const { return *Source().recM.Item(position); }
    clsMV& MixtureSet(std::size_t position = 1) const { return *Mixture().recMV.Item(position); }
};

TEST_F(MixtureTest, LettersFollowClassAndPhases) {
    const auto letters = [](const std::vector<std::string>& phases) {
        std::string text;
        for (const char* const one : {"NN", "EE", "DD", "HH", "PP"}) {
            const std::string letter = MixtureLetter(one, PhaseCounts::Of(phases));
            text += letter.empty() ? "-" : letter;
        }
        return text;
    };
    EXPECT_EQ(letters({"L"}), "NeVL-");
    EXPECT_EQ(letters({"G"}), "NEVL-");
    EXPECT_EQ(letters({"C"}), "nevls");
    EXPECT_EQ(letters({"L", "G"}), "NedhP");
    EXPECT_EQ(letters({"G", "L"}), "NEDHP");
    EXPECT_EQ(letters({"L1", "L2"}), "NedhS");
    EXPECT_EQ(letters({"Cp1", "L"}), "nedhs");
    EXPECT_EQ(letters({"L", "Cp1", "air"}), "NedhP");
    EXPECT_EQ(letters({"FL", "G"}), "NedhP");
    EXPECT_EQ(letters({"FL", "L"}), "NedhP");
    EXPECT_EQ(letters({"VG", "L"}), "nedhs");
    EXPECT_EQ(letters({"CUL", "L1", "L2"}), "NedhS");
}

TEST_F(MixtureTest, LettersOfCompoundsTellOfMixturesWithData) {
    const std::string binary =
        "^B 64175 7732185 &\n^A & O\n^1 1 1 VDN S DIR 1 Y L T 300 P 101 X1 S\n"
        "^z 1 1 TA S 1 L & & & 351 & & &\n";
    const std::string ternary =
        "^T 64175 67663 7732185 &\n^A & O\n^1 1 1 1 X1 S DIR 1 Y L G & T 300 P 101 X2 S\n";
    const auto letters = [this] {
        std::string text;
        for (const auto& compound : Source().recL)
            text += compound->SYSTYPES + " ";
        for (const auto& mixture : Source().recM)
            text += mixture->REFPRP + " ";
        return text + Source().PRPCLASS;
    };
    LoadAndSave(Head + binary);
    EXPECT_EQ(letters(), "NDNNN NNNNN NDNNN PV PV");
    LoadAndSave(Head + "^B 64175 67663 &\n" + ternary);
    EXPECT_EQ(letters(), "NNDNN NNDNN NNDNN & P P");
}

TEST_F(MixtureTest, WhatDoesNotFitIsToldOnce) {
    Read(Head + "^B 64175 7732185 &\n^1 1 1 T S DIR 1 Y L P 101 & & X1 S\n"
                "^1 1 1 VDN S DIR 1 Y G L1 & L2 & X1 S\n^1 1 1 VDN S DIR 2 Y Cp1 Cp2 & C & X1 S\n");
    const std::vector<std::string> told = Source().PrepareOutput();
    ASSERT_EQ(told.size(), 2U);
    EXPECT_EQ(told[0], "Phase error\niSolid = 0\niLiquid = -1\niGas = 0\nnPhases = 1\n" +
                           MixtureSet().ShowKey());
    EXPECT_EQ(told[1].substr(0, told[1].find('\n')), "Unrecognized Context");
    EXPECT_TRUE(Source().PrepareOutput().empty());
}

TEST_F(MixtureTest, EveryComponentIsACompound) {
    desktop.Expect("1932 car lew 1\nComponent of mixture not described: 71432");
    Read(Head + "^B 64175 71432 &\n");
    Source().SOURCEDOC = "O";
    const auto benzene = Source().FindL("71432");
    ASSERT_TRUE(benzene);
    EXPECT_EQ(benzene->Name + " " + benzene->SYSTYPES + " " + benzene->REFPROP, "benzene NNNNN &");
    EXPECT_EQ(Mixture().Mixture(), "ethanol + benzene");
    EXPECT_FALSE(Mixture().CheckSamples());
    EXPECT_EQ(Source().FindM("ethanol + benzene").get(), &Mixture());
    EXPECT_EQ(Source().FindM(""), nullptr);
    // The mixture has no data and leaves no line; its compounds do.
    const std::string saved = DocumentAsRecords();
    EXPECT_NE(saved.find("^L 71432 NNNNN &\n"), std::string::npos);
    EXPECT_EQ(saved.find("^B"), std::string::npos);
}

TEST_F(MixtureTest, LongNamesOfATernaryAreShortened) {
    Read(Head + "^T 64175 67663 7732185 &\n");
    const auto named = [this](const char* one, const char* other, const char* third) {
        const char* const names[] = {one, other, third};
        for (std::size_t n = 0; n < 3; ++n)
            Source().recL.Item(n + 1)->Name = names[n];
        return Mixture().Abbreviate(1);
    };
    EXPECT_EQ(named("water", "x", "y"), "water");
    EXPECT_EQ(named("octadecanoic acid", "ethanol", "water"), "octade...aci");
    EXPECT_EQ(named("octadecanoic acid", "octadecanol-1", "water"), "octadecanoi...aci");
    EXPECT_EQ(named("octadecanoic acid", "octadecanoic salt", "water"), "octadecanoic acid");
    EXPECT_EQ(named("hexadecane", "ethanol", "water"), "hexadecane");
}

TEST_F(MixtureTest, PropertiesAreNamedByTheKindOfEquilibrium) {
    Read(Head + "^B 64175 7732185 &\n^1 1 1 T S DIR 1 Y L G & P 101.325 X1 S\n"
                "^1 1 1 T S DIR 2 Y L1 L2 & P 101.325 X1 S\n");
    EXPECT_EQ(MixtureSet(1).ShowKey().substr(0, 37), "^1: Boiling temperature at pressure P");
    EXPECT_EQ(MixtureSet(2).ShowKey().substr(0, 41), "^1: Liquid-liquid equilibrium temperature");
    EXPECT_EQ(Mixture().FindMV(MixtureSet(2).ShowKey()).get(), &MixtureSet(2));
    EXPECT_EQ(Mixture().FindMV(MixtureSet(1).Key()).get(), &MixtureSet(1));
}

// M = 46.069 and 18.015 g/mol.
TEST_F(MixtureTest, TheMolarMassFollowsTheCompositionOfTheMainPhase) {
    const std::string rowByMass = "^d 50 300 4.18 & \n";
    Read(Head +
         "^B 64175 7732185 &\n"
         "^2 1 1 CP Z DIR 1 Y L P 101 W1 S T S\n" +
         rowByMass +                                               // of a variable
         "^1 1 1 CP Z DIR 2 Y L X1 0.5 P 101 T S\n^d 300 4.18 &\n" // of a constraint
         "^1 1 1 CP Z DIR 3 Y L G & X1 0.5 T S\n^d 300 4.18 &\n"   // of the gas alone
         "^2 1 1 CP Z DIR 4 Y L P 101 X1 S T S\n^D 0.5 300 4.18 &\n^d & 1 1 &\n");
    MixtureSet(1).Variables[0].unit = "0.01"; // per cent
    const auto mass = [this](std::size_t set, std::size_t row) {
        return MixtureSet(set).MolarMass(*MixtureSet(set).recData.Item(row));
    };
    EXPECT_NEAR(mass(1, 1), 1 / (0.5 / 46.069 + 0.5 / 18.015), 1e-3);
    EXPECT_NEAR(mass(2, 1), (46.069 + 18.015) / 2, 1e-3);
    EXPECT_EQ(mass(3, 1), 0);
    EXPECT_NEAR(mass(4, 1), (46.069 + 18.015) / 2, 1e-3);
    EXPECT_EQ(mass(4, 2), 0);
    // A copy reckons by itself, and a definition that changes is looked at anew.
    const auto copy = std::static_pointer_cast<clsMV>(MixtureSet(2).Copy());
    copy->Constraints[0].value = "1";
    EXPECT_NEAR(copy->MolarMass(*copy->recData.Item(1)), 46.069, 1e-3);
    EXPECT_NEAR(mass(2, 1), (46.069 + 18.015) / 2, 1e-3);
}

TEST_F(MixtureTest, AnOutlineNamesTheFieldsOfMixtures) {
    Read(Head +
         "^T 64175 67663 7732185 &\n^2 1 1 1 VDN S DIR 3 Y L P 101 L2 -1 X1 S T C E & & & & S\n"
         "^z 1 1 1 TE S 2 L Cp1 & & & 240 & & &\n");
    const Outline document = OutlineOfDocument();
    const Outline& outline = document.children.at(3);
    EXPECT_EQ(outline.fields[3].first + "=" + outline.fields[3].second, "third component=7732185");
    const auto fieldsOf = [&](std::size_t child) {
        std::map<std::string, std::string> fields;
        for (const auto& [name, text] : outline.children[child].fields)
            fields[name] = text;
        return fields;
    };
    auto value = fieldsOf(0);
    EXPECT_EQ(value["sample 3"] + value["phase 2"] + value["phase 5"] + value["value"], "1Cp1&240");
    auto set = fieldsOf(1);
    EXPECT_EQ(set["constraint 2"] + set["value of constraint 2"] + set["unit of variable 2"] +
                  set["solvent"] + set["reference phase"],
              "L2-1CES");
}

} // namespace
} // namespace vexora
