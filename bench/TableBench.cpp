// How long the largest table keeps a person waiting: 16384 rows by nine columns. Each step has to
// stay under a second in a release build. Steps that one press of a key sets off stand as one
// figure: a paste brings its marks with it, accepting its checks and evaluation.
#include <benchmark/benchmark.h>

#include <memory>
#include <string>

#include "BenchDesktop.h"
#include "globals/KVOGlobal.h"
#include "records/LineWriter.h"
#include "records/clsM.h"
#include "records/clsMV.h"
#include "records/clsR.h"
#include "records/clsTwo.h"
#include "reference/Numbers.h"
#include "shell/DocumentText.h"
#include "shell/RegisterForms.h"
#include "tables/frmData2.h"
#include "ui/Forms.h"

namespace vexora {
namespace {

constexpr int rows = 16384;

struct Statements : ui::Form {
    Statements() : Form("frmUnc", "Statements") {}
};

/// A density against temperature and pressure, with statements in every row.
struct Table {
    Table() {
        const std::string share = VEXORA_SHARE_DIR;
        globals.Databases.OpenBoth(share + "/VXRLocal.mdb", share + "/VXR.mdb");
        RegisterForms(forms);
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

/// A table of nine columns from its text to checked cells; mawk sums the same one.
void PasteOfNineColumns(benchmark::State& state) {
    Table table;
    table.set->UX[1].iUnc = true;
    frmData2& form = table.Open();
    std::string text;
    for (int row = 0; row < rows; ++row) {
        const std::string n = std::to_string(row);
        text += std::to_string(275 + row % 300) + ".15\t0.02\t" + std::to_string(100 + row % 900) +
                "\t" + std::to_string(900 + row % 99) + "." + n +
                "\t0.010\t0.020\t5\t0.030\t0.5%\n";
    }
    for (auto _ : state)
        form.tblData.UserPaste(text);
    if (form.tblData.Rows() < rows || form.tblData.Columns() != 10)
        state.SkipWithError("cells are missing");
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

/// A table in which every value is doubtful: as many marks as there can be.
std::string DoubtfulBlock() {
    std::string text;
    for (int row = 0; row < rows; ++row)
        text += "2750\t-1\t9000." + std::to_string(row) + "\tx\tx\tx\tx\tx\n";
    return text;
}

void PasteOfDoubtfulValues(benchmark::State& state) {
    Table table;
    frmData2& form = table.Open();
    const std::string text = DoubtfulBlock();
    for (auto _ : state)
        form.tblData.UserPaste(text);
    if (form.tblData.CellMarks().size() < 8 * rows) state.SkipWithError("marks are missing");
}

void TypeCellAmongDoubtfulValues(benchmark::State& state) {
    Table table;
    frmData2& form = table.Open();
    form.tblData.UserPaste(DoubtfulBlock());
    int typed = 0;
    for (auto _ : state)
        form.tblData.UserCell(8000, 3, std::to_string(typed++ % 90));
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

/// The same where all rows are one curve, whose points are held against their neighbours.
void TypeCellOfACurve(benchmark::State& state) {
    Table table;
    table.set->nVar = 1;
    table.set->UX[0] = clsX();
    frmData2& form = table.Open();
    std::string text;
    for (int row = 0; row < rows; ++row)
        text += std::to_string(275 + row / 100) + "." + std::to_string(100 + row % 100) + "\t" +
                NumberText(1100.0 - row * 0.03 - row * row * 1e-6) + "\n";
    form.tblData.UserPaste(text);
    int typed = 0;
    for (auto _ : state)
        form.tblData.UserCell(8000, 1, std::to_string(790 + typed++ % 5));
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

void Clear(benchmark::State& state) {
    Table table;
    frmData2& form = table.Open();
    form.tblData.UserPaste(Block());
    for (auto _ : state) {
        form.cmdClear.UserClick();
        state.PauseTiming();
        form.mnuUndo.UserClick();
        state.ResumeTiming();
    }
}

/// Ctrl+A and a key of the number pad on every cell.
void TenthOfAll(benchmark::State& state) {
    Table table;
    frmData2& form = table.Open();
    form.tblData.UserPaste(Block());
    form.tblData.SetFocus();
    form.UserKey(ui::ParseKey("Ctrl+A"));
    for (auto _ : state) {
        form.UserKey(ui::ParseKey("Num/"));
        state.PauseTiming();
        form.mnuUndo.UserClick();
        state.ResumeTiming();
    }
}

void FromTwoDimensions(benchmark::State& state) {
    Table table;
    frmData2& form = table.Open();
    std::string text = "T";
    for (int column = 0; column < 128; ++column)
        text += "\t" + std::to_string(100 + column);
    for (int row = 0; row < rows / 128; ++row) {
        text += "\n" + std::to_string(275 + row);
        for (int column = 0; column < 128; ++column)
            text += "\t" + std::to_string(900 + column) + ".50";
    }
    form.tblData.UserPaste(text + "\n");
    for (auto _ : state) {
        form.mnuAction2D.UserClick();
        state.PauseTiming();
        if (form.tblData.Rows() != rows + 2) state.SkipWithError("rows are missing");
        form.mnuUndo.UserClick();
        state.ResumeTiming();
    }
}

/// A ternary in two phases: three variables, the property, statements and the number of the tie
/// line in every row.
struct TiedTable : Table {
    TiedTable() {
        mixture->MixType = tied->MixType = 3;
        tied->Load("^3 1 1 1 W1 S DIR 1 Y L1 L2 -4 T C W1 S W2 S & & & & & &");
        tied->Variables[0].phase = "L1";
        tied->PROPERTY_UNIT = tied->Variables[1].unit = tied->Variables[2].unit = "0.01";
        tied->Parent = mixture.get();
        for (clsX& item : tied->UX)
            item.iUnc = true;
        tied->UX[0].iRep = true;
        globals.CurrentMV = tied;
        globals.DataContext = tied->DataContext();
    }
    static std::string Rows() {
        std::string text;
        for (int row = 0; row < rows; ++row) {
            const std::string n = std::to_string(row);
            text += n + "\t" + std::to_string(5 + row % 90) + ".25\t0.05\t" +
                    std::to_string(row % 50) + "." + n + "\t0.1\t" + std::to_string(row % 40) +
                    ".75\t0.1\t" + std::to_string(row % 70) + ".50\t0.02\t3\t0.05\n";
        }
        return text;
    }

    std::shared_ptr<clsM> mixture = std::make_shared<clsM>();
    std::shared_ptr<clsMV> tied = std::make_shared<clsMV>();
};

void PasteTied(benchmark::State& state) {
    TiedTable table;
    frmData2& form = table.Open();
    const std::string text = TiedTable::Rows();
    for (auto _ : state)
        form.tblData.UserPaste(text);
    if (form.lstFindings.Count() > 0) state.SkipWithError("findings in a sound table");
}

void AcceptTied(benchmark::State& state) {
    TiedTable table;
    const std::string text = TiedTable::Rows();
    for (auto _ : state) {
        state.PauseTiming();
        frmData2& form = table.Open();
        form.tblData.UserPaste(text);
        state.ResumeTiming();
        form.cmdSave.UserClick();
        state.PauseTiming();
        table.forms.DropClosed();
        if (table.tied->recData.Count() != rows) state.SkipWithError("rows are missing");
        state.ResumeTiming();
    }
}

void TypeTiedCell(benchmark::State& state) {
    TiedTable table;
    frmData2& form = table.Open();
    form.tblData.UserPaste(TiedTable::Rows());
    int typed = 0;
    for (auto _ : state)
        form.tblData.UserCell(8000, 3, std::to_string(typed++ % 50));
}

/// The document with the table, from its text to the records and back.
struct Document : Table {
    Document() {
        globals.tvwTree = &form.tvwTree;
        Open().tblData.UserPaste(Block());
        forms.Get<frmData2>("frmData2").cmdSave.UserClick();
        forms.DropClosed();
        LineWriter out;
        out.Line("^R 2031 mue & 12");
        out.Line("^J#S#O#J. Nowhere#A title#a#A.#n#P#2#c1#C#0021-9568#b");
        out.Line("^L 7732185 DNNNN P");
        out.Line("^S 1 cm");
        set->PRPSETNO = "1";
        set->SMPNM = "1";
        set->PrintAll(out);
        text = "\n" + out.Text();
        globals.CurrentTwo = nullptr;
        set.reset();
    }
    void Read() {
        form.tvwTree.Clear();
        globals.recR.Clear();
        globals.ForgetCurrent();
        whole = ReadDocument(text, ReadPurpose::Look).whole;
    }

    struct TreeForm : ui::Form {
        TreeForm() : Form("frmTree", "") {}
        ui::TreeView tvwTree{*this, "tvwTree"};
    } form;
    std::string text;
    bool whole = false;
};

void ReadDocument(benchmark::State& state) {
    Document document;
    for (auto _ : state)
        document.Read();
    if (!document.whole) state.SkipWithError("not read");
}

void WriteDocument(benchmark::State& state) {
    Document document;
    document.Read();
    std::string written;
    for (auto _ : state)
        written = DocumentAsRecords();
    if (written.size() < document.text.size() / 2) state.SkipWithError("lines are missing");
}

BENCHMARK(Load)->Unit(benchmark::kMillisecond);
BENCHMARK(Paste)->Unit(benchmark::kMillisecond);
BENCHMARK(PasteOfNineColumns)->Unit(benchmark::kMillisecond);
BENCHMARK(Accept)->Unit(benchmark::kMillisecond);
BENCHMARK(TypeCell)->Unit(benchmark::kMillisecond);
BENCHMARK(TypeCellOfACurve)->Unit(benchmark::kMillisecond);
BENCHMARK(PasteTied)->Unit(benchmark::kMillisecond);
BENCHMARK(AcceptTied)->Unit(benchmark::kMillisecond);
BENCHMARK(TypeTiedCell)->Unit(benchmark::kMillisecond);
BENCHMARK(UndoOfPaste)->Unit(benchmark::kMillisecond);
BENCHMARK(PasteOfDoubtfulValues)->Unit(benchmark::kMillisecond);
BENCHMARK(TypeCellAmongDoubtfulValues)->Unit(benchmark::kMillisecond);
BENCHMARK(Clear)->Unit(benchmark::kMillisecond);
BENCHMARK(TenthOfAll)->Unit(benchmark::kMillisecond);
BENCHMARK(FromTwoDimensions)->Unit(benchmark::kMillisecond);
BENCHMARK(ReadDocument)->Unit(benchmark::kMillisecond);
BENCHMARK(WriteDocument)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace vexora
