#include "records/SingleValue.h"

#include "chem/CommentTags.h"
#include "records/LineWriter.h"
#include "records/SetLines.h"
#include "reference/Conversions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

#include <cmath>
#include <utility>

namespace vexora {

SingleValue::Stated& SingleValue::Rare() {
    if (!stated_) stated_ = std::make_unique<Stated>();
    return *stated_;
}

clsX SingleValue::Statements(int n) const {
    const auto place = static_cast<std::size_t>(n);
    clsX item;
    item.repOfValueLine = n == 0;
    if (stated_ && place < stated_->items.size()) item = stated_->items[place];
    item.N = n;
    if (n > 0) return item;
    // Held once, in the value line; the ^X line repeats what it can.
    item.KVOUValue = PRPUNCERTY;
    if (item.HasUnmarkedRep()) return item;
    item.RValue = PRECIS;
    item.Repetitions = DETERMNM;
    return item;
}

void SingleValue::Statements(int n, const clsX& item) {
    const auto place = static_cast<std::size_t>(n);
    if (n == 0) {
        PRPUNCERTY = item.KVOUValue;
        if (!item.HasUnmarkedRep()) {
            PRECIS = item.RValue;
            DETERMNM = item.Repetitions;
        }
    }
    // Nearly all values say no more than their line, and go without the pointer.
    if (item == Statements(n)) return;
    auto& items = Rare().items;
    while (items.size() <= place) {
        items.emplace_back();
        items.back().repOfValueLine = items.size() == 1;
    }
    items[place] = item;
}

void SingleValue::ChangeCodes(const std::function<std::string(const std::string&)>& changed) {
    CommentTags tags(Header.DATACOMMENT);
    tags.ChangePrecisionCodes(changed);
    Header.DATACOMMENT = tags.Stored();
    if (!stated_) return;
    for (auto* const list : {&stated_->items, &stated_->others})
        for (clsX& item : *list)
            item.ChangeCodes(changed);
}

bool SingleValue::StandsByFactor() const {
    return isOriginalUnit && (Factor > 0 || FallbackMolarMass > 0);
}

Placement SingleValue::AddX(const clsX& item) {
    clsX added = item;
    if (added.N < 0 && PRPCODE == added.PRPCODE) added.N = 0;
    for (int n = 1; n <= VariableCount() && added.N < 0; ++n)
        if (added.PRPCODE == VARIABLE(n)) added.N = n;
    if (added.N < 0 || added.N > VariableCount()) {
        Rare().others.push_back(added);
        return {};
    }
    if (StatesInUnitsOfLine()) added.inSystemUnits = false;
    if (added.N == 0) added.KVOUValue = PRPUNCERTY; // the line of an item does not carry it
    // A line that is silent on repeatability does not take away what the value line says.
    const clsX before = Statements(added.N);
    if (!added.iRep && added.RValue.empty() && added.Repetitions.empty()) {
        added.RValue = before.RValue;
        added.Repetitions = before.Repetitions;
        added.repOfValueLine = true;
    }
    const std::string inLine = PRECIS;
    Statements(added.N, added);
    // Per cent in the one is the figure in the other.
    const bool changesLine =
        !inLine.empty() && inLine != PRECIS.View() && inLine != PrecisionForRecord();
    return {added.N, changesLine || (before.IsKept() && !added.SaysTheSame(before))};
}

void SingleValue::TakePending(const clsA& pending) {
    Header.TakeHeader(pending);
    const std::string read = UnitCode();
    const std::string code = KeptField(read, UnitOfProperty(PRPCODE, DataContext()));
    if (code != read) UnitCode(code);
    if (pending.Factor <= 0 || !isOriginalUnit) return;
    if (code == "S" || code == "*") Factor = pending.Factor;
    // In front of a unit by mass stands the molar mass. Taken for a factor it would falsify every
    // value.
    if (HasMolarMass() && IsMassBased(code)) FallbackMolarMass = pending.Factor;
}

void SingleValue::LoadValue(WordReader& words) {
    PRPVALUE = NextField(words);
    PRPUNCERTY = NextField(words);
    PRECIS = NextField(words);
    DETERMNM = WithoutPlaceholder(Trim(words.Rest()));
    Factor = 0;
    // The writer has converted them; the unit in which they were typed is not in the file.
    commentInSystemUnits = true;
}

UnitConversion SingleValue::PropertyConversion() const {
    if (!isOriginalUnit) return {};
    std::string unit = UnitOfProperty(PRPCODE, DataContext());
    const std::string field = UnitCode();
    return {std::string(CodeInField(field, unit)), Factor, NeedsMolarMass() ? MolarMass() : 0,
            unit};
}

UnitConversion SingleValue::VariableConversion(int n) const {
    if (!isOriginalUnit) return {};
    std::string unit = UnitOfVariable(VARIABLE(n));
    const std::string field = VAR_UNIT(n);
    return {std::string(CodeInField(field, unit)), 0, 0, unit};
}

double SingleValue::SystemValue() const {
    return isOriginalUnit ? PropertyConversion().Absolute(Val(PRPVALUE)) : Val(PRPVALUE);
}

bool SingleValue::NeedsMolarMass() const {
    return isOriginalUnit && Factor <= 0 && IsMassBased(UnitCode());
}

void SingleValue::Print(LineWriter& out) const {
    if (HasMolarMass() && NeedsMolarMass()) out.Line("^M " + NumberText(MolarMass()));
    Header.PrintHeader(out, CommentForRecord());
    const bool factorStands = PrintFactor(out);
    const bool bySystemUnit = isOriginalUnit && Factor > 0;
    std::vector<std::string> fields =
        LineFields(bySystemUnit ? std::string("S") : UnitField(UnitCode()));
    fields.insert(fields.end(), {PRPVALUE, PRPUNCERTY, PrecisionForRecord()});
    out.Fields(fields, DETERMNM);
    // Closed at once, so that the next value does not inherit it.
    if (ClosesFactor(factorStands)) out.Line("^M 0");
    PrintStatements(out);
}

/// Those of the variables, then that of the property.
void SingleValue::PrintStatements(LineWriter& out) const {
    if (!stated_) return;
    for (int n = 1; n <= VariableCount(); ++n)
        Statements(n).SaveX(out, isOriginalUnit ? VAR_UNIT(n) : "");
    Statements(0).SaveX(out, "");
    SaveOthers(out, stated_->others);
}

/// Writes the factor of a unit without a letter; true when it did.
bool SingleValue::PrintFactor(LineWriter& out) const {
    if (!isOriginalUnit) return false;
    double factor = Factor;
    const std::string code = UnitCode();
    if (factor <= 0 && IsUnitLong(code))
        factor = FactorOfLongUnit(code, UnitOfProperty(PRPCODE, DataContext()), *this, Owner());
    if (factor <= 0) return false;
    vexora::PrintFactor(out, factor);
    return true;
}

/// Per cent of the value becomes the figure itself; a sign alone says nothing.
std::string SingleValue::PrecisionForRecord() const {
    const std::string_view precision = PRECIS;
    const std::size_t percent = precision.find('%');
    if (percent == precision.npos || StatesInUnitsOfLine()) return PRECIS;
    if (Trim(precision) == "%") return {};
    return NumberText(std::abs(Val(precision.substr(0, percent)) * Val(PRPVALUE)) / 100);
}

/// The comment with the precisions that a dialog wrote brought to system units, as differences.
std::string SingleValue::CommentForRecord() const {
    if (commentInSystemUnits || !isOriginalUnit || StatesInUnitsOfLine()) return Header.DATACOMMENT;
    return CommentInSystemUnits(Header.DATACOMMENT,
                                [this](const std::string& code, const std::string& typed) {
                                    return SystemPrecision(code, typed);
                                });
}

std::string SingleValue::SystemPrecision(const std::string& code, const std::string& typed) const {
    if (PRPCODE == code) return PropertyConversion().DifferenceText(typed);
    for (int n = 1; n <= VariableCount(); ++n)
        if (code == VARIABLE(n)) return VariableConversion(n).DifferenceText(typed);
    return typed;
}

} // namespace vexora
