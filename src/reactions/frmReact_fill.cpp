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

int NumberOf(std::string_view text) {
    return static_cast<int>(ToInteger(Val(text)));
}

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
    FillCompounds();
    for (int i = 1; i <= Count; ++i)
        FillRow(i);
}

/// The lists offer what the source has now.
void frmReact::FillCompounds() {
    for (int i = 1; i <= Count; ++i)
        compounds_[static_cast<std::size_t>(i - 1)].Fill(draft_.RN(i));
    solvent_.Fill(draft_.SOLVENTRN);
    inert_.Fill(draft_.INERTRN);
}

/// Coefficient and sample of a participant. A sample that the document does not have is not
/// replaced in silence.
void frmReact::FillRow(int i) {
    const ui::FillingScope filling(*this);
    const auto compound = draft_.Compound(i);
    SampleList& samples = samples_[static_cast<std::size_t>(i - 1)];
    txtCoeff(i - 1).Text(draft_.Coeff(i));
    samples.Fill(compound);
    samples.ChooseNone();
    if (compound) samples.Choose(compound->FindS(NumberOf(draft_.SMPNM(i))).get());
    LockRow(i);
}

void frmReact::LockRow(int i) {
    cmbComp(i - 1).Enabled(!HasData());
    txtCoeff(i - 1).Enabled(IsUsed(i));
    ui::ComboBox& samples = cboSample(i - 1);
    samples.Enabled(IsUsed(i) && MayChooseSamples());
    samples.ToolTip(MayChooseSamples() ? "" : "Each set of this reaction has samples of its own");
    cmbComp(i - 1).ToolTip(HasData() ? "The reaction has data: its compounds stay" : "");
}

/// Coefficient and sample belong to the compound that stood there.
void frmReact::SetCompound(int i, const std::string& rn) {
    draft_.RN(i, rn);
    draft_.Coeff(i, "");
    draft_.SMPNM(i, "");
    FillRow(i);
    compounds_[static_cast<std::size_t>(i - 1)].Fill(rn);
    samples_[static_cast<std::size_t>(i - 1)].Fill(draft_.Compound(i)); // one alone is chosen
    TakeSample(i);
}

void frmReact::TakeSample(int i) {
    const auto sample = samples_[static_cast<std::size_t>(i - 1)].Sample();
    draft_.SMPNM(i, sample ? sample->SMPNM : std::string());
}

bool frmReact::MayChooseSamples() const {
    return !HasData() || Globals().EditChanged || Globals().EditEquilibrium;
}

/// The equation in formulas, with names where one is not known; all names stand in the tool tip.
void frmReact::ShowEquation() {
    std::vector<EquationTerm> terms;
    for (int i = 1; i <= Count; ++i) {
        if (!IsUsed(i)) continue;
        const std::string formula = ParticipantFormula(i);
        terms.push_back(
            {draft_.Coeff(i), formula.empty() ? draft_.Name(i) : PrintedFormula(formula)});
    }
    lblEquation.Caption(EquationText(terms));
    lblEquation.ToolTip(draft_.Equation());
    lblSurplus.Caption(SurplusLine());
    cmdComplete.Enabled(draft_.REACTCLASS == CombustionWithOxygen && !HasData());
}

std::string frmReact::SurplusLine() const {
    bool any = false;
    for (int i = 1; i <= Count; ++i) {
        if (!IsUsed(i)) continue;
        any = true;
        if (ParticipantFormula(i).empty())
            return "The formula of " + draft_.Name(i) + " is not known";
    }
    if (!any) return {};
    const SurplusTexts surplus = SurplusOf(ElementBalances(Formulas(), draft_.Coefficients()));
    std::string text;
    for (const auto& [side, elements] :
         {std::pair("reactants", &surplus.reactants), std::pair("products", &surplus.products)})
        if (!elements->empty())
            text += (text.empty() ? "Not balanced. More in the " : "; in the ") +
                    std::string(side) + ": " + *elements;
    if (!text.empty()) return text;
    return CheckEquation() ? "Balanced" : "Coefficients are missing";
}

std::string frmReact::ParticipantFormula(int i) const {
    const std::string formula = draft_.Formula(i);
    return formula.empty() ? FormulaOfRN(draft_.RN(i)) : formula;
}

std::vector<std::string> frmReact::Formulas() const {
    std::vector<std::string> formulas;
    for (int i = 1; i <= Count; ++i)
        formulas.push_back(ParticipantFormula(i));
    return formulas;
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
