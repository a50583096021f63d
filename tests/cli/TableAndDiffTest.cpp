#include "cli/CommandLineFixture.h"

namespace vexora::test {

/// The example beside a version of it.
class TableAndDiff : public CommandLine {
protected:
    TableAndDiff() {
        std::ifstream file(VEXORA_SOURCE_DIR "/examples/water/2002wagpru1.txt", std::ios::binary);
        std::ostringstream text;
        text << file.rdbuf();
        example_ = text.str();
        folder.Write("a.txt", example_);
    }
    void Edit(const std::string& from, const std::string& to) {
        const std::size_t at = example_.find(from);
        ASSERT_NE(at, std::string::npos);
        example_.replace(at, from.size(), to);
        folder.Write("b.txt", example_);
    }

    std::string example_;
};

TEST_F(TableAndDiff, EachEditIsOneLineAndNoneIsNone) {
    const Outcome same = Run("diff a.txt a.txt");
    EXPECT_EQ(std::tie(same.code, same.out, same.err),
              std::make_tuple(0, std::string(), std::string()));
    Edit("L G & 647.096", "L G & 647.10");
    Edit("^d 450 890.341250", "^d 451 890.341250");
    Edit("^d 300 20002.2515 1005.308 &\n", "");
    const Outcome differ = Run("diff a.txt b.txt");
    EXPECT_EQ(std::tie(differ.code, differ.err), std::make_tuple(1, std::string()));
    const std::string sample = "2002 wag pru 1 / water / Sample 1 (xx) / ";
    EXPECT_EQ(differ.out,
              sample +
                  "^0: Critical temperature (L+G,K), Set 1, ::Method CALCEOS : value: 647.096 -> "
                  "647.10\n" +
                  sample +
                  "^1: Density (L+G,kg/m3), Set 1, ::Method CALCEOS : row 2, Temperature: "
                  "450 -> 451\n" +
                  sample +
                  "^2: Density (FL,kg/m3), Set 1, ::Method CALCEOS : row 2: only in the "
                  "earlier one: 300 20002.2515 1005.308\n");
    EXPECT_EQ(Run("diff a.txt nothing.txt").code, 3);
}

TEST_F(TableAndDiff, TheRowsOfASetComeInEachForm) {
    const std::string node = "\"2002 wag pru 1 / water / Sample 1 (xx) / ^1: Vapor*\" ";
    EXPECT_EQ(Run("table a.txt --no-head " + node).out,
              "275\t0.000698451167\n450\t0.932203564\n625\t16.9082693\n");
    EXPECT_EQ(Run("table a.txt --system --format csv " + node).out,
              "Temperature [K] (Liquid),Vapor or sublimation pressure [kPa] (Liquid)\n"
              "275,0.698451167\n450,932.203564\n625,16908.2693\n");
    EXPECT_NE(Run("table a.txt --format json " + node).out.find("[\"275\", \"0.000698451167\"],\n"),
              std::string::npos);
    const std::string density = Run("table a.txt \"2002* / water / Sample* / ^2: Density*\"").out;
    EXPECT_EQ(density.substr(0, density.find('\n')),
              "Temperature [K] (Fluid)\tPressure [kPa] (Fluid)\tDensity [kg/m3] (Fluid)\t"
              "Uncert.% of Density");
}

TEST_F(TableAndDiff, TheSetIsNamedUnlessThereIsButOne) {
    const Outcome list = Run("table a.txt --list");
    EXPECT_EQ(std::count(list.out.begin(), list.out.end(), '\n'), 4);
    for (const char* line : {"table a.txt", "table a.txt \"2002* / water\"", "table water.txt"}) {
        const Outcome refused = Run(line);
        EXPECT_EQ(std::tie(refused.code, refused.out), std::make_tuple(2, std::string())) << line;
        EXPECT_NE(refused.err, "") << line;
    }
}

TEST_F(TableAndDiff, ThePrintedRowsOpenAgainAsATableCellForCell) {
    for (const char* set : {"^1: Vapor*", "^1: Density*", "^2: Density*", "^2: Speed*"}) {
        const std::string node = "\"2002* / water / Sample* / " + std::string(set) + "\"";
        folder.Write("rows.tsv", Run("table a.txt --no-head " + node).out);
        folder.Write("open.vxs", "include \"" VEXORA_SOURCE_DIR
                                 "/tests/sessions/shell/known_user.inc\"\n"
                                 "drop \"${OUT}/a.txt\"\ndblnode " +
                                     node +
                                     "\nclick frmTwo.cmdOK\nprint frmData2.tblData\n"
                                     "click frmData2.cmdClear\n"
                                     "click frmData2.mnuFileOpen\nfile \"${OUT}/rows.tsv\"\n"
                                     "print frmData2.tblData\nnote \"end\"\n");
        const Outcome played = Run("play --home home --var OUT=. open.vxs");
        ASSERT_EQ(played.code, 0) << played.err << played.out;
        std::filesystem::remove_all(folder.File("home"));
        // What is printed of the table before it is cleared and after the file is opened.
        const std::string print = "> print frmData2.tblData\n";
        const std::size_t first = played.out.find(print) + print.size();
        const std::size_t second = played.out.rfind(print) + print.size();
        const std::string shown = played.out.substr(second, played.out.find("> note") - second);
        EXPECT_GT(std::count(shown.begin(), shown.end(), '\n'), 4) << shown;
        EXPECT_EQ(played.out.substr(first, shown.size()), shown);
    }
}

} // namespace vexora::test
