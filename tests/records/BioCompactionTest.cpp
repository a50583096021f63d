#include "records/BioCompaction.h"

#include "records/BioFixture.h"
#include "reference/Text.h"

namespace vexora {
namespace {

using test::BioHead;

const std::string Header = "^A & O B & & & & Table 3\n";

/// What a set of the isomerization is made of, as its lines.
struct SetLines {
    std::string number = "1", notation = "0", header = Header;
    std::string participants = "BP 1 50997 0 1 50997 D-glucose C6H12O6 180.156 0 -1 & 0 & &\n"
                               "BP 0 57487 0 & 57487 D-fructose C6H12O6 180.156 0 1 & 0 & &\n";
    std::string components = "BP 0 7732185 0 2 7732185 water H2O 18.015 0 0 & 0 & &\n"
                             "BC 7732185 Solvent & 2 &\n";
    std::string quantities = "BV KM 1 & & 2% P &\nBV T K & & & C 298.15\nBV pH 1 & & & C 7.50\n";
    std::string end = "BE\n", method = "BM chromatography\n", rows = "B0 0 0\nBD 0.865\n",
                statements;

    std::string Text() const {
        return header + "BR " + number + " " + notation + "\n" + participants + components +
               quantities + end + method + rows + statements;
    }
};

class BioCompactionOf : public test::BioFixture {
protected:
    /// The lines of the sets after they have been made one where they can be.
    std::string Compacted(const std::string& lines) {
        Read(BioHead + lines);
        EXPECT_TRUE(lost.empty()) << LostLines();
        result = CompactBioSets(Source());
        // The sets that were left out name compounds of the document, which is read anew below.
        told = result.Sentences();
        const std::string once = BioLines();
        const BioCompaction again = CompactBioSets(Source());
        EXPECT_TRUE(again.changed.empty() && again.joined.empty());
        EXPECT_EQ(BioLines(), once);
        EXPECT_EQ(LoadAndSave(DocumentAsRecords()), DocumentAsRecords());
        return once;
    }
    std::string Told() const {
        std::string text;
        for (const std::string& sentence : told)
            text += sentence + "\n";
        return text;
    }
    BioCompaction result;
    std::vector<std::string> told;
};

TEST_F(BioCompactionOf, SixSetsOfOneTemperatureEachBecomeOneInTheOrderOfTheirNumbers) {
    const std::vector<std::string> temperatures = {"298.15", "307.9",  "315.2",
                                                   "323.30", "333.15", "343.1"};
    std::string lines;
    // The file has them in another order than their numbers.
    for (const int number : {2, 1, 6, 5, 3, 4}) {
        const auto n = static_cast<std::size_t>(number);
        SetLines set;
        set.number = std::to_string(number);
        set.quantities = "BV KM 1 & & 2% P &\nBV T K & & & C " + temperatures[n - 1] +
                         "\nBV pH 1 & & & C 7.50\n";
        set.rows =
            "B0 0 0\nBD " + std::to_string(number) + ".0\nBD " + std::to_string(number) + ".10\n";
        lines += set.Text();
    }
    SetLines all;
    all.quantities = "BV KM 1 & & 2% P &\nBV T K & & & V &\nBV pH 1 & & & C 7.50\n";
    all.rows = "B0 0 0\nBD 1.0 298.15\nBD 1.10 298.15\nBD 2.0 307.9\nBD 2.10 307.9\n"
               "BD 3.0 315.2\nBD 3.10 315.2\nBD 4.0 323.30\nBD 4.10 323.30\n"
               "BD 5.0 333.15\nBD 5.10 333.15\nBD 6.0 343.1\nBD 6.10 343.1\n";
    EXPECT_EQ(Compacted(lines), all.Text());
    ASSERT_EQ(result.joined.size(), 5U);
    EXPECT_EQ(result.joined[4].set->SetNo, 6);
    EXPECT_EQ(result.joined[4].into, 1);
    const std::string tree = Tree();
    EXPECT_EQ(tree.substr(tree.find("  BioReaction")),
              "  BioReaction 1 (D-glucose = D-fructose)\n");
}

TEST_F(BioCompactionOf, ColumnsComeUnderTheirOwnQuantity) {
    SetLines first, second;
    second.number = "2";
    second.participants += "BP 1 50997.2 0 5 50997 D-glucose C6H12O6 180.156 0 1 & 0 & &\n";
    first.participants = second.participants;
    const std::string water = "BP 0 7732185 0 2 7732185 water H2O 18.015 0 0 & 0 & &\n";
    const std::string enzyme = "BP 0 1014 0 & 1014 glucose_isomerase & 0 0 0 & -3 5.3.1.5 1XIB\n";
    const std::string other = "BP 0 7732185.2 0 3 7732185 water H2O 18.015 0 0 & 0 & &\n";
    // The second set has components, variables and constraints in another order, so that the keys
    // of the two kinds of water have changed places.
    first.components = water + other + enzyme +
                       "BC 7732185 Solvent & 2 &\nBC 7732185.2 Inert & 3 &\n"
                       "BC 1014 Catalyst & & &\n";
    second.components = Replace(Replace(other, "7732185.2", "7732185"), " 3 ", " 3 ") +
                        Replace(water, " 7732185 0 2 ", " 7732185.2 0 2 ") + enzyme +
                        "BC 7732185 Inert & 3 &\nBC 1014 Catalyst & & &\n"
                        "BC 7732185.2 Solvent & 2 &\n";
    first.quantities = "BV KM 1 & & & P &\nBV H kJ/mol & & & P &\nBV T C & & * V &\n"
                       "BV X 1 & 7732185.2 & V &\nBV M mol/kg & 50997.2 & C 0.10\n";
    second.quantities = "BV H kJ/mol & & & P &\nBV KM 1 & & & P &\nBV M mol/kg & 50997.2 & V &\n"
                        "BV T C & & * V &\nBV X 1 & 7732185 & C 0.5\n";
    first.rows = "B0 0 0\nBD 1.0 5.00 25.0 0.1 0.4\n";
    second.rows = "B0 0 0\nBD & 2.0 0.20 30.0 0.2\n";
    SetLines both = first;
    both.quantities = "BV KM 1 & & & P &\nBV H kJ/mol & & & P &\nBV T C & & * V &\n"
                      "BV X 1 & 7732185.2 & V &\nBV M mol/kg & 50997.2 & V &\n";
    both.rows = "B0 0 0\nBD 1.0 5.00 25.0 0.1 0.4 0.10\nBD 2.0 & 30.0 0.2 0.5 0.20\n";
    EXPECT_EQ(Compacted(first.Text() + second.Text()), both.Text());
}

TEST_F(BioCompactionOf, SetsStayApartWhenAnythingElseDiffers) {
    const SetLines first;
    const std::string statement = "^X 1 T & - & & & - & & & + 95 0.1 - & & - & & &\n";
    const struct {
        std::string SetLines::*part;
        std::string with, named;
    } cases[] = {
        {&SetLines::notation, "1", "notation"},
        {&SetLines::header, Replace(Header, "Table 3", "Table 4"), "comment"},
        {&SetLines::header, Replace(Header, " B ", " C "), "header"},
        {&SetLines::participants, Replace(first.participants, " 0 1 & ", " 0 2 & "),
         "participants"},
        {&SetLines::participants, Replace(first.participants, " 0 1 & ", " 0 1 L "),
         "participants"},
        {&SetLines::components, Replace(first.components, "Solvent", "Inert"), "components"},
        {&SetLines::components, Replace(first.components, "2 &", "2 0.1"), "components"},
        {&SetLines::quantities, Replace(first.quantities, "2%", "3%"), "properties"},
        {&SetLines::quantities, Replace(first.quantities, "KM", "KX"), "properties"},
        {&SetLines::quantities, Replace(first.quantities, "T K", "T C"),
         "variables and constraints"},
        {&SetLines::quantities, first.quantities + "BV P kPa & & & C 100\n",
         "variables and constraints"},
        {&SetLines::method, "BM other\n", "method"},
        {&SetLines::rows, Replace(first.rows, "B0 0", "B0 1"), "flags"},
        {&SetLines::statements, statement, "variables and constraints"},
        {&SetLines::statements, Replace(statement, "1 T", "9 T"), "uncertainties"},
    };
    for (const auto& one : cases) {
        SetLines second = first;
        second.number = "2";
        second.*one.part = one.with;
        const std::string both = first.Text() + second.Text();
        EXPECT_EQ(Compacted(both), both);
        ASSERT_EQ(Source().recBR.Count(), 2U);
        EXPECT_EQ(Told(), "BioReaction 2 (" + Reaction(2).Equation() +
                              ") stays apart from set 1, which differs in: " + one.named + "\n");
        EXPECT_FALSE(Reaction().Equal(Reaction(2)));
    }
    // The day of entry may differ.
    SetLines second = first;
    second.number = "2";
    second.header = "^A & O B & & & 1/2/2026 Table 3\n";
    SetLines both = first;
    both.rows += "BD 0.865\n";
    EXPECT_EQ(Compacted(first.Text() + second.Text()), both.Text());
}

TEST_F(BioCompactionOf, PropertiesOfOneSubstanceBecomeOneOfTheirKindAndStates) {
    const auto set = [](const std::string& number, const std::string& kind, const std::string& pH,
                        const std::string& value) {
        return Header + "BN " + number +
               "\nBP 1014 0 & & glucose_isomerase 1014 & 0 -3 5.3.1.5 1XIB\nBH " + kind +
               "\nBV T12 K & & * P &\nBV pH 1 & & & " + (pH.empty() ? "V &" : "C " + pH) +
               "\nBE\nBM DSC\n" + value;
    };
    const std::string native = "D & Native Denatured & & & &",
                      phase = "D & Native Denatured N & & &", state = "D & Native Monomer & & & &";
    EXPECT_EQ(
        Compacted(
            set("1", native, "4.0", "BD 330.1 0.2\n") + set("2", phase, "5.0", "BD 331.1 &\n") +
            set("3", state, "6.0", "BD 332.1 0.2\n") + set("4", native, "7.0", "BD 333.1 0.2\n")),
        set("1", native, "", "BD 330.1 0.2 4.0\nBD 333.1 0.2 7.0\n") +
            set("2", phase, "5.0", "BD 331.1 &\n") + set("3", state, "6.0", "BD 332.1 0.2\n"));
}

TEST_F(BioCompactionOf, PhaseEquilibriaBecomeOneWithinTheirSample) {
    const auto set = [](const std::string& sample, const std::string& number,
                        const std::string& temperature, const std::string& rows) {
        return Header + "BN " + number + "\nBP -1 0 " + sample +
               " & Gas_Hydrate_(water) -1 & 0 0 & &\nBH G " + sample +
               " & & & & & &\nBV P kPa & & & P &\nBV T K & & & " + temperature + "\nBE\nBM &\n" +
               rows;
    };
    const auto sample = [](const std::string& number) {
        return "^A & & & & & & & Table 3\nSB " + number + "\nGH & & & &\nSE\n";
    };
    const std::string complex = "CS 1 Gas Hydrate\nCC 7732185 2 Water &\nCE\n";
    // The last one names the first sample, though the second one stands before it.
    Read(BioHead + complex + sample("1") + set("1", "1", "C 280", "BD 5000\n") +
         set("1", "2", "C 281", "BD 6000\n") + sample("2") + set("2", "1", "C 282", "BD 7000\n") +
         set("1", "3", "C 283", "BD 7500\n"));
    result = CompactBioSets(Source());
    const std::string text = DocumentAsRecords();
    EXPECT_EQ(text.substr(text.find("CS ")),
              complex + sample("1") +
                  set("1", "1", "V &", "BD 5000 280\nBD 6000 281\nBD 7500 283\n") + sample("2") +
                  set("2", "1", "C 282", "BD 7000\n"));
    EXPECT_EQ(SavedAgain(text), text);
}

// Quantities and rows before, and after constants have become constraints.
TEST_F(BioCompactionOf, WhatIsTheSameInAllRowsIsHeldConstantAsItWasTyped) {
    const struct {
        std::string quantities, rows, constants, left;
    } cases[] = {
        // Digits are data; a single row varies in nothing.
        {"BV T K & & & V &\nBV pH 1 & & & V &\n", "BD 1 300.0 7.0\nBD 2 300.0 7.00\n",
         "BV pH 1 & & & V &\nBV T K & & & C 300.0\n", "BD 1 7.0\nBD 2 7.00\n"},
        {"BV T K & & & V &\nBV pH 1 & & & C 7\n", "BD 1 300.0\n",
         "BV T K & & & C 300.0\nBV pH 1 & & & C 7\n", "BD 1\n"},
        // Uncertainties of the rows have to be one as well, and go along.
        {"BV T K & & * V &\nBV pH 1 & & * V &\n", "BD 1 300 0.1 7 0.1\nBD 2 300 0.2 7 0.1\n",
         "BV T K & & * V &\nBV pH 1 & & 0.1 C 7\n", "BD 1 300 0.1\nBD 2 300 0.2\n"},
        // A content needs to be that of something; a quantity of no table stays what it is.
        {"BV X 1 & & & V &\nBV qq 1 & & & V &\nBV H kJ/mol & & & V &\n", "BD 1 3 4 5\nBD 2 3 4 5\n",
         "BV X 1 & & & V &\nBV qq 1 & & & V &\nBV H kJ/mol & & & V &\n",
         "BD 1 3 4 5\nBD 2 3 4 5\n"},
        // Without rows all is still to come.
        {"BV T K & & & V &\nBV pH 1 & & & C 7\n", "", "BV T K & & & V &\nBV pH 1 & & & C 7\n", ""},
        // Empty columns and repeats go, but no property and no constraint.
        {"BV H kJ/mol & & & P &\nBV T K & & & V &\nBV T K & & & V &\nBV P kPa & & & V &\n"
         "BV pH 1 & & & C &\nBV pH 1 & & & C &\n",
         "BD 1 & 300 300 &\nBD 2 & 310 & &\n",
         "BV H kJ/mol & & & P &\nBV T K & & & V &\nBV pH 1 & & & C &\nBV pH 1 & & & C &\n",
         "BD 1 & 300\nBD 2 & 310\n"},
        // A repeat with figures of its own is none.
        {"BV T K & & & V &\nBV T K & & & V &\n", "BD 1 300 300\nBD 2 310 311\n",
         "BV T K & & & V &\nBV T K & & & V &\n", "BD 1 300 300\nBD 2 310 311\n"},
    };
    for (const auto& one : cases) {
        SetLines before, after;
        before.quantities = "BV KM 1 & & & P &\n" + one.quantities;
        before.rows = "B0 0 0\n" + one.rows;
        after.quantities = "BV KM 1 & & & P &\n" + one.constants;
        after.rows = "B0 0 0\n" + one.left;
        EXPECT_EQ(Compacted(before.Text()), after.Text());
        EXPECT_EQ(result.changed.size(), before.Text() == after.Text() ? 0U : 1U);
    }
}

TEST_F(BioCompactionOf, WhatAgreesOnceItIsConstantIsJoinedAtTheFirstRun) {
    SetLines constant, byRow, all;
    constant.quantities = "BV KM 1 & & 2% P &\nBV T K & & 0.1 C 298.15\n";
    byRow.number = "2";
    byRow.quantities = "BV KM 1 & & 2% P &\nBV T K & & * V &\n";
    byRow.rows = "B0 0 0\nBD 0.9 300 0.1\n";
    all.quantities = "BV KM 1 & & 2% P &\nBV T K & & 0.1 V &\n";
    all.rows = "B0 0 0\nBD 0.865 298.15\nBD 0.9 300\n";
    EXPECT_EQ(Compacted(constant.Text() + byRow.Text()), all.Text());
}

TEST_F(BioCompactionOf, RepeatedComponentsGoAndTheirKeysFollow) {
    const std::string line = "BP 0 7732185 0 2 7732185 water H2O 18.015 0 0 & 0 & &\n";
    SetLines before, after;
    before.components = line + line +
                        "BC 7732185 Solvent & 2 1.0\nBC 7732185.2 Solvent & 2 &\n"
                        "BC 7732185.3 Inert & 2 &\n";
    before.components.insert(0, Replace(line, " 7732185 0 2", " 7732185.3 0 2"));
    before.quantities = "BV KM 1 & & & P &\nBV M mol/kg & 7732185.2 & C 1\n"
                        "BV J mol/dm3 & 7732185.3 & C 2\n";
    after.components = line + Replace(line, " 7732185 0 2", " 7732185.2 0 2") +
                       "BC 7732185 Solvent & 2 1.0\nBC 7732185.2 Inert & 2 &\n";
    after.quantities = "BV KM 1 & & & P &\nBV M mol/kg & 7732185 & C 1\n"
                       "BV J mol/dm3 & 7732185.2 & C 2\n";
    EXPECT_EQ(Compacted(before.Text()), after.Text());
}

TEST_F(BioCompactionOf, OneSetThatDoesNotFitStopsAllOfIt) {
    SetLines first, second;
    second.number = "2";
    Read(BioHead + first.Text() + second.Text());
    for (const bool ofRows : {true, false}) {
        Read(BioHead + first.Text() + second.Text());
        if (ofRows)
            Reaction(2).recD[0].Cells.emplace_back();
        else
            Reaction(2).recU.pop_back();
        const std::string before = BioLines();
        result = CompactBioSets(Source());
        ASSERT_EQ(result.invalid.size(), 1U);
        EXPECT_EQ(result.invalid[0].get(), &Reaction(2));
        EXPECT_EQ(BioLines(), before);
    }
}

TEST_F(BioCompactionOf, ManySetsTakeNoLongerThanTheirRows) {
    Read(BioHead);
    constexpr int sets = 2'000;
    for (int n = sets; n >= 1; --n) {
        auto set = std::make_shared<clsBR>();
        set->SetNo = n;
        set->Participants = {{"50997", "1", "-1", ""}, {"57487", "", "1", ""}};
        set->Add({BioRole::Property, "KM", "1"});
        set->Add({BioRole::Constraint, "T", "K", "", "", "", std::to_string(n)});
        set->recD.resize(1);
        set->recD[0].Cells = {{"1.0", ""}};
        set->AttachTo(Source());
    }
    result = CompactBioSets(Source());
    EXPECT_EQ(Source().recBR.Count(), 1U);
    EXPECT_EQ(result.joined.size(), static_cast<std::size_t>(sets - 1));
    // The property is the same as well, but stays in the rows.
    EXPECT_EQ(Reaction().recD[sets - 1].Cells[1].value, std::to_string(sets));
}

} // namespace
} // namespace vexora
