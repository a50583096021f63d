#include "ui/Layout.h"

#include "ui/Buttons.h"

namespace vexora::ui {

namespace {

Layout Make(Layout::Kind kind, std::vector<Layout> parts, std::string text = {},
            Control* control = nullptr, Control* label = nullptr) {
    Layout layout;
    layout.kind = kind;
    layout.parts = std::move(parts);
    layout.text = std::move(text);
    layout.control = control;
    layout.label = label;
    return layout;
}

void PutInto(Frame& frame, const Layout& layout) {
    for (Control* control : {layout.control, layout.label}) {
        if (control && control->Container() == nullptr) control->Container(&frame);
    }
    for (const Layout& part : layout.parts)
        PutInto(frame, part);
}

} // namespace

Layout Column(std::vector<Layout> parts) {
    return Make(Layout::Kind::Column, std::move(parts));
}
Layout Row(std::vector<Layout> parts) {
    return Make(Layout::Kind::Row, std::move(parts));
}

Layout Group(std::string caption, std::vector<Layout> parts) {
    return Make(Layout::Kind::Group, std::move(parts), std::move(caption));
}

Layout Group(Frame& frame, std::vector<Layout> parts) {
    for (const Layout& part : parts)
        PutInto(frame, part);
    return Make(Layout::Kind::Group, std::move(parts), {}, &frame);
}

Layout Field(std::string label, Layout part) {
    return Make(Layout::Kind::Field, {std::move(part)}, std::move(label));
}

Layout Field(Control& label, Layout part) {
    return Make(Layout::Kind::Field, {std::move(part)}, {}, nullptr, &label);
}

Layout Pages(TabStrip& tabs, std::vector<Layout> pages) {
    return Make(Layout::Kind::Pages, std::move(pages), {}, &tabs);
}

Layout Split(Layout left, Layout right) {
    return Make(Layout::Kind::Split, {std::move(left), std::move(right)});
}

Layout Narrow(Control& item, int columns) {
    Layout layout(item);
    layout.columns = columns;
    return layout;
}

Layout ButtonRow(std::vector<Layout> buttons) {
    return Make(Layout::Kind::Buttons, std::move(buttons));
}

Layout Note(std::string text) {
    return Make(Layout::Kind::Note, {}, std::move(text));
}
Layout Stretch() {
    return Make(Layout::Kind::Stretch, {});
}

} // namespace vexora::ui
