// The heads of the columns: chosen from lists that open over them, or taken as proposed.

#include "tables/frmProcess.h"

#include <algorithm>

#include "records/clsL.h"
#include "records/clsM.h"
#include "records/clsS.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "ui/Desktop.h"

namespace vexora {

namespace {

constexpr std::size_t MostHeadings = 4; // rows above the values in printed tables

bool HasAllWords(const std::string& entry, const std::string& typed) {
    const std::string text = LowerAscii(entry);
    for (const std::string& word : Split(LowerAscii(typed), ' '))
        if (text.find(word) == text.npos) return false;
    return true;
}

std::vector<std::string> NamesOf(const ProcessSystem& system, bool formulas) {
    std::vector<std::string> names;
    const auto add = [&](const clsL* compound) {
        names.push_back(!compound  ? std::string()
                        : formulas ? FormulaOfRN(compound->RN)
                                   : compound->ShowKey());
    };
    for (int n = 1; system.mixture && n <= system.mixture->MixType; ++n)
        add(system.mixture->Component(n).get());
    if (!system.mixture) add(system.sample ? system.sample->Parent : nullptr);
    return names;
}

} // namespace

void frmProcess::WireHeads() {
    tblData.OnHead = [this](int row, int column) { OpenHeadList(row, column); };
    tblData.OnKey = [this, follows = tblData.OnKey](ui::Key& key) {
        if (tblData.IsInHeads() && HeadKey(key))
            key.swallowed = true;
        else
            follows(key);
    };
    for (ui::ComboBox* list : {&cboCell, &cboUnit, &cboPhase}) {
        list->Visible(false);
        list->OnKey = [this](ui::Key& key) { ListKeys(key); };
        list->OnLostFocus = [this] { ListLeft(); };
        list->OnDropDown = [this, list] {
            const ui::FillingScope filling(*this);
            const std::string text = list->Text();
            list->Assign(offered_);
            list->Text(text);
        };
        list->OnChange = [this] {
            if (!Filling) OfferTyped();
        };
        // Arrows go through the open entries; to take one, it is clicked or left by Enter.
        list->OnClick = [this, list] {
            if (Filling || list != list_) return;
            if (list->IsUnfolded())
                isTyped_ = true;
            else
                TakeEntry(list->Chosen());
        };
    }
}

ProcessHeads::Texts frmProcess::HeadsOf(int column) const {
    ProcessHeads::Texts texts;
    for (int row = 0; row < HeadRows(); ++row)
        texts.at(static_cast<std::size_t>(row)) = tblData.Cell(row, column);
    return texts;
}

std::string frmProcess::AllHeads() const {
    std::string text;
    for (int column = 1; column < tblData.Columns(); ++column)
        for (const std::string& head : HeadsOf(column))
            text += head + "\t";
    // Columns that came empty are no change.
    text.erase(text.find_last_not_of('\t') + 1);
    return text;
}

void frmProcess::WriteHeads(TableEdit& edit, int column, const ProcessHeads::Texts& texts) const {
    for (int row = 0; row < HeadRows(); ++row)
        edit.Cell(row, column, texts.at(static_cast<std::size_t>(row)));
}

/// The keys of a selected head; the others are those of the table.
bool frmProcess::HeadKey(ui::Key& key) {
    const ui::Grid::Block block = tblData.Selection();
    const std::string name = key.FullName();
    const bool types = key.character > U' ' && !key.control && !key.alt;
    if (name == "Enter" || name == "F2" || name == "F4" || name == "Alt+Down" || types) {
        OpenHeadList(block.top, block.left);
        if (types && list_) {
            std::string typed;
            AppendCodePoint(typed, key.character);
            list_->UserEdited(typed);
        }
    } else if (name == "Delete" || name == "Backspace") {
        table_.History().Do([&](TableEdit& edit) {
            for (int row = block.top; row <= block.bottom; ++row)
                for (int column = std::max(block.left, 1); column <= block.right; ++column) {
                    if (row == HeadRow::Quantity)
                        WriteHeads(edit, column, {});
                    else
                        edit.Cell(row, column, {});
                }
        });
    } else if (key.name == "Tab" && !key.control) {
        const int next = block.left + (key.shift ? -1 : 1);
        if (next < 1 || next >= tblData.Columns()) return false;
        MoveToHead(block.top, next);
    } else {
        return false;
    }
    return true;
}

/// Opens the list over a head. Without a quantity there is nothing else to choose, and its list
/// comes up.
void frmProcess::OpenHeadList(int row, int column) {
    table_.EndTyping();
    CloseHeadList();
    if (!heads_) return;
    const ProcessColumn described = ColumnAt(column);
    if (!described.IsDescribed()) row = HeadRow::Quantity;
    offered_ = heads_->Offered(static_cast<HeadRow>(row), described);
    MoveToHead(row, column);
    if (offered_.empty()) return;
    list_ = tblData.HeadLists[static_cast<std::size_t>(row)];
    listRow_ = row;
    listColumn_ = column;
    isTyped_ = false;
    const auto proposed = tblData.Proposed().find({row, column});
    const std::string& text = tblData.Cell(row, column);
    {
        const ui::FillingScope filling(*this);
        list_->Assign(offered_);
        list_->Text(text.empty() && proposed != tblData.Proposed().end() ? proposed->second : text);
    }
    list_->Visible(true);
    list_->SetFocus();
    list_->SelectFrom(0);
    list_->Unfolded(true);
}

void frmProcess::CloseHeadList() {
    if (!list_) return;
    ui::ComboBox& list = *std::exchange(list_, nullptr);
    const bool hadFocus = list.HasFocus();
    list.Visible(false);
    if (hadFocus) tblData.SetFocus();
}

/// The entries that hold all words typed.
void frmProcess::OfferTyped() {
    if (!list_) return;
    isTyped_ = true;
    const std::string typed = list_->Text();
    std::vector<std::string> fitting;
    std::ranges::copy_if(offered_, std::back_inserter(fitting),
                         [&](const std::string& entry) { return HasAllWords(entry, typed); });
    const ui::FillingScope filling(*this);
    list_->Assign(std::move(fitting));
    list_->Text(typed);
    list_->Unfolded(true);
}

void frmProcess::ListKeys(ui::Key& key) {
    if (!list_) return;
    const std::string name = key.FullName();
    const int row = listRow_;
    const int column = listColumn_;
    if (name == "Escape") {
        CloseHeadList();
    } else if (name == "Enter" || key.name == "Tab") {
        const std::string entry = EntryMeant();
        if (entry.empty() && name == "Enter") {
            list_->Unfolded(true);
        } else if (entry.empty()) {
            CloseHeadList();
        } else {
            TakeEntry(entry);
        }
        if (key.name == "Tab" && !list_)
            MoveToHead(row, std::clamp(column + (key.shift ? -1 : 1), 1, tblData.Columns() - 1));
    } else {
        if (key.name == "Down" || key.name == "Up") list_->Unfolded(true);
        return;
    }
    key.swallowed = true;
}

/// What was reached or typed in full is meant; a mere beginning is not.
void frmProcess::ListLeft() {
    if (!list_) return;
    const std::string entry = list_->Index() >= 0 ? list_->Chosen() : std::string();
    const std::string before = tblData.Cell(listRow_, listColumn_);
    if (entry.empty() || entry == before || entry == OtherUnits || !isTyped_) {
        CloseHeadList();
        return;
    }
    TakeEntry(entry);
}

/// The chosen entry, else the first that fits what was typed, or a factor typed in place of a unit.
/// Empty for none.
std::string frmProcess::EntryMeant() const {
    if (list_->Index() >= 0) return list_->Chosen();
    const std::string typed(TrimBlanks(list_->Text()));
    if (!isTyped_ || typed.empty()) return typed;
    // "8" is no beginning of "*8.31451".
    const bool isFactor = listRow_ == HeadRow::Unit && IsNumeric(typed) && Val(typed) > 0;
    if (isFactor) return typed;
    return list_->Count() > 0 ? list_->Item(0) : std::string();
}

/// In one step that can be undone; the next head of the column comes after it.
void frmProcess::TakeEntry(const std::string& entry) {
    const int row = listRow_;
    const int column = listColumn_;
    CloseHeadList();
    ProcessHeads::Texts texts = HeadsOf(column);
    if (row == HeadRow::Quantity) {
        if (entry != texts[HeadRow::Quantity]) texts = heads_->WithQuantity(texts, entry);
    } else if (entry != OtherUnits) {
        texts.at(static_cast<std::size_t>(row)) = entry;
    } else if (const auto factor = AskFactor(ColumnAt(column))) {
        texts[HeadRow::Unit] = *factor;
    }
    table_.History().Do([&](TableEdit& edit) { WriteHeads(edit, column, texts); });
    MoveToHead(row, column);
}

/// Nothing when the question is cancelled; empty, told in a box, for what is no factor.
std::optional<std::string> frmProcess::AskFactor(const ProcessColumn& column) const {
    std::string unit = HeadSystemUnit(column.quantity);
    if (unit.empty()) unit = "Dimensionless";
    const auto answer = ui::TheDesktop().Ask(
        {"Property value in the original units multiplied by a conversion factor is property "
         "value in " +
             unit + "\n(Original Value) * (Conversion Factor) = (Converted Value) in " + unit +
             "\n\nEnter the Conversion Factor here",
         "Non-standard conversion factor", column.factor});
    if (!answer) return std::nullopt;
    const std::string factor = NormalizeNumber(*answer);
    if (IsNumeric(factor) && Val(factor) > 0) return factor;
    ui::Say("The conversion factor must be a number above 0");
    return std::string();
}

void frmProcess::MoveToHead(int row, int column) {
    tblData.Show({row, column, row, column});
}

/// The first rows of the table may be its headings; what they say is shown where no head is chosen.
void frmProcess::ProposeHeads() {
    guess_ = {};
    guessedRow_ = HeadRows();
    const int last = table_.History().LastFilledRow();
    const auto cell = [this](int row, int column) { return TrimBlanks(tblData.Cell(row, column)); };
    const auto isEmpty = [&](int row) {
        for (int column = 1; column < tblData.Columns(); ++column)
            if (!cell(row, column).empty()) return false;
        return true;
    };
    while (guessedRow_ < last && isEmpty(guessedRow_))
        ++guessedRow_;
    std::vector<std::vector<std::string>> rows;
    for (int row = guessedRow_; row <= last && rows.size() < MostHeadings; ++row) {
        rows.emplace_back();
        for (int column = 1; column < tblData.Columns(); ++column)
            rows.back().emplace_back(cell(row, column));
    }
    if (!rows.empty() && std::ranges::any_of(rows.front(), [](const std::string& text) {
            return !text.empty() && !IsNumeric(text);
        }))
        guess_ = GuessHeads(rows, {NamesOf(system_, false), NamesOf(system_, true)});
    ui::Grid::Proposals proposals;
    for (std::size_t i = 0; guess_.rows > 0 && i < guess_.columns.size(); ++i) {
        const int column = static_cast<int>(i) + 1;
        if (column >= tblData.Columns() || !tblData.Cell(HeadRow::Quantity, column).empty())
            continue;
        const auto texts = heads_->TextsOf(guess_.columns[i]);
        for (int row = 0; row < HeadRows(); ++row)
            if (!texts.at(static_cast<std::size_t>(row)).empty())
                proposals[{row, column}] = texts.at(static_cast<std::size_t>(row));
    }
    tblData.Propose(std::move(proposals));
    lblHeads.Visible(guess_.rows > 0);
    cmdUseHeads.Visible(guess_.rows > 0);
    lblHeads.Caption(guess_.rows == 1
                         ? std::string("The first row reads as headings")
                         : "The first " + std::to_string(guess_.rows) + " rows read as headings");
}

/// The headings go with their rows, also those that name a column for a person alone.
std::vector<PasteNotice> frmProcess::UnreadHeadings() const {
    std::vector<PasteNotice> notices;
    for (int column = 1; column < tblData.Columns(); ++column) {
        if (!tblData.Cell(HeadRow::Quantity, column).empty() ||
            tblData.Proposed().contains({HeadRow::Quantity, column}))
            continue;
        std::string texts;
        for (int row = guessedRow_; row < guessedRow_ + guess_.rows; ++row)
            texts += " " + tblData.Cell(row, column);
        const std::string_view heading = TrimBlanks(texts);
        if (heading.empty()) continue;
        notices.push_back({0, "column " + std::to_string(column) +
                                  ": no quantity was found for \"" + std::string(heading) + "\""});
    }
    return notices;
}

/// The proposals become heads, and the rows that they were read from go.
void frmProcess::UseHeads() {
    table_.EndTyping();
    if (guess_.rows == 0) return;
    const GuessedHeads guess = guess_;
    const ui::Grid::Proposals proposals = tblData.Proposed();
    const std::vector<PasteNotice> notices = UnreadHeadings();
    table_.History().Do([&](TableEdit& edit) {
        for (const auto& [place, text] : proposals)
            edit.Cell(place.first, place.second, text);
        edit.RemoveRows(guessedRow_, guess.rows);
    });
    table_.Blocks().Tell(notices);
    tblData.SetFocus();
}

} // namespace vexora
