#include "records/DocumentCheck.h"

#include <algorithm>
#include <utility>

#include "globals/KVOGlobal.h"
#include "records/RecordChecks.h"
#include "records/Walk.h"
#include "records/clsBP.h"
#include "records/clsBR.h"
#include "records/clsC.h"
#include "records/clsComplex.h"
#include "records/clsComplexSample.h"
#include "records/clsCrS.h"
#include "records/clsE.h"
#include "records/clsL.h"
#include "records/clsM.h"
#include "records/clsMV.h"
#include "records/clsMZ.h"
#include "records/clsQ.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "records/clsTwo.h"
#include "records/clsZ.h"

namespace vexora {

namespace {

const ByClass<void, Findings&>& Checks() {
    static const auto checks = ByClass<void, Findings&>()
                                   .On<clsR>(CheckSource)
                                   .On<clsL>(CheckCompound)
                                   .On<clsS>(CheckSample)
                                   .On<clsZ>(CheckValue)
                                   .On<clsTwo>(CheckSet)
                                   .On<clsM>(CheckMixture)
                                   .On<clsMZ>(CheckMixtureValue)
                                   .On<clsMV>(CheckMixtureSet)
                                   .On<clsQ>(CheckReaction)
                                   .On<clsC>(CheckPropertyChange)
                                   .On<clsE>(CheckEquilibrium)
                                   .On<clsBR>(CheckBioReaction)
                                   .On<clsBP>(CheckBioProperty)
                                   .On<clsComplex>(CheckComplex)
                                   .On<clsComplexSample>(CheckComplexSample)
                                   .On<clsCrS>(CheckStructure);
    return checks;
}

/// The records that were read from the file, by their lines.
std::vector<const Record*> RecordsByLine() {
    std::vector<const Record*> records;
    WalkDocument([&records](const Record& record) {
        if (record.Line > 0) records.push_back(&record);
    });
    std::stable_sort(records.begin(), records.end(),
                     [](const Record* a, const Record* b) { return a->Line < b->Line; });
    return records;
}

void TellPassedOver(const PassedOver& passedOver, Findings& findings) {
    if (Globals().recR.IsEmpty()) return;
    const Record* source = Globals().recR.Item(std::size_t{1}).get();
    if (const std::string text = NotKeptText(passedOver); !text.empty())
        findings.push_back({0, Severity::Warning, text, source});
    if (passedOver.lost.empty() && passedOver.told.empty()) return;
    const auto records = RecordsByLine();
    for (const auto* lines : {&passedOver.lost, &passedOver.told})
        for (const LineLost& one : *lines) {
            const auto behind = std::upper_bound(
                records.begin(), records.end(), one.line,
                [](int line, const Record* record) { return line < record->Line; });
            findings.push_back({one.line, Severity::Warning, one.text,
                                behind == records.begin() ? source : *(behind - 1)});
        }
}

} // namespace

std::string_view SeverityWord(Severity severity) {
    constexpr std::string_view words[] = {"error", "warning", "hint"};
    return words[static_cast<std::size_t>(severity)];
}

std::string NotKeptText(const PassedOver& passedOver) {
    const int count = passedOver.linesNotKept;
    if (count == 0) return {};
    return std::to_string(count) + (count == 1 ? " line holds" : " lines hold") +
           " data of kinds that this edition does not keep";
}

const Record* SampleBesideSystem() {
    const Record* found = nullptr;
    for (const auto& source : Globals().recR)
        for (const auto& complex : source->recComplex)
            for (const auto& sample : complex->recS)
                if (found == nullptr && !FitsSystem(*sample)) found = sample.get();
    return found;
}

std::vector<std::string> LeftOutOfSave(clsR& source) {
    std::vector<std::string> told;
    source.MarkCompounds();
    const bool losesCompounds = std::ranges::any_of(source.recL, [](const auto& compound) {
        return compound->recS.IsEmpty() && !compound->isNew && !compound->isUsed;
    });
    const bool losesMixtures =
        std::ranges::any_of(source.recM, [](const auto& mixture) { return !mixture->HasData(); });
    if (losesCompounds)
        told.emplace_back("Some compounds do not have samples.\nThey will not be saved!");
    if (losesMixtures)
        told.emplace_back("Some mixtures do not have data.\nThey will not be saved!");
    return told;
}

std::vector<DocumentFinding> CheckDocument(const PassedOver& passedOver, const WorkHeard& heard) {
    Findings findings;
    TellPassedOver(passedOver, findings);
    for (const auto& source : Globals().recR)
        source->MarkCompounds();
    WalkDocument([&findings](const Record& record) { Checks()(record, findings); }, heard);
    return findings;
}

} // namespace vexora
