#include "sources/EntryFields.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <optional>
#include <utility>

#include "globals/KVOGlobal.h"
#include "reference/NameKey.h"
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

bool BeginsAs(std::string_view title, std::string_view typed) {
    return LowerAscii(title).starts_with(LowerAscii(typed));
}

/// The title that a typed text begins; "" if there is none.
std::string TitleBegunBy(const std::vector<std::string>& titles, std::string_view typed) {
    const std::string key = TitleKey(typed);
    if (key.empty()) return "";
    const std::function<bool(std::string_view)> ranks[] = {
        [&](std::string_view title) { return EqualNoCase(title, typed); },
        [&](std::string_view title) { return BeginsAs(title, typed); },
        [&](std::string_view title) { return TitleKey(title) == key; },
        [&](std::string_view title) { return TitleKey(title).starts_with(key); }};
    for (const auto& fits : ranks)
        if (const auto found = std::ranges::find_if(titles, fits); found != titles.end())
            return *found;
    return "";
}

/// Whether one of its words begins what was typed: "chem eng d" is in "J.Chem.Eng.Data".
bool HasBeginning(std::string_view title, const std::string& key) {
    bool isInWord = false;
    for (std::size_t at = 0; at < title.size(); ++at) {
        const bool begins = CountsInTitle(title[at]) && !isInWord;
        isInWord = CountsInTitle(title[at]);
        if (begins && TitleKey(title.substr(at)).starts_with(key)) return true;
    }
    return false;
}

/// How much of the title a person has typed who typed it in another writing.
std::string PartTyped(std::string_view title, std::string_view typed) {
    if (BeginsAs(title, typed)) return std::string(title.substr(0, typed.size()));
    std::size_t left = TitleKey(typed).size();
    std::size_t end = 0;
    for (; end < title.size() && left > 0; ++end)
        left -= CountsInTitle(title[end]) ? 1 : 0;
    while (!CountsInTitle(typed.back()) && end < title.size() && !CountsInTitle(title[end]))
        ++end;
    return std::string(title.substr(0, end));
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
    Hint(prompt_);
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
    Hint(prompt_);
    OnChange = [this] { Complete(); };
    OnGotFocus = [this] {
        typed_ = onEntry_ = Entered();
        if (typed_.empty()) SelectFrom(0);
    };
    OnLostFocus = [this] { TakeKnown(); };
    OnDropDown = [this] { Offer(); };
}

void CompletingCombo::Fill() {
    titles_.clear();
    if (Globals().LocalDb().IsOpen()) {
        auto rows = Globals().LocalDb().Query("select * from " + table_ + " order by rowid");
        for (; !rows.IsEnd(); rows.MoveNext())
            titles_.push_back(rows.Text(column_));
    }
    Assign(titles_);
    Enter("");
}

/// Below a text that is no whole title drop those of which a word begins so, below others all.
void CompletingCombo::Offer() {
    const std::string entered = Entered();
    const bool isCompleted = !typed_.empty() && TitleBegunBy(titles_, typed_) == entered;
    const std::string& typed = isCompleted ? typed_ : entered;
    std::vector<std::string> offered;
    if (!TitleKey(typed).empty() && std::ranges::find(titles_, typed) == titles_.end())
        std::ranges::copy_if(
            titles_, std::back_inserter(offered),
            [key = TitleKey(typed)](const std::string& title) { return HasBeginning(title, key); });
    completing_ = true;
    const std::string text = Text();
    Assign(offered.empty() ? titles_ : std::move(offered));
    Text(text);
    completing_ = false;
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
    if (!oneMore) return; // erased, pasted or put in between
    const std::string title = TitleBegunBy(titles_, typed);
    if (title.empty()) return;
    typed_ = PartTyped(title, typed);
    Enter(title);
    SelectFrom(CodePointCount(typed_));
}

/// What stood there before is another's writing and stays.
void CompletingCombo::TakeKnown() {
    const std::string entered = Entered();
    const auto known = std::ranges::find(titles_, TitleKey(entered), TitleKey);
    const bool takes = entered != onEntry_ && known != titles_.end() &&
                       std::ranges::find(titles_, entered) == titles_.end();
    Enter(takes ? *known : Text());
}

} // namespace vexora
