#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "entry/PropertyEntries.h"
#include "entry/PropertyRules.h"
#include "ui/Form.h"

namespace vexora {

/// What is being entered: property, unit, method, purpose, and how many state variables the data
/// have. Opened from the shell it leads on to the entry dialog; opened modally by an entry dialog
/// it lets the choice be reviewed and comes back.
/// The registry owns it. What is chosen goes to the globals on accepting; only the details of a
/// method go there at once.
class frmProperty : public ui::Form {
public:
    frmProperty();

    ui::ComboBox lstPropGroup{*this, "lstPropGroup"};
    ui::ComboBox lstProp{*this, "lstProp"};
    ui::ComboBox lstConv{*this, "lstConv"};
    ui::Frame fraData{*this, "fraData", "You are entering the data:"};
    ui::OptionButton optOriginal{*this, "optOriginal", "In original units (as in the source)"};
    ui::OptionButton optSystem{*this, "optSystem", "In system units (converted)"};
    ui::ComboBox lstMethod{*this, "lstMethod"};
    ui::TextBox txtMethod{*this, "txtMethod"};
    ui::CommandButton cmdDetails{*this, "cmdDetails", "Details..."};
    ui::ComboBox lstExpPurpose{*this, "lstExpPurpose"};
    ui::TextBox txtFactor{*this, "txtFactor"};
    ui::ListBox lstNote{*this, "lstNote", ui::ListBox::Mode::Check};
    ui::TextBox txtComment{*this, "txtComment"};
    ui::Frame fraInvariant{*this, "fraInvariant", "Invariant Property (No state variables)"};
    ui::CommandButton cmdSingle{*this, "cmdSingle", "Single value"};
    ui::CommandButton cmdFixed{*this, "cmdFixed", "One data point"};
    ui::Frame fraVariable{*this, "fraVariable", "Property as function of state variable(s)"};
    ui::CommandButton cmdOne{*this, "cmdOne", "1-Variable data"};
    ui::CommandButton cmdTwo{*this, "cmdTwo", "2-Variable data"};
    ui::CommandButton cmdThree{*this, "cmdThree", "3-Variable data"};
    ui::CommandButton cmdOK{*this, "cmdOK", "OK"};
    ui::CommandButton cmdFinish{*this, "cmdFinish", "Cancel"};
    ui::MenuItem mnuHelp{*this, "mnuHelp", "&Help"};
    ui::MenuItem mnuList{*this, "mnuList", "Property list", &mnuHelp};

    void Load() override;
    void Activate() override;
    bool QueryUnload() override;
    void Unload() override;

private:
    /// A button that leads on to the form that takes data of this kind.
    /// Which are visible follows from the columns of the property, which live from the forms there
    /// are.
    struct Entry {
        ui::CommandButton& button;
        EntryKind kind;
        int variableCount;
    };

    void ArrangeControls();
    void WireEvents();

    void GroupClick();
    void PropertyClick();
    void ConvClick();
    void MethodClick();
    void Details();

    // What the lists offer (frmProperty_fill.cpp).
    void BeginSelection();
    void Fill();
    void FillGroups();
    std::vector<PropertyRow> OfferedIn(const PropertyGroupRow& group) const;
    void FillUnits(const PropertyRow& row);
    void FillMethods(const PropertyRow& row);
    void SelectMethod(const std::string& code);
    void NoteList();
    void Details_Check();
    void ShowEntries();
    void OfferEntry(const Entry& entry, bool offered);
    ui::CommandButton* OnlyEntry();
    void ShowUnit(const PropertyRow& row);
    void ShowMethod();
    void OfferFactor(double factor);
    std::optional<double> AskFactor(const PropertyRow& row) const;
    const PropertyRow* Chosen() const;
    std::string ChosenMethod() const;

    // Accepting (frmProperty_accept.cpp).
    void Enter(const Entry& entry);
    void Accept();
    bool Check();
    void Store(int variableCount);
    void StoreUnit(const PropertyRow& row);
    void StoreStatements();
    void DropForeignTags();

    // What a review has to put back when it is cancelled.
    struct Before {
        std::string Method, KeyRest;
    };

    const std::array<Entry, 5> entries_{{{cmdSingle, EntryKind::Value, 0},
                                         {cmdFixed, EntryKind::Value, 1},
                                         {cmdOne, EntryKind::Table, 1},
                                         {cmdTwo, EntryKind::Table, 2},
                                         {cmdThree, EntryKind::Table, 3}}};
    std::vector<PropertyGroupRow> groups_;
    std::vector<PropertyRow> rows_;         // behind the first entry of lstProp
    std::vector<MethodRow> methods_;        // the entries of lstMethod
    std::vector<Statement> statements_;     // the entries of lstNote
    double factor_ = 0;                     // of the own unit in lstConv, 0 when there is none
    int unitBefore_ = -1;                   // the unit to go back to when no factor is given
    std::string tagsProperty_, tagsMethod_; // property and method that KeyRest belongs to
    std::string methodBefore_;              // that was chosen for the property before
    bool inChain_ = false;
    bool accepted_ = false;
    Before before_;
};

} // namespace vexora
