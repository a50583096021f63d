#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>

#include <unistd.h>

#include <gtest/gtest.h>

#include "host/Actor.h"
#include "host/PlayMain.h"
#include "host/PosixFileSystem.h"
#include "host/WorkbenchProgram.h"
#include "qt/FormAudit.h"
#include "qt/Look.h"
#include "shell/Places.h"

namespace vexora::qt::test {

namespace {

namespace fs = std::filesystem;

struct Played {
    int status = 0;
    std::string transcript;
    std::string errors;
    std::map<std::string, std::string> files; // what the session wrote, by name below OUT

    bool operator==(const Played&) const = default;
};

std::string Content(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// Plays in a fresh home; both fronts get the same paths, for paths stand in transcripts.
Played Play(host::Actor& actor, const fs::path& script) {
    const fs::path root = fs::temp_directory_path() / ("vexora-fronts-" + std::to_string(getpid()));
    fs::remove_all(root);
    fs::create_directories(root / "out");
    std::ostringstream out;
    std::ostringstream err;
    const Places installed{(root / "home").string(), VEXORA_SHARE_DIR};
    // The programs of tests lie apart from what is installed.
    const auto program = [&](const Places&) { return host::WorkbenchIn(installed); };
    host::PosixFileSystem files;
    EXPECT_EQ(PrepareHome(installed, files), "");
    Played played;
    played.status = host::PlayMain({"--home", installed.Home, "--date", "2026-01-15", "--var",
                                    "OUT=" + (root / "out").string(), script.string()},
                                   {actor, out, err, "vexora", program});
    played.transcript = out.str();
    played.errors = err.str();
    for (const auto& entry : fs::recursive_directory_iterator(root / "out")) {
        if (!entry.is_regular_file()) continue;
        played.files[fs::relative(entry.path(), root / "out").string()] = Content(entry.path());
    }
    fs::remove_all(root);
    return played;
}

std::vector<fs::path> Sessions() {
    std::vector<fs::path> found;
    const fs::path folder = fs::path(VEXORA_SOURCE_DIR) / "tests" / "sessions";
    if (!fs::exists(folder)) return found;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        if (entry.path().extension() == ".vxs") found.push_back(entry.path());
    }
    std::sort(found.begin(), found.end());
    return found;
}

} // namespace

class OnBothFronts : public testing::TestWithParam<fs::path> {};

TEST_P(OnBothFronts, LeavesTheSameTranscriptAndFiles) {
    host::Actor models;
    const Played expected = Play(models, GetParam());
    QtActor windows;
    const Played found = Play(windows, GetParam());
    EXPECT_EQ(found.transcript, expected.transcript);
    EXPECT_EQ(found.errors, expected.errors);
    EXPECT_EQ(found.files, expected.files);
    EXPECT_EQ(found.status, expected.status);
}

using LookAndSize = std::pair<const char*, double>;

class InEachLook : public testing::TestWithParam<LookAndSize> {
protected:
    InEachLook() {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // of closed windows
        TakeLook(GetParam().first);
        QFont larger = font_;
        larger.setPointSizeF(font_.pointSizeF() * GetParam().second);
        QApplication::setFont(larger);
    }
    ~InEachLook() override {
        QApplication::setFont(font_);
        QApplication::setPalette(QPalette());
    }

private:
    const QFont font_ = QApplication::font();
};

TEST_P(InEachLook, EveryFormIsReadWholeWalkedByTabAndExplained) {
    FormAudit audit;
    std::string transcripts;
    for (const fs::path& script : Sessions())
        transcripts += Play(audit, script).transcript;
    for (const std::string& fault : audit.Faults)
        ADD_FAILURE() << fault;
    for (const std::string& form : audit.Known) {
        EXPECT_GT(audit.Marked[form], 0U) << form;
        const std::string shown = "[help] " + std::to_string(audit.Topics[form]) + "\n";
        EXPECT_NE(transcripts.find(shown), std::string::npos) << form << " " << shown;
    }
}

INSTANTIATE_TEST_SUITE_P(Looks, InEachLook,
                         testing::Values(LookAndSize("light", 1.0), LookAndSize("dark", 1.5)));

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(OnBothFronts);
INSTANTIATE_TEST_SUITE_P(
    Sessions, OnBothFronts, testing::ValuesIn(Sessions()), [](const auto& session) {
        const fs::path& path = session.param;
        std::string name = path.parent_path().filename().string() + "_" + path.stem().string();
        std::replace_if(
            name.begin(), name.end(), [](unsigned char c) { return !std::isalnum(c); }, '_');
        return name;
    });

} // namespace vexora::qt::test
