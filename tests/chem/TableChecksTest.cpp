#include "chem/TableChecks.h"

#include "reference/ReferenceFixture.h"
#include "reference/TableText.h"
#include "reference/Text.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <regex>

namespace vexora::test {
namespace {

/// The databases as shipped, in copies that a test may spoil.
class TableChecks : public testing::Test {
protected:
    TableChecks() {
        for (const char* name : {"VXRLocal.mdb", "VXR.mdb"})
            std::filesystem::copy_file(std::filesystem::path(VEXORA_SHARE_DIR) / name,
                                       folder.File(name));
        databases.LocalDb.Open(folder.File("VXRLocal.mdb"), false);
        databases.CompoundDb.Open(folder.File("VXR.mdb"), false);
        UseDatabases(&databases);
    }
    ~TableChecks() override { UseDatabases(nullptr); }

    using Check = std::function<void(RowRemarks&)>;

    static std::string Lines(const Check& check) {
        RowRemarks findings;
        check(findings);
        std::string text;
        for (const RowRemark& finding : findings)
            text += finding.Line() + "\n";
        return text;
    }
    /// What is found while a change is in force, which is then taken back.
    static std::string LinesAfter(Database& database, const std::string& statement,
                                  const Check& check) {
        const Transaction notCommitted(database);
        database.Execute(statement);
        return Lines(check);
    }
    /// Without the numbers of rows, which move when the tables grow, each line once.
    static std::string Unnumbered(const std::string& lines) {
        const std::string text =
            std::regex_replace(std::regex_replace(lines, std::regex(":[0-9]+:"), ":N:"),
                               std::regex(" row [0-9]+"), " row N");
        std::vector<std::string> once;
        for (const std::string& line : Split(text, '\n'))
            if (!line.empty() && !Contains(once, line)) once.push_back(line);
        std::string joined;
        for (const std::string& line : once)
            joined += (joined.empty() ? "" : " | ") + line;
        return joined;
    }
    Check Named(const std::string& name) {
        const Database& local = databases.LocalDb;
        const std::map<std::string, void (*)(const Database&, RowRemarks&)> checks = {
            {"properties", CheckProperties},   {"variables", CheckVariables},
            {"conversions", CheckConversions}, {"phases", CheckPhases},
            {"methods", CheckMethods},         {"lists", CheckLists},
            {"masses", CheckAtomicMasses}};
        return [&local, check = checks.at(name)](RowRemarks& found) { check(local, found); };
    }

    TemporaryFolder folder;
    ReferenceDatabases databases;
};

TEST_F(TableChecks, TheShippedTablesHaveNoFinding) {
    EXPECT_EQ(Lines([&](RowRemarks& found) { found = CheckTables(databases); }), "");
}

TEST_F(TableChecks, EveryBreachOfARuleIsTold) {
    const std::string folderOfCases = std::string(VEXORA_SOURCE_DIR) + "/tests/chem/";
    TableReader cases(folderOfCases + "table_breakages.tsv");
    ASSERT_TRUE(cases.IsOpen());
    cases.NextRow();
    int count = 0;
    for (; const auto row = cases.NextRow(); ++count) {
        const std::string found = LinesAfter(databases.LocalDb, row->at(1), Named(row->at(0)));
        EXPECT_EQ(Unnumbered(found), row->at(2)) << row->at(1);
    }
    EXPECT_GT(count, 50);
}

TEST_F(TableChecks, CompoundsNeedACheckDigitACanonicalFormulaAndOneFormulaEach) {
    const auto found = [&](const std::string& statement) {
        return LinesAfter(databases.CompoundDb, statement, [&](RowRemarks& findings) {
            CheckCompounds(databases.CompoundDb, findings);
        });
    };
    databases.CompoundDb.Execute(
        "delete from ALLNAME where rowid>3"); // water and two of heavy water
    const std::string first = "ALLNAME:1: error: ";
    EXPECT_EQ(found("update ALLNAME set RN=7732186 where rowid=1"),
              first + "7732186 is no registry number, or its check digit is wrong\n");
    EXPECT_EQ(found("update ALLNAME set RN=999999994 where rowid=1"),
              first + "999999994 is no registry number, or its check digit is wrong\n");
    EXPECT_EQ(found("update ALLNAME set FORMULA='OH2' where rowid=1"),
              first + "the formula \"OH2\" is not canonical, that is \"H2O\"\n");
    EXPECT_EQ(found("update ALLNAME set FORMULA='H2Q' where rowid=1"),
              first + "\"H2Q\" is no formula\n");
    EXPECT_EQ(found("update ALLNAME set NAME='water ' where rowid=1"),
              first + "NAME has blanks at an end\n");
    EXPECT_EQ(found("update ALLNAME set NAME='HEAVY WATER' where rowid=3"),
              "ALLNAME:3: error: for 7789200 the name \"heavy water\" stands in row 2 already\n");
    EXPECT_EQ(found("update ALLNAME set NAME='Water' where rowid=2"),
              "ALLNAME:2: error: \"Water\" is a name of 7732185 too\n");
    EXPECT_EQ(found("update ALLNAME set FORMULA='H2O' where rowid=3"),
              "ALLNAME:3: error: 7789200 has the formula \"D2O\" in an earlier row\n");
    EXPECT_EQ(found("delete from ALLNAME"), "ALLNAME: error: the table is empty\n");
}

TEST_F(TableChecks, IdentifiersBelongToACompoundAndToItsFormula) {
    const auto found = [&](const std::string& statement) {
        return LinesAfter(databases.CompoundDb, statement, [&](RowRemarks& findings) {
            CheckIdentifiers(databases.CompoundDb, findings);
        });
    };
    databases.CompoundDb.Execute("delete from Identifiers where rowid>1"); // water
    const std::string first = "Identifiers:1: error: ";
    EXPECT_EQ(found("update Identifiers set RN=99999005"),
              first + "99999005 is the number of no compound\n");
    EXPECT_EQ(found("update Identifiers set InChI='H2O'"),
              first + "\"H2O\" is no standard InChI\n");
    EXPECT_EQ(found("update Identifiers set InChIKey='XLYOFNOQVPJJNP-UHFFFAOYSA'"),
              first + "\"XLYOFNOQVPJJNP-UHFFFAOYSA\" is no InChIKey\n");
    EXPECT_EQ(found("update Identifiers set SMILES=''"), first + "SMILES is empty\n");
    EXPECT_EQ(found("update Identifiers set InChI='InChI=1S/H2O2/c1-2/h1-2H'"),
              first + "\"InChI=1S/H2O2/c1-2/h1-2H\" is not of H2O\n");
    EXPECT_EQ(found("delete from Identifiers"), "");
    EXPECT_EQ(found("drop table Identifiers"), "");
}

TEST_F(TableChecks, SourcesMayBeMissingButNotBeMisshapen) {
    const auto found = [&](const std::string& statement) {
        return LinesAfter(databases.CompoundDb, statement, [&](RowRemarks& findings) {
            CheckSources(databases.CompoundDb, findings);
        });
    };
    EXPECT_EQ(found("delete from SOURCE_AUTHOR"), "");
    EXPECT_EQ(found("update SOURCE_AUTHOR set INITNM='w' where rowid=2"),
              "SOURCE_AUTHOR:2: error: INITNM is not 3 characters wide\n");
    EXPECT_EQ(found("update SOURCE_REFINFO set YEARPUB=98"),
              "SOURCE_REFINFO:1: error: the year has not four digits\n");
}

TEST_F(TableChecks, AMissingTableIsNoFindingButAnUnreadableDatabase) {
    databases.LocalDb.Execute("drop table Questions");
    EXPECT_THROW(CheckTables(databases), DatabaseError);
}

TEST_F(TableChecks, TheSummaryCountsCodesNotRows) {
    const auto rows = databases.LocalDb.Query("select count(*) as n from Properties").Integer("n");
    const auto counts = CountTables(databases);
    EXPECT_EQ(counts.front().first, "properties");
    EXPECT_EQ(counts.front().second, rows - 7); // P and T stand there for kinds of equilibrium as well
    for (const auto& [what, count] : counts)
        EXPECT_GT(count, 20) << what;
}

} // namespace
} // namespace vexora::test
