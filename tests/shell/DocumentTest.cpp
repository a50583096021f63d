#include "records/clsR.h"
#include "reference/Database.h"
#include "shell/ShellFixture.h"

namespace vexora::test {

constexpr const char* kSaveQuestion = "Do you want to save your work?";

class DocumentTest : public ShellFixture {
protected:
    /// Starts on a document that has a change to save.
    std::string StartChanged() {
        const std::string path = WriteDocument();
        EXPECT_TRUE(Start("\"" + path + "\""));
        Globals().Saved = false;
        return path;
    }
    bool HasDocument() const { return !Globals().recR.IsEmpty(); }
};

TEST_F(DocumentTest, TheCommandLineOpensTheDocumentAndSelectsItsSource) {
    const std::string path = WriteDocument();
    ASSERT_TRUE(Start(path));
    EXPECT_EQ(Shell().FileTitle(), "paper.txt");
    EXPECT_EQ(Shell().FileName, path);
    EXPECT_EQ(Globals().OutDir, folder.Path());
    EXPECT_EQ(Globals().CurrentKey, "R");
    EXPECT_EQ(Shell().AddRef.Caption(), "Reference");
    EXPECT_TRUE(Globals().Saved);
}

TEST_F(DocumentTest, AMissingFileIsToldAndTheWorkbenchStartsEmpty) {
    const std::string path = folder.Path("none.txt");
    desktop.Expect("The file " + path + " cannot be read.\nNo such file or directory");
    ASSERT_TRUE(Start(path));
    EXPECT_FALSE(HasDocument());
    EXPECT_EQ(Shell().FileName + Shell().FileTitle(), "");
    EXPECT_EQ(Shell().AddRef.Caption(), "Start");
}

TEST_F(DocumentTest, ABadRecordLeavesAnEmptyDocumentWithoutAName) {
    const std::string path = WriteDocument("^L \n");
    desktop.Expect("Incomplete record: ^L");
    ASSERT_TRUE(Start(path));
    EXPECT_FALSE(HasDocument());
    EXPECT_TRUE(Shell().tvwTree.IsEmpty());
    EXPECT_EQ(Shell().FileName, "");
}

TEST_F(DocumentTest, ADatabaseThatRefusesTheSourceIsToldAndTheFileIsSaved) {
    const std::string path = StartChanged();
    Globals().CurrentR->isNew = true;
    Database& known = Globals().CompoundDb();
    known.Execute("delete from SOURCE_REFINFO");
    known.Execute("create trigger Refuse before insert on SOURCE_REFINFO "
                  "begin select raise(abort, 'no room'); end");
    std::string reason;
    try {
        RegisterDocument();
    } catch (const DatabaseError& error) {
        reason = error.what();
    }
    desktop.Expect(reason);
    Shell().Save();
    EXPECT_TRUE(Globals().Saved);
    EXPECT_NE(FileText(path).find("^J#"), std::string::npos);
    EXPECT_NE(reason.find("no room"), std::string::npos);
}

/// Damages the index by which compounds are found; the database opens as if nothing were wrong.
void DamageLookUps(const std::string& path) {
    Database database;
    database.Open(path, true);
    const auto page = static_cast<std::size_t>(
        database.Query("select rootpage from sqlite_master where name = 'AllNameRN'")
            .Integer("rootpage"));
    database.Close();
    constexpr std::size_t pageSize = 4096;
    std::string bytes = FileText(path);
    ASSERT_GE(bytes.size(), page * pageSize);
    bytes.replace((page - 1) * pageSize, pageSize, pageSize, 'Z');
    WriteText(path, bytes);
}

TEST_F(DocumentTest, ADatabaseThatFailsInTheMiddleOfAReadLeavesNoHalfDocument) {
    DamageLookUps(folder.Path("VXR.mdb"));
    desktop.Expect(folder.Path("VXR.mdb") + ": database disk image is malformed");
    ASSERT_TRUE(Start(WriteDocument()));
    EXPECT_FALSE(HasDocument());
    EXPECT_TRUE(Shell().tvwTree.IsEmpty());
    EXPECT_EQ(Shell().FileName, "");
    EXPECT_EQ(LiveButtons(), "AddRef ");
}

TEST_F(DocumentTest, CancelKeepsTheDocumentAndNoDropsIt) {
    StartChanged();
    desktop.Expect(kSaveQuestion, ui::Answer::Cancel);
    EXPECT_FALSE(Shell().NewProc());
    EXPECT_TRUE(HasDocument());
    EXPECT_FALSE(Globals().Saved);
    desktop.Expect(kSaveQuestion, ui::Answer::No);
    EXPECT_TRUE(Shell().NewProc());
    EXPECT_FALSE(HasDocument());
    EXPECT_EQ(Shell().FileTitle() + Shell().FileName + Globals().CurrentKey, "");
}

TEST_F(DocumentTest, YesWithoutASavedFileKeepsTheTree) {
    StartChanged();
    Shell().FileName.clear();
    desktop.Expect(kSaveQuestion, ui::Answer::Yes);
    desktop.Choices = {std::nullopt};
    EXPECT_FALSE(Shell().NewProc());
    EXPECT_EQ(desktop.Proposed, "2002WAGPRU1.txt");
    EXPECT_TRUE(HasDocument());
    EXPECT_FALSE(Shell().tvwTree.IsEmpty());
    EXPECT_EQ(Shell().FileName, "");
}

TEST_F(DocumentTest, AFullDiskKeepsFileAndBackupAndTheDocumentStaysUnsaved) {
    const std::string path = StartChanged();
    Shell().Save();
    EXPECT_TRUE(Globals().Saved);
    const std::string file = FileText(path);
    const std::string backup = FileText(path + ".bak");
    Globals().Saved = false;
    for (const char* operation : {"Write", "Flush", "Close", "Rename"}) {
        files.FailAt(operation, files.Calls(operation) + 1);
        desktop.Expect("The file " + path + " cannot be written.\nNo space left on device");
        Shell().Save();
        EXPECT_FALSE(Globals().Saved) << operation;
        EXPECT_EQ(FileText(path), file) << operation;
        EXPECT_EQ(FileText(path + ".bak"), backup) << operation;
    }
    desktop.Expect(kSaveQuestion, ui::Answer::Cancel);
    EXPECT_FALSE(Shell().Close());
}

TEST_F(DocumentTest, AFolderThatIsNotFlushedIsToldOfASavedDocument) {
    const std::string path = StartChanged();
    files.FailAt("FlushFolder", 1, "Input/output error");
    desktop.Expect("The file " + path +
                   " is saved, but the disk reports a fault.\nInput/output error");
    Shell().Save();
    EXPECT_TRUE(Globals().Saved);
    Shell().Save();
}

TEST_F(DocumentTest, SavingTwiceKeepsTheFileBeforeTheLastSave) {
    const std::string path = StartChanged();
    const std::string first = FileText(path);
    Shell().Save();
    EXPECT_EQ(FileText(path + ".bak"), first);
    const std::string second = FileText(path);
    Globals().CurrentR->AUTHOR2 = "NEW";
    Shell().Save();
    EXPECT_EQ(FileText(path + ".bak"), second);
    EXPECT_NE(FileText(path), second);
    EXPECT_FALSE(std::filesystem::exists(path + ".bak.bak"));
}

TEST_F(DocumentTest, SaveAsAsksBeforeItWritesOverAFile) {
    StartChanged();
    const std::string taken = folder.Path("taken.txt");
    const std::string fresh = folder.Path("fresh.txt");
    WriteText(taken, "precious");
    desktop.Choices = {taken, fresh};
    desktop.Expect("File taken.txt exists\nDo you want to re-write taken.txt?", ui::Answer::No);
    Shell().SaveAsEntry.UserClick();
    EXPECT_EQ(FileText(taken), "precious");
    EXPECT_EQ(Shell().FileName, fresh);
    EXPECT_EQ(Shell().FileTitle(), "fresh.txt");
    EXPECT_TRUE(std::filesystem::exists(fresh));
    EXPECT_TRUE(Globals().Saved);
}

TEST_F(DocumentTest, AnExportNeverTakesThePlaceOfTheDocument) {
    const std::string path = StartChanged();
    const std::string before = FileText(path);
    desktop.Choices = {path};
    desktop.Expect("File paper.txt exists\nDo you want to re-write paper.txt?", ui::Answer::Yes);
    desktop.Expect("The export cannot take the place of the record file " + path + ".");
    Shell().mnuExportXML.UserClick();
    EXPECT_EQ(FileText(path), before);
    EXPECT_FALSE(Globals().ShellLocked);
}

TEST_F(DocumentTest, ACompoundWithoutSampleIsWarnedOf) {
    const std::string path = WriteDocument("^L 64175 NNNNN &\n");
    ASSERT_TRUE(Start(path));
    desktop.Expect("Some compounds do not have samples.\nThey will not be saved!");
    Shell().Save();
    EXPECT_EQ(FileText(path).find("64175"), std::string::npos);
}

TEST_F(DocumentTest, AMixtureWithoutDataIsWarnedOf) {
    const std::string path = WriteDocument("^L 64175 NNNNN &\n^B 64175 7732185 &\n");
    ASSERT_TRUE(Start(path));
    // The compound stays in the file, for a mixture names it.
    desktop.Expect("Some mixtures do not have data.\nThey will not be saved!");
    Shell().Save();
    EXPECT_EQ(FileText(path).find("^B"), std::string::npos);
    EXPECT_NE(FileText(path).find("^L 64175 NNNNN &"), std::string::npos);
}

TEST_F(DocumentTest, ADropIsIgnoredWhileTheShellIsLocked) {
    const std::string path = WriteDocument();
    ASSERT_TRUE(Start());
    Shell().DisableShell();
    Shell().tvwTree.UserDrop(path);
    EXPECT_FALSE(HasDocument());
    Shell().Enable();
    Shell().tvwTree.UserDrop(path);
    EXPECT_TRUE(HasDocument());
    EXPECT_EQ(Shell().FileName, path);
}

TEST_F(DocumentTest, ClosingIsRefusedWhileADialogIsOpen) {
    ASSERT_TRUE(Start());
    Shell().DisableShell();
    desktop.Expect("Please close all other windows before exiting the main form");
    EXPECT_FALSE(workbench.Quit());
    Shell().Enable();
    EXPECT_TRUE(workbench.Quit());
    EXPECT_FALSE(workbench.IsRunning());
}

TEST_F(DocumentTest, LinesThatAreNotKeptMakeTheDocumentReadOnly) {
    const std::string path = WriteDocument("XB 1\nXE\n");
    const std::string before = FileText(path);
    desktop.Expect("This document holds 2 lines of data that this edition does not keep.\n"
                   "It is opened for reading only, so that nothing of it is lost.\n"
                   "Line 5: no sample of a complex stands before it | Read only");
    ASSERT_TRUE(Start(path));
    EXPECT_EQ(LiveButtons(), "");
    EXPECT_EQ(Shell().lblStatus.Caption(), "paper.txt - read only");
    EXPECT_TRUE(Shell().Caption().ends_with("(read only)"));
    const char* refusal =
        "This document is open for reading only: it can be neither changed nor saved. | Read only";
    desktop.Expect(refusal);
    Shell().Save();
    desktop.Expect(refusal);
    Shell().SaveAs();
    desktop.Expect("This document holds data that this edition does not keep.\n"
                   "They would be missing from the export. Do you want to export the rest?"
                   " | Read only",
                   ui::Answer::No);
    Shell().mnuExportXML.UserClick();
    EXPECT_EQ(FileText(path), before);
    EXPECT_TRUE(Shell().NewProc());
    EXPECT_FALSE(Globals().ReadOnly);
}

TEST_F(DocumentTest, NodesOfTiedSetsStandOut) {
    const std::string path = folder.Path("mixtures.txt");
    std::filesystem::copy_file(VEXORA_SOURCE_DIR "/examples/ethanol_water/1932carlew1.txt", path);
    ASSERT_TRUE(Start(path));
    std::string bold;
    for (const auto& system : Shell().tvwTree.Roots().front()->Children())
        for (const auto& node : system->Children())
            if (node->Bold()) bold += system->Text() + ", " + node->Text().substr(0, 21) + "\n";
    const std::string ternary = "acetic acid + chloroform + water, ^1: Weight fraction o\n";
    EXPECT_EQ(bold, ternary + ternary + ternary);
}

} // namespace vexora::test
