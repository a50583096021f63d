#include "reference/Database.h"
#include "support/WorkbenchFixture.h"

#include <filesystem>
#include <fstream>

namespace vexora::test {

class StartUpTest : public WorkbenchFixture {
protected:
    void Configure(const std::string& lines) {
        std::ofstream(Home() + "/VXR.ini") << "COMPILER ABC\n" << lines;
    }
    void Damage(const std::string& name) {
        std::ofstream(Home() + "/" + name, std::ios::trunc) << "this is no database";
    }
    void Remove(const std::string& name) { std::filesystem::remove(Home() + "/" + name); }
};

TEST_F(StartUpTest, AFirstStartShowsWhatItHasAndAsksForTheUser) {
    std::ofstream(Home() + "/intro.rtf") << R"({\rtf1{\fonttbl{\f0 A;}}\b Welcome\b0\par})";
    const std::string transcript = Holds(R"(start
expect modal frmBox
expect frmBox.RichTextBox1 contains "Welcome"
click frmBox.cmdPrint
click frmBox.cmdOK
expect modal frmConfigure
expect frmConfigure.txtContributor hidden
expect frmConfigure.txtCompoundDB "${HOME_DIR}/VXR.mdb"
click frmConfigure.cmdAccept
expect message "Please, enter your name"
expect frmConfigure.txtUserName focused
set frmConfigure.txtUserName "Ann Müller"
expect frmConfigure.txtUserName "Ann Muller"
click frmConfigure.cmdAccept
expect message "Please, enter your organization name"
set frmConfigure.txtOrg "Lab"
click frmConfigure.cmdAccept
expect open frmMain
expect caption frmMain "Vexora - Thermophysical and Thermochemical Data"
expect file "${HOME_DIR}/VXR.ini" contains "XMLCOMPILER Ann Muller"
expect frmMain.AddBio hidden
quit
start
input "Somebody else"
expect open frmMain
expect file "${HOME_DIR}/VXR.ini" contains "XMLCOMPILER Ann Muller"
)");
    EXPECT_NE(transcript.find("Version 0.1"), std::string::npos);
    EXPECT_EQ(transcript.find("Version"), transcript.rfind("Version"));
}

TEST_F(StartUpTest, TheMenuTellsTheBuildAndTheLicencesToo) {
    Configure("XMLCOMPILER Ann\nORGANIZATION Lab\n");
    const std::string transcript = Holds("start\ninput \"\"\nclick frmMain.mnuAbout\n");
    for (const char* part : {"Version 0.1\\n", "Build: " VEXORA_VERSION, "Qt 6", "SQLite", "CLI11"})
        EXPECT_NE(transcript.find(part), std::string::npos) << part << "\n" << transcript;
}

TEST_F(StartUpTest, ANameThatIsMissingIsAskedForAndKept) {
    Configure("ORGANIZATION Lab\n");
    Holds(R"(start
input cancel
answer No "User not initialized\nProgram cannot run without user initialization\nDo you want to exit?"
input "  Ann  "
expect open frmMain
expect file "${HOME_DIR}/VXR.ini" contains "XMLCOMPILER Ann"
quit
start
input ""
expect open frmMain
)");
}

TEST_F(StartUpTest, AnUnwritableConfigurationIsToldAndWorkGoesOn) {
    Configure("ORGANIZATION Lab\n");
    Files.FailAt("CreateBeside", 1, "Read-only file system");
    const std::string transcript = Holds("start\ninput \"Ann\"\nexpect open frmMain\n");
    EXPECT_NE(transcript.find("VXR.ini cannot be written.\\nRead-only file system"),
              std::string::npos)
        << transcript;
}

TEST_F(StartUpTest, WhoGivesNoNameMayLeave) {
    Configure("ORGANIZATION Lab\n");
    Holds("start\ninput \"\"\nanswer Yes\nexpect closed frmMain\n");
}

TEST_F(StartUpTest, ADamagedDatabaseLeadsToTheConfigurationOrTheEnd) {
    Configure("XMLCOMPILER Ann\nORGANIZATION Lab\n");
    std::filesystem::copy_file(Home() + "/VXR.mdb", Home() + "/good.mdb");
    Damage("VXR.mdb");
    Holds(R"(start
input ""
answer No "Specified databases not found or invalid\nWould you like to correct configuration?" "VXR"
expect closed frmMain
start
input ""
answer Yes
expect modal frmConfigure
click frmConfigure.cmdAccept
expect modal frmConfigure
set frmConfigure.txtCompoundDB "${HOME_DIR}/none.mdb"
click frmConfigure.cmdAccept
expect message "Please specify the database"
set frmConfigure.txtCompoundDB "${HOME_DIR}/good.mdb"
click frmConfigure.cmdAccept
expect open frmMain
expect file "${HOME_DIR}/VXR.ini" contains "VXRCompoundDB ${HOME_DIR}/good.mdb"
)");
}

TEST_F(StartUpTest, ALockedDatabaseIsCalledLocked) {
    Configure("XMLCOMPILER Ann\nORGANIZATION Lab\n");
    Database other;
    other.Open(Home() + "/VXRLocal.mdb", false);
    other.Execute("begin exclusive");
    const std::string locked = "${HOME_DIR}/VXRLocal.mdb is locked by another program";
    Holds("start\ninput \"\"\nanswer Yes \"" + locked +
          "\\nWould you like to correct configuration?\" \"VXR\"\nclick frmConfigure.cmdAccept\n"
          "expect message \"" +
          locked + "\"\n");
}

TEST_F(StartUpTest, ATruncatedDatabaseIsDamagedWhicheverItIs) {
    Configure("XMLCOMPILER Ann\nORGANIZATION Lab\n");
    for (const std::string name : {"/VXR.mdb", "/VXRLocal.mdb"}) {
        const auto size = std::filesystem::file_size(Home() + name);
        std::filesystem::resize_file(Home() + name, size / 2);
        Holds("start\ninput \"\"\nanswer No \"Specified databases not found or invalid\\nWould you "
              "like to correct configuration?\" \"VXR\"\nexpect closed frmMain\n");
    }
}

TEST_F(StartUpTest, AMissingDatabaseCanOnlyBeLeftByTheExit) {
    Configure("XMLCOMPILER Ann\nORGANIZATION Lab\n");
    Remove("VXRLocal.mdb");
    Holds(R"(start
input ""
answer Yes
click frmConfigure.cmdCancel
answer No "Invalid file or directory\nProgram cannot run without valid databases\nDo you want to exit?"
expect modal frmConfigure
click frmConfigure.cmdCancel
answer Yes
expect closed frmMain
)");
}

TEST_F(StartUpTest, TheConfigurationChecksTheOutputFolder) {
    Configure("XMLCOMPILER Ann\nORGANIZATION Lab\n");
    Holds(R"(start
input ""
click frmMain.mnuToolsConfigure
expect modal frmConfigure
set frmConfigure.txtOutDir "papers"
click frmConfigure.cmdAccept
expect message "Please, enter the full path to the output folder, e.g., C:\\TEMP\\VXR"
set frmConfigure.txtOutDir "${OUT}/new"
click frmConfigure.cmdAccept
answer Cancel "The output folder ${OUT}/new does not exist.\nWould you like to create it?"
expect modal frmConfigure
check frmConfigure.chkBio on
check frmConfigure.optAdvanced on
click frmConfigure.cmdAccept
answer Yes
expect closed frmConfigure
expect frmMain.AddBio visible
expect frmMain.AddComplex hidden
expect file "${HOME_DIR}/VXR.ini" contains "OutDir ${OUT}/new"
)");
    EXPECT_TRUE(std::filesystem::is_directory(Out() + "/new"));
}

} // namespace vexora::test
