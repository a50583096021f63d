#include "reference/Database.h"
#include "reference/Numbers.h"
#include "reference/RefdbBuild.h"
#include "reference/Text.h"

#include <optional>
#include <unordered_set>

namespace vexora {

namespace {

/// A name counts once for a compound, whatever its case; compounds may share a trivial name.
std::string RowKey(std::int64_t rn, std::string_view name) {
    return std::to_string(rn) + " " + LowerAscii(name);
}

std::unordered_set<std::string> PresentRows(const Database& database) {
    std::unordered_set<std::string> keys;
    for (Recordset rows = database.Query("select RN, NAME from ALLNAME order by rowid");
         !rows.IsEnd(); rows.MoveNext())
        keys.insert(RowKey(rows.Integer("RN"), rows.Text("NAME")));
    return keys;
}

/// "7732185" or "7732-18-5"; nothing when it is neither or its check digit is wrong.
std::optional<std::int64_t> ReadRegistryNumber(std::string_view cell) {
    const std::vector<std::string> parts = Split(Trim(cell), '-');
    // Printed with hyphens the last two groups have two and one digits.
    const bool hyphens = parts.size() == 3 && parts[1].size() == 2 && parts[2].size() == 1;
    if (parts.size() != 1 && !hyphens) return std::nullopt;
    const auto rn = ParseInteger(hyphens ? parts[0] + parts[1] + parts[2] : parts[0]);
    if (!rn || !IsRegistryNumber(*rn)) return std::nullopt;
    return rn;
}

struct CompoundCells {
    std::int64_t rn = 0;
    std::string name;
    std::string formula;
};

/// Fills the compound from a row; the answer is what is wrong with it, "" if nothing.
std::string ReadCompound(const std::vector<std::string>& cells, const ImportOptions& options,
                         CompoundCells& compound) {
    if (cells.size() < 3) return "three cells expected: RN, name, formula";
    const auto number = ReadRegistryNumber(cells[0]);
    if (!number) return "\"" + cells[0] + "\" is no valid registry number";
    const std::string formula(Trim(cells[2]));
    if (Trim(cells[1]).empty()) return "the name is missing";
    if (formula.empty()) return "the formula is missing";
    compound = {*number, std::string(Trim(cells[1])), formula};
    if (options.hydrateReading) {
        // The reading of the point is another compound, and there is nobody to be asked.
        const std::string meant = options.hydrateReading(formula);
        if (!meant.empty())
            return "\"" + formula + "\" may be a hydrate, " + meant + "; write its dot as *";
    }
    if (options.canonicalFormula) compound.formula = options.canonicalFormula(formula);
    return compound.formula.empty() ? "\"" + formula + "\" is no formula" : "";
}

} // namespace

bool IsRegistryNumber(std::int64_t rn) {
    // In three groups it has five digits at least; the lowest in use is 50-00-0, formaldehyde.
    if (rn < 10000 || rn > 9999999999) return false;
    // 7732-18-5 (water): 8*1 + 1*2 + 2*3 + 3*4 + 7*5 + 7*6 = 105, check digit 5.
    const std::int64_t check = rn % 10;
    std::int64_t sum = 0;
    int place = 1;
    for (std::int64_t rest = rn / 10; rest > 0; rest /= 10)
        sum += rest % 10 * place++;
    return sum % 10 == check;
}

ImportResult ImportCompounds(const std::string& path, const std::string& databasePath,
                             const ImportOptions& options) {
    ImportResult result;
    TableReader reader(path);
    result.readable = reader.IsOpen();
    if (!result.readable) return result;
    Database database;
    database.Open(databasePath, false);
    Transaction transaction(database);
    // In memory: to ask the table about each row would take longer than the load itself.
    std::unordered_set<std::string> keys = PresentRows(database);
    BulkInsert insert(database, "ALLNAME", {"RN", "NAME", "FORMULA"});
    constexpr std::size_t progressStep = 10000;
    for (std::size_t count = 1; const auto cells = reader.NextRow(); ++count) {
        if (count == 1 && EqualNoCase(Trim(cells->front()), "RN")) continue;
        if (options.progress && count % progressStep == 0) options.progress(count);
        CompoundCells compound;
        const std::string fault = ReadCompound(*cells, options, compound);
        if (!fault.empty()) {
            result.skipped.push_back({path, reader.Line(), fault});
        } else if (keys.insert(RowKey(compound.rn, compound.name)).second) {
            insert.Add({compound.rn, compound.name, compound.formula});
            ++result.added;
        } else {
            ++result.present;
        }
    }
    transaction.Commit();
    return result;
}

} // namespace vexora
