#include "records/BioFixture.h"
#include "records/LineNames.h"
#include "records/RandomFields.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

#include <map>

namespace vexora {
namespace {

using BioRecords = test::BioFixture;
using test::BioHead;

const std::string Header = "^A & O B & AB CD 11/22/2026 of the paper\n";
const std::string Isomerization = Header +
                                  "BR 1 0\n"
                                  "BP 1 50997 0 1 50997 D-glucose C6H12O6 180.156 0 -1 L1 0 & &\n"
                                  "BP 0 57487 0 & 57487 D-fructose C6H12O6 180.156 0 1 L1 0 & &\n"
                                  "BP 0 7732185 0 2 7732185 water H2O 18.015 0 0 & 0 & &\n"
                                  "BP 0 1014 0 & 1014 glucose_isomerase & 0 0 0 & -3 5.3.1.5 1XIB\n"
                                  "BC 7732185 Solvent L1 2 the rest  of it\n"
                                  "BC 50997.2 Inert & & &\n"
                                  "BC 1014 Catalyst & & 0.1 mg\n"
                                  "BV KJ 1 & & 2% P &\n"
                                  "BV H kJ/mol & & & P &\n"
                                  "BV T C & & * V &\n"
                                  "BV pH 1 & & & V &\n"
                                  "BV J mol/dm3 & 50997.2 0.01 C 0.050\n"
                                  "BV P MPa & & & C 0.101325\n"
                                  "BE\n"
                                  "BM chromatography  of equilibrated solutions\n"
                                  "B0 1 0\n"
                                  "BD 0.865 & 25.00 0.05 7.2\n"
                                  "BD 1.050 2.8 45.10 0.1 &\n"
                                  "^X 0 KJ & - & & & + 1 0.002 3 - & & - & & - & & &\n"
                                  "^X 4 J & - & & & - & & & + 95 0.001 - & & - & & &\n";
const std::string Unfolding = Header + "BN 1\n"
                                       "BP 1014 0 & & glucose_isomerase 1014 & 0 -3 5.3.1.5 1XIB\n"
                                       "BP 7732185 0 2 & water 7732185 H2O 18.015 0 & &\n"
                                       "BH D & Native partly_unfolded & & & &\n"
                                       "BC 7732185 Solvent & 2 &\n"
                                       "BV T12 K & & 0.2 P &\n"
                                       "BV pH 1 & & & C 4.5\n"
                                       "BE\n"
                                       "BM calorimetry\n"
                                       "BD 349.1\n";
const std::string Solubility = Header + "BN 2\n"
                                        "BP 50997 0 1 & D-glucose 50997 C6H12O6 180.156 0 & &\n"
                                        "BP 7732185 0 2 & water 7732185 H2O 18.015 0 & &\n"
                                        "BP 50997.2 0 & & D-glucose 50997 C6H12O6 180.156 0 & &\n"
                                        "BH S 1 & & C L & G\n"
                                        "BC 7732185 Solvent L 2 &\n"
                                        "BC 50997.2 Buffer_component & & &\n"
                                        "BV E kg/dm3 L & & P &\n"
                                        "BV Xs 1 L 7732185 & V &\n"
                                        "BV W per_cent & 50997.2 & C 1.50\n"
                                        "BE\n"
                                        "BM &\n";

TEST_F(BioRecords, EverythingThatASetSaysComesBack) {
    EXPECT_EQ(Settled(Isomerization + Unfolding + Solubility),
              Isomerization + Unfolding + Solubility);
    EXPECT_EQ(LostLines(), "");
    const clsBR& set = Reaction();
    EXPECT_EQ(set.Participants,
              (std::vector<BioParticipant>{{"50997", "1", "-1", "L1"}, {"57487", "", "1", "L1"}}));
    EXPECT_EQ(set.Components[0],
              (BioComponent{"7732185", "2", "Solvent", "L1", "the rest  of it"}));
    EXPECT_EQ(set.Quantities()[2], (BioQuantity{BioRole::Variable, "T", "C", "", "", "*", ""}));
    EXPECT_EQ(set.Quantities()[5].value, "0.101325");
    EXPECT_EQ(set.recD[1].Cells[2], (BioCell{"45.10", "0.1"}));
    EXPECT_TRUE(set.recD[1].Flag1 && !set.recD[1].Flag2);
    EXPECT_EQ(set.recU[4].UValue, "0.001");
    EXPECT_EQ(set.Header.COMPILER + " " + set.Header.DATACOMMENT, "AB of the paper");
    EXPECT_EQ(set.NameOf(set.Quantities()[4]), "MolaRity of D-glucose");
    // Of two that one would take for the same the second is numbered.
    const auto both = set.Copy();
    both->Add({BioRole::Variable, "J", "mol/dm3", "", "50997", "", ""});
    EXPECT_EQ(both->NameOf(both->Quantities()[4]), "MolaRity of D-glucose");
    EXPECT_EQ(both->NameOf(both->Quantities()[5]), "MolaRity of D-glucose (2)");
    EXPECT_EQ(set.UnitOf(set.Quantities()[0]) + "|" + set.UnitOf(set.Quantities()[2]), "|C");
    EXPECT_EQ(set.UnitOf({BioRole::Variable, "M", "", "", "", "", ""}), "mol/kg");
    EXPECT_NEAR(set.ConversionOf(set.Quantities()[2]).Absolute(25), 298.15, 1e-9);
    EXPECT_EQ(Property().State2, "partly unfolded");
    EXPECT_EQ(Property(2).PHASE4, "G");
    EXPECT_EQ(Property(2).NameOf(Property(2).Quantities()[1]),
              "Solvent: mole fraction of water (Liquid)");
    const std::string tree = Tree();
    EXPECT_EQ(tree.substr(std::min(tree.find("  BioReaction"), tree.size())),
              "  BioReaction 1 (D-glucose = D-fructose)\n"
              "  BioProperty Set # 1 (glucose isomerase) from DSC (Native, partly unfolded)\n"
              "  2: Solubility of D-glucose in water\n");
}

TEST_F(BioRecords, ASelectedSetIsTheCurrentOne) {
    Read(BioHead + Isomerization + Unfolding);
    const auto select = [this](Record& record) {
        globals.CurrentKey.clear();
        record.SetMe();
        return globals.CurrentKey + " " + globals.DataContext;
    };
    EXPECT_EQ(select(Reaction()), "RBR React");
    EXPECT_EQ(CurrentBioSet().get(), &Reaction());
    EXPECT_EQ(CurrentSet(), nullptr);
    EXPECT_EQ(select(Property()), "RBP Bio");
    EXPECT_EQ(CurrentBioSet().get(), &Property());
    Property().PrpType = "G";
    EXPECT_EQ(select(Property()), "RXSP Pure");
    EXPECT_EQ(select(Source()), "R Pure");
    EXPECT_EQ(CurrentBioSet(), nullptr);
}

TEST_F(BioRecords, SetsOfOneReactionStandSideBySideAndAreFoundByNumber) {
    Read(BioHead + Isomerization + Replace(Isomerization, "BR 1", "BR 7"));
    EXPECT_EQ(Reaction().Key(), "RBR50997,57487");
    EXPECT_EQ(Source().FindBR(7).get(), &Reaction(2));
    EXPECT_EQ(Source().NextBRNumber(), 3);
    const auto copy = Reaction(2).Copy();
    copy->SetNo = 3;
    copy->AttachTo(Source());
    EXPECT_EQ(Source().NextBRNumber(), 4);
    const auto second = Reaction(2).As<clsBR>();
    EXPECT_EQ(second->Leave(), 2U);
    EXPECT_EQ(Source().FindBR(7), nullptr);
    EXPECT_TRUE(second->Return(2));
    EXPECT_FALSE(second->Return(2));
    copy->SetNo = 9;
    second->Replace(*copy);
    EXPECT_EQ(Source().FindBR(9), second);
    EXPECT_EQ(Source().FindBR(7), nullptr);
    EXPECT_EQ(Source().recBR.Count(), 3U);
}

// What is named of lines behind the head, and what a save writes of them but the header.
TEST_F(BioRecords, WhatALoadPassesOverIsNamed) {
    const std::string head =
        "BR 1 1\nBP 0 50997 0 & 50997 D-glucose C6H12O6 180.156 0 -1 & 0 & &\n";
    const std::string end = "BE\nBM &\nB0 0 0\n";
    const std::string twice = "this stands once more in line ";
    const struct {
        std::string lines, saved, lost;
    } cases[] = {
        {head + "BC 64175 Inert & & &\n" + end, head + end,
         "3 no line of the set names the compound 64175\n"},
        {head + "BV T K & & & Q & too much\nBE x\nBD 300 301\n",
         head + "BV T K & & & V &\n" + end + "BD 300\n",
         "3 words stand behind the last field\n3 the role of the quantity is none of P, V and C\n"
         "5 words stand behind the last field\n"},
        {head + "BH D & & & & & & &\n" + end, head + end, "3 a bio reaction has no such line\n"},
        {head + "BE\nBM one\nBM two\nB0 1 1\nB0 0 0\n", head + "BE\nBM two\nB0 0 0\n",
         "4 " + twice + "@5, which takes its place\n6 " + twice + "@7, which takes its place\n"},
        // Without the line that ends it a set is lost, in the middle of a file and at its end.
        {head + head + "BE\n" + Replace(head, "BR 1", "BR 2"), head + end,
         "1 the bio set that begins here has no line that ends it (BE)\n"
         "6 the bio set that begins here has no line that ends it (BE)\n"},
        // Behind its end it still takes lines, and ends once.
        {head + "BE\nBE\nBV T K & & & V &\nBD 300.0\nBD\n",
         head + "BV T K & & & V &\n" + end + "BD 300.0\nBD &\n", ""},
        {head + "BV T K & & & C 300\nBV pH 1 & & & V &\nBV KT 1 & & & P &\n" + end +
             "BD 2 7\n^X 0 T & + & & 1 - & & & - & & - & & - & & &\n"
             "^X 2 KT & + & & 2 - & & & - & & - & & - & & &\n"
             "^X 9 T & + & & 3 - & & & - & & - & & - & & &\n",
         head + "BV KT 1 & & & P &\nBV pH 1 & & & V &\nBV T K & & & C 300\n" + end +
             "BD 2 7\n^X 0 KT & + & & 2 - & & & - & & - & & - & & &\n"
             "^X 2 T & + & & 1 - & & & - & & - & & - & & &\n"
             "^X 9 T & + & & 3 - & & & - & & - & & - & & &\n",
         ""},
        {"^M 5\n" + head + end, head + end, "1 no value stands in the unit of the factor 5\n"},
    };
    for (const auto& one : cases) {
        Read(BioHead + one.lines);
        const auto lines = std::count(BioHead.begin(), BioHead.end(), '\n');
        std::string expected = one.lost;
        for (int n = 1; n < 20; ++n)
            expected =
                Replace(expected, "@" + std::to_string(n) + ",", std::to_string(lines + n) + ",");
        EXPECT_EQ(LostLines(), expected) << one.lines;
        EXPECT_EQ(WithoutHeaders(BioLines()), one.saved);
        EXPECT_FALSE(globals.ReadOnly);
    }
}

TEST_F(BioRecords, LinesWithoutASetAreNamedAndBadOnesEndTheRead) {
    for (const std::string line :
         {"BP 0 1 0 & 1", "BC 1 Inert", "BV T K", "BE", "BM x", "B0 0 0", "B0", "BD 1", "BH D"}) {
        const ReadResult result = ReadDocument(BioHead + line + "\n");
        EXPECT_TRUE(result.whole) << line;
        EXPECT_EQ(result.linesNotKept, 1) << line;
        ASSERT_EQ(result.lost.size(), 1U) << line;
        globals.recR.Clear();
        form.tvwTree.Clear();
        globals.ForgetCurrent();
    }
    const struct {
        std::string lines, message;
    } faults[] = {
        {"BR x 0\n", "Incomplete record: BR x 0"},
        {"BN\n", "Incomplete record: BN"},
        {"BR 1 0\nBE\n^D 298.15 997\n", "Incomplete record: ^D 298.15 997"},
        {"BN 3\nBH G 1\nBE\n", "1950 cox wag 1\nGas Hydrate Data Set # 3: Phase Equilibrium"
                               " | Sample not specified"},
    };
    for (const auto& fault : faults) {
        desktop.Expect(fault.message);
        EXPECT_FALSE(ReadDocument(BioHead + fault.lines).whole);
        EXPECT_TRUE(globals.recR.IsEmpty());
    }
}

TEST_F(BioRecords, ANumberInUseGivesWayAndACopyHasNoRows) {
    const auto set = [](const std::string& number, const std::string& method) {
        return Header + "BR " + number + " 1\nBV T K & & & V &\nBE\nBM " + method + "\nB0 0 0\n";
    };
    desktop.Expect("Duplicate data set number will be changed");
    globals.Saved = true;
    Read(BioHead + set("4", "a") + "BD 300\n" + set("4", "b") + "BD 301\nB0 9\nBD 302\nB0\n");
    EXPECT_FALSE(globals.Saved);
    EXPECT_EQ(BioLines(), set("4", "a") + "BD 300\n" + set("5", "b") + "BD 301\n" + set("9", "b") +
                              "BD 302\n" + set("6", "b"));
    EXPECT_EQ(Source().FindBR(9)->recD.size(), 1U);
}

TEST_F(BioRecords, CompoundsComeWithTheSetsAndStayAsTheyAre) {
    const std::string head = "\n^R 1950 cox wag 1\n^J#J#O#J#T##A##S#0####\n";
    const std::string set = Header +
                            "BN 1\n"
                            "BP 2017 0 & & hen_lysozyme 2017 C613H959 8329.5 8 3.2.1.17 1LYZ\n"
                            "BP 7732185 0 & & water 7732185 H2O 18.015 0 & &\n"
                            "BP 50997 0 & & my_glucose 50997 C6H12O6 180.156 0 & &\n"
                            "BP 3010 0 & & mixture 3010 & 5000 0 & &\n"
                            "BP -1 0 & & & -1 & 0 0 & &\nBP 999999994 0 & & & 999999994 & 0 0 & &\n"
                            "BH D & & & & & & &\n"
                            "BC 7732185 Solvent & & &\nBC 50997 Inert & & &\nBC 3010 Inert & & &\n"
                            "BC -1 Inert & & &\nBC 999999994 Inert & & &\nBE\nBM &\n";
    const std::string compounds = "BL 2017 3.2.1.17 1LYZ C613H959 8 hen lysozyme\n"
                                  "^L 7732185 NNNNN &\n^L 50997 NNNNN &\n^N 50997 & my glucose\n"
                                  "BL 3010 & & & 0 mixture\n";
    std::string saved = LoadAndSave(head + set);
    for (int cycle = 0; cycle < 3; ++cycle) {
        EXPECT_EQ(Source().recL.Count(), 4U);
        EXPECT_EQ(saved.substr(saved.find("BL ")), compounds + Replace(set, "8329.5", "8329.415"));
        EXPECT_EQ(Source().FindL("3010")->MMass, 5000);
        EXPECT_EQ(Source().FindL("2017")->Charge, 8);
        EXPECT_FALSE(Source().FindL("7732185")->isNew);
        saved = SavedAgain(saved);
    }
    EXPECT_TRUE(Source().Names("50997"));
    EXPECT_FALSE(Source().Names("64175"));
    // Of a compound that the source has the line can add what is not stated yet, and no more.
    Read(head + "^L 7732185 NNNNN &\nBL 2017 & 1LYZ & 8 hen lysozyme\n" +
         Replace(set, "1LYZ", "2LYZ"));
    EXPECT_EQ(Source().FindL("2017")->EC, "3.2.1.17");
    EXPECT_EQ(Source().FindL("2017")->PDB, "1LYZ");
    ASSERT_EQ(lost.size(), 1U);
    EXPECT_EQ(lost[0].text, "the compound is described before, in another way");
}

TEST_F(BioRecords, AMendedNumberIsThatOfAllItsKeys) {
    desktop.Expect("RN was corrected: from 50998 to 50997");
    Read(BioHead + "BN 1\nBP 50998 0 & & D-glucose 50998 C6H12O6 180.156 0 & &\n"
                   "BP 50998.2 0 & & D-glucose 50998 C6H12O6 180.156 0 & &\n"
                   "BH S & & & & & & &\nBC 50998.2 Inert & & &\n"
                   "BV M mol/kg & 50998.2 & V &\nBV W 1 & 50998 & V &\nBE\n");
    EXPECT_EQ(Property().RN + " " + Property().Components[0].RN, "50997 50997");
    EXPECT_EQ(Property().Quantities()[0].component, "50997.2");
    EXPECT_EQ(Property().Quantities()[1].component, "50997");
    EXPECT_TRUE(StatesContent(Property(), "50997"));
    EXPECT_FALSE(StatesContent(Property(), "7732185"));
}

TEST_F(BioRecords, ASetWithoutAHeaderIsOfWhoeverWorksHere) {
    globals.CompilerCode = "XY";
    globals.ContributorCode = "ZZ";
    Read("\n^R 1950 cox wag 1\nBR 1 0\nBE\n" + Header + "BR 2 0\nBE\nBR 3 0\nBE\n");
    std::string headers;
    for (const auto& set : Source().recBR)
        for (const std::string_view field :
             {set->Header.EXPPURPOSE.View(), set->Header.COMPILER.View(),
              set->Header.CONTRIBUTOR.View(), std::string_view(" ")})
            headers += field;
    EXPECT_EQ(headers, "BXYZZ BABCD BABCD ");
}

/// Codes of the quantities with their cells in the first row and figures of the statements.
std::string Contents(const BioSet& set) {
    std::string text;
    for (std::size_t n = 0; n < set.Quantities().size(); ++n) {
        const BioQuantity& one = set.Quantities()[n];
        text += one.code + "(" + set.recU[n].PRPCODE + set.recU[n].UValue + ")";
        if (n < set.recD[0].Cells.size())
            text += std::string(set.recD[0].Cells[n].value) + "/" +
                    std::string(set.recD[0].Cells[n].uncertainty);
        text += " ";
    }
    return text;
}

TEST_F(BioRecords, StatementsAndCellsGoAlongWithTheirQuantities) {
    Read(BioHead + Isomerization);
    clsBR& set = Reaction();
    EXPECT_EQ(Contents(set), "KJ(KJ)0.865/ H(H)/ T(T)25.00/0.05 pH(pH)7.2/ J(J0.001) P(P) ");
    EXPECT_EQ(set.Add({BioRole::Property, "G"}), 2U);
    set.Erase(1);
    BioQuantity quantity = set.Quantities()[2];
    quantity.uncertainty = "0.1";
    set.Change(2, quantity);
    EXPECT_EQ(Contents(set), "KJ(KJ)0.865/ G(G)/ T(T)25.00/ pH(pH)7.2/ J(J0.001) P(P) ");
    // Varied before and held constant now: its statement stays; the other way it has no cells yet.
    std::vector<BioQuantity> quantities = set.Quantities();
    std::swap(quantities[0], quantities[3]);
    quantities[4].role = BioRole::Variable;
    quantities[2].role = BioRole::Constraint;
    quantities.push_back({BioRole::Variable, "Ic", "mol/dm3"});
    set.TakeQuantities(quantities);
    EXPECT_EQ(Contents(set), "G(G)/ KJ(KJ)0.865/ pH(pH)7.2/ J(J0.001)/ Ic(Ic)/ T(T) P(P) ");
    EXPECT_TRUE(set.Check());
}

TEST_F(BioRecords, UnitsAreThoseThatNeedNoMolarMass) {
    const auto units = [](BioQuantityTexts table, std::string_view code) {
        std::string text;
        for (const std::string& unit : BioUnits(*QuantityByCode(table, code)))
            text += unit + ",";
        return text;
    };
    EXPECT_EQ(units(BioVariables, "T"), "K,C,F,R,");
    EXPECT_EQ(units(BioVariables, "pH"), "1,");
    EXPECT_EQ(units(BioVariables, "Ws"), "1,per cent,ppm,mmol/mol,");
    EXPECT_EQ(units(BioVariables, "H").find("kJ/mol,"), 0U);
    EXPECT_EQ(units(BioVariables, "H").find("J/g,"), std::string::npos);
    EXPECT_NE(units(BioProperties, "Hm").find("J/g,"), std::string::npos);
    clsBR set;
    EXPECT_FALSE(set.ConversionOf({BioRole::Variable, "T", "bar"}).IsPossible());
    EXPECT_NEAR(set.ConversionOf({BioRole::Variable, "W", "per cent"}).Absolute(5), 0.05, 1e-12);
}

TEST_F(BioRecords, FieldsOfTheLinesHaveNames) {
    std::string text;
    for (const char* line :
         {"BP 1 50997.2 0 3 50997 D-glucose C6H12O6 180.156 0 -1 L1 2 5.3.1.5 A",
          "BP 50997.2 0 3 & D-glucose 50997 C6H12O6 180.156 2 5.3.1.5 A", "BD 1 2"}) {
        for (const auto& [name, value] : NamedFields(line))
            text += name + "=" + value + " ";
        text += "\n";
    }
    EXPECT_EQ(text, "tag=BP sample=3 registry number=50997 name=D-glucose formula=C6H12O6 "
                    "coefficient=-1 phase=L1 charge=2 EC number=5.3.1.5 PDB number=A \n"
                    "tag=BP sample=3 name=D-glucose registry number=50997 formula=C6H12O6 charge=2 "
                    "EC number=5.3.1.5 PDB number=A \n"
                    "tag=BD value 1=1 value 2=2 \n");
}

class RandomBio : public BioRecords {
protected:
    void Fill(BioSet& set, const std::vector<std::string>& functions) {
        set.SetNo = ++number;
        set.Method = random.Text();
        set.Flag1 = random.Below(2) == 0;
        set.Header.DATACOMMENT = random.Number();
        for (int n = random.Below(4); n > 0; --n)
            set.Components.push_back({random.Of(compounds), random.Number(), random.Of(functions),
                                      random.Text(), random.Text() + "  " + random.Text()});
        std::vector<std::string> keys = set.Keys();
        keys.push_back("");
        for (int n = random.Below(7); n > 0; --n) {
            const auto role = static_cast<BioRole>(random.Below(3));
            set.Add({role, random.Of({"T", "pH", "X", "KT", "H", "\u00DCx"}),
                     random.Of({"", "1", "K", "per cent", "inHg (conventional)"}), random.Text(),
                     random.Of(keys), random.Of({"", "1%", "0.10", "*"}), random.Number()});
        }
        for (int n = random.Below(4); n > 0; --n) {
            clsBD row;
            for (std::size_t c = 0; c < set.Columns(); ++c)
                row.Cells.push_back(
                    {random.Number(), set.Quantities()[c].StatesByRow() ? random.Text() : ""});
            set.recD.push_back(std::move(row));
        }
        for (std::size_t n = 0; n < set.recU.size(); ++n) {
            if (random.Below(2) == 0) continue;
            set.recU[n].iUnc = true;
            set.recU[n].UValue = random.Number();
        }
    }
    void AddReaction() {
        auto set = std::make_shared<clsBR>();
        set->Notation = random.Below(2) == 0;
        for (int n = 1 + random.Below(3); n > 0; --n)
            set->Participants.push_back(
                {random.Of(compounds), random.Number(), random.Number(), random.Text()});
        for (BioParticipant& one : set->Participants)
            if (Val(one.coefficient) == 0) one.coefficient.clear();
        Fill(*set, {"", "Solvent", "Buffer component", "Cofactor"});
        set->AttachTo(Source());
    }
    void AddProperty() {
        auto set = std::make_shared<clsBP>();
        set->PrpType = random.Of({"D", "S"});
        set->RN = random.Of(compounds);
        set->SMPNM = random.Number();
        set->State1 = random.Of({"", "Native", "partly unfolded"});
        set->State2 = random.Text();
        for (std::string* phase : {&set->PHASE1, &set->PHASE2, &set->PHASE3, &set->PHASE4})
            *phase = random.Text();
        Fill(*set, {"", "Solvent", "Inert"});
        set->AttachTo(Source());
    }

    const std::vector<std::string> compounds = {"50997", "57487", "7732185", "1014", "-1"};
    test::RandomFields random;
    int number = 0;
};

TEST_F(RandomBio, EveryLineIsWrittenAsItWasRead) {
    Read(BioHead);
    constexpr int sets = 2'000;
    for (int n = 0; n < sets; ++n) {
        AddReaction();
        AddProperty();
    }
    const std::string written = DocumentAsRecords();
    std::map<std::string, int> counts;
    for (const std::string& line : Split(written, '\n'))
        ++counts[line.substr(0, 2)];
    for (const char* tag : {"BR", "BN", "BP", "BH", "BC", "BV", "BM", "B0", "BD", "^X"})
        EXPECT_GE(counts[tag], sets) << tag;
    const std::string again = SavedAgain(written);
    // Not as one comparison, whose difference would be as long as the document.
    const std::vector<std::string> before = Split(written, '\n'), after = Split(again, '\n');
    ASSERT_EQ(after.size(), before.size());
    for (std::size_t i = 0; i < before.size(); ++i)
        ASSERT_EQ(after[i], before[i]);
}

} // namespace
} // namespace vexora
