#include "reference/CompoundTable.h"
#include "reference/Database.h"
#include "reference/RefdbBuild.h"
#include "reference/Text.h"

namespace vexora {

namespace {

/// Fills the compound from a row; the answer is what is wrong with it, "" if nothing.
std::string ReadCompound(const std::vector<std::string>& cells, const ImportOptions& options,
                         CompoundRow& compound) {
    if (cells.size() < 3) return "three cells expected: RN, name, formula";
    const auto number = ReadRegistryNumber(cells[0]);
    if (!number) return "\"" + cells[0] + "\" is no valid registry number";
    const std::string formula(Trim(cells[2]));
    compound = {*number, std::string(Trim(cells[1])), formula};
    if (compound.NAME.empty() || formula.empty()) return "";
    if (options.hydrateReading) {
        // The reading of the point is another compound, and there is nobody to be asked.
        const std::string meant = options.hydrateReading(formula);
        if (!meant.empty())
            return "\"" + formula + "\" may be a hydrate, " + meant + "; write its dot as *";
    }
    if (!options.canonicalFormula) return "";
    compound.FORMULA = options.canonicalFormula(formula);
    return compound.FORMULA.empty() ? "\"" + formula + "\" is no formula" : "";
}

void ImportRows(TableReader& reader, const std::string& path, Database& database,
                const ImportOptions& options, ImportResult& result) {
    Transaction transaction(database);
    CompoundTable table(database);
    constexpr std::size_t progressStep = 10000;
    std::size_t count = 0;
    while (const auto cells = reader.NextRow()) {
        if (++count == 1 && EqualNoCase(Trim(cells->front()), "RN")) continue;
        if (options.progress && count % progressStep == 0) options.progress(count);
        CompoundRow compound;
        std::string fault = ReadCompound(*cells, options, compound);
        if (fault.empty()) fault = table.Fault(compound);
        if (!fault.empty())
            result.skipped.push_back({path, reader.Line(), fault});
        else
            ++(table.Add(compound) ? result.added : result.present);
    }
    if (result.added + result.present + result.skipped.size() == 0)
        result.skipped.push_back({path, 1, "the file holds no compounds"});
    transaction.Commit();
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

ImportResult ImportCompounds(const std::string& path, Database& database,
                             const ImportOptions& options) {
    ImportResult result;
    TableReader reader(path, TableReader::Kind::Foreign);
    result.readable = reader.IsOpen();
    result.fault = reader.Fault();
    if (result.readable) ImportRows(reader, path, database, options, result);
    return result;
}

ImportResult ImportCompounds(const std::string& path, const std::string& databasePath,
                             const ImportOptions& options) {
    // A text that cannot be read is told before the database is looked for.
    if (const TableReader reader(path, TableReader::Kind::Foreign); !reader.IsOpen())
        return {.readable = false, .fault = reader.Fault(), .skipped = {}};
    Database database;
    database.Open(databasePath, false);
    return ImportCompounds(path, database, options);
}

} // namespace vexora
