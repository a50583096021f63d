#include "host/Reach.h"

#include <algorithm>

#include "reference/Numbers.h"
#include "ui/Forms.h"

namespace vexora::host {

namespace {

constexpr std::string_view PathSeparator = " / ";

const ui::MenuItem* MenuAbove(const ui::Control& control) {
    const auto* item = dynamic_cast<const ui::MenuItem*>(&control);
    return item ? item->Parent() : nullptr;
}

using Nodes = std::vector<std::unique_ptr<ui::TreeNode>>;

bool MatchesLabel(const std::string& text, std::string_view label) {
    if (text == label) return true;
    return label.ends_with('*') && text.starts_with(label.substr(0, label.size() - 1));
}

void Collect(const Nodes& nodes, std::string_view path, std::vector<ui::TreeNode*>& found) {
    for (std::size_t end = 0; end != path.npos;) {
        const std::size_t next = path.find(PathSeparator, end);
        const std::string_view label = path.substr(0, next);
        for (const auto& node : nodes) {
            if (node->Hidden() || !MatchesLabel(node->Text(), label)) continue;
            if (next == path.npos)
                found.push_back(node.get());
            else
                Collect(node->Children(), path.substr(next + PathSeparator.size()), found);
        }
        end = next == path.npos ? next : next + PathSeparator.size();
    }
}

} // namespace

bool IsSeen(const ui::Control& control) {
    const ui::MenuItem* menu = MenuAbove(control);
    return control.IsShown() && (menu == nullptr || IsSeen(*menu)) &&
           ui::IsOnTurnedPage(control.Owner().Arrangement, control);
}

bool IsEnabledThrough(const ui::Control& control) {
    const ui::MenuItem* menu = MenuAbove(control);
    if (!control.Enabled() || (menu && !IsEnabledThrough(*menu))) return false;
    return control.Container() == nullptr || IsEnabledThrough(*control.Container());
}

std::string WhyNotReachable(const ui::Form& form) {
    const std::string& name = form.Name();
    if (!form.IsOpen()) return name + " is not open";
    if (!form.IsVisible()) return name + " is hidden";
    if (form.IsReachable()) return {};
    const ui::Form* top = ui::Forms::Current().TopModal();
    return name + " stands behind " + (top ? top->Name() : "another form");
}

std::string WhyNotUsable(const ui::Control& control) {
    if (std::string why = WhyNotReachable(control.Owner()); !why.empty()) return why;
    if (!IsSeen(control)) return control.Name() + " is hidden";
    if (!IsEnabledThrough(control)) return control.Name() + " is disabled";
    return {};
}

std::string ShownText(const ui::Control& control) {
    if (control.Kind() != ui::ControlKind::ListBox) return control.Display();
    const auto& list = static_cast<const ui::ListBox&>(control);
    if (list.SelectionMode() == ui::ListBox::Mode::Single) return list.Chosen();
    std::string text;
    for (int i = 0; i < list.Count(); ++i) {
        if (!list.Selected(i)) continue;
        if (!text.empty()) text += "; ";
        text += list.Item(i);
    }
    return text;
}

std::string EntriesText(const ui::ItemList& list, const std::string& none) {
    std::string text;
    for (const std::string& item : list.Items())
        text += (text.empty() ? "" : ", ") + Quoted(item);
    return text.empty() ? none : text;
}

std::optional<bool> IsOn(const ui::Control& control) {
    if (const auto* box = dynamic_cast<const ui::CheckBox*>(&control)) return box->Value();
    if (const auto* item = dynamic_cast<const ui::MenuItem*>(&control)) return item->Checked();
    return {};
}

int EntryIndex(const ui::ItemList& list, const std::string& word, bool quoted) {
    if (quoted) return list.Find(word);
    const auto index = ParseInteger(std::string_view(word).substr(1));
    return index && *index < list.Count() ? static_cast<int>(*index) : -1;
}

std::vector<ui::TreeNode*> NodesAt(const ui::TreeView& tree, const std::string& path) {
    std::vector<ui::TreeNode*> found;
    Collect(tree.Roots(), path, found);
    return found;
}

std::vector<ui::TreeNode*> NodesNamed(const ui::TreeView& tree, const ScriptLine& line,
                                      std::size_t word) {
    if (!line.Is(word, "key")) return NodesAt(tree, line.Text(word));
    ui::TreeNode* node = tree.Find(line.Text(word + 1));
    return std::vector<ui::TreeNode*>(node && !node->Hidden() ? 1 : 0, node);
}

} // namespace vexora::host
