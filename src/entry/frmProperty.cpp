#include "entry/frmProperty.h"

#include <algorithm>
#include <iterator>

#include "chem/clsMethod.h"
#include "entry/SystemInHand.h"
#include "globals/FormChain.h"
#include "globals/KVOGlobal.h"
#include "ui/Desktop.h"
#include "ui/Forms.h"

namespace vexora {

namespace {

const std::string Title = "Property and experimental method";
constexpr int HelpPropertyList = 30;

} // namespace

frmProperty::frmProperty() : Form("frmProperty", Title) {
    ArrangeControls();
    WireEvents();
    UseButtons(cmdOK, cmdFinish, [this] { Accept(); });
    HelpContext = 322;
}

void frmProperty::ArrangeControls() {
    using namespace ui;
    Arrangement = Column(
        {Field("Property group:", lstPropGroup), Field("Property:", lstProp),
         Field("Original units:", lstConv), Group(fraData, {Row({optOriginal, optSystem})}),
         Field("Method of measurement:", Row({lstMethod, cmdDetails})),
         Field("Method description:", txtMethod), Field("Experimental purpose:", lstExpPurpose),
         Field("Uncertainty factor:", Narrow(txtFactor, 8)),
         Group("Select any applicable statements", {lstNote}),
         Field("Comment (optional)", txtComment),
         Row({Group(fraInvariant, {Row({cmdSingle, cmdFixed})}),
              Group(fraVariable, {Row({cmdOne, cmdTwo, cmdThree})})}),
         ButtonRow({cmdOK, cmdFinish})});
    PreferredColumns = 100;
}

void frmProperty::WireEvents() {
    lstPropGroup.OnClick = [this] { GroupClick(); };
    lstProp.OnClick = [this] { PropertyClick(); };
    lstConv.OnClick = [this] { ConvClick(); };
    lstMethod.OnClick = [this] { MethodClick(); };
    cmdDetails.OnClick = [this] { Details(); };
    for (const Entry& entry : entries_)
        entry.button.OnClick = [this, &entry] { Enter(entry); };
    mnuList.OnClick = [] { ui::TheDesktop().ShowHelp(HelpPropertyList); };
}

void frmProperty::Load() {
    KVOGlobal& globals = Globals();
    // Opened from the shell it is the first link of a chain of dialogs and stays behind them.
    inChain_ = !IsModal();
    if (!globals.CurrentMethod) globals.CurrentMethod = std::make_shared<clsMethod>();
    if (inChain_) BeginSelection();
}

// Also when the form is shown again behind an entry dialog, or by one that wants a review.
void frmProperty::Activate() {
    KVOGlobal& globals = Globals();
    accepted_ = false;
    const std::string system = SystemInHand();
    Caption(Title + (system.empty() ? "" : " for " + system));
    if (IsModal()) {
        before_ = {globals.CurrentMethod->Method, globals.KeyRest};
        Fill();
    }
    ShowEntries();
}

bool frmProperty::QueryUnload() {
    if (!IsModal()) return true;
    // The details dialog has written into the globals already.
    if (!accepted_) {
        Globals().CurrentMethod->Method = before_.Method;
        Globals().KeyRest = before_.KeyRest;
    }
    if (inChain_) Hide(); // it is to come back when the entry dialog has closed
    return !inChain_;
}

void frmProperty::Unload() {
    if (inChain_) CloseForm();
}

void frmProperty::GroupClick() {
    rows_.clear();
    std::vector<std::string> names = {"SELECT THE PROPERTY"};
    // Entry 0 is the prompt.
    const int group = lstPropGroup.Index();
    if (group > 0)
        rows_ = OfferedIn(groups_[static_cast<std::size_t>(group - 1)]);
    else
        for (const PropertyGroupRow& each : groups_) // who knows the name needs no group
            std::ranges::move(OfferedIn(each), std::back_inserter(rows_));
    for (const PropertyRow& row : rows_)
        names.push_back(row.Property);
    lstProp.FirstIsPrompt = true;
    lstProp.Assign(std::move(names));
    lstProp.Index(0);
}

void frmProperty::PropertyClick() {
    if (lstMethod.Index() >= 0) methodBefore_ = lstMethod.Chosen();
    lstConv.Clear();
    lstMethod.Clear();
    methods_.clear();
    if (const PropertyRow* row = Chosen()) {
        FillUnits(*row);
        FillMethods(*row);
        // One method of a paper mostly gave several properties.
        if (!Filling) lstMethod.Choose(methodBefore_);
    }
    NoteList();
    MethodClick();
    ShowEntries();
}

void frmProperty::ConvClick() {
    const PropertyRow* row = Chosen();
    if (Filling || !row) return;
    // The entry asks a question and is no unit: the choice goes back before the answer is looked
    // at.
    if (lstConv.Chosen() == AllOtherUnits) {
        const auto factor = AskFactor(*row);
        const ui::FillingScope filling(*this);
        lstConv.Index(unitBefore_);
        if (factor) OfferFactor(*factor);
    }
    unitBefore_ = lstConv.Index();
}

void frmProperty::MethodClick() {
    ShowMethod();
    Details_Check();
}

void frmProperty::Details() {
    DropForeignTags();
    // The statements listed are those of the method.
    Globals().CurrentMethod->Method = ChosenMethod();
    ui::Forms::Current().Get("frmKey").ShowModal();
}

} // namespace vexora
