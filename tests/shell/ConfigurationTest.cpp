#include "shell/Configuration.h"

#include "shell/Paths.h"
#include "shell/ShellFixture.h"

namespace vexora::test {

class ConfigurationTest : public ShellFixture {
protected:
    ConfigurationTest() {
        Globals().HomeFolder = folder.Path();
        SetConfigurationDefaults();
    }
    std::string Home(const std::string& name) const { return folder.Path(name); }
};

TEST_F(ConfigurationTest, TheSettingsComeBackAsTheyWereWritten) {
    KVOGlobal& globals = Globals();
    globals.CompilerCode = "ABC";
    globals.ContributorCode = "XML";
    globals.UserName = "Ann B. Clark";
    globals.OutDir = "/data/out put";
    globals.AdvancedMode = globals.GHEnabled = true;
    const std::string text = "COMPILER ABC\nCONTRIBUTOR XML\nXMLCOMPILER Ann B. Clark\n"
                             "ORGANIZATION \nVXRLocalDB " +
                             Home("VXRLocal.mdb") + "\nVXRCompoundDB " + Home("VXR.mdb") +
                             "\nOutDir /data/out put\nAdvanced\nGH\n";
    EXPECT_TRUE(WriteConfiguration());
    EXPECT_EQ(FileText(Home("VXR.ini")), text);
    EXPECT_FALSE(std::filesystem::exists(Home("VXR.ini.bak")));

    SetConfigurationDefaults();
    ReadConfiguration();
    EXPECT_EQ(ConfigurationText(), text);
}

TEST_F(ConfigurationTest, UnknownWordsArePassedOverAndMissingDatabasesGoBackToTheDefault) {
    TakeConfiguration("Sound on\r\nadvanced\r\nVXRCompoundDB /no/such.mdb\r\n"
                      "VXRLocalDB " +
                      Home("VXR.mdb") + "\r\nOutDir  C:\\DATA \r\nBio\r\n");
    const KVOGlobal& globals = Globals();
    EXPECT_EQ(globals.CompoundDbPath, Home("VXR.mdb"));
    EXPECT_EQ(globals.LocalDbPath, Home("VXR.mdb"));
    EXPECT_EQ(globals.OutDir, "C:/DATA");
    EXPECT_FALSE(globals.AdvancedMode);
    EXPECT_TRUE(globals.BioEnabled);
}

TEST_F(ConfigurationTest, AnUnwritableFileIsToldAndLeftAsItWas) {
    const std::string before = FileText(Home("VXR.ini"));
    files.FailAt("Write");
    desktop.Expect("The configuration " + Home("VXR.ini") +
                   " cannot be written.\nNo space left on device");
    EXPECT_FALSE(WriteConfiguration());
    EXPECT_EQ(FileText(Home("VXR.ini")), before);
}

TEST(PathsTest, ACommandLineNamesOneDocument) {
    const std::pair<const char*, const char*> cases[] = {
        {"", ""},
        {"   ", ""},
        {"paper.txt", "paper.txt"},
        {" /data/my paper.txt ", "/data/my paper.txt"},
        {"\"/data/my paper.txt\" -x", "/data/my paper.txt"},
        {"-x \"paper.txt\"", "paper.txt"},
        {"\"paper.txt", "paper.txt"},
        {"\"\"", ""},
    };
    for (const auto& [commandLine, document] : cases)
        EXPECT_EQ(DocumentOfCommandLine(commandLine), document) << commandLine;
}

TEST(PathsTest, BothSlashesPartFolders) {
    const auto parts = [](const char* path) {
        const PathParts found = SplitPath(path);
        return found.Folder + "|" + found.Title;
    };
    EXPECT_EQ(parts("/data/a.txt"), "/data|a.txt");
    EXPECT_EQ(parts("C:\\DATA\\a.txt"), "C:/DATA|a.txt");
    EXPECT_EQ(parts("a.txt"), "|a.txt");
    EXPECT_EQ(parts("/a.txt"), "/|a.txt");
    EXPECT_TRUE(IsFullPath("/data") && IsFullPath("C:\\DATA"));
    EXPECT_FALSE(IsFullPath("data") || IsFullPath("data:x") || IsFullPath(""));
}

} // namespace vexora::test
