// What a script saves, exports and makes through the workbench stays where it was sent.
#include "support/WorkbenchFixture.h"

#include <filesystem>
#include <fstream>

namespace vexora::test {
namespace {

class SavedByScript : public WorkbenchFixture {
protected:
    SavedByScript() {
        std::ofstream(Home() + "/VXR.ini") << "COMPILER ABC\nXMLCOMPILER Ann\nORGANIZATION Lab\n";
        std::ofstream(Out() + "/a.txt")
            << "^R 2002 WAG PRU 1\n^J#J#O#@J. Chem.@, 2002, $1$, 2##T##A##P#1####\n"
               "^L 7732185 DNNNN P\n^S 1 cm;;99.9m%,gc\n";
    }
    const ScratchFolder outside;
};

TEST_F(SavedByScript, NothingIsWrittenElsewhere) {
    std::ofstream(outside.Path("kept.txt")) << "kept";
    std::filesystem::create_symlink(outside.Path("kept.txt"), Out() + "/link.txt");
    const std::string place = std::filesystem::canonical(outside.Path()).string();
    const std::string why =
        "A script may write there only when it is played with --allow-files " + place;
    const auto refused = [&](const std::string& path) {
        return "expect message \"The file " + path + " cannot be written.\\n" + why + "\"\n";
    };
    const std::string fresh = outside.Path("new.txt");
    const std::string picture = outside.Path("new.xml");
    Holds("start \"${OUT}/a.txt\"\ninput cancel\nclick frmMain.SaveAs\nfile \"" + fresh + "\"\n" +
          refused(fresh) + "click frmMain.SaveAs\nfile \"${OUT}/link.txt\"\nanswer Yes\n" +
          refused(Out() + "/link.txt") + "click frmMain.mnuExportXML\nfile \"" + picture + "\"\n" +
          refused(picture) + "click frmMain.SaveAs\nfile \"${OUT}/b.txt\"\n" +
          "expect file \"${OUT}/b.txt\" contains \"7732185\"\n" +
          "click frmMain.mnuToolsConfigure\nset frmConfigure.txtOutDir \"" + place + "/made\"\n" +
          "click frmConfigure.cmdAccept\nanswer Yes\n" + "expect message \"The output folder " +
          place + "/made cannot be created.\"\n");
    EXPECT_FALSE(std::filesystem::exists(fresh) || std::filesystem::exists(picture) ||
                 std::filesystem::exists(place + "/made"));
    std::string kept;
    std::ifstream(outside.Path("kept.txt")) >> kept;
    EXPECT_EQ(kept, "kept");
}

TEST_F(SavedByScript, ADocumentThatItOpensIsSavedWhereItIs) {
    std::filesystem::copy_file(Out() + "/a.txt", outside.Path("a.txt"));
    Holds("start\ninput cancel\ndrop \"" + outside.Path("a.txt") +
          "\"\nclick frmMain.SaveAs\nfile \"" + outside.Path("b.txt") + "\"\nexpect file \"" +
          outside.Path("b.txt") + "\" contains \"7732185\"\n");
}

} // namespace
} // namespace vexora::test
