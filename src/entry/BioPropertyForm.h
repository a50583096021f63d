#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "entry/BioPages.h"
#include "globals/FormChain.h"
#include "records/clsBP.h"

namespace vexora {

/// What the dialogs of bio properties have in common: the pages of property, variables and
/// constraints, the description, and the way to the table. A dialog puts pages of its own in front.
/// The set joins the document, or an edited one is changed (EditBioProp), only when the table has
/// been accepted. A new one may begin with the definition of another (BioSetToRepeat).
class BioPropertyForm : public ChainForm {
public:
    ui::TabStrip TabStrip1{*this, "TabStrip1"};

    ui::ControlArray<ui::ComboBox> cboProp;
    ui::ControlArray<ui::ComboBox> cmbPropComp;
    ui::ControlArray<ui::ComboBox> cboPropPhase; // where quantities are said of a phase
    ui::ControlArray<ui::ComboBox> cboPropUnit;
    ui::ControlArray<ui::CheckBox> chkPropUnc;
    ui::ControlArray<ui::TextBox> txtPropUnc;

    ui::ControlArray<ui::ComboBox> cboVar;
    ui::ControlArray<ui::ComboBox> cmbVarComp;
    ui::ControlArray<ui::ComboBox> cboVarPhase;
    ui::ControlArray<ui::ComboBox> cboVarUnit;
    ui::ControlArray<ui::CheckBox> chkVarUnc;
    ui::ControlArray<ui::TextBox> txtVarUnc;

    ui::ControlArray<ui::ComboBox> cboConst;
    ui::ControlArray<ui::ComboBox> cmbConstrComp;
    ui::ControlArray<ui::ComboBox> cboConstPhase;
    ui::ControlArray<ui::TextBox> txtConst;
    ui::ControlArray<ui::ComboBox> cboConstUnit;
    ui::ControlArray<ui::CheckBox> chkConstrUnc;
    ui::ControlArray<ui::TextBox> txtConstrUnc;

    ui::Label lblSetNo{*this, "lblSetNo"};
    ui::TextBox txtMethod{*this, "txtMethod"};
    ui::TextBox txtComment{*this, "txtComment", ui::TextBox::Lines::Many};

    ui::CommandButton cmdAccept{*this, "cmdAccept", "Numerical Data"};
    ui::CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

    void Load() override;
    void Unload() override;

protected:
    BioPropertyForm(std::string name, std::string caption, bool hasPhases);

    /// A page with the fields of which the first that can be used gets the focus, and what is wrong
    /// there. Each but the last has a button to the next one, "Next1" and so on.
    struct Page {
        std::string caption;
        ui::Layout layout;
        std::vector<ui::Control*> fields;
        std::function<BioFaults()> check;
    };
    /// Puts the dialog's own pages in front of those that all have. For its constructor.
    void Arrange(std::vector<Page> pages);
    /// Other words on the first tabs.
    void NamePages(const std::vector<std::string>& captions);

    /// The set that the form is to show when it opens: the edited one, or the pattern of a new one.
    static std::shared_ptr<clsBP> Shown();
    /// A copy of what was shown, or a new set; no part of the document.
    const clsBP& Base() const { return *base_; }
    BioEntries Entries() const;
    void OfferSubjects();
    void OfferPhases(const std::vector<std::string>& codes);

    /// A new set without a pattern, as it is proposed, and its number.
    virtual std::shared_ptr<clsBP> NewSet() const = 0;
    virtual int NextNumber() const = 0;
    /// Fills the dialog's own pages from the base; those of the quantities follow.
    virtual void FillOwn() = 0;
    virtual void WriteOwn(clsBP& set) const = 0;
    virtual std::vector<BioSubject> Subjects() const = 0;
    /// What is wrong with the set as a whole, told on the last page.
    virtual BioFaults CheckWhole();
    BioFault NoMethod();
    /// Asks what is the dialog's own to ask; false when the person goes back.
    virtual bool ConfirmOwn() { return true; }
    virtual void Attach(const std::shared_ptr<clsBP>& set) const = 0;

private:
    void AddQuantityPages(std::vector<Page>& pages);
    std::shared_ptr<clsBP> MakeBase() const;
    void Next(std::size_t page);
    void Enter(const Page& page);
    bool CheckPage(std::size_t page);
    bool HasPropertyAmongVariables() const;
    void Accept();
    std::shared_ptr<clsBP> MakeSet() const;
    void Store(const std::shared_ptr<clsBP>& set);

    std::vector<std::unique_ptr<ui::CommandButton>> next_;
    std::vector<Page> pages_;
    BioQuantityPage properties_, variables_, constraints_;
    std::shared_ptr<clsBP> record_; // the set that is being edited, null for a new one
    std::shared_ptr<clsBP> base_;
    bool accepted_ = false;
};

} // namespace vexora
