#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

const fs::path Root = VEXORA_SOURCE_DIR;

// Includes that go upward for now, "from -> to"; empty, and an entry no longer needed fails too.
const std::set<std::string> Exceptions = {};

std::map<std::string, int> Floors() {
    std::map<std::string, int> floors;
    std::ifstream file(Root / "floors.txt");
    for (std::string line; std::getline(file, line);) {
        if (line.empty() || line.front() == '#') continue;
        std::istringstream words(line);
        int floor = 0;
        words >> floor;
        for (std::string room; words >> room;)
            floors[room] = floor;
    }
    return floors;
}

// File below src -> what it includes, both relative to src.
std::map<std::string, std::vector<std::string>> Includes(bool quoted) {
    std::map<std::string, std::vector<std::string>> includes;
    const std::string open = quoted ? "#include \"" : "#include <";
    for (const auto& entry : fs::recursive_directory_iterator(Root / "src")) {
        if (!entry.is_regular_file()) continue;
        auto& list = includes[fs::relative(entry.path(), Root / "src").generic_string()];
        std::ifstream file(entry.path());
        for (std::string line; std::getline(file, line);) {
            if (!line.starts_with(open)) continue;
            const std::size_t end = line.find(quoted ? '"' : '>', open.size());
            list.push_back(line.substr(open.size(), end - open.size()));
        }
    }
    return includes;
}

std::string Room(const std::string& file) {
    return file.substr(0, file.find('/'));
}

TEST(Floors, NoFileIncludesFromAFloorAbove) {
    const auto floors = Floors();
    std::set<std::string> upward;
    for (const auto& [file, list] : Includes(true)) {
        ASSERT_TRUE(floors.contains(Room(file))) << "no floor for " << file;
        for (const std::string& target : list) {
            if (target.find('/') == std::string::npos) continue; // made by the build
            ASSERT_TRUE(floors.contains(Room(target))) << file << " includes " << target;
            const bool sameRoom = Room(file) == Room(target);
            if (!sameRoom && floors.at(Room(target)) >= floors.at(Room(file))) {
                upward.insert(file + " -> " + target);
            }
        }
    }
    EXPECT_EQ(upward, Exceptions);
}

TEST(Floors, NoCircleOfFiles) {
    const auto includes = Includes(true);
    std::map<std::string, int> state; // 1 being walked, 2 done
    std::vector<std::string> circles;
    const auto walk = [&](const auto& self, const std::string& file) -> void {
        if (state[file] == 1) circles.push_back(file);
        if (state[file] != 0 || !includes.contains(file)) return;
        state[file] = 1;
        for (const std::string& target : includes.at(file))
            self(self, target);
        state[file] = 2;
    };
    for (const auto& [file, list] : includes)
        walk(walk, file);
    EXPECT_EQ(circles, std::vector<std::string>{});
}

TEST(Floors, QtAndSqliteStayInTheirRooms) {
    std::vector<std::string> strays;
    for (const auto& [file, list] : Includes(false)) {
        for (const std::string& target : list) {
            if (target == "sqlite3.h" && Room(file) != "reference") strays.push_back(file);
            const bool qt = target.size() > 1 && target[0] == 'Q' && isupper(target[1]) != 0;
            if (qt && Room(file) != "qt") strays.push_back(file);
        }
    }
    EXPECT_EQ(strays, std::vector<std::string>{});
}

// Below the forms a record or a rule hands back what there is to say or to ask. These few work on
// the desktop themselves, each for a reason that stands behind it.
const std::set<std::string> UseTheDesktop = {
    "export/DataHead.cpp",     // names data it had to leave out while the file is being made
    "export/ExportDocument.h", // the day that a citation bears
    "grid/GridKey.cpp",        // the clipboard
    "grid/TableBlocks.cpp",    // the clipboard, and tables in files
    "grid/TableEditor.cpp",    // the clipboard
};

TEST(Floors, RecordsAndRulesShowNoBoxes) {
    std::set<std::string> users;
    const auto floors = Floors();
    const int forms = floors.at("entry");
    for (const auto& [file, list] : Includes(true)) {
        const bool isBelow = floors.at(Room(file)) < forms || Room(file) == "export";
        if (!isBelow || Room(file) == "ui") continue;
        for (const std::string& target : list)
            if (target == "ui/Desktop.h") users.insert(file);
    }
    EXPECT_EQ(users, UseTheDesktop);
}

TEST(Floors, ReadmeShowsTheFloors) {
    std::ifstream file(Root / "README.md");
    std::stringstream readme;
    readme << file.rdbuf();
    for (const auto& [room, floor] : Floors()) {
        EXPECT_NE(readme.str().find("src/" + room), std::string::npos) << room;
    }
}

} // namespace
