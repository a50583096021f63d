#include "shell/DocumentText.h"

#include "records/RoundTripFixture.h"
#include "reference/Conversions.h"

namespace vexora {
namespace {

using RoundTrip = test::RoundTripFixture;
using test::kHead;

TEST_F(RoundTrip, EveryKeptLineComesBackByteForByte) {
    const std::string text =
        "\n^R 2031 mue & 12\n"
        "^J#S#O#J. Nowhere, ab-123#A title#a, b;c#Abstract.#note#P#2#c1#CODEN#0021-9568#b\n"
        "^I#1#muelle#ab1#Mueller,A.B.\n"
        "^I#2#wagner#w  #Wagner, W.\n"
        "^L 7732185 DNNNN P\n"
        "^S 1 cm,99m%,gc;(frozen twice, dried);99.95m%,gc,99.9w%,(by us)\n"
        "^A read_twice O A 3 AB CD 12/25/2004 sealed  cell ::Method:X:later:UFactor:2.5:dTC:0.01:\n"
        "^z 1 TC S 1 L G & 647.096 0.1 0.05 3\n"
        "^X 0 TC L + 1 95 0.10 + 1 0.05 3 - & & - & & - & & &\n"
        "^A & O & & & & & &\n"
        "^M 1000\n"
        "^z 1 PC S 1 L G & 22.0640 & & &\n"
        "^M 0\n"
        "^A & & & & & & & ::Method:OTHER:sMethod:own way:PB:\n"
        "^Z 1 TMN S 1 C L air 273.150 & & &\n"
        "^A & & & & & & & &\n"
        "^F * VDN S 1 L 298.15 S 997.0 & & &\n"
        "^S 2 ns\n"
        "^L 64175 NNNNN &\n"
        "^N 64175 & 1-hydroxy ethane\n"
        "^S 1 ns\n"
        "^L 1003 NNNNN &\n"
        "^N 1003 C8H10N4O2 new compound, beta form\n"
        "BL 1014 3.2.1.17_x 1LYZ & -3 lysozyme of hen\n"
        "^A read_twice O A 3 AB CD 12/25/2004 hydrolysis\n"
        "BR 4 1\n"
        "BP 1 64175 0 1 64175 1-hydroxy_ethane C2H6O 46.069 0 -1 L 0 & &\n"
        "BP 0 7732185 0 1 7732185 water H2O 18.015 0 0 & 0 & &\n"
        "BC 7732185 Solvent L 1 99.9  per cent\n"
        "BV KM 1 & & 2% P &\n"
        "BV T C & & * V &\n"
        "BE\n"
        "BM by  calorimetry\n"
        "B0 0 1\n"
        "BD 0.10 25.0 0.05\n"
        "^X 1 T & - & & & - & & & + 95 0.1 - & & - & & &\n"
        "^A & O B & & & & &\n"
        "BN 2\n"
        "BP 1014 0 & & lysozyme_of_hen 1014 & 0 -3 3.2.1.17_x 1LYZ\n"
        "BH D & Native partly_unfolded L C & &\n"
        "BV T12 K & & & P &\n"
        "BV pH 1 & & & C 4.50\n"
        "BE\n"
        "BM &\n"
        "BD 349.10\n";
    std::string saved = LoadAndSave(text);
    // The letters are found anew, all else is as it was.
    const auto withoutLetters = [](std::string lines) {
        const std::size_t at = lines.find("^L 7732185 DNNNN ") + 17;
        lines.erase(at, lines.find('\n', at) - at);
        const std::size_t letters = lines.find("#note#") + 6;
        return lines.erase(letters, lines.find('#', letters) - letters);
    };
    EXPECT_EQ(withoutLetters(saved), withoutLetters(text));
    for (int cycle = 0; cycle < 3; ++cycle) {
        const std::string again = LoadAndSave(saved);
        EXPECT_EQ(again, saved);
        EXPECT_EQ(DocumentAsRecords(), saved) << "saving changed the document";
    }
    const clsR& source = *globals.recR.Item(std::size_t{1});
    EXPECT_EQ(source.ManuscriptID, "ab-123");
    const clsL& ethanol = *source.FindL("64175");
    EXPECT_EQ(ethanol.Name + " " + ethanol.Formula, "1-hydroxy ethane C2H6O");
    EXPECT_FALSE(ethanol.isNew);
    EXPECT_NEAR(ethanol.MMass, 46.069, 1e-3);
}

TEST_F(RoundTrip, UnitsWithoutALetterGoOutAsFactorAndSystemUnit) {
    Read(kHead + "^A & O & & & & & &\n^z 1 PC S 1 L G & 220.640 & & &\n");
    const std::string before = kHead + "^A & O & & & & & &\n";
    const std::string value = "^z 1 PC S 1 L G & 220.640 & & &\n";
    Value().PROPERTY_UNIT = "bar";
    EXPECT_EQ(DocumentAsRecords(), before + "^M 100\n" + value + "^M 0\n");
    Value().PROPERTY_UNIT = "*";
    Value().Factor = 1.1 * 1.1;
    const std::string withFactor = before + "^M 1.21\n" + value + "^M 0\n";
    EXPECT_EQ(DocumentAsRecords(), withFactor);
    EXPECT_EQ(LoadAndSave(withFactor), withFactor);
    EXPECT_EQ(Value().Factor, 1.21);
    EXPECT_NEAR(Value().SystemValue(), 220.64 * 1.21, 1e-9);

    Value().isOriginalUnit = false;
    EXPECT_EQ(DocumentAsRecords(), before + "^Z 1 PC S 1 L G & 220.640 & & &\n");
}

TEST_F(RoundTrip, ASetWhoseUnitHasNoFactorIsNotSaved) {
    Read(kHead + "^A & & & & & & & &\n^z 1 PC S 1 L G & 220.640 & & &\n");
    Value().PROPERTY_UNIT = "nounit";
    EXPECT_THROW(DocumentAsRecords(), SaveRefused);
    Value().isOriginalUnit = false;
    EXPECT_NO_THROW(DocumentAsRecords());
}

TEST_F(RoundTrip, MassBasedUnitsCarryTheMolarMass) {
    const std::string lines = "^M 18.015\n^A & & & & & & & &\n^z 1 HVP Z 1 L G & 2256.5 & & &\n"
                              "^M 0\n^A & & & & & & & &\n^z 1 TC S 1 L G & 647 & & &\n";
    Read(kHead + lines);
    EXPECT_EQ(Value().Factor, 0);
    EXPECT_NEAR(Value().SystemValue(), ToSystem("Z", 2256.5, 0, 18.015), 1e-9);
    EXPECT_EQ(Value(2).Factor, 0);
    const std::string saved = DocumentAsRecords();
    EXPECT_NE(saved.find(lines), std::string::npos) << saved;
    EXPECT_EQ(LoadAndSave(saved), saved);
}

TEST_F(RoundTrip, AFixedVariableInAUnitWithoutALetterIsConvertedOnce) {
    const std::string head = "^A & & & & & & & &\n";
    Read(kHead + head + "^f 1 TB S 1 L 25 S 300.1 & & &\n");
    Value().VARIABLE_UNIT = "bar";
    clsX item;
    item.iUnc = true;
    item.PRPCODE = "P";
    item.UValue = "0.10";
    Value().Statements(1, item);
    const std::string saved = DocumentAsRecords();
    EXPECT_EQ(saved.substr(saved.find(head)),
              head + "^f 1 TB S 1 L 2500 S 300.1 & & &\n"
                     "^X 1 P & - & & & - & & & + & 10 - & & - & & &\n");
    EXPECT_EQ(Value().INDVARIABLE, "25");
    EXPECT_EQ(LoadAndSave(saved), saved);
}

TEST_F(RoundTrip, PrecisionsOfADialogAreConvertedAsDifferencesAndOnlyOnce) {
    Read(kHead + "^A & & & & & & & &\n^z 1 TB C 1 L G & 99.97 & & &\n");
    clsZ& value = Value();
    value.commentInSystemUnits = false;
    value.Header.DATACOMMENT = "text dTB:9: ::Method:X:dTB:0.10:dTB:1%:";
    value.PROPERTY_UNIT = "F";
    const std::string expected = "^A & & & & & & & text dTB:9: ::Method:X:dTB:0.056:dTB:1%:\n";
    const std::string saved = DocumentAsRecords();
    EXPECT_NE(saved.find(expected), std::string::npos) << saved;
    EXPECT_EQ(LoadAndSave(saved), saved);
}

TEST_F(RoundTrip, OldFormsSettleAtTheFirstSave) {
    EXPECT_EQ(Settled("^A & O & 7FFF & & 25.12.04 abc::Method:X\n"
                      "^z 1 TC K 1 L & & 200.0 & 1% &\n"),
              "^A & O & 32763 & & 12/25/2004 abc::Method:X:\n"
              "^z 1 TC K 1 L & & 200.0 & 2 &\n");
    EXPECT_EQ(Settled("^A n O A 12 & & 12.25.2004 &\n^M1000\n^z 1 PC S 1 L & & 22.064 & & 3 4\n"),
              "^A n O A 8 & & 12/25/2004 &\n^M 1000\n^z 1 PC S 1 L & & 22.064 & & 3 4\n^M 0\n");
    EXPECT_EQ(Settled("^A & O & -1 & & 1.x.04 &\n^Z 1 TBN S 1 L G G 373.1 & & &\n"),
              "^A & O & 32763 & & 1.x.04 &\n^Z 1 TBN S 1 L G & 373.1 & & &\n");
}

TEST_F(RoundTrip, StatementsKeepTheirPlaceAndTheirText) {
    const std::string value = "^A & & & & & & & &\n^f 1 VDN S 1 L 25 C 997 0.5 & 3\n";
    const std::string statements = "^X 1 T L + the_authors 95 0.01 - & & & - & & - & & - & & &\n"
                                   "^X 0 VDN L - & & & - & & & + & 0.1% - & & + 0.02 cubic_fit &\n"
                                   "^X 3 X1 L + & & 1 - & & & - & & - & & - & & &\n";
    const std::string saved = LoadAndSave(kHead + value + statements);
    EXPECT_NE(saved.find(value + statements), std::string::npos) << saved;
    EXPECT_EQ(Value().Statements(1).DSEvaluator, "the authors");
    EXPECT_EQ(Value().Statements(0).KVOUValue, "0.5");
    EXPECT_EQ(Value().Statements(0).Repetitions, "3");
    // A line that names its quantity by the code only finds its place.
    Read(kHead + value + "^X & VDN L - & & & - 7 & few + & 0.1% - & & - & & &\n");
    EXPECT_EQ(Value().Statements(0).UValue, "0.1%");
    EXPECT_EQ(Value().Statements(0).RType, -1);
}

TEST_F(RoundTrip, ValuesOfEveryUnitAndTagComeBackUnchanged) {
    const std::string head = "^A & O & & & & & &\n";
    const std::string settled[] = {
        head + "^z 1 ZC D 1 L G & 0.2290 & & &\n",
        head + "^Z 1 TB C 1 L G & 373.10 & & &\n",
        head + "^F 1 HVP Z 1 L 298.15 C 44.0 & & &\n",
        head + "^z 1 PV S 1 L G & 3.1700 & & &\n",
        head + "^z 1 HVP J 1 L G & 9.72 & & &\n",
        head + "^f 1 CP R 1 L 25 C +75.30 1% 0.1 2\n",
        "^A a_b_c O B 32763 ABC XXX 1/2/2026 text  with :colons: ::Method::m:PB:odd_tag:dVDN:0.1:\n"
        "^z 1 VDN S 1 L & & 1e3 & & &\n",
    };
    for (const std::string& lines : settled)
        EXPECT_EQ(Settled(lines), lines);
    EXPECT_EQ(Settled(head + "^f 1 VDN g/cm3 1 L 77.0 F 0.9970 & & &\n"),
              head + "^M 1000\n^f 1 VDN S 1 L 77.0 F 0.9970 & & &\n^M 0\n");
}

TEST_F(RoundTrip, APrecisionInPerCentBecomesAFigureOnce) {
    const std::string head = "^A & O & & & & & &\n";
    const std::string item = "^X 0 TC L - & & & + 0 1% 4 - & & - & & - & & &\n";
    EXPECT_EQ(Settled(head + "^z 1 TC S 1 L G & 200.0 & 1% 4\n" + item),
              head + "^z 1 TC S 1 L G & 200.0 & 2 4\n" + item);
    EXPECT_EQ(Settled(head + "^z 1 TC S 1 L G & -200.0 & 1% 4\n"),
              head + "^z 1 TC S 1 L G & -200.0 & 2 4\n");
    // A kind and a number of repetitions that mean nothing are not kept.
    EXPECT_EQ(Settled(head + "^z 1 TC S 1 L G & 200.0 & & &\n"
                             "^X 0 TC L - & & & + 2 0.5 few - & & - & & - & & &\n"),
              head + "^z 1 TC S 1 L G & 200.0 & 0.5 &\n"
                     "^X 0 TC L - & & & + & 0.5 & - & & - & & - & & &\n");
}

TEST_F(RoundTrip, SeparatorsAndLineBreaksInTextsDoNotShiftFields) {
    Read(kHead);
    clsR& source = *globals.recR.Item(std::size_t{1});
    source.TTITLE = "The #1\r\nfluid";
    source.ABSTRACT = "a\nb";
    source.NOTE = "#";
    Read(DocumentAsRecords());
    const clsR& again = *globals.recR.Item(std::size_t{1});
    EXPECT_EQ(again.TTITLE, "The  1 fluid");
    EXPECT_EQ(again.ABSTRACT, "a b");
    EXPECT_EQ(again.SSOURCE, "J. Phys. Chem. Ref. Data, 2002, 31, 387-535");
}

} // namespace
} // namespace vexora
