// Data of compounds and binaries that hide among the rows of mixtures.

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "globals/KVOGlobal.h"
#include "records/clsM.h"
#include "records/clsMV.h"
#include "records/clsR.h"
#include "reference/Database.h"
#include "shell/frmMain.h"
#include "ui/Desktop.h"

namespace vexora {

namespace {

/// The sets with rows of all mixtures of so many components.
std::vector<std::shared_ptr<clsMV>> SetsWithRows(int components) {
    std::vector<std::shared_ptr<clsMV>> sets;
    for (const auto& source : Globals().recR)
        for (const auto& mixture : source->recM)
            for (const auto& set : mixture->recMV)
                if (mixture->MixType == components && !set->recData.IsEmpty()) sets.push_back(set);
    return sets;
}

/// True when a set has brought any records; `told` gets what each has to say.
bool DetectAll(std::vector<std::string>& told) {
    const ui::HourglassScope hourglass;
    bool isNew = false;
    // A binary that comes out of a ternary may hide pure compounds in turn.
    for (const int components : {3, 2}) {
        for (const auto& set : SetsWithRows(components)) {
            set->SetMe();
            isNew = set->Detect(told) || isNew;
        }
    }
    return isNew;
}

} // namespace

bool frmMain::MayDetect() {
    const auto hasRows = [](const auto& set) { return !set->recData.IsEmpty(); };
    const auto hasSet = [&](const auto& mixture) {
        return std::ranges::any_of(mixture->recMV, hasRows);
    };
    return std::ranges::any_of(Globals().recR, [&](const auto& source) {
        return std::ranges::any_of(source->recM, hasSet);
    });
}

void frmMain::mnuDetect_Click() {
    KVOGlobal& globals = Globals();
    if (globals.ShellLocked || !MayDetect() || RefuseReadOnly()) return;
    ui::TreeNode* const selected = tvwTree.SelectedNode();
    std::vector<std::string> told;
    std::string damage;
    bool isNew = false;
    try {
        isNew = DetectAll(told);
    } catch (const DatabaseError& damaged) {
        damage = damaged.what();
        isNew = true; // some may have been made before
    }
    if (isNew) globals.Saved = false;
    if (isNew) FollowDocument();
    tvwTree.Select(selected);
    SelectNode();
    for (const std::string& text : told)
        ui::Say(text);
    if (!damage.empty()) return ui::Say(damage);
    ui::Say(isNew ? "New properties for pure components of mixtures\n"
                    "or binary mixtures from ternary mixtures were generated\n"
                    "Please review all new records and re-evaluate uncertainties"
                  : "Hidden properties not detected");
}

} // namespace vexora
