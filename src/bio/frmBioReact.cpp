#include "bio/frmBioReact.h"

#include "globals/KVOGlobal.h"
#include "ui/Desktop.h"

#include <utility>

namespace vexora {

namespace {

constexpr int UsualComponents = 6;
constexpr int UsualProperties = 3;
constexpr int UsualVariables = 5;
constexpr int UsualConstraints = 8;
constexpr const char* Solution = "S";

void TellWhyUnbalanced(BalanceOutcome outcome) {
    if (outcome == BalanceOutcome::Unable)
        ui::Say("Unable to equate\nTry to add or eliminate a participant");
    else if (outcome == BalanceOutcome::Ambiguous)
        ui::Say("The equation is ambiguous");
    else
        ui::Say("Unable to Balance Reaction\nVerify the reaction participants or "
                "Enter the stoichiometric coefficients manually.\n"
                "(Reactants = negative numbers; Products = positive numbers)");
}

int QuantityCount(const clsBR* pattern, BioRole role, int usual) {
    return BioRowCount(usual, pattern ? pattern->CountOf(role) : 0);
}

} // namespace

std::shared_ptr<clsBR> frmBioReact::Pattern() {
    const KVOGlobal& globals = Globals();
    return globals.EditBioReact ? globals.CurrentBR
                                : std::dynamic_pointer_cast<clsBR>(globals.BioSetToRepeat);
}

int frmBioReact::ParticipantCount() {
    const auto pattern = Pattern();
    return BioRowCount(UsualParticipants, pattern ? pattern->Participants.size() : 0);
}

int frmBioReact::ComponentCount() {
    const auto pattern = Pattern();
    return BioRowCount(UsualComponents, pattern ? pattern->Components.size() : 0);
}

int frmBioReact::PropertyCount() {
    return QuantityCount(Pattern().get(), BioRole::Property, UsualProperties);
}

int frmBioReact::VariableCount() {
    return QuantityCount(Pattern().get(), BioRole::Variable, UsualVariables);
}

int frmBioReact::ConstraintCount() {
    return QuantityCount(Pattern().get(), BioRole::Constraint, UsualConstraints);
}

frmBioReact::frmBioReact() : ChainForm("frmBioReact", "Bio Reaction Properties") {
    ArrangeControls();
    WireEvents();
    UseButtons(cmdAccept, cmdCancel, [this] { Accept(); });
    HelpContext = 510;
    participants_.UsualPhase(Solution);
    txtReaction.Locked(true);
    optBio.ToolTip("Each participant stands for all its forms at the pH of the solution: hydrogen "
                   "and charge need not balance");
    optChem.ToolTip("Each participant is the very species of its formula: the equation balances");
    cmdEquate.ToolTip("Finds the smallest whole coefficients, reactants first");
}

void frmBioReact::ArrangeControls() {
    TabStrip1.Assign({"Reaction", "Other components", "Property", "Variables", "Constraints"});
    TabStrip1.Index(0);
    Arrangement = ui::Column(
        {ui::Pages(TabStrip1, {ReactionLayout(), PageLayout(components_.Arrangement(), Next2),
                               PageLayout(properties_.Arrangement(), Next3),
                               PageLayout(variables_.Arrangement(), Next4),
                               PageLayout(constraints_.Arrangement(), Next5)}),
         ui::Field("Method of measurement:", txtMethod), ui::Field("Comment:", txtComment),
         ui::ButtonRow({cmdAccept, cmdCancel})});
    TabAlongArrangement();
    PreferredColumns = 130;
    PreferredRows = 49;
}

ui::Layout frmBioReact::ReactionLayout() {
    using namespace ui;
    std::vector<Layout> rows = {
        Row({Field("Notation:", Row({optBio, optChem})), Stretch()}),
        Note("Coefficients of reactants are negative, those of products positive.")};
    for (int n = 0; n < cmbPart.Count(); ++n)
        rows.push_back(Field(std::to_string(n + 1) + ":",
                             Row({cmbPart(n), Field("Coefficient:", Narrow(txtCoeff(n), 10)),
                                  Field("Phase:", Narrow(cboPhase(n), 18)),
                                  Field("Sample:", Narrow(cboPartSample(n), 16))})));
    rows.push_back(Row({Stretch(), cmdEquate, cmdCheck}));
    rows.push_back(Group("Equation", {txtReaction, lblSurplus}));
    return PageLayout(Column(std::move(rows)), Next1);
}

ui::Layout frmBioReact::PageLayout(ui::Layout rows, ui::CommandButton& next) const {
    return ui::Column({std::move(rows), ui::Row({ui::Stretch(), next})});
}

void frmBioReact::WireEvents() {
    components_.Follow = [this] { Follow(); };
    for (ui::OptionButton* option : {&optBio, &optChem})
        option->OnClick = [this] { ShowReaction(); };
    cmdEquate.OnClick = [this] { Equate(); };
    cmdCheck.OnClick = [this] { CheckStoichiometry(); };
    Next1.OnClick = [this] { Next(Page::Reaction); };
    Next2.OnClick = [this] { Next(Page::Components); };
    Next3.OnClick = [this] { Next(Page::Property); };
    Next4.OnClick = [this] { Next(Page::Variables); };
    Next5.OnClick = [this] { Next(Page::Constraints); };
}

void frmBioReact::Load() {
    KVOGlobal& globals = Globals();
    globals.DialogAccepted = false;
    as_ = Pattern();
    globals.BioSetToRepeat = nullptr;
    if (globals.EditBioReact) record_ = globals.CurrentBR;
    Fill();
    if (record_) Caption("Edit: Bio Reaction Properties");
    optBio.SetFocus();
}

/// Helpers opened on the way have had answers of their own.
void frmBioReact::Unload() {
    Globals().DialogAccepted = accepted_;
    ChainForm::Unload();
}

void frmBioReact::Fill() {
    const clsBR none;
    const clsBR& set = as_ ? *as_ : none;
    const ui::FillingScope filling(*this);
    if (as_) (set.Notation ? optChem : optBio).Value(true);
    txtMethod.Text(set.Method);
    txtComment.Text(set.Header.DATACOMMENT);
    FillRows();
    components_.Fill(set.Components);
    for (BioQuantityPage* page : {&properties_, &variables_, &constraints_})
        page->Offer(set, "P");
    OfferSubjects();
    for (BioQuantityPage* page : {&properties_, &variables_, &constraints_})
        page->Fill(set.Quantities());
    ShowReaction();
}

void frmBioReact::FillRows() {
    std::vector<Participant> participants;
    if (as_)
        for (const BioParticipant& one : as_->Participants)
            participants.push_back({one.RN, one.SMPNM, one.coefficient, one.phase});
    participants_.Take(std::move(participants));
}

/// A person has changed who is in the solution, or made a compound or a sample on the way.
void frmBioReact::Follow() {
    participants_.FillCompounds();
    components_.Refresh();
    OfferSubjects();
    ShowReaction();
}

/// Quantities are said of participants and components as they stand on the form now.
void frmBioReact::OfferSubjects() {
    clsBR draft;
    WriteReaction(draft);
    std::vector<int> rows;
    for (int row = 0; row < participants_.Rows(); ++row)
        if (participants_.IsUsed(row)) rows.push_back(row);
    const auto subjects = BioSubjects(draft, rows, components_.Rows());
    for (BioQuantityPage* page : {&properties_, &variables_, &constraints_})
        page->OfferSubjects(subjects);
}

/// The equation in names; the formulas stand in the tool tip.
void frmBioReact::ShowReaction() {
    txtReaction.Text(participants_.NameEquation());
    txtReaction.ToolTip(participants_.FormulaEquation());
    lblSurplus.Caption(participants_.SurplusLine(!optBio.Value()));
}

/// Behind the last page stand the method and the comment.
void frmBioReact::Next(Page page) {
    if (!CheckPage(page)) return;
    if (page == Page::Constraints) {
        txtMethod.SetFocus();
        return;
    }
    ui::Control* const first[] = {&cmbComp(0), &cboProp(0), &cboVar(0), &cboConst(0)};
    first[static_cast<std::size_t>(page)]->SetFocus();
}

void frmBioReact::Equate() {
    if (!CheckFormulas()) return;
    const BalanceOutcome outcome = participants_.Equate(BalanceScale::WholeNumbers);
    if (outcome != BalanceOutcome::Balanced) return TellWhyUnbalanced(outcome);
    participants_.PutReactantsFirst();
    Follow();
}

/// A row without a coefficient counts on neither side.
void frmBioReact::CheckStoichiometry() {
    SlotTexts formulas = participants_.Formulas();
    const SlotTexts coefficients = participants_.Coefficients();
    for (std::size_t n = 0; n < formulas.size(); ++n)
        if (coefficients[n].empty()) formulas[n].clear();
    if (IsBalanced(formulas, coefficients))
        ui::Say("Reaction is balanced");
    else
        ui::Say("Reaction is NOT balanced", "Error");
}

} // namespace vexora
