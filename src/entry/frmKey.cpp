#include "entry/frmKey.h"

#include "chem/CommentTags.h"
#include "chem/clsMethod.h"
#include "globals/KVOGlobal.h"

namespace vexora {

frmKey::frmKey() : Form("frmKey", "Experiment details") {
    Arrangement =
        ui::Column({ui::Note("Select the statements, which are true for the reported measurement"),
                    lstKey, ui::ButtonRow({cmdAccept, cmdCancel})});
    UseButtons(cmdAccept, cmdCancel, [this] { Accept(); });
    HelpContext = 315;
    PreferredColumns = 80;
}

void frmKey::Load() {
    KVOGlobal& globals = Globals();
    rows_ = Questions(globals.CurrentMethod->Method, globals.DataContext);
    const CommentTags tags = CommentTags::OfTags(globals.KeyRest);
    for (const QuestionRow& row : rows_) {
        lstKey.Add(row.Question);
        lstKey.Selected(lstKey.Count() - 1, tags.Has(row.Key));
    }
    if (!rows_.empty()) return;
    // Nothing to tick: the caller goes on as if it had been accepted.
    if (globals.KeyRest.empty()) globals.KeyRest = ":";
    Close();
}

void frmKey::Accept() {
    CommentTags tags = CommentTags::OfTags(Globals().KeyRest);
    // Only tags that were listed: others may be of statements that this edition does not know.
    for (int i = 0; i < lstKey.Count(); ++i)
        tags.Set(rows_[static_cast<std::size_t>(i)].Key, lstKey.Selected(i));
    Globals().KeyRest = tags.Stored();
    Close();
}

} // namespace vexora
