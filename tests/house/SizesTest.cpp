#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <set>
#include <string>
#include <string_view>
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

/// Whether a line opens a block inside a function, or a namespace.
bool OpensABlock(std::string_view line) {
    static const std::set<std::string_view> words = {"if", "for", "while", "switch",   "else",
                                                     "do", "try", "catch", "namespace"};
    const auto end =
        std::ranges::find_if_not(line, [](unsigned char c) { return std::isalnum(c) || c == '_'; });
    return words.contains(line.substr(0, static_cast<std::size_t>(end - line.begin())));
}

/// Whether a line without its indent begins a function: it ends in "{" and holds the end of a
/// parameter list, and is neither a comment nor a directive.
bool OpensAFunction(std::string_view line) {
    return line.ends_with('{') && std::string_view("#/}").find(line.front()) == line.npos &&
           line.find(')', 1) != line.npos && !OpensABlock(line);
}

// A function body as the formatter leaves it: at the indent of a namespace or class member, up to
// the line that closes it at the same indent.
void AddFunctions(const fs::path& path, std::vector<Size>& sizes) {
    const std::vector<std::string> lines = Lines(path);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const std::size_t indent = lines[i].find_first_not_of(" \t");
        if (indent > 4 || !OpensAFunction(std::string_view(lines[i]).substr(indent))) continue;
        const std::string closing = lines[i].substr(0, indent) + "}";
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
