#include "records/clsBR.h"

#include "globals/KVOGlobal.h"
#include "records/BioLines.h"
#include "records/LineWriter.h"
#include "records/ReactionText.h"
#include "records/SetLines.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

#include <algorithm>

namespace vexora {

BioQuantityTexts clsBR::TableOf(BioRole) const {
    return BioVariables;
}

std::vector<std::string> clsBR::ParticipantKeys() const {
    std::vector<std::string> rns;
    for (const BioParticipant& participant : Participants)
        rns.push_back(participant.RN);
    return NumberedKeys(std::move(rns));
}

bool clsBR::Uses(std::string_view rn) const {
    return BioSet::Uses(rn) ||
           (!rn.empty() && std::ranges::count(Participants, rn, &BioParticipant::RN) != 0);
}

bool clsBR::UsesSample(std::string_view rn, std::string_view sample) const {
    return BioSet::UsesSample(rn, sample) ||
           std::ranges::any_of(Participants, [&](const BioParticipant& participant) {
               return participant.RN == rn && IsSameSample(participant.SMPNM, sample);
           });
}

std::vector<std::string> clsBR::Formulas() const {
    std::vector<std::string> formulas;
    for (const BioParticipant& participant : Participants) {
        const auto compound = CompoundOf(participant.RN);
        formulas.push_back(compound ? compound->Formula : std::string());
    }
    return formulas;
}

std::vector<std::string> clsBR::Coefficients() const {
    std::vector<std::string> coefficients;
    for (const BioParticipant& participant : Participants)
        coefficients.push_back(participant.coefficient);
    return coefficients;
}

std::string clsBR::Equation() const {
    std::vector<EquationTerm> terms;
    for (const BioParticipant& participant : Participants)
        terms.push_back({participant.coefficient, CompoundName(participant.RN)});
    return EquationText(terms);
}

std::string clsBR::Key() const {
    std::string key = "RBR";
    for (const BioParticipant& participant : Participants)
        key.append(key.size() == std::size("RBR") - 1 ? "" : ",").append(participant.RN);
    return key;
}

std::string clsBR::KeyInTree() const {
    return Key() + PlaceKey(SetNo);
}

std::string clsBR::PlaceKey(int setNo) {
    return "#" + std::to_string(setNo);
}

std::string clsBR::ShowKey() const {
    return "BioReaction " + std::to_string(SetNo) + " (" + Equation() + ")";
}

void clsBR::SetMe() {
    KVOGlobal& globals = Globals();
    globals.CurrentBR = As<clsBR>();
    if (globals.CurrentKey.empty()) globals.CurrentKey = "RBR";
    globals.DataContext = "React";
    if (Parent) Parent->SetMe();
}

void clsBR::AttachTo(clsR& source) {
    Parent = &source;
    source.recBR.Add(As<clsBR>(), PlaceKey(SetNo));
    if (source.tNode) MakeNode(source.tNode);
}

std::size_t clsBR::Leave() {
    return Parent ? LeaveFrom(Parent->recBR) : 0;
}

bool clsBR::Return(std::size_t place) {
    if (!Parent || Parent->FindBR(SetNo)) return false;
    Parent->recBR.Insert(As<clsBR>(), PlaceKey(SetNo), place);
    return true;
}

std::shared_ptr<clsBR> clsBR::Copy() const {
    auto copy = std::make_shared<clsBR>(*this);
    // The node goes on belonging to the set in the document.
    copy->tNode = nullptr;
    return copy;
}

void clsBR::Replace(const clsBR& other) {
    clsR* const parent = Parent;
    ui::TreeNode* const node = tNode;
    *this = other;
    Parent = parent;
    tNode = node;
    if (Parent) Parent->recBR.Rekey(this, PlaceKey(SetNo));
}

bool clsBR::Load(std::string_view line) {
    WordReader words(line);
    words.NextWord();
    SetNo = BioSetNumber(words.NextWord());
    Notation = words.NextWord() == "1";
    return SetNo > 0;
}

namespace {

/// A coefficient of 0 is that of a component; a participant whose coefficient is not known yet
/// stands with the mark of those that have a sample.
bool NeedsMark(const BioParticipant& participant) {
    return !participant.SMPNM.empty() || !IsNumeric(participant.coefficient) ||
           Val(participant.coefficient) == 0;
}

void PrintCompound(LineWriter& out, const clsBR& set, const std::string& key,
                   const BioParticipant& participant, bool marked) {
    const CompoundWords words = WordsOf(set, key);
    out.Fields({"BP", marked ? "1" : "0", key, "0", participant.SMPNM, participant.RN, words.name,
                words.formula, words.molarMass, "0",
                participant.coefficient.empty() ? "0" : participant.coefficient, participant.phase,
                words.charge, words.EC, words.PDB});
}

} // namespace

void clsBR::PrintBR(LineWriter& out) const {
    PrintHeader(out);
    out.Fields({"BR", std::to_string(SetNo), Notation ? "1" : "0"});
    const std::vector<std::string> keys = Keys();
    std::size_t at = 0;
    for (const BioParticipant& participant : Participants)
        PrintCompound(out, *this, keys[at++], participant, NeedsMark(participant));
    for (const BioComponent& component : Components) {
        const std::string& key = keys[at++];
        // The line of a participant says all of its compound.
        if (std::ranges::count(Participants, component.RN, &BioParticipant::RN) != 0) continue;
        PrintCompound(out, *this, key, {component.RN, component.SMPNM, "0", {}}, false);
    }
    PrintDefinition(out);
    out.Fields({"B0", Flag1 ? "1" : "0", Flag2 ? "1" : "0"});
    PrintRows(out);
    PrintStatements(out);
}

void clsBR::AddParts(std::vector<BioPart>& parts) const {
    parts.push_back({"notation", Notation ? "chemical" : "biochemical"});
    parts.push_back({"participants", Sorted(ParticipantTexts())});
}

std::vector<std::string> clsBR::ParticipantTexts() const {
    std::vector<std::string> texts;
    for (const BioParticipant& one : Participants)
        texts.push_back(Joined({one.RN, one.SMPNM, one.coefficient, one.phase}));
    return texts;
}

} // namespace vexora
