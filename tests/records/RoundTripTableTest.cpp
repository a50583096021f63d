#include "records/RoundTripFixture.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <vector>

namespace vexora {
namespace {

/// A document and what its first save writes, from tests/records/round_trips. Lines with "#" in
/// front say what the document shows; "typed" among them: a dialog wrote its statements, "alters
/// numbers": the first save may change what was typed.
struct Trip {
    std::string notes, document, saved;
};

Trip ReadTrip(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    Trip trip;
    bool isSaved = false;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with("# "))
            trip.notes += line + "\n";
        else if (line == "=== saved as")
            isSaved = true;
        else
            (isSaved ? trip.saved : trip.document) += line + "\n";
    }
    if (!isSaved) trip.saved = trip.document;
    return trip;
}

/// The numbers in the lines of values, rows and statements, in their order. A number that names a
/// unit is none of them.
std::vector<std::string> NumbersOf(const std::string& document) {
    std::vector<std::string> numbers;
    std::istringstream lines(document);
    for (std::string line; std::getline(lines, line);) {
        if (line.size() < 2 || std::string("ZzFfDdGgXY").find(line[1]) == std::string::npos)
            continue;
        WordReader words(line);
        constexpr int unitField = 3;
        const bool isValue = std::string("ZzFf").find(line[1]) != std::string::npos;
        for (int place = 0; !words.AtEnd(); ++place) {
            const std::string_view word = words.NextWord();
            if (isValue && place == unitField) continue;
            const std::string_view number = word.substr(0, word.find('%'));
            if (IsNumeric(number)) numbers.emplace_back(word);
        }
    }
    return numbers;
}

class RoundTrips : public test::RoundTripFixture, public testing::WithParamInterface<std::string> {
protected:
    static void LeaveAsADialogDoes(clsTwo& set) {
        set.commentInSystemUnits = false;
        for (clsX& item : set.UX)
            item.inSystemUnits = false;
    }
    static void LeaveAsADialogDoes(clsZ& value) {
        value.commentInSystemUnits = false;
        for (int n = 0; n <= value.VariableCount(); ++n) {
            clsX item = value.Statements(n);
            item.inSystemUnits = false;
            value.Statements(n, item);
        }
    }
    template <class Sets>
    static void LeaveAsADialogDoes(Sets& sets) {
        for (const auto& set : sets)
            LeaveAsADialogDoes(*set);
    }
};

TEST_P(RoundTrips, TheFirstSaveSettlesADocument) {
    const Trip trip = ReadTrip(GetParam());
    ASSERT_FALSE(trip.notes.empty() || trip.document.empty());
    Read(trip.document);
    if (trip.notes.find("typed") != std::string::npos) {
        SubstanceSample& sample = *Value().Parent;
        LeaveAsADialogDoes(sample.recZ);
        LeaveAsADialogDoes(sample.recTwo);
    }
    EXPECT_EQ(DocumentAsRecords(), trip.saved);
    EXPECT_EQ(DocumentAsRecords(), trip.saved) << "saving changed the document";
    EXPECT_EQ(SavedAgain(trip.saved), trip.saved);
    if (trip.notes.find("alters numbers") != std::string::npos) return;
    EXPECT_EQ(NumbersOf(trip.saved), NumbersOf(trip.document));
}

TEST_F(RoundTrips, TheExampleIsSettled) {
    const Trip example = ReadTrip(VEXORA_SOURCE_DIR "/examples/water/2002wagpru1.txt");
    EXPECT_EQ(LoadAndSave(example.document), example.document);
}

std::vector<std::string> AllTrips() {
    std::vector<std::string> paths;
    for (const auto& file : std::filesystem::directory_iterator(std::string(VEXORA_SOURCE_DIR) +
                                                                "/tests/records/round_trips"))
        paths.push_back(file.path().string());
    std::ranges::sort(paths);
    return paths;
}

INSTANTIATE_TEST_SUITE_P(Documents, RoundTrips, testing::ValuesIn(AllTrips()),
                         [](const auto& trip) {
                             return std::filesystem::path(trip.param).stem().string();
                         });

} // namespace
} // namespace vexora
