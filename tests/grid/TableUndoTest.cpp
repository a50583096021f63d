#include "grid/TableUndo.h"

#include "grid/TableFixture.h"

namespace vexora::test {
namespace {

using TableUndoTest = TableFixture;

TEST_F(TableUndoTest, PasteAndClearComeBackToTheLastZero) {
    std::string block;
    for (int row = 0; row < 200; ++row)
        block += std::to_string(270 + row) + ".150 0.000" + std::to_string(row) + "0\n";
    Fill(block);
    const std::string full = Cells();
    EXPECT_EQ(form.grid.Rows(), 202);
    undo.Do([](TableEdit& edit) { edit.Rows(1); });
    EXPECT_EQ(Cells(), "||\n");
    undo.Undo();
    EXPECT_EQ(Cells(), full);
    undo.Undo();
    EXPECT_EQ(Cells(), "||\n");
    EXPECT_FALSE(undo.CanUndo());
    undo.Redo();
    EXPECT_EQ(Cells(), full);
}

TEST_F(TableUndoTest, NewChangeDropsWhatWasTakenBack) {
    Fill("1 2 3");
    undo.Undo();
    Fill("4 5 6");
    EXPECT_FALSE(undo.CanRedo());
    EXPECT_EQ(Cells(), "4|5|6\n||\n");
}

TEST_F(TableUndoTest, OneSpareRowStaysBehindTheLastFilledOne) {
    const auto type = [&](int row, const std::string& text) {
        undo.Do([&](TableEdit& edit) { edit.Cell(row, 0, text); });
    };
    type(1, "1.50");
    EXPECT_EQ(Cells(), "1.50||\n||\n");
    type(2, "2");
    type(2, "");
    EXPECT_EQ(Cells(), "1.50||\n||\n");
}

TEST_F(TableUndoTest, StepsFindTheColumnsThatTheyKnew) {
    Fill("1.0 2.0 3.0");
    undo.Do([](TableEdit& edit) { edit.Cell(1, 2, {}); },
            [&](bool done) { form.grid.Resize(form.grid.Rows(), done ? 2 : 3); });
    undo.Do([](TableEdit& edit) { edit.Cell(1, 1, "2.5"); });
    undo.Undo();
    undo.Undo();
    EXPECT_EQ(Cells(), "1.0|2.0|3.0\n||\n");
    undo.Undo();
    undo.Redo();
    undo.Redo();
    undo.Redo();
    EXPECT_EQ(Cells(), "1.0|2.5\n|\n");
}

TEST_F(TableUndoTest, WidthAndTheTextsOfItsColumnsComeBackInEveryOrder) {
    const auto head = [&](int column) { return form.grid.Cell(0, column); };
    form.grid.Cell(0, 2, "last");
    Fill("1.0 2.0 3.0\n4 5 6");
    std::vector<std::string> states{Cells()};
    const auto step = [&](const std::function<void(TableEdit&)>& writer) {
        EXPECT_TRUE(undo.Do(writer));
        states.push_back(Cells());
    };
    step([](TableEdit& edit) { edit.Columns(5); });
    step([](TableEdit& edit) { edit.Cell(2, 4, "9.50"); });
    step([](TableEdit& edit) {
        edit.RemoveRows(1, 1);
        edit.Columns(2);
        edit.InsertRows(1, 1);
    });
    step([](TableEdit& edit) { edit.Rows(1); });
    step([](TableEdit& edit) {
        edit.Columns(4);
        edit.Cell(1, 3, "7.0");
    });
    EXPECT_EQ(states[3], "|\n4|5\n|\n");
    EXPECT_EQ(head(2), "");
    EXPECT_FALSE(undo.Do([](TableEdit& edit) { // only came and went
        edit.Columns(6);
        edit.Columns(4);
    }));
    for (std::size_t back = 1; back < states.size(); ++back) {
        for (std::size_t i = states.size() - 1; i-- > states.size() - 1 - back;) {
            undo.Undo();
            EXPECT_EQ(Cells(), states[i]) << back;
        }
        for (std::size_t i = states.size() - back; i < states.size(); ++i) {
            undo.Redo();
            EXPECT_EQ(Cells(), states[i]) << back;
        }
    }
    for (int i = 0; i < 3; ++i)
        undo.Undo();
    EXPECT_EQ(head(2), "last");
    EXPECT_EQ(states[2], "1.0|2.0|3.0||\n4|5|6||9.50\n||||\n");
}

TEST_F(TableUndoTest, WholeStepIsToldToListenersAtOnce) {
    int told = 0;
    form.grid.CellChanged.Connect([&](int row, int) {
        EXPECT_EQ(row, -1);
        ++told;
    });
    Fill("1 2 3\n4 5 6\n7 8 9");
    EXPECT_EQ(told, 1);
    EXPECT_EQ(undo.FirstRow(), 1);
    EXPECT_EQ(undo.LastRow(), 4); // with the spare row
}

TEST_F(TableUndoTest, OneTypedCellIsToldAloneSoThatViewsStayInPlace) {
    Fill("1 2 3\n4 5 6");
    std::string told;
    form.grid.CellChanged.Connect([&](int row, int column) {
        told += std::to_string(row) + "," + std::to_string(column) + ";";
    });
    undo.Do([](TableEdit& edit) { edit.Cell(1, 2, "30"); });
    undo.Undo();
    undo.Do([](TableEdit& edit) {
        edit.Cell(1, 2, "30");
        edit.Cell(2, 2, "60");
    });
    EXPECT_EQ(told, "1,2;1,2;-1,-1;");
}

TEST_F(TableUndoTest, WhatGoesAlongWithAStepIsTakenBackAndDoneAgain) {
    std::string state;
    undo.OnCell = [](TableEdit& edit, int row, int column, const std::string&) {
        if (column == 0) edit.Cell(row, 2, "follows");
    };
    undo.Do([](TableEdit& edit) { edit.Cell(1, 0, "1"); },
            [&](bool done) { state += done ? "done;" : "back;"; });
    EXPECT_EQ(Cells(), "1||follows\n||\n");
    undo.Undo();
    EXPECT_EQ(Cells(), "||\n");
    undo.Redo();
    EXPECT_EQ(Cells(), "1||follows\n||\n");
    EXPECT_EQ(state, "done;back;done;");
}

TEST_F(TableUndoTest, RowsThatComeAndGoAreTakenBackInTheirPlaces) {
    Fill("1 2 3\n4.0 5 6\n7 8 9");
    undo.Clear();
    undo.Do([](TableEdit& edit) { edit.InsertRows(2, 2); });
    EXPECT_EQ(Cells(), "1|2|3\n||\n||\n4.0|5|6\n7|8|9\n||\n");
    EXPECT_EQ(undo.FirstPlaceOf(3), 0);
    EXPECT_EQ(undo.FirstPlaceOf(4), 2);
    EXPECT_EQ(undo.LastRow(), 6);
    undo.Do([](TableEdit& edit) { edit.RemoveRows(3, 2); });
    EXPECT_EQ(Cells(), "1|2|3\n||\n7|8|9\n||\n");
    EXPECT_EQ(undo.FirstPlaceOf(3), 3);
    EXPECT_FALSE(undo.Do([](TableEdit& edit) { edit.RemoveRows(4, 1); })); // the spare row
    undo.Undo();
    EXPECT_EQ(Cells(), "1|2|3\n||\n||\n4.0|5|6\n7|8|9\n||\n");
    EXPECT_EQ(undo.FirstPlaceOf(4), 2);
    undo.Undo();
    EXPECT_EQ(Cells(), "1|2|3\n4.0|5|6\n7|8|9\n||\n");
    undo.Redo();
    undo.Redo();
    EXPECT_EQ(Cells(), "1|2|3\n||\n7|8|9\n||\n");
}

} // namespace
} // namespace vexora::test
