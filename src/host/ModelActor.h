#pragma once

#include "host/Actor.h"

namespace vexora::host {

/// The actor of the front with no screen: it does to the models what a person's hands do to
/// windows. Its clipboard is its own.
class ModelActor : public Actor {
public:
    void Click(ui::Control& control) override;
    void DoubleClick(ui::Control& control) override;
    void Set(ui::Control& control, const std::string& text) override;
    void Type(ui::Control& control, const std::string& text) override;
    void PressKey(ui::Control& control, const ui::Key& key) override;
    void Choose(ui::ItemList& list, int index) override;
    void Select(ui::ListBox& list, int index, bool on) override;
    void Check(ui::CheckBox& box, bool on) override;
    void ClickNode(ui::TreeView& tree, ui::TreeNode& node) override;
    void DoubleClickNode(ui::TreeView& tree, ui::TreeNode& node) override;
    void ReachNode(ui::TreeView& tree, ui::TreeNode& node) override;
    void TypeCell(ui::Grid& grid, int row, int column, const std::string& text) override;
    void PasteCells(ui::Grid& grid, int row, int column, const std::string& text) override;
    void SelectBlock(ui::Grid& grid, const ui::Grid::Block& block) override;
    void Drag(ui::Picture& picture, double x, double y, double x2, double y2) override;
    void Hover(ui::Picture& picture, double x, double y) override;
    void Drop(ui::TreeView& tree, const std::string& path) override;
    void CloseWindow(ui::Form& form) override;

    void Answer(const ui::Message&, ui::Answer) override {}
    void Answer(const ui::Input&, const std::optional<std::string>&) override {}
    void Answer(const ui::FileChoice&, const std::optional<std::string>&) override {}

    std::string ClipboardText() override { return clipboard_; }
    void ClipboardText(const std::string& text) override { clipboard_ = text; }
    void Hourglass(bool) override {}
    bool Shot(const std::string&) override { return false; }
    void Settle() override {}

private:
    std::string clipboard_;
};

} // namespace vexora::host
