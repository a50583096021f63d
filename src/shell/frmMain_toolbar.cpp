// What the toolbar offers for the selected node, and what its buttons open.

#include "chem/clsMethod.h"
#include "globals/FormChain.h"
#include "globals/KVOGlobal.h"
#include "records/clsL.h"
#include "records/clsM.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "reference/Numbers.h"
#include "shell/ReactionReview.h"
#include "shell/frmMain.h"
#include "ui/Desktop.h"
#include "ui/Forms.h"

namespace vexora {

namespace {

constexpr std::string_view NoDocument = "none"; // in place of the node's key

/// A button at a node: when it lives and what it opens.
struct Offer {
    std::string_view nodeKey;
    std::string_view button;
    std::string_view dialog;       // the first of the chain
    std::string_view context = {}; // of the data to come; empty: it stays
    std::string_view needs = {};   // another form that has to exist; empty: none
    bool (*isOffered)() = nullptr; // what the document has to have besides the node
    bool (*prepare)() = nullptr;   // done first; false when it ends there
};

bool HasSample(const clsR& source) {
    for (const auto& compound : source.recL) {
        if (!compound->recS.IsEmpty()) return true;
    }
    return false;
}

bool HasCompound() {
    const auto& source = Globals().CurrentR;
    return source && !source->recL.IsEmpty();
}

bool HasCompoundForHydrate() {
    return Globals().GHEnabled && HasCompound();
}

/// A reaction needs a participant with a sample: the selected compound, or any one of the source.
bool CheckSampleForReaction() {
    const KVOGlobal& globals = Globals();
    const bool ofSource = globals.CurrentKey == "R";
    if (ofSource ? globals.CurrentR && HasSample(*globals.CurrentR)
                 : globals.CurrentL && globals.CurrentL->HasSamples())
        return true;
    ui::Say("A SAMPLE description for a reaction participant must be provided first",
            "SAMPLE description needed");
    return false;
}

/// What is measured on a mixture is measured on a sample of each component.
bool CheckSamplesOfMixture() {
    const auto& mixture = Globals().CurrentM;
    if (mixture && mixture->CheckSamples()) return true;
    ui::Say("A SAMPLE description for all mixture components must be provided first",
            "SAMPLE description needed");
    return false;
}

/// The table to process is chosen first.
bool ChooseTable() {
    KVOGlobal& globals = Globals();
    if (globals.CurrentKey == "RM" && !CheckSamplesOfMixture()) return false;
    globals.DialogAccepted = false;
    ui::Forms::Current().Get("frmSelect").ShowModal();
    if (globals.DialogAccepted) globals.Saved = false;
    return globals.DialogAccepted;
}

// One line for each button that a node offers. AddBio has no dialog yet.
constexpr Offer Offers[] = {
    {NoDocument, "AddRef", "frmDocument"},
    {"R", "AddComp", "frmSubst"},
    {"R", "AddMixt", "frmMixt", "Bin", "", HasCompound},
    {"R", "AddComplex", "frmComplex", "", "", HasCompoundForHydrate},
    {"R", "AddReact", "frmReact", "React", "", HasCompound, CheckSampleForReaction},
    {"RL", "AddSample", "frmSample"},
    {"RL", "AddReact", "frmReact", "React", "", nullptr, CheckSampleForReaction},
    {"RL", "AddMixt", "frmMixt", "Bin", "", HasCompound},
    {"RX", "AddSample", "frmComplexSample"},
    {"RX", "AddReact", "frmReact", "React", "", nullptr, CheckSampleForReaction},
    {"RLS", "AddProp", "frmProperty", "Pure"},
    {"RLS", "AddTable", "frmProcess", "", "frmSelect", nullptr, ChooseTable},
    {"RM", "AddProp", "frmProperty", "", "frmMixtSingle", nullptr, CheckSamplesOfMixture},
    {"RM", "AddTable", "frmProcess", "", "frmSelect", nullptr, ChooseTable},
    {"RQ", "AddProp", "frmProperty", "React", "frmChanged", nullptr, ReviewReactionOfFile},
    {"RXS", "AddProp", "frmCrStruct"},
};

/// What the button does at the selected node; null for nothing.
const Offer* OfferOf(std::string_view button) {
    const KVOGlobal& globals = Globals();
    const std::string_view node = globals.recR.IsEmpty() ? NoDocument : globals.CurrentKey;
    for (const Offer& offer : Offers) {
        if (offer.nodeKey == node && offer.button == button) return &offer;
    }
    return nullptr;
}

} // namespace

/// Makes the working method anew, with the year of the source; done before each dialog.
void frmMain::RenewCurrentMethod() {
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

void frmMain::SetLocked(bool locked) {
    Globals().ShellLocked = locked;
    if (!locked) AddRef.Caption(Globals().recR.IsEmpty() ? "Start" : "Reference");
    for (ui::ToolButton* button : Toolbar1.Buttons())
        button->Enabled(!locked && IsOffered(*button));
    for (ui::MenuItem* menu : {&mnuFile, &mnuEdit, &mnuTools})
        menu->Enabled(!locked);
    txtFind.Enabled(!locked);
    if (!locked) {
        mnuCompare.Enabled(!Globals().recR.IsEmpty());
        mnuNewLike.Enabled(MayRepeat());
        mnuUndoDelete.Enabled(deleted_ != nullptr);
        mnuUndoProcess.Enabled(Globals().Processed != nullptr);
        mnuCheck.Enabled(!Globals().recR.IsEmpty());
        mnuDetect.Enabled(MayDetect());
        mnuBio.Enabled(MayCompact());
    }
    RefreshTexts();
}

bool frmMain::IsOffered(const ui::ToolButton& button) const {
    const KVOGlobal& globals = Globals();
    const ui::Forms& forms = ui::Forms::Current();
    if (globals.ReadOnly && !globals.recR.IsEmpty()) return false;
    const Offer* offer = OfferOf(button.Name());
    return offer != nullptr && forms.Knows(offer->dialog) &&
           (offer->needs.empty() || forms.Knows(offer->needs)) &&
           (offer->isOffered == nullptr || offer->isOffered());
}

/// Whatever a button ends in, the shell is live again unless a dialog is open.
void frmMain::ToolbarClick(const ui::ToolButton& button) {
    DisableShell();
    RenewCurrentMethod();
    if (OpenFromToolbar(button.Name())) return;
    Activate();
}

bool frmMain::OpenFromToolbar(std::string_view button) {
    const Offer* offer = OfferOf(button);
    if (offer == nullptr || (offer->prepare != nullptr && !offer->prepare())) return false;
    if (!offer->context.empty()) Globals().DataContext = offer->context;
    return OpenDialog(offer->dialog);
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
