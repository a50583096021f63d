#include "shell/ReadingPlot.h"

#include "entry/SetPictures.h"
#include "plot/SmallPlot.h"
#include "records/DataSet.h"

namespace vexora {

void ShowReadingPlot(ui::Picture& picture, const ui::TreeTag* record) {
    const auto* const set = dynamic_cast<const DataSet*>(record);
    const auto table = set ? PictureOfRecord(*set) : nullptr;
    picture.KeepsShape(table && table->IsTriangle());
    picture.Strokes(table ? SmallPlot(*table) : PlotStrokes());
    picture.Visible(!picture.Strokes().empty());
}

} // namespace vexora
