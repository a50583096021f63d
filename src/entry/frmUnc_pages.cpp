#include "entry/frmUnc.h"

#include <algorithm>

#include "globals/KVOGlobal.h"
#include "ui/Desktop.h"

namespace vexora {

namespace {

constexpr int Others = frmUnc::frameCount - 1; // frames of a page beside that of the property

} // namespace

/// Property k stands on page k, four of the other quantities on each. An item without a name has no
/// quantity in the set.
void frmUnc::LayOutPages() {
    const int properties = Globals().PropertiesInUX;
    for (std::size_t k = 0; k < items_.size(); ++k) {
        const int n = items_[k].N;
        if (n < 0 || items_[k].Name.empty()) continue;
        const bool isProperty = n < properties;
        const int other = n - properties;
        const auto page = static_cast<std::size_t>(isProperty ? n : other / Others);
        const auto frame = static_cast<std::size_t>(isProperty ? 0 : 1 + other % Others);
        Page none;
        none.fill(-1);
        if (pages_.size() <= page) pages_.resize(page + 1, none);
        pages_[page][frame] = static_cast<int>(k);
    }
    const auto isEmpty = [](const Page& page) {
        return std::ranges::all_of(page, [](int place) { return place < 0; });
    };
    std::erase_if(pages_, isEmpty);
}

void frmUnc::ShowPage(std::size_t page) {
    page_ = page;
    for (int i = 0; i < frameCount; ++i) {
        ClearFrame(i);
        const clsX* const item = ItemOf(i);
        Frame(i).Visible(item != nullptr);
        if (!item) continue;
        const auto k = static_cast<std::size_t>(item - items_.data());
        ShowItem(i, entered_[k]);
        if (wasShown_[k]) continue;
        // Kept as it is unless another type is chosen.
        if (i == 0 && item->CType == "C")
            ui::Say("Uncertainty was evaluated at KVO\nand cannot be correctly processed by VXR in "
                    "External mode");
        // Read back at once: a difference to this later is a change by the operator, not one by
        // showing.
        wasShown_[k] = true;
        shown_[k] = FromControls(i);
    }
    UseBlocks();
    const bool hasPages = pages_.size() > 1;
    for (ui::Control* control : std::initializer_list<ui::Control*>{&lblPage, &cmdLast, &cmdNext})
        control->Visible(hasPages);
    cmdLast.Enabled(page > 0);
    cmdNext.Enabled(page + 1 < pages_.size());
    lblPage.Caption("Page " + std::to_string(page + 1) + " of " + std::to_string(pages_.size()));
}

/// What the controls say becomes the statements of their quantities.
void frmUnc::KeepPage() {
    for (int i = 0; i < frameCount; ++i)
        if (const clsX* const item = ItemOf(i))
            entered_[static_cast<std::size_t>(item - items_.data())] = FromControls(i);
}

void frmUnc::GoToPage(std::size_t page) {
    if (page >= pages_.size() || !CheckPage()) return;
    KeepPage();
    lblFigures.Caption("");
    ShowPage(page);
    int first = 0;
    while (!ItemOf(first))
        ++first;
    chkDS(first).SetFocus();
}

int frmUnc::PropertyOfPage() const {
    const clsX* const item = ItemOf(0);
    return item ? item->N : 0;
}

/// What is stated of the quantity n; nothing where the set has none.
clsX frmUnc::Entered(int n) const {
    for (const clsX& item : entered_)
        if (item.N == n) return item;
    return {};
}

} // namespace vexora
