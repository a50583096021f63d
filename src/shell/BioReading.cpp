#include "shell/BioReading.h"

#include "chem/Balancer.h"
#include "chem/CommentTags.h"
#include "records/BioSetFacts.h"
#include "records/MixtureWords.h"
#include "records/clsBP.h"
#include "records/clsBR.h"
#include "records/clsL.h"
#include "reference/KVODefinitions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/UnitText.h"
#include "shell/ReadingPage.h"
#include "shell/SetRows.h"

namespace vexora {

namespace {

/// The least and the greatest value of a column, as typed.
std::string RangeOf(const BioSet& set, std::size_t place) {
    std::string_view least, greatest;
    for (const clsBD& row : set.recD) {
        if (place >= row.Cells.size()) continue;
        const std::string_view typed = row.Cells[place].value;
        if (!IsNumeric(typed)) continue;
        if (least.empty() || Val(typed) < Val(least)) least = typed;
        if (greatest.empty() || Val(typed) > Val(greatest)) greatest = typed;
    }
    return std::string(least) + (least == greatest ? "" : " to " + std::string(greatest));
}

std::string UncertaintyOf(const BioSet& set, std::size_t place) {
    const BioQuantity& quantity = set.Quantities()[place];
    if (quantity.StatesByRow()) return ", each row with its uncertainty";
    std::string text = quantity.uncertainty;
    if (text.empty() && place < set.recU.size()) text = UncertaintyText(set.recU[place]);
    return text.empty() ? text : " \xC2\xB1 " + text;
}

void DescribeQuantity(ReadingPage& page, const BioSet& set, std::size_t place) {
    const BioQuantity& quantity = set.Quantities()[place];
    const std::string name = set.NameOf(quantity);
    const bool isConstraint = quantity.role == BioRole::Constraint;
    const std::string values = isConstraint ? quantity.value : RangeOf(set, place);
    const std::string unit = set.UnitOf(quantity);
    const std::string text =
        (values.empty() ? unit : NumberWithUnit(values, unit)) + UncertaintyOf(set, place);
    const std::string shown = text.empty() ? "dimensionless" : text;
    if (quantity.role == BioRole::Property) return page.Line(name + ":", shown);
    page.Line((isConstraint ? "Constant " : "Against ") + FirstSmall(name) + ":", shown);
}

/// What a compound is known by beside its name.
std::string IdentityOf(const std::shared_ptr<clsL>& compound) {
    if (!compound) return "not described";
    return Listed({compound->Formula, compound->EC.empty() ? "" : "EC " + compound->EC,
                   compound->PDB.empty() ? "" : "PDB " + compound->PDB});
}

std::string SampleText(const std::string& number) {
    return IsBlankField(number) ? "" : "sample " + number;
}

void DescribeComponents(ReadingPage& page, const BioSet& set) {
    for (std::size_t n = 0; n < set.Components.size(); ++n) {
        const BioComponent& component = set.Components[n];
        const std::string key = set.KeyOf(n);
        const std::string function = component.function.empty() ? "Component" : component.function;
        page.Line(function + ":", Listed({set.CompoundName(key), IdentityOf(set.CompoundOf(key)),
                                          SampleText(component.SMPNM), PhaseText(component.phase),
                                          component.note}));
    }
}

/// What is told of all bio sets behind what their class tells.
void DescribeRest(ReadingPage& page, const BioSet& set) {
    DescribeComponents(page, set);
    for (std::size_t place = 0; place < set.Quantities().size(); ++place)
        DescribeQuantity(page, set, place);
    page.Line("Rows:", std::to_string(set.recD.size()));
    ShowRows(page, set);
    page.Line("Method:", set.Method);
    page.Line("Purpose:", TextOfCode(ExperimentPurposes, set.Header.EXPPURPOSE));
    page.Line("Comment:", CommentTags(set.Header.DATACOMMENT).Text());
    page.Line("Entered:", set.Header.DATEADDED);
    page.Need(set.CountOf(BioRole::Property) == 0, "A property");
    page.Need(set.recD.empty(), "Rows");
    page.Need(IsBlankField(set.Method), "The method of measurement");
    page.Need(!StatesUncertainty(set), "A statement of uncertainty");
}

} // namespace

std::string ReadingOfBioReaction(const clsBR& set) {
    ReadingPage page(set.ShowKey());
    page.Line("Notation:", set.Notation ? "chemical" : "biochemical");
    bool hasPhases = true;
    for (const BioParticipant& participant : set.Participants) {
        page.Line(set.CompoundName(participant.RN) + ":",
                  Listed({IdentityOf(set.CompoundOf(participant.RN)), SampleText(participant.SMPNM),
                          PhaseText(participant.phase)}));
        hasPhases = hasPhases && !IsBlankField(participant.phase);
    }
    page.Need(set.Participants.empty(), "Participants");
    page.Need(!hasPhases, "A phase of each participant");
    page.Need(set.Notation && !IsBalanced(set.Formulas(), set.Coefficients()),
              "Coefficients that balance");
    DescribeRest(page, set);
    return page.Html();
}

std::string ReadingOfBioProperty(const clsBP& set) {
    ReadingPage page(set.ShowKey());
    const bool isHydrate = set.PrpType == "G";
    if (!isHydrate)
        page.Line("Substance:",
                  Listed({set.CompoundName(set.RN), IdentityOf(set.CompoundOf(set.RN)),
                          SampleText(set.SMPNM)}));
    if (set.PrpType == "D") {
        page.Line("Initial state:", Listed({set.State1, PhaseText(set.PHASE1)}));
        page.Line("Final state:", Listed({set.State2, PhaseText(set.PHASE2)}));
        page.Need(IsBlankField(set.State1) || IsBlankField(set.State2),
                  "The initial and the final state");
    } else {
        page.Line("Phases:", Listed({PhaseText(set.PHASE1), PhaseText(set.PHASE2),
                                     PhaseText(set.PHASE3), PhaseText(set.PHASE4)}));
    }
    DescribeRest(page, set);
    return page.Html();
}

} // namespace vexora
