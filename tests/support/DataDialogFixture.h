// What the dialogs of data need around them: the tables as built, the dialogs, a desktop whose
// modal forms are worked on by steps that the test lays out beforehand.
#pragma once

#include "chem/clsMethod.h"
#include "globals/FormChain.h"
#include "globals/KVOGlobal.h"
#include "shell/RegisterForms.h"
#include "support/DocumentFixture.h"
#include "support/FailingFileSystem.h"

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace vexora::test {

class SteppedDesktop : public StrictDesktop {
public:
    SteppedDesktop() : StrictDesktop(&disk) {}
    ~SteppedDesktop() override { EXPECT_TRUE(steps_.empty()) << "a modal form never opened"; }

    /// What a person does on the next modal form.
    void OnModal(std::function<void(ui::Form&)> step) { steps_.push_back(std::move(step)); }
    void RunModal(ui::Form& form) override {
        if (steps_.empty()) {
            ADD_FAILURE() << "unexpected modal form " << form.Name();
            form.Close();
            return;
        }
        const auto step = std::move(steps_.front());
        steps_.pop_front();
        step(form);
        EXPECT_FALSE(form.IsVisible()) << form.Name() << " stays open";
    }
    void ShowHelp(int context) override { help = context; }
    int help = 0;

    /// What the next chooser of files gives.
    void OnChoose(std::string path) { chosen_ = std::move(path); }
    std::optional<std::string> Choose(const ui::FileChoice& choice) override {
        return chosen_ ? std::exchange(chosen_, std::nullopt) : StrictDesktop::Choose(choice);
    }
    FailingFileSystem disk;

private:
    std::deque<std::function<void(ui::Form&)>> steps_;
    std::optional<std::string> chosen_;
};

class DataDialogFixture : public testing::Test {
protected:
    DataDialogFixture() {
        const std::string share = VEXORA_SHARE_DIR;
        EXPECT_EQ(
            globals.Databases.OpenBoth(share + "/VXRLocal.mdb", share + "/VXR.mdb").value_or(""),
            "");
        RegisterForms(forms);
        globals.DataContext = "Pure";
        globals.CurrentMethod = std::make_shared<clsMethod>();
    }

    template <class T>
    T& Open(const std::string& name) {
        OpenInChain("frmMain", name);
        return forms.Get<T>(name);
    }
    /// A person picks an entry of a list.
    static void Pick(ui::ItemList& list, const std::string& entry) {
        ASSERT_GE(list.Find(entry), 0) << list.Name() << " lacks " << entry;
        list.UserChoose(list.Find(entry));
    }

    SteppedDesktop desktop;
    ui::Forms forms{desktop};
    KVOGlobal globals;
};

} // namespace vexora::test
