#include "shell/SetReading.h"

#include "chem/CommentTags.h"
#include "entry/TableColumns.h"
#include "records/MixtureWords.h"
#include "records/Presentation.h"
#include "records/PropertyChain.h"
#include "records/PropertyLabels.h"
#include "records/StateRules.h"
#include "records/StatedUncertainty.h"
#include "records/clsE.h"
#include "records/clsM.h"
#include "records/clsMV.h"
#include "records/clsTwo.h"
#include "reference/Conversions.h"
#include "reference/KVODefinitions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/UnitText.h"
#include "reference/Vocabulary.h"
#include "shell/ReadingPage.h"
#include "shell/SetRows.h"

#include <algorithm>
#include <initializer_list>

namespace vexora {

namespace {

// The least and the greatest value of quantity n (0 the property) as typed. A set that holds rows
// of both kinds is read in system units.
std::string RangeOf(const DataSet& set, int n) {
    ShownValues values(set);
    std::string least, greatest;
    double low = 0, high = 0;
    for (const clsData& row : set.recData) {
        const std::string text = values.Of(row, n);
        if (!IsNumeric(text)) continue;
        const double value = Val(text);
        if (least.empty() || value < low) {
            low = value;
            least = text;
        }
        if (greatest.empty() || value > high) {
            high = value;
            greatest = text;
        }
    }
    return least == greatest ? least : least + " to " + greatest;
}

std::string WithUnitIfAny(const std::string& text, const std::string& unit) {
    return text.empty() ? text : NumberWithUnit(text, unit);
}

std::string VariableUnitText(const DataSet& set, int n) {
    const std::string unit = DefaultUnit(VariableName(set.VARIABLE(n), set.DataContext()));
    const std::string& code = set.VAR_UNIT(n);
    return !set.isOriginalUnit || set.HasBothKinds() ? unit : UnitText(unit, code, 0);
}

std::string PropertyUnitText(const DataSet& set) {
    if (set.Relation() == "R") return {};
    if (set.HasBothKinds()) return DefaultUnit(PropertyName(set.PRPCODE, set.DataContext()));
    return PropertyLabels::Of(set).unit;
}

std::string DefinitionText(const DataSet& set) {
    const std::string& code = set.PROPERTY_FUNCT;
    if (code == "DIR") return {};
    const bool isPure = set.DataContext() == "Pure";
    const CodeTexts states = isPure ? CodeTexts(PureReferenceStates) : MixtureReferenceStates;
    const std::string whole = TextOfCode(states, code);
    if (!whole.empty() || code.size() < 2) return whole.empty() ? code : whole;
    const ResultDefinition definition = set.Definition();
    const std::string relation = TextOfCode(ReferenceRelations, definition.function);
    const std::string reference = TextOfCode(states, definition.relation);
    return relation.empty() ? code : relation + "; " + reference;
}

/// Variable n in words, with a small first letter.
std::string VariableInWords(const DataSet& set, int n) {
    if (const auto* const mixtureSet = dynamic_cast<const clsMV*>(&set))
        return QuantityInWords(*mixtureSet, n);
    if (set.DataContext() == "React") {
        const std::string words = set.VariableWords(n);
        return words.empty() ? set.VARIABLE(n) : FirstSmall(words);
    }
    const std::string name = VariableName(set.VARIABLE(n), set.DataContext());
    return LowerAscii(name.empty() ? set.VARIABLE(n) : name);
}

/// Of each quantity what is stated for all rows.
void DescribeUncertainty(ReadingPage& page, const DataSet& set) {
    StatementsOfSet ofRows;
    MarkStatementsOfRows(set.recData, ofRows);
    const bool original = set.isOriginalUnit && !set.HasBothKinds();
    DescribeStatements(page, "the values", PropertyUnitText(set), set.UX[0], ofRows[0]);
    for (int n = 1; n <= set.nVar; ++n) {
        const auto at = static_cast<std::size_t>(n);
        DescribeStatements(page, VariableInWords(set, n), VariableUnitText(set, n),
                           InEnteredUnit(set.UX[at], original ? set.VAR_UNIT(n) : "S"), ofRows[at]);
    }
}

std::string WithUnitBehind(const std::string& name, const std::string& unit) {
    return FirstCapital(name) + (unit.empty() || unit == "1" ? "" : ", " + unit);
}

void DescribeRows(ReadingPage& page, const DataSet& set) {
    for (int n = 1; n <= set.nVar; ++n) {
        const std::string unit = VariableUnitText(set, n);
        const std::string range = WithUnitIfAny(RangeOf(set, n), unit);
        page.Line("Against " + VariableInWords(set, n) + ":",
                  range.empty() && unit != "1" ? unit : range);
    }
    const std::string unit = PropertyUnitText(set);
    const std::string range = WithUnitIfAny(RangeOf(set, 0), unit);
    page.Line("Values:", range.empty() && unit != "1" ? unit : range);
    DescribeUncertainty(page, set);
    page.Line("Rows:", std::to_string(set.recData.Count()));
    std::vector<std::string> heads;
    for (int n = 1; n <= set.nVar; ++n)
        heads.push_back(WithUnitBehind(VariableInWords(set, n), VariableUnitText(set, n)));
    heads.push_back(WithUnitBehind("value", unit));
    ShowRows(page, set, heads);
    if (set.HasBothKinds()) page.Item("Some rows stand in the units of the paper, some do not.");
}

/// What is the same for all rows: a state variable, and the state that the values are relative to.
void DescribeConstants(ReadingPage& page, const clsTwo& set) {
    for (const QuantityText& quantity : StateVariables)
        page.Line("Constant " + LowerAscii(quantity.text) + ":",
                  WithUnitIfAny(set.ConstantOf(quantity.code), std::string(quantity.unit)));
    const auto stated = [](const std::string& value, const std::string& unit) {
        return IsBlankField(value) ? std::string() : NumberWithUnit(value, unit);
    };
    page.Line("Reference state:",
              Listed({stated(set.REF_TEMP, "K"), stated(set.REF_PRESSURE, "kPa"),
                      PhaseText(set.REF_PHASE)}));
}

/// The same of a mixture, whose constants stand in its definition.
void DescribeConstants(ReadingPage& page, const clsMV& set) {
    for (const HeldConstant& constant : set.Constants()) {
        const std::string name = QuantityInWords(set, constant.item);
        const std::string unit = UnitText(UnitOfVariable(constant.code), constant.unit, 0);
        if (constant.value.empty())
            page.Line("Along the:", name);
        else
            page.Line("Constant " + name + ":", NumberWithUnit(constant.value, unit));
    }
    const auto stated = [](const std::string& value, const std::string& unit) {
        return IsBlankField(value) ? std::string() : NumberWithUnit(value, unit);
    };
    page.Line("Solvent:", WithComponents(TextOfCode(MixtureSolvents, set.SOLVENT), set.Parent));
    page.Line("Standard state:", TextOfCode(StandardStates, set.STANDARD_STATE));
    page.Line("Reference state:",
              Listed({stated(set.REFERENCE_TEMPERATURE, "K"), stated(set.REFERENCE_PRESSURE, "kPa"),
                      PhaseText(set.REFERENCE_PHASE)}));
}

/// How the numbers came about, and in what other forms the source has them.
void DescribePresentation(ReadingPage& page, const DataSet& set) {
    const Presentation presentation = Presentation::Of(set.DATATYPE);
    page.Line("Data are:", TextOfCode(Presentation::Kinds(), presentation.numerical));
    page.Line("Also given:",
              Listed({presentation.calculated ? "calculated values" : "",
                      presentation.equation ? "equation" : "", presentation.graph ? "graph" : ""}));
}

/// The names of the participants in phase i.
std::string ParticipantsIn(const clsE& set, int i) {
    std::string names;
    for (const char digit : set.COMPONENTS_IN_PHASE(i))
        if (set.Parent) names += (names.empty() ? "" : ", ") + set.Parent->Name(digit - '0');
    return names;
}

} // namespace

/// What is told of every set behind what its class tells.
void DescribeRest(ReadingPage& page, const DataSet& set) {
    page.Line("Method:", MethodText(set.Header, set.PRPCODE));
    page.Line("Purpose:", TextOfCode(ExperimentPurposes, set.Header.EXPPURPOSE));
    page.Line("Comment:", CommentTags(set.Header.DATACOMMENT).Text());
    page.Line("Set:", set.PRPSETNO);
    page.Line("Entered:", set.Header.DATEADDED);
    page.Need(set.recData.IsEmpty() && Presentation::Of(set.DATATYPE).HasNumbers(), "Rows");
}

std::string ReadingOfSet(const clsTwo& set) {
    const std::string name = PropertyName(set.PRPCODE, set.DataContext());
    ReadingPage page(name.empty() ? set.PRPCODE : name);
    DescribeRows(page, set);
    page.Line("Results are:", DefinitionText(set));
    DescribePresentation(page, set);
    DescribeConstants(page, set);
    page.Line("Constraint:", TextOfCode(ConstraintKinds, set.CONSTRAINT));
    page.Line("Phase:", PhaseText(set.PHASE1));
    page.Line("In equilibrium with:", PhaseText(set.PHASE2));
    DescribeRest(page, set);
    for (const std::string& unstated : UnstatedOf(set))
        page.Need(true, "The " + unstated);
    page.Need(!StatesUncertainty(set), "A statement of uncertainty");
    return page.Html();
}

std::string ReadingOfEquilibrium(const clsE& set) {
    const std::string name = PropertyName(set.PRPCODE, set.DataContext());
    ReadingPage page(name.empty() ? set.PRPCODE : name);
    page.Line("Reaction:", set.SystemName());
    DescribeRows(page, set);
    DescribePresentation(page, set);
    for (const HeldConstant& constant : set.Constants()) {
        const std::string words = ReactionVariableName(set.Parent, constant.code);
        const std::string unit = words.starts_with("Mole") ? "1" : UnitOfVariable(constant.code);
        page.Line("Constant " + (words.empty() ? constant.code : FirstSmall(words)) + ":",
                  WithUnitIfAny(constant.value, unit));
    }
    for (int i = 1; i <= clsE::Places; ++i)
        page.Line(PhaseText(set.PHASE(i)) + ":", ParticipantsIn(set, i));
    page.Line("Standard state:", TextOfCode(StandardStates, set.STANDARD_STATE));
    page.Line("Solvent phase:", PhaseText(set.SOLVENTPHASE));
    for (int i = 1; set.Parent && i <= clsE::Participants; ++i)
        page.Line("Sample of " + set.Parent->Name(i) + ":", set.SMPNM(i));
    DescribeRest(page, set);
    page.Need(!StatesUncertainty(set), "A statement of uncertainty");
    return page.Html();
}

std::string ReadingOfMixtureSet(const clsMV& set) {
    ReadingPage page(FirstCapital(QuantityInWords(set, 0)));
    page.Line("Mixture:", set.SystemName());
    for (int n = 1; n <= set.MixType; ++n)
        page.Line("Sample of component " + std::to_string(n) + ":", set.SMPNM(n));
    std::string phases;
    for (const std::string& phase : set.Phases())
        phases += (phases.empty() ? "" : " + ") + PhaseText(phase);
    page.Line(set.nPhases() > 1 ? "Phases:" : "Phase:", phases);
    DescribeRows(page, set);
    page.Line("Results are:", DefinitionText(set));
    DescribePresentation(page, set);
    DescribeConstants(page, set);
    if (set.IsTied()) page.Item("Its rows are parts of tie lines.");
    DescribeRest(page, set);
    page.Need(!StatesUncertainty(set), "A statement of uncertainty");
    return page.Html();
}

} // namespace vexora
