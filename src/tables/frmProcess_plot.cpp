// The pictures of the table as it stands.

#include "tables/frmProcess.h"

#include <algorithm>
#include <set>
#include <string>
#include <utility>

#include "entry/SetPictures.h"
#include "globals/KVOGlobal.h"
#include "records/clsM.h"
#include "records/clsS.h"
#include "tables/ProcessPictures.h"
#include "tables/frmProcess_outlook.h"
#include "ui/Desktop.h"
#include "ui/Forms.h"

namespace vexora {

namespace {

constexpr const char* NoDiagram =
    "No diagram can be drawn of these columns\n"
    "It needs compositions of a phase, and of a binary a temperature or pressure that varies, or "
    "gas and liquid";

} // namespace

/// False, and told, when there is nothing that a picture could show.
bool frmProcess::HasPoints() {
    table_.EndTyping();
    const ProcessTable& table = Now().table;
    const bool isDefined = std::ranges::any_of(table.columns, &ProcessColumn::IsDescribed);
    if (isDefined && table.HasUsedRow()) return true;
    ui::Say(isDefined ? "Nothing to view" : "No data defined");
    return false;
}

void frmProcess::Diagram() {
    if (!HasPoints()) return;
    const auto diagrams = PhaseDiagrams(Now().table, *system_.mixture);
    if (!diagrams) return ui::Say(NoDiagram);
    ShowPictures(diagrams);
}

void frmProcess::Graph() {
    if (!HasPoints()) return;
    const Outlook& now = Now();
    const auto views =
        IsPure() ? ViewsOf(now.table, now.functions) : ViewsOf(now.table, now.phases);
    const auto plots = ColumnPlots(now.table, views, system_.mixture.get());
    if (!plots) return ui::Say("Nothing to view");
    ShowPictures(plots);
}

/// Whoever goes on from a point comes to its cell.
void frmProcess::ShowPictures(const std::shared_ptr<PlotTable>& pictures) {
    bool isFull = false;
    std::set<int> told; // rows that something is to be said of
    for (const Finding& finding : Now().findings)
        told.insert(finding.row - HeadRows() + 1);
    for (PlotTable* one = pictures.get(); one; one = one->Next.get()) {
        isFull = isFull || one->PointTable.size() == PlotTable::MostPoints;
        for (std::size_t i = 0; i < one->PointRow.size(); ++i)
            one->PointFar[i] = told.contains(one->PointRow[i]);
    }
    if (isFull)
        ui::Say("A picture shows the first " + std::to_string(PlotTable::MostPoints) +
                " points of a table");
    KVOGlobal& globals = Globals();
    globals.Plot = pictures;
    const auto& mixture = system_.mixture;
    NameSystem(*pictures, mixture ? mixture->ShowKey() : system_.sample->SystemName(), {});
    ui::Forms::Current().Get("frmGraph").ShowModal();
    const auto shown = std::exchange(globals.Plot, nullptr);
    if (shown->ChosenRow == 0) return;
    table_.MoveTo(HeadRows() + shown->ChosenRow - 1,
                  tblData.FixedColumns() + std::max(shown->ChosenColumn, 0));
    tblData.SetFocus();
}

} // namespace vexora
