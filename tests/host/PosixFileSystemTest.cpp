#include "host/PosixFileSystem.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <fstream>
#include <sstream>

#include "host/FindPlaces.h"
#include "host/HostClock.h"
#include "reference/SafeFile.h"
#include "shell/Places.h"
#include "support/FailingFileSystem.h"
#include "support/ScratchFolder.h"

namespace vexora::test {
namespace {

class Disk : public ::testing::Test {
protected:
    std::string Put(const std::string& name, const std::string& text) {
        std::ofstream(folder_.Path(name), std::ios::binary) << text;
        return folder_.Path(name);
    }
    static std::string Text(const std::string& path) {
        std::ostringstream text;
        text << std::ifstream(path, std::ios::binary).rdbuf();
        return text.str();
    }
    std::size_t FileCount() const {
        const auto files = std::filesystem::directory_iterator(folder_.Path());
        return static_cast<std::size_t>(std::distance(begin(files), end(files)));
    }

    ScratchFolder folder_;
    host::PosixFileSystem disk_;
};

TEST_F(Disk, ATemporaryFileTakesThePlaceAndTheModeOfItsTarget) {
    const std::string target = Put("a.txt", "old");
    ::chmod(target.c_str(), 0640);
    std::string temporary;
    std::string error;
    auto file = disk_.CreateBeside(target, temporary, error);
    ASSERT_TRUE(file) << error;
    EXPECT_EQ(file->Write(std::string(100000, 'x')), "");
    EXPECT_EQ(file->Flush(), "");
    EXPECT_EQ(file->Close(), "");
    EXPECT_EQ(Text(target), "old");
    EXPECT_EQ(disk_.Rename(temporary, target), "");
    EXPECT_EQ(disk_.FlushFolder(folder_.Path()), "");
    EXPECT_EQ(disk_.Size(target), 100000);
    struct stat status {};
    ::stat(target.c_str(), &status);
    EXPECT_EQ(status.st_mode & 0777U, 0640U);
}

TEST_F(Disk, OnlyFilesAreReadAndReplaced) {
    const std::string pipe = folder_.Path("pipe");
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    std::filesystem::create_symlink("/dev/null", folder_.Path("link"));
    const std::pair<std::string, std::string> cases[] = {
        {pipe, "It is no file but a pipe"},
        {"/dev/zero", "It is no file but a device"},
        {folder_.Path("link"), "It is no file but a device"},
        {folder_.Path(), "Is a directory"}};
    for (const auto& [path, reason] : cases) {
        std::string error;
        EXPECT_FALSE(disk_.Read(path, error)) << path;
        EXPECT_EQ(error, reason) << path;
        const SaveOutcome outcome = WriteSafely(disk_, path, "text", true);
        EXPECT_FALSE(outcome.isSaved) << path;
        EXPECT_EQ(outcome.fault, reason) << path;
    }
    EXPECT_TRUE(std::filesystem::is_fifo(pipe));
    EXPECT_EQ(FileCount(), 2U);
}

TEST_F(Disk, AFileThatIsTooLargeIsNotRead) {
    host::PosixFileSystem small(3);
    std::string error;
    EXPECT_EQ(small.Read(Put("a.txt", "abc"), error), "abc");
    EXPECT_FALSE(small.Read(Put("b.txt", "abcd"), error));
    EXPECT_EQ(error, "It is larger than 3 bytes");
    const std::string hole = Put("hole.txt", "");
    std::filesystem::resize_file(hole, std::uintmax_t{1} << 40);
    EXPECT_FALSE(disk_.Read(hole, error));
    EXPECT_EQ(error, "It is larger than 1024 MiB");
}

TEST_F(Disk, LinksAreFollowedAlsoToFilesThatAreNotThereYet) {
    std::filesystem::create_directory(folder_.Path("real"));
    std::filesystem::create_symlink("real/a.txt", folder_.Path("link"));
    std::filesystem::create_symlink("circle", folder_.Path("circle"));
    EXPECT_EQ(disk_.Resolve(folder_.Path("link")), folder_.Path("real/a.txt"));
    EXPECT_EQ(disk_.Resolve(folder_.Path("none")), folder_.Path("none"));
    EXPECT_EQ(disk_.Resolve(folder_.Path("circle")), folder_.Path("circle"));
}

TEST_F(Disk, WhatCannotBeDoneIsToldInTheWordsOfTheSystem) {
    std::string error;
    EXPECT_FALSE(disk_.Read(folder_.Path("none"), error));
    EXPECT_EQ(error, "No such file or directory");
    EXPECT_FALSE(disk_.Read(folder_.Path(), error));
    EXPECT_EQ(error, "Is a directory");
    EXPECT_EQ(disk_.WhyNotWritable(folder_.Path()), "Is a directory");
    EXPECT_EQ(disk_.WhyNotWritable(folder_.Path("none/a")), "No such file or directory");
    EXPECT_EQ(disk_.WhyNotWritable(Put("a.txt", "") + "/b"), "Not a directory");
    EXPECT_EQ(disk_.WhyNotWritable(folder_.Path("a.txt")), "");
    EXPECT_EQ(disk_.Link(folder_.Path("a.txt"), folder_.Path("a.txt")), "File exists");
    EXPECT_EQ(disk_.Remove(folder_.Path("none")), "");
    EXPECT_EQ(disk_.Size(folder_.Path("none")), -1);
}

TEST_F(Disk, AFailedCopyLeavesNothingBehind) {
    const std::string source = Put("a.txt", "x");
    std::filesystem::create_directory(folder_.Path("b.txt"));
    EXPECT_EQ(disk_.Copy(source, folder_.Path("b.txt")), "Is a directory");
    EXPECT_EQ(FileCount(), 2U);
}

TEST_F(Disk, AFreshHomeGetsWhatWasInstalledAndKeepsItsOwn) {
    std::filesystem::create_directory(folder_.Path("share"));
    std::filesystem::create_directory(folder_.Path("home"));
    Put("share/VXR.mdb", "installed");
    Put("share/VXRLocal.mdb", "words");
    Put("home/VXR.mdb", "mine");
    const Places places{folder_.Path("home"), folder_.Path("share")};
    EXPECT_EQ(PrepareHome(places, disk_), "");
    EXPECT_EQ(Text(folder_.Path("home/VXR.mdb")), "mine");
    EXPECT_EQ(Text(folder_.Path("home/VXRLocal.mdb")), "words");

    FailingFileSystem failing;
    failing.FailAt("Copy");
    EXPECT_EQ(PrepareHome({folder_.Path("other"), folder_.Path("share")}, failing),
              folder_.Path("other/VXRLocal.mdb") + ": No space left on device");
}

TEST_F(Disk, TheIntroductionComesToAFreshHomeOnly) {
    for (const char* name : {"share", "share/help", "home"})
        std::filesystem::create_directory(folder_.Path(name));
    Put("share/help/intro.rtf", "installed");
    Put("share/help/scope.rtf", "installed");
    Put("home/intro.rtf", "of the laboratory");
    const Places places{folder_.Path("home"), folder_.Path("share")};
    BringIntroduction(places, disk_);
    EXPECT_EQ(Text(folder_.Path("home/intro.rtf")), "of the laboratory");
    EXPECT_EQ(Text(folder_.Path("home/scope.rtf")), "installed");
    std::filesystem::remove(folder_.Path("home/scope.rtf"));
    Put("home/VXR.ini", "");
    BringIntroduction(places, disk_);
    EXPECT_FALSE(disk_.Exists(folder_.Path("home/scope.rtf")));
}

TEST_F(Disk, TheHomeGivenWinsOverTheOneInTheEnvironment) {
    ::setenv("VEXORA_HOME", folder_.Path("set").c_str(), 1);
    EXPECT_EQ(host::FindPlaces(folder_.Path("given") + "/", "").Home, folder_.Path("given"));
    EXPECT_EQ(host::FindPlaces({}, "").Home, folder_.Path("set"));
    ::unsetenv("VEXORA_HOME");
    ::setenv("XDG_DATA_HOME", folder_.Path().c_str(), 1);
    EXPECT_EQ(host::FindPlaces({}, "").Home, folder_.Path("vexora"));
    EXPECT_EQ(host::FindPlaces({}, "").Installed, VEXORA_SHARE_DIR);
    ::unsetenv("XDG_DATA_HOME");
}

TEST(HostClock, DatesAreDaysThatExist) {
    EXPECT_EQ(host::DateText(host::ParseDate("2024-02-29").value()), "2024-02-29");
    for (const char* text : {"2023-02-29", "2026-13-01", "2026-00-10", "26-01-01", "2026/01/01",
                             "2026-01-1x", "", "2026-01-011"})
        EXPECT_FALSE(host::ParseDate(text)) << text;
    EXPECT_EQ(host::DateText(host::ClockToday()).size(), 10U);
}

} // namespace
} // namespace vexora::test
