#include "export/BioParts.h"

#include <algorithm>
#include <utility>

#include "export/DataHead.h"
#include "export/RegNum.h"
#include "export/XmlWriter.h"
#include "records/LineWriter.h"
#include "records/Substance.h"
#include "records/clsData.h"
#include "records/clsR.h"
#include "reference/KVODefinitions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

namespace vexora {

namespace {

constexpr const char* NoValidRows = "Rows without a valid number in ";

bool IsNumber(std::string_view typed) {
    return IsNumeric(typed) || IsNumeric(NormalizeNumber(typed));
}

/// A cell of uncertainties that was left empty holds a 0, which states nothing.
bool IsStated(std::string_view uncertainty) {
    if (IsBlankField(uncertainty)) return false;
    return !IsNumber(uncertainty) || Val(NormalizeNumber(uncertainty)) != 0;
}

bool AnyRowStates(const BioSet& set, std::size_t column) {
    return std::ranges::any_of(set.recD, [column](const clsBD& row) {
        return column < row.Cells.size() && IsStated(row.Cells[column].uncertainty);
    });
}

/// The statement of a quantity. What is typed beside it is an uncertainty that the author states.
clsX StatementOf(const BioSet& set, std::size_t place) {
    const BioQuantity& quantity = set.Quantities()[place];
    clsX item = place < set.recU.size() ? set.recU[place] : clsX();
    DropUnstated(item);
    item.inSystemUnits = false; // figures stand in the unit of the quantity, as its values
    const bool states =
        quantity.StatesByRow() ? AnyRowStates(set, place) : IsStated(quantity.uncertainty);
    item.iUnc = item.iUnc || states;
    // Rows have it in hand with their values.
    if (states && quantity.role == BioRole::Constraint) item.UValue = quantity.uncertainty;
    return item;
}

/// What goes in front of the statement of the set.
std::string_view UncertaintyIn(const clsBD& row, std::size_t column, const BioQuantity& quantity) {
    const std::string_view typed =
        quantity.StatesByRow() ? row.Cells[column].uncertainty.View() : quantity.uncertainty;
    return IsStated(typed) ? typed : std::string_view();
}

std::string_view ValueIn(const clsBD& row, std::size_t column) {
    return column < row.Cells.size() ? row.Cells[column].value.View() : std::string_view();
}

} // namespace

BioParts::BioParts(const BioSet& set)
    : set_(set), properties_(set.CountOf(BioRole::Property)), columns_(set.Columns()) {
    for (const std::string& key : set.Keys())
        members_.emplace(key,
                         set.Parent ? set.Parent->FindSubstance(BioSet::RNOfKey(key)) : nullptr);
    int number = 0;
    for (const BioQuantity& stated : set.Quantities()) {
        const std::size_t place = quantities_.size();
        const bool isFirst = place == 0 || stated.role != quantities_.back().stated.role;
        number = isFirst ? 1 : number + 1;
        quantities_.push_back({stated, set.TextOf(stated), std::to_string(number),
                               ExportUnit{set.ConversionOf(stated), true},
                               StatementOf(set, place)});
    }
}

std::span<const BioParts::Quantity> BioParts::Of(BioRole role) const {
    return std::span(quantities_).subspan(set_.FirstOf(role), set_.CountOf(role));
}

const Substance* BioParts::Member(std::string_view key) const {
    const auto found = members_.find(key);
    return found == members_.end() ? nullptr : found->second.get();
}

// Faults.

std::string BioParts::FaultOf(const Quantity& quantity) const {
    if (quantity.text == nullptr) return NoPlaceInExport;
    const std::string& component = quantity.stated.component;
    if (component.empty() && quantity.text->needsComponent)
        return "Component not stated: " + std::string(quantity.text->text);
    if (!component.empty() && Member(component) == nullptr)
        return "Not a component of the solution: " + set_.CompoundName(component);
    return ConversionFault(quantity.unit);
}

std::string BioParts::Fault() const {
    for (const auto& [key, compound] : members_)
        if (!compound) return "Component of solution not described: " + set_.CompoundName(key);
    if (Of(BioRole::Property).empty()) return "No property in ";
    for (const Quantity& quantity : quantities_)
        if (std::string fault = FaultOf(quantity); !fault.empty()) return fault;
    const auto leaves = [this](const clsBD& row) { return LeavingOf(row) == Leaving::Whole; };
    const auto isEmpty = [this](const clsBD& row) { return LeavingOf(row) == Leaving::Empty; };
    if (std::ranges::any_of(set_.recD, leaves)) return {};
    return std::ranges::all_of(set_.recD, isEmpty) ? "No numerical data in " : NoValidRows;
}

bool BioParts::TellsFault(const std::string& fault) const {
    if (fault.empty()) return false;
    const auto properties = Of(BioRole::Property);
    const bool isKnown = !properties.empty() && properties.front().text != nullptr;
    TellDataError(set_.ShowKey(), isKnown ? std::string(properties.front().text->text) : "", fault);
    return true;
}

BioParts::Leaving BioParts::LeavingOf(const clsBD& row) const {
    std::size_t values = 0, numbers = 0, variables = 0;
    for (std::size_t n = 0; n < columns_; ++n) {
        const std::string_view typed = ValueIn(row, n);
        if (IsBlankField(typed)) continue;
        ++values;
        if (!IsNumber(typed)) return Leaving::WithoutNumber;
        ++(n < properties_ ? numbers : variables);
    }
    if (values == 0) return Leaving::Empty;
    const bool isWhole = numbers > 0 && variables == columns_ - properties_;
    return isWhole ? Leaving::Whole : Leaving::WithoutNumber;
}

// Heads.

void ExportBioComponent(XmlWriter& xml, const Substance& compound, std::string_view function,
                        std::string_view sample) {
    xml.Open("Component");
    ExportRegNum(xml, compound);
    // Words of a fixed list; what a component is to a complex is not among them.
    xml.ElementIfAny("eFunction", CodeOfText(BioFunctions, function));
    if (!IsBlankField(sample)) xml.Element("nSampleNm", Trim(sample));
    xml.Close();
}

void ExportBioPhase(XmlWriter& xml, const char* element, const char* inner, std::string_view phase,
                    const std::vector<std::string>& states) {
    const auto isBlank = [](const std::string& text) { return IsBlankField(text); };
    if (IsBlankField(phase) && std::ranges::all_of(states, isBlank)) return;
    xml.Open(element);
    if (!IsBlankField(phase)) xml.Element(inner, PhaseText(xml, phase));
    for (const std::string& state : states)
        if (!isBlank(state)) xml.Element("eState", Trim(state));
    xml.Close();
}

void BioParts::ExportComponents(XmlWriter& xml) const {
    for (const BioComponent& component : set_.Components)
        ExportBioComponent(xml, *Member(component.RN), component.function, component.SMPNM);
}

void BioParts::OpenProperty(XmlWriter& xml, const Quantity& property,
                            const PropertyHead& head) const {
    xml.Open("Property");
    xml.Element("nPropNumber", property.number);
    xml.Open("Property-MethodID");
    xml.Open("PropertyGroup");
    xml.Open(head.group);
    xml.Element("ePropName", XMLBioPropertyName(*property.text));
    xml.ElementIfAny("sMethodName", WithoutPlaceholder(head.method));
    xml.Close();
    xml.Close();
    if (const Substance* component = Member(head.component)) ExportRegNum(xml, *component);
    xml.Close();
}

void BioParts::CloseProperty(XmlWriter& xml, const Quantity& property) {
    property.item.ExportX(xml, "Prop");
    xml.Close();
}

void BioParts::ExportQuantity(XmlWriter& xml, const Quantity& quantity, const char* id,
                              const char* type, const char* phaseId, const char* phase) const {
    xml.Open(id);
    xml.Open(type);
    xml.Element(quantity.text->group, XMLBioVariableName(*quantity.text));
    xml.Close();
    if (const Substance* component = Member(quantity.stated.component))
        ExportRegNum(xml, *component);
    xml.Close();
    ExportBioPhase(xml, phaseId, phase, quantity.stated.phase);
}

void BioParts::ExportConstraint(XmlWriter& xml, const Quantity& constraint) const {
    xml.Open("Constraint");
    ExportQuantity(xml, constraint, "ConstraintID", "ConstraintType", "ConstraintPhaseID",
                   "eConstraintPhase");
    const std::string& typed = constraint.stated.value;
    const ExportNumber value = ExportedValue(typed, constraint.unit);
    xml.Element("nConstraintValue", value.text);
    xml.Element("nConstrDigits", std::to_string(value.digits));
    if (!ExportConstraintStatements(xml, constraint.item, typed, constraint.unit))
        TellsFault(NoRepeatability);
    xml.Close();
}

void BioParts::ExportVariable(XmlWriter& xml, const Quantity& variable) const {
    xml.Open("Variable");
    xml.Element("nVarNumber", variable.number);
    ExportQuantity(xml, variable, "VariableID", "VariableType", "VarPhaseID", "eVarPhase");
    variable.item.ExportX(xml, "Var");
    xml.Close();
}

// Rows.

bool BioParts::ExportRow(XmlWriter& xml, const clsBD& row) const {
    bool isWhole = true;
    const auto exportValue = [&](const char* element, const std::string& role, std::size_t n) {
        const std::string_view typed = ValueIn(row, n);
        if (IsBlankField(typed)) return; // a property that was not measured here
        const Quantity& quantity = quantities_[n];
        const ExportNumber value = ExportedValue(typed, quantity.unit);
        xml.Open(element);
        xml.Element("n" + role + "Number", quantity.number);
        xml.Element("n" + role + "Value", value.text);
        xml.Element("n" + role + "Digits", std::to_string(value.digits));
        RowStatements own;
        own.Unc = UncertaintyIn(row, n, quantity.stated);
        const RowFigures figures{own, {}, {}, quantity.unit.converts};
        isWhole &= ExportStatements(xml, quantity.item, role, typed, quantity.unit, &figures);
        xml.Close();
    };
    xml.Open("NumValues");
    for (std::size_t n = properties_; n < columns_; ++n)
        exportValue("VariableValue", "Var", n);
    for (std::size_t n = 0; n < properties_; ++n)
        exportValue("PropertyValue", "Prop", n);
    xml.Close();
    return isWhole;
}

void BioParts::ExportNumbers(XmlWriter& xml) const {
    bool lacksConstant = false, lacksNumber = false, isWhole = true;
    for (const Quantity& constraint : Of(BioRole::Constraint)) {
        const bool isThere = IsNumber(constraint.stated.value);
        if (isThere) ExportConstraint(xml, constraint);
        lacksConstant = lacksConstant || !isThere;
    }
    for (const Quantity& variable : Of(BioRole::Variable))
        ExportVariable(xml, variable);
    for (const clsBD& row : set_.recD) {
        const Leaving leaving = LeavingOf(row);
        if (leaving == Leaving::Whole) isWhole &= ExportRow(xml, row);
        lacksNumber = lacksNumber || leaving == Leaving::WithoutNumber;
    }
    if (lacksConstant) TellsFault("Constraint without a valid number in ");
    if (lacksNumber) TellsFault(NoValidRows);
    if (!isWhole) TellsFault(NoRepeatability);
}

} // namespace vexora
