#include "chem/CommentTags.h"
#include "records/DocumentCheck.h"
#include "records/RandomFields.h"
#include "records/ReactionText.h"
#include "records/RoundTripFixture.h"
#include "records/clsC.h"
#include "records/clsE.h"
#include "records/clsQ.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

#include <map>

namespace vexora {
namespace {

const std::string Head = "\n^R 1950 cox wag 1\n^J#J#O#J#T##A##S#0####\n"
                         "^L 65850 NNNNN &\n^S 1 cm;;99.9m%,gc\n"
                         "^L 7782447 NNNNN &\n^L 124389 NNNNN &\n^L 7732185 NNNNN &\n^S 1 ns\n"
                         "^L 10544726 NNNNN &\n^S 1 ns\n^S 2 ns\n^L 10102440 NNNNN &\n";
const std::string Combustion = "^Q CMO 65850 7782447 124389 7732185 N N & & & & & &\n";
const std::string Coefficients = "^q -1 -7.50 7 3.0 & & & & 1 & & & & & & &\n";
const std::string Change = " -1 -7.5 7 3 0 0 0 0 HR ";
const std::string Phases = " C G G L & & & & 1 & & & & & & & & & & & & & & & 0 0 0 0 0 0 0 0 & & "
                           "298.15 101.325 298.15 101.325 ";

class ReactionRecords : public test::RoundTripFixture {
protected:
    /// The lines of the reactions behind the head, after some loads and saves.
    std::string Settled(const std::string& lines) {
        const std::string first = LoadAndSave(Head + lines);
        const auto lostAtFirst = lost;
        EXPECT_EQ(SavedAgain(first), first);
        lost = lostAtFirst;
        const std::size_t at = first.find("\n^Q ");
        return at == first.npos ? "" : first.substr(at + 1);
    }
    /// Lines named on reading, which all lie behind the head.
    std::string LostLines() const {
        const auto before = std::count(Head.begin(), Head.end(), '\n');
        std::string text;
        for (const LineLost& one : lost)
            text += std::to_string(one.line - before) + " " + one.text + "\n";
        return text;
    }
    clsR& Source() const { return *globals.recR.Item(std::size_t{1}); }
    clsQ& Reaction(std::size_t position = 1) const { return *Source().recQ.Item(position); }
};

TEST_F(ReactionRecords, AReactionComesBackBeforeItHasDataAndWithThem) {
    EXPECT_EQ(Settled(Combustion + Coefficients), Combustion + Coefficients);
    EXPECT_EQ(Reaction().Coeff(2), "-7.50");
    EXPECT_EQ(Reaction().Reaction, "=");
    EXPECT_EQ(Reaction().CHANGEDSTATE() + Reaction().EQUILIBRIUM(), "NN");
    // Data bear the coefficients, but for those of the last two participants of an equilibrium.
    const std::string reactions =
        "^Q CMO 65850 7782447 124389 7732185 Y N & & & & & 7732185\n"
        "^A & O & & & & & of the paper\n"
        "^c" +
        Change + "Z 65850 1" + Phases +
        "-26434 5 1% 3\n"
        "^X 0 HR & - & & & - & & & + 95 0.5 - & & - & & &\n"
        "^A & O & & & & & &\n^M 4.5\n"
        "^c" +
        Change + "S S 2" + Phases +
        "-715 & & &\n^M 0\n"
        "^A & O & & & & & &\n"
        "^C" +
        Change + "Z S 3" + Phases +
        "-3226.9 & & &\n"
        "^Q OTH 10544726 10102440 999999994 999999994 N Y & & & & & &\n"
        "^A & O & & & & & dissociation\n"
        "^E -1 2 0 0 0 0 1 & & & & & KP S 1 C & & & T C & & & & & & G 12 & & & & & & P 101.325 & & "
        "& & & &\n"
        "^X 1 T & - & & & - & & & + 95 0.1 - & & - & & &\n"
        "^X 2 P & - & & & - & & & + 95 1 - & & - & & &\n"
        "^d 25 0.146 &\n^d 35 0.32 0.01\n^M 0\n"
        "^A & O & & & & & &\n"
        "^H -1 2 0 0 0 0 2 & & & & & KP S 2 Y & & & T S XI1 S & & & & G 12 & & & & & & & & & & & & "
        "& &\n"
        "^d 298.15 0.5 0.146 &\n^M 0\n"
        "^Q CMO 74828 7782447 124389 7732185 N Y & & 7727379 1333740 & &\n"
        "^q -1 -2 1 2 & & 0.5 -0.5 & & & & & & 1 &\n"
        "^A & O & & & & & &\n"
        "^E -1 -2 1 2 0 0 & & & & & & KT S 1 Y & & P T S & & & & & & G 1234 & & & & & & & & & & & "
        "& & &\n"
        "^M 0\n";
    std::string settled = Settled(reactions);
    EXPECT_EQ(LostLines(), "");
    EXPECT_EQ(settled, reactions);
    const std::string tree = Tree();
    EXPECT_EQ(tree.substr(std::min(tree.find("  benzoic acid + "), tree.size())),
              "  benzoic acid + 7.5 oxygen = 7 carbon dioxide + 3 water\n"
              "    ^C: Molar enthalpy of reaction (J/g of benzoic acid, Set 1)\n"
              "    ^C: Molar enthalpy of reaction (4.5* kJ/mol, Set 2)\n"
              "    ^C: Molar enthalpy of reaction (kJ/mol, Set 3)\n"
              "  dinitrogen tetroxide = 2 nitrogen dioxide\n"
              "    ^E: Equilibrium constant in terms of partial pressure (1, Set 1)\n"
              "    ^E: Equilibrium constant in terms of partial pressure (1, Set 2)\n"
              "  methane + 2 oxygen + 0.5 hydrogen = carbon dioxide + 2 water + 0.5 nitrogen\n"
              "    ^E: Thermodynamic equilibrium constant (1, Set 1)\n");
    const clsC& value = *Reaction().recC.Item(std::size_t{1});
    EXPECT_EQ(value.PROPERTY_UNIT, "Z 65850");
    EXPECT_NEAR(value.SystemValue(), -3228.2, 0.05);
    EXPECT_EQ(Reaction(2).recE.Item(std::size_t{2})->nVar, 2);
}

TEST_F(ReactionRecords, LinesWithoutTheirPlaceAreNamedAndFactorsStayWithTheirOwn) {
    const std::string header = "^A & O & & & & & &\n";
    const auto change = [&](const std::string& unit) {
        return Change + unit + Phases + "-3226.9 & & &\n";
    };
    const struct {
        std::string lines, reactions, lost, told;
    } cases[] = {
        {Combustion + header + "^M 4184\n^C" + change("S S 1") + header + "^c" + change("S S 2"),
         "^C" + change("S S 1") + "^c" + change("S S 2"),
         "3 no value stands in the unit of the factor 4184\n", ""},
        {Combustion + header + "^M 122.12\n^c" + change("Z S 1") + header + "^c" + change("S S 2"),
         "^c" + change("Z S 1") + "^c" + change("S S 2"), "", ""},
        // Nor without a header in between does a factor go on to the next.
        {Combustion + header + "^M 2\n^c" + change("S S 1") + "^c" + change("S S 2"),
         "^M 2\n^c" + change("S S 1") + "^M 0\n^c" + change("S S 2"), "", ""},
        {Combustion + header + "^c" + change("S S 1") + header + "^c" + change("S S 1"),
         "^c" + change("S S 1") + "^c" + change("S S 2"), "",
         "Duplicate data set number will be changed 1950 cox wag 1 "
         "benzoic acid + 7.5 oxygen = 7 carbon dioxide + 3 water\n"},
        // The same reaction again goes on with the first.
        {Combustion + Coefficients + Combustion + header + "^c" + change("S S 1") +
             "^q -1 -8 7 3 & & & & 1 & & & & & & &\n",
         "^c" + change("S S 1"),
         "6 the reaction has other coefficients or samples already, or words stand behind the last "
         "one\n",
         ""},
        {Combustion + header + "^z 1 TC S 1 L G & 500 & & &\n", "",
         "3 a reaction has no data of this kind\n", ""},
    };
    for (const auto& one : cases) {
        if (!one.told.empty())
            desktop.Expect("Duplicate data set number will be changed\n1950 cox wag 1\n"
                           "benzoic acid + 7.5 oxygen = 7 carbon dioxide + 3 water");
        globals.recR.Clear();
        form.tvwTree.Clear();
        globals.ForgetCurrent();
        const ReadResult result = ReadDocument(Head + one.lines);
        lost = result.lost;
        EXPECT_EQ(LostLines(), one.lost);
        std::string told;
        for (const LineLost& notice : result.told)
            told += notice.text + "\n";
        EXPECT_EQ(told, one.told);
        std::string data;
        for (const std::string& line : Split(DocumentAsRecords(), '\n'))
            if (IsOneOf(line.substr(0, 3), {"^C ", "^c ", "^M "})) data += line + "\n";
        EXPECT_EQ(data, one.reactions) << one.lines;
    }
    globals.recR.Clear();
    globals.ForgetCurrent();
    const ReadResult result = ReadDocument(Head + Coefficients + header +
                                           "^E -1 2 0 0 0 0 & & & & & & KP S 1\n"
                                           "^d 298.15 0.146 &\n^M 0\n");
    lost = result.lost;
    EXPECT_EQ(LostLines(), "1 no reaction stands before it\n3 no reaction stands before it\n");
    EXPECT_EQ(result.linesNotKept, 5);
}

class RandomReactions : public ReactionRecords {
protected:
    clsQ& AddReaction(int number) {
        static const std::vector<std::string> compounds = {
            "",         "65850",    "7782447", "124389",   "7732185",
            "10544726", "10102440", "65850",   "10544726", "10102440"};
        auto reaction = std::make_shared<clsQ>();
        reaction->REACTCLASS = "R" + std::to_string(number) + random.Text();
        reaction->RN(1, "65850");
        for (int i = 2; i <= clsQ::MostParticipants; ++i)
            reaction->RN(i, random.Of(compounds));
        reaction->SOLVENTRN = random.Of(compounds);
        reaction->INERTRN = random.Of(compounds);
        for (int i = 1; i <= clsQ::MostParticipants; ++i) {
            reaction->Coeff(i, random.Number());
            reaction->SMPNM(i, random.Text());
        }
        reaction->AttachTo(Source());
        return *reaction;
    }
    void AddChange(clsQ& reaction) {
        auto value = std::make_shared<clsC>();
        for (int i = 1; i <= clsQ::MostParticipants; ++i) {
            value->PARTICIPANT_COEFF(i, random.Number());
            value->PARTICIPANT_PHASE(i, random.Text());
            value->SMPNM(i, random.Text());
            value->COMPOSITION(i, random.Text());
            value->COMPOSITION_VALUE(i, random.Number());
        }
        value->isOriginalUnit = random.Below(2) == 0;
        value->PRPCODE = random.Of({"HR", "SR", "UR", "\u00DCx"});
        value->UnitCode(random.Of({"", "S", "Z", "J", "*", "2.5", "B"}));
        value->MassOf(random.Of({"", "65850", "124389"}));
        value->PRPSETNO = std::to_string(reaction.recC.Count() + 1);
        if (value->UnitCode() == "*") value->Factor = 4.184;
        for (std::string* field :
             {&value->SOLVENT_PHASE, &value->STANDARD_STATE, &value->INITIAL_TEMPERATURE,
              &value->INITIAL_PRESSURE, &value->FINAL_TEMPERATURE, &value->FINAL_PRESSURE})
            *field = random.Text();
        value->PRPVALUE = random.Number();
        value->PRPUNCERTY = random.Text();
        value->DETERMNM = random.Text();
        value->Header.DATACOMMENT = random.Number();
        value->AttachTo(reaction);
    }
    void AddEquilibrium(clsQ& reaction) {
        auto set = std::make_shared<clsE>();
        for (int i = 1; i <= clsE::Participants; ++i) {
            set->PARTICIPANT_COEFF(i, random.Number());
            set->SMPNM(i, random.Text());
        }
        for (int i = 1; i <= clsE::Places; ++i) {
            set->INDEPENDENT_VAR(i, random.Of({"", "T", "P", "X1", "XI8", "\u00DCx"}));
            set->VAR_UNIT(i, random.Of({"", "S", "C"}));
            set->PHASE(i, random.Text());
            set->COMPONENTS_IN_PHASE(i, random.Of({"", "1", "13", "123456"}));
            set->CONSTANT_VARIABLE(i, random.Of({"", "T", "P", "X2"}));
            set->CNVARVALUE(i, random.Number());
        }
        set->nVar = 1 + random.Below(3);
        // How many variables a set of several has is told by its line.
        for (int i = 1; set->nVar > 1 && i <= clsE::Places; ++i)
            set->INDEPENDENT_VAR(i, i <= set->nVar ? random.Of({"T", "X3"}) : "");
        set->PRPCODE = random.Of({"KT", "KP", "\u00DCx"});
        set->PROPERTY_UNIT = random.Of({"", "S", "*", "2.5"});
        if (set->PROPERTY_UNIT == "*") set->Factor = 10;
        set->PRPSETNO = std::to_string(reaction.recE.Count() + 1);
        for (std::string* field :
             {&set->DATATYPE, &set->EXPERIMENTAL_DESIGN, &set->SOLVENTPHASE, &set->STANDARD_STATE})
            *field = random.Text();
        set->Header.DATACOMMENT = random.Number(); // its tags are put in order
        for (int rows = random.Below(3); rows > 0; --rows) {
            clsData row;
            row.nVar = static_cast<std::int8_t>(set->nVar);
            for (int n = 0; n <= set->nVar; ++n)
                row.Values[static_cast<std::size_t>(n)] = NumberText(1 + random.Below(5000));
            set->AddRow(row);
        }
        set->AttachTo(reaction);
    }

    test::RandomFields random;
};

TEST_F(RandomReactions, EveryLineIsWrittenAsItWasRead) {
    Read(Head);
    constexpr int reactions = 4'000; // with data and without
    for (int n = 1; n <= reactions; ++n) {
        clsQ& reaction = AddReaction(n);
        if (n % 2 == 0) continue;
        if (n % 8 != 1) AddChange(reaction);
        if (n % 8 != 3) AddEquilibrium(reaction);
        if (n % 8 == 3) AddChange(reaction);
        if (n % 8 == 1) AddEquilibrium(reaction);
    }
    const std::string written = DocumentAsRecords();
    std::map<std::string, int> counts;
    for (const std::string& line : Split(written, '\n'))
        ++counts[line.substr(0, 2)];
    EXPECT_EQ(counts["^Q"], reactions);
    EXPECT_GT(counts["^q"], reactions / 2 - 100);
    EXPECT_EQ(counts["^C"] + counts["^c"], reactions / 2);
    EXPECT_EQ(counts["^E"] + counts["^H"], reactions / 2);
    const std::string again = SavedAgain(written);
    // Not as one comparison, whose difference would be as long as the document.
    const std::vector<std::string> before = Split(written, '\n'), after = Split(again, '\n');
    ASSERT_EQ(after.size(), before.size());
    for (std::size_t i = 0; i < before.size(); ++i)
        ASSERT_EQ(after[i], before[i]);
}

TEST_F(ReactionRecords, ParticipantsAreSortedWithAllThatNamesThem) {
    // A number of ten digits stands in front of water all the same; the gap closes.
    Read(Head +
         "^L 1000000009 NNNNN &\n"
         "^Q OTH 7732185 10544726 999999994 7782447 N N 1000000009 124389 65850 & & &\n"
         "^q 1 2 & 4 5 6 7 & 1 2 & & & & 1 &\n"
         "^A & O & & & & & ::PYC:dX2:0.001:\n"
         "^C 1 2 0 4 5 6 7 0 HR S S 1 L1 L2 & L4 L5 L6 L7 & 1 2 & & & & 1 & & & & & & & & & 0 "
         "0.2 0 0 0 0 0 0 & & & & & & 1 & & &\n"
         "^A & O & & & & & ::PYC:dXI1:0.001:\n"
         "^H 1 2 0 4 5 6 1 2 & & & & KT S 1 Y & & P T S XI1 S & & & & G 1256 & & & & & & X1 "
         "0.5 & & & & & &\n"
         "^X 2 XI1 & - & & & - & & & + 95 0.1 - & & - & & &\n"
         "^D 300 0.1 2 &\n^M 0\n");
    EXPECT_TRUE(Reaction().Sort());
    EXPECT_FALSE(Reaction().Sort());
    Reaction().Rekey();
    const std::string text = DocumentAsRecords();
    EXPECT_EQ(text.substr(text.find("^Q ")),
              "^Q OTH 65850 10544726 1000000009 124389 Y Y 7732185 7782447 & & & &\n"
              "^A & O & & & & & ::PYC:dX2:0.001:\n"
              "^C 7 2 5 6 1 4 0 0 HR S S 1 L7 L2 L5 L6 L1 L4 & & 1 2 & & 1 & & & & & & & & & & & 0 "
              "0.2 0 0 0 0 0 0 & & & & & & 1 & & &\n"
              "^A & O & & & & & ::PYC:dXI5:0.001:\n"
              "^H 7 2 5 6 1 4 1 2 & & 1 & KT S 1 Y & & P T S XI5 S & & & & G 2345 & & & & & & X5 "
              "0.5 & & & & & &\n"
              "^X 2 XI5 & - & & & - & & & + 95 0.1 - & & - & & &\n"
              "^D 300 0.1 2 &\n^M 0\n");
    EXPECT_EQ(Reaction().Coeff(1), "7");
    EXPECT_EQ(Source().FindQ(Reaction()).get(), &Reaction());
}

TEST_F(ReactionRecords, SettingASetGivesTheReactionItsSamples) {
    Read(Head + Combustion + "^A & O & & & & & &\n^C" + Change + "S S 1" + Phases + "1 & & &\n");
    Reaction().SMPNM(1, "9");
    Reaction().SMPNM(2, "9");
    globals.CurrentKey.clear();
    Reaction().recC.Item(std::size_t{1})->SetMe();
    EXPECT_EQ(globals.CurrentKey, "RQC");
    EXPECT_EQ(globals.DataContext, "React");
    EXPECT_EQ(globals.CurrentQ.get(), &Reaction());
    EXPECT_EQ(Reaction().SMPNM(1) + "," + Reaction().SMPNM(2), "1,");
}

TEST_F(ReactionRecords, CompoundsAreThereAndBearTheLettersOfTheirReactions) {
    const std::string text = LoadAndSave(
        "\n^R 1950 cox wag 1\n^Q CMO 74828 7782447 124389 7732185 N N & & & & 64175 &\n"
        "^A & O & & & & & &\n^C" +
        Change + "S S 1" + Phases +
        "1 & & &\n"
        "^A & O & & & & & &\n^E 1 1 0 0 0 0 & & & & & & KP S 1 Y & & & T S & & & & & & L "
        "1 & & & & & &\n^M 0\n");
    EXPECT_EQ(text.substr(text.find("^L "), text.find("^Q ") - text.find("^L ")),
              "^L 74828 NNNDD &\n^L 7782447 NNNDD &\n^L 124389 NNNDD &\n"
              "^L 7732185 NNNDD &\n^L 64175 NNNNN &\n");
    EXPECT_EQ(Source().PRPCLASS, "Qk");
    EXPECT_EQ(Reaction().Name(1), "methane");
    EXPECT_TRUE(Reaction().OnlyCHNO());
}

TEST_F(ReactionRecords, EquationsReadAsChemistsWriteThem) {
    const std::vector<EquationTerm> combustion = {
        {"-1", "C3H8", "Gas"}, {"-5.0", "O2", "Gas"}, {"3", "CO2", "Gas"}, {"+4", "H2O", "Liquid"}};
    EXPECT_EQ(EquationText(combustion), "C3H8 (Gas) + 5.0 O2 (Gas) = 3 CO2 (Gas) + 4 H2O (Liquid)");
    EXPECT_EQ(FormulaEquation(combustion), "-1C3H8-5.0O2=3CO2+4H2O");
    EXPECT_EQ(EquationText({{"", "C3H8"}, {"2", "water"}}), "C3H8 = 2 water");
    EXPECT_EQ(EquationText({}), "");
    EXPECT_TRUE(OnlyCHNO("-1C3H8-5.0O2=3CO2+4H2O"));
    EXPECT_FALSE(OnlyCHNO("-1CCl4"));
    EXPECT_TRUE(HoldsPClBr({"H2O", "CHBr3"}));
    EXPECT_FALSE(HoldsPClBr({"PtO2", "InN", "Pb", "C3H8"}));
}

TEST_F(ReactionRecords, TheCheckNamesWhatDoesNotFit) {
    Read(Head +
         "^Q XYZ 65850 7782447 124389 7732185 N N & & & & & &\n"
         "^q -1 -7.5 7 2 & & & & 1 & & & & & & &\n" +
         Combustion +
         "^A & O & & & & & &\n^C -1 -7.5 6 3 0 0 0 0 HR S S 1 C G & QQ & & & & 7 & & & & & & & & & "
         "& & "
         "& & & & 0 0 0 0 0 0 0 0 & Y 0 101.325 & -1 abc & & &\n"
         "^A & O & & & & & &\n^c -1 -7.5 8 3 0 0 0 0 HR C S 2" +
         Phases +
         "-1 5 & &\n"
         "^Q OTH 10544726 10102440 999999994 999999994 N Y & & & & & &\n"
         "^A & O & & & & & &\n"
         "^E -1 2 0 0 0 0 3 & & & & & KT S 1 Y & & & X3 S & & & & & & & 1 & & & & & & M1 & & & & & "
         "& &\n"
         "^D 0.1 0.146 &\n^M 0\n");
    const auto before = std::count(Head.begin(), Head.end(), '\n');
    std::string text;
    for (const DocumentFinding& finding : CheckDocument({}))
        if (finding.line > before)
            text += std::to_string(finding.line - before) + " " +
                    std::string(SeverityWord(finding.severity)) + ": " + finding.text + "\n";
    const std::string first = "Reaction benzoic acid + 7.5 oxygen = 7 carbon dioxide + 2 water: ";
    const std::string change = "Molar enthalpy of reaction: ";
    const std::string equilibrium = "Thermodynamic equilibrium constant: ";
    EXPECT_EQ(text, "1 error: " + first + "unknown class XYZ\n1 error: " + first +
                        "the reaction is not balanced; reactants have left over H 2, O 1\n"
                        "1 hint: " +
                        first +
                        "no data are given\n"
                        "3 error: Reaction benzoic acid + 7.5 oxygen = 6 carbon dioxide + 3 water: "
                        "the reaction is not balanced; reactants have left over C 1, O 2\n"
                        "5 warning: " +
                        change +
                        "no phase of carbon dioxide is stated\n"
                        "5 error: Unknown phase QQ\n"
                        "5 error: " +
                        change +
                        "benzoic acid has no sample 7\n"
                        "5 error: " +
                        change +
                        "unknown standard state Y\n"
                        "5 error: " +
                        change +
                        "invalid initial temperature 0\n"
                        "5 warning: " +
                        change +
                        "no final temperature is stated\n"
                        "5 error: " +
                        change +
                        "invalid final pressure -1\n"
                        "5 error: " +
                        change +
                        "the value is no number: abc\n"
                        "5 hint: " +
                        change +
                        "no uncertainty is stated\n"
                        "7 error: " +
                        change +
                        "the reaction is not balanced; products have left "
                        "over C 1, O 2\n"
                        "7 error: " +
                        change +
                        "Invalid conversion factor: C is no unit of kJ/mol\n"
                        "10 error: No phase is given\n"
                        "10 warning: " +
                        equilibrium +
                        "nitrogen dioxide is not associated with any phase\n"
                        "10 error: " +
                        equilibrium +
                        "unknown constraint M1\n"
                        "10 error: " +
                        equilibrium +
                        "dinitrogen tetroxide has no sample 3\n"
                        "10 warning: " +
                        equilibrium +
                        "no standard state is stated\n"
                        "10 hint: " +
                        equilibrium +
                        "no uncertainty is stated\n"
                        "10 error: " +
                        equilibrium + "unknown variable X3\n");
}

} // namespace
} // namespace vexora
