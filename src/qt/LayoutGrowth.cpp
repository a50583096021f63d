#include "qt/LayoutGrowth.h"

#include <algorithm>

#include "ui/TextBox.h"

namespace vexora::qt {

using ui::ControlKind;
using Kind = ui::Layout::Kind;

namespace {

bool AnyPart(const ui::Layout& layout, bool (*test)(const ui::Layout&)) {
    return std::ranges::any_of(layout.parts, test);
}

constexpr int ShortList = 8; // so many entries are shown without scrolling

bool ItemGrowsDown(const ui::Control& control) {
    switch (control.Kind()) {
    case ControlKind::ListBox: {
        const auto& list = static_cast<const ui::ListBox&>(control);
        return list.TakesRoom || list.Count() == 0 || list.Count() > ShortList;
    }
    case ControlKind::Grid:
    case ControlKind::TreeView:
    case ControlKind::Picture:
    case ControlKind::RichText:
        return true;
    case ControlKind::TextBox:
        return static_cast<const ui::TextBox&>(control).IsMultiLine();
    default:
        return false;
    }
}

bool ItemGrowsAcross(const ui::Control& control) {
    return ItemGrowsDown(control) || control.Kind() == ControlKind::ListBox ||
           control.Kind() == ControlKind::TextBox || control.Kind() == ControlKind::ComboBox;
}

} // namespace

bool GrowsDown(const ui::Layout& layout) {
    // Empty room in a row keeps things apart; it makes the row no taller.
    if (layout.kind == Kind::Row || layout.kind == Kind::Buttons) {
        return AnyPart(layout, [](const ui::Layout& part) {
            return part.kind != Kind::Stretch && GrowsDown(part);
        });
    }
    if (layout.kind == Kind::Item) return ItemGrowsDown(*layout.control);
    return layout.kind == Kind::Stretch || layout.kind == Kind::Split || AnyPart(layout, GrowsDown);
}

bool GrowsAcross(const ui::Layout& layout) {
    if (layout.kind == Kind::Item) {
        return layout.columns == 0 && ItemGrowsAcross(*layout.control);
    }
    return layout.kind == Kind::Stretch || layout.kind == Kind::Split ||
           layout.kind == Kind::Pages || layout.kind == Kind::Note || AnyPart(layout, GrowsAcross);
}

} // namespace vexora::qt
