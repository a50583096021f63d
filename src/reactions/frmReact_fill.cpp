#include "chem/Balancer.h"
#include "chem/PrintedFormula.h"
#include "globals/KVOGlobal.h"
#include "reactions/Combustion.h"
#include "reactions/frmReact.h"
#include "records/ReactionText.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

#include <algorithm>

namespace vexora {

namespace {

constexpr int Count = clsQ::MostParticipants;
constexpr std::string_view CombustionWithOxygen = "CMO";

} // namespace

void frmReact::FillClasses() {
    const ui::FillingScope filling(*this);
    cboReactClass.Assign(ReactionTypes());
    const std::string& code = draft_.REACTCLASS;
    if (IsBlankField(code)) return;
    std::string text = ReactionType(code);
    if (text.empty()) text = code; // as a file may have it
    if (cboReactClass.Find(text) < 0) cboReactClass.Add(text);
    cboReactClass.Choose(text);
}

void frmReact::Fill() {
    std::vector<Participant> participants;
    for (int i = 1; i <= Count; ++i)
        participants.push_back({draft_.RN(i), draft_.SMPNM(i), draft_.Coeff(i), {}});
    rows_.Take(std::move(participants));
    FillCompounds();
}

void frmReact::FillCompounds() {
    solvent_.Fill(draft_.SOLVENTRN);
    inert_.Fill(draft_.INERTRN);
}

void frmReact::TakeRows() {
    for (int i = 1; i <= Count; ++i) {
        const Participant& one = rows_.All()[static_cast<std::size_t>(i - 1)];
        draft_.RN(i, one.RN);
        draft_.Coeff(i, one.coefficient);
        draft_.SMPNM(i, one.SMPNM);
    }
}

bool frmReact::MayChooseSamples() const {
    return !HasData() || Globals().EditChanged || Globals().EditEquilibrium;
}

/// The equation in formulas, with names where one is not known; all names stand in the tool tip.
void frmReact::ShowEquation() {
    lblEquation.Caption(rows_.FormulaEquation());
    lblEquation.ToolTip(rows_.NameEquation());
    lblSurplus.Caption(rows_.SurplusLine());
    cmdComplete.Enabled(draft_.REACTCLASS == CombustionWithOxygen && !HasData());
}

void frmReact::MakeCompound(const CombustionCompound& compound) {
    clsR& source = *Globals().CurrentR;
    if (source.FindL(compound.rn)) return;
    const auto made = std::make_shared<clsL>();
    made->RN = compound.rn;
    made->TakeKnownIdentity();
    made->isNew = CompoundsOf(ToInteger(Val(made->RN))).empty();
    if (made->Formula.empty()) made->Formula = compound.formula;
    made->isNamed = !made->isNew && made->Name != compound.name;
    made->Name = compound.name;
    made->AttachTo(source);
    made_.push_back(made);
}

/// Compounds made for a combustion that was given up leave no trace.
void frmReact::DropUnused() {
    for (const auto& compound : made_) {
        const bool isUsed = accepted_ && record_ && record_->Uses(compound->RN);
        if (isUsed || !compound->recS.IsEmpty()) continue;
        compound->Leave();
        if (compound->tNode) Globals().tvwTree->Remove(*compound->tNode);
    }
}

} // namespace vexora
