#include "sources/frmAuthor.h"

#include <algorithm>

#include "globals/KVOGlobal.h"
#include "records/clsAuthor.h"
#include "reference/Text.h"
#include "sources/frmDocument.h"
#include "ui/Desktop.h"
#include "ui/Forms.h"

namespace vexora {

namespace {

constexpr int NameWidth = 6;
constexpr int InitialsWidth = 3;
constexpr std::size_t InitialsShown = 2; // the third character is the mark

std::string Padded(std::string text, int width) {
    text.resize(std::max(text.size(), static_cast<std::size_t>(width)), ' ');
    return text;
}

/// Whether both would be looked up by the same letters, the mark apart.
bool HasCodes(const clsAuthor& one, const clsAuthor& other) {
    const auto initials = [](const clsAuthor& author) {
        return Padded(author.INITNM, InitialsWidth).substr(0, InitialsShown);
    };
    return EqualNoCase(TrimBlanks(one.LASTNM), TrimBlanks(other.LASTNM)) &&
           EqualNoCase(initials(one), initials(other));
}

/// The mark behind the initials that keeps an author apart from others who share name and initials:
/// a blank for the first, then "1" to "9" and "A" to "Z".
class SequenceMark {
public:
    void Pass(const std::string& initials) {
        const char last = Padded(initials, InitialsWidth)[InitialsShown];
        const char next = last == '9' ? 'A' : static_cast<char>(last + 1);
        mark_ = std::max({mark_, '1', std::min(next, 'Z')});
    }
    char Get() const { return mark_; }

private:
    char mark_ = ' ';
};

/// What the names and initials of those begin with who may be meant.
struct SearchedName {
    SearchedName(const std::string& last, const std::string& first) {
        clsAuthor typed;
        typed.LastName = last;
        typed.FirstName = first;
        typed.CreateAbbr();
        name = typed.LastName + "*";
        initials = (typed.FirstName.empty() ? "" : std::string(TrimBlanks(typed.INITNM))) + "*";
    }

    std::string name, initials;
};

std::shared_ptr<clsAuthor> WithoutMark(const std::string& last, const std::string& first) {
    auto author = std::make_shared<clsAuthor>();
    author->LastName = last;
    author->FirstName = first;
    author->CreateAbbr();
    author->INITNM = Padded(author->INITNM.substr(0, InitialsShown), InitialsWidth);
    author->isNew = true;
    return author;
}

/// The others of the document count as taken, for they are registered with it only.
char MarkOf(const clsAuthor& author, const frmAuthor::Authors& others) {
    SequenceMark mark;
    for (const auto& other : others)
        if (HasCodes(*other, author)) mark.Pass(other->INITNM);
    try {
        auto rows = Globals().CompoundDb().Query(
            "select LASTNM, INITNM from SOURCE_AUTHOR where rtrim(LASTNM)=? order by rowid",
            {std::string(TrimBlanks(author.LASTNM))});
        for (; !rows.IsEnd(); rows.MoveNext()) {
            clsAuthor known;
            known.LASTNM = rows.Text("LASTNM");
            known.INITNM = rows.Text("INITNM");
            if (HasCodes(known, author)) mark.Pass(known.INITNM);
        }
    } catch (const DatabaseError& error) {
        ui::Say(error.what()); // the document keeps the author all the same
    }
    return mark.Get();
}

} // namespace

frmAuthor::frmAuthor() : Form("frmAuthor", "Author's Name") {
    Arrangement =
        ui::Column({ui::Field("Last Name:", txtLast),
                    ui::Field("First && Middle (Names or Initials):", txtFirst),
                    ui::Row({cmdVerify, ui::Stretch()}), ui::Field("Search results:", cboAuthor),
                    ui::Field("Authors of the document:", lstAuthors),
                    ui::Row({ui::Stretch(), cmdChange, cmdRemove, cmdUp, cmdDown}),
                    ui::ButtonRow({cmdAdd, cmdFinish})});
    UseButtons(cmdAdd, cmdFinish, [this] { cmdAdd_Click(); });
    HelpContext = 230;
    PreferredColumns = 60;
    mnuHelp.OnClick = [this] { ui::TheDesktop().ShowHelp(HelpContext); };
    txtLast.AfterChange = [this] { NameChanged(txtLast); };
    txtFirst.AfterChange = [this] { NameChanged(txtFirst); };
    cmdVerify.OnClick = [this] { cmdVerify_Click(); };
    lstAuthors.OnClick = [this] { EnableButtons(); };
    lstAuthors.OnDoubleClick = [this] { cmdChange_Click(); };
    cmdChange.OnClick = [this] { cmdChange_Click(); };
    cmdRemove.OnClick = [this] { cmdRemove_Click(); };
    cmdUp.OnClick = [this] { Move(-1); };
    cmdDown.OnClick = [this] { Move(1); };
}

void frmAuthor::Load() {
    if (const auto* document = ui::Forms::Current().Find<frmDocument>("frmDocument"))
        recAuthor_ = document->Authors();
    ShowList(-1);
}

/// Before the first change the button says "Cancel", and a typed name goes with it.
bool frmAuthor::QueryUnload() {
    return !changed_ || SettleTyped();
}

void frmAuthor::NameChanged(PlainTextBox& field) {
    const std::string& text = field.Text();
    if (text.ends_with(',') || text.ends_with(';')) {
        field.Text(text.substr(0, text.size() - 1)); // comes back here
        return;
    }
    if (cboAuthor.Count() > 0) cboAuthor.Index(0); // what was picked belonged to the name before
}

void frmAuthor::cmdVerify_Click() {
    known_.clear();
    cboAuthor.Clear();
    try {
        known_ = KnownAuthors(txtLast.Entered(), txtFirst.Entered());
        AppendOwn();
    } catch (const DatabaseError& error) {
        return ui::Say(error.what());
    }
    if (known_.empty())
        return ui::Say("Author not found\n\n"
                       "Please complete the Last Name and First Name, then CLICK \"Add\"");
    cboAuthor.FirstIsPrompt = true;
    cboAuthor.Add("CLICK selection, then CLICK \"Add\"");
    for (const auto& author : known_)
        cboAuthor.Add(author->FULLNM);
    cboAuthor.Add("None of listed");
    cboAuthor.Index(0);
    cboAuthor.SetFocus();
}

frmAuthor::Authors frmAuthor::KnownAuthors(const std::string& last, const std::string& first) {
    Authors known;
    const SearchedName searched(last, first);
    auto rows = Globals().CompoundDb().Query(
        "select * from SOURCE_AUTHOR where FULLNM like ? and INITNM like ? order by FULLNM",
        {searched.name, searched.initials});
    for (; !rows.IsEnd(); rows.MoveNext()) {
        clsAuthor& author = *known.emplace_back(std::make_shared<clsAuthor>());
        author.LASTNM = Padded(rows.Text("LASTNM"), NameWidth);
        author.INITNM = Padded(rows.Text("INITNM"), InitialsWidth);
        author.FULLNM = rows.Text("FULLNM");
        // No other workplace knows an author registered here: the document must carry the name.
        author.isNew = rows.Integer("NEW") != 0;
    }
    return known;
}

/// Authors of the list that are not registered yet, so that one and the same is not made twice.
void frmAuthor::AppendOwn() {
    const SearchedName searched(txtLast.Entered(), txtFirst.Entered());
    const auto isListed = [this](const clsAuthor& author) {
        return std::any_of(known_.begin(), known_.end(), [&author](const auto& known) {
            return known->LASTNM == author.LASTNM && known->INITNM == author.INITNM;
        });
    };
    for (const auto& author : recAuthor_)
        if (Like(searched.name, author->FULLNM) && Like(searched.initials, author->INITNM) &&
            !isListed(*author))
            known_.push_back(std::make_shared<clsAuthor>(*author));
}

std::shared_ptr<clsAuthor> frmAuthor::ChosenKnown() const {
    const auto place = static_cast<std::size_t>(cboAuthor.Index() - 1);
    return cboAuthor.Index() >= 1 && place < known_.size() ? known_[place] : nullptr;
}

void frmAuthor::cmdAdd_Click() {
    if (TakeTyped()) txtLast.SetFocus();
}

std::shared_ptr<clsAuthor> frmAuthor::NewAuthor(const std::string& last, const std::string& first,
                                                const Authors& others) {
    auto author = WithoutMark(last, first);
    author->INITNM.back() = MarkOf(*author, others);
    return author;
}

std::shared_ptr<clsAuthor> frmAuthor::TypedAuthor() const {
    auto author = WithoutMark(txtLast.Entered(), txtFirst.Entered());
    // The same person in another spelling keeps the mark.
    if (changing_ && HasCodes(*changing_, *author))
        author->INITNM = changing_->INITNM;
    else // one with other codes takes no mark away
        author->INITNM.back() = MarkOf(*author, recAuthor_);
    return author;
}

std::shared_ptr<clsAuthor> frmAuthor::Selected() const {
    const int at = lstAuthors.Index();
    return at < 0 ? nullptr : recAuthor_.at(static_cast<std::size_t>(at));
}

bool frmAuthor::HasTyped() const {
    const std::string last = txtLast.Entered();
    const std::string first = txtFirst.Entered();
    if (changing_) return ChosenKnown() || last != shownLast_ || first != shownFirst_;
    return !last.empty() || !first.empty();
}

bool frmAuthor::SettleTyped() {
    if (HasTyped()) {
        const auto answer =
            ui::AskYesNoCancel(changing_ ? "Change this author?" : "Add this author?");
        if (answer == ui::Answer::Yes) return TakeTyped();
        if (answer == ui::Answer::Cancel) return false;
    }
    ClearTyped();
    return true;
}

bool frmAuthor::TakeTyped() {
    if (changing_ && !HasTyped()) {
        ClearTyped();
        return true;
    }
    if (txtLast.Entered().empty()) return Refuse(txtLast, "Enter author's last name");
    const auto known = ChosenKnown();
    const auto author = known ? known : TypedAuthor();
    if (changing_)
        std::replace(recAuthor_.begin(), recAuthor_.end(), changing_, author);
    else
        recAuthor_.push_back(author);
    ClearTyped();
    ListChanged(lstAuthors.Index());
    return true;
}

void frmAuthor::ClearTyped() {
    changing_ = nullptr;
    cmdAdd.Caption("Add  Author");
    known_.clear();
    cboAuthor.Clear();
    Enter("", "");
}

void frmAuthor::Enter(const std::string& last, const std::string& first) {
    txtLast.Text(last);
    txtFirst.Text(first);
    shownLast_ = txtLast.Entered();
    shownFirst_ = txtFirst.Entered();
}

void frmAuthor::cmdChange_Click() {
    const auto author = Selected();
    if (!author || !SettleTyped()) return;
    clsAuthor parts = *author; // the document may still be left as it was
    parts.SplitName();
    Enter(parts.LastName, parts.FirstName);
    changing_ = author;
    cmdAdd.Caption("Change Author");
    txtLast.SetFocus();
}

void frmAuthor::cmdRemove_Click() {
    const auto author = Selected();
    if (!author) return;
    if (author == changing_) ClearTyped();
    const int at = lstAuthors.Index();
    recAuthor_.erase(recAuthor_.begin() + at);
    ListChanged(std::min(at, static_cast<int>(recAuthor_.size()) - 1));
}

void frmAuthor::Move(int by) {
    const int from = lstAuthors.Index();
    const int to = from + by;
    if (from < 0 || to < 0 || to >= lstAuthors.Count()) return;
    std::swap(recAuthor_[static_cast<std::size_t>(from)], recAuthor_[static_cast<std::size_t>(to)]);
    ListChanged(to);
}

void frmAuthor::ListChanged(int selected) {
    changed_ = true;
    cmdFinish.Caption("Done");
    if (auto* document = ui::Forms::Current().Find<frmDocument>("frmDocument"))
        document->Authors(recAuthor_);
    ShowList(selected);
}

void frmAuthor::ShowList(int selected) {
    std::vector<std::string> names;
    for (const auto& author : recAuthor_)
        names.push_back(author->PrintedName());
    lstAuthors.Assign(std::move(names));
    lstAuthors.Index(selected);
    EnableButtons();
}

void frmAuthor::EnableButtons() {
    const int at = lstAuthors.Index();
    const std::pair<ui::CommandButton*, bool> live[] = {
        {&cmdChange, at >= 0},
        {&cmdRemove, at >= 0},
        {&cmdUp, at > 0},
        {&cmdDown, at >= 0 && at + 1 < lstAuthors.Count()}};
    for (const auto& [button, isLive] : live) {
        if (!isLive && button->HasFocus()) lstAuthors.SetFocus();
        button->Enabled(isLive);
    }
}

} // namespace vexora
