// Runs a target without an engine: on each seed, then for some seconds on seeds that were spoilt at
// random, always the same ones. Part of the tests; scripts/fuzz looks longer and deeper.
//   fuzz-TARGET SECONDS FILE-OR-FOLDER...     of a .tsv each field is a seed
#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "Target.h"

// What a sanitizer finds ends as a broken promise does.
extern "C" const char* __asan_default_options() {
    return "abort_on_error=1";
}

namespace {

namespace fs = std::filesystem;

std::string inHand; // the text under test, told when it ends the run

void TellText(int) {
    std::ofstream("fuzz.finding", std::ios::binary) << inHand;
    std::cerr << "The text stands in " << fs::absolute("fuzz.finding").string() << "\n";
    std::_Exit(1);
}

void Try(const std::string& text) {
    inHand = text;
    vexora::fuzz::Try(inHand);
}

void AddSeeds(const fs::path& file, std::vector<std::string>& seeds) {
    std::ostringstream whole;
    whole << std::ifstream(file, std::ios::binary).rdbuf();
    if (file.extension() != ".tsv") return seeds.push_back(whole.str());
    std::istringstream lines(whole.str());
    for (std::string line; std::getline(lines, line);) {
        std::istringstream fields(line);
        for (std::string field; std::getline(fields, field, '\t');)
            seeds.push_back(field);
    }
}

std::vector<std::string> SeedsIn(const std::vector<std::string>& places) {
    std::vector<std::string> seeds{""};
    for (const fs::path place : places) {
        if (!fs::is_directory(place)) {
            AddSeeds(place, seeds);
            continue;
        }
        std::vector<fs::path> files; // folders list theirs in no order
        for (const auto& entry : fs::recursive_directory_iterator(place))
            if (entry.is_regular_file() && entry.path().extension() != ".png")
                files.push_back(entry.path());
        std::sort(files.begin(), files.end());
        for (const fs::path& file : files)
            AddSeeds(file, seeds);
    }
    return seeds;
}

/// Spoils texts by what happens to files: bytes change, parts go, stand twice or come from another.
class Spoiler {
public:
    explicit Spoiler(const std::vector<std::string>& seeds) : seeds_(seeds) {}

    std::string Next() {
        std::string text = seeds_[Below(seeds_.size())];
        for (std::size_t times = 1 + Below(4); times > 0; --times)
            Spoil(text);
        return text;
    }

private:
    std::size_t Below(std::size_t count) { return random_() % count; }
    void Spoil(std::string& text) {
        const std::size_t at = Below(text.size() + 1);
        const std::size_t length = Below(std::min<std::size_t>(text.size() - at, 40) + 1);
        switch (Below(5)) {
        case 0:
            return text.insert(at, 1, static_cast<char>(Below(256))), void();
        case 1:
            return text.erase(at, length), void();
        case 2:
            return text.insert(at, text.substr(at, length)), void();
        case 3:
            if (at < text.size()) text[at] = static_cast<char>(Below(256));
            return;
        default:
            const std::string& other = seeds_[Below(seeds_.size())];
            text.insert(at, other.substr(Below(other.size() + 1), length + 1));
        }
    }

    const std::vector<std::string>& seeds_;
    std::mt19937 random_{1};
};

} // namespace

int main(int count, char** words) {
    if (count < 2) return 2;
    std::signal(SIGABRT, TellText);
    const std::vector<std::string> seeds = SeedsIn({words + 2, words + count});
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(std::atoi(words[1]));
    std::size_t tried = 0;
    for (; tried < seeds.size(); ++tried)
        Try(seeds[tried]);
    Spoiler spoiler(seeds);
    for (; std::chrono::steady_clock::now() < end; ++tried)
        Try(spoiler.Next());
    std::cout << tried << " texts, no finding\n";
    return 0;
}
