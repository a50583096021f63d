#include "tables/ThermalFunctions.h"

#include <algorithm>
#include <map>

#include "chem/clsProperty.h"
#include "records/PropertyChain.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "records/clsTwo.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "tables/ColumnValues.h"
#include "tables/ProcessedHeader.h"
#include "tables/ProcessedRows.h"

namespace vexora {

namespace {

constexpr std::size_t MostRows = 16384;
constexpr const char* DataErrors = "Data errors detected";

bool IsThermalFunction(std::string_view code) {
    return IsOneOf(code, {"CP", "CV", "CS", "H", "H/T", "S", "G", "G/T", "UA"});
}

/// A quantity without a zero of its own, which is told as a difference from a reference state.
bool IsDifference(std::string_view code) {
    return IsOneOf(code, {"H", "G", "UA"});
}

const ProcessColumn& HeadOf(const ProcessTable& table, int column) {
    return table.columns[static_cast<std::size_t>(column)];
}

std::string FaultOf(const ProcessTable& table, int column, int TColumn) {
    const ProcessColumn& head = HeadOf(table, column);
    if (!head.IsDescribed() || head.IsUncertainty()) return {};
    if (head.quantity == "T" && TColumn >= 0 && column != TColumn)
        return "Another quantity for " + ColumnText(column) + ", which repeats " +
               ColumnText(TColumn);
    if (head.quantity != "T" && !IsThermalFunction(head.quantity))
        return "Another quantity for " + ColumnText(column);
    return HeadFault(table, column);
}

/// A property of the compound at temperatures, by the head of its column and without rows.
std::shared_ptr<clsTwo> DefinitionOf(const ProcessTable& table, const PlannedFunction& planned,
                                     int TColumn, const ProcessSystem& system) {
    const ProcessColumn& property = HeadOf(table, planned.property);
    const ProcessColumn& temperature = HeadOf(table, TColumn);
    auto set = std::make_shared<clsTwo>();
    set->Parent = system.sample.get();
    if (system.sample) set->SMPNM = system.sample->SMPNM;
    set->PRPCODE = planned.PRPCODE;
    set->PROPERTY_UNIT = property.unit;
    if (property.unit == ProcessColumn::ByFactor)
        set->Factor = Val(NormalizeNumber(property.factor));
    set->PROPERTY_FUNCT = IsDifference(planned.PRPCODE) ? "DFR" : "DIR";
    set->DATATYPE = "S";
    set->PHASE1 = system.phase;
    const bool isSaturated = planned.PRPCODE == "CS";
    set->PHASE2 = isSaturated ? "G" : "&";
    set->CONSTRAINT = isSaturated ? "PB" : planned.PRPCODE == "CV" ? "FV" : "FP";
    set->VARIABLE1 = "T";
    // A variable has no factor beside its code: the number is the code.
    set->VAR1_UNIT = temperature.unit == ProcessColumn::ByFactor
                         ? NormalizeNumber(temperature.factor)
                         : temperature.unit;
    return set;
}

/// The state that a difference goes by: that of its only row of 0, else that of a new set.
void SetReference(clsTwo& set) {
    if (set.PROPERTY_FUNCT != "DFR") return;
    set.REF_TEMP = set.REF_PRESSURE = "0";
    set.REF_PHASE = "C";
    const auto isZero = [](const clsData& row) { return Val(row.PRPVALUE()) == 0; };
    if (std::ranges::count_if(set.recData, isZero) != 1) return;
    const auto zero = std::ranges::find_if(set.recData, isZero);
    set.REF_TEMP = set.VariableConversion(1).Converted(zero->VARIABLE(1)).text;
    set.REF_PHASE = set.PHASE1;
}

class ThermalChecker {
public:
    ThermalChecker(const ProcessTable& table, const ThermalAnalysis& analysis,
                   const ProcessSystem& system)
        : table_(table) {
        if (analysis.sets.empty()) return;
        const double molarMass = system.sample ? system.sample->MolarMass() : 0;
        const auto set = DefinitionOf(table, analysis.sets.front(), analysis.TColumn, system);
        Add(analysis.TColumn, "T", BuildChain(*set)->NextItem->Name, 0);
        columns_.front().rules.isIndependent = true;
        for (const PlannedFunction& planned : analysis.sets) {
            const auto own = DefinitionOf(table, planned, analysis.TColumn, system);
            Add(planned.property, planned.PRPCODE, BuildChain(*own)->Name, molarMass);
            // Without a molar mass it would convert to 0 and be told of for the wrong reason.
            columns_.back().rules.isAbsolute =
                !IsDifference(planned.PRPCODE) && own->PropertyConversion().IsPossible();
            columns_.back().uncertainty = planned.uncertainty;
        }
    }

    std::vector<Finding> Check() {
        for (int row = 0; row < static_cast<int>(table_.rows.size()); ++row)
            if (!columns_.empty() && table_.IsUsed(row)) CheckRow(row);
        return std::move(findings_);
    }

private:
    struct Column {
        CellRules rules;
        ColumnValues values;
        int uncertainty = -1;
    };

    void Add(int column, const std::string& code, const std::string& name, double molarMass) {
        columns_.push_back(
            {{column, code, name, false, true}, ColumnValues(table_, column, molarMass), -1});
    }
    void CheckRow(int row) {
        bool hasProperty = false;
        for (const Column& one : columns_) {
            const bool hasValue = one.values.Has(row);
            if (auto found = CheckCell(table_, row, one.rules, one.values))
                findings_.push_back(*std::move(found));
            if (!one.rules.isIndependent) hasProperty = hasProperty || hasValue;
            if (one.uncertainty < 0) continue;
            if (auto found = CheckUncertainty(table_, row, one.uncertainty, hasValue))
                findings_.push_back(*std::move(found));
        }
        const Column& temperature = columns_.front();
        if (hasProperty && !temperature.values.Has(row))
            findings_.push_back(
                {row, temperature.rules.column, "Invalid value of independent variable"});
        if (!hasProperty && temperature.values.Has(row))
            findings_.push_back({row, temperature.rules.column, std::string(RowLeftOut), false});
    }

    const ProcessTable& table_;
    std::vector<Column> columns_; // the temperature in front
    std::vector<Finding> findings_;
};

/// The first thing that is missing counts.
void Refuse(ThermalAnalysis& analysis, const std::string& hint) {
    if (hint.empty() || !analysis.message.empty()) return;
    analysis.message = DataErrors;
    analysis.hint = hint;
}

/// A value without its temperature is no reason to refuse the table: its cell is told of.
void TakeRows(const ProcessTable& table, ThermalAnalysis& analysis) {
    bool hasValue = false;
    std::size_t rows = 0;
    for (int row = 0; row < static_cast<int>(table.rows.size()); ++row) {
        if (!table.IsUsed(row)) continue;
        ++rows;
        for (PlannedFunction& planned : analysis.sets) {
            if (table.Cell(row, planned.property).empty()) continue;
            hasValue = true;
            if (!table.Cell(row, analysis.TColumn).empty()) planned.rows.push_back(row);
        }
    }
    if (rows > MostRows) Refuse(analysis, "At most " + std::to_string(MostRows) + " rows");
    if (!hasValue) Refuse(analysis, "A row with a temperature and a property");
}

} // namespace

ThermalAnalysis AnalyseTDF(const ProcessTable& table) {
    ThermalAnalysis analysis;
    std::string fault;
    const std::vector<int> uncertainty = UncertaintyColumns(table, fault);
    const auto uncertaintyOf = [&](int column) {
        return column < 0 ? -1 : uncertainty[static_cast<std::size_t>(column)];
    };
    analysis.TColumn = table.ColumnOf("T");
    for (int column = 0; column < static_cast<int>(table.columns.size()); ++column) {
        Refuse(analysis, FaultOf(table, column, analysis.TColumn));
        const ProcessColumn& head = HeadOf(table, column);
        if (!IsThermalFunction(head.quantity)) continue;
        analysis.PropColumn = column;
        analysis.sets.push_back({column, uncertaintyOf(column), head.quantity, {}});
    }
    Refuse(analysis, fault);
    if (analysis.TColumn < 0) Refuse(analysis, "A column of temperatures");
    if (analysis.PropColumn < 0) Refuse(analysis, "A column of a property");
    if (uncertaintyOf(analysis.TColumn) >= 0)
        Refuse(analysis, "No uncertainties of temperatures, which have no place in the sets");
    TakeRows(table, analysis);
    analysis.Ok = analysis.message.empty();
    return analysis;
}

std::vector<Finding> CheckThermalTable(const ProcessTable& table, const ThermalAnalysis& analysis,
                                       const ProcessSystem& system) {
    return ThermalChecker(table, analysis, system).Check();
}

std::vector<std::shared_ptr<clsTwo>> ProcessTwo(const ProcessTable& table,
                                                const ThermalAnalysis& analysis,
                                                const ProcessSystem& system) {
    std::vector<std::shared_ptr<clsTwo>> sets;
    std::map<std::string, int> numbers; // the next one, by property
    const clsL* const compound = system.sample->Parent;
    for (const PlannedFunction& planned : analysis.sets) {
        if (planned.rows.empty()) continue;
        auto set = DefinitionOf(table, planned, analysis.TColumn, system);
        const auto [number, isFirst] =
            numbers.try_emplace(set->PRPCODE, system.sample->NextTwoNumber(set->PRPCODE, 1));
        set->PRPSETNO = std::to_string(number->second++);
        set->Header = ProcessedHeader(compound ? compound->Parent : nullptr);
        const RowColumns columns{
            {planned.property, analysis.TColumn, -1, -1}, 1, planned.uncertainty};
        const ProcessedRows rows(table, *set, columns);
        for (const int row : planned.rows)
            set->AddRow(rows.NewRow(row, {}));
        StateUncertainties(*set);
        SetReference(*set);
        NameStatements(*set);
        sets.push_back(std::move(set));
    }
    return sets;
}

} // namespace vexora
