#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "globals/FormChain.h"
#include "records/SampleDescription.h"

namespace vexora {

class clsL;
class clsS;

/// Builds the coded description of a sample from lists and boxes and takes it apart again. Opened
/// from the shell it stays open for further samples; opened by another dialog, or on a sample that
/// exists, it closes after one.
class frmSample : public ChainForm {
public:
    frmSample();

    static constexpr int finalRows = 4;
    static constexpr const char* otherEntry = "Other"; // asks for a method that a list lacks

    ui::ComboBox cboSubst{*this, "cboSubst"};
    ui::TextBox txtSampleNo{*this, "txtSampleNo"};
    ui::ComboBox lstDescAvail{*this, "lstDescAvail"};
    ui::TextBox txtSmplDescription{*this, "txtSmplDescription"};
    ui::Frame fraInitial{*this, "fraInitial", "Initial sample (before purification)"};
    ui::ComboBox lstSmpSrc{*this, "lstSmpSrc"};
    ui::TextBox txtSrcPurity{*this, "txtSrcPurity"};
    ui::ComboBox lstSrcPurity{*this, "lstSrcPurity"};
    ui::ComboBox lstSrsDetBy{*this, "lstSrsDetBy"};
    ui::Frame fraFinal{*this, "fraFinal", "Sample after purification"};
    ui::ListBox lstPurify{*this, "lstPurify", ui::ListBox::Mode::Check};
    ui::TextBox txtPurifySteps{*this, "txtPurifySteps"};
    ui::ControlArray<ui::TextBox> txtFinalPurity{*this, "txtFinalPurity", finalRows};
    ui::ControlArray<ui::ComboBox> lstFinalPurity{*this, "lstFinalPurity", finalRows};
    ui::ControlArray<ui::ComboBox> lstFinalDetBy{*this, "lstFinalDetBy", finalRows};
    ui::CommandButton cmdNext{*this, "cmdNext", "Next sample"};
    ui::CommandButton cmdProperty{*this, "cmdProperty", "Accept, then a property"};
    ui::CommandButton cmdAccept{*this, "cmdAccept", "Accept"};
    ui::CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};
    ui::MenuItem mnuHelp{*this, "mnuHelp", "&Help"};
    ui::MenuItem mnuHelpSample{*this, "mnuHelpSample", "How to describe a sample", &mnuHelp};

    void Load() override;

private:
    /// The boxes of one statement of purity.
    struct Purity {
        ui::TextBox& value;
        ui::ComboBox& unit;
        ui::ComboBox& method;
    };

    void ArrangeControls();
    void WireEvents();
    void FillLists();
    void FillCompounds();
    void NewSample();

    void SubstClick();
    void NewCompound();
    void AvailabilityClick();
    void PurifyClick();
    void MethodClick(ui::ComboBox& method);
    void Compose();

    // Between the controls and the description (frmSample_fill.cpp).
    SampleDescription Read() const;
    void Fill();
    bool ShowDescription(const SampleDescription& description);
    /// Per cent of what, and what papers print instead.
    static std::vector<std::string> PurityUnitList();
    /// What the boxes say, in per cent.
    static PurityStatement ReadPurity(const Purity& boxes);
    static bool ShowPurity(const PurityStatement& statement, const Purity& boxes);
    void ClearDescription();
    void FollowAvailability();
    void FollowSteps();
    void ShowSteps();
    static int PlaceOfMethod(ui::ItemList& list, const std::string& text);

    std::shared_ptr<clsL> ChosenCompound() const;
    bool IsDescribed() const { return lstDescAvail.Index() == 0; }

    // Accepting (frmSample_accept.cpp).
    void Accept();
    void Next();
    bool AcceptChanges();
    void GoOnToProperty();
    void NormalizeNumbers();
    bool Check();
    bool CheckChoices();
    bool CheckAnyPurity();
    bool CheckInitial();
    bool CheckPurification();
    bool CheckFinal(const Purity& boxes);
    bool CheckValue(const Purity& boxes);
    bool CheckMethod(const Purity& boxes);
    bool Store();

    const Purity initial_{txtSrcPurity, lstSrcPurity, lstSrsDetBy};
    std::vector<Purity> final_;
    std::vector<Purity> purities_; // the initial one and the final ones
    /// Codes of the purification in the order of the paper, where a step may come again; the marks
    /// of the list tell only which of them occur.
    std::vector<std::string> steps_;
    bool editing_ = false;
    bool changed_ = true;          // anything changed since the last store
    int chosen_ = -1;              // the compound in force while "New" is being made
    std::shared_ptr<clsS> stored_; // the sample on the form, once it is in the document
};

} // namespace vexora
