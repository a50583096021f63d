#include "records/clsTwo.h"

#include "records/RoundTripFixture.h"

namespace vexora {
namespace {

const std::string kHeader = "^A & O & & & & & &\n";
const std::string kEnd = "^M 0\n";

class Sets : public test::RoundTripFixture {
protected:
    clsTwo& Read1(const std::string& lines) {
        Read(test::kHead + lines);
        return Set();
    }
    /// The lines of the document behind its sample.
    std::string Saved() const {
        const std::string text = DocumentAsRecords();
        return text.substr(text.find('\n', text.find("\n^S ") + 1) + 1);
    }
    void ExpectSettled(const std::string& lines) { EXPECT_EQ(Settled(lines), lines); }
    const clsData& Row(std::size_t position = 1) const { return *Set().recData.Item(position); }
};

TEST_F(Sets, EveryKindOfLineComesBackByteForByte) {
    ExpectSettled("^A read O A 3 AB CD 1/2/2004 a  text ::Method:X:later:dVDN:0.1:\n"
                  "^1 1 VDN V DIR 1\tY L & FP C & & &\n"
                  "^X 1 T L + 0 95 0.01 - & & & - & & - & & - & & &\n"
                  "^X 0 VDN L - & & & + 1 0.1% 5 + 95 0.2 + A 95 - & & 0.3\n"
                  "^d 25.00 0.9970 0.0001\n^d 30.0 0.9956 &\n" +
                  kEnd + kHeader + "^2 1 RSS S DFR 12\tSCE L G DP T K P S 298.15 101.325 C\n" +
                  kEnd);
    const std::string unitOfLetter = "^2 1 RSS S DFR 12\tSCE L G DP T K P L 298.15 101.325 C\n";
    ExpectSettled(kHeader + unitOfLetter + "^G 300 3 0.0992418352 9 1501.51914 9 &\n" +
                  "^G 300 1 20.0022515 9 1534.0 2 0.1\n" + kEnd);
    EXPECT_EQ(Set().VARIABLE(2), "P");
    EXPECT_EQ(Set().REF_PHASE, "C");
    EXPECT_EQ(Row(2).DigitCount(1), 1);
    EXPECT_EQ(Row(2).DigitCount(0), 2);
    EXPECT_FALSE(Set().isOriginalUnit);
}

TEST_F(Sets, RowsInSystemUnitsAreNeverConvertedAgain) {
    ExpectSettled(kHeader + "^1 1 VDN S DIR 1\tY L & FP C & & &\n^D 298.15 997 &\n" + kEnd);
    EXPECT_FALSE(Set().isOriginalUnit);
    EXPECT_EQ(Set().VAR1_UNIT, "C");
    // Without a row nothing tells otherwise than that the set is as in the paper.
    ExpectSettled(kHeader + "^1 1 VDN S DIR 1\tN L & FP C & & &\n" + kEnd);
    EXPECT_TRUE(Set().isOriginalUnit);
    // Rows keep their own flag in a set that holds both kinds.
    ExpectSettled(kHeader +
                  "^1 1 VDN V DIR 1\tY L & FP C & & &\n^D 298.15 997 &\n"
                  "^d 25 0.997 &\n^G 300 3 996.0 5 &\n" +
                  kEnd);
    EXPECT_TRUE(Set().isOriginalUnit);
}

TEST_F(Sets, AFactorStandsForTheUnitThatHasNoLetter) {
    const std::string rest = "^1 1 PV S DIR 1\tY C & PB S & & &\n^d 275 0.698 0.001\n" + kEnd;
    clsTwo& set = Read1(kHeader + "^M 0.133322\n" + rest);
    EXPECT_EQ(set.Factor, 0.133322);
    EXPECT_EQ(Saved(), kHeader + "^M 0.133322\n" + rest);
    set.Factor = 0;
    set.PROPERTY_UNIT = "MegaPa";
    EXPECT_EQ(Saved(), kHeader + "^M 1000\n" + rest);
    ExpectSettled(kHeader + "^M 1000\n" + rest);
    Set().PROPERTY_UNIT = "nounit";
    Set().Factor = 0;
    EXPECT_THROW(DocumentAsRecords(), SaveRefused);
    // The factor of a set in system units has nothing to say.
    EXPECT_EQ(
        Settled(kHeader + "^M 1000\n^1 1 PV S DIR 1\tY C & PB S & & &\n^D 275 0.698 &\n" + kEnd),
        kHeader + "^1 1 PV S DIR 1\tY C & PB S & & &\n^D 275 0.698 &\n" + kEnd);
}

TEST_F(Sets, TheMolarMassInFrontIsNoFactor) {
    ExpectSettled("^M 18.015\n" + kHeader + "^1 1 CP z DIR 1\tY L & FP S & & &\n^d 300 4.18 &\n" +
                  kEnd + kHeader + "^1 1 VDN S DIR 1\tY L & FP S & & &\n^d 300 997 &\n" + kEnd);
    EXPECT_EQ(Set().Factor, 0);
    EXPECT_EQ(Set(2).Factor, 0);
    EXPECT_NEAR(Set().PropertyConversion().Absolute(4.18), 4.18 * 18.015, 1e-9);
}

TEST_F(Sets, ThePropertyOfAGasIsWrittenUnderItsOtherCode) {
    for (const auto& [code, inLine] : {std::pair{"PV", "P"}, std::pair{"HVP", "HTR"}}) {
        const std::string line = std::string("^1 1 ") + inLine + " S DIR 1\tY L G PB S & & &\n";
        ExpectSettled(kHeader + line + kEnd);
        EXPECT_EQ(Set().PRPCODE, code);
        EXPECT_EQ(Set().Key(), "11" + std::string(code) + "1");
    }
    // Two codes that would read back as one are twins.
    const std::string pv = "^1 1 PV S DIR 1\tY L & PB S & & &\n";
    const std::string p = "^1 1 P S DIR 1\tY L & PB S & & &\n";
    ExpectSettled(kHeader + pv + kEnd + kHeader + p + kEnd);
    desktop.Expect("This property set already exists\n2002 wag pru 1\n7732185\nSample # 1");
    EXPECT_FALSE(ReadDocument("^R 2002 wag pru 1\n^L 7732185 NNNNN &\n^S 1 ns\n"
                              "^1 1 PV S DIR 1\tY L G PB S & & &\n"
                              "^1 * P S DIR 1\tY L G PB S & & &\n")
                     .whole);
}

TEST_F(Sets, TheVariableOfOneIsDerivedOrTold) {
    const auto line = [](const std::string& code, const std::string& constraint) {
        return "^1 1 " + code + " S DIR 1\tY L & " + constraint + " S & & &\n";
    };
    Read1(kHeader + line("VDN", "FP") + kEnd);
    EXPECT_EQ(Set().VARIABLE1, "T");
    Read1(kHeader + line("VDN", "FT") + kEnd);
    EXPECT_EQ(Set().VARIABLE1, "P");
    Set().VARIABLE1 = "VM";
    const std::string told = "^A & O & & & & & ::V1:VM:\n" + line("VDN", "FT") + kEnd;
    EXPECT_EQ(Saved(), told);
    ExpectSettled(told);
    EXPECT_EQ(Set().VARIABLE1, "VM");
    Set().Header.DATACOMMENT = "text ::Method:X:V1:VM:later:";
    Set().VARIABLE1 = "P";
    EXPECT_EQ(Saved(), "^A & O & & & & & text ::Method:X:later:\n" + line("VDN", "FT") + kEnd);
    Set().VARIABLE1 = "WL";
    EXPECT_EQ(Saved(),
              "^A & O & & & & & text ::Method:X:later:V1:WL:\n" + line("VDN", "FT") + kEnd);
    Set().Header.DATACOMMENT = "text ::V1: VM :later:"; // as typed into a file
    EXPECT_EQ(Saved(), "^A & O & & & & & text ::later:V1:WL:\n" + line("VDN", "FT") + kEnd);
}

TEST_F(Sets, VariablesInUnitsWithoutALetterAreConvertedOnce) {
    clsTwo& set = Read1(kHeader +
                        "^2 1 VDN S DIR 1\tY L & DP T C P S & & &\n"
                        "^d 25.0 25 997 &\n^Y 0.1 & & & 0.5 1% 3 & & & & & & &\n"
                        "^d 25.0 20.00 997 &\n^d 25.0 0.00 997 &\n^D 298 100 997 &\n" +
                        kEnd);
    set.VAR2_UNIT = "bar";
    set.UX[2].iUnc = true;
    set.UX[2].PRPCODE = "P";
    set.UX[2].UValue = "0.50";
    const std::string converted = kHeader +
                                  "^2 1 VDN S DIR 1\tY L & DP T C P S & & &\n"
                                  "^X 2 P & - & & & - & & & + & 50 - & & - & & &\n"
                                  "^g 25.0 3 2500 2 997 3 &\n"
                                  "^Y 0.1 & & & 50 1% 3 & & & & & & &\n"
                                  "^d 25.0 2000 997 &\n^d 25.0 0.00 997 &\n"
                                  "^D 298 100 997 &\n" +
                                  kEnd;
    EXPECT_EQ(Saved(), converted);
    EXPECT_EQ(Row().VARIABLE(2), "25") << "saving changed the document";
    EXPECT_EQ(Row().StatementsOf(2).DS, "0.5");
    ExpectSettled(converted);
}

TEST_F(Sets, StatementsOfARowStandOnlyWhereThereAreAny) {
    const std::string head = kHeader + "^1 1 VDN S DIR 1\tY L & FP S & & &\n";
    ExpectSettled(head + "^d 300 997 0.1\n^Y & & & 0.01 0.2% 0.3 4 & 0.5 0.6\n^d 310 993 &\n" +
                  kEnd);
    EXPECT_EQ(Row().StatementsOf(1).Unc, "0.01");
    EXPECT_EQ(Row().StatementsOf(0).Repetitions, "4");
    EXPECT_EQ(Row().Extras->CD, "0.6");
    EXPECT_EQ(Row(2).Extras, nullptr);
    EXPECT_EQ(Row(2).StatementsOf(0), RowStatements());
    // Missing words are empty, surplus ones and a line without statements go.
    EXPECT_EQ(
        Settled(head + "^d 300 997\n^Y 1 & 2\n^d 310 993 &\n^Y & & & & & & & & & & 7\n" + kEnd),
        head + "^d 300 997 &\n^Y 1 & 2 & & & & & & &\n^d 310 993 &\n" + kEnd);
    // A count of digits that is missing or 0 is that of the text.
    EXPECT_EQ(Settled(head + "^g 300.0 0 997.10\n" + kEnd),
              head + "^g 300.0 4 997.10 5 &\n" + kEnd);
}

TEST_F(Sets, SystemUnitsKeepDigitsAndLeavePerCentAlone) {
    clsTwo& set = Read1(kHeader +
                        "^2 1 VDN v DIR 1\tY L & DP T C P L & & &\n"
                        "^d 25.5 10 0.9970 0.0001\n^Y 0.1 & & & 1 1% & & & & & & 0.0002 &\n"
                        "^D 300 100 996 &\n^g 0.0 1 25 2 1.0 4 &\n" +
                        kEnd);
    set.Header.DATACOMMENT = "::Method:X:dT:0.5:dP:2:";
    set.commentInSystemUnits = false;
    set.UX[0].iUnc = true;
    set.UX[0].PRPCODE = "VDN";
    set.UX[0].UValue = "0.001";
    set.UX[0].RValue = "1%";
    set.VAR2_UNIT = "nounit";
    EXPECT_FALSE(set.AdjustUnits());
    EXPECT_EQ(Row().VARIABLE(1), "25.5");
    set.VAR2_UNIT = "L";
    EXPECT_TRUE(set.AdjustUnits());
    EXPECT_FALSE(set.isOriginalUnit);
    const std::string once = Saved();
    EXPECT_TRUE(set.AdjustUnits());
    EXPECT_EQ(Saved(), once);
    EXPECT_EQ(once, "^A & O & & & & & ::Method:X:dT:0.5:dP:14:\n"
                    "^2 1 VDN v DIR 1\tY L & DP T C P L & & &\n"
                    "^X 0 VDN & - & & & - & 1% & + & 0.016 - & & - & & &\n"
                    "^G 298.65 4 69 2 15.9704 4 0.0016\n^Y 0.1 & & & 7 1% & & & & & & 0.003 &\n"
                    "^D 300 100 996 &\n^G 273.15 4 172 2 16.02 4 &\n" +
                        kEnd);
}

TEST_F(Sets, DifferencesLoseNoOffsetAndRatiosAreNotConverted) {
    const auto adjusted = [this](const std::string& function) {
        clsTwo& set = Read1(kHeader + "^1 1 TB C " + function +
                            " 1\tY L & PB S 298.15 101.325 L\n^d 100.0 25.5 0.5\n" + kEnd);
        EXPECT_TRUE(set.AdjustUnits());
        return std::string(set.Relation()) + " " + Row().PRPVALUE() + " " + Row().PRPUNCERTY;
    };
    EXPECT_EQ(adjusted("DIR"), "A 298.65 0.5");
    EXPECT_EQ(adjusted("MN"), "A 298.65 0.5");
    EXPECT_EQ(adjusted("DFR"), "D 25.5 0.5");
    EXPECT_EQ(adjusted("DT"), "D 25.5 0.5");
    EXPECT_EQ(adjusted("RPH"), "R 25.5 0.5");
    EXPECT_EQ(adjusted("KRX"), "R 25.5 0.5");
}

TEST_F(Sets, StatementsFindTheirQuantity) {
    const std::string lines = kHeader +
                              "^2 1 VDN S DIR 1\tY L & DP T S P S & & &\n"
                              "^X & P L + & & 1 - & & & - & & - & & - & & &\n"
                              "^X 3 WL L + & & 2 - & & & - & & - & & - & & &\n"
                              "^X & X1 L + & & 3 - & & & - & & - & & - & & &\n" +
                              kEnd;
    Read1(lines);
    EXPECT_EQ(Set().UX[2].DSValue, "1");
    EXPECT_TRUE(Set().UX[3].Constr);
    ASSERT_EQ(Set().OtherX.size(), 1U);
    EXPECT_NE(Settled(lines).find("^X & X1 L + & & 3"), std::string::npos);
}

TEST_F(Sets, BadLinesOfSetsDropTheRead) {
    const std::string head = "^R 2002 wag pru 1\n^L 7732185 NNNNN &\n^S 1 ns\n";
    const std::string set = "^1 1 VDN S DIR 1\tY L & FP S & & &";
    const std::pair<std::string, std::string> cases[] = {
        {"^1 1 VDN S DIR 1\tY L & FP\n", "Incomplete record: ^1 1 VDN S DIR 1\tY L & FP"},
        {"^2 1 VDN S DIR 1\tY L & DP T S P\n",
         "Incomplete record: ^2 1 VDN S DIR 1\tY L & DP T S P"},
        {"^3 1 VDN S DIR 1\tY L & DP T S P S X1 S & & &\n",
         "Incomplete record: ^3 1 VDN S DIR 1\tY L & DP T S P S X1 S & & &"},
        {"^D 300 997 &\n", "Incomplete record: ^D 300 997 &"},
        {set + "\n^D 300\n", "Incomplete record: ^D 300"},
        {set + "\n" + set + "\n",
         "This property set already exists\n2002 wag pru 1\n7732185\nSample # 1"},
        {"^1 7 VDN S DIR 1\tY L & FP S & & &\n",
         "2002 wag pru 1\n7732185\n^1 7 VDN S DIR 1\tY L & FP S & & & | Sample not specified"}};
    for (const auto& [lines, message] : cases) {
        desktop.Expect(message);
        EXPECT_FALSE(ReadDocument(head + lines).whole) << lines;
    }
    // One and two variables, and a single value, are sets of their own.
    EXPECT_TRUE(ReadDocument(head + set +
                             "\n^f 1 VDN S 1 L 300 S 997 & & &\n"
                             "^2 1 VDN S DIR 1\tY L & DP T S P S & & &\n")
                    .whole);
    const auto sample = globals.CurrentS;
    EXPECT_EQ(sample->FindTwo("VDN", 2, "1"), sample->recTwo.Item(std::size_t{2}));
    EXPECT_EQ(sample->NextTwoNumber("VDN", 1), 2);
    EXPECT_EQ(sample->NextTwoNumber("CP", 1), 1);
}

TEST_F(Sets, TheTreeShowsSetsAndTheLettersCountThem) {
    Read1("^A & O & & & & & good ::Method:X:dVDN:1:\n^1 1 VDN V DIR 3\tY L G PB S & & &\n" + kEnd);
    EXPECT_EQ(Set().tNode->Text().substr(0, 13), "^1: Density (");
    EXPECT_NE(Set().tNode->Text().find("(L+G,"), std::string::npos);
    EXPECT_NE(Set().tNode->Text().find("), Set 3, good "), std::string::npos);
    globals.ForgetCurrent();
    Set().SetMe();
    EXPECT_EQ(globals.CurrentKey, "RLS1");
    EXPECT_EQ(globals.DataContext, "Pure");
    EXPECT_EQ(globals.CurrentTwo.get(), &Set());
    EXPECT_EQ(globals.CurrentS.get(), Set().Parent);
    EXPECT_NE(DocumentAsRecords().find("^L 7732185 DNNNN V\n"), std::string::npos);
    Read1(kHeader + "^2 1 VDN V DIR 3\tY L & DP T S P S & & &\n" + kEnd);
    EXPECT_NE(DocumentAsRecords().find("^L 7732185 DNNNN D\n"), std::string::npos);
}

TEST_F(Sets, ManyRowsAreReadAndWrittenWhole) {
    std::string text = test::kHead + kHeader + "^2 1 VDN S DIR 1\tY L & DP T C P S & & &\n";
    constexpr int rows = 20000;
    for (int i = 1; i <= rows; ++i)
        text += "^d " + std::to_string(i) + ".25 0.101325 997.0479 0.001\n";
    text += kEnd;
    Read(text);
    EXPECT_EQ(DocumentAsRecords().size(), text.size());
    EXPECT_EQ(Set().recData.Count(), static_cast<std::size_t>(rows));
}

} // namespace
} // namespace vexora
