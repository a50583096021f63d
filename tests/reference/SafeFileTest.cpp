#include "reference/SafeFile.h"

#include "reference/ReferenceFixture.h"
#include "support/FailingFileSystem.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

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

    test::TemporaryFolder folder;
    test::FailingFileSystem files;
    std::string path = folder.File("doc.txt");
};

TEST_F(SafeFile, KeepsExactlyTheVersionBefore) {
    EXPECT_EQ(WriteSafely(files, path, "one", true), "");
    EXPECT_EQ(State(), "doc.txt=one;");
    EXPECT_EQ(WriteSafely(files, path, "two", true), "");
    EXPECT_EQ(WriteSafely(files, path, "three", true), "");
    EXPECT_EQ(State(), "doc.txt=three;doc.txt.bak=two;");
    EXPECT_EQ(WriteSafely(files, path, "four", false), "");
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
        EXPECT_NE(WriteSafely(failing, path, "a new version", true), "") << operation;
        EXPECT_EQ(State(), before) << operation << " " << call;
    }
    test::FailingFileSystem noLinks;
    noLinks.FailAt("Link");
    noLinks.FailAt("Copy");
    EXPECT_NE(WriteSafely(noLinks, path, "a new version", true), "");
    EXPECT_EQ(State(), before);
}

TEST_F(SafeFile, WithoutLinksTheBackupIsACopy) {
    folder.Write("doc.txt", "present");
    files.FailAt("Link");
    EXPECT_EQ(WriteSafely(files, path, "next", true), "");
    EXPECT_EQ(State(), "doc.txt=next;doc.txt.bak=present;");
}

TEST_F(SafeFile, WritesBehindASymbolicLink) {
    folder.Write("real.txt", "present");
    std::filesystem::create_symlink("real.txt", path);
    EXPECT_EQ(WriteSafely(files, path, "next", true), "");
    EXPECT_TRUE(std::filesystem::is_symlink(path));
    EXPECT_EQ(State(), "doc.txt=next;doc.txt.bak=present;real.txt=next;");
}

} // namespace
} // namespace vexora
