#pragma once

#include <exception>
#include <functional>

#include "host/Actor.h"
#include "qt/Windows.h"

namespace vexora::qt {

/// Plays a person on the real windows, by mouse and key events. What a handler of the program
/// throws meanwhile comes out of the action that caused it.
class QtActor : public host::Actor {
public:
    QtActor();
    ~QtActor() override;

    void Attach(ui::Forms&) override { windows_.Follow(); }
    /// The event handling of the toolkit cannot be left by an exception.
    bool LetsExceptionsThrough() const override { return false; }

    void Click(ui::Control& control) override;
    void DoubleClick(ui::Control& control) override;
    void Type(ui::Control& control, const std::string& text) override;
    void PressKey(ui::Control& control, const ui::Key& key) override;
    void DropDown(ui::ComboBox& combo) override;
    void Choose(ui::ItemList& list, int index) override;
    void Select(ui::ListBox& list, int index, bool on) override;
    void ClickNode(ui::TreeView& tree, ui::TreeNode& node) override;
    void DoubleClickNode(ui::TreeView& tree, ui::TreeNode& node) override;
    void ReachNode(ui::TreeView& tree, ui::TreeNode& node) override;
    void TypeCell(ui::Grid& grid, int row, int column, const std::string& text) override;
    void PasteCells(ui::Grid& grid, int row, int column, const std::string& text) override;
    void SelectBlock(ui::Grid& grid, const ui::Grid::Block& block) override;
    void Drag(ui::Picture& picture, double x, double y, double x2, double y2) override;
    void Hover(ui::Picture& picture, double x, double y) override;
    void Drop(ui::TreeView& tree, const std::string& path) override;
    void Drop(ui::Form& form, const std::string& path) override;
    void CloseWindow(ui::Form& form) override;

    void Answer(const ui::Message& message, ui::Answer answer) override;
    void Answer(const ui::Input& input, const std::optional<std::string>& answer) override;
    void Answer(const ui::FileChoice& choice, const std::optional<std::string>& answer) override;

    std::string ClipboardText() override;
    void ClipboardText(const std::string& text) override;
    void Hourglass(bool on) override;
    bool Shot(const std::string& path) override;
    std::optional<std::string> PngOf(const ui::Picture& picture) override;
    void Settle() override;

protected:
    void Replace(ui::Control& control, const std::string& text) override;

private:
    FormWindow& WindowOf(const ui::Control& control);
    template <class TView>
    TView& ViewOf(const ui::Control& control);
    /// Runs an action, lets it settle and throws what a handler has thrown.
    void Do(const std::function<void()>& action);
    void ClickMenu(ui::MenuItem& item);
    void SendKey(ui::Control& control, const ui::Key& key);
    void ChooseInPopup(ui::ItemList& list, int index);

    Windows windows_;
    std::exception_ptr fault_;
    int hourglasses_ = 0;
};

} // namespace vexora::qt
