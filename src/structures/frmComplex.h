#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "entry/CompoundList.h"
#include "entry/SampleList.h"
#include "globals/FormChain.h"
#include "records/clsComplex.h"
#include "structures/ContentFields.h"

namespace vexora {

/// A complex system, as a gas hydrate: its type and its components. The fields show the component
/// that is selected in the list and change it as they are typed in. On an existing complex
/// (EditComplex) its samples stay, and a component that they state goes there too, once asked.
class frmComplex : public ChainForm {
public:
    frmComplex();

    ui::ComboBox cboType{*this, "cboType", ui::ComboBox::Style::Editable};
    ui::ListBox lstComp{*this, "lstComp"};
    ui::CommandButton cmdAdd{*this, "cmdAdd", "Add component"};
    ui::CommandButton cmdDelete{*this, "cmdDelete", "Remove component"};
    ui::ComboBox cboComp{*this, "cboComp"};
    ui::ComboBox cboSample{*this, "cboSample"};
    ui::ComboBox cboFunction{*this, "cboFunction"};
    ui::TextBox txtContent{*this, "txtContent"};
    ui::ComboBox cboContent{*this, "cboContent"};
    ui::CommandButton cmdOK{*this, "cmdOK", "Accept"};
    ui::CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

    void Load() override;
    void Unload() override;

private:
    void ArrangeControls();
    void WireEvents();

    void LineClick();
    void Add();
    void Delete();
    void CompoundClick();
    void SampleClick();
    void FieldChanged();

    // What stands on the form.
    ComplexComponent* InHand();
    void Select(std::size_t line);
    void ShowLines();
    void ShowFields();
    void ShowSamples(const ComplexComponent& component);
    std::string TextOf(const ComplexComponent& component) const;
    std::string TypeTyped() const;

    // Accepting.
    void Accept();
    bool Check();
    bool CheckLine(std::size_t line);
    bool CheckLines();
    bool IsEmptyLine(std::size_t line) const;
    bool MayDropContents();
    std::vector<std::string> Dropped() const;
    bool IsChanged() const;
    void Store();

    clsComplex draft_;
    std::shared_ptr<clsComplex> record_; // that is edited, null for a new complex
    std::size_t line_ = 0;               // the component in hand, from 0
    CompoundList compounds_{*this, cboComp};
    SampleList samples_{*this, cboSample, "None"};
    ContentFields content_{txtContent, cboContent};
    bool accepted_ = false;
};

} // namespace vexora
