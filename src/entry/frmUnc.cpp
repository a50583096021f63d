#include "entry/frmUnc.h"

#include <algorithm>

#include "globals/KVOGlobal.h"
#include "ui/Desktop.h"

namespace vexora {

namespace {

constexpr int HelpForm = 346;
constexpr int HelpDefinitions = 345;
constexpr const char* LevelHint = "Do not enter for standard deviation";
constexpr const char* EvaluatorHint =
    "Person or organization who assessed measuring device precision";
constexpr const char* LevelLabel = "Level of confidence:";

void Enable(bool on, std::initializer_list<ui::Control*> controls) {
    for (ui::Control* control : controls)
        control->Enabled(on);
}

/// A prompt is the first entry of its list and goes as soon as the list is used.
void DropPrompt(ui::ComboBox& list) {
    list.FirstIsPrompt = false;
    if (list.Item(0).starts_with("SELECT ")) list.Remove(0);
}

/// So the first real entry has index 0 as soon as one has been chosen.
void WirePrompt(ui::ComboBox& list) {
    list.OnDropDown = [&list] { DropPrompt(list); };
    list.OnClick = [&list] {
        if (list.Index() > 0) DropPrompt(list);
    };
}

} // namespace

frmUnc::frmUnc() : Form("frmUnc", "Uncertainty information") {
    ArrangeControls();
    WireEvents();
    UseButtons(cmdOK, cmdCancel, [this] { Accept(); });
    HelpContext = HelpForm;
    for (int i = 0; i < frameCount; ++i) {
        txtDSLevel(i).ToolTip(LevelHint);
        txtULevel(i).ToolTip(LevelHint);
        cboDSEvaluator(i).ToolTip(EvaluatorHint);
    }
    txtCULevel.ToolTip(LevelHint);
    for (const auto& frame : Frame) // those of the set show themselves
        frame->Visible(false);
}

ui::Layout frmUnc::FrameLayout(int i) {
    using namespace ui;
    std::vector<Layout> evaluator = {cboDSEvaluator(i)};
    if (i == 0) evaluator.emplace_back(txtCalibrError);
    // The mark of a block stands as the label of its fields.
    const auto number = [](TextBox& box) { return Narrow(box, 12); };
    const auto confidence = [](TextBox& box) { return Field(LevelLabel, Narrow(box, 4)); };
    std::vector<Layout> rows = {
        Field(chkDS(i), Row({Field(lblDSValue(i),
                                   Row({number(txtDSValue(i)), chkDSPerCent(i), lblDSPerCent(i)})),
                             confidence(txtDSLevel(i)),
                             Field(lblDSEvaluator(i), Row(std::move(evaluator)))})),
        Field(chkRep(i), Row({Field("Value:", Row({number(txtRValue(i)), chkRPerCent(i)})),
                              Field("Repetitions:", Narrow(txtRepetitions(i), 4)), cboRType(i)})),
        Field(chkUnc(i), Row({Field("Value:", Row({number(txtUValue(i)), chkUPerCent(i)})),
                              confidence(txtULevel(i))}))};
    if (i == 0) {
        // Combined uncertainty and curve deviation are of the property: variables have none.
        rows.push_back(Field(chkComb, Row({Field("Value:", Row({number(txtCUValue), chkCUPerCent})),
                                           confidence(txtCULevel), cboCUType})));
        rows.push_back(Field(chkCD, Row({Field("RMS:", Row({number(txtRMS), chkRMSPerCent})),
                                         Field("Equation type:", txtEq)})));
    }
    return Group(Frame(i), std::move(rows));
}

void frmUnc::ArrangeControls() {
    using namespace ui;
    std::vector<Layout> parts;
    parts.reserve(static_cast<std::size_t>(frameCount) + 4);
    for (int i = 0; i < frameCount; ++i)
        parts.push_back(FrameLayout(i));
    parts.push_back(Field(lblKVOU, Row({txtKVOU, lblKVOunit})));
    parts.emplace_back(lblFigures);
    parts.push_back(Row({lblPage, cmdLast, cmdNext, Stretch()}));
    parts.push_back(ButtonRow({cmdCalc, cmdOK, cmdCancel}));
    Arrangement = Column(std::move(parts));
    // The controls are declared by kind; the keyboard is to go frame by frame.
    TabAlongArrangement();
    PreferredColumns = 165; // so that an evaluator can be read
}

void frmUnc::WireEvents() {
    for (int i = 0; i < frameCount; ++i)
        WireFrame(i);
    for (ui::CheckBox* box : {&chkComb, &chkCD})
        box->OnClick = [this] { UseBlocks(); };
    for (ui::TextBox* box : {&txtCUValue, &txtRMS})
        box->OnLostFocus = [this] { TakeSigns(); };
    WirePrompt(cboCUType);
    cmdLast.OnClick = [this] { GoToPage(page_ - 1); };
    cmdNext.OnClick = [this] { GoToPage(page_ + 1); };
    cmdCalc.OnClick = [this] { Calculate(); };
    mnuAbout.OnClick = [] { ui::TheDesktop().ShowHelp(HelpForm); };
    mnuDefinitions.OnClick = [] { ui::TheDesktop().ShowHelp(HelpDefinitions); };
}

void frmUnc::WireFrame(int i) {
    for (ui::CheckBox* box : {&chkDS(i), &chkRep(i), &chkUnc(i), &chkDSPerCent(i)})
        box->OnClick = [this] { UseBlocks(); };
    for (ui::TextBox* box : {&txtDSValue(i), &txtRValue(i), &txtUValue(i)})
        box->OnLostFocus = [this] { TakeSigns(); };
    WirePrompt(cboRType(i));
}

void frmUnc::Load() {
    FillLists();
    TakeItems();
    LayOutPages();
    ShowPage(0);
    // The evaluated figure of the house is no entry of this edition.
    for (ui::Control* control :
         std::initializer_list<ui::Control*>{&lblKVOU, &txtKVOU, &lblKVOunit})
        control->Visible(false);
    txtKVOU.Enabled(false);
    const auto isOn = [](const ui::Control* control) {
        const auto* mark = dynamic_cast<const ui::CheckBox*>(control);
        return mark && mark->Value() && mark->IsUsable();
    };
    if (const auto used = std::ranges::find_if(Controls(), isOn); used != Controls().end())
        (*used)->SetFocus();
}

/// The check box of a block opens its fields.
void frmUnc::UseBlocks() {
    for (int i = 0; i < frameCount; ++i)
        UseFrame(i);
    const bool combined = chkComb.Value();
    Enable(combined, {&txtCUValue, &chkCUPerCent, &txtCULevel, &cboCUType});
    const bool curve = chkCD.Value();
    Enable(curve, {&txtEq, &txtRMS, &chkRMSPerCent});
}

void frmUnc::UseFrame(int i) {
    const bool calibrated = IsCalibrated(i);
    const bool device = chkDS(i).Value();
    Enable(device, {&lblDSValue(i), &txtDSValue(i), &chkDSPerCent(i), &lblDSPerCent(i),
                    &txtDSLevel(i), &lblDSEvaluator(i), &cboDSEvaluator(i)});
    cboDSEvaluator(i).Visible(!calibrated);
    if (i == 0) {
        txtCalibrError.Visible(calibrated);
        txtCalibrError.Enabled(device && calibrated);
    }
    const bool perCent = chkDSPerCent(i).Value();
    const clsX* item = ItemOf(i);
    lblDSPerCent(i).Caption(perCent ? "of the value" : item ? item->Unit : "");
    const bool repeat = chkRep(i).Value();
    Enable(repeat, {&txtRValue(i), &chkRPerCent(i), &txtRepetitions(i), &cboRType(i)});
    const bool author = chkUnc(i).Value();
    Enable(author, {&txtUValue(i), &chkUPerCent(i), &txtULevel(i)});
}

} // namespace vexora
