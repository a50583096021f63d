#include "shell/ReadingPlot.h"

#include "entry/SetPictures.h"
#include "plot/SmallPlot.h"
#include "records/BioSet.h"
#include "records/DataSet.h"
#include "reference/Numbers.h"

namespace vexora {

namespace {

std::string CaptionOf(const BioSet& set, std::size_t place) {
    const BioQuantity& quantity = set.Quantities()[place];
    const std::string unit = set.UnitOf(quantity);
    return set.NameOf(quantity) + (unit.empty() ? "" : " (" + unit + ")");
}

/// The first property of a bio set against its first variable, as typed. Null without two points.
std::shared_ptr<PlotTable> PictureOfBioSet(const BioSet& set) {
    const std::size_t variable = set.CountOf(BioRole::Property);
    if (variable == 0 || variable >= set.Columns()) return nullptr;
    auto table = std::make_shared<PlotTable>();
    table->YName = CaptionOf(set, 0);
    table->VarNames[0] = CaptionOf(set, variable);
    for (const clsBD& row : set.recD) {
        if (variable >= row.Cells.size()) continue;
        const std::string_view y = row.Cells[0].value, x = row.Cells[variable].value;
        if (IsNumeric(y) && IsNumeric(x)) table->Add({Val(y), Val(x)});
    }
    table->Cut();
    return table->PointCount() < 2 ? nullptr : table;
}

std::shared_ptr<PlotTable> PictureOf(const ui::TreeTag* record) {
    if (const auto* const set = dynamic_cast<const DataSet*>(record)) return PictureOfRecord(*set);
    const auto* const bio = dynamic_cast<const BioSet*>(record);
    return bio ? PictureOfBioSet(*bio) : nullptr;
}

} // namespace

void ShowReadingPlot(ui::Picture& picture, const ui::TreeTag* record) {
    const auto table = PictureOf(record);
    picture.KeepsShape(table && table->IsTriangle());
    picture.Strokes(table ? SmallPlot(*table) : PlotStrokes());
    picture.Visible(!picture.Strokes().empty());
}

} // namespace vexora
