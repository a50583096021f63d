#include "compounds/SubstanceSearch.h"
#include "compounds/frmSubst.h"

namespace vexora {

/// Names that begin with what was typed drop down below it; the search has its own list.
void frmSubst::OfferNames() {
    const std::string typed = txtName.Text();
    txtName.Assign(NamesBeginningWith(typed));
    txtName.Text(typed); // the entry that has it is the chosen one
}

/// A name that is all there is needs no list.
void frmSubst::UnfoldNames() {
    OfferNames();
    txtName.Unfolded(txtName.Count() > 1 || txtName.Index() < 0);
}

/// A name picked there is taken as one picked from the results of a search.
void frmSubst::NamePicked() {
    if (Filling) return;
    const std::vector<CompoundRow> rows = CompoundsNamed(txtName.Text());
    if (!rows.empty()) TakeRow(rows.front());
}

/// While no row is picked Enter behind a name looks for it: there is nothing to accept yet.
void frmSubst::NameKey(const ui::Key& key) {
    const std::string name = txtName.Text();
    const bool isPicked = row_ && row_->NAME == name;
    const bool finds = key.name == "Enter" && !name.empty() && !isPicked && cmdFind.IsUsable();
    DefaultButton = finds ? &cmdFind : &cmdAccept;
}

} // namespace vexora
