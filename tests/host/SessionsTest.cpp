#include "host/ModelActor.h"
#include "host/PlayMain.h"
#include "host/PosixFileSystem.h"
#include "host/WorkbenchProgram.h"
#include "shell/Places.h"
#include "support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

namespace vexora::test {
namespace {

namespace fs = std::filesystem;

std::vector<fs::path> SessionFiles() {
    std::vector<fs::path> found;
    for (const auto& entry :
         fs::recursive_directory_iterator(fs::path(VEXORA_SOURCE_DIR) / "tests" / "sessions")) {
        if (entry.path().extension() == ".vxs") found.push_back(entry.path());
    }
    std::sort(found.begin(), found.end());
    return found;
}

TEST(Sessions, EachHoldsOnAFreshHome) {
    for (const fs::path& path : SessionFiles()) {
        const ScratchFolder folder;
        fs::create_directory(folder.Path("out"));
        Places places{folder.Path("home"), VEXORA_SHARE_DIR};
        std::ostringstream out;
        std::ostringstream err;
        host::ModelActor actor;
        const auto program = [](const Places& found) {
            return host::WorkbenchIn({found.Home, VEXORA_SHARE_DIR});
        };
        host::PosixFileSystem files;
        ASSERT_EQ(PrepareHome(places, files), "");
        const int status = host::PlayMain({"--home", places.Home, "--date", "2026-01-15", "--var",
                                           "OUT=" + folder.Path("out"), path.string()},
                                          {actor, out, err, "vexora-tests", program});
        EXPECT_EQ(status, 0) << path << "\n" << err.str() << out.str();
    }
}

} // namespace
} // namespace vexora::test
