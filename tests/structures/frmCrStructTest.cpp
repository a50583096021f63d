#include "structures/frmCrStruct.h"

#include "plot/PictureSvg.h"
#include "records/LineWriter.h"
#include "records/clsComplex.h"
#include "records/clsComplexSample.h"
#include "support/DialogFixture.h"
#include "support/FailingFileSystem.h"

namespace vexora::test {
namespace {

const std::string Cifs = VEXORA_SOURCE_DIR "/tests/chem/cif/";

class frmCrStructTest : public DialogFixture {
protected:
    frmCrStructTest() {
        AddCompound("7732185", "water", "H2O");
        auto complex = std::make_shared<clsComplex>();
        complex->SetNo(1);
        complex->CType = "Ice";
        complex->Components.push_back({"7732185", "", "Water", {"1", "X"}});
        complex->AttachTo(*globals.CurrentR);
        sample = std::make_shared<clsComplexSample>();
        sample->SetNo(1);
        sample->AttachTo(*complex);
        globals.CurrentComplexSample = sample;
        globals.CurrentKey = "RXS";
    }
    frmCrStruct& OpenNew() { return Open<frmCrStruct>("frmCrStruct"); }
    frmCrStruct& OpenAgain(std::size_t position = 1) {
        globals.EditCrystal = true;
        globals.CurrentCrS = sample->recCrS.Item(position);
        return OpenNew();
    }
    /// Cells of a table, columns parted by "|".
    static std::string Cells(const ui::Grid& grid) {
        std::string text;
        for (int row = 1; row < grid.Rows(); ++row) {
            for (int column = 0; column < grid.Columns(); ++column)
                text += (column > 0 ? "|" : "") + grid.Cell(row, column);
            text += ";";
        }
        return text;
    }
    static void Paste(ui::Grid& grid, int row, int column, const std::string& text) {
        grid.SetFocus();
        grid.UserSelect({row, column, row, column});
        grid.UserPaste(text);
    }
    static void EnterCell(frmCrStruct& dialog) {
        for (ui::TextBox* box : {&dialog.txtA, &dialog.txtB, &dialog.txtC})
            Enter(*box, "12");
        for (ui::TextBox* box : {&dialog.txtAlpha, &dialog.txtBeta, &dialog.txtGamma})
            Enter(*box, "90");
    }
    std::string Stored() const {
        LineWriter out;
        for (const auto& structure : sample->recCrS)
            structure->PrintCrS(out);
        return out.Text();
    }

    std::shared_ptr<clsComplexSample> sample;
};

TEST_F(frmCrStructTest, EachFaultOfTheCellHasItsWordsAndLeadsToItsField) {
    frmCrStruct& dialog = OpenNew();
    const auto refused = [&](const std::string& text, const ui::Control& field) {
        desktop.Expect(text);
        dialog.cmdSave.UserClick();
        EXPECT_TRUE(dialog.IsOpen()) << text;
        EXPECT_TRUE(field.HasFocus()) << text;
    };
    Enter(dialog.txtDgamma, "x");
    refused("Please select the space group", dialog.cboGroup);
    Pick(dialog.cboGroup, "----------"); // parts the list, and is no group
    refused("Please select the space group", dialog.cboGroup);
    Pick(dialog.cboGroup, "Pm-3n");
    Enter(dialog.txtDA, "y");
    refused("Invalid number", dialog.txtDA);
    Enter(dialog.txtDA, "-1");
    refused("Invalid number", dialog.txtDgamma);
    EXPECT_EQ(dialog.txtDA.Text(), "");
    Enter(dialog.txtDgamma, "0.1");
    refused("uncertainty is given to a missing value", dialog.txtDgamma);
    Enter(dialog.txtB, "12");
    refused("Incomplete cell definition", dialog.txtGamma);
    Enter(dialog.txtGamma, "90");
    refused("Incomplete cell definition", dialog.txtBeta);
    EnterCell(dialog);
    Enter(dialog.txtA, "0"); // stands for none
    refused("Incomplete cell definition", dialog.txtA);
    Enter(dialog.txtA, " 12,0 ");
    dialog.cmdSave.UserClick();
    EXPECT_FALSE(dialog.IsOpen());
    EXPECT_EQ(Stored(), "XB Pm-3n 12.0 12 12 90 90 90 & & & & & 0.1 &\nXE\n");
    EXPECT_FALSE(globals.Saved);
    EXPECT_TRUE(globals.DialogAccepted);
}

TEST_F(frmCrStructTest, EachFaultOfTheTablesHasItsWordsInOrder) {
    const struct {
        bool isDistance;
        const char *row, *messages; // a question ends in "?"
        const char* kept;
    } cases[] = {
        {true, "c\t\tx", "Incomplete row 1", ""},
        {true, "\tH\t1", "Incomplete row 1", ""},
        {true, "c\tcl\tx", "Invalid atom symbol: Cl", ""},
        {true, "oH\tH\tx", "Invalid atom symbol: Oh", ""},
        {true, "c\tH\tx\ty", "Invalid number: x", ""},
        {true, "c\tH\t1\ty", "Invalid number: y", ""},
        {true, "c\tH\t99.5\t0.1", "Suspicious interatomic distance: 99.5\nIs that correct?", ""},
        {true, "c\tH\t99\t0.10", "Suspicious uncertainty: 0.10\nIs that correct?", ""},
        {true, "c\tn\t0.1\t0", "Suspicious uncertainty: 0\nIs that correct?", ""},
        {true, "c\tn\t99\t0.099", "", "XD C N 99 0.099\n"},
        {true, "O\tH\t1.0\t", "", "XD O H 1.0 &\n"},
        {false, "O\t0\t\t0\t\t\t\t1", "Incomplete row 1", ""},
        {false, "D\t0\t\t0\t\t0\t\t", "Incomplete row 1", ""},
        {false, "D\t0\t\t0\t\t0\t\t1", "Invalid atom symbol: D", ""},
        {false, "O\t0\t\t1/3\t\t2\t\t1", "Invalid interatomic distance: 1/3", ""},
        {false, "O\t0\tz\t1\t\t2\t\t1", "Invalid number: z", ""},
        {false, "O\t0\t\t-1\t\t1.01\t0\t2", "Suspicious coordinate: 1.01\nIs that correct?", ""},
        {false, "O\t0\t\t-1\t\t1\t0.1\t2",
         "Suspicious coordinate uncertainty: 0.1\nIs that correct?", ""},
        {false, "O\t0\t\t0\t\t0\t\t1.01", "Invalid Occupancy", ""},
        {false, "O\t0\t\t0\t\t0\t\t-0.1", "Invalid Occupancy", ""},
        {false, "o\t0\t\t-1\t0.01\t1\t\t0", "", "XC O 0 & -1 0.01 1 & 0\n"},
    };
    for (const auto& one : cases) {
        sample->recCrS.Clear();
        frmCrStruct& dialog = OpenNew();
        Enter(dialog.cboGroup, "P1");
        ui::Grid& grid = one.isDistance ? dialog.tblRaw : dialog.tblFinal;
        Paste(grid, 1, 0, one.row);
        if (*one.messages != '\0') {
            desktop.Expect(one.messages, ui::Answer::No);
            dialog.cmdSave.UserClick();
            EXPECT_TRUE(dialog.IsOpen()) << one.row;
            EXPECT_TRUE(grid.HasFocus()) << one.row;
            EXPECT_FALSE(
                (one.isDistance ? dialog.lstFindingsR : dialog.lstFindingsF).Items().empty());
            desktop.Expect("The structure has been changed\nDiscard the changes?", ui::Answer::Yes);
            dialog.cmdFinish.UserClick();
        } else {
            dialog.cmdSave.UserClick();
            EXPECT_NE(Stored().find(one.kept), std::string::npos) << Stored();
        }
    }
}

TEST_F(frmCrStructTest, QuestionsAnsweredWithYesLetTheRowsPass) {
    frmCrStruct& dialog = OpenNew();
    Enter(dialog.cboGroup, "P1");
    Paste(dialog.tblRaw, 2, 0, "O\tO\t0.05\t0.2"); // the row in front stays empty
    Paste(dialog.tblFinal, 1, 0, "H 1.5 0.3");
    Paste(dialog.tblFinal, 1, 3, "0\t\t0\t\t0.5");
    for (const char* question :
         {"Suspicious interatomic distance: 0.05", "Suspicious uncertainty: 0.2",
          "Suspicious coordinate: 1.5", "Suspicious coordinate uncertainty: 0.3"})
        desktop.Expect(question + std::string("\nIs that correct?"), ui::Answer::Yes);
    dialog.cmdSave.UserClick();
    EXPECT_EQ(Stored(), "XB P1 & & & & & & & & & & & & &\nXD O O 0.05 0.2\nXE\n"
                        "XC H 1.5 0.3 0 & 0 & 0.5\n");
}

TEST_F(frmCrStructTest, ASecondLookChangesNothing) {
    auto structure = std::make_shared<clsCrS>();
    structure->SetNo = 1;
    structure->Load("XB P_21/n 6.1 7.20 8 90 91.0 90.00 & 0.01 & & & 0.0 A method of its own");
    structure->LoadDistance("XD O H 1.00 &");
    structure->LoadAtom("XC O 0.10 & 0.20 0.001 -0.30 & 0.50");
    structure->AttachTo(*sample);
    const std::string before = Stored();
    frmCrStruct& dialog = OpenAgain();
    EXPECT_EQ(dialog.Caption(), "Crystal Structure # 1");
    EXPECT_EQ(dialog.cboGroup.Text() + ", " + dialog.cboMethod.Text(),
              "P 21/n, A method of its own");
    EXPECT_EQ(dialog.txtGamma.Text() + dialog.txtDB.Text(), "90.000.01");
    EXPECT_EQ(Cells(dialog.tblFinal), "O|0.10||0.20|0.001|-0.30||0.50;|||||||;");
    dialog.tblFinal.SetFocus();
    dialog.mnuUndo.UserClick(); // there is nothing to take back
    dialog.cmdSave.UserClick();
    EXPECT_EQ(Stored(), before);
    EXPECT_TRUE(globals.Saved);
    frmCrStruct& again = OpenAgain();
    Enter(again.txtB, "7.21");
    again.cmdSave.UserClick();
    EXPECT_FALSE(globals.Saved);
    EXPECT_EQ(sample->recCrS.Count(), 1U);
    EXPECT_EQ(sample->recCrS.Item(1)->B, "7.21");
    frmCrStruct& cancelled = OpenAgain();
    Enter(cancelled.txtB, "9");
    desktop.Expect("The structure has been changed\nDiscard the changes?", ui::Answer::No);
    cancelled.cmdFinish.UserClick();
    EXPECT_TRUE(cancelled.IsOpen());
    desktop.Expect("The structure has been changed\nDiscard the changes?", ui::Answer::Yes);
    cancelled.cmdFinish.UserClick();
    EXPECT_EQ(sample->recCrS.Item(1)->B, "7.21");
}

TEST_F(frmCrStructTest, WhatFollowsIsToldWhileItIsTyped) {
    frmCrStruct& dialog = OpenNew();
    EXPECT_EQ(dialog.cboGroup.Item(0) + " " + dialog.cboGroup.Item(12) + " " +
                  dialog.cboGroup.Item(14) + " " + dialog.cboGroup.Item(243),
              "Pm-3n P-1 P1 Ia-3d");
    EXPECT_EQ(dialog.cboGroup.Count(), 244);
    const auto told = [&] {
        return dialog.lblSystem.Caption() + "; " + dialog.lblContradiction.Caption() + "; " +
               dialog.lblVolume.Caption() + "; " + dialog.lblDensity.Caption();
    };
    EnterCell(dialog);
    EXPECT_EQ(told(), "the cell is cubic; ; Volume of the cell: 1728 A3; ");
    Pick(dialog.cboGroup, "P63/mmc");
    EXPECT_EQ(told(), "hexagonal, no. 194; Not hexagonal: gamma is not 120; "
                      "Volume of the cell: 1728 A3; ");
    Enter(dialog.cboGroup, "P21/n");
    Enter(dialog.txtAlpha, "170.0");
    EXPECT_EQ(told(), "monoclinic, in another setting; ; Volume of the cell: 300 A3; ");
    Enter(dialog.txtBeta, "110");
    EXPECT_EQ(told(), "monoclinic, in another setting; These constants close no cell; "
                      "The volume follows from six cell constants; ");
}

TEST_F(frmCrStructTest, ABracketBesideANumberIsItsUncertainty) {
    frmCrStruct& dialog = OpenNew();
    Enter(dialog.txtA, "11.877(3)");
    Enter(dialog.txtDB, "0.5");
    Enter(dialog.txtB, "12.03(2)"); // both are stated: nothing is thrown away
    dialog.cboMethod.SetFocus();
    EXPECT_EQ(dialog.txtA.Text() + " " + dialog.txtDA.Text(), "11.877 0.003");
    EXPECT_EQ(dialog.txtB.Text() + " " + dialog.txtDB.Text(), "12.03(2) 0.5");
    Paste(dialog.tblFinal, 1, 0, "O 0.3101(5) 0 0.117(4) 1\nC 0 0 0 0.95");
    EXPECT_EQ(Cells(dialog.tblFinal), "O|0.3101|0.0005|0||0.117|0.004|1;C|0||0||0||0.95;|||||||;");
    EXPECT_EQ(dialog.lblNoticeF.Caption(), // of symbols and brackets nothing is told
              "The values went past the columns between them; Ctrl+Z takes them back");
    Paste(dialog.tblFinal, 3, 0, "N 0.1 0.2 0.3(1)"); // without occupancies
    EXPECT_EQ(dialog.lblNoticeF.Caption(), "Four columns are taken as atom, x, y and z");
    EXPECT_EQ(dialog.tblFinal.Cell(3, 3) + " " + dialog.tblFinal.Cell(3, 6), "0.2 0.1");
    dialog.tblFinal.UserSelect({4, 1, 4, 1});
    for (const char* key : {"0", ".", "5", "(", "2", ")", "Enter"})
        dialog.UserKey(ui::ParseKey(key));
    EXPECT_EQ(dialog.tblFinal.Cell(4, 1) + " " + dialog.tblFinal.Cell(4, 2), "0.5 0.2");
    desktop.Expect("The structure has been changed\nDiscard the changes?", ui::Answer::Yes);
    dialog.cmdFinish.UserClick();
}

TEST_F(frmCrStructTest, TheMenuServesTheTableThatWasEnteredLast) {
    frmCrStruct& dialog = OpenNew();
    Paste(dialog.tblFinal, 1, 0, "O 0 0 0 1");
    Paste(dialog.tblRaw, 1, 0, "O H 1.0");
    dialog.tblRaw.UserSelect({2, 0, 2, 0});
    dialog.UserKey(ui::ParseKey("c")); // letters begin a symbol
    EXPECT_EQ(dialog.txtCellR.Text(), "c");
    dialog.UserKey(ui::ParseKey("Enter"));
    dialog.txtA.SetFocus(); // no table, so the last one stays in hand
    dialog.mnuUndo.UserClick();
    dialog.mnuUndo.UserClick();
    EXPECT_EQ(Cells(dialog.tblRaw), "|||;");
    EXPECT_EQ(Cells(dialog.tblFinal), "O|0||0||0||1;|||||||;");
    dialog.tblFinal.SetFocus();
    dialog.mnuUndo.UserClick();
    EXPECT_EQ(Cells(dialog.tblFinal), "|||||||;");
    dialog.mnuRedo.UserClick();
    EXPECT_EQ(Cells(dialog.tblFinal) + Cells(dialog.tblRaw), "O|0||0||0||1;|||||||;|||;");
    desktop.Expect("The structure has been changed\nDiscard the changes?", ui::Answer::Yes);
    dialog.cmdFinish.UserClick();
}

} // namespace
} // namespace vexora::test
