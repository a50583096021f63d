#pragma once

#include <string>
#include <vector>

#include "globals/FormChain.h"

namespace vexora {

/// "Add reference": finds the source of a new document in the reference database, or leads on to
/// the description of a new one. A source that came with the database is known everywhere, so its
/// description is neither edited nor printed into the record file; one that was added here is new
/// to every other workplace.
class frmRef : public ChainForm {
public:
    frmRef();

    ui::TextBox txtYear{*this, "txtYear"};
    ui::TextBox txtAut1{*this, "txtAut1"};
    ui::TextBox txtAut2{*this, "txtAut2"};
    ui::CommandButton cmdVerify{*this, "cmdVerify", "Search"};
    ui::ListBox lstSourceDoc{*this, "lstSourceDoc"};
    ui::TextBox txtSeqNo{*this, "txtSeqNo"};
    ui::ComboBox cboSource{*this, "cboSource"};
    ui::CommandButton cmdAccept{*this, "cmdAccept", "Accept"};
    ui::CommandButton cmdCreate{*this, "cmdCreate", "Create new document description"};
    ui::CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

    void Load() override;
    void Activate() override;

private:
    struct Row {
        std::string SOURCE, TITLE, YEARPUB, AUTHOR1, AUTHOR2, AUTHORN;
        bool isNew = false; // added by this workplace
    };

    void Identification_Change();
    void cmdVerify_Click();
    void lstSourceDoc_Click();
    void cmdAccept_Click();
    void cmdCreate_Click();

    void ClearResults();
    void FindRows();
    const Row* ChosenRow() const;
    bool CheckIdentification();
    bool CheckChoice();
    void Store(const Row& row) const;

    std::vector<Row> rows_; // behind the first entry of lstSourceDoc, in its order
};

} // namespace vexora
