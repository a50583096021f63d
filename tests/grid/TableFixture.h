// A form with one table, for tests of what all table dialogs share.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "grid/GridKey.h"
#include "grid/TablePaste.h"
#include "support/StrictDesktop.h"
#include "ui/Form.h"
#include "ui/Forms.h"

namespace vexora::test {

class TableFixture : public testing::Test {
protected:
    TableFixture() { form.Show(); }

    /// The cells behind the fixed row, columns parted by "|", rows by line ends.
    std::string Cells() const {
        std::string text;
        for (int row = 1; row < form.grid.Rows(); ++row) {
            for (int column = 0; column < form.grid.Columns(); ++column)
                text += (column > 0 ? "|" : "") + form.grid.Cell(row, column);
            text += "\n";
        }
        return text;
    }
    void Fill(const std::string& text) { PasteTable(undo, CleanTable(text), 1, 0); }
    void Press(const std::string& name) {
        ui::Key key = ui::ParseKey(name);
        GridKey(undo, key);
        EXPECT_TRUE(key.swallowed) << name;
    }

    struct TableForm : ui::Form {
        TableForm() : Form("frmTable", "Table") {}
        ui::Grid grid{*this, "tblData", 2, 3};
    };
    StrictDesktop desktop;
    ui::Forms forms{desktop};
    TableForm form;
    TableUndo undo{form.grid};
};

} // namespace vexora::test
