#include "compounds/SubstanceSearch.h"

#include <algorithm>
#include <iostream>

#include "compounds/frmSubst.h"
#include "reference/NameKey.h"
#include "reference/TableText.h"
#include "reference/Text.h"
#include "support/DialogFixture.h"

namespace vexora {

namespace {

class SubstanceSearch : public test::DialogFixture {
protected:
    /// The registry numbers of what Find lists for a name, as the form shows them.
    static std::vector<std::string> NumbersFound(frmSubst& dialog, const std::string& name) {
        Enter(dialog.txtName, name);
        Enter(dialog.txtFormula, "");
        dialog.cmdFind.UserClick();
        std::vector<std::string> numbers;
        for (int i = 0; i < dialog.lstNames.Count(); ++i) {
            dialog.lstNames.UserChoose(i);
            numbers.push_back(Replace(dialog.lblRN.Caption(), "-", ""));
        }
        return numbers;
    }
    static std::string Found(std::string_view name, std::string_view formula = "") {
        std::string text;
        for (const CompoundRow& row : FindCompounds(NamePattern(name), formula))
            text += row.NAME + ";";
        return text;
    }
};

// The names were written down from the literature, without a look at the table.
TEST_F(SubstanceSearch, NamesAreFoundAsPapersPrintThem) {
    auto& dialog = Open<frmSubst>("frmSubst");
    TableReader names(std::string(VEXORA_SOURCE_DIR) + "/tests/compounds/names_of_papers.tsv");
    names.NextRow();
    int all = 0, found = 0;
    while (const auto row = names.NextRow()) {
        if (Found(row->at(0)).empty()) desktop.Expect("Substance not found in the database");
        const auto numbers = NumbersFound(dialog, row->at(0));
        const bool is = std::ranges::count(numbers, row->at(1)) > 0;
        if (!is) std::cout << "not found: " << row->at(0) << '\n';
        ++all;
        found += is;
    }
    std::cout << found << " of " << all << " names of papers are found\n";
    EXPECT_EQ(all, 200);
    EXPECT_GE(found, 190);
}

TEST(NameKey, WritingsOfOneNameAreOneAndNitrogenIsNoChain) {
    const std::pair<const char*, const char*> same[] = {
        {"n-Butane", "butane"},
        {"Di-n-butyl ether", "dibutyl-ether"},
        {"R-134 a", "r134a"},
        {"\u03B1\u2010Pinene", "alpha-pinene"},
        {"SO\u2082", "so2"},
        {"2,2\u2032-bipyridine", "2,2'-bipyridine"},
        {"CuSO4\u00B75H2O", "CuSO4.5H2O"},
        {"*N-butyl*", "*butyl*"},
        {"N,N-dimethylaniline", "n,n dimethylaniline"}};
    for (const auto& [one, other] : same)
        EXPECT_EQ(NameKey(one), NameKey(other)) << one;
    for (const char* other : {"N,N-dimethylaniline", "tin-dimethylaniline", "n-1-dimethylaniline"})
        EXPECT_NE(NameKey(other), NameKey("dimethylaniline")) << other;
    EXPECT_EQ(NameKey(" - \u2013"), "");
}

TEST_F(SubstanceSearch, FragmentsAndFormulasAreLookedForInAllNames) {
    EXPECT_EQ(Found("*AVY wat*"), "heavy water;semiheavy water;");
    EXPECT_EQ(Found("?eavy water"), "heavy water;");
    EXPECT_EQ(Found("*", "D2O"), "heavy water;deuterium oxide;water-d2;D2O;");
    EXPECT_EQ(Found("water*", "D2O"), "water-d2;");
    EXPECT_EQ(Found("*carbon*", "CH2*"), Found("*CARBON*", "CH2*"));
    EXPECT_EQ(Found("", "ch4o"), ""); // the case of a formula counts
}

TEST_F(SubstanceSearch, WhatIsAddedMeanwhileIsFound) {
    EXPECT_EQ(Found("unobtainium"), "");
    Database other; // another program
    other.Open(globals.CompoundDb().Path(), false);
    other.Insert("ALLNAME", {{"RN", 99999005}, {"NAME", "Unobtainium"}, {"FORMULA", "C8H10"}});
    EXPECT_EQ(Found("unobtainium"), "Unobtainium;");
    globals.CompoundDb().Execute("delete from ALLNAME where RN=99999005");
    EXPECT_EQ(Found("unobtainium"), "");
}

TEST_F(SubstanceSearch, TheVeryNameStandsInFront) {
    for (const char* name : {"Phenol-fragment", "phenol", "n-Phenol", "PHENOL x"})
        globals.CompoundDb().Insert("ALLNAME", {{"RN", 108952}, {"NAME", name}, {"FORMULA", "O"}});
    EXPECT_EQ(Found("*PHENOL*", "O"), "phenol;n-Phenol;Phenol-fragment;PHENOL x;");
    EXPECT_EQ(Found("n-phenol", "O"), "n-Phenol;phenol;");
    for (int i = 0; i < 100; ++i)
        globals.CompoundDb().Insert(
            "ALLNAME", {{"RN", 99999005}, {"NAME", "zzz " + std::to_string(i)}, {"FORMULA", "O"}});
    globals.CompoundDb().Insert("ALLNAME", {{"RN", 99999005}, {"NAME", "zzz"}, {"FORMULA", "O"}});
    EXPECT_EQ(NamesBeginningWith("ZZZ").front(), "zzz");
    EXPECT_EQ(NamesBeginningWith("ZZZ").size(), 100U);
}

TEST_F(SubstanceSearch, APrefixGivesTheFirstHundred) {
    EXPECT_EQ(NamesBeginningWith("Heavy-W"), std::vector<std::string>{"heavy water"});
    EXPECT_EQ(NamesBeginningWith("m").size(), 100U);
    EXPECT_EQ(NamesBeginningWith("METHAN").front(), "methane");
    for (const char* none : {"", " -", "no such name", "*ane"})
        EXPECT_TRUE(NamesBeginningWith(none).empty()) << none;
}

} // namespace
} // namespace vexora
