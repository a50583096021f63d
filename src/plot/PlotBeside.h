#pragma once

#include <functional>
#include <memory>

#include "plot/PlotPicture.h"
#include "ui/Menus.h"

namespace vexora {

inline constexpr PlotSize BesideSize{640, 560};

/// The plot that stands beside a table and follows it: each change of the table is drawn at once,
/// a point under the mouse is told, and a click on it leads to its row. A menu entry of the form
/// shows and hides it, which is remembered in the sitting. The controls stay the form's.
class PlotBeside {
public:
    PlotBeside(ui::Picture& picture, ui::MenuItem& toggle);
    PlotBeside(const PlotBeside&) = delete;
    PlotBeside& operator=(const PlotBeside&) = delete;

    /// The table as it stands; rows that are not whole are no points. Null for nothing to draw.
    std::function<std::shared_ptr<PlotTable>()> Points;
    /// As in PlotPane.
    std::function<void(int row, int column)> OnGoTo;

    /// To be called when the table has changed; does nothing while the plot is hidden.
    void Follow();

private:
    Plot ThePlot() const;
    void Press(PlotPlace place);

    ui::Picture& picture_;
    ui::MenuItem& toggle_;
    std::shared_ptr<PlotTable> table_;
    PlotScale scale_;
    PlotFamilies families_;
};

} // namespace vexora
