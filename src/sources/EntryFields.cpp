#include "sources/EntryFields.h"

#include <optional>
#include <utility>

#include "globals/KVOGlobal.h"
#include "reference/Text.h"
#include "reference/Transliteration.h"

namespace vexora {

namespace {

std::string Without(std::string text, std::string_view dropped) {
    std::erase_if(text, [dropped](char c) { return dropped.find(c) != dropped.npos; });
    return text;
}

/// What stands more in a text than in another that it was made from by typing at one place; nothing
/// when it was made otherwise.
std::optional<std::string> Inserted(std::string_view text, std::string_view into) {
    if (text.size() < into.size()) return std::nullopt;
    std::size_t front = 0;
    while (front < into.size() && text[front] == into[front])
        ++front;
    const std::size_t more = text.size() - into.size();
    if (text.substr(front + more) != into.substr(front)) return std::nullopt;
    return std::string(text.substr(front, more));
}

} // namespace

PlainTextBox::PlainTextBox(ui::Form& form, std::string name, Lines lines, std::string_view dropped)
    : TextBox(form, std::move(name), lines), dropped_(dropped) {
    OnChange = [this] { MakePlain(); };
}

std::string PlainTextBox::Entered() const {
    return std::string(TrimBlanks(Text()));
}

void PlainTextBox::MakePlain() {
    const std::string before = SingleLine(Without(Substring(Text(), 1, Caret()), dropped_));
    const std::string behind = SingleLine(Without(Substring(Text(), Caret() + 1), dropped_));
    const auto plain = TransliterateAt(before + behind, CodePointCount(before));
    if (plain.text != Text())
        TextAndCaret(plain.text, plain.caret); // comes back here with the plain text
    else if (AfterChange)
        AfterChange();
}

PromptedTextBox::PromptedTextBox(ui::Form& form, std::string name, std::string prompt, Lines lines)
    : PlainTextBox(form, std::move(name), lines), prompt_(std::move(prompt)) {
    Text(prompt_);
    OnGotFocus = [this] {
        if (Text() == prompt_) Text("");
    };
    OnLostFocus = [this] { Enter(Text()); };
}

std::string PromptedTextBox::Entered() const {
    return Text() == prompt_ ? std::string() : PlainTextBox::Entered();
}

void PromptedTextBox::Enter(std::string_view text) {
    Text(TrimBlanks(text).empty() ? prompt_ : std::string(text));
}

CompletingCombo::CompletingCombo(ui::Form& form, std::string name, std::string prompt,
                                 std::string table, std::string column)
    : ComboBox(form, std::move(name), Style::Editable), prompt_(std::move(prompt)),
      table_(std::move(table)), column_(std::move(column)) {
    OnChange = [this] { Complete(); };
    OnGotFocus = [this] {
        typed_ = Entered();
        if (typed_.empty()) SelectFrom(0);
    };
    OnLostFocus = [this] { Enter(Text()); };
}

void CompletingCombo::Fill() {
    if (Globals().LocalDb().IsOpen()) {
        auto rows = Globals().LocalDb().Query("select * from " + table_ + " order by rowid");
        for (; !rows.IsEnd(); rows.MoveNext())
            Add(rows.Text(column_));
    }
    Enter("");
}

std::string CompletingCombo::Entered() const {
    return Text() == prompt_ ? std::string() : std::string(TrimBlanks(Text()));
}

void CompletingCombo::Enter(std::string_view text) {
    completing_ = true;
    prompting_ = TrimBlanks(text).empty() || text == prompt_;
    Text(prompting_ ? prompt_ : std::string(text));
    completing_ = false;
}

void CompletingCombo::DropPrompt() {
    if (!std::exchange(prompting_, false)) return;
    // With the mouse the caret may be put into the prompt, and typing goes on from there.
    const auto typed = Inserted(Text(), prompt_);
    const bool oneErased =
        !typed && Text().size() + 1 == prompt_.size() && Inserted(prompt_, Text());
    if (!typed && !oneErased) return;
    completing_ = true;
    Text(typed.value_or(""));
    completing_ = false;
}

void CompletingCombo::Complete() {
    if (completing_) return;
    DropPrompt();
    const std::string typed = Text();
    const std::string before = std::exchange(typed_, typed);
    const std::size_t length = CodePointCount(typed);
    const bool oneMore = length > 0 && Substring(typed, 1, length - 1) == before;
    if (!oneMore || !Globals().LocalDb().IsOpen()) return; // erased, pasted or put in between
    const auto rows =
        Globals().LocalDb().Query("select " + column_ + " from " + table_ + " where " + column_ +
                                      " like ? order by " + column_ + "=? desc, rowid",
                                  {typed + "*", typed});
    if (rows.IsEnd()) return;
    Enter(rows.Text(column_));
    SelectFrom(length);
}

} // namespace vexora
