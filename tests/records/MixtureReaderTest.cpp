#include "records/RoundTripFixture.h"
#include "records/clsM.h"
#include "records/clsMV.h"
#include "records/clsMZ.h"

namespace vexora {
namespace {

const std::string Head = "\n^R 1932 car lew 1\n"
                         "^L 64175 NNNNN &\n^S 1 cm;;99.9m%,gc\n^S 2 ns\n"
                         "^L 67663 NNNNN &\n^S 1 ns\n"
                         "^L 7732185 NNNNN &\n^S 1 ns\n";

class MixtureReader : public test::RoundTripFixture {
protected:
    /// The lines of the mixtures behind the head, after some loads and saves.
    std::string SettledMixtures(const std::string& lines) {
        const std::string first = LoadAndSave(Head + lines);
        EXPECT_EQ(SavedAgain(first), first);
        const std::size_t at = std::min(first.find("\n^B "), first.find("\n^T "));
        return at == first.npos ? "" : first.substr(at + 1);
    }
    clsM& Mixture(std::size_t position = 1) const {
        return *globals.recR.Item(std::size_t{1})->recM.Item(position);
    }
    std::string Refused(const std::string& lines) {
        const ReadResult result = ReadDocument(Head + lines);
        EXPECT_FALSE(result.whole) << lines;
        globals.recR.Clear();
        return result.fault;
    }
};

TEST_F(MixtureReader, ABinaryComesBackAsItStands) {
    const std::string lines = "^B 64175 7732185 PV\n"
                              "^A & O & & & & & azeotrope :T = 351.3:\n"
                              "^z 1 1 XA1 S 1 L G & & 0.8943 & 1% 3\n^M 0\n"
                              "^X 0 XA1 L - & & & - & & & + 95 0.01 - & & - & & &\n"
                              "^A & O & & & & & vapour ::PYC:dX1:0.001:\n"
                              "^1 2 1 X1 S DIR 1 Y G L & P 101.325 X1 S & & & & & &\n"
                              "^X 3 P L - & & & - & & & + 95 0.1 - & & - & & &\n"
                              "^d 0.0190 0.1700 &\n^Y & & & & & & & 0.1 & &\n"
                              "^A & O & & & & & density\n^M 1000\n"
                              "^2 1 1 VDN S DIR 1 Y L P 101.325 W1 S T C & & & & & &\n"
                              "^g 0.10 2 20 2 0.98187 5 & 7\n^d 0.20 20 0.96864 &\n";
    EXPECT_EQ(SettledMixtures(lines), lines);
    EXPECT_EQ(Tree().substr(Tree().find("  ethanol + water")),
              "  ethanol + water\n"
              "    ^0: Azeotropic composition: mole fraction of component 1 (L+G,1), Set 1, "
              "azeotrope  T = 351.3 \n"
              "    ^1: Mole fraction of component 1 (Gas + Liquid, P = 101.325; X1), Set 1, "
              "vapour   PYC dX1=0.001=\n"
              "    ^2: Density (Liquid, P = 101.325; W1, T), Set 1, density\n");
}

TEST_F(MixtureReader, ATernaryBearsTheTieInEveryRow) {
    const std::string lines = "^T 64175 67663 7732185 S\n"
                              "^A & O & & & & & &\n"
                              "^3 1 1 1 X1 S DIR 1 Y L1 L2 -4 X1 S X2 S T S & & & & & &\n"
                              "^d 0.1 0.2 291.15 0.3 & 1\n^d 0.2 0.2 291.15 0.3 0.01 &\n";
    EXPECT_EQ(SettledMixtures(lines), lines);
    EXPECT_TRUE(Mixture().recMV.Item(std::size_t{1})->IsTied());
}

TEST_F(MixtureReader, RecordsNameASampleOfEveryComponent) {
    const std::string place =
        "The referenced sample does not exist\n1932 car lew 1\nethanol + water\n";
    const std::string value = place + "^0: Azeotropic temperature (L+G,K), Set 1";
    const std::string set = place + "^1: Density (Liquid, P = 101.325; W1), Set 1";
    for (const std::string& told : {value, set})
        desktop.Expect(told);
    EXPECT_EQ(Refused("^B 64175 7732185 P\n^z 3 1 TA S 1 L G & & 351.3 & & &\n"), value);
    EXPECT_EQ(Refused("^B 64175 7732185 P\n^1 1 2 VDN S DIR 1 Y L P 101.325 & & W1 S\n"), set);
}

TEST_F(MixtureReader, ANumberInUseIsChanged) {
    const std::string value = "^z 1 1 TA S 4 L G & & 351.3 & & &\n";
    const std::string set = "^1 1 1 VDN S DIR 1 Y L P 101.325 & & W1 S & & & & & &\n";
    for (int n = 0; n < 2; ++n)
        desktop.Expect(
            "Duplicate data set number will be changed\n1932 car lew 1\nethanol + water");
    globals.Saved = true;
    Read(Head + "^B 64175 7732185 P\n" + value + value + set + set +
         "^1 2 1 VDN S DIR 1 Y L P 101.325 & & W1 S & & & & & &\n");
    EXPECT_EQ(Mixture().recMZ.Item(std::size_t{2})->PRPSETNO, "5");
    EXPECT_EQ(Mixture().recMV.Item(std::size_t{2})->PRPSETNO, "2");
    EXPECT_EQ(Mixture().recMV.Item(std::size_t{3})->PRPSETNO, "1");
    EXPECT_FALSE(globals.Saved);
}

// The same three components in another order; each digit of a code goes with its component.
TEST_F(MixtureReader, ComponentsComeIntoAscendingOrder) {
    const std::string known = "^T 64175 67663 7732185 &\n"
                              "^A & O & & & & & &\n"
                              "^1 2 1 1 X1 S DIR 1 Y L T 300 P 101.325 Cp1 & X3S S D & & & & &\n";
    const std::string turned = "^T 7732185 64175 67663 &\n"
                               "^A & O & & & & & one :: :dX2:0.1:dP:0.2:\n"
                               "^1 1 2 1 X2 S DIR 1 Y L T 300 P 101.325 Cp2 & X1S S E & & & & &\n"
                               "^X 0 X2 L - & & & - & & & + 95 0.1 - & & - & & &\n"
                               "^d 0.5 0.1 & &\n"
                               "^A & O & & & & & &\n"
                               "^Z 1 2 1 XE3 S 1 Cp1 Cp2 L1 & & 0.3 & & &\n";
    desktop.Expect("Duplicate data set number will be changed\n1932 car lew 1\n"
                   "ethanol + chloroform + water");
    globals.Saved = true;
    const std::string saved = LoadAndSave(Head + known + turned);
    EXPECT_FALSE(globals.Saved);
    EXPECT_EQ(saved.substr(saved.find("^T")),
              "^T 64175 67663 7732185 ws\n"
              "^A & O & & & & & &\n"
              "^Z 2 1 1 XE2 S 1 Cp3 Cp1 L1 & & 0.3 & & &\n"
              "^A & O & & & & & &\n"
              "^1 2 1 1 X1 S DIR 1 Y L T 300 P 101.325 Cp1 & X3S S D & & & & &\n"
              "^A & O & & & & & one :: :dX1:0.1:dP:0.2:\n"
              "^1 2 1 1 X1 S DIR 2 Y L T 300 P 101.325 Cp1 & X3S S C & & & & &\n"
              "^X 0 X1 L - & & & - & & & + 95 0.1 - & & - & & &\n"
              "^d 0.5 0.1 & &\n");
    EXPECT_EQ(SavedAgain(saved), saved);
    EXPECT_EQ(Mixture().recMZ.Count(), 1U);
    EXPECT_EQ(LoadAndSave(Head + turned).find("^T 7732185"), std::string::npos);
}

TEST_F(MixtureReader, WhatIsNotKeptOrUnsureIsTold) {
    desktop.Expect(
        "Ambiguous property: content of ??? | ^1: Density (Liquid, T = 300, P = 101.325, X2 = "
        "0.1; M2), Set 1");
    desktop.Expect("1932 car lew 1\nComponent of mixture not described: 71432");
    const ReadResult result =
        ReadDocument(Head + "^T 64175 67663 7732185 P\n"
                            "^A & O & & & & & &\n^M 5\n"
                            "^1 1 1 1 VDN S RPS 1 Y L T 300 P 101.325 X2 0.1 M S 1 & & & & &\n"
                            "^f 1 1 1 VDN S 1 L 25 C 1 & & &\n"
                            "^A & O & & & & & &\n^M 46\n"
                            "^1 1 1 1 CP Z DIR 1 Y L T 300 P 101.325 X2 0.1 X1 S & & & & & &\n"
                            "^B 64175 71432 &\n");
    EXPECT_TRUE(result.whole) << result.fault;
    EXPECT_EQ(result.linesNotKept, 1);
    std::string named;
    for (const LineLost& one : result.lost)
        named += std::to_string(one.line - 9) + " " + one.text + "\n";
    EXPECT_EQ(named, "3 no value stands in the unit of the factor 5\n"
                     "5 a value of a mixture has no fixed variable\n");
    const std::string saved = DocumentAsRecords();
    EXPECT_EQ(saved.substr(saved.find("^T")),
              "^T 64175 67663 7732185 VL\n"
              "^A & O & & & & & &\n"
              "^1 1 1 1 VDN S RPS 1 Y L T 300 P 101.325 X2 0.1 M2 S 1 & & & & &\n"
              "^A & O & & & & & &\n"
              "^1 1 1 1 CP Z DIR 1 Y L T 300 P 101.325 X2 0.1 X1 S & & & & & &\n");
}

// Each is a group of lines that a save gives back as it stands.
TEST_F(MixtureReader, EveryFieldComesBack) {
    const std::string empty = "^A & O & & & & & &\n";
    const std::string full = "^A a_note O B 3 abc xyz 1/15/2026 text ::PYC:dTA:0.05:UFactor:1:\n";
    const std::string ofValue =
        "^X 0 TA L + an_expert 95 0.1 + 1 0.05 3 + 95 0.2 + A 95 + 0.3 a_line 0.4\n";
    const std::string binary[] = {full + "^z 1 1 TA C 2 L G air FL 78.15 0.1 0.05 3\n^M 0\n" +
                                      ofValue + "^X 7 ZZ L whatever it says\n",
                                  full + "^M 0.133322\n^z 2 1 PA S 1 L G & & 760 & 1% &\n^M 0\n",
                                  empty + "^Z 1 1 TA S 1 L & & & & & & &\n",
                                  empty + "^z 1 1 VDC Z 1 CLG L G & 0.3 & & &\n^M 0\n"};
    const auto behind = [](const std::string& text) { return text.substr(text.find('\n') + 1); };
    for (const std::string& lines : binary)
        EXPECT_EQ(behind(SettledMixtures("^B 64175 7732185 &\n" + lines)), lines);
    const std::string ternary[] = {
        empty + "^z 2 1 1 TE S 1 L Cp1 Cp2 Cp3 G 240 & & &\n^M 0\n",
        full + "^1 1 1 1 VDN S & & & & & & & & & & X1 S & & & & & &\n",
        "^A & O & & & & & one ::dVDN:0.1:dX1:1%:dP:0.2:\n^M 1000\n"
        "^3 2 1 1 VDN S DFR 1 YCE L G -6 T C P A X1 % C P x_y 300 101.325 L at 300 K\n"
        "^X 1 T L - & & & - & & & + 95 0.1 - & & - & & &\n"
        "^X 3 X1 G - & & & - & & & + 95 1% - & & - & & &\n"
        "^X 0 VDN L - & & & - & & & + 95 0.001 - & & - & & &\n"
        "^g 25 3 1 2 50 2 0.98 3 0.01 1\n"
        "^Y 0.1 & & & & & & & & & & & & 0.001 & & & &\n"
        "^G 300 3 101.325 2 0.5 2 980 3 & &\n"};
    for (const std::string& lines : ternary)
        EXPECT_EQ(behind(SettledMixtures("^T 64175 67663 7732185 &\n" + lines)), lines);
}

TEST_F(MixtureReader, ASaveChangesNothingInMemory) {
    Read(Head + "^T 64175 67663 7732185 &\n"
                "^A & O & & & & & one ::dHSL:0.1:dX1:1%:dP:0.2:\n"
                "^2 2 1 1 HA S DPT 1 Y L P 101.325 L2 -2 X1 S T C & & & & & &\n"
                "^X 3 P L - & & & - & & & + 95 0.1 - & & - & & &\n^d 0.1 25 1 & 7\n");
    clsMV& set = *Mixture().recMV.Item(std::size_t{1});
    set.PROPERTY_UNIT = "J/mol";
    set.Variables[1].unit = "F";
    set.Constraints[1].unit = "mmHg";
    set.SOLVENT.clear();
    const auto fields = [&set] {
        std::string text;
        for (const std::string& field :
             {set.SMPNM1, set.SMPNM2, set.SMPNM3, set.STANDARD_STATE, set.COMPOSITION,
              set.REFERENCE_TEMPERATURE, set.REFERENCE_PRESSURE, set.REFERENCE_PHASE, set.PRPSETNO,
              set.PROPERTY_UNIT, set.DATATYPE, set.Header.DATACOMMENT,
              std::string(set.recData.Item(1)->VARIABLE(2))})
            text += field + "|";
        return text + std::to_string(set.Factor) + (set.isOriginalUnit ? "o" : "s");
    };
    const MixtureLine before = set.Definition();
    const std::string text = fields();
    const StatementsOfSet stated = set.UX;
    const std::string saved = DocumentAsRecords();
    EXPECT_EQ(set.Definition(), before);
    EXPECT_EQ(fields(), text);
    EXPECT_EQ(set.UX, stated);
    EXPECT_EQ(DocumentAsRecords(), saved);
    EXPECT_EQ(SavedAgain(saved), saved);
}

} // namespace
} // namespace vexora
