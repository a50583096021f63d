// Making one bio set of many.
#include "records/BioSet.h"
#include "records/LineWriter.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

#include <algorithm>
#include <unordered_map>

namespace vexora {

namespace {

/// A statement as its line has it, wherever it stands in its set; empty when it says nothing.
std::string TextOfStatement(const clsX& statement) {
    clsX same = statement;
    same.N = 0;
    LineWriter out;
    same.SaveX(out, "");
    return out.Text();
}

} // namespace

bool BioSet::Check() const {
    const std::size_t columns = Columns();
    return recU.size() == quantities_.size() &&
           std::ranges::all_of(recD,
                               [columns](const clsBD& row) { return row.Cells.size() == columns; });
}

std::string BioSet::Joined(const std::vector<std::string>& texts) {
    constexpr char separator = '\x1f'; // in no text that was typed
    std::string joined;
    for (const std::string& text : texts)
        (joined += text) += separator;
    return joined;
}

std::string BioSet::Sorted(std::vector<std::string> texts) {
    std::ranges::sort(texts);
    constexpr char separator = '\x1e';
    std::string sorted;
    for (const std::string& text : texts)
        (sorted += text) += separator;
    return sorted;
}

/// What makes a quantity the same in two sets, whose keys may number components differently: for
/// each its code, its phase and all that is said of its component.
std::vector<std::string> BioSet::IdentityTexts() const {
    std::vector<std::string> texts = ParticipantTexts();
    for (const BioComponent& one : Components)
        texts.push_back(Joined({one.RN, one.SMPNM, one.function, one.phase, one.note}));
    const std::vector<std::string> keys = Keys();
    std::unordered_map<std::string, std::string> meanings;
    for (std::size_t n = 0; n < keys.size(); ++n)
        meanings.try_emplace(keys[n], texts[n]);
    std::vector<std::string> identities;
    for (const BioQuantity& one : quantities_) {
        const auto meaning = meanings.find(one.component);
        const bool isProperty = one.role == BioRole::Property;
        identities.push_back(Joined({isProperty ? "P" : "V", one.code, one.phase,
                                     meaning == meanings.end() ? one.component : meaning->second}));
    }
    return identities;
}

std::vector<std::string> BioSet::TextsOfQuantities(bool properties) const {
    const std::vector<std::string> identities = IdentityTexts();
    std::vector<std::string> texts;
    for (std::size_t n = 0; n < quantities_.size(); ++n) {
        const BioQuantity& one = quantities_[n];
        if ((one.role == BioRole::Property) != properties) continue;
        const BioQuantityText* const entry = TextOf(one);
        const std::string unit = one.unit.empty() && entry ? std::string(entry->unit) : one.unit;
        texts.push_back(Joined({identities[n], unit, one.uncertainty,
                                n < recU.size() ? TextOfStatement(recU[n]) : std::string()}));
    }
    return texts;
}

std::vector<BioPart> BioSet::Parts() const {
    std::vector<BioPart> parts;
    AddParts(parts);
    parts.push_back({"method", Method});
    std::vector<std::string> components;
    for (const BioComponent& one : Components)
        components.push_back(Joined({one.RN, one.SMPNM, one.function, one.phase, one.note}));
    parts.push_back({"components", Sorted(std::move(components))});
    parts.push_back({"properties", Sorted(TextsOfQuantities(true))});
    parts.push_back({"variables and constraints", Sorted(TextsOfQuantities(false))});
    std::string others;
    for (const clsX& other : others_)
        others += Joined({other.Verbatim});
    parts.push_back({"uncertainties", std::move(others)});
    // The date of entry may differ; all else that it says would be lost with the header.
    const clsA& head = Header;
    parts.push_back({"comment", head.DATACOMMENT});
    parts.push_back({"header", Joined({head.NOTE, head.EXPPURPOSE,
                                       Val(head.PRPFLAG) == 0 ? "" : std::string(head.PRPFLAG),
                                       head.COMPILER, head.CONTRIBUTOR})});
    parts.push_back({"flags", std::string(Flag1 ? "1" : "0") + (Flag2 ? "1" : "0")});
    return parts;
}

bool BioSet::Equal(const BioSet& other) const {
    return IsReaction() == other.IsReaction() && Parts() == other.Parts();
}

bool BioSet::IsEmptyColumn(std::size_t place) const {
    return std::ranges::all_of(recD, [place](const clsBD& row) {
        return place >= row.Cells.size() || row.Cells[place] == BioCell();
    });
}

bool BioSet::RepeatsColumn(std::size_t place, std::size_t earlier) const {
    if (!(quantities_[place] == quantities_[earlier])) return false;
    if (TextOfStatement(recU[place]) != TextOfStatement(recU[earlier])) return false;
    return std::ranges::all_of(recD, [&](const clsBD& row) {
        return row.Cells[place] == row.Cells[earlier] || row.Cells[place] == BioCell();
    });
}

void BioSet::CleanComponents() {
    const std::vector<std::string> before = Keys();
    const std::size_t participants = before.size() - Components.size();
    std::vector<BioComponent> kept;
    std::unordered_map<std::string, std::size_t> known; // place among those kept
    std::vector<std::size_t> places;                    // of each one, or of what it repeats
    for (const BioComponent& one : Components) {
        const auto [entry, isFirst] =
            known.try_emplace(Joined({one.RN, one.SMPNM, one.function, one.phase}), kept.size());
        const bool repeats = !isFirst && (one.note.empty() || one.note == kept[entry->second].note);
        places.push_back(repeats ? entry->second : kept.size());
        if (!repeats) kept.push_back(one);
    }
    Components = std::move(kept);
    const std::vector<std::string> now = Keys();
    std::unordered_map<std::string, std::string> renamed;
    for (std::size_t n = 0; n < places.size(); ++n)
        renamed.try_emplace(before[participants + n], now[participants + places[n]]);
    for (BioQuantity& quantity : quantities_) {
        const auto name = renamed.find(quantity.component);
        if (name != renamed.end()) quantity.component = name->second;
    }
}

void BioSet::CleanColumns() {
    for (std::size_t n = Columns(); n > FirstOf(BioRole::Variable); --n) {
        const std::size_t place = n - 1;
        bool isLeftOut = IsEmptyColumn(place);
        for (std::size_t e = FirstOf(BioRole::Variable); e < place && !isLeftOut; ++e)
            isLeftOut = RepeatsColumn(place, e);
        if (isLeftOut) Erase(place);
    }
}

void BioSet::Clean() {
    CleanComponents();
    // Without rows every column is empty, and all is still to be typed.
    if (!recD.empty()) CleanColumns();
}

void BioSet::Expand() {
    if (recD.empty()) return; // there is no row to hold the values
    const std::size_t columns = Columns();
    for (clsBD& row : recD) {
        row.Cells.resize(columns);
        for (std::size_t n = columns; n < quantities_.size(); ++n)
            row.Cells.push_back({quantities_[n].value, {}});
    }
    // Behind the variables they stand in their place already.
    for (std::size_t n = columns; n < quantities_.size(); ++n) {
        quantities_[n].role = BioRole::Variable;
        quantities_[n].value.clear();
    }
}

void BioSet::Merge(const BioSet& other) {
    std::unordered_map<std::string, std::vector<std::size_t>> places; // in the other, last first
    const std::vector<std::string> theirs = other.IdentityTexts();
    for (std::size_t n = theirs.size(); n-- > 0;)
        places[theirs[n]].push_back(n);
    const std::vector<std::string> mine = IdentityTexts();
    std::vector<std::size_t> from(Columns(), theirs.size());
    for (std::size_t n = 0; n < from.size(); ++n) {
        auto& found = places[mine[n]];
        if (found.empty()) continue;
        from[n] = found.back();
        found.pop_back();
    }
    for (const clsBD& row : other.recD) {
        clsBD& added = recD.emplace_back();
        added.Flag1 = row.Flag1;
        added.Flag2 = row.Flag2;
        for (const std::size_t place : from) {
            BioCell& cell = added.Cells.emplace_back();
            if (place < row.Cells.size())
                cell = row.Cells[place];
            else if (place < theirs.size())
                cell.value = other.quantities_[place].value;
        }
    }
}

bool BioSet::CanBeConstraint(std::size_t place) const {
    const BioQuantity& one = quantities_[place];
    const BioQuantityText* const entry = QuantityByCode(TableOf(BioRole::Constraint), one.code);
    if (one.role != BioRole::Variable || !entry || entry->kind == "P") return false;
    if (entry->needsComponent && one.component.empty()) return false;
    const BioCell& first = recD.front().Cells[place];
    return std::ranges::all_of(recD, [&](const clsBD& row) {
        const BioCell& cell = row.Cells[place];
        return Trim(cell.value) == Trim(first.value) &&
               Trim(cell.uncertainty) == Trim(first.uncertainty);
    });
}

void BioSet::Compact() {
    if (recD.empty()) return;
    // Those that move stand behind the constraints there are, in their order.
    std::vector<std::size_t> kept, moved, order;
    const std::size_t columns = Columns();
    for (std::size_t n = 0; n < columns; ++n)
        (CanBeConstraint(n) ? moved : kept).push_back(n);
    if (moved.empty()) return;
    for (const std::size_t n : moved) {
        BioQuantity& one = quantities_[n];
        const BioCell& cell = recD.front().Cells[n];
        one.role = BioRole::Constraint;
        one.value = Trim(cell.value);
        if (one.StatesByRow()) one.uncertainty = Trim(cell.uncertainty);
    }
    for (clsBD& row : recD) {
        std::vector<BioCell> cells;
        for (const std::size_t n : kept)
            cells.push_back(std::move(row.Cells[n]));
        row.Cells = std::move(cells);
    }
    order = std::move(kept);
    for (std::size_t n = columns; n < quantities_.size(); ++n)
        order.push_back(n);
    order.insert(order.end(), moved.begin(), moved.end());
    std::vector<BioQuantity> quantities;
    std::vector<clsX> statements;
    for (const std::size_t n : order) {
        quantities.push_back(std::move(quantities_[n]));
        statements.push_back(std::move(recU[n]));
    }
    quantities_ = std::move(quantities);
    recU = std::move(statements);
}

} // namespace vexora
