// The pages that the dialogs of bio sets share: the other components of the solution, and the
// quantities of the set as property, variables and constraints. The dialog declares the controls of
// a page as arrays, a row each, and a page behind them, which fills and follows them. A page says
// what is wrong; the dialog shows it.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "entry/CompoundList.h"
#include "entry/SampleList.h"
#include "records/BioSet.h"
#include "ui/Form.h"

namespace vexora {

class clsA;

/// What keeps a page from being accepted, and the control that mends it.
struct BioFault {
    ui::Control* field = nullptr;
    std::string text;
};
using BioFaults = std::vector<BioFault>;

/// Whom a quantity can be said of: a participant or the substance, or a component.
struct BioSubject {
    std::string key, name;
    /// Where it stands on the form. By this a choice follows it while keys change.
    int row = 0;
};
/// The subjects of a draft, participants first. The rows are those in which they stand, in the same
/// order; what bears one name is numbered.
std::vector<BioSubject> BioSubjects(const BioSet& draft, const std::vector<int>& participantRows,
                                    const std::vector<int>& componentRows);

/// Phases that parts of a solution can be in, by code. A list of phases begins with "None".
std::vector<std::string> BioPhaseCodes();
void FillBioPhases(ui::ComboBox& list, const std::vector<std::string>& codes);
/// The code of the chosen phase, empty for none; ChoosePhase chooses one.
std::string BioPhaseChosen(const ui::ComboBox& list);

/// Rows of a page: the usual ones, and more for a set that has more, with one to spare.
int BioRowCount(int usual, std::size_t used);

/// A component of the solution in each row.
class BioComponentPage {
public:
    struct Controls {
        ui::ControlArray<ui::ComboBox>& compounds; // cmbComp
        ui::ControlArray<ui::ComboBox>& functions; // cboFunction
        ui::ControlArray<ui::ComboBox>& phases;    // cboCompPhase
        ui::ControlArray<ui::ComboBox>& samples;   // cboCompSample
        ui::ControlArray<ui::TextBox>& contents;   // txtContent
    };
    /// Answers to the controls. Of a reaction there are more functions, and a phase is obligatory.
    BioComponentPage(ui::Form& form, const Controls& controls, bool isReaction);

    /// Told when a row has got another compound, or the source a new compound or sample: the dialog
    /// then fills its other lists of compounds and tells the pages of the subjects.
    std::function<void()> Follow;

    ui::Layout Arrangement() const;
    void Fill(const std::vector<BioComponent>& components);
    /// Offers compounds and samples as the source has them now.
    void Refresh();

    /// What the rows say, without the empty ones, and which rows they are.
    std::vector<BioComponent> Components() const;
    std::vector<int> Rows() const;
    BioFaults Check() const;

private:
    struct Row {
        std::string RN, SMPNM;
        CompoundList compounds;
        SampleList samples;
    };
    void CompoundClick(int i);
    void SampleClick(int i);
    void Show(int i);
    void ShowSamples(int i);
    Row& At(int i) { return rows_[static_cast<std::size_t>(i)]; }
    const Row& At(int i) const { return rows_[static_cast<std::size_t>(i)]; }

    ui::Form& form_;
    Controls on_;
    bool isReaction_;
    std::vector<Row> rows_;
};

/// A quantity as a page states it.
struct BioEntry {
    BioQuantity quantity;
    /// Where it stood in the set that the page was filled from, while it is of the same code.
    std::optional<std::size_t> origin;
    /// It is said of another component or phase there than it was.
    bool isOther = false;
    ui::Control* field = nullptr;
};
using BioEntries = std::vector<BioEntry>;

/// The quantities of one role, one in each row; on the page of the variables further properties can
/// be chosen as well.
class BioQuantityPage {
public:
    struct Controls {
        ui::ControlArray<ui::ComboBox>& quantities;   // cboProp, cboVar, cboConst
        ui::ControlArray<ui::ComboBox>& components;   // cmbPropComp, ...
        ui::ControlArray<ui::ComboBox>& units;        // cboPropUnit, ...
        ui::ControlArray<ui::CheckBox>& states;       // chkPropUnc, ...
        ui::ControlArray<ui::TextBox>& uncertainties; // txtPropUnc, ...
        ui::ControlArray<ui::TextBox>* values = nullptr;
        ui::ControlArray<ui::ComboBox>* phases = nullptr; // where quantities are said of one
    };
    BioQuantityPage(ui::Form& form, BioRole role, const Controls& controls);

    ui::Layout Arrangement() const;
    /// Offers the quantities of the tables of this set; as properties those of this kind
    /// (BioQuantityText::kind). To be called once, in front of Fill.
    void Offer(const BioSet& set, std::string_view kind);
    /// Offers the subjects as the form has them now; a choice follows its subject.
    void OfferSubjects(const std::vector<BioSubject>& subjects);
    /// Offers these phases, by code; a choice stays unless its phase was on offer before only.
    void OfferPhases(const std::vector<std::string>& codes);
    /// Shows those of the page's role. Subjects and phases have to be on offer before.
    void Fill(const std::vector<BioQuantity>& quantities);

    BioEntries Entries() const;
    /// What is wrong on this page alone, in the order in which it is to be told: no component, no
    /// phase, no property at all (unless some stand elsewhere), no number, a repeat. Numbers are
    /// made readable on the way.
    BioFaults Check(bool hasPropertyElsewhere = false);

private:
    struct Offered {
        BioRole role;
        std::string code, text; // as the list shows it
        const BioQuantityText* entry = nullptr;
    };
    struct Row {
        int chosen = -1; // place among those on offer
        BioSubject subject;
        std::string phase; // where the page has no list of them
        // As the page was filled.
        std::optional<std::size_t> origin;
        BioQuantity before;
        BioSubject subjectBefore;
    };
    ui::Layout RowArrangement(int i) const;
    void QuantityClick(int i);
    void SubjectClick(int i);
    void FillSubjects(int i);
    void FillUnits(int i, const std::string& unit);
    void FillRow(int i, const BioQuantity& quantity);
    void Enable(int i);
    int PlaceOf(const BioQuantity& quantity);
    const Offered* Chosen(int i) const;
    BioQuantity QuantityIn(int i) const;
    std::string StatedUncertainty(int i) const;
    bool IsOtherSubject(const Row& row) const;
    void CheckSubjects(BioFaults& faults) const;
    void CheckNumbers(BioFaults& faults);
    void CheckRepeats(BioFaults& faults) const;
    Row& At(int i) { return rows_[static_cast<std::size_t>(i)]; }
    const Row& At(int i) const { return rows_[static_cast<std::size_t>(i)]; }
    int Count() const { return on_.quantities.Count(); }

    ui::Form& form_;
    BioRole role_;
    Controls on_;
    bool isReaction_ = false;
    std::vector<Offered> offered_;
    std::vector<BioSubject> subjects_;
    std::vector<std::string> phases_; // on offer, by code
    std::vector<Row> rows_;
};

/// Pressure at 101.325 kPa, which a new set begins with.
BioQuantity AtmosphericPressure();

/// Quantities of all pages together: one that stands on two pages is told as "Duplicate varible".
BioFaults CheckAcross(const BioEntries& entries);

/// Puts what the pages say into a draft, a copy of the set that they were filled from. Figures of
/// what has got another component, phase or unit stay only if that is meant, and that others go is
/// asked; false when the person wants to go back, with the focus on the row. The draft is as it was
/// then.
bool TakeEntries(BioSet& draft, const BioEntries& entries);

/// The header of a set: comment, and for a new one who adds it, when, and that it is what the work
/// was done for.
void FillBioHeader(clsA& header, bool isNew, const std::string& comment);

} // namespace vexora
