// The names of the compound database in memory, for searches by what a person types. A statement
// would have to make the key of every name anew at each search.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "reference/Vocabulary.h"

namespace vexora {

class Database;

/// All rows of `ALLNAME`, in table order.
class CompoundNames {
public:
    /// Reads the rows. Throws DatabaseError when that cannot be done.
    explicit CompoundNames(const Database& database);

    /// True while the database is as it was read, whoever writes into it.
    bool IsOf(const Database& database) const;

    /// The rows whose name matches the pattern, compared by NameKey, and whose formula matches the
    /// formula, case counting; an empty one is no condition. Those of the very name first, else in
    /// table order.
    std::vector<CompoundRow> Matching(std::string_view namePattern, std::string_view formula) const;
    /// The first names that begin with the text, compared by NameKey, at most so many; the very
    /// name in front.
    std::vector<std::string> BeginningWith(std::string_view text, std::size_t limit) const;

private:
    /// Key, name and formula stand one behind the other in the text that all rows share.
    struct Row {
        std::int64_t rn;
        std::size_t start;
        std::uint32_t keyLength, nameLength, formulaLength;
    };
    using Numbers = std::vector<std::uint32_t>;
    /// The rows whose keys begin with a text, or are it, by their numbers in table order; no more
    /// than so many of them.
    Numbers WithKey(std::string_view key, bool isWhole, std::size_t limit) const;
    /// All rows in the order of their keys.
    const Numbers& ByKey() const;
    std::string_view Key(const Row& row) const;
    std::string_view Name(const Row& row) const;
    std::string_view Formula(const Row& row) const;

    std::string text_;
    std::vector<Row> rows_;
    mutable Numbers byKey_; // empty until it is asked for
    std::uint64_t edition_ = 0;
    std::int64_t version_ = 0;
};

/// The names of the current compound database, read anew after a change; null without a database.
const CompoundNames* KnownNames();

} // namespace vexora
