#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>
#include <string>

#include "support/Sessions.h"

namespace vexora::test {
namespace {

namespace fs = std::filesystem;

const fs::path Root = VEXORA_SOURCE_DIR;
const fs::path Tour = Root / "docs/tour";

std::string TextOf(const fs::path& path) {
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

/// The pictures that pages show, as full paths.
std::set<fs::path> PicturesShown() {
    const std::regex picture(R"(!\[[^\]]+\]\(([^)]+)\))");
    std::set<fs::path> shown;
    for (const fs::path& page : {Root / "README.md", Root / "docs/tour.md"}) {
        const std::string text = TextOf(page);
        for (std::sregex_iterator at(text.begin(), text.end(), picture), end; at != end; ++at)
            shown.insert(page.parent_path() / (*at)[1].str());
    }
    return shown;
}

/// The script whose pictures lie in a folder of the tour: an example, or one of the tour's own.
fs::path ScriptOf(const std::string& name) {
    const fs::path own = Tour / (name + ".vxs");
    return fs::exists(own) ? own : Root / "examples" / name / (name + ".vxs");
}

TEST(Tour, ShowsThePicturesThatItsScriptsTakeAndNoOthers) {
    const std::set<fs::path> shown = PicturesShown();
    std::set<fs::path> present;
    std::uintmax_t bytes = 0;
    for (const auto& entry : fs::recursive_directory_iterator(Root / "docs")) {
        if (entry.path().extension() != ".png") continue;
        present.insert(entry.path());
        bytes += entry.file_size();
    }
    EXPECT_EQ(present, shown) << "scripts/tour takes them anew";
    EXPECT_LT(bytes, 2'000'000U);
    for (const fs::path& picture : shown) {
        const fs::path folder = picture.parent_path();
        EXPECT_EQ(folder.parent_path(), Tour) << picture;
        EXPECT_NE(TextOf(ScriptOf(folder.filename()))
                      .find("\nshot \"" + picture.filename().string() + "\"\n"),
                  std::string::npos)
            << picture;
    }
}

TEST(Tour, ItsOwnScriptsHold) {
    for (const auto& entry : fs::directory_iterator(Tour)) {
        if (entry.path().extension() != ".vxs") continue;
        const SessionPlay play = PlaySession(entry.path());
        EXPECT_EQ(play.status, 0) << play.errors;
    }
}

} // namespace
} // namespace vexora::test
