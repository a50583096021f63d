#include <algorithm>

#include "host/PlayFailure.h"
#include "host/Player.h"
#include "host/Reach.h"
#include "host/TreeText.h"
#include "host/XmlPath.h"

namespace vexora::host {

namespace {

void Same(const std::string& found, const std::string& wanted) {
    if (found != wanted) NotSeen(Quoted(wanted), Quoted(found));
}

void Holds(const std::string& found, const std::string& part) {
    if (found.find(part) == found.npos) NotSeen("a text with " + Quoted(part), Quoted(found));
}

void SameLines(const std::vector<std::string>& found, const std::vector<std::string>& wanted) {
    for (std::size_t i = 0; i < std::max(found.size(), wanted.size()); ++i) {
        const std::string place = "line " + std::to_string(i + 1) + ' ';
        const std::string want = i < wanted.size() ? Quoted(wanted[i]) : "behind the end";
        const std::string have = i < found.size() ? Quoted(found[i]) : "behind the end";
        if (want != have) NotSeen(place + want, place + have);
    }
}

std::string WantedFile(const std::string& path) {
    const auto text = FileText(path);
    if (!text) NotSeen("the file " + path, "none");
    return *text;
}

bool MustBeOn(const ui::Control& control, bool wanted) {
    const auto on = IsOn(control);
    if (!on) CannotDo("a control that can be on", control.Name() + " is of another kind");
    return *on == wanted;
}

bool HasNothing(const ui::Grid& grid) {
    for (int row = grid.FixedRows(); row < grid.Rows(); ++row) {
        for (int column = grid.FixedColumns(); column < grid.Columns(); ++column) {
            if (!grid.Cell(row, column).empty()) return false;
        }
    }
    return true;
}

bool IsEmpty(const ui::Control& control) {
    using Kind = ui::ControlKind;
    switch (control.Kind()) {
    case Kind::ListBox:
    case Kind::TabStrip:
        return static_cast<const ui::ItemList&>(control).Count() == 0;
    case Kind::Grid:
        return HasNothing(static_cast<const ui::Grid&>(control));
    case Kind::TreeView:
        return static_cast<const ui::TreeView&>(control).IsEmpty();
    case Kind::Picture:
        return static_cast<const ui::Picture&>(control).Strokes().empty();
    default:
        return control.Display().empty();
    }
}

bool IsInState(const ui::Control& control, const std::string& state) {
    if (state == "enabled") return IsEnabledThrough(control);
    if (state == "disabled") return !IsEnabledThrough(control);
    if (state == "visible") return IsSeen(control);
    if (state == "hidden") return !IsSeen(control);
    if (state == "on" || state == "off") return MustBeOn(control, state == "on");
    if (state == "empty") return IsEmpty(control);
    return control.HasFocus();
}

void CheckState(const ui::Control& control, const std::string& state) {
    if (IsInState(control, state)) return;
    std::string found = "it is not; it shows " + Quoted(ShownText(control));
    if (state == "focused") {
        const ui::Control* active = control.Owner().ActiveControl();
        found = active ? active->Name() + " focused" : "nothing focused";
    }
    NotSeen(control.Name() + ' ' + state, found);
}

template <class T>
const T& As(const ui::Control& control, const char* what) {
    const auto* wanted = dynamic_cast<const T*>(&control);
    if (!wanted) CannotDo(what, control.Name() + " is none");
    return *wanted;
}

const ui::ItemList& List(const ui::Control& control) {
    return As<ui::ItemList>(control, "a list");
}

const ui::Grid& Table(const ui::Control& control) {
    return As<ui::Grid>(control, "a grid");
}

void CheckCount(const ui::Control& control, int wanted) {
    const bool isGrid = control.Kind() == ui::ControlKind::Grid;
    const int found = isGrid ? Table(control).Rows() : List(control).Count();
    if (found == wanted) return;
    const std::string entries =
        isGrid ? std::string() : ": " + EntriesText(List(control), "no entries");
    NotSeen("count " + std::to_string(wanted), "count " + std::to_string(found) + entries);
}

void CheckEntry(const ui::ItemList& list, const ScriptWord& entry, bool wanted) {
    if ((EntryIndex(list, entry.text, entry.quoted) >= 0) == wanted) return;
    const std::string verb = wanted ? "entry " : "no entry ";
    NotSeen(verb + Quoted(entry.text), EntriesText(list, "no entries"));
}

} // namespace

void Player::Expect(const ScriptLine& line) {
    const auto& words = line.words;
    if (words[1].quoted || words[1].text.find('.') != std::string::npos)
        ExpectControl(line);
    else if (line.Is(1, "message"))
        ExpectMessage(line);
    else if (line.Is(1, "no"))
        ExpectNo(line);
    else if (line.Is(1, "tree"))
        SameLines(LinesOf(TreeText(Tree())), *line.block);
    else if (line.Is(1, "node") || line.Is(1, "selected"))
        ExpectNode(line);
    else if (line.Is(1, "file"))
        ExpectFile(line);
    else if (line.Is(1, "xml"))
        ExpectXml(line);
    else if (line.Is(1, "clipboard"))
        Same(actor_.ClipboardText(), line.Text(2));
    else
        ExpectWindow(line);
}

void Player::ExpectControl(const ScriptLine& line) {
    const ui::Control& control = Named(line.Text(1));
    if (line.words[2].quoted)
        Same(ShownText(control), line.Text(2));
    else if (line.Is(2, "contains"))
        Holds(ShownText(control), line.Text(3));
    else if (line.Is(2, "has") || line.Is(2, "lacks"))
        CheckEntry(List(control), line.words[3], line.Is(2, "has"));
    else if (line.Is(2, "count"))
        CheckCount(control, line.Int(3));
    else if (line.Is(2, "cell"))
        Same(Table(control).Cell(line.Int(3), line.Int(4)), line.Text(5));
    else
        CheckState(control, line.Text(2));
}

void Player::ExpectNo(const ScriptLine& line) {
    if (line.Is(2, "message")) {
        if (lastMessage_) NotSeen("no message", Quoted(lastMessage_->text));
    } else if (line.Is(2, "file")) {
        if (files_.Exists(line.Text(3))) NotSeen("no file " + line.Text(3), "it is there");
    } else {
        if (!NodesNamed(Tree(), line, 3).empty())
            NotSeen("no node " + Quoted(line.words.back().text), "it is there");
    }
}

void Player::ExpectWindow(const ScriptLine& line) {
    const std::string& name = line.Text(2);
    const ui::Form* form = OpenForms().Find(name);
    const bool open = form && form->IsVisible();
    if (line.Is(1, "closed")) {
        if (open) NotSeen(name + " closed", "it is open");
        return;
    }
    if (!open) NotSeen(name + " open", "it is not open");
    if (line.Is(1, "caption")) Same(form->Caption(), line.Text(3));
    if (line.Is(1, "modal") && !form->IsModal()) NotSeen(name + " modal", "it is not modal");
}

void Player::ExpectMessage(const ScriptLine& line) {
    if (!lastMessage_) NotSeen("the message " + Quoted(line.Text(2)), "no message");
    Same(lastMessage_->text, line.Text(2));
    if (line.Has(3)) Same(lastMessage_->title, line.Text(3));
}

void Player::ExpectNode(const ScriptLine& line) {
    const ui::TreeView& tree = Tree();
    const std::string& path = line.words.back().text;
    const auto nodes = NodesNamed(tree, line, 2);
    if (nodes.empty()) NotSeen("the node " + Quoted(path), "none");
    if (line.Is(1, "node")) return;
    const ui::TreeNode* selected = tree.SelectedNode();
    if (std::find(nodes.begin(), nodes.end(), selected) == nodes.end()) {
        NotSeen("selected " + Quoted(path), selected ? Quoted(NodePath(*selected)) : "no node");
    }
}

void Player::ExpectFile(const ScriptLine& line) {
    const std::string text = WantedFile(line.Text(2));
    if (line.block)
        SameLines(LinesOf(text), *line.block);
    else
        Holds(text, line.Text(4));
}

void Player::ExpectXml(const ScriptLine& line) {
    const bool counts = line.Is(3, "count");
    const std::string& path = line.Text(counts ? 4 : 3);
    std::vector<std::string> texts;
    try {
        texts = XmlTexts(WantedFile(line.Text(2)), path);
    } catch (const XmlError& error) {
        NotSeen("a well-formed file and a path", error.what());
    }
    if (counts) {
        Same(std::to_string(texts.size()), std::to_string(line.Int(5)));
    } else {
        if (texts.empty()) NotSeen(path, "no such element");
        Same(texts.front(), line.Text(4));
    }
}

} // namespace vexora::host
