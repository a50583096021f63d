#include "cli/CommandLineFixture.h"

#include <regex>
#include <set>

#include "reference/Text.h"

namespace vexora::test {
namespace {

std::string TextOf(const std::string& path) {
    std::ostringstream text;
    text << std::ifstream(VEXORA_SOURCE_DIR + path).rdbuf();
    return text.str();
}

std::set<std::string> Matches(const std::string& text, const char* pattern) {
    const std::regex expression(pattern);
    std::set<std::string> found;
    for (std::sregex_iterator at(text.begin(), text.end(), expression), end; at != end; ++at)
        found.insert((*at)[1].str());
    return found;
}

// What --help tells, a person finds in the man page and under the tabulator key, and nothing else.
TEST_F(CommandLine, ManPageAndCompletionKnowTheCommandsAndOptionsThatItTells) {
    constexpr const char* Listed = "\n {2,4}(?:-h,)?(--[a-z-]+|[a-z]+) ";
    std::set<std::string> told = Matches(Run("--help").out, Listed);
    for (const std::string& command : Matches(Run("--help").out, "\n {2}([a-z]+) ")) {
        const std::string help = Run(command + " --help").out;
        told.merge(command == "play" ? Matches(help, "(--[a-z-]+)") : Matches(help, Listed));
        if (command != "refdb") continue;
        for (const std::string& below : Matches(help, "\n {2}([a-z]+) "))
            told.merge(Matches(Run("refdb " + below + " --help").out, Listed));
    }
    const std::string manPage = Replace(TextOf("/packaging/man/vexora-cli.1"), "\\-", "-");
    const std::string completion = TextOf("/packaging/completion/vexora-cli.bash");
    for (const std::string& word : told) {
        const std::regex whole("(^|[^a-z-])" + word + "($|[^a-z-])");
        EXPECT_TRUE(std::regex_search(manPage, whole)) << word;
        EXPECT_TRUE(std::regex_search(completion, whole)) << word;
    }
    EXPECT_GT(told.size(), 25U);
    for (const std::string& page : {Replace(manPage, "vexora --play", ""), completion})
        for (const std::string& word : Matches(page, "[^a-z-](--[a-z][a-z-]+)"))
            EXPECT_TRUE(told.contains(word)) << word;
}

} // namespace
} // namespace vexora::test
