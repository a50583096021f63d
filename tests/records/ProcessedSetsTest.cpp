// The sets of a processed table come into the document and go out of it again.
#include "records/ProcessedSets.h"

#include "export/MixtureExportFixture.h"
#include "records/clsL.h"
#include "records/clsM.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "records/clsTwo.h"

namespace vexora::test {
namespace {

const std::string Head = "^A & O B & XXX XXX 1/15/2026 first::Method:UNKNOWN:\n";
const std::string Stored = "^B 64175 7732185 P\n" + Head +
                           "^1 1 1 T C DIR 3 Y L P 101.325 G & X1 D & & & & & &\n"
                           "^X 1 X1 L + & & 0.002 - & & & - & & - & & - & & &\n"
                           "^X 3 P L + & & 0.1 - & & & - & & - & & - & & &\n^d 0.0190 95.5 &\n" +
                           Head +
                           "^1 1 1 X1 D DIR 1 Y G P 101.325 L -1 X1 D & & & & & &\n"
                           "^d 0.0190 0.1700 &\n" +
                           Head + "^1 1 1 X1 D DIR 2 Y G P 90 L -1 T C & & & & & &\n^d 95 0.2 &\n";

class ProcessedSetsTest : public MixtureExportFixture {
protected:
    ProcessedSetsTest() { Read(Stored); }

    clsM& Mixture() const { return *globals.recR.Item(std::size_t{1})->recM.Item(std::size_t{1}); }
    static std::shared_ptr<clsMV> Made(const std::string& line, const std::string& row) {
        auto set = std::make_shared<clsMV>();
        EXPECT_TRUE(set->Load(line));
        set->Header.DATACOMMENT = "::Method:UNKNOWN:";
        set->LoadRow(row);
        return set;
    }
    /// One in the place of the first, one that is new; the others that were shown go.
    std::shared_ptr<ProcessedSets> Process() {
        const auto& sets = Mixture().recMV;
        return ProcessedSets::Attach(
            Mixture(),
            {Made("^1 1 1 T C DIR & Y L G & P 101.325 X1 D & & & & & &", "^d 0.02 95.50 &"),
             Made("^1 1 1 X1 D DIR & Y L G -1 P 90 T C & & & & & &", "^d 95 0.3 &")},
            {sets.begin(), sets.end()}, [this](clsMV& unused) {
                asked_ += unused.PRPSETNO + " ";
                return unused.PRPSETNO == "1";
            });
    }
    std::string Nodes() const {
        std::string text;
        for (const auto& node : Mixture().tNode->Children())
            text += node->Text() + "\n";
        return text;
    }
    std::string asked_;
};

TEST_F(ProcessedSetsTest, ANewSetTakesThePlaceOfItsLikeAndTheStepIsTakenBack) {
    const std::string before = DocumentAsRecords(), nodes = Nodes();
    const auto step = Process();
    EXPECT_EQ(asked_, "1 2 ") << "each that nothing replaces";
    const std::string after = DocumentAsRecords();
    EXPECT_EQ(after.substr(after.find("^B ")),
              "^B 64175 7732185 P\n" + Head +
                  "^1 1 1 T C DIR 3 Y L P 101.325 G & X1 D & & & & & &\n"
                  "^X 1 X1 L + & & 0.002 - & & & - & & - & & - & & &\n"
                  "^X 3 P L + & & 0.1 - & & & - & & - & & - & & &\n^d 0.02 95.50 &\n" +
                  Head +
                  "^1 1 1 X1 D DIR 2 Y G P 90 L -1 T C & & & & & &\n^d 95 0.2 &\n"
                  "^A & & & & & & & ::Method:UNKNOWN:\n"
                  "^1 1 1 X1 D DIR 3 Y L G -1 P 90 T C & & & & & &\n^d 95 0.3 &\n");
    ASSERT_EQ(step->Made().size(), 2U);
    EXPECT_EQ(step->Made()[1]->tNode, Mixture().tNode->Children().back().get());
    EXPECT_TRUE(step->Undo());
    EXPECT_EQ(DocumentAsRecords(), before);
    EXPECT_EQ(Nodes(), nodes);
}

TEST_F(ProcessedSetsTest, WhatWasChangedOrDeletedSinceStaysAsItIs) {
    const auto step = Process();
    const auto made = std::static_pointer_cast<clsMV>(step->Made()[1]);
    made->recData.Item(1)->Values[0] = "0.31";
    std::string text = DocumentAsRecords();
    EXPECT_FALSE(step->Undo());
    EXPECT_EQ(DocumentAsRecords(), text);
    made->recData.Item(1)->Values[0] = "0.3";
    const std::size_t place = made->Leave();
    text = DocumentAsRecords();
    EXPECT_FALSE(step->Undo()) << "one is gone";
    EXPECT_EQ(DocumentAsRecords(), text);
    ASSERT_TRUE(made->Return(place));
    EXPECT_TRUE(step->Undo()) << "all is as it was again";
}

TEST_F(ProcessedSetsTest, OfASampleTheyGetTheNextNumbers) {
    const std::string before = DocumentAsRecords();
    clsS& sample =
        *globals.recR.Item(std::size_t{1})->recL.Item(std::size_t{1})->recS.Item(std::size_t{1});
    const auto made = [] {
        auto function = std::make_shared<clsTwo>();
        EXPECT_TRUE(function->Load("^1 1 CP S DIR &\tS C & FP S & & &"));
        return function;
    };
    const auto first = ProcessedSets::Attach(sample, {made()});
    const auto second = ProcessedSets::Attach(sample, {made(), made()});
    EXPECT_EQ(sample.recTwo.Count(), 3U);
    EXPECT_EQ(std::static_pointer_cast<clsTwo>(second->Made()[1])->PRPSETNO, "3");
    EXPECT_TRUE(second->Undo());
    EXPECT_TRUE(first->Undo());
    EXPECT_EQ(DocumentAsRecords(), before);
    EXPECT_EQ(ProcessedSets::Attach(sample, {}), nullptr);
}

} // namespace
} // namespace vexora::test
