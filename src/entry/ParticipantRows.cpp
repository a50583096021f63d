#include "entry/ParticipantRows.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "chem/PrintedFormula.h"
#include "chem/clsAtom.h"
#include "entry/BioPages.h"
#include "entry/PhaseLists.h"
#include "entry/SelectionScope.h"
#include "globals/KVOGlobal.h"
#include "records/RegistryNumbers.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "reference/Numbers.h"

namespace vexora {

namespace {

constexpr const char* NoSample = "None";

int NumberOf(std::string_view text) {
    return static_cast<int>(ToInteger(Val(text)));
}

} // namespace

ParticipantRows::ParticipantRows(ui::Form& form, Fields fields, std::function<void(bool)> changed)
    : form_(form), fields_(fields), changed_(std::move(changed)),
      all_(static_cast<std::size_t>(fields.compounds.Count())) {
    for (int row = 0; row < Rows(); ++row) {
        compounds_.emplace_back(form, fields_.compounds(row), fields_.withComplexes);
        samples_.emplace_back(form, fields_.samples(row), NoSample);
        fields_.compounds(row).OnClick = [this, row] { CompoundClick(row); };
        fields_.coefficients(row).OnChange = [this, row] { CoefficientChanged(row); };
        fields_.samples(row).OnClick = [this, row] { SampleClick(row); };
        if (fields_.phases) (*fields_.phases)(row).OnClick = [this, row] { PhaseClick(row); };
    }
}

void ParticipantRows::Take(std::vector<Participant> participants) {
    all_ = std::move(participants);
    all_.resize(std::max(all_.size(), compounds_.size()));
    FillCompounds();
    for (int row = 0; row < Rows(); ++row)
        FillRow(row);
}

bool ParticipantRows::IsEmpty() const {
    return std::ranges::all_of(all_, [](const Participant& one) { return one.RN.empty(); });
}

void ParticipantRows::FillCompounds() {
    for (int row = 0; row < Rows(); ++row)
        compounds_[static_cast<std::size_t>(row)].Fill(At(row).RN);
}

/// Coefficient, phase and sample belong to the compound that stood there.
void ParticipantRows::SetCompound(int row, const std::string& rn) {
    At(row) = {};
    At(row).RN = rn;
    if (IsUsed(row)) At(row).phase = usualPhase_;
    FillRow(row);
    compounds_[static_cast<std::size_t>(row)].Fill(rn);
    samples_[static_cast<std::size_t>(row)].Fill(SubstanceIn(row)); // one alone is chosen
    TakeSample(row);
}

/// A sample that the document does not have is not replaced in silence.
void ParticipantRows::FillRow(int row) {
    const ui::FillingScope filling(form_);
    const auto substance = SubstanceIn(row);
    SampleList& samples = samples_[static_cast<std::size_t>(row)];
    fields_.coefficients(row).Text(At(row).coefficient);
    samples.Fill(substance);
    samples.ChooseNone();
    if (substance) samples.Choose(substance->FindSample(NumberOf(At(row).SMPNM)).get());
    if (fields_.phases) FillPhase(row);
    LockRow(row);
}

void ParticipantRows::FillPhase(int row) {
    ui::ComboBox& list = (*fields_.phases)(row);
    FillBioPhases(list, BioPhaseCodes());
    ChoosePhase(list, At(row).phase);
    list.Enabled(IsUsed(row));
}

void ParticipantRows::LockRow(int row) {
    ui::ComboBox& compounds = fields_.compounds(row);
    compounds.Enabled(compoundsClosed_.empty());
    compounds.ToolTip(compoundsClosed_);
    fields_.coefficients(row).Enabled(IsUsed(row));
    ui::ComboBox& samples = fields_.samples(row);
    samples.Enabled(IsUsed(row) && samplesClosed_.empty());
    samples.ToolTip(samplesClosed_);
}

void ParticipantRows::TakeSample(int row) {
    const auto sample = samples_[static_cast<std::size_t>(row)].Chosen();
    At(row).SMPNM = sample ? sample->SMPNM : std::string();
}

void ParticipantRows::CompoundClick(int row) {
    if (form_.Filling) return;
    const SelectionScope selection;
    const auto rn = compounds_[static_cast<std::size_t>(row)].Click();
    if (rn && *rn != At(row).RN) SetCompound(row, *rn);
    FillCompounds();
    changed_(true);
}

void ParticipantRows::CoefficientChanged(int row) {
    if (form_.Filling) return;
    At(row).coefficient = NormalizeNumber(fields_.coefficients(row).Text());
    changed_(false);
}

/// The dialog may come back with a sample of another participant, or with another compound.
void ParticipantRows::SampleClick(int row) {
    if (form_.Filling) return;
    const SelectionScope selection;
    const auto made = samples_[static_cast<std::size_t>(row)].Click();
    TakeSample(row);
    if (made) FillCompounds();
    for (int other = 0; made && other < Rows(); ++other) {
        if (other == row || At(other).RN != made->Parent->RN) continue;
        const bool isOpen = At(other).SMPNM.empty();
        FillRow(other);
        if (!isOpen) continue;
        samples_[static_cast<std::size_t>(other)].Choose(made.get());
        TakeSample(other);
    }
    changed_(made != nullptr);
}

void ParticipantRows::PhaseClick(int row) {
    if (form_.Filling) return;
    At(row).phase = BioPhaseChosen((*fields_.phases)(row));
    changed_(false);
}

std::shared_ptr<Substance> ParticipantRows::SubstanceIn(int row) const {
    const auto& source = Globals().CurrentR;
    return source && IsUsed(row) ? source->FindSubstance(At(row).RN) : nullptr;
}

std::string ParticipantRows::Name(int row) const {
    const auto substance = SubstanceIn(row);
    return substance ? substance->ShowKey() : At(row).RN;
}

std::string ParticipantRows::Formula(int row) const {
    const std::string formula = FormulaOfSample(SubstanceIn(row).get(), At(row).SMPNM);
    return formula.empty() && !NamesComplex(At(row).RN) ? FormulaOfRN(At(row).RN) : formula;
}

std::vector<std::string> ParticipantRows::Formulas() const {
    std::vector<std::string> formulas;
    for (int row = 0; row < Count(); ++row)
        formulas.push_back(Formula(row));
    return formulas;
}

std::vector<std::string> ParticipantRows::Coefficients() const {
    std::vector<std::string> coefficients;
    for (const Participant& one : all_)
        coefficients.push_back(one.coefficient);
    return coefficients;
}

std::vector<EquationTerm> ParticipantRows::Terms(bool inFormulas) const {
    std::vector<EquationTerm> terms;
    for (int row = 0; row < Count(); ++row) {
        if (!IsUsed(row)) continue;
        const std::string formula = inFormulas ? Formula(row) : std::string();
        terms.push_back(
            {At(row).coefficient, formula.empty() ? Name(row) : PrintedFormula(formula)});
    }
    return terms;
}

std::string ParticipantRows::FormulaEquation() const {
    return EquationText(Terms(true));
}

std::string ParticipantRows::NameEquation() const {
    return EquationText(Terms(false));
}

bool ParticipantRows::IsBalanced() const {
    return vexora::IsBalanced(Formulas(), Coefficients());
}

std::string ParticipantRows::SurplusLine(bool mustBalance) const {
    if (IsEmpty()) return {};
    for (int row = 0; row < Count(); ++row)
        if (IsUsed(row) && Formula(row).empty())
            return "The formula of " + Name(row) + " is not known";
    const SurplusTexts surplus = SurplusOf(ElementBalances(Formulas(), Coefficients()));
    const std::string lead = mustBalance ? "Not balanced." : "Need not balance.";
    std::string text;
    for (const auto& [side, elements] :
         {std::pair("reactants", &surplus.reactants), std::pair("products", &surplus.products)})
        if (!elements->empty())
            text += (text.empty() ? lead + " More in the " : "; in the ") + std::string(side) +
                    ": " + *elements;
    if (!text.empty()) return text;
    if (!IsBalanced()) return "Coefficients are missing";
    return "Balanced" + (mustBalance ? ChargeText() : std::string());
}

/// Charges are known of some compounds only, so that they are told and not asked for.
std::string ParticipantRows::ChargeText() const {
    double surplus = 0;
    for (int row = 0; row < Count(); ++row)
        if (const auto compound = std::dynamic_pointer_cast<clsL>(SubstanceIn(row)))
            surplus += Val(At(row).coefficient) * compound->Charge;
    constexpr double noticeable = 1e-6; // coefficients may be rounded
    if (std::abs(surplus) < noticeable) return {};
    return " but for the charge: " + std::string(surplus > 0 ? "+" : "") + NumberText(surplus) +
           " in the products";
}

int ParticipantRows::FirstWithoutFormula() const {
    for (int row = 0; row < Count(); ++row)
        if (IsUsed(row) && CanonicalFormula(Formula(row)).empty()) return row;
    return -1;
}

BalanceOutcome ParticipantRows::Equate(BalanceScale scale) {
    const BalanceResult result = Balance(Formulas(), Coefficients(), scale);
    if (result.outcome != BalanceOutcome::Balanced) return result.outcome;
    for (int row = Count() - 1; row >= 0; --row) {
        if (!IsUsed(row)) continue;
        At(row).coefficient = result.coefficients[static_cast<std::size_t>(row)];
        if (Val(At(row).coefficient) != 0 || !compoundsClosed_.empty()) continue;
        all_.erase(all_.begin() + row); // it takes no part
        all_.emplace_back();
    }
    Take(std::move(all_));
    return result.outcome;
}

void ParticipantRows::PutReactantsFirst() {
    const auto side = [](const Participant& one) {
        return one.RN.empty() ? 2 : Val(one.coefficient) < 0 ? 0 : 1;
    };
    std::ranges::stable_sort(all_, {}, side);
    Take(std::move(all_));
}

} // namespace vexora
