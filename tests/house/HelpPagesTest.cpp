#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>

namespace {

namespace fs = std::filesystem;

/// The topics that a source file opens, by the names it gives them or as a form's own.
std::set<std::string> TopicsOf(const fs::path& source) {
    static const std::regex topic(R"((?:constexpr int k?[hH]elp\w*|HelpContext) = (\d+);)");
    std::ostringstream text;
    text << std::ifstream(source).rdbuf();
    const std::string code = text.str();
    std::set<std::string> topics;
    for (std::sregex_iterator at(code.begin(), code.end(), topic), end; at != end; ++at)
        topics.insert((*at)[1]);
    return topics;
}

TEST(HelpPages, EachTopicHasAPageAndBelongsToOneForm) {
    const fs::path root = VEXORA_SOURCE_DIR;
    std::map<std::string, std::string> owners;
    for (const auto& entry : fs::recursive_directory_iterator(root / "src")) {
        if (entry.path().extension() != ".cpp") continue;
        const std::string owner = entry.path().stem().string();
        for (const std::string& topic : TopicsOf(entry.path())) {
            EXPECT_TRUE(fs::exists(root / "help" / (topic + ".html"))) << owner << " " << topic;
            const auto [known, isFirst] = owners.emplace(topic, owner);
            const bool isShared = topic == "345" || topic == "145"; // definitions that several show
            EXPECT_TRUE(isFirst || isShared) << topic << ": " << known->second << ", " << owner;
        }
    }
    EXPECT_GT(owners.size(), 15U);
}

} // namespace
