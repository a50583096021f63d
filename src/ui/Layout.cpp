#include "ui/Layout.h"

#include "ui/Buttons.h"

#include <algorithm>

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

bool Holds(const Layout& layout, const Control& control) {
    if (layout.control == &control || layout.label == &control) return true;
    return std::ranges::any_of(layout.parts,
                               [&](const auto& part) { return Holds(part, control); });
}

/// Each page that a control stands on with its tabs, from the outside in, as long as the visitor
/// agrees.
template <class Visit>
bool VisitPages(const Layout& layout, const Control& control, const Visit& visit) {
    for (std::size_t i = 0; i < layout.parts.size(); ++i) {
        if (!Holds(layout.parts[i], control)) continue;
        const bool isPage = layout.kind == Layout::Kind::Pages && layout.control != nullptr;
        if (isPage && !visit(static_cast<TabStrip&>(*layout.control), static_cast<int>(i)))
            return false;
        return VisitPages(layout.parts[i], control, visit);
    }
    return true;
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

bool IsOnTurnedPage(const Layout& layout, const Control& control) {
    return VisitPages(layout, control, [](const TabStrip& tabs, int page) {
        return std::max(tabs.Index(), 0) == page;
    });
}

void TurnPageTo(const Layout& layout, const Control& control) {
    VisitPages(layout, control, [](TabStrip& tabs, int page) {
        if (std::max(tabs.Index(), 0) != page) tabs.Index(page);
        return true;
    });
}

} // namespace vexora::ui
