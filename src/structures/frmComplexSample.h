#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "entry/SampleList.h"
#include "globals/FormChain.h"
#include "records/clsComplexSample.h"
#include "structures/ContentFields.h"

namespace vexora {

/// A sample of a complex system: which of its components it has, how much of each, the samples of
/// these that were taken, and how a gas hydrate was prepared. The fields show the component that is
/// selected in the list. On an existing sample (EditComplexSample) its data stay as they are.
class frmComplexSample : public ChainForm {
public:
    frmComplexSample();

    ui::Label lblComplex{*this, "lblComplex"};
    ui::TextBox txtSampleNo{*this, "txtSampleNo"};
    ui::ListBox lstComp{*this, "lstComp"};
    ui::CheckBox chkComp{*this, "chkComp", "Present in this sample"};
    ui::TextBox txtContent{*this, "txtContent"};
    ui::ComboBox cboContent{*this, "cboContent"};
    ui::ComboBox cboSample{*this, "cboSample"};
    ui::Frame frmGH{*this, "frmGH", "Preparation of the gas hydrate"};
    ui::TextBox txtPrepT{*this, "txtPrepT"};
    ui::TextBox txtPrepP{*this, "txtPrepP"};
    ui::TextBox txtMethod{*this, "txtMethod"};
    ui::TextBox txtComment{*this, "txtComment", ui::TextBox::Lines::Many};
    ui::CommandButton cmdOK{*this, "cmdOK", "Accept"};
    ui::CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

    void Load() override;
    void Unload() override;

private:
    /// A component of the system, or one that only the sample has.
    struct Line {
        SampleComponent component;
        bool isPresent = false;
    };

    void ArrangeControls();
    void WireEvents();

    void LineClick();
    void PresenceClick();
    void SampleClick();
    void ContentChanged();

    // What stands on the form.
    void TakeRecord();
    Line* InHand() { return line_ < lines_.size() ? &lines_[line_] : nullptr; }
    void Select(std::size_t line);
    void ShowLines();
    void ShowFields();
    std::string TextOf(const Line& line) const;

    // Accepting.
    void Accept();
    bool Check();
    bool CheckLine(std::size_t line);
    bool CheckPreparation();
    std::shared_ptr<clsComplexSample> Made() const;
    void Store(const clsComplexSample& made);

    std::shared_ptr<clsComplex> complex_;
    std::shared_ptr<clsComplexSample> record_; // that is edited, null for a new sample
    std::vector<Line> lines_;
    std::size_t line_ = 0; // the component in hand, from 0
    SampleList samples_{*this, cboSample, "None"};
    ContentFields content_{txtContent, cboContent};
    bool accepted_ = false;
};

} // namespace vexora
