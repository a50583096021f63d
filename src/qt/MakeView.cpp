#include <iterator>

#include <QCheckBox>
#include <QRadioButton>

#include "qt/BasicViews.h"
#include "qt/GridView.h"
#include "qt/ListViews.h"
#include "qt/PictureView.h"
#include "qt/ReadingView.h"
#include "qt/TextView.h"
#include "qt/TreeWidget.h"
#include "ui/DocumentForm.h"

namespace vexora::qt {

namespace {

template <class TView>
std::unique_ptr<View> As(FormWindow& window, ui::Control& control) {
    return std::make_unique<TView>(window, static_cast<typename TView::OfControl&>(control));
}

template <class TButton>
std::unique_ptr<View> Toggle(FormWindow& window, ui::Control& control) {
    auto& box = static_cast<ui::CheckBox&>(control);
    return std::make_unique<ToggleView>(window, box, new TButton);
}

std::unique_ptr<View> Text(FormWindow& window, ui::Control& control) {
    const bool isMultiLine = static_cast<ui::TextBox&>(control).IsMultiLine();
    return isMultiLine ? As<LinesView>(window, control) : As<LineView>(window, control);
}

std::unique_ptr<View> Reading(FormWindow& window, ui::Control& control) {
    auto& text = static_cast<ui::RichText&>(control);
    if (auto* document = dynamic_cast<ui::DocumentForm*>(&control.Owner()))
        return std::make_unique<ReadingView>(window, text, *document);
    return std::make_unique<RichTextView>(window, text);
}

using Maker = std::unique_ptr<View> (*)(FormWindow&, ui::Control&);

// In the order of ui::ControlKind; the entries of menus have no view.
constexpr Maker Makers[] = {As<LabelView>,        Text,
                            As<ButtonView>,       Toggle<QCheckBox>,
                            Toggle<QRadioButton>, As<ComboView>,
                            As<ListView>,         As<FrameView>,
                            As<GridView>,         As<TreeWidgetView>,
                            As<ToolbarView>,      As<ToolButtonView>,
                            As<TabView>,          nullptr,
                            As<PictureView>,      Reading};
static_assert(std::size(Makers) == static_cast<std::size_t>(ui::ControlKind::RichText) + 1);

} // namespace

std::unique_ptr<View> MakeView(FormWindow& window, ui::Control& control) {
    const Maker make = Makers[static_cast<std::size_t>(control.Kind())];
    return make ? make(window, control) : nullptr;
}

} // namespace vexora::qt
