// An open table of densities at temperatures, whose dialog of statements a test lays out itself.
#pragma once

#include <memory>
#include <string>

#include "records/clsTwo.h"
#include "support/DataDialogFixture.h"
#include "tables/frmData2.h"

namespace vexora::test {

class frmData2Fixture : public DataDialogFixture {
protected:
    frmData2Fixture() {
        set = std::make_shared<clsTwo>();
        set->PRPCODE = "VDN";
        set->PROPERTY_UNIT = "S";
        set->PHASE1 = "L";
        set->VARIABLE1 = "T";
        set->VAR1_UNIT = "S";
        globals.CurrentTwo = set;
        // Without the dialog of statements unless a test brings one.
        forms.Register("frmUnc", [this] { return std::make_unique<Statements>(*this); });
    }
    ~frmData2Fixture() override { forms.CloseAll(); }

    struct Statements : ui::Form {
        explicit Statements(frmData2Fixture& fixture)
            : Form("frmUnc", "Statements"), test(fixture) {}
        frmData2Fixture& test;
    };

    void TwoVariables() {
        set->nVar = 2;
        set->VARIABLE2 = "P";
        set->VAR2_UNIT = "S";
    }
    frmData2& OpenTable() {
        form_ = &Open<frmData2>("frmData2");
        return *form_;
    }
    void Paste(const std::string& text) { form_->tblData.UserPaste(text); }
    void Accept(bool confirmed = true) {
        desktop.OnModal([this, confirmed](ui::Form& form) {
            EXPECT_EQ(form.Name(), "frmUnc");
            globals.DialogAccepted = confirmed;
            form.Close();
        });
        form_->cmdSave.UserClick();
    }
    void Discard(ui::Answer answer = ui::Answer::Yes) {
        desktop.Expect("The table has been changed\nDiscard the changes?", answer);
    }
    void Press(const std::string& key) { form_->UserKey(ui::ParseKey(key)); }
    std::string Cells() const {
        std::string text;
        for (int row = 0; row < form_->tblData.Rows(); ++row) {
            for (int column = 0; column < form_->tblData.Columns(); ++column)
                text += (column > 0 ? "|" : "") + form_->tblData.Cell(row, column);
            text += ";";
        }
        return text;
    }
    std::string Rows() const {
        std::string text;
        for (const clsData& row : set->recData) {
            for (int n = 1; n <= set->nVar; ++n)
                text += row.VARIABLE(n) + " ";
            text += row.PRPVALUE() + " " + row.PRPUNCERTY + ";";
        }
        return text;
    }
    std::string Findings() const {
        std::string text;
        for (const std::string& line : form_->lstFindings.Items())
            text += line + ";";
        return text;
    }
    void AddRow(const std::string& t, const std::string& value, bool original = true) {
        clsData& row = set->recData.Add({});
        row.Values = {value, t, "", ""};
        row.PRPUNCERTY = "0.1";
        row.TIELINE = "7";
        row.inOriginalUnits = original;
    }

    std::shared_ptr<clsTwo> set;
    frmData2* form_ = nullptr;
};

} // namespace vexora::test
