#include "records/DataSet.h"

#include "chem/CommentTags.h"
#include "records/LineWriter.h"
#include "records/SetLines.h"
#include "reference/Conversions.h"
#include "reference/Numbers.h"
#include "reference/Vocabulary.h"

#include <algorithm>

namespace vexora {

const StatementsOfSet::Items& StatementsOfSet::Nothing() {
    static const Items items = [] {
        Items numbered;
        for (std::size_t n = 0; n < Count; ++n)
            numbered[n].N = static_cast<int>(n);
        return numbered;
    }();
    return items;
}

std::string DataSet::VariableWords(int n) const {
    return VariableName(VARIABLE(n), DataContext());
}

std::string DataSet::ConstantOf(std::string_view code) const {
    if (HasVariable(code)) return {};
    const std::string value = CommentTags(Header.DATACOMMENT).Constant(code);
    return IsNumeric(value) ? value : std::string();
}

std::vector<SetConstant> DataSet::SystemConstants() const {
    std::vector<SetConstant> constants;
    for (const HeldConstant& constant : Constants())
        if (IsNumeric(constant.value))
            constants.push_back(
                {constant.code, constant.phase,
                 ConversionOf(constant.code, constant.unit).Absolute(Val(constant.value))});
    for (const char* code : {"T", "P"}) {
        const std::string value = ConstantOf(code);
        if (!value.empty() &&
            std::ranges::find(constants, code, &SetConstant::code) == constants.end())
            constants.push_back({code, {}, Val(value)});
    }
    return constants;
}

bool DataSet::HasVariable(std::string_view code) const {
    for (int n = 1; n <= nVar; ++n)
        if (VARIABLE(n) == code) return true;
    return false;
}

bool DataSet::HasBothKinds() const {
    return isOriginalUnit && std::any_of(recData.begin(), recData.end(),
                                         [](const clsData& row) { return !row.inOriginalUnits; });
}

std::vector<Quantity> DataSet::Quantities() const {
    std::vector<Quantity> quantities;
    const auto add = [&](int n) {
        const clsX& item = UX[static_cast<std::size_t>(n)];
        quantities.push_back({n, n == 0, item.Name, item.Unit, PhaseFor(n), item});
    };
    for (int n = 1; n <= nVar; ++n)
        add(n);
    add(0);
    return quantities;
}

bool DataSet::StandsByFactor() const {
    return isOriginalUnit && (Factor > 0 || FallbackMolarMass > 0);
}

Placement DataSet::AddX(const clsX& item) {
    clsX added = item;
    // A line may lack its number; then the code tells what it is about.
    if (added.N < 0 && added.PRPCODE == PRPCODE) added.N = 0;
    for (int n = 1; n <= nVar && added.N < 0; ++n)
        if (added.PRPCODE == VARIABLE(n)) added.N = n;
    if (added.N < 0 || added.N >= Items) {
        OtherX.push_back(added);
        return {};
    }
    // The places behind the variables are for what is the same in all rows.
    added.Constr = added.N > nVar;
    if (StatesInUnitsOfLine()) added.inSystemUnits = false;
    clsX& present = UX[static_cast<std::size_t>(added.N)];
    const bool replaces = present.IsKept() && !added.SaysTheSame(present);
    present = added;
    return {added.N, replaces};
}

/// The first row decides for a set that had none; system values later do not turn it back.
void DataSet::TakeUnitsOf(const clsData& added) {
    isOriginalUnit = added.inOriginalUnits || (isOriginalUnit && recData.Count() > 1);
}

clsData& DataSet::AddRow(clsData row) {
    clsData& added = recData.Add(std::move(row));
    TakeUnitsOf(added);
    return added;
}

OpenRecord::Taken DataSet::LoadRow(std::string_view line) {
    // Where it is to stay: of a million rows none is moved.
    clsData& row = recData.Add();
    WordReader words(line);
    if (!row.Load(words, nVar)) {
        recData.DropLast();
        return Taken::Incomplete;
    }
    TakeUnitsOf(row);
    return words.AtEnd() ? Taken::Yes : Taken::InPart;
}

OpenRecord::Taken DataSet::LoadRowStatements(std::string_view line) {
    clsData* const row = recData.Last();
    if (!row) return Taken::NoRows;
    WordReader words(line);
    row->LoadExtras(words);
    return words.AtEnd() ? Taken::Yes : Taken::InPart;
}

void DataSet::TakePending(const clsA& pending) {
    Header.TakeHeader(pending);
    PROPERTY_UNIT = KeptField(PROPERTY_UNIT, UnitOfProperty(PRPCODE, DataContext()));
    if (pending.Factor <= 0) return;
    if (PROPERTY_UNIT == "S" || PROPERTY_UNIT == "*") Factor = pending.Factor;
    // In front of a unit by mass stands the molar mass. Taken for a factor it would falsify every
    // value.
    if (IsMassBased(PROPERTY_UNIT)) FallbackMolarMass = pending.Factor;
}

double DataSet::MolarMass() const {
    // One for all rows, so any row will do to ask with.
    return MolarMassFollowsRows() ? 0 : MolarMass(clsData());
}

bool DataSet::NeedsMolarMass() const {
    return isOriginalUnit && Factor <= 0 && IsMassBased(PROPERTY_UNIT);
}

void DataSet::PrintEnd(LineWriter& out) const {
    // With or without a factor: what follows must not take over one.
    out.Line("^M 0");
}

/// The unit of the property stands in the line, or as a factor in front.
bool DataSet::NamesUnit() const {
    return !RatioHasNoUnit() || Relation() != "R";
}

std::string DataSet::PropertyUnitField() const {
    if (!NamesUnit()) return "S";
    return isOriginalUnit && Factor > 0 ? std::string("S") : UnitField(PROPERTY_UNIT);
}

void DataSet::Print(LineWriter& out) const {
    // A reader that knows no formula of the compound can still convert what stands by mass.
    if (NeedsMolarMass() && !MolarMassFollowsRows()) out.Line("^M " + NumberText(MolarMass()));
    PrintHead(out);
    PrintStatements(out);
    PrintRows(out);
    PrintEnd(out);
}

void DataSet::PrintHead(LineWriter& out) const {
    Header.PrintHeader(out, CommentForRecord());
    if (isOriginalUnit && NamesUnit()) {
        double factor = Factor;
        if (factor <= 0 && IsUnitLong(PROPERTY_UNIT))
            factor = FactorOfLongUnit(PROPERTY_UNIT, UnitOfProperty(PRPCODE, DataContext()), *this,
                                      Owner());
        if (factor > 0) PrintFactor(out, factor);
    }
    out.Line(DefinitionLine());
}

/// The unit out of which the statements about item n are brought for the record, "" for none.
std::string DataSet::UnitOfStatements(int n) const {
    if (n > nVar) {
        // The line has no field for the unit of a constant.
        for (const HeldConstant& constant : Constants())
            if (constant.item == n) return constant.unit;
        return {};
    }
    if (!isOriginalUnit) return {};
    const std::string& code = VAR_UNIT(n);
    return StatesInUnitsOfLine() && !IsUnitLong(code) ? std::string() : code;
}

void DataSet::PrintStatements(LineWriter& out) const {
    for (int n = 1; n < Items; ++n) {
        UX[static_cast<std::size_t>(n)].SaveX(out, UnitOfStatements(n));
    }
    // Those of the property stand in the unit of its values, as the line names it.
    UX[0].SaveX(out, "");
    SaveOthers(out, OtherX);
}

void DataSet::PrintRows(LineWriter& out) const {
    const bool hasTieWord = DataContext() == "Tern";
    ForEachWrittenRow([&](const clsData& row) { row.PrintData(out, hasTieWord); });
}

void DataSet::ForEachWrittenRow(const std::function<void(const clsData&)>& visit) const {
    // ^M is the property's alone, so a variable whose unit has no letter leaves it in each row. The
    // row goes on being one in original units, for the rest of it is.
    std::array<UnitConversion, MostVariables + 1> units;
    bool converts = false;
    for (int n = 1; n <= nVar; ++n) {
        const std::string& code = VAR_UNIT(n);
        if (!isOriginalUnit || !IsUnitLong(code)) continue;
        units[static_cast<std::size_t>(n)].factor =
            FactorOfLongUnit(code, UnitOfVariable(VARIABLE(n)), *this, Owner());
        converts = true;
    }
    for (const clsData& row : recData) {
        if (!converts || !row.inOriginalUnits) {
            visit(row);
            continue;
        }
        clsData converted = row;
        for (int n = 1; n <= nVar; ++n)
            converted.Convert(n, units[static_cast<std::size_t>(n)]);
        visit(converted);
    }
}

/// The comment with the precisions that a dialog wrote brought to the units of the record, as
/// differences.
std::string DataSet::CommentForRecord() const {
    std::string comment = CommentOfLine();
    // In system units a constant of the definition may still stand in a unit of its own.
    if (commentInSystemUnits || (!isOriginalUnit && !StatesInUnitsOfLine())) return comment;
    return CommentInSystemUnits(comment, [this](const std::string& code, const std::string& typed) {
        return PrecisionForRecord(code, typed);
    });
}

std::string DataSet::PrecisionForRecord(const std::string& code, const std::string& typed) const {
    if (!StatesInUnitsOfLine()) return SystemPrecision(code, typed);
    // The property has its unit in the line, or a factor in front of it.
    if (code == PRPCODE) return typed;
    for (int n = 1; n <= nVar; ++n)
        if (code == VARIABLE(n) && !(isOriginalUnit && IsUnitLong(VAR_UNIT(n)))) return typed;
    return SystemPrecision(code, typed);
}

} // namespace vexora
