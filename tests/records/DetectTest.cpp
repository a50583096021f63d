// Hidden data of compounds and binaries among the rows of mixtures.
#include "records/RoundTripFixture.h"
#include "records/clsM.h"
#include "records/clsMV.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace vexora {
namespace {

const std::string Source = "\n^R 1932 car lew 1\n^J#J#O#Ind. Eng. Chem., 1932, "
                           "24, 882#T##A##P#0####\n";
const std::string Compounds[] = {"64175", "67663", "7732185"};

/// What a file of tests/records/detections holds: a document from its compounds
/// on, what is told when its mixtures are looked through, and the document that
/// comes of it.
struct Finding {
    std::string document, told, saved;
};

Finding ReadFinding(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    Finding finding;
    std::string* part = &finding.document;
    for (std::string line; std::getline(file, line);) {
        if (line == "=== told")
            part = &finding.told;
        else if (line == "=== saved as")
            part = &finding.saved;
        else if (!line.starts_with("# "))
            *part += line + "\n";
    }
    return finding;
}

class Detection : public test::RoundTripFixture {
protected:
    /// Looks through the ternaries and then the binaries; every message ends with
    /// a line break.
    static bool DetectAll(std::string& told) {
        bool isNew = false;
        for (const int components : {3, 2}) {
            std::vector<std::shared_ptr<clsMV>> sets;
            for (const auto& mixture : Globals().CurrentR->recM)
                for (const auto& set : mixture->recMV)
                    if (mixture->MixType == components) sets.push_back(set);
            for (const auto& set : sets) {
                std::vector<std::string> texts;
                isNew = set->Detect(texts) || isNew;
                for (const std::string& text : texts)
                    told += text + "\n";
            }
        }
        return isNew;
    }
    /// The document with a sample of each compound that it does not describe
    /// itself.
    static std::string Whole(const std::string& document) {
        std::string text = Source;
        for (const std::string& rn : Compounds)
            if (document.find("^L " + rn) == document.npos)
                text += "^L " + rn + " NNNNN &\n^S 1 ns\n";
        return text + document;
    }
};

class Detections : public Detection, public testing::WithParamInterface<std::string> {};

TEST_P(Detections, GiveTheRecordsOfLowerSystemsOnce) {
    const Finding finding = ReadFinding(std::filesystem::path(VEXORA_SOURCE_DIR) /
                                        "tests/records/detections" / (GetParam() + ".txt"));
    const std::string before = LoadAndSave(Whole(finding.document));
    std::string told;
    EXPECT_EQ(DetectAll(told), finding.saved != "as before\n");
    EXPECT_EQ(told, finding.told);
    const std::string after = DocumentAsRecords();
    const std::string saved = after.substr(after.find("^L "));
    EXPECT_EQ(saved,
              finding.saved == "as before\n" ? before.substr(before.find("^L ")) : finding.saved);
    EXPECT_FALSE(DetectAll(told)) << "what is there is not added again";
    EXPECT_EQ(DocumentAsRecords(), after);
    EXPECT_EQ(SavedAgain(after), after);
    EXPECT_FALSE(DetectAll(told)) << "nor after it was read from a file";
    EXPECT_EQ(DocumentAsRecords(), after);
}

TEST_F(Detection, AConstantKeepsItsFiguresWhenItIsInAUnitOfItsOwn) {
    const std::string set = "^A & O & & & & & ::Method:UNKNOWN:\n"
                            "^1 1 1 T C DIR 1 Y L P 101.325 G & X1 D & & & & & &\n"
                            "^X 3 P L - & & & - & & & + 95 0.002 - & & - & & &\n^d 0 100.0 &\n";
    LoadAndSave(Whole("^B 64175 7732185 P\n" + set));
    clsMV& mixed = *(*globals.CurrentR->recM.begin())->recMV.Item(std::size_t{1});
    for (ConstraintSlot& slot : mixed.Constraints)
        if (slot.code == "P") slot = {"P", "1.01325", "L", "A"}; // as a dialog leaves it
    std::string told;
    EXPECT_TRUE(DetectAll(told));
    const std::string saved = DocumentAsRecords();
    EXPECT_NE(saved.find("^f 1 TB C 1 L 102.6676 S 100.0 & & &\n"
                         "^X 1 P L - & & & - & & & + 95 0.2 - & & - & & &\n"),
              saved.npos)
        << saved;
    Read(saved);
    EXPECT_FALSE(DetectAll(told));
    EXPECT_EQ(told, "");
}

std::vector<std::string> DetectionNames() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(
             std::filesystem::path(VEXORA_SOURCE_DIR) / "tests/records/detections"))
        names.push_back(entry.path().stem().string());
    std::ranges::sort(names);
    return names;
}

INSTANTIATE_TEST_SUITE_P(Files, Detections, testing::ValuesIn(DetectionNames()),
                         [](const auto& made) { return made.param; });

} // namespace
} // namespace vexora
