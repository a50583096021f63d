#include "entry/frmPasteView.h"

#include <algorithm>

#include "ui/Forms.h"

namespace vexora {

frmPasteView::frmPasteView() : Form("frmPasteView", "The block to be pasted") {
    using namespace ui;
    Arrangement = Column(
        {tblBlock, Field("To be looked at:", lstNotices), ButtonRow({cmdAccept, cmdFinish})});
    PreferredColumns = 80;
    PreferredRows = 28;
    HelpContext = 342;
    tblBlock.ShowsRowNumbers = true;
    tblBlock.Editable(false);
    DefaultButton = &cmdAccept;
    CancelButton = &cmdFinish;
    cmdAccept.OnClick = [this] {
        accepted_ = true;
        Hide();
    };
    cmdFinish.OnClick = [this] { Close(); };
}

void frmPasteView::Fill(const PastedTable& block) {
    const ui::Grid::Batch batch(tblBlock);
    tblBlock.Resize(static_cast<int>(block.rows.size()),
                    std::max(static_cast<int>(block.Columns()), 1));
    for (std::size_t row = 0; row < block.rows.size(); ++row) {
        for (std::size_t column = 0; column < block.rows[row].size(); ++column)
            tblBlock.Cell(static_cast<int>(row), static_cast<int>(column), block.rows[row][column]);
    }
    std::vector<std::string> lines;
    for (const PasteNotice& notice : block.notices)
        lines.push_back(notice.Line());
    lstNotices.Assign(std::move(lines));
    accepted_ = false;
}

bool IsWantedAsShown(const PastedTable& block) {
    auto& view = ui::Forms::Current().Get<frmPasteView>("frmPasteView");
    view.Fill(block);
    view.ShowModal();
    const bool accepted = view.IsAccepted();
    view.Close();
    return accepted;
}

} // namespace vexora
