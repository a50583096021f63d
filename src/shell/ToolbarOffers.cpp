#include "shell/ToolbarOffers.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>

#include "globals/KVOGlobal.h"
#include "records/Decomposition.h"
#include "records/clsComplexSample.h"
#include "records/clsL.h"
#include "records/clsM.h"
#include "records/clsQ.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "shell/ReactionReview.h"
#include "tables/ProcessWords.h"
#include "ui/Desktop.h"
#include "ui/Forms.h"

namespace vexora {

namespace {

constexpr std::string_view NoDocument = "none"; // in place of the node's key
constexpr std::string_view AnyNode = "any";

/// A button at a node: when it lives and what it opens.
struct Offer {
    std::string_view nodeKey;
    std::string_view button;
    std::string_view dialog;       // the first of the chain; empty where the chosen kind tells
    std::string_view context = {}; // of the data to come; empty: it stays
    std::string_view needs = {};   // another form that has to exist; empty: none
    bool (*isOffered)() = nullptr; // what the document has to have besides the node
    bool (*prepare)() = nullptr;   // done first; false when it ends there
};

/// A kind of data that frmSelect offers below a node, and what it leads to.
struct KindOfData {
    std::string_view button;
    std::string_view kind;
    std::string_view dialog;
    std::string_view context;
    std::string_view bioType = {};
    bool (*prepare)() = nullptr;
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

/// The kind of what is to come.
bool Choose() {
    Globals().DialogAccepted = false;
    ui::Forms::Current().Get("frmSelect").ShowModal();
    return std::exchange(Globals().DialogAccepted, false);
}

/// The table to process is chosen first.
bool ChooseTable() {
    KVOGlobal& globals = Globals();
    if (globals.CurrentKey == "RM" && !CheckSamplesOfMixture()) return false;
    if (!Choose()) return false;
    globals.Saved = false;
    return true;
}

/// Bio data belong to the source, whatever is selected; without a choice that stays selected.
bool ChooseBioData() {
    KVOGlobal& globals = Globals();
    const std::string key = std::exchange(globals.CurrentKey, {});
    if (Choose()) return true;
    globals.CurrentKey = key;
    return false;
}

/// A complex falls into what its sample is said to consist of.
bool CheckComposition() {
    const auto& sample = Globals().CurrentComplexSample;
    if (sample && DecompositionOf(*sample)) return true;
    ui::Say("Please set the composition");
    return false;
}

constexpr KindOfData Kinds[] = {
    {"AddBio", BioTransitionKind, "frmBioProp", "Bio", "D"},
    {"AddBio", BioSolubilityKind, "frmBioProp", "Bio", "S"},
    {"AddBio", BioReactionKind, "frmBioReact", "Bio"},
    {"AddProp", BulkPropertyKind, "frmProperty", "Complex"},
    {"AddProp", PhaseEquilibriumKind, "frmGH", "Complex", "G"},
    {"AddProp", CrystalStructureKind, "frmCrStruct", "Complex"},
    {"AddProp", DecompositionKind, "frmReact", "Complex", "", CheckComposition},
};

// One line for each button that a node offers.
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
    {"RXS", "AddProp", "", "", "frmSelect", nullptr, Choose},
    {AnyNode, "AddBio", "", "", "frmSelect", nullptr, ChooseBioData},
};

/// What the button does at the selected node; null for nothing.
const Offer* OfferOf(std::string_view button) {
    const KVOGlobal& globals = Globals();
    const bool isEmpty = globals.recR.IsEmpty();
    const std::string_view node = isEmpty ? NoDocument : globals.CurrentKey;
    for (const Offer& offer : Offers) {
        const bool isHere = offer.nodeKey == node || (offer.nodeKey == AnyNode && !isEmpty);
        if (isHere && offer.button == button) return &offer;
    }
    return nullptr;
}

/// The form is there, or all forms of the kinds that may be chosen.
bool KnowsDialogs(const Offer& offer) {
    const ui::Forms& forms = ui::Forms::Current();
    if (!offer.needs.empty() && !forms.Knows(offer.needs)) return false;
    if (!offer.dialog.empty()) return forms.Knows(offer.dialog);
    return std::ranges::all_of(Kinds, [&](const KindOfData& kind) {
        return kind.button != offer.button || forms.Knows(kind.dialog);
    });
}

/// The dialog of the kind that was chosen, which is told what it is for.
std::optional<std::string_view> DialogOfKind(std::string_view button) {
    KVOGlobal& globals = Globals();
    const auto* const kind = std::ranges::find_if(Kinds, [&](const KindOfData& one) {
        return one.button == button && one.kind == globals.TableKind;
    });
    if (kind == std::end(Kinds)) return std::nullopt;
    globals.DataContext = kind->context;
    globals.BioType = kind->bioType;
    if (kind->prepare != nullptr && !kind->prepare()) return std::nullopt;
    return kind->dialog;
}

} // namespace

bool IsOffered(std::string_view button) {
    const Offer* offer = OfferOf(button);
    return offer != nullptr && KnowsDialogs(*offer) &&
           (offer->isOffered == nullptr || offer->isOffered());
}

std::optional<std::string_view> DialogOf(std::string_view button) {
    const Offer* offer = OfferOf(button);
    if (offer == nullptr || (offer->prepare != nullptr && !offer->prepare())) return std::nullopt;
    if (!offer->context.empty()) Globals().DataContext = offer->context;
    if (offer->dialog.empty()) return DialogOfKind(offer->button);
    return offer->dialog;
}

} // namespace vexora
