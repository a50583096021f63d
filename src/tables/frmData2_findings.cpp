#include "tables/frmData2.h"

#include <algorithm>

#include "chem/clsProperty.h"
#include "reference/Text.h"

namespace vexora {

namespace {

constexpr std::size_t mostListed = 200; // nobody steps through more

/// The head of a column, with its quantity where several have the same.
std::string NameOf(int column, const TableColumns& columns) {
    if (column >= columns.Count()) return "column beside the table";
    const std::string& head = columns[column].head;
    const auto same = std::count_if(columns.All().begin(), columns.All().end(),
                                    [&](const TableColumn& one) { return one.head == head; });
    if (same < 2) return head;
    const int quantity = columns.Find(TableColumn::Kind::Value, columns[column].item);
    return head + " of " + columns[quantity].head;
}

std::string Line(const Finding& finding, const TableColumns& columns) {
    return "Row " + std::to_string(finding.row) + ", " + NameOf(finding.column, columns) + ": " +
           Replace(finding.text, "\n", ". ");
}

} // namespace

void frmData2::TableChanged() {
    const int gone = tblData.Rows();
    findings_.erase(findings_.lower_bound(gone), findings_.end());
    FindAgain(undo_.FirstRow(), std::min(undo_.LastRow(), gone - 1));
    ShowNotice(told_);
}

void frmData2::FindAgain(int firstRow, int lastRow) {
    if (!set_) return;
    for (int row = std::max(firstRow, tblData.FixedRows()); row <= lastRow; ++row) {
        std::vector<Finding> found = CheckRow(tblData, columns_, row);
        for (const auto& more :
             {CheckLimits(tblData, columns_, row, *chain_, molarMass_),
              CheckReading(tblData, columns_, row), CheckEvaluation(tblData, columns_, row)})
            found.insert(found.end(), more.begin(), more.end());
        if (found.empty())
            findings_.erase(row);
        else
            findings_[row] = std::move(found);
    }
    LookAgain();
    ShowFindings();
}

void frmData2::ShowFindings() {
    ui::Grid::Marks marks;
    std::vector<std::string> lines;
    std::size_t count = 0;
    listed_.clear();
    for (const auto& [row, found] : findings_) {
        for (const Finding& finding : found) {
            marks.insert({{row, finding.column}, {finding.isFault, finding.text}});
            if (++count > mostListed) continue;
            listed_.push_back(finding);
            lines.push_back(Line(finding, columns_));
        }
    }
    if (count > mostListed)
        lines.push_back("... and " + std::to_string(count - mostListed) + " more");
    tblData.CellMarks(std::move(marks));
    const ui::FillingScope filling(*this);
    lstFindings.Visible(!lines.empty());
    if (lstFindings.Items() != lines) lstFindings.Assign(std::move(lines));
}

/// To the next finding behind the selected cell, or in front of it; around at the ends.
void frmData2::StepFinding(int step) {
    if (findings_.empty()) return;
    std::vector<const Finding*> all;
    for (const auto& [row, found] : findings_)
        for (const Finding& finding : found)
            all.push_back(&finding);
    const auto place = [](const Finding& finding) {
        return std::pair(finding.row, finding.column);
    };
    std::stable_sort(all.begin(), all.end(),
                     [&](const Finding* a, const Finding* b) { return place(*a) < place(*b); });
    const std::pair here(tblData.Selection().top, tblData.Selection().left);
    const Finding* next = nullptr;
    if (step > 0) {
        const auto found = std::find_if(all.begin(), all.end(),
                                        [&](const Finding* one) { return place(*one) > here; });
        next = found == all.end() ? all.front() : *found;
    } else {
        const auto found = std::find_if(all.rbegin(), all.rend(),
                                        [&](const Finding* one) { return place(*one) < here; });
        next = found == all.rend() ? all.back() : *found;
    }
    GoTo(*next);
}

void frmData2::GoTo(const Finding& finding) {
    tblData.Show({finding.row, finding.column, finding.row, finding.column});
    tblData.SetFocus();
    const auto at = std::find(listed_.begin(), listed_.end(), finding);
    if (at == listed_.end()) return;
    const ui::FillingScope filling(*this);
    lstFindings.Index(static_cast<int>(at - listed_.begin()));
}

} // namespace vexora
