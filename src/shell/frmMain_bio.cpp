// Making few bio sets of many.

#include <cstddef>
#include <string>
#include <vector>

#include "globals/KVOGlobal.h"
#include "records/BioCompaction.h"
#include "records/BioSet.h"
#include "records/clsR.h"
#include "shell/frmMain.h"
#include "ui/Desktop.h"

namespace vexora {

namespace {

constexpr std::size_t MostTold = 12; // sentences that a box has room for

std::size_t CountOfBioSets() {
    std::size_t count = 0;
    for (const auto& source : Globals().recR)
        source->ForEachBioSet([&count](BioSet&) { ++count; });
    return count;
}

/// How many sets became how many, and which stay apart although a person may expect otherwise.
std::string Told(std::size_t before, BioCompaction result) {
    std::string text = "There is nothing to compact in the bio sets of this document";
    if (!result.joined.empty())
        text = std::to_string(before) + " bio sets became " +
               std::to_string(before - result.joined.size());
    else if (!result.changed.empty())
        text = "No bio sets could be joined, but what is the same in all rows of one, or empty, "
               "has left its rows";
    result.joined.clear();
    const std::vector<std::string> sentences = result.Sentences();
    for (std::size_t n = 0; n < sentences.size() && n < MostTold; ++n)
        text += "\n" + sentences[n];
    if (sentences.size() > MostTold)
        text += "\n... and " + std::to_string(sentences.size() - MostTold) + " more";
    return text;
}

} // namespace

bool frmMain::MayCompact() {
    return CountOfBioSets() > 0;
}

void frmMain::mnuBio_Click() {
    KVOGlobal& globals = Globals();
    if (globals.ShellLocked || !MayCompact() || RefuseReadOnly()) return;
    const std::size_t before = CountOfBioSets();
    BioCompaction result;
    {
        const ui::HourglassScope hourglass;
        result = CompactBioSets(*globals.recR.Item(std::size_t{1}));
    }
    if (!result.invalid.empty()) {
        tvwTree.Select(result.invalid.front()->tNode);
        SelectBy(true);
        return ui::Say("Invalid data set found\nPlease edit that data set and repeat the action");
    }
    if (!result.joined.empty() || !result.changed.empty()) globals.Saved = false;
    FollowDocument();
    if (tvwTree.SelectedNode() == nullptr) SelectRoot(); // its set is part of another one now
    SelectNode();
    ui::Say(Told(before, result));
}

} // namespace vexora
