#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "chem/Balancer.h"
#include "entry/CompoundList.h"
#include "entry/SampleList.h"
#include "records/ReactionText.h"
#include "ui/ControlArray.h"
#include "ui/Form.h"
#include "ui/TextBox.h"

namespace vexora {

class Substance;

/// Who takes part in a reaction, as a form has it.
struct Participant {
    std::string RN, SMPNM;   // registry number and number of the sample, empty for none
    std::string coefficient; // as typed, negative of a reactant
    std::string phase;       // code, empty for none
};

/// The rows in which a dialog says who takes part in a reaction, with its equation as it is typed,
/// and its balancing. The dialog owns the controls and this. Rows count from 0; a participant for
/// which the form has no row is kept behind the others.
class ParticipantRows {
public:
    struct Fields {
        const ui::ControlArray<ui::ComboBox>& compounds;
        const ui::ControlArray<ui::TextBox>& coefficients;
        const ui::ControlArray<ui::ComboBox>& samples;
        const ui::ControlArray<ui::ComboBox>* phases = nullptr; // of a form that asks for them
        bool withComplexes = false;
    };
    /// Answers to the controls. `changed` follows whatever a person changes; it gets true when
    /// other compounds take part, or one or a sample was made on the way.
    ParticipantRows(ui::Form& form, Fields fields, std::function<void(bool)> changed);

    /// Why compounds, or samples, cannot be chosen; empty when they can. Before Take.
    void CloseCompounds(std::string why) { compoundsClosed_ = std::move(why); }
    void CloseSamples(std::string why) { samplesClosed_ = std::move(why); }
    /// The phase that a new participant has at first.
    void UsualPhase(std::string code) { usualPhase_ = std::move(code); }

    void Take(std::vector<Participant> participants);
    const std::vector<Participant>& All() const { return all_; }
    int Rows() const { return fields_.compounds.Count(); }
    bool IsUsed(int row) const { return !At(row).RN.empty(); }
    bool IsEmpty() const;
    /// Puts a compound into a row, with its only sample.
    void SetCompound(int row, const std::string& rn);
    /// Offers the compounds as the source has them now.
    void FillCompounds();

    /// Of a participant: its name, or the number of a compound that the source lacks; its formula,
    /// empty when it is not known.
    std::string Name(int row) const;
    std::string Formula(int row) const;
    std::vector<std::string> Formulas() const;
    std::vector<std::string> Coefficients() const;

    /// The equation in formulas, with names where one is not known; and in names.
    std::string FormulaEquation() const;
    std::string NameEquation() const;
    /// What is left over on either side, or that nothing is; what is left over of a reaction that
    /// need not balance is told as such.
    std::string SurplusLine(bool mustBalance = true) const;
    bool IsBalanced() const;

    /// The first row whose formula is not known, -1 for none.
    int FirstWithoutFormula() const;
    /// Finds the coefficients; those that balance already stay. When it succeeds, participants that
    /// take no part go, unless the compounds are closed.
    BalanceOutcome Equate(BalanceScale scale);
    /// Reactants in front of products, in the order that they had.
    void PutReactantsFirst();

private:
    const Participant& At(int row) const { return all_.at(static_cast<std::size_t>(row)); }
    Participant& At(int row) { return all_.at(static_cast<std::size_t>(row)); }
    int Count() const { return static_cast<int>(all_.size()); }
    std::shared_ptr<Substance> SubstanceIn(int row) const;
    std::vector<EquationTerm> Terms(bool inFormulas) const;
    std::string ChargeText() const;

    void CompoundClick(int row);
    void CoefficientChanged(int row);
    void SampleClick(int row);
    void PhaseClick(int row);
    void FillRow(int row);
    void FillPhase(int row);
    void LockRow(int row);
    void TakeSample(int row);

    ui::Form& form_;
    Fields fields_;
    std::function<void(bool)> changed_;
    std::vector<CompoundList> compounds_;
    std::vector<SampleList> samples_;
    std::vector<Participant> all_; // one a row at least
    std::string compoundsClosed_, samplesClosed_, usualPhase_;
};

} // namespace vexora
