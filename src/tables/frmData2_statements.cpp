#include "tables/frmData2.h"

#include <algorithm>
#include <span>
#include <utility>

#include "chem/clsMethod.h"
#include "chem/clsProperty.h"
#include "entry/EditStatements.h"
#include "globals/KVOGlobal.h"
#include "records/DataSet.h"
#include "reference/Numbers.h"
#include "ui/Desktop.h"
#include "ui/Forms.h"

namespace vexora {

namespace {

using Kind = TableColumn::Kind;

bool IsPerCent(const std::string& text) {
    return text.find('%') != text.npos;
}

bool IsAbsolute(const std::string& cell) {
    return !cell.empty() && !cell.ends_with('%');
}

} // namespace

void frmData2::Assign() {
    if (Check()) AssignAccepted();
}

/// The statements of the set; what they ask for in every row gets its column.
/// It is a step of the history, for what was typed before stood in other
/// columns. False on Cancel.
bool frmData2::AssignAccepted() {
    if (!ui::Forms::Current().Knows("frmUnc")) return true;
    KVOGlobal& globals = Globals();
    const auto method = globals.CurrentMethod;
    TakeSelectedRow();
    globals.CurrentProperty = chain_;
    const std::string key = std::exchange(globals.CurrentKey, "RLS1");
    const bool accepted = AssignBy([this] { return EditStatements(set_->UX); });
    globals.CurrentKey = key;
    globals.CurrentMethod = method;
    return accepted;
}

std::vector<clsX> frmData2::Statements() const {
    return set_ ? std::vector<clsX>(set_->UX.begin(), set_->UX.end()) : std::vector<clsX>();
}

/// What was last stated for the property, as if it had been entered again.
void frmData2::TakeLast(const std::vector<clsX>& items) {
    table_.EndTyping();
    AssignBy([&] {
        std::ranges::copy(items, set_->UX.begin());
        return true;
    });
    tblData.SetFocus();
}

/// `change` works on the statements of the set; false when it was cancelled.
bool frmData2::AssignBy(const std::function<bool()>& change) {
    const StatementsOfSet before = set_->UX;
    if (!change()) return false;
    if (!MayLoseColumns()) {
        set_->UX = before;
        return false;
    }
    const bool assignedBefore = std::exchange(assigned_, true);
    if (set_->UX == before) return true;
    const Signs signs = SignsAfter(before);
    const auto fitsColumns = [&](TableEdit& edit) {
        for (const int column : signs.marked)
            for (int row = tblData.FixedRows(); row < tblData.Rows(); ++row)
                if (IsAbsolute(tblData.Cell(row, column)))
                    edit.Cell(row, column, tblData.Cell(row, column) + "%");
        const TableColumns next = ColumnsOfSet();
        const std::vector<int> places = columns_.PlacesIn(next);
        for (int column = 0; column < columns_.Count(); ++column) {
            if (places[static_cast<std::size_t>(column)] >= 0) continue;
            for (int row = tblData.FixedRows(); row < tblData.Rows(); ++row)
                edit.Cell(row, column, {});
        }
    };
    table_.History().Do(fitsColumns, [this, before, assignedBefore, after = set_->UX,
                                      ownBefore = ownSigns_, own = signs.own](bool done) {
        ownSigns_ = done ? own : ownBefore;
        UseStatements(done ? after : before);
        assigned_ = done || assignedBefore;
    });
    return true;
}

void frmData2::UseStatements(const StatementsOfSet& statements) {
    set_->UX = statements;
    AnalyseCurrentProperty();
    FillHeader();
    table_.Findings().FindAgain();
    offer_.Show();
}

/// Entries of rows whose column goes with its statement are not thrown away
/// unasked.
bool frmData2::MayLoseColumns() const {
    const TableColumns next = ColumnsOfSet();
    const std::vector<int> places = columns_.PlacesIn(next);
    for (int column = 0; column < columns_.Count(); ++column) {
        if (places[static_cast<std::size_t>(column)] >= 0) continue;
        for (int row = tblData.FixedRows(); row < tblData.Rows(); ++row) {
            if (tblData.Cell(row, column).empty()) continue;
            return ui::AskYesNo("The entries in the column " + columns_[column].head +
                                " go with its statement\nGo on?");
        }
    }
    return true;
}

/// The values by which the dialog of statements shows the figures that follow.
void frmData2::TakeSelectedRow() {
    const int property = columns_.Find(Kind::Value, 0);
    int row = tblData.Selection().top;
    if (row < tblData.FixedRows() || tblData.Cell(row, property).empty()) row = tblData.FixedRows();
    int place = 0;
    for (clsProperty* item = chain_.get(); item; item = item->NextItem.get())
        item->Text = tblData.Cell(row, columns_.Find(Kind::Value, place++));
    if (!set_->MolarMassFollowsRows()) return;
    const auto& method = Globals().CurrentMethod;
    auto ofRow = method ? std::make_shared<clsMethod>(*method) : std::make_shared<clsMethod>();
    ofRow->MMass = MolarMassOf(row);
    Globals().CurrentMethod = ofRow;
}

/// Whether some entry would mean something else when the set switches to or
/// from per cent.
bool frmData2::ChangesMeaning(int column, bool toPercent) const {
    if (!toPercent && !columns_[column].percent) return false; // they say it themselves
    for (int row = tblData.FixedRows(); row < tblData.Rows(); ++row)
        if (IsAbsolute(tblData.Cell(row, column))) return true;
    return false;
}

/// Where the set was switched to or from per cent, the entries of its rows keep
/// their meaning unless they are meant to follow; in no case are they
/// converted. A figure that was only taken away switches nothing.
frmData2::Signs frmData2::SignsAfter(const StatementsOfSet& before) const {
    Signs signs{ownSigns_, {}};
    std::vector<int> asked;
    std::string names;
    for (int column = 0; column < columns_.Count(); ++column) {
        const auto [kind, item] = std::pair(columns_[column].kind, columns_[column].item);
        const auto place = static_cast<std::size_t>(item);
        const std::string& figure = FigureOf(set_->UX[place], kind);
        const bool toPercent = IsPerCent(figure);
        if (IsPerCent(FigureOf(before[place], kind)) == toPercent) continue;
        signs.own.erase({kind, item});
        if (!ChangesMeaning(column, toPercent)) continue;
        if (figure.empty()) {
            signs.marked.push_back(column);
            continue;
        }
        asked.push_back(column);
        std::string name = ColumnName(column);
        std::erase(name, '%');
        names += (names.empty() ? "" : ", ") + name;
    }
    if (asked.empty() || ui::AskYesNo("The set now states its figure for " + names +
                                      " in another way, as per cent or as absolute.\nAre the "
                                      "entries of the rows to "
                                      "be read that way too? Their digits stay"))
        return signs;
    for (const int column : asked) {
        if (columns_[column].percent)
            signs.marked.push_back(column);
        else
            signs.own.emplace(columns_[column].kind, columns_[column].item);
    }
    return signs;
}

bool frmData2::HasEntries(Kind kind, int item) const {
    const int column = columns_.Find(kind, item);
    for (int row = tblData.FixedRows(); column >= 0 && row < tblData.Rows(); ++row)
        if (!tblData.Cell(row, column).empty()) return true;
    return false;
}

/// A mark that came with the entries of rows goes with the last of them, when
/// the set itself has not become more definite.
void frmData2::DropIdleMarks() {
    for (int n = 0; n <= set_->nVar; ++n) {
        const auto place = static_cast<std::size_t>(n);
        clsX& item = set_->UX[place];
        clsX first = firstStatements_[place];
        clsX before = statementsBefore_[place];
        for (const Kind kind : {Kind::DS, Kind::Rep, Kind::Unc, Kind::CU, Kind::CD}) {
            const bool came = *MarkOf(first, kind) && !*MarkOf(before, kind);
            const bool entries =
                HasEntries(kind, n) || (kind == Kind::Rep && HasEntries(Kind::Repetitions, n));
            if (came && !entries && FigureOf(item, kind).empty()) *MarkOf(item, kind) = false;
        }
    }
}

/// Quantities with their values from this column on that have no column of
/// uncertainties; the property first, since mostly its figures stand last in a
/// printed table.
std::vector<int> frmData2::ItemsWithoutUncertainty(int from) const {
    std::vector<int> items;
    for (int n = 0; n <= set_->nVar; ++n)
        if (columns_.Find(Kind::Value, n) >= from && columns_.Find(Kind::Unc, n) < 0)
            items.push_back(n);
    return items;
}

/// A block from the first column on has the numbers of its tie lines there, and then its values;
/// when it cannot be so, it has values only.
void frmData2::PassTies(BlockToPut& put) const {
    const int columns = static_cast<int>(put.block.Columns());
    if (columns_.Find(Kind::Tie) != put.column || columns < 2) return;
    if (MayBeTwoDimensional(put.block)) return;
    const auto isNoTie = [](const std::vector<std::string>& cells) {
        return !cells.empty() && IsNumeric(cells[0]) &&
               cells[0].find_first_not_of("0123456789") != std::string::npos;
    };
    if (std::ranges::any_of(put.block.rows, isNoTie)) {
        if (columns >= columns_.Count()) return; // of another width: to be turned
        ++put.column;
        put.block.notices.push_back({0, "The values went past the column of tie lines"});
        return;
    }
    const std::vector<int> places = ValueColumns();
    const auto wide = static_cast<std::size_t>(places.back()) + 1;
    if (columns != static_cast<int>(places.size()) + 1 || wide == places.size() + 1) return;
    for (std::vector<std::string>& cells : put.block.rows) {
        std::vector<std::string> spread(wide);
        for (std::size_t i = 0; i < std::min(cells.size(), places.size() + 1); ++i)
            spread[i == 0 ? 0 : static_cast<std::size_t>(places[i - 1])] = std::move(cells[i]);
        cells = std::move(spread);
    }
    put.block.notices.push_back(
        {0, "The values went past the columns between them; Ctrl+Z takes them back"});
}

/// With a corner that is no number it is to be turned.
bool frmData2::MayBeTwoDimensional(const PastedTable& block) const {
    return set_ && set_->nVar == 2 && !IsNumeric(block.rows.front().front());
}

/// What stands behind the property in a printed table is rarely a figure of our
/// evaluation: whose uncertainty it is, is asked, and its column opens in the
/// step of the paste.
bool frmData2::MakeRoom(BlockToPut& put) {
    PassTies(put);
    const int at = columns_.Find(Kind::KVO) - put.column;
    auto& rows = put.block.rows;
    if (!set_ || at <= 0 || static_cast<int>(put.block.Columns()) != at + 1) return true;
    if (MayBeTwoDimensional(put.block)) return true;
    // A block that fills columns of statements was laid out for this very table.
    const auto isOfRow = [](const TableColumn& column) {
        return column.IsStatement() && column.kind != Kind::Digits;
    };
    const auto span = std::span(columns_.All()).subspan(static_cast<std::size_t>(put.column));
    const bool open = std::ranges::none_of(span, isOfRow);
    const std::string ask = "The last column of the block comes to stand under KVO Uncert., the "
                            "figure of the evaluation\nIs it the uncertainty of ";
    for (const int item : open ? ItemsWithoutUncertainty(put.column) : std::vector<int>()) {
        const auto place = static_cast<std::size_t>(item);
        const ui::Answer answer = ui::AskYesNoCancel(ask + set_->UX[place].Name + "?");
        if (answer == ui::Answer::No) continue;
        if (answer != ui::Answer::Yes) return false;
        StatementsOfSet after = set_->UX;
        after[place].iUnc = true;
        put.ahead = [this, before = set_->UX, after](bool done) {
            UseStatements(done ? after : before);
        };
        std::vector<Quantity> quantities = set_->Quantities();
        for (Quantity& quantity : quantities)
            quantity.statements.iUnc = quantity.statements.iUnc || quantity.item == item;
        const TableColumns next(quantities, Globals().IncludeDigits, set_->HasTies(), ownSigns_);
        const int to = next.Find(Kind::Unc, item) - put.column;
        for (auto& cells : rows) {
            cells.resize(static_cast<std::size_t>(at) + 1);
            std::rotate(cells.begin() + to, cells.begin() + at, cells.end());
        }
        const std::string owner = next[next.Find(Kind::Value, item)].head;
        put.block.notices.push_back({0, "The last column went into Uncert. of " + owner});
        return true;
    }
    put.block.notices.push_back(
        {0, "The last column went into KVO Uncert., the figure of the evaluation"});
    return true;
}

} // namespace vexora
