#include "records/Differences.h"

#include "reference/Numbers.h"
#include "reference/Text.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <unordered_map>
#include <utility>

namespace vexora {

namespace {

using Places = std::vector<std::size_t>;
using Pairs = std::vector<std::pair<std::size_t, std::size_t>>;

/// Pairs up entries of two lists that have the same key, in their order, and leaves the rest.
Pairs TakePairs(Places& before, Places& after,
                const std::function<std::string(bool isAfter, std::size_t)>& keyOf) {
    std::unordered_map<std::string, std::pair<Places, std::size_t>> waiting;
    for (const std::size_t place : after)
        waiting[keyOf(true, place)].first.push_back(place);
    Pairs pairs;
    Places rest;
    for (const std::size_t place : before) {
        const auto found = waiting.find(keyOf(false, place));
        if (found == waiting.end() || found->second.second == found->second.first.size())
            rest.push_back(place);
        else
            pairs.emplace_back(place, found->second.first[found->second.second++]);
    }
    before = std::move(rest);
    Places taken;
    for (const auto& pair : pairs)
        taken.push_back(pair.second);
    std::sort(taken.begin(), taken.end());
    std::erase_if(after, [&taken](std::size_t place) {
        return std::binary_search(taken.begin(), taken.end(), place);
    });
    return pairs;
}

Places AllPlaces(std::size_t count) {
    Places places(count);
    for (std::size_t i = 0; i < count; ++i)
        places[i] = i;
    return places;
}

/// Rows brought under other columns, by name; a column that is not there any more is dropped.
std::vector<std::string> RowsUnder(const std::vector<std::string>& columns,
                                   const Outline& outline) {
    std::vector<std::size_t> from;
    for (const std::string& column : columns) {
        const auto found = std::ranges::find(outline.columns, column);
        from.push_back(static_cast<std::size_t>(found - outline.columns.begin()));
    }
    std::vector<std::string> rows;
    for (const std::string& row : outline.rows) {
        const std::vector<std::string> parts = Split(row, '\t');
        std::string text;
        for (std::size_t i = 0; i < from.size(); ++i)
            text += (i > 0 ? "\t" : "") + (from[i] < parts.size() ? parts[from[i]] : std::string());
        rows.push_back(std::move(text));
    }
    return rows;
}

class Comparison {
public:
    void Compare(const Outline& before, const Outline& after) {
        path_.push_back(after.label);
        CompareFields(before, after);
        if (before.columns == after.columns)
            CompareRows(before.rows, after);
        else
            CompareRows(RowsUnder(after.columns, before), after);
        CompareChildren(before, after);
        path_.pop_back();
    }
    std::vector<Difference> Take() { return std::move(found_); }

private:
    void Add(Difference::Kind kind, std::string what, std::string before, std::string after) {
        found_.push_back(
            {path_, std::move(what), std::move(before), std::move(after), kind, place_});
    }

    void CompareFields(const Outline& before, const Outline& after) {
        std::map<std::string_view, std::string_view> old;
        for (const auto& [name, text] : before.fields)
            old.emplace(name, text);
        for (const auto& [name, text] : after.fields) {
            const auto found = old.find(name);
            const std::string was(found == old.end() ? "" : found->second);
            if (was != text) Add(Difference::Kind::Changed, name, was, text);
            if (found != old.end()) old.erase(found);
        }
        for (const auto& [name, text] : before.fields)
            if (old.contains(name) && !text.empty()) Add(Difference::Kind::Changed, name, text, "");
    }

    void CompareChildren(const Outline& before, const Outline& after) {
        Places gone = AllPlaces(before.children.size());
        Places come = AllPlaces(after.children.size());
        const Pairs pairs = TakePairs(gone, come, [&](bool isAfter, std::size_t i) {
            return (isAfter ? after : before).children[i].identity;
        });
        for (const auto& [i, j] : pairs) {
            place_.push_back(after.children[j].identity);
            Compare(before.children[i], after.children[j]);
            place_.pop_back();
        }
        for (const std::size_t i : gone)
            AddNode(Difference::Kind::OnlyBefore, before.children[i]);
        for (const std::size_t i : come)
            AddNode(Difference::Kind::OnlyAfter, after.children[i]);
    }
    void AddNode(Difference::Kind kind, const Outline& node) {
        path_.push_back(node.label);
        place_.push_back(node.identity);
        Add(kind, "", "", "");
        place_.pop_back();
        path_.pop_back();
    }

    /// Rows that are alike to the letter go first, then those at the same values of the variables,
    /// as typed or as numbers; what is left is the same row only where as many have gone as come.
    void CompareRows(const std::vector<std::string>& before, const Outline& after) {
        Places gone = AllPlaces(before.size());
        Places come = AllPlaces(after.rows.size());
        const auto rowOf = [&](bool isAfter, std::size_t i) -> const std::string& {
            return isAfter ? after.rows[i] : before[i];
        };
        TakePairs(gone, come, rowOf);
        Pairs pairs = TakePairs(gone, come, [&](bool isAfter, std::size_t i) {
            return StateOf(rowOf(isAfter, i), after.variables, false);
        });
        for (const auto& pair : TakePairs(gone, come, [&](bool isAfter, std::size_t i) {
                 return StateOf(rowOf(isAfter, i), after.variables, true);
             }))
            pairs.push_back(pair);
        if (gone.size() == come.size()) {
            for (std::size_t i = 0; i < gone.size(); ++i)
                pairs.emplace_back(gone[i], come[i]);
            gone.clear();
            come.clear();
        }
        std::sort(pairs.begin(), pairs.end(),
                  [](const auto& a, const auto& b) { return a.second < b.second; });
        for (const auto& [i, j] : pairs)
            CompareCells(after.columns, j, before[i], after.rows[j]);
        for (const std::size_t i : gone)
            Add(Difference::Kind::OnlyBefore, RowName(i), Values(before[i]), "");
        for (const std::size_t i : come)
            Add(Difference::Kind::OnlyAfter, RowName(i), "", Values(after.rows[i]));
    }
    void CompareCells(const std::vector<std::string>& columns, std::size_t row,
                      const std::string& before, const std::string& after) {
        const std::vector<std::string> old = Split(before, '\t');
        const std::vector<std::string> now = Split(after, '\t');
        for (std::size_t i = 0; i < std::min({old.size(), now.size(), columns.size()}); ++i)
            if (old[i] != now[i])
                Add(Difference::Kind::Changed, RowName(row) + ", " + columns[i], old[i], now[i]);
    }

    static std::string RowName(std::size_t place) { return "row " + std::to_string(place + 1); }
    /// The variables stand behind the word for the units.
    static std::string StateOf(const std::string& row, std::size_t variables, bool asNumbers) {
        const std::vector<std::string> parts = Split(row, '\t');
        std::string state;
        for (std::size_t i = 1; i <= variables && i < parts.size(); ++i)
            state +=
                "\t" + (asNumbers && IsNumeric(parts[i]) ? NumberText(Val(parts[i])) : parts[i]);
        return state;
    }
    static std::string Values(const std::string& row) {
        std::string text;
        const std::vector<std::string> parts = Split(row, '\t');
        for (std::size_t i = 1; i < parts.size(); ++i)
            if (!parts[i].empty()) text += (text.empty() ? "" : " ") + parts[i];
        return text;
    }

    std::vector<std::string> path_, place_;
    std::vector<Difference> found_;
};

std::string OrNothing(const std::string& text) {
    return text.empty() ? "nothing" : text;
}

} // namespace

std::vector<Difference> DifferencesOf(const Outline& before, const Outline& after) {
    Comparison comparison;
    comparison.Compare(before, after);
    return comparison.Take();
}

std::string DifferenceText(const Difference& difference) {
    std::string text;
    for (const std::string& label : difference.path)
        text += (text.empty() ? "" : " / ") + label;
    if (!difference.what.empty()) text += ": " + difference.what;
    switch (difference.kind) {
    case Difference::Kind::Changed:
        return text + ": " + OrNothing(difference.before) + " -> " + OrNothing(difference.after);
    case Difference::Kind::OnlyBefore:
        return text + ": only in the earlier one" +
               (difference.before.empty() ? "" : ": " + difference.before);
    default:
        return text + ": only in the later one" +
               (difference.after.empty() ? "" : ": " + difference.after);
    }
}

} // namespace vexora
