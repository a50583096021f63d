// A source to work on, the dialogs registered, and a person's hands for them.
#pragma once

#include "records/clsL.h"
#include "records/clsR.h"
#include "shell/RegisterForms.h"
#include "support/DocumentFixture.h"

#include <memory>
#include <string>

namespace vexora::test {

class DialogFixture : public DocumentFixture {
protected:
    DialogFixture() {
        RegisterForms(forms);
        auto source = std::make_shared<clsR>();
        source->YEARPUB = "2002";
        source->AUTHOR1 = "wag";
        source->AUTHORN = "0";
        source->AttachTo();
        globals.CurrentR = source;
        globals.CurrentKey = "R";
        globals.OpenForms = {"frmMain"};
    }
    ~DialogFixture() override { forms.CloseAll(); }

    template <class T>
    T& Open(const std::string& name) {
        forms.DropClosed();
        T& opened = forms.Get<T>(name);
        opened.Show();
        return opened;
    }

    static void Enter(ui::TextBox& box, const std::string& text) {
        box.SetFocus();
        box.UserReplaceAll(text);
    }
    static void Enter(ui::ComboBox& box, const std::string& text) {
        box.SetFocus();
        box.UserEdited(text);
    }
    /// Each character goes to the control that has the focus by then.
    static void Type(ui::TextBox& box, const std::string& text) {
        box.SetFocus();
        for (const char c : text)
            box.Owner().UserKey(ui::CharacterKey(static_cast<char32_t>(c)));
    }
    static void Pick(ui::ItemList& list, const std::string& text) {
        ASSERT_GE(list.Find(text), 0) << text;
        list.UserChoose(list.Find(text));
    }

    std::shared_ptr<clsL> AddCompound(const std::string& rn, const std::string& name,
                                      const std::string& formula) {
        auto compound = std::make_shared<clsL>();
        compound->RN = rn;
        compound->Name = name;
        compound->Formula = formula;
        compound->AttachTo(*globals.CurrentR);
        return compound;
    }
};

} // namespace vexora::test
