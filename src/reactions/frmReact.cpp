#include "reactions/frmReact.h"

#include "chem/Balancer.h"
#include "globals/KVOGlobal.h"
#include "reactions/Combustion.h"
#include "records/Decomposition.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"
#include "ui/Desktop.h"

namespace vexora {

namespace {

constexpr int Count = clsQ::MostParticipants;
constexpr const char* NotBalancedTitle = "Unable to Balance Reaction";
constexpr const char* ByHand = "Verify the reaction participants or \n"
                               "Enter the stoichiometric coefficients manually.\n"
                               "(Reactants = negative numbers; Products = positive numbers)";

void TellWhyUnbalanced(BalanceOutcome outcome) {
    if (outcome == BalanceOutcome::Unable)
        ui::Say("Unable to balance\nTry to add or eliminate a participant");
    else if (outcome == BalanceOutcome::Ambiguous)
        ui::Say(std::string("The equation is ambiguous\n") + ByHand, NotBalancedTitle);
    else
        ui::Say(ByHand, NotBalancedTitle);
}

} // namespace

frmReact::frmReact() : ChainForm("frmReact", "Reaction") {
    ArrangeControls();
    WireEvents();
    UseButtons(cmdAccept, cmdCancel, [this] { Accept(); });
    HelpContext = 270;
    cmdComplete.ToolTip("Adds oxygen and what the first participant burns to");
    cmdEquate.ToolTip("Finds the coefficients; the first one typed, or -1, fixes the scale");
}

void frmReact::ArrangeControls() {
    using namespace ui;
    std::vector<Layout> rows = {
        Note("Coefficients of reactants are negative, those of products positive.")};
    for (int n = 0; n < Count; ++n)
        rows.push_back(Field(std::to_string(n + 1) + ":",
                             Row({cmbComp(n), Field("Coefficient:", Narrow(txtCoeff(n), 12)),
                                  Field("Sample:", Narrow(cboSample(n), 16))})));
    rows.push_back(Row({Stretch(), cmdComplete, cmdEquate, cmdCheck}));
    Arrangement =
        Column({Field("Reaction class:", cboReactClass), Group("Participants", rows),
                Row({Field("Solvent:", cmbSolvent), Field("Inert or catalyst:", cmbInert)}),
                Group("Equation", {lblEquation, lblSurplus}), ButtonRow({cmdAccept, cmdCancel})});
    TabAlongArrangement();
    PreferredColumns = 125;
}

void frmReact::WireEvents() {
    cboReactClass.OnClick = [this] { ClassClick(); };
    cmbSolvent.OnClick = [this] { OtherClick(solvent_, draft_.SOLVENTRN); };
    cmbInert.OnClick = [this] { OtherClick(inert_, draft_.INERTRN); };
    cmdEquate.OnClick = [this] { Equate(); };
    cmdComplete.OnClick = [this] { Complete(); };
    cmdCheck.OnClick = [this] { CheckStoichiometry(); };
}

void frmReact::Load() {
    KVOGlobal& globals = Globals();
    globals.DialogAccepted = false;
    record_ = globals.EditReaction ? globals.CurrentQ : nullptr;
    if (record_)
        draft_.TakeDefinition(*record_);
    else if (globals.CurrentKey == "RXS" && globals.CurrentComplexSample)
        TakeDecomposition(*globals.CurrentComplexSample);
    if (HasData()) rows_.CloseCompounds("The reaction has data: its compounds stay");
    if (!MayChooseSamples()) rows_.CloseSamples("Each set of this reaction has samples of its own");
    FillClasses();
    Fill();
    // Whoever comes from a compound or complex means it to take part.
    if (!record_ && IsOneOf(globals.CurrentKey, {"RL", "RX"}) && globals.CurrentL)
        rows_.SetCompound(0, globals.CurrentL->RN);
    TakeRows();
    ShowEquation();
    if (record_) Caption("Edit: Reaction");
    if (HasData()) txtCoeff(0).SetFocus(); // its compounds are closed
}

/// What is measured of a sample of a complex is that it falls apart.
void frmReact::TakeDecomposition(const clsComplexSample& sample) {
    if (const auto reaction = DecompositionOf(sample)) draft_.TakeDefinition(*reaction);
}

/// Helpers opened on the way have had answers of their own.
void frmReact::Unload() {
    DropUnused();
    Globals().DialogAccepted = accepted_;
    ChainForm::Unload();
}

void frmReact::ClassClick() {
    if (Filling) return;
    const std::string& text = cboReactClass.Chosen();
    const std::string code = ReactionCode(text);
    draft_.REACTCLASS = code.empty() ? text : code;
    ShowEquation();
}

/// Solvent and inert compound.
void frmReact::OtherClick(CompoundList& list, std::string& rn) {
    if (Filling) return;
    if (const auto chosen = list.Click()) rn = *chosen;
    rows_.FillCompounds();
    FillCompounds();
}

/// A person has changed the rows, or made a compound on the way.
void frmReact::RowsChanged(bool isOther) {
    TakeRows();
    if (isOther) FillCompounds();
    ShowEquation();
}

/// Coefficients that balance already stay as they are.
void frmReact::Equate() {
    if (!CheckFormulas()) return;
    const BalanceOutcome outcome = rows_.Equate(BalanceScale::AsTyped);
    if (outcome != BalanceOutcome::Balanced) return TellWhyUnbalanced(outcome);
    RowsChanged(true);
}

void frmReact::Complete() {
    const CombustionCompound oxygen = OxygenOfCombustion();
    if (!IsUsed(1) || draft_.RN(1) == oxygen.rn) {
        Refuse(cmbComp(0), "Select 1st reaction participant");
        return;
    }
    if (!CheckFormulas()) return;
    const auto products = ProductsOfCombustion(ParticipantFormula(1));
    if (!CompleteCombustion(draft_, products)) {
        Refuse(cmbComp(Count - 1), "No free slot for the products");
        return;
    }
    MakeCompound(oxygen);
    for (const CombustionCompound& product : products)
        MakeCompound(product);
    Fill();
    ShowEquation();
}

void frmReact::CheckStoichiometry() {
    if (!CheckFormulas()) return;
    if (CheckEquation())
        ui::Say("Reaction is balanced");
    else
        ui::Say("Reaction is NOT balanced", "Error");
}

} // namespace vexora
