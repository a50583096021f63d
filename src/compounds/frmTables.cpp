#include "compounds/frmTables.h"

#include "chem/clsAtom.h"
#include "globals/KVOGlobal.h"
#include "reference/CompoundTable.h"
#include "reference/SafeFile.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"
#include "ui/Desktop.h"

namespace vexora {

namespace {

constexpr const char* Lists = "Lists of compounds (*.tsv *.csv *.txt)";

std::string Counted(std::size_t count, const std::string& what) {
    return std::to_string(count) + " " + what;
}

std::vector<std::string> LinesWithText(const std::string& text) {
    std::vector<std::string> lines;
    for (const std::string& line : Split(text, '\n'))
        if (const auto trimmed = Trim(line); !trimmed.empty()) lines.emplace_back(trimmed);
    return lines;
}

} // namespace

frmTables::frmTables() : Form("frmTables", "Add to the compound tables") {
    using namespace ui;
    Arrangement = Column({Field("CAS Registry Number:", Row({Narrow(txtRN, 14), lblKnown})),
                          Field("Empirical formula:", txtFormula),
                          Field("Names, one a line, the usual one first:", txtNames),
                          Field("Result:", lblResult), Field("Refused:", lstRefused),
                          Row({cmdFile, cmdSave}), ButtonRow({cmdAdd, cmdClose})});
    PreferredColumns = 70;
    HelpContext = 245;
    UseButtons(cmdAdd, cmdClose, [this] { Add(); });
    txtRN.OnChange = [this] { NumberChanged(); };
    cmdFile.OnClick = [this] { AddFile(); };
    cmdSave.OnClick = [this] { SaveAdded(); };
}

void frmTables::Load() {
    ShowResult("");
}

/// A known number shows what it stands for and brings its formula.
void frmTables::NumberChanged() {
    const auto rn = ReadRegistryNumber(txtRN.Text());
    const auto rows = rn ? CompoundsOf(*rn) : std::vector<CompoundRow>();
    lblKnown.Caption(rows.empty() ? "" : rows.front().NAME);
    if (!rows.empty()) txtFormula.Text(rows.front().FORMULA);
}

void frmTables::Add() {
    const auto rn = ReadRegistryNumber(txtRN.Text());
    if (!rn) {
        Refuse(txtRN, "Enter a valid registry number, as 7732-18-5");
        return;
    }
    const std::string typed(TrimBlanks(txtFormula.Text()));
    if (const std::string meant = HydrateReading(typed); !meant.empty()) {
        Refuse(txtFormula, "This may be a hydrate, " + meant + "; write its dot as *");
        return;
    }
    const std::string formula = CanonicalFormula(typed);
    if (formula.empty()) {
        Refuse(txtFormula, "Enter a valid empirical formula");
        return;
    }
    try {
        StoreCompound(*rn, formula);
    } catch (const DatabaseError& error) {
        ui::Say(error.what());
    }
}

void frmTables::StoreCompound(std::int64_t rn, const std::string& formula) {
    const std::vector<std::string> names = LinesWithText(txtNames.Text());
    if (names.empty()) {
        Refuse(txtNames, "Enter a name");
        return;
    }
    const CompoundAdded result = AddCompound(Globals().CompoundDb(), rn, formula, names);
    if (!result.fault.empty()) {
        Refuse(txtNames, result.fault);
        return;
    }
    for (ui::TextBox* box : {&txtRN, &txtFormula, &txtNames})
        box->Text("");
    ShowResult(names.front() + ": " + Counted(result.added, "added, ") +
               Counted(result.present, "already there"));
    txtRN.SetFocus();
}

void frmTables::AddFile() {
    const auto path = ui::TheDesktop().Choose({false, {}, {}, Lists});
    if (!path) return;
    try {
        const ImportResult result =
            ImportCompounds(*path, Globals().CompoundDb(), {CanonicalFormula, {}, HydrateReading});
        if (!result.readable) {
            ui::Say(*path + "\n" +
                    (result.fault.empty() ? "The file cannot be read" : result.fault));
            return;
        }
        std::vector<std::string> refused;
        for (const LineRemark& remark : result.skipped)
            refused.push_back("line " + std::to_string(remark.line) + ": " + remark.text);
        ShowResult(Counted(result.added, "added, ") + Counted(result.present, "already there, ") +
                       Counted(result.skipped.size(), "refused"),
                   std::move(refused));
    } catch (const DatabaseError& error) {
        ui::Say(error.what());
    }
}

void frmTables::SaveAdded() {
    const std::size_t count = AddedCompounds(Globals().CompoundDb()).size();
    if (count == 0) return ui::Say("Nothing was added here yet");
    const auto path = ui::TheDesktop().Choose({true, {}, "compounds.tsv", Lists});
    if (!path) return;
    ui::FileSystem& files = ui::TheDesktop().Files();
    if (files.Exists(*path) && !ui::AskYesNo(*path + " exists already\nReplace it?")) return;
    const SaveOutcome outcome =
        WriteSafely(files, *path, AddedCompoundsText(Globals().CompoundDb()), false);
    if (!outcome.fault.empty()) ui::Say(*path + "\n" + outcome.fault);
    if (!outcome.isSaved) return;
    ShowResult(Counted(count, "names written to ") + *path);
}

void frmTables::ShowResult(const std::string& text, std::vector<std::string> refused) {
    lblResult.Caption(text);
    lstRefused.Assign(std::move(refused));
}

} // namespace vexora
