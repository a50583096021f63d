// What the toolbar offers for the selected node, and what its buttons open.

#include "chem/clsMethod.h"
#include "globals/FormChain.h"
#include "globals/KVOGlobal.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "reference/Numbers.h"
#include "shell/WorkingMethod.h"
#include "shell/frmMain.h"
#include "ui/Desktop.h"
#include "ui/Forms.h"

namespace vexora {

namespace {

struct Offer {
    std::string_view nodeKey;
    std::string_view button;
    bool needsCompound; // only when the source has a compound
    std::string_view dialog;
};

// One line for each button that a node offers, with the dialog that it leads to first.
constexpr Offer kOffers[] = {
    {"R", "AddComp", false, "frmSubst"},      {"R", "AddMixt", true, "frmMixt"},
    {"R", "AddComplex", true, "frmComplex"},  {"R", "AddReact", true, "frmReact"},
    {"RL", "AddSample", false, "frmSample"},  {"RL", "AddReact", false, "frmReact"},
    {"RL", "AddMixt", true, "frmMixt"},       {"RX", "AddSample", false, "frmComplexSample"},
    {"RX", "AddReact", false, "frmReact"},    {"RLS", "AddProp", false, "frmProperty"},
    {"RLS", "AddTable", false, "frmProcess"}, {"RM", "AddProp", false, "frmMixtSingle"},
    {"RM", "AddTable", false, "frmProcess"},  {"RQ", "AddProp", false, "frmChanged"},
    {"RXS", "AddProp", false, "frmCrStruct"},
};

constexpr const char* kSampleNeededTitle = "SAMPLE description needed";

const Offer* OfferOf(std::string_view nodeKey, std::string_view button) {
    for (const Offer& offer : kOffers) {
        if (offer.nodeKey == nodeKey && offer.button == button) return &offer;
    }
    return nullptr;
}

bool HasSample(const clsR& source) {
    for (const auto& compound : source.recL) {
        if (!compound->recS.IsEmpty()) return true;
    }
    return false;
}

/// A reaction needs a participant with a sample: the selected compound, or any one of the source.
bool HasSampleForReaction() {
    const KVOGlobal& globals = Globals();
    if (globals.CurrentKey == "R") return globals.CurrentR && HasSample(*globals.CurrentR);
    return globals.CurrentL && !globals.CurrentL->recS.IsEmpty();
}

} // namespace

void RenewCurrentMethod() {
    KVOGlobal& globals = Globals();
    globals.CurrentMethod = std::make_shared<clsMethod>();
    if (!globals.CurrentR) return;
    const auto year = ParseInteger(globals.CurrentR->YEARPUB);
    globals.CurrentMethod->Year = static_cast<std::int32_t>(year.value_or(0));
}

void frmMain::WireToolbar() {
    for (ui::ToolButton* button : {&AddRef, &AddComp, &AddComplex, &AddSample, &AddMixt, &AddReact,
                                   &AddProp, &AddTable, &AddBio}) {
        Toolbar1.Add(*button);
        button->OnClick = [this, button] { ToolbarClick(*button); };
    }
}

void frmMain::Enable() {
    KVOGlobal& globals = Globals();
    globals.ShellLocked = false;
    AddRef.Caption(globals.recR.IsEmpty() ? "Start" : "Reference");
    for (ui::ToolButton* button : Toolbar1.Buttons())
        button->Enabled(IsOffered(*button));
    for (ui::MenuItem* menu : {&mnuFile, &mnuEdit, &mnuTools})
        menu->Enabled(true);
    mnuNewLike.Enabled(MayRepeat());
    RefreshTexts();
}

void frmMain::DisableShell() {
    Globals().ShellLocked = true;
    for (ui::ToolButton* button : Toolbar1.Buttons())
        button->Enabled(false);
    for (ui::MenuItem* menu : {&mnuFile, &mnuEdit, &mnuTools})
        menu->Enabled(false);
    RefreshTexts();
}

bool frmMain::IsOffered(const ui::ToolButton& button) const {
    const KVOGlobal& globals = Globals();
    const ui::Forms& forms = ui::Forms::Current();
    if (&button == &AddRef) return globals.recR.IsEmpty() && forms.Knows("frmDocument");
    if (globals.recR.IsEmpty() || globals.ReadOnly) return false;
    if (&button == &AddBio) return false; // no dialog for it yet
    if (&button == &AddComplex && !globals.GHEnabled) return false;
    const Offer* offer = OfferOf(globals.CurrentKey, button.Name());
    if (offer == nullptr || !forms.Knows(offer->dialog)) return false;
    if (&button == &AddTable && !forms.Knows("frmSelect")) return false;
    return !offer->needsCompound || (globals.CurrentR && !globals.CurrentR->recL.IsEmpty());
}

/// Whatever a button ends in, the shell is live again unless a dialog is open.
void frmMain::ToolbarClick(const ui::ToolButton& button) {
    DisableShell();
    RenewCurrentMethod();
    if (OpenFromToolbar(button.Name())) return;
    Activate();
}

bool frmMain::OpenFromToolbar(std::string_view key) {
    KVOGlobal& globals = Globals();
    if (key == "AddRef") return OpenDialog("frmDocument");
    if (key == "AddReact") return OpenReaction();
    if (key == "AddProp") return OpenProperty();
    if (key == "AddMixt") globals.DataContext = "Bin";
    if (key == "AddTable") return OpenTable();
    const Offer* offer = OfferOf(globals.CurrentKey, key);
    return offer != nullptr && OpenDialog(offer->dialog);
}

bool frmMain::OpenReaction() {
    if (!HasSampleForReaction()) {
        ui::Say("A SAMPLE description for a reaction participant must be provided first",
                kSampleNeededTitle);
        return false;
    }
    Globals().DataContext = "React";
    return OpenDialog("frmReact");
}

bool frmMain::OpenProperty() {
    KVOGlobal& globals = Globals();
    if (globals.CurrentKey != "RLS") return false;
    globals.DataContext = "Pure";
    return OpenDialog("frmProperty");
}

bool frmMain::OpenTable() {
    KVOGlobal& globals = Globals();
    globals.DialogAccepted = false;
    ui::Forms::Current().Get("frmSelect").ShowModal();
    if (!globals.DialogAccepted) return false;
    globals.Saved = false;
    return OpenDialog("frmProcess");
}

/// True when the dialog is open afterwards, or has led on to another one.
bool frmMain::OpenDialog(std::string_view dialog) {
    DisableShell();
    try {
        OpenInChain("frmMain", dialog);
    } catch (...) { // a dialog that cannot open must not leave the shell dead and unsaved
        Globals().OpenForms.clear();
        Activate();
        throw;
    }
    return !Globals().OpenForms.empty();
}

} // namespace vexora
