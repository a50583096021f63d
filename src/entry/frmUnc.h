#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "records/clsX.h"
#include "ui/Form.h"

namespace vexora {

class clsProperty;

/// The uncertainty statements of a data set: one frame for the property, one for each variable. A
/// set with more of either has several pages, each with one property and up to four others.
/// Opened modally through EditStatements on the items in CurrentUX, which change on OK only. The
/// figures that follow from the statements are shown for the value in the property chain.
/// The terms are those of the GUM (JCGM 100): a level makes a figure an expanded uncertainty,
/// without one it is a standard deviation. The registry owns the form.
class frmUnc : public ui::Form {
public:
    /// A property and up to four variables.
    static constexpr int frameCount = 5;

    frmUnc();

    ui::ControlArray<ui::Frame> Frame{*this, "Frame", frameCount};
    ui::ControlArray<ui::CheckBox> chkDS{*this, "chkDS", frameCount, "Device specification"};
    ui::ControlArray<ui::Label> lblDSValue{*this, "lblDSValue", frameCount, "Value:"};
    ui::ControlArray<ui::TextBox> txtDSValue{*this, "txtDSValue", frameCount};
    ui::ControlArray<ui::CheckBox> chkDSPerCent{*this, "chkDSPerCent", frameCount, "%"};
    ui::ControlArray<ui::Label> lblDSPerCent{*this, "lblDSPerCent", frameCount};
    ui::ControlArray<ui::TextBox> txtDSLevel{*this, "txtDSLevel", frameCount};
    ui::ControlArray<ui::Label> lblDSEvaluator{*this, "lblDSEvaluator", frameCount, "Evaluator:"};
    ui::ControlArray<ui::ComboBox> cboDSEvaluator{*this, "cboDSEvaluator", frameCount,
                                                  ui::ComboBox::Style::Editable};
    ui::TextBox txtCalibrError{*this, "txtCalibrError"};
    ui::ControlArray<ui::CheckBox> chkRep{*this, "chkRep", frameCount, "Repeatability"};
    ui::ControlArray<ui::TextBox> txtRValue{*this, "txtRValue", frameCount};
    ui::ControlArray<ui::CheckBox> chkRPerCent{*this, "chkRPerCent", frameCount, "%"};
    ui::ControlArray<ui::TextBox> txtRepetitions{*this, "txtRepetitions", frameCount};
    ui::ControlArray<ui::ComboBox> cboRType{*this, "cboRType", frameCount};
    ui::ControlArray<ui::CheckBox> chkUnc{*this, "chkUnc", frameCount, "Uncertainty"};
    ui::ControlArray<ui::TextBox> txtUValue{*this, "txtUValue", frameCount};
    ui::ControlArray<ui::CheckBox> chkUPerCent{*this, "chkUPerCent", frameCount, "%"};
    ui::ControlArray<ui::TextBox> txtULevel{*this, "txtULevel", frameCount};

    ui::CheckBox chkComb{*this, "chkComb", "Combined uncertainty"};
    ui::TextBox txtCUValue{*this, "txtCUValue"};
    ui::CheckBox chkCUPerCent{*this, "chkCUPerCent", "%"};
    ui::TextBox txtCULevel{*this, "txtCULevel"};
    ui::ComboBox cboCUType{*this, "cboCUType"};
    ui::CheckBox chkCD{*this, "chkCD", "Curve deviation"};
    ui::TextBox txtEq{*this, "txtEq"};
    ui::TextBox txtRMS{*this, "txtRMS"};
    ui::CheckBox chkRMSPerCent{*this, "chkRMSPerCent", "%"};
    ui::Label lblKVOU{*this, "lblKVOU", "KVO uncertainty:"};
    ui::TextBox txtKVOU{*this, "txtKVOU"};
    ui::Label lblKVOunit{*this, "lblKVOunit"};
    ui::Label lblFigures{*this, "lblFigures"};
    ui::Label lblPage{*this, "lblPage"};
    ui::CommandButton cmdLast{*this, "cmdLast", "Previous quantities"};
    ui::CommandButton cmdNext{*this, "cmdNext", "Next quantities"};
    ui::CommandButton cmdCalc{*this, "cmdCalc", "Calculate uncertainty"};
    ui::CommandButton cmdOK{*this, "cmdOK", "OK"};
    ui::CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};
    ui::MenuItem mnuHelp{*this, "mnuHelp", "&Help"};
    ui::MenuItem mnuAbout{*this, "mnuAbout", "About this form", &mnuHelp};
    ui::MenuItem mnuDefinitions{*this, "mnuDefinitions", "Uncertainty Definitions", &mnuHelp};

    void Load() override;

private:
    ui::Layout FrameLayout(int i);
    void ArrangeControls();
    void WireEvents();
    void WireFrame(int i);
    void UseBlocks();
    void UseFrame(int i);

    // Items and controls (frmUnc_items.cpp).
    void FillLists();
    void TakeItems();
    void ShowItem(int i, const clsX& item);
    void ShowPropertyItem(const clsX& item);
    void ShowCaption(int i, const clsX& item);
    void ClearFrame(int i);
    clsX FromControls(int i) const;
    void ReadPropertyBlocks(clsX& item) const;
    const clsX* ItemOf(int i) const;

    // Pages (frmUnc_pages.cpp).
    /// Places in items_ by frame, -1 for none.
    using Page = std::array<int, frameCount>;
    void LayOutPages();
    void ShowPage(std::size_t page);
    void KeepPage();
    void GoToPage(std::size_t page);
    /// The number of the property that the page is about.
    int PropertyOfPage() const;
    clsX Entered(int n) const;
    bool IsCalibrated(int i) const;

    // Evaluating and accepting (frmUnc_accept.cpp).
    void TakeSigns();
    bool CheckEntries();
    bool CheckFrame(int i);
    bool CheckPage();
    bool CheckValue(ui::TextBox& box);
    bool CheckLevel(ui::TextBox& box);
    bool CheckRepetitions(ui::TextBox& box);
    void Calculate();
    void TakeEvaluated(const clsProperty& head);
    void TakeEntries(clsProperty& quantity, int n) const;
    void ShowFigures(const clsProperty& head, const std::string& result);
    void Accept();

    std::vector<clsX> items_;   // as the statements stand in the entered units
    std::vector<clsX> shown_;   // what the controls said when they had been filled
    std::vector<clsX> entered_; // what they said when their page was left
    std::vector<bool> wasShown_;
    std::vector<Page> pages_;
    std::size_t page_ = 0;
};

} // namespace vexora
