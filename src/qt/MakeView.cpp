#include <QCheckBox>
#include <QRadioButton>
#include <QTextBrowser>

#include "qt/BasicViews.h"
#include "qt/GridView.h"
#include "qt/ListViews.h"
#include "qt/PictureView.h"
#include "qt/TextView.h"
#include "qt/TreeWidget.h"

namespace vexora::qt {

namespace {

template <class TView, class TControl>
std::unique_ptr<View> As(FormWindow& window, ui::Control& control) {
    return std::make_unique<TView>(window, static_cast<TControl&>(control));
}

template <class TButton>
std::unique_ptr<View> Toggle(FormWindow& window, ui::Control& control) {
    auto& box = static_cast<ui::CheckBox&>(control);
    return std::make_unique<ToggleView>(window, box, new TButton);
}

std::unique_ptr<View> Text(FormWindow& window, ui::Control& control) {
    auto& box = static_cast<ui::TextBox&>(control);
    if (box.IsMultiLine()) return std::make_unique<LinesView>(window, box);
    return std::make_unique<LineView>(window, box);
}

} // namespace

// A pure table of kinds.
std::unique_ptr<View> MakeView(FormWindow& window, ui::Control& control) {
    using Kind = ui::ControlKind;
    switch (control.Kind()) {
    case Kind::Label:
        return As<LabelView, ui::Label>(window, control);
    case Kind::TextBox:
        return Text(window, control);
    case Kind::CommandButton:
        return As<ButtonView, ui::CommandButton>(window, control);
    case Kind::CheckBox:
        return Toggle<QCheckBox>(window, control);
    case Kind::OptionButton:
        return Toggle<QRadioButton>(window, control);
    case Kind::ComboBox:
        return As<ComboView, ui::ComboBox>(window, control);
    case Kind::ListBox:
        return As<ListView, ui::ListBox>(window, control);
    case Kind::Frame:
        return As<FrameView, ui::Frame>(window, control);
    case Kind::Grid:
        return As<GridView, ui::Grid>(window, control);
    case Kind::TreeView:
        return As<TreeWidgetView, ui::TreeView>(window, control);
    case Kind::Toolbar:
        return As<ToolbarView, ui::Toolbar>(window, control);
    case Kind::ToolButton:
        return As<ToolButtonView, ui::ToolButton>(window, control);
    case Kind::TabStrip:
        return As<TabView, ui::TabStrip>(window, control);
    case Kind::Picture:
        return As<PictureView, ui::Picture>(window, control);
    case Kind::RichText:
        return As<RichTextView, ui::RichText>(window, control);
    case Kind::MenuItem:
        break;
    }
    return nullptr;
}

} // namespace vexora::qt
