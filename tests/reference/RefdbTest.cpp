#include "reference/CompoundTable.h"
#include "reference/KVODefinitions.h"
#include "reference/ReferenceFixture.h"
#include "reference/Vocabulary.h"

#include <gtest/gtest.h>

namespace vexora {
namespace {

std::string Lines(const std::vector<LineRemark>& findings) {
    std::string text;
    for (const LineRemark& finding : findings)
        text += std::filesystem::path(finding.Line()).filename().string() + "\n";
    return text;
}

TEST(RefdbBuild, BadLinesAreToldWithTheirPlaceAndNothingIsWritten) {
    const test::TemporaryFolder folder;
    folder.Write("AMASS.tsv", "SYMBOL\tAMASS\tSOURCE_OF_ROW\nH\t1.008\t-\n\nD\ttwo\t-\nT\t3\n");
    folder.Write("Phases.tsv", "Code\tPhase\tPure\tSOURCE_OF_ROW\nL\tLiquid\t2\t-\n");
    folder.Write("Reactions.tsv", "RCode\tKind\tSOURCE_OF_ROW\n");
    folder.Write("Journals.tsv", "");
    test::WriteEmptyTables(folder);
    std::filesystem::remove(folder.File("Methods.tsv"));
    EXPECT_EQ(Lines(BuildReferenceDatabases(folder.Path(), folder.Path())),
              "Phases.tsv:2: error: Pure cannot be \"2\"\n"
              "Methods.tsv:1: error: the table is missing\n"
              "Reactions.tsv:1: error: unknown column Kind\n"
              "Journals.tsv:1: error: the line of column names is missing\n"
              "AMASS.tsv:4: error: AMASS cannot be \"two\"\n"
              "AMASS.tsv:5: error: 2 cells where the heading has 3\n");
    EXPECT_FALSE(std::filesystem::exists(folder.File("VXR.mdb")));
    EXPECT_FALSE(std::filesystem::exists(folder.File("VXR.mdb.tmp")));
}

TEST(RefdbBuild, AFolderThatCannotBeMadeIsAMessage) {
    const test::TemporaryFolder folder;
    folder.Write("file", "x");
    EXPECT_THROW(BuildReferenceDatabases(folder.Path(), folder.File("file/out")), DatabaseError);
}

class Refdb : public test::ReferenceFixture {
protected:
    static std::string Names(std::int64_t rn) {
        std::string text;
        for (const CompoundRow& row : CompoundsOf(rn))
            text += row.NAME + "=" + row.FORMULA + ";";
        return text;
    }
};

TEST_F(Refdb, CellsKeepTheirBlanksAndForeignBytesAreUnderstood) {
    folder.Write("SOURCE_AUTHOR.tsv", "\xEF\xBB\xBFLASTNM\tINITNM\tFULLNM\tNEW\tSOURCE_OF_ROW\r\n"
                                      "pruss \ta  \tPru\xDF, A.\t\t-\r\n");
    Build();
    const Recordset row = databases.CompoundDb.Query("select * from SOURCE_AUTHOR order by rowid");
    EXPECT_EQ(row.Text("LASTNM"), "pruss ");
    EXPECT_EQ(row.Text("INITNM"), "a  ");
    EXPECT_EQ(row.Text("FULLNM"), "Pru\u00DF, A.");
    EXPECT_FALSE(row.Flag("NEW"));
}

TEST_F(Refdb, ImportAddsNewNamesKeepsOldRowsAndTellsBadOnes) {
    folder.Write("ALLNAME.tsv", "RN\tNAME\tFORMULA\tSOURCE_OF_ROW\n7732185\twater\tH2O\t-\n");
    Build();
    folder.Write("new.csv", "RN,name,formula\n"
                            "7732-18-5,Water,HOH\n"
                            "64175,\"ethanol, absolute\",C2H6O\n"
                            "64176,wrong check digit,C2H6O\n"
                            "7732185,\"the \"\"universal\"\" solvent\",H2O\n"
                            "67561,,CH4O\n"
                            "71432,benzene\n"
                            "12-34,no number,X\n");
    const ImportResult result = ImportCompounds(folder.File("new.csv"), folder.File("VXR.mdb"));
    EXPECT_EQ(result.added, 2U);
    EXPECT_EQ(result.present, 1U);
    EXPECT_EQ(Lines(result.skipped), "new.csv:4: error: \"64176\" is no valid registry number\n"
                                     "new.csv:6: error: the name is missing\n"
                                     "new.csv:7: error: three cells expected: RN, name, formula\n"
                                     "new.csv:8: error: \"12-34\" is no valid registry number\n");
    EXPECT_EQ(Names(7732185), "water=H2O;the \"universal\" solvent=H2O;");
    EXPECT_EQ(Names(64175), "ethanol, absolute=C2H6O;");
}

TEST_F(Refdb, ImportStoresTheCanonicalFormulaAndSkipsARowWithoutOne) {
    Build();
    folder.Write("new.tsv", "64175\tethanol\tCH3CH2OH\n67561\tmethanol\tmeoh\n"
                            "7732185\twater\tH2O\n");
    std::size_t heard = 0;
    const auto canonical = [](std::string_view typed) {
        return std::string(typed == "CH3CH2OH" ? "C2H6O" : typed == "H2O" ? "H2O" : "");
    };
    const ImportResult result =
        ImportCompounds(folder.File("new.tsv"), folder.File("VXR.mdb"),
                        {canonical, [&](std::size_t lines) { heard = lines; }});
    EXPECT_EQ(Lines(result.skipped), "new.tsv:2: error: \"meoh\" is no formula\n");
    EXPECT_EQ(Names(64175), "ethanol=C2H6O;");
    EXPECT_EQ(Names(67561), "");
    EXPECT_EQ(Names(7732185), "water=H2O;");
    EXPECT_EQ(heard, 0U); // only long files have something to tell on the way
}

TEST_F(Refdb, ImportRefusesWhatTheTableMayNotHold) {
    folder.Write("ALLNAME.tsv", "RN\tNAME\tFORMULA\tSOURCE_OF_ROW\n7732185\twater\tH2O\t-\n");
    Build();
    const std::pair<std::string, std::string> cases[] = {
        {"7732185,ice,H2O2", "7732185 has the formula H2O, not H2O2"},
        {"64175,WATER,C2H6O", "\"WATER\" is the name of 7732185 already"},
        {"999999994,nothing,H2O", "\"999999994\" is no valid registry number"},
        {"64175,\"two\nlines\",C2H6O", "the name has a line break"},
        {"64175," + std::string(256, 'x') + ",C2H6O", "the name has more than 255 characters"},
        {"64175,ethanol,C2H6O\n64175,spirit,CH4O", "64175 has the formula C2H6O, not CH4O"},
        {"RN,NAME,FORMULA\n\n", "the file holds no compounds"},
        {"", "the file holds no compounds"}};
    for (const auto& [text, fault] : cases) {
        folder.Write("new.csv", text);
        const auto result = ImportCompounds(folder.File("new.csv"), folder.File("VXR.mdb"));
        ASSERT_EQ(result.skipped.size(), 1U) << fault;
        EXPECT_EQ(result.skipped.front().text, fault);
    }
    EXPECT_EQ(Names(7732185), "water=H2O;");
}

TEST_F(Refdb, ImportReadsWhatOtherProgramsWrite) {
    Build();
    const auto wide = [](const std::string& text, bool bigEndian) {
        std::string bytes;
        for (const char c : text)
            bytes += bigEndian ? std::string{'\0', c} : std::string{c, '\0'};
        return bytes;
    };
    const std::string row = "64-17-5\t\"ethanol; \"\"pure\"\"\"\tC2H6O\n";
    const std::string tabs = "RN\tNAME\tFORMULA\n" + row;
    const std::pair<std::string, std::string> readable[] = {
        {"quoted.tsv", tabs},
        {"little.txt", "\xFF\xFE" + wide(tabs, false)},
        {"big.txt", "\xFE\xFF" + wide(tabs, true)},
        {"no_mark.txt", wide(tabs, false)},
        {"semicolons.csv", "RN;NAME;FORMULA\r\n\"64175\";\"ethanol; \"\"pure\"\"\";C2H6O\r\n"}};
    for (const auto& [file, text] : readable) {
        folder.Write(file, text);
        databases.CompoundDb.Execute("delete from ALLNAME");
        const auto result = ImportCompounds(folder.File(file), databases.CompoundDb);
        EXPECT_EQ(Lines(result.skipped), "") << file;
        EXPECT_EQ(Names(64175), "ethanol; \"pure\"=C2H6O;") << file;
    }
    folder.Write("table.csv", "PK\x03\x04 and more");
    folder.Write("picture.csv", std::string("\x89PNG\0\0\0\1", 8));
    EXPECT_EQ(ImportCompounds(folder.File("table.csv"), databases.CompoundDb).fault,
              "this is a spreadsheet or an archive; save it as text first");
    EXPECT_EQ(ImportCompounds(folder.File("picture.csv"), databases.CompoundDb).fault,
              "this is no text");
}

TEST_F(Refdb, WhatIsAddedIsMarkedAndHandedOnAndACompoundIsAddedWholeOrNotAtAll) {
    folder.Write("ALLNAME.tsv", "RN\tNAME\tFORMULA\tSOURCE_OF_ROW\n7732185\twater\tH2O\t-\n");
    Build();
    Database& database = databases.CompoundDb;
    EXPECT_EQ(AddCompound(database, 64175, "C2H6O", {"ethanol", "water"}).name, "water");
    EXPECT_EQ(Names(64175), "");
    EXPECT_EQ(AddCompound(database, 64175, "C2H6O", {}).fault, "the name is missing");
    // Of an earlier edition, whose table has no mark.
    database.Execute("alter table ALLNAME drop column NEW");
    EXPECT_EQ(AddCompound(database, 64175, "C2H6O", {"ethanol", "spirit", "Ethanol"}).added, 2U);
    EXPECT_EQ(AddCompound(database, 64175, "C2H6O", {"ethanol"}).present, 1U);
    EXPECT_EQ(AddedCompoundsText(database),
              "RN\tNAME\tFORMULA\n64175\tethanol\tC2H6O\n64175\tspirit\tC2H6O\n");
    EXPECT_TRUE(IsAddedHere(database, {64175, "spirit", ""}));
    EXPECT_FALSE(IsAddedHere(database, {7732185, "water", ""}));
    folder.Write("list.tsv", AddedCompoundsText(database));
    EXPECT_EQ(ImportCompounds(folder.File("list.tsv"), database).present, 2U);
}

TEST_F(Refdb, ImportIntoAForeignFileIsAMessage) {
    folder.Write("new.tsv", "64175\tethanol\tC2H6O\n");
    folder.Write("foreign.mdb", std::string(4096, 'x'));
    EXPECT_THROW(ImportCompounds(folder.File("new.tsv"), folder.File("foreign.mdb")),
                 DatabaseError);
    EXPECT_FALSE(ImportCompounds(folder.File("absent.tsv"), folder.File("foreign.mdb")).readable);
}

TEST(RegistryNumber, TheLastDigitChecksTheOthers) {
    for (const std::int64_t rn : {7732185LL, 64175LL, 124389LL, 1333740LL, 7647010LL})
        EXPECT_TRUE(IsRegistryNumber(rn)) << rn;
    for (const std::int64_t rn : {7732186LL, 64176LL, 1003LL, 0LL, -7732185LL, 99999999940LL})
        EXPECT_FALSE(IsRegistryNumber(rn)) << rn;
}

TEST(Definitions, ListsAndCodesGoBothWays) {
    EXPECT_EQ(CodeAt(SourceKinds, 0), "");
    EXPECT_EQ(CodeAt(SourceKinds, 1), "O");
    EXPECT_EQ(CodeAt(SourceKinds, 6), "");
    EXPECT_EQ(IndexOfCode(PureReferenceStates, "RX"), 6);
    EXPECT_EQ(IndexOfCode(MixtureReferenceStates, "TP"), -1);
    EXPECT_EQ(TextOfCode(LetteredStatements, "M"), "Heat of combustion based on sample mass");
    EXPECT_EQ(QuantityByCode(BioVariables, "pCs")->text, "pC of solvent");
    EXPECT_EQ(QuantityByCode(StateVariables, "WL")->unit, "A");
    EXPECT_EQ(PurityUnitByCode("g%")->element, "nWaterMolPerCent");
    EXPECT_EQ(PurityUnitByCode("q%"), nullptr);
}

} // namespace
} // namespace vexora
