#pragma once

#include <array>
#include <memory>
#include <vector>

#include "globals/FormChain.h"

namespace vexora {

class clsL;
class clsM;

/// Registers a binary or ternary system of the source's compounds. Opened from the shell it stays
/// open for the next mixture; opened by another dialog it closes after one.
class frmMixt : public ChainForm {
public:
    frmMixt();

    static constexpr const char* ThirdPrompt = "SELECT THE THIRD COMPONENT, IF PRESENT";

    ui::ComboBox cmbComp1{*this, "cmbComp1"};
    ui::ComboBox cmbComp2{*this, "cmbComp2"};
    ui::ComboBox cmbComp3{*this, "cmbComp3"};
    ui::CommandButton cmdAccept{*this, "cmdAccept", "Accept"};
    ui::CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

    void Load() override;

private:
    using Compounds = std::vector<std::shared_ptr<clsL>>;
    static constexpr std::size_t Third = 2; // place of the list that may stay empty

    void ArrangeControls();
    void WireEvents();

    void Click(std::size_t n);
    void PromptLeaves();
    std::shared_ptr<clsL> NewCompound();

    // What the lists offer.
    void Fill(std::size_t n);
    Compounds OfferedIn(std::size_t n) const;
    std::shared_ptr<clsL> Picked(std::size_t n) const;
    void Choose(std::size_t n, std::shared_ptr<clsL> compound);

    // Accepting.
    void Accept();
    bool Check();
    void ShowInOrder();
    std::shared_ptr<clsM> Composed() const;
    void Store();

    const std::array<ui::ComboBox*, 3> lists_{&cmbComp1, &cmbComp2, &cmbComp3};
    /// The components in force; the last is null for a binary.
    std::array<std::shared_ptr<clsL>, 3> chosen_;
    bool isBinary_ = false; // "None" was chosen as the third
};

} // namespace vexora
