#include "cli/CommandLineFixture.h"

#include "reference/Text.h"

namespace vexora::test {

/// A folder with two good documents, a bad one, and files of other kinds.
class ManyDocuments : public CommandLine {
protected:
    ManyDocuments() {
        std::filesystem::create_directories(folder.File("papers/old"));
        folder.Write("papers/a.txt", "\n" + kDocument);
        folder.Write("papers/b.txt", kHead + "^A & & & & & & & &\n^z 1 TC S 1 L G &\n");
        folder.Write("papers/notes.txt", "^S is no record file\n");
        folder.Write("papers/old/a.txt",
                     kDocument + "^A & O & & AB CD & &\n^z 1 NO S 1 L G & 2 & & &\n");
    }
};

TEST_F(ManyDocuments, AFolderIsWalkedAndABadOneDoesNotStopTheRest) {
    const Outcome tree = Run("tree papers");
    EXPECT_EQ(tree.code, 3);
    EXPECT_NE(tree.out.rfind("2031 wag pru 1\n"), 0U) << "two of them";
    EXPECT_NE(tree.err.find("papers/b.txt:7: error: "), std::string::npos) << tree.err;
    EXPECT_EQ(tree.err.find("notes"), std::string::npos);
    const Outcome check = Run("check papers/a.txt papers/old");
    EXPECT_EQ(check.code, 1);
    EXPECT_NE(check.err.find("papers/old/a.txt:"), std::string::npos) << check.err;
}

TEST_F(ManyDocuments, OneJsonLineADocumentSaysHowItWent) {
    const Outcome lines = Run("check --format jsonl papers");
    EXPECT_EQ(lines.code, 3);
    EXPECT_EQ(lines.err, "");
    EXPECT_EQ(std::count(lines.out.begin(), lines.out.end(), '\n'), 3);
    EXPECT_TRUE(lines.out.starts_with(
        "{\"document\": \"papers/a.txt\", \"exit\": 0, \"findings\": []}\n"
        "{\"document\": \"papers/b.txt\", \"exit\": 3, \"findings\": [{\"line\": 7, \"severity\": "
        "\"warning\", \"text\": \"Incomplete record: ^z 1 TC S 1 L G &\"}, {\"line\": 7, "
        "\"severity\": \"error\""))
        << lines.out;
    const Outcome array = Run("tree --format json papers/a.txt papers/old/a.txt");
    EXPECT_TRUE(array.out.starts_with("[{") && array.out.ends_with("\\n\"}]\n")) << array.out;
}

TEST_F(ManyDocuments, ExportsOfManyGoIntoAFolderAndNeverOnEachOther) {
    EXPECT_EQ(Run("export papers").code, 2);
    EXPECT_EQ(Run("export papers --out xml").code, 3);
    EXPECT_EQ(Read("xml/a.xml"), Run("export papers/a.txt").out);
    EXPECT_NE(Read("xml/old/a.xml"), "");
    EXPECT_FALSE(std::filesystem::exists(folder.File("xml/b.xml")));
    const Outcome clash = Run("export papers/a.txt papers/old/a.txt --out one");
    EXPECT_EQ(clash.code, 2);
    EXPECT_EQ(clash.err, "error: two documents would be written to one/a.xml\n");
    EXPECT_FALSE(std::filesystem::exists(folder.File("one")));
}

TEST_F(ManyDocuments, ADocumentIsWrittenAnewUnlessItWouldLackLines) {
    EXPECT_EQ(Run("save papers/a.txt").code, 0);
    const std::string saved = Read("papers/a.txt");
    EXPECT_EQ(Read("papers/a.txt.bak"), "\n" + kDocument);
    EXPECT_EQ(Run("save --out new papers/a.txt papers/b.txt").code, 3);
    EXPECT_EQ(Read("new/a.txt"), saved) << "as it reads what it wrote";
    EXPECT_FALSE(std::filesystem::exists(folder.File("new/b.txt")));
    folder.Write("later.txt", kDocument + "^K of a later edition\n");
    const Outcome lossy = Run("save later.txt");
    EXPECT_EQ(lossy.code, 4);
    EXPECT_NE(lossy.err.find("later.txt:8: error: nobody knows this tag"), std::string::npos)
        << lossy.err;
    EXPECT_EQ(Read("later.txt"), kDocument + "^K of a later edition\n");
    EXPECT_FALSE(std::filesystem::exists(folder.File("later.txt.bak")));
    folder.Write("bare.txt", Replace(kDocument, "^L 7732185", "^L 64175 DNNNN S\n^L 7732185"));
    const Outcome bare = Run("save bare.txt");
    EXPECT_EQ(bare.code, 1);
    EXPECT_EQ(bare.err,
              "bare.txt: warning: Some compounds do not have samples. They will not be saved!\n");
    EXPECT_EQ(Read("bare.txt"), saved);
}

TEST_F(ManyDocuments, AReaderThatStopsIsTold) {
    const Outcome closed = Run("tree papers/a.txt >/dev/full");
    EXPECT_EQ(closed.code, 4);
    EXPECT_EQ(closed.err, "error: standard output cannot be written\n");
    EXPECT_EQ(Run("tree papers >/dev/full").err, closed.err) << "the bad one is not read any more";
}

} // namespace vexora::test
