// Rows that go into the table of compounds after it was built: what would be an error of the table
// is refused, and what is added is marked, so that it can be handed on.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "reference/Database.h"
#include "reference/Vocabulary.h"

namespace vexora {

/// The number that stands for no compound. Its check digit is right.
constexpr std::int64_t EmptySlotNumber = 999999994;

/// "7732185" or "7732-18-5"; nothing when it is neither, stands for no compound or its check digit
/// is wrong.
std::optional<std::int64_t> ReadRegistryNumber(std::string_view text);

/// Adds to `ALLNAME` of one database, which must outlive it. It holds in memory what stands there:
/// to ask the table about each row would take longer than a load.
class CompoundTable {
public:
    /// Reads the table; a database of an earlier edition gets the column that marks what was added.
    /// Throws DatabaseError, also when the database cannot be written.
    explicit CompoundTable(Database& database);

    /// Why the row cannot stand in the table, "" when it can: its name has no text, line breaks or
    /// too many characters, its number has another formula, its name another number.
    std::string Fault(const CompoundRow& row) const;
    /// The formula of a number, "" for an unknown one.
    std::string FormulaOf(std::int64_t rn) const;
    /// Adds a row without a fault; false when it stands there already. Throws DatabaseError.
    /// Belongs into a Transaction.
    bool Add(const CompoundRow& row);

private:
    std::unordered_map<std::int64_t, std::string> formulas_;
    std::unordered_map<std::string, std::int64_t> numbers_; // by lower-case name
    std::unordered_set<std::string> rows_;                  // number and lower-case name
    std::optional<BulkInsert> insert_;
};

/// What became of the names of one compound.
struct CompoundAdded {
    std::string fault; // nothing was added then
    std::string name;  // the name that the fault is about, "" for all of them
    std::size_t added = 0;
    std::size_t present = 0;
};

/// Adds a compound with all its names or not at all. Throws DatabaseError.
CompoundAdded AddCompound(Database& database, std::int64_t rn, const std::string& formula,
                          const std::vector<std::string>& names);

/// The rows that were added after the table was built, in table order.
std::vector<CompoundRow> AddedCompounds(const Database& database);
/// The same as a text that an import takes: a heading, then number, name and formula a line.
std::string AddedCompoundsText(const Database& database);
/// True for a row that was added here: other workplaces may not have it.
bool IsAddedHere(const Database& database, const CompoundRow& row);

} // namespace vexora
