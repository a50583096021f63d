#pragma once

#include <string>
#include <vector>

#include "ui/Lists.h"

namespace vexora::ui {

/// How a form is laid out: a small tree that says what stands together, not where. One renderer
/// turns it into rows with a common label edge, groups, pages and the button row.
struct Layout {
    enum class Kind {
        Column,  // parts one below the other; fields in it share their label edge
        Row,     // parts side by side
        Group,   // a captioned box around its parts; control is its Frame, if it has one
        Field,   // a label in front of a part
        Item,    // one control
        Pages,   // control is the TabStrip, part i its page i
        Split,   // two parts with a movable bar between them
        Buttons, // the row of buttons at the lower right
        Note,    // a line of explaining text
        Stretch  // empty room that grows
    };

    Kind kind = Kind::Column;
    std::string text;           // caption, label or note
    Control* control = nullptr; // the control itself, the frame or the tab strip
    Control* label = nullptr;   // a Label control that stands for the text of a Field
    int columns = 0;            // width of an item in characters, 0 for what there is
    std::vector<Layout> parts;

    Layout() = default;
    /// A control alone is a layout.
    Layout(Control& item) : kind(Kind::Item), control(&item) {} // NOLINT: meant to convert
};

Layout Column(std::vector<Layout> parts);
Layout Row(std::vector<Layout> parts);
Layout Group(std::string caption, std::vector<Layout> parts);
/// The frame becomes the container of all controls in the parts.
Layout Group(Frame& frame, std::vector<Layout> parts);
Layout Field(std::string label, Layout part);
Layout Field(Control& label, Layout part);
Layout Pages(TabStrip& tabs, std::vector<Layout> pages);
Layout Split(Layout left, Layout right);
/// A control whose content is short: a year, a number.
Layout Narrow(Control& item, int columns);
Layout ButtonRow(std::vector<Layout> buttons);
Layout Note(std::string text);
Layout Stretch();

/// False for a control on a page that is not turned up.
bool IsOnTurnedPage(const Layout& layout, const Control& control);
/// Turns up the page on which a control stands, and those around it.
void TurnPageTo(const Layout& layout, const Control& control);

} // namespace vexora::ui
