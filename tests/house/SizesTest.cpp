#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <regex>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

constexpr int LongestFile = 800;
constexpr int LongestFunction = 100;

struct Size {
    int lines;
    std::string what;
};

std::vector<std::string> Lines(const fs::path& path) {
    std::vector<std::string> lines;
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);)
        lines.push_back(line);
    return lines;
}

std::vector<fs::path> Sources() {
    std::vector<fs::path> sources;
    for (const char* room : {"src", "tests"}) {
        for (const auto& entry :
             fs::recursive_directory_iterator(fs::path(VEXORA_SOURCE_DIR) / room)) {
            const std::string ending = entry.path().extension().string();
            if (ending == ".cpp" || ending == ".h") sources.push_back(entry.path());
        }
    }
    return sources;
}

// A function body as the formatter leaves it: a line that ends in "{" and holds a parameter list,
// at the indent of a namespace or class member, up to the line that closes it at the same indent.
void AddFunctions(const fs::path& path, std::vector<Size>& sizes) {
    static const std::regex head(R"(^(\s{0,4})[^\s#/}].*\).*\{$)");
    static const std::regex control(R"(^\s*(if|for|while|switch|else|do|try|catch|namespace)\b)");
    const std::vector<std::string> lines = Lines(path);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        std::smatch match;
        if (!std::regex_match(lines[i], match, head) || std::regex_search(lines[i], control))
            continue;
        const std::string closing = match[1].str() + "}";
        for (std::size_t j = i + 1; j < lines.size(); ++j) {
            if (!lines[j].starts_with(closing)) continue;
            sizes.push_back(
                {static_cast<int>(j - i - 1), path.filename().string() + ": " + lines[i]});
            break;
        }
    }
}

void ShowLongest(const std::string& title, std::vector<Size> sizes) {
    std::sort(sizes.begin(), sizes.end(),
              [](const Size& a, const Size& b) { return a.lines > b.lines; });
    std::cout << title << "\n";
    for (std::size_t i = 0; i < std::min<std::size_t>(10, sizes.size()); ++i) {
        std::cout << "  " << sizes[i].lines << "  " << sizes[i].what << "\n";
    }
}

TEST(Sizes, FilesAndFunctionsStayReadable) {
    std::vector<Size> files;
    std::vector<Size> functions;
    for (const fs::path& path : Sources()) {
        files.push_back({static_cast<int>(Lines(path).size()), path.filename().string()});
        AddFunctions(path, functions);
    }
    ASSERT_GT(functions.size(), 100U);
    ShowLongest("Longest files:", files);
    ShowLongest("Longest functions:", functions);
    for (const Size& file : files)
        EXPECT_LE(file.lines, LongestFile) << file.what;
    for (const Size& function : functions)
        EXPECT_LE(function.lines, LongestFunction) << function.what;
}

} // namespace
