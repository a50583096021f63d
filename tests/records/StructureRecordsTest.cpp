#include "records/RoundTripFixture.h"
#include "records/clsComplex.h"
#include "records/clsComplexSample.h"
#include "records/clsCrS.h"

#include <random>

namespace vexora {
namespace {

const std::string Head = "\n^R 1998 kuh chi 1\n^J#J#O#J#T##A##S#0####\n"
                         "^L 7732185 NNNNN &\n^S 1 ns\n"
                         "CS 1 Ice\nCC 7732185 1 Water 1 X\nCE\n";
const std::string Sample = "SB 1\nSS 7732185 1 X 1\nSE\n";

class StructureRecords : public test::RoundTripFixture {
protected:
    clsComplexSample& TheSample() const {
        const auto complex = globals.recR.Item(std::size_t{1})->recComplex.Item(std::size_t{1});
        return *complex->recS.Item(std::size_t{1});
    }
    static std::string Lines(const clsCrS& structure) {
        LineWriter out;
        structure.PrintCrS(out);
        return out.Text();
    }
    /// The lines of structures as they stand in a saved document.
    static std::string StructuresIn(const std::string& document) {
        std::string text, line;
        for (std::istringstream lines(document); std::getline(lines, line);)
            if (line.starts_with("X")) text += line + "\n";
        return text;
    }
    std::string LostLines() const {
        std::string text;
        for (const LineLost& one : lost)
            text += std::to_string(one.line - 8) + " " + one.text + "\n";
        return text;
    }
};

TEST_F(StructureRecords, AStructureComesBackAsItWasTyped) {
    const std::string first = "XB P63/mmc 4.497 4.497 7.321 90 90.00 120.0 0.001 & 0.002 & & 0.1 "
                              "Powder neutron diffraction\n"
                              "XD O H 1.00 &\nXD O O 2.75 0.01\nXE\n"
                              "XC O 0.3333 & 0.6667 & 0.0622 0.0001 1\n"
                              "XC H 0.3333 & 0.6667 & 0.199 & 0.50\n";
    const std::string second = "XB & & & & & & & & & & & & & &\nXE\n";
    EXPECT_EQ(StructuresIn(LoadAndSave(Head + Sample + first + second)), first + second);
    EXPECT_EQ(LostLines(), "");
    EXPECT_TRUE(Tree().ends_with("      Crystal Structure # 1\n      Crystal Structure # 2\n"))
        << Tree();
    const clsCrS& structure = *TheSample().recCrS.Item("1CrS");
    EXPECT_EQ(structure.Gamma, 120);
    EXPECT_EQ(structure.dGamma, 0.1);
    EXPECT_EQ(NextStructureNumber(TheSample()), 3);
    TheSample().recCrS.Item("1CrS")->Leave();
    EXPECT_EQ(NextStructureNumber(TheSample()), 3);
}

TEST_F(StructureRecords, TheTextOfTheThirdAngleGoesWithItsNumber) {
    clsCrS structure;
    const struct {
        const char* typed;
        double gamma;
        const char* text;
    } cases[] = {{"90.00", 90, "90.00"},
                 {"0.0", 0, ""},
                 {"", 0, ""},
                 {"?", 0, "?"},
                 {"1.2e2", 120, "1.2e2"}};
    for (const auto& one : cases) {
        structure.GammaText(one.typed);
        structure.DGammaText(one.typed);
        EXPECT_EQ(structure.Gamma, one.gamma);
        EXPECT_EQ(structure.GammaText() + "," + structure.DGammaText(),
                  std::string(one.text) + "," + one.text);
    }
    structure.GammaText("90.00");
    structure.Gamma = 91.5;
    EXPECT_EQ(structure.GammaText(), "91.5");
}

TEST_F(StructureRecords, LinesWithoutTheirPlaceAreNamed) {
    const struct {
        std::string lines, kept, lost;
        int notKept;
    } cases[] = {
        {"XB P1 1\nXD O H 1 &\nXE\n" + Sample, "", "1 no sample of a complex stands before it\n",
         3},
        {Sample + "XC O 0 & 0 & 0 & 1\nXE\n", "", "", 2},
        {Sample + "XB P1 1\nXD O H 1 &\n", "", "4 the structure that begins here has no end\n", 2},
        {Sample + "XB P1 1\nXD O H 1 &\nXB P-1 2\nXE\n", "XB P-1 2 & & & & & & & & & & & &\nXE\n",
         "4 the structure that begins here has no end\n", 2},
        // Behind another system the lines are not those of the sample.
        {Sample + "XB P1 1\nXE\n^L 64175 NNNNN &\nXC O 0 & 0 & 0 & 1\n",
         "XB P1 1 & & & & & & & & & & & &\nXE\n", "", 1},
        {Sample + "XB P1 1\nXC O 0 & 0 & 0 & 1 more\nXE\nXE\nXD O H 1 & more\nXC C 0\n",
         "XB P1 1 & & & & & & & & & & & &\nXD O H 1 &\nXE\nXC O 0 & 0 & 0 & 1\n"
         "XC C 0 & & & & & &\n",
         "5 words stand behind the last field of an atom\n"
         "8 words stand behind the last field of a distance\n",
         0},
    };
    for (const auto& one : cases) {
        form.tvwTree.Clear();
        globals.recR.Clear();
        globals.ForgetCurrent();
        const ReadResult result = ReadDocument(Head + one.lines);
        ASSERT_TRUE(result.whole) << result.fault;
        lost = result.lost;
        std::string named = LostLines();
        EXPECT_EQ(named, one.lost) << one.lines;
        EXPECT_EQ(result.linesNotKept, one.notKept) << one.lines;
        EXPECT_EQ(StructuresIn(DocumentAsRecords()), one.kept) << one.lines;
    }
}

/// What goes in comes out again, byte for byte, for all that a form or a file may have brought.
TEST_F(StructureRecords, RandomStructuresComeBackToTheByte) {
    std::mt19937 random(11);
    const auto of = [&](std::initializer_list<const char*> texts) {
        return std::string(texts.begin()[random() % texts.size()]);
    };
    const auto number = [&] {
        return of({"", "0", "0.00", "90", "90.00", "-.5", "1e-3", "12.", "5,8", "x", "&", "_",
                   "a b", "0012", "1.50E+2", "11.877(3)", "\t", "\u00C5"});
    };
    for (int round = 0; round < 2000; ++round) {
        clsCrS structure;
        structure.SpaceGroup = of({"", "P63/mmc", "P 63/m m c", "Pm-3n", "&", "P_1", "own text"});
        for (std::string* field :
             {&structure.A, &structure.B, &structure.C, &structure.Alpha, &structure.Beta,
              &structure.dA, &structure.dB, &structure.dC, &structure.dAlpha, &structure.dBeta})
            *field = number();
        structure.GammaText(number());
        structure.DGammaText(number());
        structure.Method = of({"", "&", "Other method", "two  blanks", " edge ", "a_b", "XE"});
        structure.Distances.resize(random() % 3);
        structure.Atoms.resize(random() % 3);
        for (CrystalDistance& row : structure.Distances)
            for (const auto field : DistanceFields)
                row.*field = number();
        for (CrystalAtom& row : structure.Atoms)
            for (const auto field : AtomFields)
                row.*field = number();
        const std::string written = Lines(structure);
        clsCrS read;
        std::string line;
        for (std::istringstream lines(written); std::getline(lines, line);) {
            const std::string tag = line.substr(0, 2);
            if (tag == "XB") read.Load(line);
            const bool isWhole = (tag != "XD" || read.LoadDistance(line)) &&
                                 (tag != "XC" || read.LoadAtom(line));
            EXPECT_TRUE(isWhole) << line;
        }
        ASSERT_EQ(Lines(read), written);
        ASSERT_EQ(Lines(*read.Copy()), written);
    }
}

} // namespace
} // namespace vexora
