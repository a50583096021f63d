#include "reference/CompoundNames.h"

#include "reference/Database.h"
#include "reference/NameKey.h"
#include "reference/ReferenceDatabases.h"
#include "reference/Text.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <numeric>

namespace vexora {

namespace {

/// Another one after each change by another program.
std::int64_t DataVersion(const Database& database) {
    return database.Query("pragma data_version").Integer("data_version");
}

bool HasWildcard(std::string_view pattern) {
    return pattern.find_first_of("*%?#[") != pattern.npos;
}

/// A pattern, with the usual ones tested at once: no wildcard, a beginning in front of a star, and
/// one fragment between stars.
class Pattern {
public:
    Pattern(std::string_view pattern, bool caseCounts) : pattern_(pattern), case_(caseCounts) {
        std::string_view inner = pattern;
        const bool isOpen = inner.size() > 1 && IsStar(inner.back());
        if (isOpen) inner.remove_suffix(1);
        const bool isFragment = isOpen && inner.size() > 1 && IsStar(inner.front());
        if (isFragment) inner.remove_prefix(1);
        if (HasWildcard(inner)) return;
        kind_ = isFragment ? Kind::Fragment : isOpen ? Kind::Beginning : Kind::Whole;
        fixed_ = inner;
    }
    /// The text that all matches are, or begin with; empty when there is none such.
    std::string_view Begin() const {
        return IsWhole() || kind_ == Kind::Beginning ? std::string_view(fixed_)
                                                     : std::string_view();
    }
    bool IsWhole() const { return kind_ == Kind::Whole; }
    /// The text has the case of the pattern already, or case counts.
    bool Matches(std::string_view text) const {
        if (pattern_.empty()) return true;
        if (kind_ == Kind::Whole) return text == fixed_;
        if (kind_ == Kind::Beginning) return text.starts_with(fixed_);
        if (kind_ == Kind::Fragment) return text.find(fixed_) != text.npos;
        return Like(pattern_, text, case_);
    }

private:
    enum class Kind { Any, Whole, Beginning, Fragment };
    static bool IsStar(char c) { return c == '*' || c == '%'; }

    std::string pattern_;
    std::string fixed_;
    bool case_;
    Kind kind_ = Kind::Any;
};

/// What a person looks for stands in front: the name as typed, then other writings of it, then the
/// rest.
class Ranks {
public:
    /// The wildcards at the ends of a pattern are no part of the name.
    explicit Ranks(std::string_view typed) {
        constexpr std::string_view stars = "*% ";
        const std::size_t first = typed.find_first_not_of(stars);
        if (first == typed.npos) return;
        name_ = typed.substr(first, typed.find_last_not_of(stars) - first + 1);
        key_ = NameKey(name_);
    }
    std::size_t Of(std::string_view name, std::string_view key) const {
        if (key_.empty() || key != key_) return 2;
        return EqualNoCase(name, name_) ? 0 : 1;
    }

private:
    std::string name_, key_;
};

template <class Entry>
std::vector<Entry> Joined(std::array<std::vector<Entry>, 3>&& ranked) {
    std::vector<Entry> all = std::move(ranked[0]);
    for (std::size_t rank = 1; rank < ranked.size(); ++rank)
        std::ranges::move(ranked[rank], std::back_inserter(all));
    return all;
}

} // namespace

CompoundNames::CompoundNames(const Database& database)
    : edition_(database.Edition()), version_(DataVersion(database)) {
    const auto length = [](const std::string& text) {
        return static_cast<std::uint32_t>(text.size());
    };
    for (Recordset rows = database.Query("select RN, NAME, FORMULA from ALLNAME order by rowid");
         !rows.IsEnd(); rows.MoveNext()) {
        const std::string name = rows.Text("NAME");
        const std::string formula = rows.Text("FORMULA");
        const std::string key = NameKey(name);
        rows_.push_back(
            {rows.Integer("RN"), text_.size(), length(key), length(name), length(formula)});
        text_ += key;
        text_ += name;
        text_ += formula;
    }
}

bool CompoundNames::IsOf(const Database& database) const {
    return database.Edition() == edition_ && DataVersion(database) == version_;
}

std::vector<CompoundRow> CompoundNames::Matching(std::string_view namePattern,
                                                 std::string_view formula) const {
    const Pattern name(NameKey(namePattern), false);
    const Pattern elements(formula, true);
    const Ranks ranks(namePattern);
    std::array<std::vector<CompoundRow>, 3> found;
    const auto take = [&](const Row& row) {
        found[ranks.Of(Name(row), Key(row))].push_back(
            {row.rn, std::string(Name(row)), std::string(Formula(row))});
    };
    if (!name.Begin().empty()) {
        for (const std::uint32_t number : WithKey(name.Begin(), name.IsWhole(), rows_.size()))
            if (elements.Matches(Formula(rows_[number]))) take(rows_[number]);
        return Joined(std::move(found));
    }
    for (const Row& row : rows_)
        if (elements.Matches(Formula(row)) && name.Matches(Key(row))) take(row);
    return Joined(std::move(found));
}

std::vector<std::string> CompoundNames::BeginningWith(std::string_view text,
                                                      std::size_t limit) const {
    const std::string key = NameKey(text);
    if (key.empty()) return {};
    const Ranks ranks(text);
    std::array<std::vector<std::string>, 3> found;
    const auto take = [&](std::uint32_t number) {
        const Row& row = rows_[number];
        auto& names = found[ranks.Of(Name(row), Key(row))];
        if (names.size() < limit) names.emplace_back(Name(row));
    };
    // Of the very name all are looked at: the writing that was typed may stand far behind.
    std::ranges::for_each(WithKey(key, true, rows_.size()), take);
    for (const std::uint32_t number : WithKey(key, false, limit))
        if (Key(rows_[number]) != key) take(number);
    std::vector<std::string> names = Joined(std::move(found));
    if (names.size() > limit) names.resize(limit);
    return names;
}

const CompoundNames::Numbers& CompoundNames::ByKey() const {
    if (!byKey_.empty() || rows_.empty()) return byKey_;
    byKey_.resize(rows_.size());
    std::iota(byKey_.begin(), byKey_.end(), std::uint32_t{0});
    // Rows of one key stay in table order.
    std::ranges::stable_sort(byKey_, {}, [this](std::uint32_t n) { return Key(rows_[n]); });
    return byKey_;
}

CompoundNames::Numbers CompoundNames::WithKey(std::string_view key, bool isWhole,
                                              std::size_t limit) const {
    const auto within = std::ranges::equal_range(ByKey(), key, {}, [&](std::uint32_t n) {
        const std::string_view whole = Key(rows_[n]);
        return isWhole ? whole : whole.substr(0, key.size());
    });
    Numbers found(within.begin(), within.end());
    const std::size_t count = std::min(limit, found.size());
    const auto end = found.begin() + static_cast<std::ptrdiff_t>(count);
    if (count < found.size()) std::ranges::nth_element(found, end);
    found.resize(count);
    std::ranges::sort(found);
    return found;
}

std::string_view CompoundNames::Key(const Row& row) const {
    return std::string_view(text_).substr(row.start, row.keyLength);
}

std::string_view CompoundNames::Name(const Row& row) const {
    return std::string_view(text_).substr(row.start + row.keyLength, row.nameLength);
}

std::string_view CompoundNames::Formula(const Row& row) const {
    return std::string_view(text_).substr(row.start + row.keyLength + row.nameLength,
                                          row.formulaLength);
}

const CompoundNames* KnownNames() {
    ReferenceDatabases* databases = CurrentDatabases();
    if (!databases || !databases->CompoundDb.IsOpen()) return nullptr;
    if (!databases->Names || !databases->Names->IsOf(databases->CompoundDb))
        databases->Names = std::make_shared<CompoundNames>(databases->CompoundDb);
    return databases->Names.get();
}

} // namespace vexora
