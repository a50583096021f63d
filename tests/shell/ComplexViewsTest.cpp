#include "records/DocumentCheck.h"
#include "records/clsBP.h"
#include "records/clsComplex.h"
#include "records/clsComplexSample.h"
#include "records/clsCrS.h"
#include "reference/Text.h"
#include "shell/BioShellFixture.h"
#include "shell/ReadingPane.h"

#include <tuple>
#include <utility>

namespace vexora::test {

class ComplexViews : public ShellFixture {
protected:
    ComplexViews() { WriteText(path_, HydrateDocument()); }
    static clsComplex& Hydrate() {
        return *Globals().recR.Item(std::size_t{1})->recComplex.Item(std::size_t{1});
    }
    static clsComplexSample& Sample() { return *Hydrate().recS.Item(std::size_t{1}); }
    static clsBP& Equilibrium() { return *Sample().recBP.Item(std::size_t{1}); }
    /// What the check says of the complex and of all below it.
    static std::string Checked() {
        std::string found;
        for (const DocumentFinding& one : CheckDocument()) {
            const bool isOfComplex = one.record == &Hydrate() || one.record == &Sample() ||
                                     one.record == &Equilibrium() ||
                                     dynamic_cast<const clsCrS*>(one.record);
            if (isOfComplex)
                found += std::string(SeverityWord(one.severity)) + ": " + one.text + "\n";
        }
        return found;
    }

    std::string path_ = folder.Path("hydrate.txt");
};

TEST_F(ComplexViews, ThePaneReadsComplexesSamplesAndStructures) {
    ASSERT_TRUE(Start(path_));
    EXPECT_EQ(LinesOf(ReadingHtml(&Hydrate())),
              "Gas Hydrate (methane + water)\nType: Gas Hydrate\n"
              "Enclathrated species: methane, CH4, mole fraction 0.148\n"
              "Water: water, H2O, sample 1, mole fraction 0.852\n"
              "Formula: (CH4)0.148(H2O)0.852\nMolar mass: 17.723144 g/mol\nSamples: 1\n");
    EXPECT_EQ(LinesOf(ReadingHtml(&Sample())),
              "Sample 1\nComplex: Gas Hydrate (methane + water)\n"
              "methane: mole fraction 0.148\nwater: mole fraction 0.852, sample 1\n"
              "Formula: (CH4)0.148(H2O)0.852\nMolar mass: 17.723144 g/mol\n"
              "Prepared at: 275 K, 5000 kPa\nPrepared by: Bubbling\nEntered: 1/15/2026\n"
              "Holds: 0 single values, 1 data set, 1 phase equilibrium, 1 crystal structure\n"
              "Density: 2 rows\n");
    EXPECT_EQ(LinesOf(ReadingHtml(&Equilibrium())),
              "Gas Hydrate Data Set # 1: Phase Equilibrium\nPhases: Liquid, Crystal sI, Gas\n"
              "Gas: methane, CH4\nWater: water, H2O, sample 1\n"
              "Pressure (Gas): 2.76 to 2.90 MPa \u00B1 1%\n"
              "Against temperature (Liquid): 273.7 to 274.3 K \u00B1 0.1\nRows: 2\n"
              "Pressure (Gas), MPa Temperature (Liquid), K\n2.76 273.7\n2.90 274.3\n"
              "Method: Last crystal\nPurpose: Principal objective of the work\n"
              "Entered: 1/15/2026\n");
    EXPECT_EQ(
        LinesOf(ReadingHtml(Sample().recCrS.Item(std::size_t{1}).get())),
        "Crystal Structure # 1\nSpace group: Pm-3n, cubic, no. 223\na: 11.877 \u00B1 0.003 \u00C5\n"
        "b: 11.877 \u00C5\nc: 11.877 \u00C5\nalpha: 90 degrees\nbeta: 90 degrees\n"
        "gamma: 90 degrees\nVolume of the cell: 1675.4 \u00C5\u00B3\nDistance O-O: 2.75 \u00B1 "
        "0.01 \u00C5\n"
        "O at: 0.5, 0, 0.25, occupancy 1\nMethod: Powder neutron diffraction\n");
}

TEST_F(ComplexViews, TheCheckNamesWhatDoesNotFit) {
    ASSERT_TRUE(Start(path_));
    EXPECT_EQ(Checked(), "");
    Hydrate().Components[0].content = {"0.5", "X"};
    Hydrate().Components[1].function.clear();
    Sample().Components[0].content = {"1.5", "X"};
    Sample().Components[1].content = {"2", "n"};
    Sample().PrepT = "-3";
    clsCrS& structure = *Sample().recCrS.Item(std::size_t{1});
    structure.SpaceGroup.clear();
    structure.B = "x";
    structure.Method.clear();
    structure.Atoms[0].Atom = "Xe";
    structure.Atoms[0].Occ = "1.1";
    structure.Atoms[0].XX = "half";
    structure.Atoms[0].ZZ.clear();
    structure.Distances[0].DD = "0";
    const std::string complex = "Complex Gas Hydrate (methane + water)",
                      sample = "Sample 1 of Gas Hydrate (methane + water)",
                      crystal = "Crystal Structure # 1";
    EXPECT_EQ(Checked(), "warning: " + complex + ": no function of water is stated\nwarning: " +
                             complex + ": the mole fractions add up to 1.352\nerror: " + sample +
                             ", content of methane: value 1.5 is not valid\nwarning: " + sample +
                             ": mole fractions and moles stand together\nerror: " + sample +
                             ": invalid preparation temperature -3\nwarning: " + crystal +
                             ": no space group is stated\nerror: " + crystal +
                             ", b: this is no number: x\nwarning: " + crystal +
                             ": the cell is incomplete\nerror: " + crystal +
                             ", atom 1: unknown atom Xe\nerror: " + crystal +
                             ", atom 1, x: this is no number: half\nerror: " + crystal +
                             ", atom 1: no z is stated\nerror: " + crystal +
                             ", atom 1: invalid occupancy 1.1\nerror: " + crystal +
                             ", distance 1: value 0 is not valid\nwarning: " + crystal +
                             ": no method is stated\n");
}

TEST_F(ComplexViews, TheCheckKnowsThePhasesAndQuantitiesOfAHydrate) {
    const std::string phases = "BH G 1 & & L CS1 G &",
                      name = "Gas Hydrate Data Set # 1: Phase Equilibrium";
    const std::tuple<std::string, std::string, std::string> cases[] = {
        {phases, "BH G 1 & & L CS1 L &", "error: " + name + ": a phase stands twice: Liquid\n"},
        {phases, "BH G 1 & & & & & &", "error: No phase is given\n"},
        {phases, "BH G 1 & & Q9 CS1 G &", "error: Unknown phase Q9\n"},
        {"BV P MPa G", "BV KM 1 G", "error: " + name + ": unknown property KM\n"},
        {"BD 2.90 274.3", "BD 2.90 -3",
         "error: " + name + ", temperature (Liquid): row 2: value -3 is not valid\n"},
        {"BM Last crystal\n", "", "warning: " + name + ": no method is stated\n"}};
    ASSERT_TRUE(Start(path_));
    for (const auto& [from, to, told] : cases) {
        std::string text = HydrateDocument();
        WriteText(path_, text.replace(text.find(from), from.size(), to));
        Globals().Saved = true;
        Shell().tvwTree.UserDrop(path_);
        EXPECT_EQ(Checked(), told) << to;
    }
}

TEST_F(ComplexViews, GroupAndCellOfAStructureAreHeldAgainstEachOther) {
    ASSERT_TRUE(Start(path_));
    const std::tuple<const char*, const char*, const char*, const char*> cases[] = {
        {"Pm3n", "90", "Pm3n, cubic, no. 223|", ""},
        {"Fd-3m", "91", "Fd-3m, cubic, no. 227|Not cubic: beta is not 90|",
         "not cubic: beta is not 90"},
        {"P21/n", "91", "P21/n, monoclinic, in another setting|", ""},
        {"Q9", "90", "Q9, none of the 230 symbols|", "unknown space group Q9"},
        {"P1", "190", "P1, triclinic, no. 1|These constants close no cell|",
         "these constants close no cell"}};
    clsCrS& structure = *Sample().recCrS.Item(std::size_t{1});
    for (const auto& [group, beta, read, told] : cases) {
        structure.SpaceGroup = group;
        structure.Beta = beta;
        std::string shown;
        for (const std::string& line : Split(LinesOf(ReadingHtml(&structure)), '\n'))
            for (const std::string what : {"Space group: ", "Contradiction: "})
                if (line.starts_with(what)) shown += line.substr(what.size()) + "|";
        EXPECT_EQ(shown, read);
        const std::string words = told;
        EXPECT_EQ(Checked(),
                  words.empty() ? "" : "warning: Crystal Structure # 1: " + words + "\n");
    }
}

TEST_F(ComplexViews, ASampleWithAForeignComponentIsShownInsteadOfSaved) {
    ASSERT_TRUE(Start(path_));
    const std::string before = FileText(path_);
    Sample().Components[0].RN = "50997";
    Globals().Saved = false;
    desktop.Expect("Complex sample composition does not correspond to the system definition");
    Shell().Save();
    EXPECT_EQ(FileText(path_), before);
    EXPECT_FALSE(Globals().Saved);
    EXPECT_EQ(Shell().tvwTree.SelectedNode(), Sample().tNode);
    EXPECT_EQ(Globals().CurrentKey, "RXS");
}

TEST_F(ComplexViews, TheSearchKnowsComponentsAndStructures) {
    ASSERT_TRUE(Start(path_));
    const std::pair<const char*, std::string> cases[] = {
        {"enclathrated", "Gas Hydrat|"}, {"74-82-8 bubbling", "Gas Hydrat|"},
        {"pm-3n", "Crystal St|"},        {"11.877", "Crystal St|"},
        {"neutron", "Crystal St|"},      {"2.7..2.8", "Gas Hydrat|Crystal St|"}};
    for (const auto& [words, found] : cases)
        EXPECT_EQ(Found(words), found) << words;
}

} // namespace vexora::test
