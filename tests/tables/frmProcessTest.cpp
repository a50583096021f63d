#include "tables/frmProcess.h"

#include "export/MixtureExportFixture.h"
#include "globals/FormChain.h"
#include "records/clsL.h"
#include "records/clsM.h"
#include "records/clsMZ.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "records/clsTwo.h"
#include "shell/RegisterForms.h"
#include "tables/ProcessWords.h"

namespace vexora::test {
namespace {

const std::string Boiling = "95.5\t101.325\t0.0190\t0.1700\n89.0\t101.325\t0.0721\t0.3891\n"
                            "78.15\t101.325\t0.8943\t0.8943\n";

class frmProcessTest : public MixtureExportFixture {
protected:
    frmProcessTest() { RegisterForms(forms); }
    ~frmProcessTest() override { forms.CloseAll(); }

    frmProcess& Mixture(const std::string& line = kBinary) {
        Read(line);
        globals.CurrentM = globals.recR.Item(std::size_t{1})->recM.Item(std::size_t{1});
        globals.SystemClass = globals.CurrentM->MixType == 2 ? "Bin" : "Tern";
        globals.ChosenSamples = {"1", "2", "1"};
        return Begin();
    }
    /// Water, its first sample.
    frmProcess& Pure() {
        Read("");
        globals.CurrentL = globals.recR.Item(std::size_t{1})->FindL("7732185");
        globals.CurrentS = CurrentCompound()->recS.Item(1);
        globals.SystemClass = "Pure";
        return Begin();
    }
    frmProcess& Begin() {
        forms.DropClosed();
        OpenInChain("frmMain", "frmProcess");
        table = &forms.Get<frmProcess>("frmProcess");
        return *table;
    }
    void Press(const std::string& key) { table->UserKey(ui::ParseKey(key)); }
    void Head(int row, int column, const std::string& entry) {
        table->tblData.UserHead(row, column);
        ui::ComboBox& list = row == 0   ? table->cboCell
                             : row == 1 ? table->cboUnit
                                        : table->cboPhase;
        list.UserDropDown();
        ASSERT_GE(list.Find(entry), 0) << entry;
        list.UserChoose(list.Find(entry));
    }
    /// The heads of columns, a word for each of quantity, unit and phase; "-" for none.
    void Heads(const std::vector<std::array<std::string, 3>>& columns) {
        for (std::size_t i = 0; i < columns.size(); ++i)
            for (int row = 0; row < 3; ++row)
                if (const std::string& text = columns[i][static_cast<std::size_t>(row)];
                    text != "-")
                    Head(row, static_cast<int>(i) + 1, text);
    }
    void BoilingHeads() {
        Heads({{"Temperature", "C", "-"},
               {"Pressure", "kPa", "-"},
               {"Mole fraction of ethanol", "Dimensionless", "Liquid"},
               {"Mole fraction of ethanol", "Dimensionless", "Gas"}});
    }
    void Paste(const std::string& text, int column = 1) {
        table->tblData.UserSelect(
            {table->tblData.FixedRows(), column, table->tblData.FixedRows(), column});
        table->tblData.UserPaste(text);
    }
    std::string HeadsOf(int column) const {
        std::string text;
        for (int row = 0; row < table->tblData.FixedRows(); ++row)
            text += table->tblData.Cell(row, column) + "|";
        return text;
    }
    std::string Preview() const {
        std::string text;
        for (const std::string& line : table->lstPreview.Items())
            text += line + "\n";
        return text;
    }
    std::string Place() const {
        const ui::Grid::Block& block = table->tblData.Selection();
        return std::to_string(block.top) + "," + std::to_string(block.left);
    }
    std::string Sets() const {
        std::string text;
        for (const auto& one : globals.CurrentM->recMV)
            text += one->PRPCODE + " " + std::to_string(one->recData.Count()) + ";";
        return text;
    }
    void Refuses(const std::string& text) {
        desktop.Expect(text);
        table->cmdProcess.UserClick();
        EXPECT_TRUE(table->IsOpen());
        EXPECT_EQ(Sets(), "");
    }

    frmProcess* table = nullptr;
};

constexpr const char* NoData =
    "There are no data to process\nFor mixtures, compositions of at least two phases are required\n"
    "For pure compounds, temperature and at least one thermal property is required\n"
    "Other cases should be entered through the \"Property\" tool";

TEST_F(frmProcessTest, HeadsAreChosenByKeysAndTakenBackOneByOne) {
    Mixture();
    table->tblData.SetFocus();
    Press("Up"); // from the first row to the phase, its head has no quantity yet
    EXPECT_EQ(Place(), "2,1");
    Press("w");
    EXPECT_TRUE(table->cboCell.HasFocus());
    EXPECT_EQ(Place(), "0,1");
    for (const char c : std::string("eight wat"))
        table->UserKey(ui::CharacterKey(static_cast<char32_t>(c)));
    EXPECT_EQ(table->cboCell.Items(), std::vector<std::string>{"Weight fraction of water"});
    Press("Enter");
    EXPECT_TRUE(table->tblData.HasFocus());
    Press("Down");
    Press("Enter");
    for (const char c : std::string("0.01")) // no listed unit: a factor
        table->UserKey(ui::CharacterKey(static_cast<char32_t>(c)));
    Press("Enter");
    Press("Down");
    Press("F2");
    Press("Down");
    Press("Tab");
    EXPECT_EQ(HeadsOf(1), "Weight fraction of water|0.01|Liquid|");
    EXPECT_EQ(Place(), "2,2");

    // Another quantity of the same kind keeps unit and phase, one without a phase does not.
    Head(0, 1, "Weight fraction of ethanol");
    EXPECT_EQ(HeadsOf(1), "Weight fraction of ethanol|0.01|Liquid|");
    Head(0, 1, "Temperature");
    EXPECT_EQ(HeadsOf(1), "Temperature|K||");
    table->tblData.UserHead(2, 1);
    EXPECT_FALSE(table->cboPhase.Visible());
    table->mnuUndo.UserClick();
    EXPECT_EQ(HeadsOf(1), "Weight fraction of ethanol|0.01|Liquid|");
    table->tblData.UserHead(0, 1);
    Press("Down");
    Press("Escape");
    EXPECT_EQ(HeadsOf(1), "Weight fraction of ethanol|0.01|Liquid|");
    table->tblData.UserSelect({0, 1, 0, 1});
    Press("Delete");
    EXPECT_EQ(HeadsOf(1), "|||");
    for (int step = 0; step < 5; ++step)
        table->mnuUndo.UserClick();
    EXPECT_EQ(HeadsOf(1), "|||");
    table->mnuRedo.UserClick();
    EXPECT_EQ(HeadsOf(1), "Weight fraction of water|||");
    table->Close(); // heads alone are not asked about
    EXPECT_FALSE(table->IsOpen());
}

TEST_F(frmProcessTest, AFactorIsANumberAboveZero) {
    Mixture();
    Head(0, 1, "Pressure");
    const std::string prompt =
        "Property value in the original units multiplied by a conversion factor is property value "
        "in kPa\n(Original Value) * (Conversion Factor) = (Converted Value) in kPa\n\n"
        "Enter the Conversion Factor here";
    desktop.ExpectInput(prompt, "2,5");
    Head(1, 1, "ALL OTHER UNITS");
    EXPECT_EQ(HeadsOf(1), "Pressure|2.5||");
    desktop.ExpectInput(prompt, std::nullopt); // cancelled: as it was
    Head(1, 1, "ALL OTHER UNITS");
    EXPECT_EQ(HeadsOf(1), "Pressure|2.5||");
    for (const char* const answer : {"0", "-1", "bar", ""}) {
        desktop.ExpectInput(prompt, answer);
        desktop.Expect("The conversion factor must be a number above 0");
        Head(1, 1, "ALL OTHER UNITS");
        EXPECT_EQ(HeadsOf(1), "Pressure|||");
    }
}

TEST_F(frmProcessTest, ThePaneTellsWhatWouldBeMadeWhileHeadsAndValuesChange) {
    Mixture();
    Paste(Boiling);
    EXPECT_FALSE(table->cmdUseHeads.Visible());
    BoilingHeads();
    EXPECT_EQ(Preview(), "1.  Temperature, Liquid: 3 rows\n"
                         "      against Mole fraction of ethanol, Liquid\n"
                         "      with Gas; Pressure 101.325 kPa\n"
                         "2.  Mole fraction of ethanol, Gas: 3 rows\n"
                         "      against Mole fraction of ethanol, Liquid\n"
                         "      with Liquid; Pressure 101.325 kPa\n");
    table->tblData.UserCell(4, 4, "0.3891x");
    EXPECT_EQ(table->lstFindings.Items().size(), 1u);
    Refuses("Invalid property value");
    EXPECT_EQ(Place(), "4,4");
    table->tblData.UserCell(4, 4, "");
    EXPECT_TRUE(table->lstFindings.Items().empty());
    EXPECT_NE(Preview().find("Mole fraction of ethanol, Gas: 2 rows"), std::string::npos);
    Head(0, 4, "Nothing");
    EXPECT_EQ(table->lblPreview.Caption(), "Process cannot make sets yet:");
    table->mnuUndo.UserClick();
    EXPECT_EQ(table->lblPreview.Caption(), "Process would make:");
}

TEST_F(frmProcessTest, ATableOfAMixtureBecomesSetsAndCloses) {
    Mixture();
    Refuses(NoData);
    Paste(Boiling);
    Refuses(NoData); // values below no head are none
    BoilingHeads();
    desktop.Expect("The table has been changed\nDiscard the changes?", ui::Answer::No);
    table->cmdCancel.UserClick();
    EXPECT_TRUE(table->IsOpen());
    table->cmdProcess.UserClick();
    EXPECT_FALSE(table->IsOpen());
    EXPECT_EQ(Sets(), "T 3;X1 3;");
    EXPECT_TRUE(globals.DialogAccepted && !globals.Saved && globals.Processed);
    const auto& first = globals.CurrentM->recMV.Item(1);
    EXPECT_EQ(first->SMPNM1 + first->SMPNM2, "12");
    EXPECT_EQ(globals.tvwTree->SelectedNode(), first->tNode);
}

TEST_F(frmProcessTest, StoredSetsComeBackAndAreReplacedInTheirPlaces) {
    Mixture();
    Paste(Boiling);
    BoilingHeads();
    table->cmdProcess.UserClick();
    const std::string before = DocumentAsRecords();
    const auto show = [this] {
        for (const auto& one : globals.CurrentM->recMV)
            globals.SetsToShow.push_back(one);
        Begin();
        EXPECT_TRUE(globals.SetsToShow.empty());
    };
    show();
    EXPECT_EQ(HeadsOf(1) + HeadsOf(4),
              "Temperature|C||Mole fraction of ethanol|Dimensionless|Gas|");
    EXPECT_EQ(table->tblData.Cell(4, 4), "0.3891");
    table->Close(); // nothing to lose
    show();
    table->cmdProcess.UserClick();
    EXPECT_EQ(DocumentAsRecords(), before);
    show();
    table->tblData.UserCell(4, 4, "0.3892");
    table->cmdProcess.UserClick();
    EXPECT_EQ(DocumentAsRecords(), Replace(before, "0.0721 0.3891", "0.0721 0.3892"));

    // Without a phase two sets are one, and the other is asked about.
    show();
    Head(0, 4, "Nothing");
    EXPECT_EQ(table->lblPreview.Caption(), "Process cannot make sets yet:");
    table->mnuUndo.UserClick();
    for (int row = 3; row <= 5; ++row)
        table->tblData.UserCell(row, 4, "");
    desktop.Expect(
        "The row has no property and will be left out\nDo you want to process the other rows?",
        ui::Answer::No);
    table->cmdProcess.UserClick();
    EXPECT_TRUE(table->tblData.HasFocus());
    EXPECT_EQ(Place().substr(0, 2), "3,");
    desktop.Expect(
        "The row has no property and will be left out\nDo you want to process the other rows?",
        ui::Answer::YesToAll);
    desktop.Expect("Are you sure you want to delete the record? | " +
                       globals.CurrentM->recMV.Item(2)->ShowKey(),
                   ui::Answer::No);
    table->cmdProcess.UserClick();
    EXPECT_EQ(Sets(), "T 3;X1 3;");
}

TEST_F(frmProcessTest, ATieLineThatCannotBeShownClosesTheTable) {
    Mixture("^T 64197 67663 7732185 &\n^A & O B & XXX XXX 1/15/2026 ::Method:UNKNOWN:\n"
            "^1 1 1 1 W2 S DIR 1 Y L1 T 291.15 L2 & & & W1 S & & & & & &\n^d 0.1 0.5 & a\n");
    table->Close();
    globals.SetsToShow = {globals.CurrentM->recMV.Item(1)};
    desktop.Expect("TIELINE error\nPlease try anothed tied data set");
    Begin();
    EXPECT_FALSE(table->cmdProcess.Enabled());
    EXPECT_EQ(HeadsOf(1), "|||");
    table->tblData.UserHead(0, 1);
    EXPECT_FALSE(table->cboCell.Visible());
}

TEST_F(frmProcessTest, AConstantWithoutAColumnIsAskedUntilItIsANumberOrEmpty) {
    Mixture();
    Heads({{"Temperature", "C", "-"},
           {"Mole fraction of ethanol", "Dimensionless", "Liquid"},
           {"Mole fraction of ethanol", "Dimensionless", "Gas"}});
    Paste("95.5\t0.0190\t0.1700\n89.0\t0.0721\t0.3891\n");
    const std::string prompt = "Enter the constant pressure in kPa, or leave it empty";
    desktop.ExpectInput(prompt, std::nullopt);
    table->cmdProcess.UserClick();
    EXPECT_EQ(Sets(), "");
    for (const char* const answer : {"1 atm", "-5", "101,325"})
        desktop.ExpectInput(prompt, answer);
    table->cmdProcess.UserClick();
    EXPECT_EQ(Sets(), "T 2;X1 2;");
    EXPECT_EQ(globals.CurrentM->recMV.Item(1)->PhaseStatement(), "Liquid + Gas, P = 101.325");

    Mixture(kTernary); // one of the two has to be known
    Heads({{"Weight fraction of acetic acid", "Dimensionless", "Liquid mixture 1"},
           {"Weight fraction of chloroform", "Dimensionless", "Liquid mixture 1"},
           {"Weight fraction of acetic acid", "Dimensionless", "Liquid mixture 2"}});
    Paste("0.1\t0.8\t0.3\n0.2\t0.7\t0.4\n");
    desktop.ExpectInput("Enter the constant temperature in K, or leave it empty", "");
    desktop.ExpectInput(prompt, "");
    Refuses("Properties and/or phases are not completely defined in a consistent way\n"
            "Try to add T or P as a state variable");
}

TEST_F(frmProcessTest, PastedHeadingsAreProposedAndChangeNothingUntilTaken) {
    Mixture();
    Paste("t/\u00b0C\tp/kPa\tx1\ty1\n" + Boiling);
    EXPECT_TRUE(table->cmdUseHeads.Visible());
    EXPECT_EQ(HeadsOf(1), "|||");
    EXPECT_EQ(table->tblData.Cell(3, 1), "t/\u00b0C");
    EXPECT_EQ(table->tblData.Proposed().at({0, 1}), "Temperature");
    Head(0, 4, "Mole fraction of water"); // a choice goes before a proposal
    table->cmdUseHeads.UserClick();
    EXPECT_EQ(HeadsOf(1), "Temperature|C||");
    EXPECT_EQ(HeadsOf(3), "Mole fraction of ethanol|Dimensionless|Liquid|");
    EXPECT_EQ(HeadsOf(4), "Mole fraction of water|||");
    EXPECT_EQ(table->tblData.Cell(3, 1), "95.5");
    EXPECT_TRUE(table->tblData.Proposed().empty());
    table->mnuUndo.UserClick();
    EXPECT_EQ(HeadsOf(1), "|||");
    EXPECT_EQ(table->tblData.Cell(3, 1), "t/\u00b0C");
    EXPECT_TRUE(table->cmdUseHeads.Visible());
    Paste("run", 5);
    table->cmdUseHeads.UserClick();
    EXPECT_EQ(table->lblNotice.Caption(), "column 5: no quantity was found for \"run\"");
}

TEST_F(frmProcessTest, TabsAloneKeepCellsInTheirColumnsAndTheTableGrows) {
    Mixture();
    EXPECT_EQ(table->tblData.Rows(), 103);
    EXPECT_EQ(table->tblData.Columns(), 21);
    std::string wide;
    for (int column = 1; column <= 25; ++column)
        wide += (column > 1 ? "\t" : "") + std::to_string(column);
    Paste("95.5\t\t0.0190 a\t0,5\n" + wide + "\n");
    EXPECT_EQ(table->tblData.Columns(), 26);
    std::string row;
    for (int column = 1; column <= 4; ++column)
        row += table->tblData.Cell(3, column) + "|";
    EXPECT_EQ(row, "95.5||0.0190 a|0.5|");
    EXPECT_EQ(table->tblData.Cell(4, 25), "25");
    table->cmdClear.UserClick();
    EXPECT_EQ(table->tblData.Rows(), 103);
    EXPECT_EQ(table->tblData.Cell(4, 25), "");
    table->mnuUndo.UserClick();
    EXPECT_EQ(table->tblData.Cell(4, 25), "25");
    desktop.Expect("The table has been changed\nDiscard the changes?", ui::Answer::Yes);
    table->Close();
}

TEST_F(frmProcessTest, APureCompoundStaysOpenForAnotherPhase) {
    Pure();
    EXPECT_EQ(table->Caption(), "Thermal functions of water, sample 1");
    Paste("298.15\t75.3\t69.95\n300\t75.3\t\n");
    table->tblData.UserHead(0, 1);
    Heads({{"Temperature", "-", "-"},
           {"Heat capacity at constant pressure Cp", "J/K/mol", "-"},
           {"Entropy", "J/K/mol", "-"}});
    EXPECT_EQ(Preview(), "1.  Heat capacity at constant pressure Cp: 2 rows\n"
                         "      against Temperature\n2.  Entropy: 1 row\n"
                         "      against Temperature\nSelect the phase\n");
    desktop.Expect("Select the phase");
    table->cmdProcess.UserClick();
    EXPECT_TRUE(table->lstPhase.HasFocus());
    table->lstPhase.UserChoose(table->lstPhase.Find("Liquid"));
    const std::string processed = "Your data have been processed\nNow you can enter or paste data "
                                  "for another phase and process them";
    desktop.Expect(processed);
    table->cmdProcess.UserClick();
    EXPECT_TRUE(table->IsOpen());
    EXPECT_EQ(table->tblData.Cell(2, 1), "");
    EXPECT_EQ(HeadsOf(3), "Entropy|J/K/mol|");
    desktop.Expect(NoData);
    table->cmdProcess.UserClick();

    Paste("350\t34.1\t200\n");
    table->lstPhase.UserChoose(table->lstPhase.Find("Gas"));
    desktop.Expect(processed);
    table->cmdProcess.UserClick();
    std::string sets;
    for (const auto& one : globals.CurrentS->recTwo)
        sets += one->PRPCODE + one->PHASE1 + one->PRPSETNO + " " +
                std::to_string(one->recData.Count()) + ";";
    EXPECT_EQ(sets, "CPL1 2;SL1 1;CPG2 1;SG2 1;");
    table->cmdCancel.UserClick();
    EXPECT_FALSE(table->IsOpen());
}

} // namespace
} // namespace vexora::test
