#include "records/PropertyChain.h"

#include "chem/CommentTags.h"
#include "chem/clsProperty.h"
#include "records/DataSet.h"
#include "records/SingleValue.h"
#include "records/UnitConversion.h"
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

std::shared_ptr<clsProperty> HeadOf(const std::string& code, const std::string& unit,
                                    double factor) {
    auto head = std::make_shared<clsProperty>();
    head->PropertyCode = code;
    const auto row = FindProperty(code);
    head->ConversionCode = CodeInField(unit, row ? row->Unit : "");
    head->Factor = factor;
    head->Relation = "A";
    // A code that no table has reads as itself.
    head->Name = row ? WithUnit(row->Property, row->Unit) : code;
    return head;
}

std::shared_ptr<clsProperty> VariableItem(const std::string& code, const std::string& unit) {
    auto item = std::make_shared<clsProperty>();
    item->PropertyCode = code;
    const auto row = FindVariable(code);
    item->ConversionCode = CodeInField(unit, row ? row->Unit : "");
    item->Relation = "A";
    item->Name = row ? WithUnit(row->IndVariable, row->Unit) : code;
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

void NameProperty(clsX& item, const std::string& code, const std::string& unit, double factor) {
    item.N = 0;
    item.PRPCODE = code;
    const auto row = FindProperty(code);
    item.Name = row ? row->Property : code;
    item.Unit = row ? UnitText(row->Unit, unit, factor) : std::string();
}

void NameVariable(clsX& item, int n, const std::string& code, const std::string& unit) {
    item.N = n;
    item.Constr = false;
    item.PRPCODE = code;
    const auto row = FindVariable(code);
    item.Name = row ? row->IndVariable : code;
    item.Unit = row ? UnitText(row->Unit, unit, 0) : std::string();
}

/// What stays the same for all rows has its statements behind those of the variables.
void NameConstraints(DataSet& set) {
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
    auto head = HeadOf(set.PRPCODE, original ? set.PROPERTY_UNIT : "S", original ? set.Factor : 0);
    head->Relation = set.Relation();
    TakeMasters(*head, set.UX[0]);
    TakePrecision(*head, comment, set.commentInSystemUnits, set.MolarMass());
    clsProperty* last = head.get();
    for (int n = 1; n <= set.nVar; ++n) {
        last = &Append(*last, VariableItem(set.VARIABLE(n), original ? set.VAR_UNIT(n) : "S"));
        TakeMasters(*last, set.UX[static_cast<std::size_t>(n)]);
        TakePrecision(*last, comment, set.commentInSystemUnits);
    }
    return head;
}

std::shared_ptr<clsProperty> BuildChain(const SingleValue& value) {
    const bool original = value.isOriginalUnit;
    const std::string& comment = value.Header.DATACOMMENT;
    auto head =
        HeadOf(value.PRPCODE, original ? value.PROPERTY_UNIT : "S", original ? value.Factor : 0);
    TakeMasters(*head, value.Statements(0));
    TakePrecision(*head, comment, value.commentInSystemUnits, value.MolarMass());
    clsProperty* last = head.get();
    for (int n = 1; n <= value.VariableCount(); ++n) {
        last = &Append(*last, VariableItem(value.VARIABLE(n), original ? value.VAR_UNIT(n) : "S"));
        TakeMasters(*last, value.Statements(n));
        TakePrecision(*last, comment, value.commentInSystemUnits);
    }
    return head;
}

void NameStatements(DataSet& set) {
    NameStatements(set, set.isOriginalUnit);
}

void NameStatements(DataSet& set, bool original) {
    NameProperty(set.UX[0], set.PRPCODE, original ? set.PROPERTY_UNIT : "S",
                 original ? set.Factor : 0);
    for (int n = 1; n <= set.nVar; ++n) {
        NameVariable(set.UX[static_cast<std::size_t>(n)], n, set.VARIABLE(n),
                     original ? set.VAR_UNIT(n) : "S");
    }
    NameConstraints(set);
}

std::vector<Quantity> NamedQuantities(const DataSet& set) {
    std::vector<Quantity> quantities = set.Quantities();
    const bool original = set.isOriginalUnit;
    for (Quantity& quantity : quantities) {
        clsX& item = quantity.statements;
        if (quantity.isProperty)
            NameProperty(item, set.PRPCODE, original ? set.PROPERTY_UNIT : "S",
                         original ? set.Factor : 0);
        else
            NameVariable(item, quantity.item, set.VARIABLE(quantity.item),
                         original ? set.VAR_UNIT(quantity.item) : "S");
        quantity.name = item.Name;
        quantity.unit = item.Unit;
    }
    return quantities;
}

std::vector<clsX> NamedStatements(const SingleValue& value) {
    const bool original = value.isOriginalUnit;
    std::vector<clsX> items = {value.Statements(0)};
    NameProperty(items[0], value.PRPCODE, original ? value.PROPERTY_UNIT : "S",
                 original ? value.Factor : 0);
    for (int n = 1; n <= value.VariableCount(); ++n) {
        items.push_back(value.Statements(n));
        NameVariable(items.back(), n, value.VARIABLE(n), original ? value.VAR_UNIT(n) : "S");
    }
    return items;
}

} // namespace vexora
