// How long the largest table keeps a person waiting: 16384 rows by nine columns. Each step has to
// stay under a second in a release build.
#include <benchmark/benchmark.h>

#include <memory>
#include <string>

#include "dialogs/RegisterDialogs.h"
#include "dialogs/frmData2.h"
#include "globals/KVOGlobal.h"
#include "records/clsTwo.h"
#include "ui/Desktop.h"
#include "ui/Forms.h"

namespace vexora {
namespace {

constexpr int rows = 16384;

/// Confirms whatever is asked; the statements are accepted as they are.
class BenchDesktop : public ui::Desktop {
public:
    ui::Answer Show(const ui::Message& message) override {
        return message.buttons == ui::MessageButtons::YesNoAll ? ui::Answer::YesToAll
                                                               : ui::Answer::Yes;
    }
    std::optional<std::string> Ask(const ui::Input&) override { return {}; }
    std::optional<std::string> Choose(const ui::FileChoice&) override { return {}; }
    std::string ClipboardText() override { return {}; }
    void ClipboardText(const std::string&) override {}
    void Hourglass(bool) override {}
    void ShowHelp(int) override {}
    void Print(const std::string&, const std::string&) override {}
    ui::Date Today() override { return {2026, 1, 15}; }
    ui::FileSystem& Files() override { std::abort(); }
    void RunModal(ui::Form& form) override {
        Globals().DialogAccepted = true;
        form.Close();
    }
    void EndProgram() override {}
};

struct Statements : ui::Form {
    Statements() : Form("frmUnc", "Statements") {}
};

/// A density against temperature and pressure, with statements in every row.
struct Table {
    Table() {
        const std::string share = VEXORA_SHARE_DIR;
        globals.Databases.OpenBoth(share + "/VXRLocal.mdb", share + "/VXR.mdb");
        RegisterDialogs(forms);
        forms.Register<Statements>("frmUnc");
        set->PRPCODE = "VDN";
        set->PROPERTY_UNIT = "S";
        set->nVar = 2;
        set->VARIABLE1 = "T";
        set->VARIABLE2 = "P";
        set->VAR1_UNIT = set->VAR2_UNIT = "S";
        clsX& property = set->UX[0];
        property.iDS = property.iRep = property.iUnc = property.iCD = true;
        globals.CurrentTwo = set;
    }
    ~Table() { forms.CloseAll(); }

    frmData2& Open() {
        auto& form = forms.Get<frmData2>("frmData2");
        form.Show();
        return form;
    }

    BenchDesktop desktop;
    ui::Forms forms{desktop};
    KVOGlobal globals;
    std::shared_ptr<clsTwo> set = std::make_shared<clsTwo>();
};

std::string Block() {
    std::string text;
    for (int row = 0; row < rows; ++row) {
        const std::string n = std::to_string(row);
        text += std::to_string(275 + row % 300) + ".15\t" + std::to_string(100 + row % 900) + "\t" +
                std::to_string(900 + row % 99) + "." + n + "\t0.010\t0.020\t5\t0.030\t0.5%\n";
    }
    return text;
}

void Paste(benchmark::State& state) {
    Table table;
    frmData2& form = table.Open();
    const std::string text = Block();
    for (auto _ : state)
        form.tblData.UserPaste(text);
}

/// All checks with the evaluation of every row, and storing.
void Accept(benchmark::State& state) {
    Table table;
    const std::string text = Block();
    for (auto _ : state) {
        state.PauseTiming();
        frmData2& form = table.Open();
        form.tblData.UserPaste(text);
        state.ResumeTiming();
        form.cmdSave.UserClick();
        state.PauseTiming();
        table.forms.DropClosed();
        if (table.set->recData.Count() != rows) state.SkipWithError("rows are missing");
        state.ResumeTiming();
    }
}

void Load(benchmark::State& state) {
    Table table;
    table.Open().tblData.UserPaste(Block());
    table.forms.Get<frmData2>("frmData2").cmdSave.UserClick();
    table.forms.DropClosed();
    for (auto _ : state) {
        frmData2& form = table.Open();
        state.PauseTiming();
        if (form.tblData.Rows() != rows + 2) state.SkipWithError("rows are missing");
        form.Close();
        table.forms.DropClosed();
        state.ResumeTiming();
    }
}

/// One typed cell in the full table.
void TypeCell(benchmark::State& state) {
    Table table;
    frmData2& form = table.Open();
    form.tblData.UserPaste(Block());
    int typed = 0;
    for (auto _ : state)
        form.tblData.UserCell(8000, 2, std::to_string(900 + typed++ % 90));
}

void UndoOfPaste(benchmark::State& state) {
    Table table;
    frmData2& form = table.Open();
    form.tblData.UserPaste(Block());
    for (auto _ : state) {
        form.mnuUndo.UserClick();
        form.mnuRedo.UserClick();
    }
}

BENCHMARK(Load)->Unit(benchmark::kMillisecond);
BENCHMARK(Paste)->Unit(benchmark::kMillisecond);
BENCHMARK(Accept)->Unit(benchmark::kMillisecond);
BENCHMARK(TypeCell)->Unit(benchmark::kMillisecond);
BENCHMARK(UndoOfPaste)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace vexora

BENCHMARK_MAIN();
