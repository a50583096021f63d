#include "grid/FindingList.h"

#include <algorithm>
#include <limits>
#include <string>

#include "reference/Text.h"
#include "ui/Form.h"

namespace vexora {

namespace {

constexpr std::size_t MostListed = 200; // nobody steps through more

std::pair<int, int> PlaceOf(const Finding& finding) {
    return {finding.row, finding.column};
}

} // namespace

FindingList::FindingList(const TableRules& rules, ui::Grid& grid, ui::ListBox& list)
    : rules_(rules), grid_(grid), list_(list) {
    list_.OnClick = [this] {
        const int index = list_.Index();
        if (!list_.Owner().Filling && index >= 0 && index < static_cast<int>(listed_.size()))
            GoTo(listed_[static_cast<std::size_t>(index)]);
    };
}

void FindingList::FindAgain() {
    FindAgain(grid_.FixedRows(), grid_.Rows() - 1, true);
}

void FindingList::FindAgain(int firstRow, int lastRow, bool valuesChanged) {
    // From here on rows have been taken away; what was found in them must not be stepped to.
    const int gone = grid_.Rows();
    findings_.erase(findings_.lower_bound(gone), findings_.end());
    firstRow = std::max(firstRow, grid_.FixedRows());
    lastRow = std::min(lastRow, gone - 1);
    for (int row = firstRow; row <= lastRow; ++row) {
        std::vector<Finding> found = rules_.FindingsOf(row);
        if (found.empty())
            findings_.erase(row);
        else
            findings_[row] = std::move(found);
    }
    // A hint rests on the whole table, so one value can change those of any other row.
    if (valuesChanged) {
        const auto [firstHint, lastHint] = HintAgain();
        firstRow = std::min(firstRow, firstHint);
        lastRow = std::max(lastRow, lastHint);
    }
    Mark(firstRow, lastRow);
    grid_.MarkRows(gone, std::numeric_limits<int>::max(), {});
    ShowLines();
}

/// The first and the last row that a change of the hints may concern.
std::pair<int, int> FindingList::HintAgain() {
    ByRow hints;
    for (Finding& hint : rules_.Hints())
        hints[hint.row].push_back(std::move(hint));
    std::pair<int, int> rows(std::numeric_limits<int>::max(), -1);
    // The usual case while somebody types: nothing needs to be painted again.
    if (hints == hints_) return rows;
    for (const ByRow* some : {&hints, &hints_}) {
        if (some->empty()) continue;
        rows.first = std::min(rows.first, some->begin()->first);
        rows.second = std::max(rows.second, some->rbegin()->first);
    }
    hints_ = std::move(hints);
    return rows;
}

/// In the order of the rows; in a row its findings stand in front of its hints.
std::vector<const Finding*> FindingList::AllOf(int firstRow, int lastRow) const {
    std::vector<const Finding*> all;
    auto found = findings_.lower_bound(firstRow);
    auto hint = hints_.lower_bound(firstRow);
    const auto take = [&](const ByRow& from, ByRow::const_iterator& at, int row) {
        if (at == from.end() || at->first != row) return;
        for (const Finding& one : at->second)
            all.push_back(&one);
        ++at;
    };
    while (found != findings_.end() || hint != hints_.end()) {
        const int row = found == findings_.end() ? hint->first
                        : hint == hints_.end()   ? found->first
                                                 : std::min(found->first, hint->first);
        if (row > lastRow) break;
        take(findings_, found, row);
        take(hints_, hint, row);
    }
    return all;
}

void FindingList::Mark(int firstRow, int lastRow) {
    if (firstRow > lastRow) return;
    ui::Grid::Marks marks;
    for (const Finding* finding : AllOf(firstRow, lastRow))
        // A cell shows one text: the first, for the findings of a row stand in front of its hints.
        marks.insert({PlaceOf(*finding), {finding->isFault, finding->text}});
    grid_.MarkRows(firstRow, lastRow, std::move(marks));
}

void FindingList::ShowLines() {
    const std::vector<const Finding*> all = AllOf(0, grid_.Rows());
    std::vector<std::string> lines;
    listed_.clear();
    for (std::size_t i = 0; i < std::min(all.size(), MostListed); ++i) {
        const Finding& finding = *all[i];
        listed_.push_back(finding);
        lines.push_back("Row " + std::to_string(finding.row - grid_.FixedRows() + 1) + ", " +
                        rules_.ColumnName(finding.column) + ": " +
                        Replace(finding.text, "\n", ". "));
    }
    if (all.size() > MostListed)
        lines.push_back("... and " + std::to_string(all.size() - MostListed) + " more");
    const ui::FillingScope filling(list_.Owner());
    list_.Visible(!lines.empty());
    // A list assigned anew loses its place; most changes leave its lines as they are.
    if (list_.Items() != lines) list_.Assign(std::move(lines));
}

void FindingList::Step(int step) {
    std::vector<const Finding*> all = AllOf(0, grid_.Rows());
    if (all.empty()) return;
    // From left to right in a row, and not by kind as in the list.
    std::stable_sort(all.begin(), all.end(),
                     [](const Finding* a, const Finding* b) { return PlaceOf(*a) < PlaceOf(*b); });
    // From the selected cell, which may have been reached by other ways than these steps.
    const std::pair here(grid_.Selection().top, grid_.Selection().left);
    const Finding* next = nullptr;
    if (step > 0) {
        const auto found = std::find_if(all.begin(), all.end(),
                                        [&](const Finding* one) { return PlaceOf(*one) > here; });
        next = found == all.end() ? all.front() : *found;
    } else {
        const auto found = std::find_if(all.rbegin(), all.rend(),
                                        [&](const Finding* one) { return PlaceOf(*one) < here; });
        next = found == all.rend() ? all.back() : *found;
    }
    GoTo(*next);
}

void FindingList::GoTo(const Finding& finding) {
    grid_.Show({finding.row, finding.column, finding.row, finding.column});
    grid_.SetFocus();
    const auto at = std::find(listed_.begin(), listed_.end(), finding);
    if (at == listed_.end()) return;
    const ui::FillingScope filling(list_.Owner());
    list_.Index(static_cast<int>(at - listed_.begin()));
}

} // namespace vexora
