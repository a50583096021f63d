// A kind of set that the program does not have goes all the way of a set: read, laid out in
// columns, typed and pasted into, checked, evaluated in its units, written and exported. What the
// program has in common for sets knows nothing of it.

#include "chem/clsProperty.h"
#include "entry/RowChecks.h"
#include "export/DataHead.h"
#include "export/SetRows.h"
#include "export/XmlWriter.h"
#include "grid/TableEditor.h"
#include "records/DataReader.h"
#include "records/DataSet.h"
#include "records/LineWriter.h"
#include "records/PropertyChain.h"
#include "records/ReaderState.h"
#include "records/RecordChecks.h"
#include "records/RecordReader.h"
#include "records/SetLines.h"
#include "reference/Numbers.h"
#include "support/DocumentFixture.h"

namespace vexora {
namespace {

/// A density of two components against temperature, pressure and the fraction of the first, with
/// ties between its rows:  ^3 PRPCODE unit PROPERTY_FUNCT PRPSETNO DATATYPE PHASE1 (VARIABLE
/// VAR_UNIT)...
class TiedSet : public DataSet {
public:
    std::array<std::string, MostVariables + 1> codes, units; // 0 stays empty
    std::string phase;

    /// Place 0, which stays empty, stands for all that are not there.
    static const std::string& At(const std::array<std::string, MostVariables + 1>& texts, int n) {
        return texts[n >= 0 && n <= MostVariables ? static_cast<std::size_t>(n) : 0];
    }
    TiedSet() { nVar = MostVariables; }
    std::string_view DataContext() const override { return "Bin"; }
    std::string SystemName() const override { return "ethanol + water"; }
    const std::string& VARIABLE(int n) const override { return At(codes, n); }
    const std::string& VAR_UNIT(int n) const override { return At(units, n); }
    const std::string& PhaseFor(int) const override { return phase; }
    std::vector<std::string> Phases() const override { return {phase}; }
    bool HasTies() const override { return true; }
    bool MolarMassFollowsRows() const override { return true; }
    double MolarMass(const clsData& row) const override {
        const double x = Val(row.VARIABLE(3));
        return x > 1 ? 0 : 46.0 * x + 18.0 * (1 - x); // [g/mol]
    }
    const Record* Owner() const override { return nullptr; }
    std::shared_ptr<DataSet> Copy() const override { return std::make_shared<TiedSet>(*this); }
    void ExportAll(XmlWriter& xml) const override {
        const DataSubject subject = SubjectOf(*this, {});
        SetRows rows(*this);
        ASSERT_EQ(rows.Fault(subject), "");
        xml.Open("PureOrMixtureData");
        rows.ExportVariables(xml, subject);
        rows.ExportRows(xml, subject);
        xml.Close();
    }
    std::string Key() const override { return "3" + PRPCODE + PRPSETNO; }
    std::string ShowKey() const override { return Key(); }
    void SetMe() override {}

    bool Load(std::string_view line) {
        WordReader words(line);
        words.NextWord();
        for (std::string* field :
             {&PRPCODE, &PROPERTY_UNIT, &PROPERTY_FUNCT, &PRPSETNO, &DATATYPE, &phase})
            *field = NextField(words);
        for (int n = 1; n <= nVar; ++n) {
            codes[static_cast<size_t>(n)] = NextField(words);
            units[static_cast<size_t>(n)] = NextField(words);
        }
        return !units.back().empty();
    }

protected:
    std::string DefinitionLine() const override {
        std::string line = "^3";
        for (const std::string& field :
             {PRPCODE, PropertyUnitField(), PROPERTY_FUNCT, PRPSETNO, DATATYPE, phase})
            AppendField(line, field);
        for (int n = 1; n <= nVar; ++n) {
            AppendField(line, VARIABLE(n));
            AppendField(line, UnitField(VAR_UNIT(n)));
        }
        return line;
    }
};

std::shared_ptr<TiedSet> readSet;

void ReadTiedSet(ReaderState& state, std::string_view line) {
    readSet = std::make_shared<TiedSet>();
    ASSERT_TRUE(readSet->Load(line));
    readSet->TakePending(state.pending);
    state.open = readSet;
}

struct SilentTalk : ReadTalk {
    void Say(const Notice& notice) override { ADD_FAILURE() << notice.text; }
    bool Confirm(const std::string&) override { return false; }
};

/// A form with nothing but a table.
class TableForm : public ui::Form, public TableMenu, public TableRules {
public:
    TableForm() : Form("frmTable", "Table"), TableMenu(static_cast<ui::Form&>(*this)) {}
    ui::Grid tblData{*this, "tblData", 2, 1};
    ui::TextBox txtCell{*this, "txtCell"};
    ui::Label lblNotice{*this, "lblNotice"};
    ui::ListBox lstFindings{*this, "lstFindings"};
    TableColumns columns;

    std::vector<int> ValueColumns() const override {
        std::vector<int> places;
        for (int at = 0; at < columns.Count(); ++at)
            if (columns[at].kind == TableColumn::Kind::Value) places.push_back(at);
        return places;
    }
    std::string ColumnName(int column) const override { return columns[column].head; }
    std::vector<Finding> FindingsOf(int row) const override {
        return CheckRow(tblData, columns, row);
    }
    void Show(const TableColumns& laidOut) {
        columns = laidOut;
        tblData.Resize(2, columns.Count());
        for (int at = 0; at < columns.Count(); ++at)
            tblData.Cell(0, at, columns[at].head);
        Form::Show();
        table.MoveTo(1, 0);
    }
    std::string Row(int row) const {
        std::string text;
        for (int column = 0; column < tblData.Columns(); ++column)
            text += (column > 0 ? "|" : "") + tblData.Cell(row, column);
        return text;
    }
    TableEditor table{*this, {tblData, txtCell, lblNotice, lstFindings}, *this};
};

class AnotherSet : public test::DocumentFixture {
protected:
    /// The set from its lines, as a document has them.
    TiedSet& Read(const std::string& lines) {
        SilentTalk talk;
        ReaderState state(talk);
        constexpr DataLines tied = {nullptr, ReadTiedSet};
        state.lines = &tied;
        for (std::size_t at = 0; at < lines.size(); at = lines.find('\n', at) + 1)
            ReadRecord(state, std::string_view(lines).substr(at, lines.find('\n', at) - at));
        EXPECT_FALSE(state.isAbandoned);
        EXPECT_EQ(state.linesNotKept, 0);
        return *readSet;
    }
    ~AnotherSet() override { readSet = nullptr; }
};

const std::string Lines = "^A & O & & & & & &\n"
                          "^M 1000\n^3 VDN S DIR 1 Y L T C P S X1 S\n"
                          "^X 2 P L - & & & - & & & + 95 0.2 - & & - & & &\n"
                          "^X 0 VDN L - & & & - & & & + & 0.1% - & & - & & &\n"
                          "^g 25.0 3 101.30 5 0.2500 4 0.9380 4 & 7\n"
                          "^Y & & & & & & & 0.3 & & & & & & & & & &\n"
                          "^d 30.0 101.3 0.5 0.86 0.002 8\n"
                          "^M 0\n";

TEST_F(AnotherSet, IsReadAndWrittenAsTheOthersAre) {
    TiedSet& set = Read(Lines);
    ASSERT_EQ(set.recData.Count(), 2U);
    EXPECT_EQ(set.recData.Item(1)->TIELINE, "7");
    EXPECT_EQ(set.recData.Item(1)->StatementsOf(2).Unc, "0.3");
    EXPECT_EQ(set.UX[2].UValue, "0.2");
    LineWriter out;
    set.Print(out);
    EXPECT_EQ(out.Text(), Lines);
}

TEST_F(AnotherSet, StandsInColumnsThatAreTypedAndPastedInto) {
    TiedSet& set = Read(Lines);
    NameStatements(set);
    TableForm shown;
    shown.Show(TableColumns(set.Quantities(), false, set.HasTies()));
    EXPECT_EQ(shown.Row(0), "Tie|Var1|Var2|Uncert.|Var3|Property|Uncert.%|KVO Uncert.");
    shown.tblData.UserPaste("7\t25.0\t101.30\t0.3\t0.2500\t0.9380\n8\t30.0\t101.3\t\t0.5\tabc");
    EXPECT_EQ(shown.Row(2), "8|30.0|101.3||0.5|abc||");
    ASSERT_EQ(shown.lstFindings.Count(), 1);
    shown.UserKey(ui::ParseKey("Ctrl+Z"));
    EXPECT_EQ(shown.lstFindings.Count() + shown.tblData.Rows(), 2);
    // Cells go into the rows, and come out of them again.
    clsData row;
    row.nVar = DataSet::MostVariables;
    const std::vector<std::string> cells = {"9", "35", "101", "0.4", "0.75", "0.79", "1", "0.01"};
    for (int column = 0; column < shown.columns.Count(); ++column)
        shown.columns.Store(row, column, cells[static_cast<std::size_t>(column)]);
    LineWriter out;
    row.PrintData(out);
    EXPECT_EQ(out.Text(), "^D 35 101 0.75 0.79 0.01 9\n"
                          "^Y & & & & & & & 0.4 & & & & & & & 1% & &\n");
    for (int column = 0; column < shown.columns.Count(); ++column)
        EXPECT_EQ(shown.columns.CellOf(row, column), cells[static_cast<std::size_t>(column)]);
}

// Rows of 18 and 46 g/mol, and one of which nobody knows.
const std::string ByMass = "^A & & & & & & & ::dHEX:0.01:\n^3 HEX Z DIR 1 Y L T C P S X1 S\n"
                           "^X 0 HEX L - & & & - & & & + 95 0.5 - & & - & & &\n"
                           "^d 25.0 101.3 0.0 1.000 & 1\n^d 25.0 101.3 1.0 1.000 & 2\n"
                           "^Y & & & & & & & & & & & & & & & 2.0 & &\n";
const std::string WithoutMass = "^d 25.0 101.3 2.0 1.000 & 3\n^M 0\n";

TEST_F(AnotherSet, GoesToSystemUnitsByTheMolarMassOfEachRow) {
    TiedSet& set = Read(ByMass + "^M 0\n");
    const SystemColumn column(set, 0);
    EXPECT_DOUBLE_EQ(column.Of(*set.recData.Item(2)).value_or(0), 0.046);
    ASSERT_TRUE(set.Copy()->AdjustUnits());
    set.AdjustUnits();
    EXPECT_EQ(set.recData.Item(1)->PRPVALUE(), "0.01800"); // of 1 J/g
    EXPECT_EQ(set.recData.Item(2)->PRPVALUE(), "0.04600");
    EXPECT_EQ(set.recData.Item(1)->VARIABLE(1), "298.15");
    // 0.5 J/g of the set is another figure in each row, and so are those of the rows.
    EXPECT_EQ(set.UX[0].UValue, "");
    EXPECT_TRUE(set.UX[0].iUnc);
    EXPECT_EQ(set.recData.Item(1)->StatementsOf(0).Unc, "0.009");
    EXPECT_EQ(set.recData.Item(2)->StatementsOf(0).Unc, "0.092");
    EXPECT_NE(set.Header.DATACOMMENT.find(":dHEX:0.0005:"), std::string::npos);
}

TEST_F(AnotherSet, KeepsItsUnitsAsLongAsTheMolarMassOfARowIsNotKnown) {
    TiedSet& set = Read(ByMass + WithoutMass);
    const std::string before = set.Header.DATACOMMENT;
    EXPECT_FALSE(SystemColumn(set, 0).Converts(*set.recData.Item(3)));
    EXPECT_TRUE(SystemColumn(set, 0).Converts(*set.recData.Item(2)));
    EXPECT_FALSE(set.AdjustUnits());
    EXPECT_EQ(set.recData.Item(1)->VARIABLE(1), "25.0");
    EXPECT_EQ(set.UX[0].UValue + set.Header.DATACOMMENT, "0.5" + before);
}

TEST_F(AnotherSet, LeavesWithItsVariablesPhasesAndRows) {
    TiedSet& set = Read(Lines);
    XmlWriter xml;
    set.ExportAll(xml);
    const auto count = [&xml](const std::string& text) {
        int times = 0;
        for (std::size_t at = xml.Text().find(text); at != std::string::npos;
             at = xml.Text().find(text, at + 1))
            ++times;
        return times;
    };
    EXPECT_EQ(count("<Variable>"), 3);
    EXPECT_EQ(count("<eVarPhase>Liquid</eVarPhase>"), 3);
    EXPECT_EQ(count("<VariableValue>"), 6);
    EXPECT_EQ(count("<nVarValue>298.15</nVarValue>") + count("<nVarValue>298.2</nVarValue>"), 1);
    EXPECT_EQ(count("<nPropValue>938.0</nPropValue>"), 1);
    EXPECT_EQ(count("<nExpandUncertValue>0.3</nExpandUncertValue>"), 1); // the row's own
    EXPECT_EQ(count("<nExpandUncertValue>0.2</nExpandUncertValue>"), 1); // the set's
}

TEST_F(AnotherSet, LeavesByTheMolarMassOfEachRowAndWithoutRowsThatHaveNone) {
    TiedSet& set = Read(ByMass + WithoutMass);
    desktop.Expect("Unable to calculate average molar mass\nSystem: ethanol + water\n"
                   "Property: Excess enthalpy (enthalpy of mixing) | Data Error!");
    XmlWriter xml;
    set.ExportAll(xml);
    for (const char* element : {"<nPropValue>0.01800<", "<nExpandUncertValue>0.009<",
                                "<nPropValue>0.04600<", "<nExpandUncertValue>0.092<"})
        EXPECT_NE(xml.Text().find(element), std::string::npos) << element;
    EXPECT_EQ(xml.Text().find("<nVarValue>2.0<"), std::string::npos);
    set.PROPERTY_UNIT = "z";
    EXPECT_EQ(SetRows(set).Fault(SubjectOf(set, {})), "Invalid conversion factor");
}

TEST_F(AnotherSet, AnyNumberOfQuantitiesHasItsColumns) {
    std::vector<Quantity> quantities;
    for (int item = 0; item < 7; ++item)
        quantities.push_back({item, item > 4, "", "", "L", {}});
    quantities[2].statements.iUnc = quantities[5].statements.iDS = true;
    TableForm shown;
    shown.Show(TableColumns(quantities));
    EXPECT_EQ(shown.Row(0), "Var1|Var2|Var3|Uncert.|Var4|Var5|Property1|Dev.Spec.|Property2|"
                            "KVO Uncert.");
    shown.tblData.UserPaste("1\t2\t3\t4\t5\t6\t7");
    EXPECT_EQ(shown.Row(1), "1|2|3||4|5|6||7|"); // past the columns of statements
    EXPECT_EQ(shown.lstFindings.Count(), 0);
    shown.tblData.UserCell(1, 5, "");
    EXPECT_EQ(shown.lstFindings.Count(), 1);
}

} // namespace
} // namespace vexora
