#include "shell/DocumentText.h"

#include "records/clsAuthor.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "records/clsTwo.h"
#include "records/clsZ.h"
#include "support/DocumentFixture.h"

namespace vexora {
namespace {

const std::string kWater = "^R 2002 wag pru 1\n^L 7732185 NNNNN &\n^S 1 cm;;99.9m%,gc\n";
const std::string kPlace = "2002 wag pru 1\n7732185\n";

class Reader : public test::DocumentFixture {
protected:
    /// Reads a document that must be refused with this message.
    void ExpectRefused(const std::string& text, const std::string& message, int line) {
        desktop.Expect(message);
        ExpectAbandoned(text, line);
    }
    void ExpectAbandoned(const std::string& text, int line) {
        globals.Saved = false;
        const ReadResult result = ReadDocument(text);
        EXPECT_FALSE(result.whole) << text;
        EXPECT_EQ(result.faultLine, line) << text;
        EXPECT_NE(result.fault, "");
        EXPECT_TRUE(globals.Saved);
        EXPECT_TRUE(globals.recR.IsEmpty());
        EXPECT_EQ(Tree(), "");
        EXPECT_EQ(globals.CurrentR, nullptr);
        EXPECT_EQ(desktop.HourglassDepth(), 0);
    }
    static std::string Named(const ReadResult& result) {
        std::string text;
        for (const LineLost& lost : result.lost)
            text += std::to_string(lost.line) + " " + lost.text + "\n";
        return text;
    }
    ReadResult Read(const std::string& text) {
        const ReadResult result = ReadDocument(text);
        EXPECT_TRUE(result.whole) << result.faultLine << ": " << result.fault;
        return result;
    }
};

TEST_F(Reader, BuildsTheTreeOfTheDocument) {
    Read(kWater + "^z 1 TC S 1 L G & 647.096 & & &\n^A & & & & & & & good ::Method:X:dTC:1:\n"
                  "^f 1 VDN C 2 L 25 C 997 & & &\n^L 1003 NNNNN &\n^N 1003 & caffeine\n"
                  "^L 1014 NNNNN &\n");
    EXPECT_EQ(Tree(), "2002 wag pru 1\n"
                      "  water\n"
                      "    Sample 1 (cm;;99.9m%,gc)\n"
                      "      ^0: Critical temperature (L+G,K), Set 1\n"
                      "      ^F: " +
                          Globals()
                              .recR.Item(std::size_t{1})
                              ->recL.Item(std::size_t{1})
                              ->recS.Item(std::size_t{1})
                              ->recZ.Item(std::size_t{2})
                              ->ShowKey()
                              .substr(4) +
                          "\n  caffeine\n  1014\n");
    EXPECT_EQ(globals.CurrentKey, "");
}

TEST_F(Reader, ClickingALeafMakesItsWholePathCurrent) {
    Read(kWater + "^z 1 TC S 1 L G & 647.096 & & &\n");
    globals.ForgetCurrent();
    globals.DataContext.clear();
    const auto source = globals.recR.Item(std::size_t{1});
    const auto water = source->FindL("7732185");
    const auto value = water->recS.Item(std::size_t{1})->recZ.Item(std::size_t{1});
    value->SetMe();
    EXPECT_EQ(globals.CurrentKey, "RLSZ");
    EXPECT_EQ(globals.DataContext, "Pure");
    EXPECT_EQ(globals.CurrentZ, value);
    EXPECT_EQ(globals.CurrentS, value->Parent->As<clsS>());
    EXPECT_EQ(globals.CurrentL, water);
    EXPECT_EQ(globals.CurrentR, source);
    EXPECT_EQ(value->tNode->Tag.lock(), value);
}

TEST_F(Reader, BadRecordsDropTheWholeRead) {
    const std::string tc = "^z 1 TC S 1 L G & 647.096 & & &\n";
    ExpectRefused("^L 7732185 NNNNN &\n", "Incomplete record: ^L 7732185 NNNNN &", 1);
    ExpectRefused("^R 2002 wag pru 1\n^L 7732185 NNNNN\n", "Incomplete record: ^L 7732185 NNNNN",
                  2);
    ExpectRefused("^R 2002 wag pru 1\n^L\n", "Incomplete record: ^L", 2);
    ExpectRefused("^R 2002 wag pru 1\n^S 1 ns\n", "Incomplete record: ^S 1 ns", 2);
    ExpectRefused(kWater + "^z 1 TC S 1 L G &\n", "Incomplete record: ^z 1 TC S 1 L G &", 4);
    ExpectRefused(kWater + tc + "\n" + tc,
                  "This property set already exists\n" + kPlace + "Sample # 1", 6);
    ExpectRefused(kWater + "^z 2 TC S 1 L G & 647.096 & & &\n",
                  kPlace + "^z 2 TC S 1 L G & 647.096 & & & | Sample not specified", 4);
    ExpectRefused("^R 2002 wag pru 1\n^L 7732185 NNNNN &\n" + tc,
                  kPlace + "^z 1 TC S 1 L G & 647.096 & & & | Sample not specified", 3);
    for (const std::string number : {"0", "10000", "1a", "1.5", "-1", "&"})
        ExpectRefused("\n^R 2002 wag pru " + number + "\n",
                      "Invalid reference identification\n2002 wag pru " + number, 2);
    desktop.Expect("Invalid reference identification\n2002 wag & ");
    ExpectRefused("^R 2002 wag\n", "Incomplete record: ^R 2002 wag", 1);
    EXPECT_FALSE(desktop.Ended());
}

TEST_F(Reader, ARegistryNumberThatIsNoNumberEndsTheProgram) {
    ExpectRefused(kWater + "^L water NNNNN &\n", "RN = water | Invalid RN", 4);
    EXPECT_TRUE(desktop.Ended());
}

TEST_F(Reader, AWrongCheckDigitIsMendedForTheWholeRead) {
    desktop.Expect("Old RN = 1004\nNew RN = 1003 | Control digit in RN will be corrected\n"
                   "Please review the data!");
    desktop.Expect("RN was corrected: from 1015 to 1014");
    Read("^R 2002 wag pru 1\n^L 1004 NNNNN &\n^N 1004 CH4O one\n^L 1014 NNNNN &\n"
         "^N 1015 C2H6O two\n");
    const auto source = globals.recR.Item(std::size_t{1});
    EXPECT_EQ(source->FindL("1003")->Name, "one");
    EXPECT_NEAR(source->FindL("1003")->MMass, 32.042, 1e-3);
    EXPECT_EQ(source->FindL("1014")->Name, "two");
    EXPECT_FALSE(globals.Saved);
}

TEST_F(Reader, BothFormsOfTheCorrectionLineAreRead) {
    const std::pair<const char*, const char*> cases[] = {
        {"^N 1003 C2H6O an alcohol", "C2H6O an alcohol"},
        {"^N old 1003 C2H6O an alcohol", "C2H6O an alcohol"},
        {"^N 99 1003 C2H6O an alcohol", "C2H6O an alcohol"},
        {"^N 1003 & 2-propanol", " 2-propanol"},
        {"^N 1014 C2H6O not entered", " "}};
    for (const auto& [line, result] : cases) {
        globals.recR.Clear();
        form.tvwTree.Clear();
        Read(std::string("^R 2002 wag pru 1\n^L 1003 NNNNN &\n") + line + "\n");
        const auto compound = globals.recR.Item(std::size_t{1})->FindL("1003");
        EXPECT_EQ(compound->Formula + " " + compound->Name, result) << line;
    }
}

TEST_F(Reader, RepeatedHeadsAddToWhatIsThere) {
    Read("^R 2002 wag pru 1\n^I#1#x#y#Name,N.\n^L 7732185 NNNNN &\n^S 1 first\n^L 64175 NNNNN &\n"
         "^S 1 other\n^R 2002 wag pru 1\n^I#1#x#y#Name,N.\n^L 7732185 NNNNN &\n^S 1 again\n"
         "^z * TC S 1 L G & 647 & & &\n^z S7 PC S 1 L G & 22 & & &\n^S 02 second\n");
    EXPECT_EQ(globals.recR.Count(), 1U);
    const auto source = globals.recR.Item(std::size_t{1});
    EXPECT_EQ(source->recAuthor.Count(), 1U);
    EXPECT_EQ(source->recL.Count(), 2U);
    const auto water = source->FindL("7732185");
    EXPECT_EQ(water->recS.Count(), 2U);
    EXPECT_EQ(water->FindS(1)->SMPDESC, "first");
    EXPECT_EQ(water->FindS(1)->recZ.Count(), 2U);
    EXPECT_EQ(water->FindS(2)->SMPDESC, "second");
    EXPECT_EQ(water->NextSampleNumber(), 3);
    // Two properties in set 1 are two sets; "P1" in set 1 is not "P" in set 11.
    EXPECT_NE(water->FindS(1)->FindZ("TC", 0, "1"), nullptr);
    EXPECT_EQ(water->FindS(1)->FindZ("T", 0, "C1"), nullptr);
    EXPECT_EQ(water->FindS(1)->NextSetNumber("TC", 0), 2);
}

TEST_F(Reader, CompoundsOfTheDatabaseGetNameAndFormulaFromThere) {
    Read("^R 2002 wag pru 1\n^L 64175 NNNNN &\n^L 7732185 NNNNN &\n");
    const auto source = globals.recR.Item(std::size_t{1});
    EXPECT_EQ(source->FindL("64175")->Name, "ethanol");
    EXPECT_EQ(source->FindL("64175")->Formula, "C2H6O");
    EXPECT_NEAR(source->FindL("7732185")->MMass, 18.015, 1e-9);
    EXPECT_FALSE(source->FindL("64175")->isNew);
}

TEST_F(Reader, LinesOfOtherKindsOfDataAreCountedAndLeakNowhere) {
    const std::string foreign = "^A & O & & & & & of the change\n^? 1\n"
                                "^X 0 VDN L + & & 1 - & & & - & & - & & - & & &\n"
                                "^D 298.15 997\n^Y & &\n^M 0\n";
    const std::string hydrate = "CS 1 Hydrate\n^A & & & & & & & of the hydrate\n^M 2\n"
                                "^z 1 TC S 1 L G & 500 & & &\n^M 0\n"
                                "^X 0 TC L + & & 1 - & & & - & & - & & - & & &\n";
    const ReadResult result = Read(kWater + foreign + "^z 1 PC S 1 L G & 22 & & &\n" + hydrate +
                                   "%% unknown\n^L 64175 NNNNN &\n^S 1 ns\n"
                                   "^z 1 TC S 1 L G & 514 & & &\n");
    EXPECT_EQ(result.linesNotKept, 6 + 6 + 1);
    EXPECT_EQ(Named(result), "5 nobody knows this tag: ^? 1\n"
                             "11 no line CE closes this complex\n"
                             "17 nobody knows this tag: %% unknown\n");
    const auto source = globals.recR.Item(std::size_t{1});
    const auto water = source->FindL("7732185")->FindS(1);
    ASSERT_EQ(water->recZ.Count(), 1U);
    EXPECT_EQ(water->recZ.Item(std::size_t{1})->Header.DATACOMMENT, "");
    EXPECT_FALSE(water->recZ.Item(std::size_t{1})->Statements(0).IsStated());
    const auto value = source->FindL("64175")->FindS(1)->recZ.Item(std::size_t{1});
    EXPECT_EQ(value->Factor, 0);
    EXPECT_EQ(value->Header.DATACOMMENT, "");
}

// What follows kWater from line 4 on, and what is named of it.
TEST_F(Reader, WhatASaveWouldLoseIsNamedWithItsLine) {
    const std::string value = "^z 1 TC S 1 L G & 647.1 & & &\n";
    const std::string set = "^1 1 VDN S DIR 1\tY L & FP S & & &\n";
    const std::string stated = "^X 0 TC L - & & & - & & & + 95 0.1 - & & - & & &\n";
    const std::string once = "what is stated here is stated once more in line ";
    const std::string wins = ", which takes its place\n";
    const std::string noUnit = "no value stands in the unit of the factor ";
    const std::string noRecord = "no value or set stands under this header\n";
    const std::string noWord = "words stand behind the last field\n";
    const std::string noMeaning = "words of the statement have no meaning\n";
    const auto header = [](const std::string& comment) {
        return "^A & & & & & & & " + comment + "\n";
    };
    const std::pair<std::string, std::string> cases[] = {
        // Samples, and lines about compounds and sources.
        {"^S 1 cm;;99.9m%,gc\n" + value, ""},
        {"^S 1 another\n^S 01\n", "4 sample 1 is described before, as cm;;99.9m%,gc\n"
                                  "5 sample 01 is described before, as cm;;99.9m%,gc\n"},
        {"^N 1014 C2H6O two\n", "4 no compound 1014 stands before it\n"},
        {"BL 1014 1.2 P & -3 one\nBL 1014 1.2 P & -3 one\nBL 1014 1.2 P & -4 one\n",
         "6 the compound is described before, in another way\n"},
        {"^J#J#O#one\n^J#J#O#one\n^J#J#O#two\n",
         "5 the source is described once more in line 6" + wins},
        // Statements of which the last one holds.
        {value + stated + stated, ""},
        {value + stated + "^X & TC L - & & & - & & & + 95 0.2 - & & - & & &\n",
         "5 " + once + "6" + wins},
        {set + "^X 1 T L - & 1 2 - & & & - & & - & & - & & &\n" + "^X 0 VDN L\n" +
             "^X 1 T L - & 1 3 - & & & - & & - & & - & & &\n",
         "5 " + once + "7" + wins},
        {"^z 1 TC S 1 L G & 200 & 1% 4\n^X 0 TC L - & & & + 0 1% 4 - & & - & & - & & &\n", ""},
        {"^z 1 TC S 1 L G & 200 & 2 4\n^X 0 TC L - & & & + 0 1% 4 - & & - & & - & & &\n", ""},
        {"^z 1 TC S 1 L G & 200 & 3 4\n^X 0 TC L - & & & + 0 1% 4 - & & - & & - & & &\n",
         "4 " + once + "5" + wins},
        {set + "^d 298 997 &\n^Y 1\n^Y 2\n^d 299 996 &\n^Y 1\n", "6 " + once + "7" + wins},
        // Words without a place or a meaning.
        {value + "^X 0 TC L - & & & + 2 0.5 3 - & & - & & - & & &\n", "5 " + noMeaning},
        {value + "^X 0 TC L - & & & + 1 0.5 few - & & - & & - & & &\n", "5 " + noMeaning},
        {value + "^X 0 TC L - & & & - & & & - & & + & & - & & &\n", "5 " + noMeaning},
        {value + "^X 0 TC L - & & & - & & & + 95 0.1 - & & - & & & more\n", "5 " + noMeaning},
        {value + "^X 7 ZZ L whatever it says\n", ""},
        {set + "^d 298 997 & 1\n^d 298 997 & 1 2\n^Y & & & & & & & & & 1\n^g 1 1 2 1 & 1 2\n",
         "6 " + noWord + "8 " + noWord},
        // Factors that change nothing.
        {"^M 1000\n" + value + "^M 0\n", ""},
        {"^M 1000\n^Z 1 PC S 1 L G & 22.1 & & &\n^z 1 PC S 2 L G & 22.1 & & &\n^M 0\n", ""},
        {"^M 1000\n^Z 1 PC S 1 L G & 22.1 & & &\n^M 0\n", "4 " + noUnit + "1000\n"},
        {"^M 1000\n^z 1 PC A 1 L G & 22.1 & & &\n^S 1\n" + value,
         "4 " + noUnit + "1000\n6 sample 1 is described before, as cm;;99.9m%,gc\n"},
        {"^M 2\n^M 3\n" + value + "^M one\n", "4 " + noUnit + "2\n7 the factor is no number\n"},
        {"^M 2\n" + set + "^d 298 997 &\n^M 0\n", ""},
        {"^M 2\n" + set + "^D 298 997 &\n", "4 " + noUnit + "2\n"},
        {"^M 18.015\n^z 1 HVP Z 1 L G & 2256 & & &\n^M 0\n", ""},
        // Headers that no record stands under.
        {header("one") + value, ""},
        {header("&") + header("two") + value, ""},
        {header("one") + header("two") + "^a three\n" + value + "^a four\n" +
             "^z 1 TC S 2 L G & 1 & & &\n",
         "4 " + noRecord + "5 " + noRecord},
    };
    const auto reread = [this](const std::string& lines) {
        globals.recR.Clear();
        form.tvwTree.Clear();
        return Read(kWater + lines);
    };
    for (const auto& [lines, named] : cases) {
        const ReadResult result = reread(lines);
        EXPECT_EQ(Named(result), named) << lines;
        EXPECT_EQ(result.linesNotKept, 0) << lines;
    }
    const ReadResult orphan = reread(stated + set + "^Y 1\n");
    EXPECT_EQ(Named(orphan), "4 nothing stands before this statement\n"
                             "6 nothing stands before this statement\n");
    EXPECT_EQ(orphan.linesNotKept, 2);
    const ReadResult last = reread(value + header("last"));
    EXPECT_EQ(Named(last), "5 " + noRecord);
    EXPECT_EQ(last.linesNotKept, 1);
}

TEST_F(Reader, RowsBehindASetThatNobodyKnowsGoWithIt) {
    const ReadResult result = Read(kWater + "^1 1 VDN S DIR 1\tY L & FP S & & &\n^d 298 997 &\n" +
                                   "^A & & & & & & & later\n^8 1 VDN S\n^d 300 5 &\n^M 0\n");
    EXPECT_EQ(result.linesNotKept, 4);
    EXPECT_EQ(Named(result), "7 nobody knows this tag: ^8 1 VDN S\n");
    EXPECT_EQ(globals.CurrentS->recTwo.Item(std::size_t{1})->recData.Count(), 1U);
}

TEST_F(Reader, OneMessageNamesTheFirstLinesAndCountsTheOthers) {
    EXPECT_EQ(NoticeOfReading({}).text, "");
    ReadResult result;
    for (int line = 1; line <= 12; ++line)
        result.lost.push_back({line, std::string(100, 'x')});
    result.lost[0].text = std::string(99, 'x') + "\xC3\xA9\xC3\xA9";
    const Notice notice = NoticeOfReading(result);
    EXPECT_EQ(notice.title, "Passed over");
    EXPECT_NE(notice.text.find("\nLine 1: " + std::string(99, 'x') + "\xC3\xA9...\nLine 2: "),
              std::string::npos);
    EXPECT_TRUE(notice.text.ends_with(
        "x\nand 2 more: \"Check the document\" in the Tools menu names all of them."));
    result.linesNotKept = 2;
    EXPECT_EQ(NoticeOfReading(result).title, "Read only");
}

TEST_F(Reader, AnyEncodingAndLineEndIsRead) {
    const std::string text = "\xEF\xBB\xBF^R 2002 wag pru 1\r\n\r\n^L 1003 NNNNN &\r"
                             "^N 1003 CH4 M\xE9thane\n^S 1 (\xC3\xA9tuve \xE2\x82\xAC)\n"
                             "^S 2 (20 \x80)";
    Read(text);
    const auto compound = globals.recR.Item(std::size_t{1})->FindL("1003");
    EXPECT_EQ(compound->Name, "M\xC3\xA9thane");
    EXPECT_EQ(compound->FindS(1)->SMPDESC, "(\xC3\xA9tuve \xE2\x82\xAC)");
    EXPECT_EQ(compound->FindS(2)->SMPDESC, "(20 \xE2\x82\xAC)");
    EXPECT_EQ(compound->Line, 3);
}

TEST_F(Reader, ABadFlagWordIsToldAndTheReadGoesOn) {
    desktop.Expect("^A & O & 1xF | Invalid PRPFLAG");
    Read(kWater + "^A & O & 1xF C D 1/2/2003 text\n^z 1 TC S 1 L G & 647 & & &\n");
    EXPECT_EQ(globals.CurrentS->recZ.Item(std::size_t{1})->Header.PRPFLAG, "1");
}

TEST_F(Reader, LargeFilesAreReadWhole) {
    std::string text = kWater;
    constexpr int sets = 5000;
    for (int i = 1; i <= sets; ++i)
        text += "^A & O & & & & & set\n^z 1 TC S " + std::to_string(i) + " L G & 647.1 & & &\n";
    for (int i = 100; i < 5100; ++i) {
        const std::string digits = std::to_string(i);
        text += "^L " + digits + *CheckDigit(digits) + " NNNNN &\n^S 1 ns\n";
    }
    globals.tvwTree = nullptr;
    Read(text);
    EXPECT_EQ(globals.recR.Item(std::size_t{1})->recL.Count(), 5001U);
}

} // namespace
} // namespace vexora
