// A table of the vocabulary in memory: its rows in table order, found through the hash of a text.
// Read whole at the first look-up. The rows stay where they are for the life of the table.
#pragma once

#include "reference/Database.h"
#include "reference/Text.h"

#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace vexora {

/// A deque keeps the addresses of its rows while it grows, which pointers to rows rely on.
template <class Row>
class KeptTable {
public:
    using Field = std::string Row::*;
    using Found = std::vector<const Row*>;
    /// A column by which rows are looked up: names without regard to case, codes with it.
    struct Key {
        std::string_view column;
        Field field;
        bool caseCounts;
    };

    /// A table that stays empty: what a look-up sees without a database.
    KeptTable() = default;
    KeptTable(std::string_view name, Row (*read)(const Recordset&), std::vector<Key> keys)
        : name_(name), read_(read) {
        for (const Key& key : keys)
            indexes_.push_back({key, {}});
    }

    /// Reads the table unless that is done. Throws DatabaseError when it cannot be read, now and at
    /// every later try.
    void ReadOnce(const Database& database) {
        if (isRead_) return;
        rows_.clear(); // of a try that broke off
        for (Index& index : indexes_)
            index.rows.clear();
        for (Recordset rows = database.Query(Statement()); !rows.IsEnd(); rows.MoveNext()) {
            const Row& row = rows_.emplace_back(read_(rows));
            for (Index& index : indexes_) // a null equals no text, not even the empty one
                if (!rows.IsNull(index.key.column))
                    index.rows[index.TextOf(row.*index.key.field)].push_back(&row);
        }
        isRead_ = true;
    }

    const std::deque<Row>& Rows() const { return rows_; }

    /// The rows with this text in a key column, in table order.
    /// A column that is no key has no rows; it is not searched.
    const Found& With(Field key, std::string_view text) const {
        static const Found nothing;
        for (const Index& index : indexes_) {
            if (index.key.field != key) continue;
            const auto found = index.rows.find(index.TextOf(text));
            if (found != index.rows.end()) return found->second;
        }
        return nothing;
    }
    /// The first of them, or null.
    const Row* First(Field key, std::string_view text) const {
        const Found& found = With(key, text);
        return found.empty() ? nullptr : found.front();
    }

private:
    struct Index {
        Key key;
        std::unordered_map<std::string, Found> rows;
        std::string TextOf(std::string_view text) const {
            return key.caseCounts ? std::string(text) : LowerAscii(text);
        }
    };

    /// The keys are named, so that SQLite tells of a column that is missing.
    std::string Statement() const {
        std::string columns = "*";
        for (const Index& index : indexes_)
            columns += ",\"" + std::string(index.key.column) + '"';
        return "select " + columns + " from " + std::string(name_) + " order by rowid";
    }

    std::string_view name_;
    Row (*read_)(const Recordset&) = nullptr;
    std::vector<Index> indexes_;
    std::deque<Row> rows_;
    bool isRead_ = false;
};

} // namespace vexora
