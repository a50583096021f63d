#include "qt/EveryKind.h"

#include "support/PasteByTabs.h"
#include "ui/Forms.h"

namespace vexora::qt::test {

namespace {

std::string Number(double value) {
    return std::to_string(static_cast<long>(value));
}

std::string ListText(const ui::ListBox& list) {
    std::string text;
    for (int i = 0; i < list.Count(); ++i)
        text += list.Selected(i) ? '1' : '0';
    return text;
}

} // namespace

EveryKind::EveryKind() : Form("frmEveryKind", "Every Kind") {
    Toolbar1.Add(AddComp);
    Toolbar1.Add(AddReact);
    DefaultButton = &cmdAccept;
    CancelButton = &cmdCancel;
    Arrange();
    for (ui::Control* control : Controls())
        Listen(*control);
    ListenToSurfaces();
}

void EveryKind::Arrange() {
    using namespace ui;
    Arrangement =
        Split(tvwTree, Column({Row({Column({Field(lblName, txtName), Field("Digits", txtDigits),
                                            Field("Notes", txtNotes), Field("Pick", txtPick),
                                            Field("Type", cboType), Field("Unit", cboUnit), chkDone,
                                            Group(fraPhase, {Row({optLiquid, optGas})})}),
                                    Column({lstOne, lstMany, lstMarks})}),
                               Pages(tabPages, {tblData, picGraph, rtfNote}),
                               ui::Note("Every control of the house stands here once."),
                               ButtonRow({cmdAccept, cmdCancel})}));
}

void EveryKind::Load() {
    cboType.Assign({"Article", "Book", "Thesis"});
    cboUnit.Assign({"K", "kPa"});
    tabPages.Assign({"Table", "Graph", "Notes"});
    tabPages.Index(0);
    lstOne.Assign({"one", "two", "three"});
    lstMany.Assign({"a", "b", "c"});
    lstMarks.Assign({"x", "y", "z"});
    vexora::test::PasteByTabs(tblData);
    tblData.Cell(0, 1, "T/K");
    tblData.Cell(0, 2, "p/kPa");
    for (int row = 1; row < tblData.Rows(); ++row)
        tblData.Cell(row, 0, std::to_string(row));
    rtfNote.Html("<h3>Notes</h3><p>A text that is <b>only</b> read.</p>");
    picGraph.Strokes({{ui::Picture::Shape::Line, 50, 450, 950, 50, 1, ""},
                      {ui::Picture::Shape::Rectangle, 50, 50, 950, 450, 0, ""},
                      {ui::Picture::Shape::Text, 60, 60, 0, 0, 2, "T/K"}});
    ui::TreeNode& root = tvwTree.Add(nullptr, "R", "2004 smith");
    ui::TreeNode& water = tvwTree.Add(&root, "L1", "water");
    tvwTree.Add(&water, "S1", "sample 1");
    tvwTree.Add(&root, "L2", "ethanol").Bold(true);
    Events.clear();
}

void EveryKind::Listen(ui::Control& control) {
    const std::string name = control.Name();
    control.OnGotFocus = [this, name] { Tell(name + " got focus"); };
    control.OnLostFocus = [this, name] { Tell(name + " lost focus"); };
    // A text field that answers to clicks behaves otherwise: only one of them does.
    const bool plainText = control.Kind() == ui::ControlKind::TextBox && &control != &txtPick;
    if (!plainText && &control != &lblName) {
        control.OnClick = [this, name] { Tell(name + " click"); };
    }
    control.OnDoubleClick = [this, name] { Tell(name + " double click"); };
    control.OnKey = [this, name](ui::Key& key) {
        // Ways of the windows front: the models reach a node or paste without a key.
        if (key.name != "Down" && key.name != "V") Tell(name + " key " + key.FullName());
        key.swallowed = name == "txtDigits" && key.character > U'9';
    };
    if (control.Kind() == ui::ControlKind::TextBox) {
        auto& box = static_cast<ui::TextBox&>(control);
        box.OnChange = [this, name, &box] { Tell(name + " = " + box.Text()); };
    }
}

void EveryKind::ListenToSurfaces() {
    txtName.OnChange = [this] {
        Tell("txtName = " + txtName.Text());
        // Corrects what is typed, as fields for formulas do.
        if (const auto at = txtName.Text().find('#'); at != std::string::npos) {
            std::string text = txtName.Text();
            text.replace(at, 1, "\xC2\xB0");
            txtName.TextAndCaret(text, txtName.Caret());
        }
    };
    cboUnit.OnChange = [this] { Tell("cboUnit = " + cboUnit.Text()); };
    cboType.OnDropDown = [this] {
        Tell("cboType drops down");
        if (cboType.Find("Report") < 0) cboType.Add("Report");
    };
    tblData.OnEdit = [this](int row, int column, const std::string& text) {
        tblData.Cell(row, column, text);
        Tell("cell " + std::to_string(row) + " " + std::to_string(column) + " = " +
             tblData.Cell(row, column));
    };
    picGraph.OnPress = [this](double x, double y) { Tell("press " + Number(x) + " " + Number(y)); };
    picGraph.OnMove = [this](double x, double y) { Tell("move " + Number(x) + " " + Number(y)); };
    picGraph.OnRelease = [this](double x, double y) {
        Tell("release " + Number(x) + " " + Number(y));
    };
    tvwTree.OnMouseDown = [this] { Tell("tree mouse down"); };
    tvwTree.OnNodeClick = [this](ui::TreeNode& node) { Tell("node " + node.Key()); };
    tvwTree.OnNodeDoubleClick = [this](ui::TreeNode& node) { Tell("open " + node.Key()); };
    tvwTree.OnDrop = [this](const std::string& path) { Tell("drop " + path); };
}

bool EveryKind::QueryUnload() {
    Tell("query unload");
    return chkDone.Value();
}

std::string EveryKind::State() const {
    std::string text;
    for (const ui::Control* control : Controls()) {
        text +=
            control->Name() + ": " + control->Display() + (control->HasFocus() ? " *" : "") + '\n';
    }
    text += ListText(lstMany) + ' ' + ListText(lstMarks) + '\n';
    text += "caret " + std::to_string(txtName.Caret()) + " open " + (IsOpen() ? "yes\n" : "no\n");
    for (const std::string& event : Events)
        text += event + '\n';
    return text;
}

EveryKind& OpenEveryKind() {
    ui::Forms& forms = ui::Forms::Current();
    forms.Register<EveryKind>("frmEveryKind");
    auto& form = forms.Get<EveryKind>("frmEveryKind");
    form.Show();
    return form;
}

} // namespace vexora::qt::test
