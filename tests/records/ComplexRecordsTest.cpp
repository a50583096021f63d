#include "records/RoundTripFixture.h"
#include "records/clsBP.h"
#include "records/clsComplex.h"
#include "records/clsComplexSample.h"
#include "records/clsCrS.h"
#include "reference/Text.h"

#include <random>

namespace vexora {
namespace {

const std::string Head = "\n^R 1950 cox wag 1\n^J#J#O#J#T##A##S#0####\n"
                         "^L 74828 NNNNN &\n^S 1 ns\n^L 7732185 NNNNN &\n";
const std::string Header = "^A & & & & & & & &\n";
const std::string Hydrate = "CS 1 Gas Hydrate\n"
                            "CC 74828 1 Enclathrated_species 0.148 X\n"
                            "CC 7732185 & Water 0.852 X\n"
                            "CE\n";
const std::string Sample = Header + "SB 1\n"
                                    "SS 74828 0.148 X 1\n"
                                    "SS 7732185 0.852 X &\n"
                                    "GH 273.7 2760 & stirred for 3 days\n"
                                    "SE\n";
const std::string DataHeader = "^A & O & & & & & &\n";
const std::string ValueLines = DataHeader + "^z 1 TTR S 1 G & & 287.8 & & &\n";
const std::string TableLines = DataHeader + "^1 1 VDN S DIR 1\tX C & FP S & & &\n"
                                            "^d 273.15 913 &\n^M 0\n";

class ComplexRecords : public test::RoundTripFixture {
protected:
    /// The lines behind the head, after some loads and saves.
    std::string Settled(const std::string& lines) {
        const std::string first = LoadAndSave(Head + lines);
        const auto lostAtFirst = lost;
        EXPECT_EQ(SavedAgain(first), first);
        lost = lostAtFirst;
        const std::size_t at = std::min(first.find("\nCS "), first.find("\n^Q "));
        return at == first.npos ? "" : first.substr(at + 1);
    }
    clsR& Source() const { return *globals.recR.Item(std::size_t{1}); }
    clsComplex& Complex(std::size_t position = 1) const {
        return *Source().recComplex.Item(position);
    }
};

TEST_F(ComplexRecords, AComplexComesBackWithItsSamplesAndAllTheirData) {
    const std::string equilibrium =
        DataHeader +
        "BN 1\n"
        "BP -1 0 1 & Gas_Hydrate_(methane_+_water) -1 (CH4)0.148(H2O)0.852 17.723144 0 "
        "& &\n"
        "BH G 1 & & CS1 L G &\n"
        "BV P MPa & & & P &\nBV T K & & & V &\nBE\nBM &\nBD 2.76 273.7\n";
    const std::string structure = "XB Pm-3n 11.877 & & & & & 0.003 & & & & & Powder method\n"
                                  "XE\nXC C 0 & 0.5 & 0.25 & 1\n";
    const std::string ice = "CS 4 Ice\nCC 7732185 & & 1 n\nCE\n" + Header + "SB 2\nSE\n";
    const std::string reaction = "^Q OTH -1 74828 7732185 999999994 N N & & & & & &\n"
                                 "^q -1 0.148 0.852 & & & & & 1 & & & & & & &\n";
    const std::string lines = Hydrate + Sample + ValueLines + TableLines + equilibrium + structure +
                              Header + "SB 3\nGH & & & &\nSE\n" + ice;
    EXPECT_EQ(Settled(lines + reaction), lines + reaction);
    EXPECT_TRUE(lost.empty());
    EXPECT_EQ(Source().recL.Count(), 2U) << "nothing is made for the number of a complex";
    const clsComplex& hydrate = Complex();
    EXPECT_EQ(hydrate.RN + " " + hydrate.Key() + " " + hydrate.Formula(),
              "-1 RX1 (CH4)0.148(H2O)0.852");
    EXPECT_NEAR(hydrate.MMass(), 0.148 * 16.043 + 0.852 * 18.015, 0.01);
    EXPECT_EQ(Complex(2).Formula(), "(H2O)1");
    EXPECT_EQ(Complex(2).recS.Item(std::size_t{1})->Formula(), "(H2O)1");
    EXPECT_EQ(Source().FindComplex("-4").get(), &Complex(2));
    EXPECT_EQ(Source().FindComplex("4"), nullptr);
    const std::string tree = Tree();
    const std::string shown =
        "  Gas Hydrate (methane + water)\n    Sample 1\n      ^0: Solid-solid transition";
    EXPECT_NE(tree.find(shown), tree.npos) << tree;
    EXPECT_NE(tree.find("  Ice (water)\n    Sample 2\n"), tree.npos) << tree;
}

TEST_F(ComplexRecords, WhatAComplexIsMadeOfIsUsed) {
    Read(Head + Hydrate + Header + "SB 1\nSS 7732185 1 n 2\nSE\n^L 71432 NNNNN &\n");
    EXPECT_TRUE(Source().Names("74828"));
    EXPECT_FALSE(Source().Names("71432"));
    EXPECT_TRUE(Complex().UsesSample("74828", "01"));
    EXPECT_TRUE(Complex().UsesSample("7732185", "2"));
    EXPECT_FALSE(Complex().UsesSample("7732185", "1"));
    const std::string written = DocumentAsRecords();
    EXPECT_NE(written.find("^L 7732185 "), written.npos);
    EXPECT_EQ(written.find("^L 71432 "), written.npos) << "neither used nor new";
    // Contents of two kinds make no molar mass, one that is not known no formula.
    Complex().Components[1].content = {"5.75", "n"};
    EXPECT_EQ(Complex().Formula(), "(CH4)0.148(H2O)5.75");
    EXPECT_EQ(Complex().MMass(), 0);
    Complex().Components[1].content = {};
    EXPECT_EQ(Complex().Formula(), "Error");
    // It leaves and returns, unless its number has been given away.
    const auto complex = Source().recComplex.Item(std::size_t{1});
    const std::size_t place = complex->Leave();
    EXPECT_EQ(NextComplexNumber(Source()), 1);
    EXPECT_TRUE(complex->Return(place));
    EXPECT_FALSE(complex->Return(place));
    const auto sample = complex->recS.Item(std::size_t{1});
    EXPECT_EQ(sample->Leave(), 1U);
    EXPECT_EQ(complex->NextSampleNumber(), 1);
    EXPECT_TRUE(sample->Return(1));
    EXPECT_EQ(complex->NextSampleNumber(), 2);
}

TEST_F(ComplexRecords, ANodeOfAComplexMakesItsPathTheCurrentOne) {
    Read(Head + Hydrate + Sample + ValueLines + TableLines);
    const auto sample = Complex().recS.Item(std::size_t{1});
    const auto keyOf = [this](Record& record) {
        globals.ForgetCurrent();
        globals.CurrentKey.clear();
        record.SetMe();
        return globals.CurrentKey + " " + globals.DataContext;
    };
    EXPECT_EQ(keyOf(*sample->recZ.Item(std::size_t{1})), "RLSZ Complex");
    EXPECT_EQ(keyOf(*sample->recTwo.Item(std::size_t{1})), "RXS1 Complex");
    EXPECT_EQ(globals.CurrentS, sample);
    EXPECT_EQ(globals.CurrentL.get(), &Complex());
    EXPECT_EQ(CurrentCompound(), nullptr) << "a complex is no compound";
    EXPECT_EQ(CurrentCompoundSample(), nullptr);
    EXPECT_EQ(keyOf(*sample), "RXS Complex");
    EXPECT_EQ(keyOf(Complex()), "RX Complex");
}

struct StateCase {
    std::string lines, settled, lost, told;
    int notKept = 0;
};

TEST_F(ComplexRecords, LinesWithoutTheirPlaceAreNamedAndNumbersStayUnique) {
    const std::string end = "^L 74828 NNNNN &\n";
    const StateCase cases[] = {
        // A set still open at the end, or where something else begins, is named.
        {Hydrate.substr(0, Hydrate.size() - 3), "", "1 no line CE closes this complex\n", "", 3},
        {Hydrate.substr(0, Hydrate.size() - 3) + end, "", "1 no line CE closes this complex\n", "",
         3},
        {Hydrate + Header + "SB 1\nSS 74828 1 n &\n" + end, Hydrate,
         "6 no line SE closes this sample\n", "", 2},
        {Header + "SB 1\nSS 74828 1 n &\nGH 1 2 3 4\nSE\n", "",
         "2 no complex stands before this sample\n"
         "3 no sample of a complex stands before this component\n"
         "4 no sample of a complex stands before this preparation\n",
         "", 4},
        {"CS 1 Ice\nCC 7732185 & & 1 n\n" + Header + "SB 1\nSE\n", "",
         "1 no line CE closes this complex\n4 no complex stands before this sample\n", "", 4},
        {"CC 7732185 & & 1 n\nCE\nSE\n", "", "1 no complex stands before this component\n", "", 1},
        // Behind its end a set goes on; a second end says nothing more.
        {"CS 1 Ice\nCE\nCE\nCC 7732185 & & &\n" + Header + "SB 1\nSE\nSE\nSS 7732185 1 n &\n" +
             "GH 200 & & &\n",
         "CS 1 Ice\nCC 7732185 & & &\nCE\n" + Header + "SB 1\nSS 7732185 1 n &\nGH 200 & & &\nSE\n",
         "", ""},
        {Hydrate + Header + "SB 1\nSS 74828 0.148 X 1 more words\nGH 1 2 3 4\nGH 5 6 7 8\nSE\n",
         Hydrate + Header + "SB 1\nSS 74828 0.148 X 1\nGH 5 6 7 8\nSE\n",
         "7 words stand behind the last field\n"
         "9 the preparation is stated once more and takes the place of the one before\n",
         ""},
        {Hydrate + "^A note O E 4 me us 1/2/2026 frozen\nSB 1\nSE\n",
         Hydrate + "^A & & & & me us 1/2/2026 frozen\nSB 1\nGH & & & &\nSE\n",
         "5 the sample of a complex has no note, purpose or flags\n", ""},
        // Data go to the sample that was read last, under the number that it has now.
        {"CS 7 Ice\nCE\nCS 7 Ice\nCE\n" + Header + "SB 2\nSE\n" + Header + "SB 2\nSE\n" +
             Replace(ValueLines, "^z 1", "^z 2"),
         "CS 7 Ice\nCE\nCS 8 Ice\nCE\n" + Header + "SB 2\nSE\n" + Header + "SB 3\nSE\n" +
             Replace(ValueLines, "^z 1", "^z 3"),
         "",
         "The number 7 of a complex is taken and will be changed to 8\n1950 cox wag 1\nIce ()|"
         "The number 2 of a sample is taken and will be changed to 3\n1950 cox wag 1\nIce ()|"},
    };
    const auto before = std::count(Head.begin(), Head.end(), '\n');
    for (const StateCase& one : cases) {
        globals.recR.Clear();
        form.tvwTree.Clear();
        globals.ForgetCurrent();
        for (const std::string& told : Split(one.told, '|'))
            if (!told.empty()) desktop.Expect(told);
        const ReadResult result = ReadDocument(Head + one.lines);
        EXPECT_TRUE(result.whole) << one.lines;
        EXPECT_EQ(result.linesNotKept, one.notKept) << one.lines;
        std::string named;
        for (const LineLost& line : result.lost)
            named += std::to_string(line.line - before) + " " + line.text + "\n";
        EXPECT_EQ(named, one.lost) << one.lines;
        const std::string written = DocumentAsRecords();
        const std::size_t at = written.find("\nCS ");
        EXPECT_EQ(at == written.npos ? "" : written.substr(at + 1), one.settled) << one.lines;
    }
}

TEST_F(ComplexRecords, DataThatNoSampleCanHaveAbandonTheRead) {
    const std::pair<std::string, std::string> cases[] = {
        {"CS x Ice\n", "Incomplete record: CS x Ice"},
        {"CS 1 Ice\nCC water & & &\n", "Incomplete record: CC water & & &"},
        {Hydrate + "SB 0\n", "Incomplete record: SB 0"},
        {Hydrate + "^S 1 ns\n", "Incomplete record: ^S 1 ns"},
        {Hydrate + ValueLines, "1950 cox wag 1\n-1\n^z 1 TTR S 1 G & & 287.8 & & & | "
                               "Sample not specified"},
        // One that has not been closed has no data yet.
        {Hydrate + Header + "SB 1\n" + ValueLines, "1950 cox wag 1\n-1\n"
                                                   "^z 1 TTR S 1 G & & 287.8 & & & | "
                                                   "Sample not specified"},
        {Hydrate + Sample + ValueLines + ValueLines,
         "This property set already exists\n1950 cox wag 1\n-1\n"
         "Sample # 1"},
    };
    for (const auto& [lines, message] : cases) {
        desktop.Expect(message);
        EXPECT_FALSE(ReadDocument(Head + lines).whole) << lines;
    }
}

/// Texts of all kinds that a field may hold, none among them.
class RandomTexts {
public:
    int Below(int count) { return std::uniform_int_distribution<int>(0, count - 1)(engine_); }
    std::string Of(const std::vector<std::string>& texts) {
        return texts[static_cast<std::size_t>(Below(static_cast<int>(texts.size())))];
    }
    std::string Word() {
        std::string text;
        for (int length = Below(3) == 0 ? 0 : 1 + Below(6); length > 0; --length)
            text += Of({"a", "Z", "7", "\u00E4", "-", "\u6C34", "#", "%", "\U0001F9EA", ".", ":"});
        return text;
    }
    std::string Words() { return std::string(Trim(Word() + " " + Word() + " " + Word())); }

private:
    std::mt19937 engine_{20261122};
};

TEST_F(ComplexRecords, EveryLineIsWrittenAsItWasRead) {
    Read(Head);
    RandomTexts random;
    constexpr int count = 2'000;
    for (int n = 1; n <= count; ++n) {
        auto complex = std::make_shared<clsComplex>();
        complex->SetNo(n % 2 == 0 ? n : 2 * count + n);
        complex->CType = n % 3 == 0 ? "Gas Hydrate" : random.Words();
        for (int k = 1 + random.Below(2); k > 0; --k)
            complex->Components.push_back({random.Of({"74828", "7732185"}),
                                           random.Word(),
                                           random.Words(),
                                           {random.Word(), random.Words()}});
        complex->AttachTo(Source());
        auto sample = std::make_shared<clsComplexSample>();
        sample->SetNo(1 + random.Below(50));
        for (int k = 1 + random.Below(2); k > 0; --k)
            sample->Components.push_back({random.Of({"74828", "7732185"}),
                                          {random.Word(), random.Of({"X", "n", ""})},
                                          random.Word()});
        sample->HasPreparation = n % 3 != 0;
        for (std::string* text : {&sample->PrepT, &sample->PrepP, &sample->aComp})
            *text = random.Word();
        sample->Method = random.Words();
        sample->Header.COMPILER = random.Word();
        sample->Header.DATACOMMENT = random.Of({"", "kept cold", "\u6C34 7"});
        sample->AttachTo(*complex);
    }
    const std::string written = DocumentAsRecords();
    const std::vector<std::string> before = Split(written, '\n');
    for (const std::string tag : {"CS", "CC", "CE", "SB", "SS", "GH", "SE"})
        EXPECT_GE(std::ranges::count_if(before, [&](auto& l) { return l.starts_with(tag); }),
                  count);
    const std::vector<std::string> after = Split(SavedAgain(written), '\n');
    // Not as one comparison, whose difference would be as long as the document.
    ASSERT_EQ(after.size(), before.size());
    for (std::size_t i = 0; i < before.size(); ++i)
        ASSERT_EQ(after[i], before[i]);
}

} // namespace
} // namespace vexora
