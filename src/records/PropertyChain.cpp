#include "records/PropertyChain.h"

#include "chem/CommentTags.h"
#include "chem/clsProperty.h"
#include "records/DataSet.h"
#include "records/MixtureWords.h"
#include "records/PropertyLabels.h"
#include "records/ReactionText.h"
#include "records/SingleValue.h"
#include "records/UnitConversion.h"
#include "records/clsE.h"
#include "records/clsMV.h"
#include "reference/Conversions.h"
#include "reference/Numbers.h"
#include "reference/UnitText.h"
#include "reference/Vocabulary.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace vexora {

namespace {

/// A pure number shows no unit.
std::string WithUnit(const std::string& name, const std::string& unit) {
    return unit.empty() || unit == "1" ? name : name + ", " + unit;
}

/// How a quantity reads, and its system unit; a code that no table has reads as itself.
struct Label {
    std::string name, unit;
};

Label LabelOfProperty(const std::string& code, const PropertyRow* row) {
    return row ? Label{row->Property, row->Unit} : Label{code, {}};
}

Label VariableLabel(const std::string& code) {
    const VariableRow* const row = FindVariable(code);
    return row ? Label{row->IndVariable, row->Unit} : Label{code, {}};
}

Label LabelOf(const SingleValue& value, int n) {
    return n == 0 ? LabelOfProperty(value.PRPCODE, FindProperty(value.PRPCODE))
                  : VariableLabel(value.VARIABLE(n));
}

/// The set as one of a mixture, whose quantities are named by its components and phases; null for
/// another.
const clsMV* MixtureOf(const DataSet& set) {
    return dynamic_cast<const clsMV*>(&set);
}

/// The same as one of a reaction, whose fractions are named by its participants.
const clsE* ReactionOf(const DataSet& set) {
    return dynamic_cast<const clsE*>(&set);
}

Label ReactionLabel(const clsE& set, const std::string& code) {
    const std::string name = ReactionVariableName(set.Parent, code);
    if (name.empty()) return VariableLabel(code);
    return {name, VariableLabel(ParticipantCodeOf(code).code).unit};
}

/// Of the property (n = 0) or a variable of a set, as its system and its phases name it.
Label LabelOf(const DataSet& set, int n) {
    const std::string& code = n == 0 ? set.PRPCODE : set.VARIABLE(n);
    const clsMV* const mixture = MixtureOf(set);
    Label label =
        n == 0 ? LabelOfProperty(code, FindProperty(code, set.DataContext())) : VariableLabel(code);
    if (n > 0 && ReactionOf(set)) label = ReactionLabel(*ReactionOf(set), code);
    if (mixture && n == 0) label.name = PropertyLabels::Of(set).name;
    if (mixture) label.name = NameOnForms(*mixture, code, label.name, set.PhaseFor(n));
    return label;
}

std::shared_ptr<clsProperty> ItemOf(const std::string& code, const Label& label,
                                    const std::string& unit) {
    auto item = std::make_shared<clsProperty>();
    item->PropertyCode = code;
    item->ConversionCode = CodeInField(unit, label.unit);
    item->Relation = "A";
    item->Name = WithUnit(label.name, label.unit);
    return item;
}

clsProperty& Append(clsProperty& last, std::shared_ptr<clsProperty> item) {
    last.isLast = false;
    last.NextItem = std::move(item);
    return *last.NextItem;
}

/// The precision that a comment states for a quantity, in the unit of its values.
void TakePrecision(clsProperty& item, std::string_view comment, bool inSystemUnit,
                   double molarMass = 0) {
    item.PrecisionText = CommentTags(comment).Precision(item.PropertyCode);
    if (inSystemUnit) PrecisionInEnteredUnit(item, molarMass);
}

/// The item n of a set or a single value.
void Name(clsX& item, int n, const std::string& code, const Label& label, const std::string& unit,
          double factor = 0) {
    item.N = n;
    if (n > 0) item.Constr = false;
    item.PRPCODE = code;
    item.Name = label.name;
    item.Unit = label.unit.empty() ? std::string() : UnitText(label.unit, unit, factor);
}

/// The property (n = 0) or a variable of a set, with its unit in the paper or in the system.
void NameItem(const DataSet& set, clsX& item, int n, bool original) {
    if (n == 0)
        Name(item, n, set.PRPCODE, LabelOf(set, n), original ? set.PROPERTY_UNIT : "S",
             original ? set.Factor : 0);
    else
        Name(item, n, set.VARIABLE(n), LabelOf(set, n), original ? set.VAR_UNIT(n) : "S");
    // What is stated already names its phase as it was read.
    if (MixtureOf(set) && !item.IsKept()) item.PHASE = set.PhaseFor(n);
}

/// What is constant by the definition of a set of a mixture or reaction.
Label LabelOf(const DataSet& set, const HeldConstant& constant) {
    if (const clsE* const equilibrium = ReactionOf(set))
        return ReactionLabel(*equilibrium, constant.code);
    Label label = VariableLabel(constant.code);
    if (const clsMV* const mixture = MixtureOf(set))
        label.name = NameOnForms(*mixture, constant.code, label.name, constant.phase);
    return label;
}

/// The definition says what is constant, in which phase and unit. The others have no quantity.
void NameHeldConstants(DataSet& set) {
    const std::span<clsX> places =
        std::span(set.UX).subspan(static_cast<std::size_t>(set.nVar) + 1);
    for (clsX& item : places)
        item.Name.clear();
    for (const HeldConstant& constant : set.Constants()) {
        if (constant.item == 0) continue;
        clsX& item = set.UX.at(static_cast<std::size_t>(constant.item));
        // A critical curve has no value that could be uncertain.
        if (constant.value.empty() && !item.IsKept()) continue;
        Name(item, constant.item, constant.code, LabelOf(set, constant), constant.unit);
        item.Constr = true;
        if (!item.IsKept()) item.PHASE = constant.phase;
    }
}

/// What stays the same for all rows has its statements behind those of the variables.
void NameConstraints(DataSet& set) {
    if (MixtureOf(set) || ReactionOf(set)) return NameHeldConstants(set);
    const std::span<clsX> places =
        std::span(set.UX).subspan(static_cast<std::size_t>(set.nVar) + 1);
    const auto take = [&set](clsX& item, const std::string& code) {
        const auto row = FindVariable(code);
        item.PRPCODE = code;
        item.Name = row ? row->IndVariable : code;
        item.Unit = row ? row->Unit : std::string();
        if (item.PHASE.empty()) item.PHASE = set.PhaseFor(0);
    };
    for (clsX& item : places) {
        item.Constr = true;
        item.Name.clear();
        if (item.IsKept()) take(item, item.PRPCODE);
    }
    // What else the comment holds constant takes the places that are left.
    for (const char* code : {"T", "P", "WL", "WF"}) {
        const auto isOfCode = [code](const clsX& item) {
            return item.IsKept() && item.PRPCODE == code;
        };
        if (set.ConstantOf(code).empty() || std::ranges::any_of(places, isOfCode)) continue;
        const auto free =
            std::ranges::find_if(places, [](const clsX& item) { return item.Name.empty(); });
        if (free != places.end()) take(*free, code);
    }
}

} // namespace

void PrecisionInEnteredUnit(clsProperty& item, double molarMass) {
    if (item.Relation == "R") return;
    const UnitConversion unit{item.ConversionCode, item.Factor, molarMass};
    item.PrecisionText = unit.EnteredDifferenceText(item.PrecisionText);
}

std::string EnteredStatement(std::string_view text, std::string_view unitCode, bool inSystemUnit) {
    const std::string stated(text);
    return inSystemUnit ? UnitConversion{std::string(unitCode)}.EnteredDifferenceText(stated)
                        : stated;
}

clsX InEnteredUnit(const clsX& item, std::string_view unitCode) {
    clsX entered = item;
    entered.inSystemUnits = false;
    // The property is never brought to another unit than that of its values.
    if (item.N == 0 || !item.inSystemUnits) return entered;
    for (std::string clsX::*text : {&clsX::DSValue, &clsX::RValue, &clsX::UValue, &clsX::CDRms})
        entered.*text = EnteredStatement(item.*text, unitCode, true);
    return entered;
}

void TakeMasters(clsProperty& item, const clsX& statements) {
    const clsX stated = InEnteredUnit(statements, item.ConversionCode);
    item.masterds = stated.iDS ? stated.DSValue : "";
    item.DSLevel = stated.iDS ? Val(stated.DSLevel) : 0;
    item.masterrep = stated.iRep ? stated.RValue : "";
    item.masternrep = stated.iRep ? static_cast<int>(ToInteger(Val(stated.Repetitions))) : 0;
    item.replevel = stated.iRep && stated.RType > 0 ? stated.RType : 0;
    item.masterunc = stated.iUnc ? stated.UValue : "";
    item.unclevel = stated.iUnc ? Val(stated.ULevel) : 0;
}

std::shared_ptr<clsProperty> BuildChain(const DataSet& set) {
    return BuildChain(set, set.isOriginalUnit);
}

std::shared_ptr<clsProperty> BuildChain(const DataSet& set, bool original) {
    const std::string& comment = set.Header.DATACOMMENT;
    // Rows in system units need no factor: the code stays in the set as a memory of the paper.
    auto head = ItemOf(set.PRPCODE, LabelOf(set, 0), original ? set.PROPERTY_UNIT : "S");
    head->Factor = original ? set.Factor : 0;
    head->Relation = set.Relation();
    TakeMasters(*head, set.UX[0]);
    TakePrecision(*head, comment, set.commentInSystemUnits, set.MolarMass());
    clsProperty* last = head.get();
    for (int n = 1; n <= set.nVar; ++n) {
        last = &Append(*last,
                       ItemOf(set.VARIABLE(n), LabelOf(set, n), original ? set.VAR_UNIT(n) : "S"));
        TakeMasters(*last, set.UX[static_cast<std::size_t>(n)]);
        TakePrecision(*last, comment, set.commentInSystemUnits);
    }
    return head;
}

std::shared_ptr<clsProperty> BuildChain(const SingleValue& value) {
    const bool original = value.isOriginalUnit;
    const std::string& comment = value.Header.DATACOMMENT;
    auto head = ItemOf(value.PRPCODE, LabelOf(value, 0), original ? value.UnitCode() : "S");
    head->Factor = original ? value.Factor : 0;
    TakeMasters(*head, value.Statements(0));
    TakePrecision(*head, comment, value.commentInSystemUnits, value.MolarMass());
    clsProperty* last = head.get();
    for (int n = 1; n <= value.VariableCount(); ++n) {
        last = &Append(*last, ItemOf(value.VARIABLE(n), LabelOf(value, n),
                                     original ? value.VAR_UNIT(n) : "S"));
        TakeMasters(*last, value.Statements(n));
        TakePrecision(*last, comment, value.commentInSystemUnits);
    }
    return head;
}

void NameStatements(DataSet& set) {
    NameStatements(set, set.isOriginalUnit);
}

void NameStatements(DataSet& set, bool original) {
    for (int n = 0; n <= set.nVar; ++n)
        NameItem(set, set.UX[static_cast<std::size_t>(n)], n, original);
    NameConstraints(set);
}

std::vector<Quantity> NamedQuantities(const DataSet& set) {
    return NamedQuantities(set, set.isOriginalUnit);
}

std::vector<Quantity> NamedQuantities(const DataSet& set, bool original) {
    std::vector<Quantity> quantities = set.Quantities();
    for (Quantity& quantity : quantities) {
        clsX& item = quantity.statements;
        NameItem(set, item, quantity.item, original);
        quantity.name = item.Name;
        quantity.unit = item.Unit;
    }
    return quantities;
}

std::vector<clsX> NamedStatements(const SingleValue& value) {
    const bool original = value.isOriginalUnit;
    std::vector<clsX> items = {value.Statements(0)};
    Name(items[0], 0, value.PRPCODE, LabelOf(value, 0), original ? value.UnitCode() : "S",
         original ? value.Factor : 0);
    for (int n = 1; n <= value.VariableCount(); ++n) {
        items.push_back(value.Statements(n));
        Name(items.back(), n, value.VARIABLE(n), LabelOf(value, n),
             original ? value.VAR_UNIT(n) : "S");
    }
    return items;
}

} // namespace vexora
