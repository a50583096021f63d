// A bare form with a table: what every table form gets from the editor, without the columns and
// checks of any of them.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "grid/TableEditor.h"
#include "reference/Numbers.h"
#include "support/FailingFileSystem.h"
#include "support/StrictDesktop.h"
#include "ui/Forms.h"

namespace vexora::test {

/// Two values with a note between them and a figure that is not typed into: x, n, y, f. The note
/// says what x was before it was entered anew; a value that is no number is a fault, a note of "?"
/// a doubt; rows with the same x are hinted at.
class BareTable : public ui::Form, public TableMenu, public TableRules {
public:
    BareTable() : Form("frmTable", "Table"), TableMenu(static_cast<ui::Form&>(*this)) {}

    ui::Grid tblData{*this, "tblData", 2, 4};
    ui::TextBox txtCell{*this, "txtCell"};
    ui::Label lblNotice{*this, "lblNotice"};
    ui::ListBox lstFindings{*this, "lstFindings"};
    ui::CommandButton cmdOther{*this, "cmdOther", "Other"};

    std::vector<int> ValueColumns() const override { return {0, 2}; }
    bool IsTypedInto(int column) const override { return column < 3; }
    std::string ColumnName(int column) const override {
        return column < 4 ? std::string(1, "xnyf"[column]) : "beside";
    }
    std::vector<Finding> FindingsOf(int row) const override {
        ++asked;
        std::vector<Finding> found;
        for (const int column : {0, 2}) {
            const std::string& cell = tblData.Cell(row, column);
            if (!cell.empty() && !IsNumeric(cell)) found.push_back({row, column, "No number"});
        }
        if (tblData.Cell(row, 1) == "?") found.push_back({row, 1, "Is that so?", false});
        return found;
    }
    std::vector<Finding> Hints() const override {
        ++looked;
        std::vector<Finding> hints;
        std::map<std::string, int> first;
        for (int row = 1; row < tblData.Rows(); ++row) {
            const std::string& x = tblData.Cell(row, 0);
            if (!x.empty() && !first.emplace(x, row).second)
                hints.push_back({row, 0, "Same x", false});
        }
        return hints;
    }
    void Follow(TableEdit& edit, int row, int column, const std::string& before,
                const EnteredColumns& entered) const override {
        if (column == 0 && entered.Any() && !entered.Has(1) && !before.empty())
            edit.Cell(row, 1, "was " + before);
    }
    bool MayGrowFor(int columns) const override { return columns % 2 == 0; }
    std::string Remark(int rows) const override { return rows > 4 ? "More than four rows" : ""; }
    bool IsWanted(const PastedTable& block) const override {
        shown = block.rows.size();
        return wanted;
    }

    mutable int asked = 0;         // rows whose findings were asked for
    mutable int looked = 0;        // times that hints were asked for
    mutable std::size_t shown = 0; // rows of the block that was shown
    bool wanted = true;
    TableEditor table{*this, {tblData, txtCell, lblNotice, lstFindings}, *this};
};

class EditorFixture : public testing::Test {
protected:
    EditorFixture() {
        form.Show();
        form.tblData.SetFocus();
        form.table.MoveTo(1, 0);
    }

    /// The cells behind the fixed row, columns parted by "|".
    std::string Cells() const {
        std::string text;
        for (int row = 1; row < form.tblData.Rows(); ++row) {
            for (int column = 0; column < form.tblData.Columns(); ++column)
                text += (column > 0 ? "|" : "") + form.tblData.Cell(row, column);
            text += ";";
        }
        return text;
    }
    void Paste(const std::string& text) { form.tblData.UserPaste(text); }
    /// Keys go to the control that has the focus by then.
    void Press(const std::vector<std::string>& keys) {
        for (const std::string& key : keys)
            form.UserKey(ui::ParseKey(key));
    }
    void Select(int top, int left, int bottom, int right) {
        form.tblData.UserSelect({top, left, bottom, right});
    }
    std::string Selected() const {
        const ui::Grid::Block& block = form.tblData.Selection();
        return std::to_string(block.top) + "," + std::to_string(block.left);
    }
    std::string Findings() const {
        std::string text;
        for (const std::string& line : form.lstFindings.Items())
            text += line + ";";
        return text;
    }

    struct TableDesktop : StrictDesktop {
        TableDesktop() : StrictDesktop(&disk) {}
        std::optional<std::string> Choose(const ui::FileChoice&) override { return chosen; }
        FailingFileSystem disk;
        std::optional<std::string> chosen;
    };
    TableDesktop desktop;
    ui::Forms forms{desktop};
    BareTable form;
};

} // namespace vexora::test
