#include "reference/SafeFile.h"

#include "reference/ReferenceFixture.h"
#include "reference/Text.h"
#include "support/FailingFileSystem.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

namespace vexora {
namespace {

class SafeFile : public testing::Test {
protected:
    /// All files of the folder with their contents.
    std::string State() {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(folder.Path()))
            names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        std::string text;
        for (const std::string& name : names) {
            std::string error;
            text += name + "=" + files.Read(folder.File(name), error).value_or("?") + ";";
        }
        return text;
    }

    /// What the user hears.
    static std::string Save(ui::FileSystem& disk, const std::string& target, const char* content,
                            bool keepBackup) {
        return WriteSafely(disk, target, content, keepBackup).Told("It");
    }
    void WriteAged(const std::string& name, int seconds) {
        folder.Write(name, "x");
        std::filesystem::last_write_time(folder.File(name),
                                         std::filesystem::file_time_type::clock::now() -
                                             std::chrono::seconds(seconds));
    }

    test::TemporaryFolder folder;
    test::FailingFileSystem files;
    std::string path = folder.File("doc.txt");
};

TEST_F(SafeFile, KeepsExactlyTheVersionBefore) {
    EXPECT_EQ(Save(files, path, "one", true), "");
    EXPECT_EQ(State(), "doc.txt=one;");
    EXPECT_EQ(Save(files, path, "two", true), "");
    EXPECT_EQ(Save(files, path, "three", true), "");
    EXPECT_EQ(State(), "doc.txt=three;doc.txt.bak=two;");
    EXPECT_EQ(Save(files, path, "four", false), "");
    EXPECT_EQ(State(), "doc.txt=four;doc.txt.bak=two;");
}

TEST_F(SafeFile, AFailureAtAnyStepLeavesEverythingAsItWas) {
    folder.Write("doc.txt", "present");
    folder.Write("doc.txt.bak", "before");
    const std::string before = State();
    const std::pair<const char*, int> steps[] = {
        {"WhyNotWritable", 1}, {"CreateBeside", 1}, {"Write", 1},  {"Flush", 1},
        {"Close", 1},          {"Size", 1},         {"Rename", 1}, {"Rename", 2}};
    for (const auto& [operation, call] : steps) {
        test::FailingFileSystem failing;
        failing.FailAt(operation, call);
        EXPECT_NE(Save(failing, path, "a new version", true), "") << operation;
        EXPECT_EQ(State(), before) << operation << " " << call;
    }
    test::FailingFileSystem noLinks;
    noLinks.FailAt("Link");
    noLinks.FailAt("Copy");
    EXPECT_NE(Save(noLinks, path, "a new version", true), "");
    EXPECT_EQ(State(), before);
}

TEST_F(SafeFile, WhatIsPrintedInPartsIsSavedWholeOrNotAtAll) {
    folder.Write("doc.txt", "old");
    const auto save = [this](ui::FileSystem& disk, bool breaksOff) {
        const Printing print = [breaksOff](const auto& taker) {
            for (const char* part : {"in ", "three ", "parts"})
                taker(part);
            if (breaksOff) throw std::runtime_error("no database");
        };
        return WriteSafely(disk, path, print, true).Told("It");
    };
    const std::pair<const char*, int> steps[] = {
        {"Write", 1}, {"Write", 3}, {"Close", 1}, {"Size", 1}, {"Rename", 1}};
    for (const auto& [operation, call] : steps) {
        test::FailingFileSystem failing;
        failing.FailAt(operation, call);
        EXPECT_NE(save(failing, false), "") << operation;
        EXPECT_EQ(State(), "doc.txt=old;") << operation << " " << call;
    }
    EXPECT_THROW(save(files, true), std::runtime_error);
    EXPECT_EQ(State(), "doc.txt=old;");
    files.FailAt("Rename");
    files.FailsAfterwards = true;
    EXPECT_EQ(save(files, false), "");
    EXPECT_EQ(State(), "doc.txt=in three parts;doc.txt.bak=old;");
}

TEST_F(SafeFile, WithoutLinksTheBackupIsACopy) {
    folder.Write("doc.txt", "present");
    files.FailAt("Link");
    EXPECT_EQ(Save(files, path, "next", true), "");
    EXPECT_EQ(State(), "doc.txt=next;doc.txt.bak=present;");
}

TEST_F(SafeFile, WritesBehindASymbolicLink) {
    folder.Write("real.txt", "present");
    std::filesystem::create_symlink("real.txt", path);
    EXPECT_EQ(Save(files, path, "next", true), "");
    EXPECT_TRUE(std::filesystem::is_symlink(path));
    EXPECT_EQ(State(), "doc.txt=next;doc.txt.bak=present;real.txt=next;");
}

TEST_F(SafeFile, WhatStandsOnTheDiskIsTold) {
    const char* reason = "No space left on device";
    const std::string fault = std::string("It is saved, but the disk reports a fault.\n") + reason;
    const struct {
        const char* operation;
        int call;
        bool happens; // the operation answers with a fault and has happened all the same
        std::string told, state;
    } samples[] = {
        {"Rename", 1, true, "", "new;old"},
        {"Rename", 2, true, "", "new;old"},
        {"Rename", 1, false, std::string("It cannot be written.\n") + reason, "old;before"},
        {"Rename", 2, false, std::string("It cannot be written.\n") + reason, "old;before"},
        {"FlushFolder", 1, false, fault, "new;old"},
    };
    for (const auto& sample : samples) {
        folder.Write("doc.txt", "old");
        folder.Write("doc.txt.bak", "before");
        test::FailingFileSystem failing;
        failing.FailAt(sample.operation, sample.call);
        failing.FailsAfterwards = sample.happens;
        EXPECT_EQ(Save(failing, path, "new", true), sample.told) << sample.operation;
        EXPECT_EQ(State(), "doc.txt=" + Replace(sample.state, ";", ";doc.txt.bak=") + ";")
            << sample.operation << sample.call << sample.happens;
    }
}

TEST_F(SafeFile, ABackupThatCannotBePutInPlaceNorTakenBackIsKept) {
    folder.Write("doc.txt", "old");
    test::FailingFileSystem failing;
    failing.FailFrom("Rename", 2);
    const std::string told = Save(failing, path, "new", true);
    EXPECT_TRUE(told.starts_with("It is saved, but the disk reports a fault.")) << told;
    EXPECT_NE(State().find("=old;"), std::string::npos) << State();
    EXPECT_TRUE(State().starts_with("doc.txt=new;")) << State();
}

TEST_F(SafeFile, BothFoldersAreFlushedWhereTheTargetIsALink) {
    std::filesystem::create_directory(folder.File("real"));
    folder.Write("real/doc.txt", "old");
    std::filesystem::create_symlink("real/doc.txt", path);
    files.FailAt("FlushFolder", 2);
    EXPECT_EQ(Save(files, path, "new", true),
              "It is saved, but the disk reports a fault.\nNo space left on device");
    EXPECT_EQ(files.Calls("FlushFolder"), 2);
}

TEST_F(SafeFile, WhatAKilledProgramLeftGoesAndFilesOfTheUserStay) {
    for (const char* name : {"doc.txt.vxr-aB3dE6", "doc.txt.bak.vxr-aB3dE6.vxr-000000"})
        WriteAged(name, 90);
    const char* staying[] = {"doc.txt.bak.tmp",   "doc.txt.tmp",        "doc.txt.vxr-aB3d-6",
                             "doc.txt.vxr-aB3dE", "doc.txt.vxr-young1", "doc2.txt.vxr-aB3dE6"};
    for (const char* name : staying)
        WriteAged(name, std::string(name).ends_with("young1") ? 10 : 90);
    EXPECT_EQ(Save(files, path, "one", true), "");
    EXPECT_EQ(Save(files, path, "two", true), "");
    std::string expected = "doc.txt=two;doc.txt.bak=one;";
    for (const char* name : staying)
        expected += std::string(name) + "=x;";
    EXPECT_EQ(State(), expected);
}

} // namespace
} // namespace vexora
