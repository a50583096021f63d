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

std::string Padded(std::string text, int width) {
    text.resize(std::max(text.size(), static_cast<std::size_t>(width)), ' ');
    return text;
}

/// The mark behind the initials that keeps an author apart from those in the table who share name
/// and initials: a blank for the first, then "1" to "9" and "A" to "Z".
char SequenceMark(const clsAuthor& author) {
    auto rows = Globals().CompoundDb().Query(
        "select * from SOURCE_AUTHOR where rtrim(LASTNM)=? order by rowid",
        {std::string(TrimBlanks(author.LASTNM))});
    char mark = ' ';
    for (; !rows.IsEnd(); rows.MoveNext()) {
        const std::string initials = Padded(rows.Text("INITNM"), InitialsWidth);
        if (!EqualNoCase(initials.substr(0, 2), author.INITNM.substr(0, 2))) continue;
        const char next = initials[2] == '9' ? 'A' : static_cast<char>(initials[2] + 1);
        mark = std::max({mark, '1', std::min(next, 'Z')});
    }
    return mark;
}

void Register(const clsAuthor& author) {
    Globals().CompoundDb().Insert("SOURCE_AUTHOR", {{"LASTNM", author.LASTNM},
                                                    {"INITNM", author.INITNM},
                                                    {"FULLNM", author.FULLNM},
                                                    {"NEW", true}});
}

} // namespace

frmAuthor::frmAuthor() : Form("frmAuthor", "Author's Name") {
    Arrangement =
        ui::Column({ui::Field("Last Name:", txtLast),
                    ui::Field("First && Middle (Names or Initials):", txtFirst),
                    ui::Row({cmdVerify, ui::Stretch()}), ui::Field("Search results:", cboAuthor),
                    ui::Stretch(), ui::ButtonRow({cmdAdd, cmdFinish})});
    UseButtons(cmdAdd, cmdFinish, [this] { cmdAdd_Click(); });
    HelpContext = 230;
    PreferredColumns = 60;
    mnuHelp.OnClick = [this] { ui::TheDesktop().ShowHelp(HelpContext); };
    txtLast.AfterChange = [this] { NameChanged(txtLast); };
    txtFirst.AfterChange = [this] { NameChanged(txtFirst); };
    cmdVerify.OnClick = [this] { cmdVerify_Click(); };
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
        FindKnown();
    } catch (const DatabaseError& error) {
        return ui::Say(error.what());
    }
    if (known_.empty())
        return ui::Say("Author not found\n\n"
                       "Please complete the Last Name and First Name, then CLICK \"Add\"");
    cboAuthor.Add("CLICK selection, then CLICK \"Add\"");
    for (const auto& author : known_)
        cboAuthor.Add(author->FULLNM);
    cboAuthor.Add("None of listed");
    cboAuthor.Index(0);
    cboAuthor.SetFocus();
}

void frmAuthor::FindKnown() {
    clsAuthor typed;
    typed.LastName = txtLast.Entered();
    typed.FirstName = txtFirst.Entered();
    typed.CreateAbbr();
    const std::string initials =
        typed.FirstName.empty() ? "" : std::string(TrimBlanks(typed.INITNM));
    auto rows = Globals().CompoundDb().Query(
        "select * from SOURCE_AUTHOR where FULLNM like ? and INITNM like ? order by FULLNM",
        {typed.LastName + "*", initials + "*"});
    for (; !rows.IsEnd(); rows.MoveNext()) {
        clsAuthor& author = *known_.emplace_back(std::make_shared<clsAuthor>());
        author.LASTNM = Padded(rows.Text("LASTNM"), NameWidth);
        author.INITNM = Padded(rows.Text("INITNM"), InitialsWidth);
        author.FULLNM = rows.Text("FULLNM");
        // No other workplace knows an author registered here: the document must carry the name.
        author.isNew = rows.Integer("NEW") != 0;
    }
}

std::shared_ptr<clsAuthor> frmAuthor::ChosenAuthor() const {
    const auto place = static_cast<std::size_t>(cboAuthor.Index() - 1);
    return cboAuthor.Index() >= 1 && place < known_.size() ? known_[place] : nullptr;
}

void frmAuthor::cmdAdd_Click() {
    if (txtLast.Entered().empty()) {
        Refuse(txtLast, "Enter author's last name");
        return;
    }
    const auto known = ChosenAuthor();
    AddToList(known ? known : NewAuthor());
}

std::shared_ptr<clsAuthor> frmAuthor::NewAuthor() const {
    auto author = std::make_shared<clsAuthor>();
    author->LastName = txtLast.Entered();
    author->FirstName = txtFirst.Entered();
    author->CreateAbbr();
    author->INITNM = Padded(author->INITNM.substr(0, 2), InitialsWidth);
    author->isNew = true;
    try {
        author->INITNM.back() = SequenceMark(*author);
        Register(*author);
    } catch (const DatabaseError& error) {
        ui::Say(error.what()); // the document keeps the author all the same
    }
    return author;
}

void frmAuthor::AddToList(std::shared_ptr<clsAuthor> author) {
    recAuthor_.push_back(std::move(author));
    if (auto* document = ui::Forms::Current().Find<frmDocument>("frmDocument"))
        document->Authors(recAuthor_);
    known_.clear();
    cboAuthor.Clear();
    txtLast.Text("");
    txtFirst.Text("");
    cmdFinish.Caption("Done");
    txtLast.SetFocus();
}

} // namespace vexora
