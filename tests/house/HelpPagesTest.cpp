#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <string_view>

namespace {

namespace fs = std::filesystem;

/// Whether code that goes on with " = " and a number sets a topic: a constant whose name begins
/// with "help", or a form's own.
bool EndsInATopic(std::string_view code) {
    if (code.ends_with("HelpContext")) return true;
    const std::string_view type = "constexpr int ";
    const std::size_t at = code.rfind(type);
    if (at == code.npos) return false;
    std::string_view name = code.substr(at + type.size());
    if (name.starts_with("k")) name.remove_prefix(1);
    const auto isOfAName = [](unsigned char c) { return std::isalnum(c) || c == '_'; };
    return (name.starts_with("help") || name.starts_with("Help")) &&
           std::ranges::all_of(name, isOfAName);
}

/// The topics that a source file opens, by the names it gives them or as a form's own.
std::set<std::string> TopicsOf(const fs::path& source) {
    std::ostringstream text;
    text << std::ifstream(source).rdbuf();
    const std::string code = text.str();
    std::set<std::string> topics;
    for (std::size_t at = code.find(" = "); at != code.npos; at = code.find(" = ", at + 1)) {
        const std::size_t end = code.find_first_not_of("0123456789", at + 3);
        const bool isNumber = end != code.npos && end > at + 3 && code[end] == ';';
        if (isNumber && EndsInATopic(std::string_view(code).substr(0, at)))
            topics.insert(code.substr(at + 3, end - at - 3));
    }
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
