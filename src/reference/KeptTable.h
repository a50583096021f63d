// A table of the vocabulary in memory: its rows in table order, found through the hash of a text.
// Read whole at the first look-up. The rows stay where they are for the life of the table.
#pragma once

#include "reference/Database.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

#include <deque>
#include <string>
#include <string_view>
#include <type_traits>
#include <unordered_map>
#include <utility>
#include <variant>
#include <vector>

namespace vexora {

/// How rows are looked up by the text of a column: names without regard to case, codes with it.
enum class LookUp { None, AnyCase, Exact };

/// A deque keeps the addresses of its rows while it grows, which pointers to rows rely on.
template <class Row>
class KeptTable {
public:
    using Field = std::string Row::*;
    using Found = std::vector<const Row*>;
    /// A column of the table and the member that it fills.
    struct Column {
        std::string_view name;
        std::variant<Field, double Row::*, int Row::*, bool Row::*, ContextFlags Row::*> member;
        LookUp lookUp = LookUp::None;
    };

    /// A table that stays empty: what a look-up sees without a database.
    KeptTable() = default;
    KeptTable(std::string_view name, std::vector<Column> columns)
        : name_(name), columns_(std::move(columns)) {
        for (const Column& column : columns_)
            if (column.lookUp != LookUp::None)
                indexes_.push_back(
                    {column.name, std::get<Field>(column.member), column.lookUp, {}});
    }

    /// Reads the table unless that is done. Throws DatabaseError when it cannot be read, now and at
    /// every later try.
    void ReadOnce(const Database& database) {
        if (isRead_) return;
        rows_.clear(); // of a try that broke off
        for (Index& index : indexes_)
            index.rows.clear();
        for (Recordset rows = database.Query(Statement()); !rows.IsEnd(); rows.MoveNext()) {
            Row& row = rows_.emplace_back();
            for (const Column& column : columns_)
                std::visit([&](auto member) { Take(rows, column.name, row.*member); },
                           column.member);
            for (Index& index : indexes_) // a null equals no text, not even the empty one
                if (!rows.IsNull(index.column))
                    index.rows[index.TextOf(row.*index.field)].push_back(&row);
        }
        isRead_ = true;
    }

    const std::deque<Row>& Rows() const { return rows_; }

    /// The rows with this text in a key column, in table order.
    /// A column that is no key has no rows; it is not searched.
    const Found& With(Field key, std::string_view text) const {
        static const Found nothing;
        for (const Index& index : indexes_) {
            if (index.field != key) continue;
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
        std::string_view column;
        Field field;
        LookUp lookUp;
        std::unordered_map<std::string, Found> rows;
        std::string TextOf(std::string_view text) const {
            return lookUp == LookUp::Exact ? std::string(text) : LowerAscii(text);
        }
    };

    template <class Value>
    static void Take(const Recordset& row, std::string_view column, Value& value) {
        if constexpr (std::is_same_v<Value, std::string>)
            value = row.Text(column);
        else if constexpr (std::is_same_v<Value, double>)
            value = row.Number(column);
        else if constexpr (std::is_same_v<Value, ContextFlags>)
            value = {row.Flag("Pure"), row.Flag("Bin"), row.Flag("Tern"), row.Flag("React"),
                     row.Flag("GH")};
        else
            value = static_cast<Value>(row.Integer(column));
    }

    /// The keys are named, so that SQLite tells of a column that is missing.
    std::string Statement() const {
        std::string columns = "*";
        for (const Index& index : indexes_)
            columns += ",\"" + std::string(index.column) + '"';
        return "select " + columns + " from " + std::string(name_) + " order by rowid";
    }

    std::string_view name_;
    std::vector<Column> columns_;
    std::vector<Index> indexes_;
    std::deque<Row> rows_;
    bool isRead_ = false;
};

} // namespace vexora
