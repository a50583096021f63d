#include "reference/Database.h"
#include "reference/ReferenceDatabases.h"
#include "reference/ReferenceFixture.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <utility>

namespace vexora {
namespace {

class DatabaseTest : public testing::Test {
protected:
    void SetUp() override {
        database.Create(folder.File("t.db"));
        database.Execute("create table T (Name text collate nocase, Number integer, Factor real)");
    }
    std::string Names(std::string_view condition, const SqlValues& values) {
        std::string names;
        const std::string sql = "select Name from T where " + std::string(condition);
        for (Recordset rows = database.Query(sql + " order by rowid", values); !rows.IsEnd();
             rows.MoveNext())
            names += rows.Text("NAME") + ";";
        return names;
    }

    test::TemporaryFolder folder;
    Database database;
};

TEST_F(DatabaseTest, FieldsReadByNameWhateverTheirCaseAndNeverFail) {
    database.Insert("T", {{"name", "Water"}, {"NUMBER", 7732185}, {"Factor", 0.5}});
    database.Execute("insert into T default values");
    Recordset rows = database.Query("select * from T order by rowid");
    EXPECT_EQ(rows.Text("NAME"), "Water");
    EXPECT_EQ(rows.Integer("number"), 7732185);
    EXPECT_EQ(rows.Number("factor"), 0.5);
    EXPECT_EQ(rows.Text("absent"), "");
    EXPECT_EQ(rows.Number("absent"), 0);
    rows.MoveNext();
    EXPECT_EQ(rows.Text("Name"), "");
    EXPECT_EQ(rows.Integer("Number"), 0);
    rows.MoveNext();
    EXPECT_TRUE(rows.IsEnd());
    EXPECT_EQ(rows.Text("Name"), "");
    rows.MoveNext();
    EXPECT_TRUE(rows.IsEnd());
}

TEST_F(DatabaseTest, BoundTextNeverBecomesPartOfTheStatement) {
    for (const char* name :
         {"Name", "a\"b", "a'b", "x'; drop table T; --", "\" or 1=1 --", "WATER"})
        database.Insert("T", {{"Name", name}});
    EXPECT_EQ(Names("Name=?", {"a\"b"}), "a\"b;");
    EXPECT_EQ(Names("Name=?", {"a'b"}), "a'b;");
    EXPECT_EQ(Names("Name=?", {"Name"}), "Name;");
    EXPECT_EQ(Names("Name=?", {"\" or 1=1 --"}), "\" or 1=1 --;");
    EXPECT_EQ(Names("Name=?", {"x'; drop table T; --"}), "x'; drop table T; --;");
    EXPECT_EQ(Names("Name=?", {"water"}), "WATER;");
    EXPECT_THROW(Names("Name=\"no such column\"", {}), DatabaseError);
}

TEST_F(DatabaseTest, LikeUsesOurPatternsInTableOrder) {
    for (const char* name : {"CO", "Co", "C6H6", "ethanol"})
        database.Insert("T", {{"Name", name}});
    EXPECT_EQ(Names("Name like ?", {"c*"}), "CO;Co;C6H6;");
    EXPECT_EQ(Names("like_case(?, Name)", {"CO"}), "CO;");
    EXPECT_EQ(Names("Name like ?", {"C#H#"}), "C6H6;");
    EXPECT_EQ(Names("Name like ?", {"%ol"}), "ethanol;");
    EXPECT_EQ(Names("Name like ?", {"_o"}), "");
}

TEST_F(DatabaseTest, AnUnfinishedTransactionLeavesNothing) {
    {
        Transaction transaction(database);
        database.Insert("T", {{"Name", "lost"}});
    }
    {
        Transaction transaction(database);
        const auto rowid = database.Insert("T", {{"Name", "kept"}});
        database.Update("T", rowid, {{"Number", 3}, {"Name", "changed"}});
        transaction.Commit();
    }
    EXPECT_EQ(Names("1", {}), "changed;");
}

TEST_F(DatabaseTest, AReadOnlyDatabaseRefusesWritesWithAMessage) {
    Database reader;
    reader.Open(folder.File("t.db"), true);
    try {
        reader.Insert("T", {{"Name", "x"}});
        FAIL() << "written";
    } catch (const DatabaseError& error) {
        EXPECT_TRUE(error.CannotWrite());
        EXPECT_EQ(std::string(error.what()),
                  folder.File("t.db") + ": attempt to write a readonly database");
    }
    EXPECT_THROW(Database().Query("select 1"), DatabaseError);
}

TEST_F(DatabaseTest, WhatAFileSaysOfItselfIsNotTrusted) {
    database.Execute("create view V as select like_case('a', Name) as X from T");
    database.Insert("T", {{"Name", "a"}});
    EXPECT_THROW(database.Query("select X from V"), DatabaseError);
    database.Execute("pragma writable_schema=1");
    EXPECT_THROW(database.Execute("update sqlite_master set sql='' where name='V'"), DatabaseError);
}

TEST_F(DatabaseTest, AStatementInUseIsNotLentTwice) {
    for (const char* name : {"a", "b"})
        database.Insert("T", {{"Name", name}});
    const std::string sql = "select Name from T where Name>=? order by rowid";
    EXPECT_EQ(database.Query(sql, {"b"}).Text("Name"), "b");
    Recordset outer = database.Query(sql, {"a"});
    Recordset inner = database.Query(sql, {"b"});
    EXPECT_EQ(inner.Text("Name"), "b");
    outer.MoveNext();
    EXPECT_EQ(outer.Text("Name"), "b");
    inner.MoveNext();
    EXPECT_TRUE(inner.IsEnd());
    EXPECT_TRUE(database.Query(sql).IsEnd()) << "the value of an earlier use";
    EXPECT_EQ(outer.Text("Name"), "b");
}

TEST_F(DatabaseTest, KeptStatementsFollowTheTableAndStandInNobodysWay) {
    database.Insert("T", {{"Name", "a"}});
    const std::string sql = "select * from T order by rowid";
    EXPECT_EQ(database.Query(sql).Text("Colour"), "");
    database.Execute("alter table T add column Colour text default 'red'");
    EXPECT_EQ(database.Query(sql).Text("Colour"), "red");
    Database other;
    other.Open(folder.File("t.db"), false);
    other.Execute("drop table T"); // fails where a statement still reads
    EXPECT_THROW(database.Query(sql), DatabaseError);
    EXPECT_THROW(database.Query(sql), DatabaseError);
    other.Execute("create table T (Name text)");
    EXPECT_TRUE(database.Query(sql).IsEnd());
}

TEST_F(DatabaseTest, StatementsGoWithTheirDatabase) {
    database.Insert("T", {{"Name", "first"}});
    const std::string sql = "select Name from T";
    database.Query(sql);
    Database moved = std::move(database);
    EXPECT_EQ(moved.Query(sql).Text("Name"), "first");
    Database second;
    second.Create(folder.File("second.db"));
    second.Execute("create table T (Name text)");
    EXPECT_TRUE(second.Query(sql).IsEnd());
    moved = std::move(second);
    EXPECT_TRUE(moved.Query(sql).IsEnd());
    moved.Close();
    EXPECT_THROW(moved.Query(sql), DatabaseError);
}

TEST_F(DatabaseTest, MoreTextsThanAreKeptAnswerAllTheSame) {
    database.Insert("T", {{"Number", 7}});
    for (int time = 0; time < 2; ++time)
        for (int i = 0; i < 100; ++i)
            EXPECT_EQ(database.Query("select Number + " + std::to_string(i) + " as n from T")
                          .Integer("n"),
                      7 + i);
}

TEST_F(DatabaseTest, EveryOpeningAndChangeBeginsAnEdition) {
    std::uint64_t last = database.Edition();
    const auto isAnother = [&] {
        const std::uint64_t before = std::exchange(last, database.Edition());
        return before != last;
    };
    database.Query("select * from T");
    EXPECT_FALSE(isAnother());
    const auto rowid = database.Insert("T", {{"Name", "a"}});
    EXPECT_TRUE(isAnother());
    database.Update("T", rowid, {{"Name", "b"}});
    EXPECT_TRUE(isAnother());
    BulkInsert(database, "T", {"Name"}).Add({"c"});
    EXPECT_TRUE(isAnother());
    database.Open(folder.File("t.db"), true);
    EXPECT_TRUE(isAnother());
}

/// Two small good files and the bad ones beside them.
class OpenBothTest : public testing::Test {
protected:
    void SetUp() override {
        test::WriteEmptyTables(folder);
        BuildReferenceDatabases(folder.Path(), folder.Path());
        local = folder.File("VXRLocal.mdb");
        compounds = folder.File("VXR.mdb");
        folder.Write("foreign.mdb", std::string(4096, 'x'));
        folder.Write("empty.mdb", "");
    }
    test::TemporaryFolder folder;
    std::string local;
    std::string compounds;
};

TEST_F(OpenBothTest, MissingForeignEmptyAndSwappedFilesAreMessages) {
    ReferenceDatabases databases;
    ASSERT_EQ(databases.OpenBoth(local, compounds), std::nullopt);
    // Opening the end of a pipe would wait for ever for the other one.
    ASSERT_EQ(mkfifo(folder.File("pipe.mdb").c_str(), 0600), 0);
    for (const std::string& bad :
         {folder.File("pipe.mdb"), folder.File("absent.mdb"), folder.File("foreign.mdb"),
          folder.File("empty.mdb"), folder.Path(), std::string()}) {
        EXPECT_NE(databases.OpenBoth(bad, compounds).value_or(""), "") << bad;
        EXPECT_NE(databases.OpenBoth(local, bad).value_or(""), "") << bad;
    }
    EXPECT_TRUE(databases.OpenBoth(compounds, local).has_value());
    EXPECT_FALSE(std::filesystem::exists(folder.File("absent.mdb")));
    EXPECT_EQ(databases.LocalDb.Path(), local);
    EXPECT_TRUE(databases.CompoundDb.HasTable("ALLNAME"));
}

TEST_F(OpenBothTest, ATableWithoutOneOfItsColumnsIsAMessage) {
    Database changed;
    changed.Open(local, false);
    changed.Execute("alter table Conversions drop column FACTOR");
    ReferenceDatabases databases;
    EXPECT_EQ(databases.OpenBoth(local, compounds).value_or(""),
              local + ": the table Conversions has no column FACTOR");
}

TEST_F(OpenBothTest, ATruncatedFileIsAMessageNotACrash) {
    std::filesystem::resize_file(local, 5000);
    ReferenceDatabases databases;
    EXPECT_NE(databases.OpenBoth(local, compounds).value_or(""), "");
    EXPECT_FALSE(databases.LocalDb.IsOpen());
}

} // namespace
} // namespace vexora
