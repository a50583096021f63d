// The description of a source with its helper dialogs, as a user works on them.
#pragma once

#include "globals/FormChain.h"
#include "records/clsAuthor.h"
#include "records/clsR.h"
#include "shell/RegisterForms.h"
#include "sources/frmAuthor.h"
#include "sources/frmDocument.h"
#include "support/DocumentFixture.h"

namespace vexora::test {

class SourceFixture : public DocumentFixture {
protected:
    SourceFixture() { RegisterForms(forms); }

    static void Set(ui::TextBox& box, const std::string& text) {
        box.SetFocus();
        box.UserReplaceAll(text);
        box.Owner().FocusTo(nullptr);
    }
    static void Set(ui::Form& owner, const std::string& name, const std::string& text) {
        ui::Control* control = owner.Find(name);
        ASSERT_NE(control, nullptr) << owner.Name() << "." << name;
        if (auto* combo = dynamic_cast<ui::ComboBox*>(control)) {
            combo->SetFocus();
            combo->UserEdited(text);
            owner.FocusTo(nullptr);
        } else {
            Set(dynamic_cast<ui::TextBox&>(*control), text);
        }
    }
    static void Click(ui::Form& owner, const std::string& name) {
        ui::Control* control = owner.Find(name);
        ASSERT_NE(control, nullptr) << owner.Name() << "." << name;
        control->UserClick();
    }
    static void Choose(ui::ItemList& list, const std::string& entry) {
        list.UserChoose(list.Find(entry));
        EXPECT_EQ(list.Chosen(), entry);
    }
    static void Type(ui::Control& control, const std::string& text) {
        control.SetFocus();
        for (const char c : text)
            control.Owner().UserKey(ui::CharacterKey(static_cast<unsigned char>(c)));
    }

    frmDocument& OpenNew() {
        OpenInChain("frmMain", "frmDocument");
        return forms.Get<frmDocument>("frmDocument");
    }

    using Names = std::vector<std::pair<std::string, std::string>>;
    /// Opens the form of authors and puts these, last and first names, in place of the present
    /// ones.
    void GiveAuthors(frmDocument& document, const Names& names) {
        desktop.ExpectModal("frmAuthor", [names](ui::Form& authors) {
            auto& present = dynamic_cast<frmAuthor&>(authors).lstAuthors;
            while (present.Count() > 0) {
                present.UserChoose(0);
                Click(authors, "cmdRemove");
            }
            for (const auto& [last, first] : names) {
                Set(authors, "txtLast", last);
                Set(authors, "txtFirst", first);
                Click(authors, "cmdAdd");
            }
            Click(authors, "cmdFinish");
        });
        document.txtAuthors.UserClick();
    }

    /// A description that lacks nothing.
    frmDocument& OpenComplete() {
        frmDocument& document = OpenNew();
        Choose(document.cboTypeDoc, "Unpublished");
        Set(document.txtTitle, "Density of heavy water");
        document.txtSource.UserClick();
        Set(document.txtYear, "2011");
        GiveAuthors(document, {{"Zymurgist", "Q."}, {"Ab-Cd Ef", "John Paul"}});
        return document;
    }

    std::string Registered() const {
        std::string text;
        auto rows = Globals().CompoundDb().Query(
            "select * from SOURCE_REFINFO where NEW<>0 order by rowid");
        for (; !rows.IsEnd(); rows.MoveNext()) {
            for (const char* field :
                 {"YEARPUB", "AUTHOR1", "AUTHOR2", "AUTHORN", "SOURCE", "TITLE"})
                text += rows.Text(field) + "|";
            text += "\n";
        }
        return text;
    }
};

} // namespace vexora::test
