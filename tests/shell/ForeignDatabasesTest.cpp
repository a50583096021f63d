// Databases that are none, or not ours, or damaged: each is told in its words, and none ends the
// program.
#include "chem/TableChecks.h"
#include "cli/QuietDesktop.h"
#include "compounds/SubstanceSearch.h"
#include "export/ExportDocument.h"
#include "records/DocumentCheck.h"
#include "records/LineWriter.h"
#include "records/RecordReader.h"
#include "reference/Database.h"
#include "shell/ShellFixture.h"
#include "support/WorkbenchFixture.h"

#include <unistd.h>

#include <iostream>
#include <random>

namespace vexora::test {
namespace {

namespace fs = std::filesystem;

using Maker = std::function<void(const std::string& path)>;

Maker Changed(const std::vector<std::string>& statements) {
    return [statements](const std::string& path) {
        Database database;
        database.Open(path, false);
        for (const std::string& statement : statements)
            database.Execute(statement);
    };
}

class ForeignFiles : public WorkbenchFixture {
protected:
    void SetUp() override {
        WriteText(Home() + "/VXR.ini", "COMPILER ABC\nXMLCOMPILER Ann\nORGANIZATION Lab\n");
    }
};

TEST_F(ForeignFiles, EachKindIsToldInTheWordsOfAMissingOne) {
    const struct {
        const char* name;
        Maker make;
    } kinds[] = {
        {"missing", [](const std::string& path) { fs::remove(path); }},
        {"a folder",
         [](const std::string& path) {
             fs::remove(path);
             fs::create_directory(path);
         }},
        {"of 0 bytes", [](const std::string& path) { WriteText(path, ""); }},
        {"a text",
         [](const std::string& path) { WriteText(path, "RN,NAME,FORMULA\n7732185,water,H2O\n"); }},
        {"truncated",
         [](const std::string& path) { fs::resize_file(path, fs::file_size(path) / 2); }},
        {"without a table",
         [](const std::string& path) {
             const bool isLocal = path.ends_with("VXRLocal.mdb");
             Changed({isLocal ? "drop table Conversions" : "drop table ALLNAME"})(path);
         }},
        {"without a column",
         [](const std::string& path) {
             const bool isLocal = path.ends_with("VXRLocal.mdb");
             Changed({isLocal ? "alter table Conversions drop column FACTOR"
                              : "alter table ALLNAME drop column FORMULA"})(path);
         }},
    };
    for (const char* name : {"/VXRLocal.mdb", "/VXR.mdb"}) {
        const std::string path = Home() + name;
        fs::copy_file(path, Out() + name);
        for (const auto& kind : kinds) {
            SCOPED_TRACE(path + " " + kind.name);
            kind.make(path);
            Holds("start\ninput \"\"\nanswer No \"Specified databases not found or invalid\\n"
                  "Would you like to correct configuration?\" \"VXR\"\nexpect closed frmMain\n");
            fs::remove_all(path);
            fs::copy_file(Out() + name, path);
        }
    }
}

/// Nobody may write to the files and the folder, for as long as it lives.
class WithoutRights {
public:
    explicit WithoutRights(const std::string& folder) : folder_(folder) {
        for (const auto& entry : fs::recursive_directory_iterator(folder))
            fs::permissions(entry.path(), fs::perms(entry.is_directory() ? 0555 : 0444));
        fs::permissions(folder, fs::perms(0555));
        Become(65534); // the one that may do nothing
    }
    ~WithoutRights() {
        Become(0);
        for (const auto& entry : fs::recursive_directory_iterator(folder_))
            fs::permissions(entry.path(), fs::perms(0755));
        fs::permissions(folder_, fs::perms(0755));
    }
    WithoutRights(const WithoutRights&) = delete;
    WithoutRights& operator=(const WithoutRights&) = delete;

private:
    static void Become(uid_t user) {
        const bool isRoot = ::getuid() == 0;
        EXPECT_TRUE(!isRoot || ::seteuid(user) == 0);
    }

    std::string folder_;
};

class DamagedDatabases : public testing::Test {
protected:
    DamagedDatabases() {
        for (const char* name : {"VXRLocal.mdb", "VXR.mdb"})
            fs::copy_file(fs::path(VEXORA_SHARE_DIR) / name, folder.File(name));
        globals.Databases.Open(Local(), Compounds());
        for (const char* name : {"water/2002wagpru1.txt", "ethanol_water/1932carlew1.txt",
                                 "bio/2026com1.txt", "reactions/2026com1.txt"})
            examples.push_back(FileText(std::string(VEXORA_SOURCE_DIR "/examples/") + name));
    }
    std::string Local() const { return folder.File("VXRLocal.mdb"); }
    std::string Compounds() const { return folder.File("VXR.mdb"); }

    /// Opens both, reads, checks, prints and exports a document, and searches. True when nothing
    /// was found wrong with the files.
    bool Work(const std::string& text, ReadPurpose purpose = ReadPurpose::Work) {
        try {
            globals.Databases.Open(Local(), Compounds());
            if (ReadRecords(text, talk_, purpose).whole) {
                CheckDocument();
                ExportDocument({2026, 1, 15}, ExportFor::House);
                PrintDocument();
            }
            FindCompounds("wat*", "");
            NamesBeginningWith("eth");
            CompoundsNamed("water");
        } catch (const DatabaseError& error) {
            EXPECT_NE(std::string(error.what()), "");
            return false;
        } catch (const SaveRefused&) {
        }
        globals.ForgetCurrent();
        globals.recR.Clear();
        return true;
    }

    static void Shrink(const std::string& path) {
        Database database;
        database.Open(path, false);
        std::vector<std::string> tables;
        for (Recordset rows = database.Query("select name from sqlite_master where type='table'");
             !rows.IsEnd(); rows.MoveNext())
            tables.push_back(rows.Text("name"));
        for (const std::string& table : tables)
            if (!table.starts_with("sqlite_"))
                database.Execute("delete from \"" + table + "\" where rowid > 12");
        database.Execute("vacuum");
    }

    TemporaryFolder folder;
    std::vector<std::string> examples;

private:
    class Silent : public ReadTalk {
        void Say(const Notice&) override {}
        bool Confirm(const std::string&) override { return false; }
    };
    Silent talk_;
    QuietDesktop desktop_{[](const ui::Message&) {}};
    ui::Forms forms_{desktop_};

protected:
    KVOGlobal globals;
};

TEST_F(DamagedDatabases, NullsAndWrongTypesAreReadForNothing) {
    for (const char* value : {"null", "''", "'many'", "0", "-1", "1e300", "x'ff00'"}) {
        const std::string text(value);
        Changed({"update Conversions set FACTOR=" + text,
                 "update Properties set Unit=" + text + ", CONTEXT=" + text,
                 "update Phases set Code=" + text, "update AMASS set AMASS=" + text})(Local());
        Changed({"update ALLNAME set NAME=" + text + ", FORMULA=" + text,
                 "update SOURCE_REFINFO set YEARPUB=" + text + ", SOURCE=" + text})(Compounds());
        for (const std::string& example : examples)
            EXPECT_TRUE(Work(example)) << value;
    }
}

TEST_F(DamagedDatabases, NoByteThatIsAnotherEndsTheProgram) {
    // Small ones, so that a wrong byte seldom stands where nobody looks.
    Shrink(Local());
    Shrink(Compounds());
    std::mt19937 draw(20261122);
    const std::string whole[] = {FileText(Local()), FileText(Compounds())};
    const std::string small = "^R 2002 wag pru 1\n^L 7732185 DNNNN P\n^S 1 cm;;99.9m%,gc\n"
                              "^A & O & & AB CD & &\n^z 1 TC S 1 L G & 647.096 & 0.1 &\n";
    int refused = 0;
    constexpr int mutants = 2000;
    for (int i = 0; i < mutants; ++i) {
        const std::size_t which = draw() % 2;
        std::string bytes = whole[which];
        for (unsigned left = 1 + draw() % 8; left > 0; --left) {
            // Half of them where the file says how it is built: its head and the heads of its
            // pages.
            std::size_t at = draw() % bytes.size();
            if (draw() % 2 == 0) at = at / 4096 * 4096 + draw() % 128;
            bytes[at % bytes.size()] = static_cast<char>(draw());
        }
        const std::string path = which == 0 ? Local() : Compounds();
        WriteText(path, bytes);
        // To write takes the disk its time.
        if (!Work(small, i % 20 == 0 ? ReadPurpose::Work : ReadPurpose::Look)) ++refused;
        WriteText(path, whole[which]);
    }
    std::cout << mutants << " damaged databases, " << refused << " of them refused\n";
    EXPECT_GT(refused, 0);
    EXPECT_LT(refused, mutants);
}

TEST_F(DamagedDatabases, OneThatCannotBeWrittenIsWorkedWith) {
    const WithoutRights only(folder.Path());
    for (const std::string& example : examples)
        EXPECT_TRUE(Work(example));
    EXPECT_THROW(globals.Databases.CompoundDb.Execute("delete from ALLNAME"), DatabaseError);
}

} // namespace
} // namespace vexora::test
