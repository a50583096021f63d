#include "reference/CompoundTable.h"

#include "reference/Numbers.h"
#include "reference/RefdbBuild.h"
#include "reference/Text.h"

namespace vexora {

namespace {

constexpr std::size_t LongestName = 255;

std::string RowKey(std::int64_t rn, const std::string& lowerName) {
    return std::to_string(rn) + " " + lowerName;
}

void EnsureMark(Database& database) {
    const Recordset columns =
        database.Query("select name from pragma_table_info('ALLNAME') where name='NEW'");
    if (columns.IsEnd())
        database.Execute("alter table ALLNAME add column NEW integer not null default 0");
}

} // namespace

std::optional<std::int64_t> ReadRegistryNumber(std::string_view text) {
    const std::vector<std::string> parts = Split(Trim(text), '-');
    // Printed with hyphens the last two groups have two and one digits.
    const bool hyphens = parts.size() == 3 && parts[1].size() == 2 && parts[2].size() == 1;
    if (parts.size() != 1 && !hyphens) return std::nullopt;
    const auto rn = ParseInteger(hyphens ? parts[0] + parts[1] + parts[2] : parts[0]);
    if (!rn || !IsRegistryNumber(*rn) || *rn == EmptySlotNumber) return std::nullopt;
    return rn;
}

CompoundTable::CompoundTable(Database& database) {
    EnsureMark(database);
    for (Recordset rows = database.Query("select RN, NAME, FORMULA from ALLNAME order by rowid");
         !rows.IsEnd(); rows.MoveNext()) {
        const std::int64_t rn = rows.Integer("RN");
        const std::string name = LowerAscii(rows.Text("NAME"));
        formulas_.emplace(rn, rows.Text("FORMULA"));
        numbers_.emplace(name, rn);
        rows_.insert(RowKey(rn, name));
    }
    insert_.emplace(database, "ALLNAME", std::vector<std::string>{"RN", "NAME", "FORMULA", "NEW"});
}

std::string CompoundTable::Fault(const CompoundRow& row) const {
    if (row.NAME.empty()) return "the name is missing";
    if (row.FORMULA.empty()) return "the formula is missing";
    if (row.NAME.find_first_of("\r\n\t") != row.NAME.npos) return "the name has a line break";
    if (CodePointCount(row.NAME) > LongestName)
        return "the name has more than " + std::to_string(LongestName) + " characters";
    const std::string name = LowerAscii(row.NAME);
    if (rows_.contains(RowKey(row.RN, name))) return "";
    const std::string formula = FormulaOf(row.RN);
    if (!formula.empty() && formula != row.FORMULA)
        return std::to_string(row.RN) + " has the formula " + formula + ", not " + row.FORMULA;
    const auto known = numbers_.find(name);
    if (known != numbers_.end() && known->second != row.RN)
        return "\"" + row.NAME + "\" is the name of " + std::to_string(known->second) + " already";
    return "";
}

std::string CompoundTable::FormulaOf(std::int64_t rn) const {
    const auto known = formulas_.find(rn);
    return known == formulas_.end() ? std::string() : known->second;
}

bool CompoundTable::Add(const CompoundRow& row) {
    const std::string name = LowerAscii(row.NAME);
    if (!rows_.insert(RowKey(row.RN, name)).second) return false;
    formulas_.emplace(row.RN, row.FORMULA);
    numbers_.emplace(name, row.RN);
    insert_->Add({row.RN, row.NAME, row.FORMULA, true});
    return true;
}

CompoundAdded AddCompound(Database& database, std::int64_t rn, const std::string& formula,
                          const std::vector<std::string>& names) {
    if (names.empty()) return {.fault = "the name is missing", .name = {}};
    CompoundAdded result;
    Transaction transaction(database);
    CompoundTable table(database);
    for (const std::string& name : names) {
        const CompoundRow row{rn, name, formula};
        if (const std::string fault = table.Fault(row); !fault.empty())
            return {.fault = fault, .name = name};
        ++(table.Add(row) ? result.added : result.present);
    }
    transaction.Commit();
    return result;
}

std::vector<CompoundRow> AddedCompounds(const Database& database) {
    std::vector<CompoundRow> added;
    for (Recordset rows = database.Query("select * from ALLNAME order by rowid"); !rows.IsEnd();
         rows.MoveNext())
        if (rows.Flag("NEW"))
            added.push_back({rows.Integer("RN"), rows.Text("NAME"), rows.Text("FORMULA")});
    return added;
}

std::string AddedCompoundsText(const Database& database) {
    std::string text = "RN\tNAME\tFORMULA\n";
    for (const CompoundRow& row : AddedCompounds(database))
        text += std::to_string(row.RN) + '\t' + row.NAME + '\t' + row.FORMULA + '\n';
    return text;
}

bool IsAddedHere(const Database& database, const CompoundRow& row) {
    const Recordset found =
        database.Query("select * from ALLNAME where RN=? and NAME=?", {row.RN, row.NAME});
    return !found.IsEnd() && found.Flag("NEW");
}

} // namespace vexora
