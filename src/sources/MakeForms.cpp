#include "sources/MakeForms.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "globals/KVOGlobal.h"
#include "reference/Text.h"
#include "sources/MakeForm.h"

namespace vexora {

namespace {

bool HasFigures(std::string_view text) {
    return text.find_first_of("0123456789") != text.npos;
}

/// The last two parts are a text and a date, and one may be missing; only a date has figures.
void TakeTextAndDate(SourceReader& reader, ui::TextBox& text, ui::TextBox& date) {
    const std::string first = reader.UpToLast(", ");
    const bool dateAlone = reader.AtEnd() && HasFigures(first);
    text.Text(dateAlone ? "" : first);
    date.Text(dateAlone ? first : reader.Rest());
}

/// What follows the title of a book, in pieces between commas. A part may hold commas of its own,
/// so it is told from the next one by the words that stand with them, which come in this order.
class BookParts {
public:
    explicit BookParts(std::string_view text) : pieces_(Split(Replace(text, ", ", "\n"), '\n')) {}

    std::string TakeEdition() {
        static constexpr std::string_view behind = " ed.";
        const auto isLast = [](const std::string& piece) { return piece.ends_with(behind); };
        // A publisher is always left.
        const auto last = std::find_if(pieces_.begin(), pieces_.end() - 1, isLast);
        if (last == pieces_.end() - 1) return {};
        const std::string text = Take(static_cast<std::size_t>(last - pieces_.begin()) + 1);
        return text.substr(0, text.size() - behind.size());
    }
    /// A part with its label, up to the first piece that begins with one of the next labels. The
    /// last such part goes on as long as there are figures, for no word parts it from the names
    /// behind.
    std::string TakeLabelled(std::string_view label, std::initializer_list<std::string_view> next) {
        if (!pieces_.front().starts_with(label)) return {};
        std::size_t count = 1;
        while (count < pieces_.size() && !BeginsWithOne(pieces_[count], next))
            ++count;
        if (count == pieces_.size()) {
            count = 1;
            while (count + 1 < pieces_.size() && HasFigures(pieces_[count]))
                ++count;
        }
        return Take(count).substr(label.size());
    }
    std::string TakeEditor() {
        const auto mark = std::find(pieces_.begin(), pieces_.end(), "Ed.");
        if (mark == pieces_.end() || mark == pieces_.begin()) return {};
        std::string text = Take(static_cast<std::size_t>(mark - pieces_.begin()));
        Take(1);
        return text;
    }
    std::string Rest() { return Take(pieces_.size()); }

private:
    static bool BeginsWithOne(std::string_view piece,
                              std::initializer_list<std::string_view> labels) {
        return std::any_of(labels.begin(), labels.end(),
                           [piece](std::string_view label) { return piece.starts_with(label); });
    }
    std::string Take(std::size_t count) {
        std::string text;
        for (std::size_t i = 0; i < count; ++i)
            text += (i == 0 ? "" : ", ") + pieces_[i];
        pieces_.erase(pieces_.begin(), pieces_.begin() + static_cast<std::ptrdiff_t>(count));
        if (pieces_.empty()) pieces_.emplace_back();
        return text;
    }

    std::vector<std::string> pieces_; // never none
};

class frmMakeBook : public MakeForm {
public:
    frmMakeBook() : MakeForm("frmMakeBook", "Book or portion of a book") {}

private:
    Part title_{*this, "txtTitle", "Book title:", {"@", "@"}, "Enter book title"};
    Part edition_{*this, "txtEdition", "Edition:", {", ", " ed."}};
    Part volume_{*this, "txtVolume", "Volume:", {", Vol. ", ""}};
    Part chapter_{*this, "txtChapter", "Chapter:", {", Ch. ", ""}};
    Part pages_{*this, "txtPages", "Page(s):", {", Pg. ", ""}};
    Part editor_{*this, "txtEditor", "Editor(s):", {", ", ", Ed."}};
    Choice publisher_{*this,
                      "cboPublisher",
                      "Publisher:",
                      "Select or type the publisher",
                      "SELECT OR TYPE THE PUBLISHER HERE",
                      "Publishers",
                      "Publisher"};

    void Prepare() override { publisher_.Fill(); }

    void TakeApart(SourceReader reader) override {
        title_.Text(reader.Marked('@'));
        reader.Skip(", ");
        BookParts parts(reader.Rest());
        edition_.Text(parts.TakeEdition());
        volume_.Text(parts.TakeLabelled("Vol. ", {"Ch. ", "Pg. "}));
        chapter_.Text(parts.TakeLabelled("Ch. ", {"Pg. "}));
        pages_.Text(parts.TakeLabelled("Pg. ", {}));
        editor_.Text(parts.TakeEditor());
        publisher_.Enter(parts.Rest());
    }
};

/// An article, or a submitted manuscript, which has an identifier in place of pages.
class frmMakeJournal : public MakeForm {
public:
    frmMakeJournal() : MakeForm("frmMakeJournal", "Journal article") {
        asked_.back().layout = ui::Field(lblPages_, pages_);
    }

private:
    Choice journal_{*this,
                    "cboJournal",
                    "Journal:",
                    "Enter journal title",
                    "SELECT OR TYPE JOURNAL TITLE HERE",
                    "Journals",
                    "ShortTitle"};
    Part volume_{*this, "txtVolume", "Volume:"};
    Part issue_{*this, "txtIssue", "Issue:"};
    ui::Label lblPages_{*this, "lblPages", "Page(s): First ( - Last)"};
    Part pages_{*this, "txtPages", "", {}, "Enter page(s)"};

    void Prepare() override {
        journal_.Fill();
        if (!IsManuscript()) return;
        Caption("Submitted manuscript");
        asked_.back().missing = "Enter manucsript ID";
        const bool knownJournal = Globals().ContributorCode == "JCE";
        lblPages_.Caption(knownJournal ? "Manuscript ID: (e.g., je000490a)" : "Manuscript ID:");
        if (knownJournal) journal_.Enter("J.Chem.Eng.Data");
    }

    std::string Compose() const override {
        const std::string volume = volume_.Entered();
        const std::string issue = issue_.Entered();
        const std::string number = volume.empty() ? PartText(" No. ", issue)
                                                  : " $" + volume + "$" + PartText("(", issue, ")");
        return "@" + WithoutMarks(journal_.Entered()) + "@" + number +
               PartText(", ", pages_.Entered());
    }

    void TakeApart(SourceReader reader) override {
        journal_.Enter(reader.Marked('@'));
        reader.Skip(" ");
        volume_.Text(reader.Marked('$'));
        if (reader.Skip("("))
            issue_.Text(reader.UpTo(")"));
        else if (reader.Skip("No. "))
            issue_.Text(reader.UpToLast(", "));
        reader.Skip(", ");
        pages_.Text(reader.Rest());
    }
};

class frmMakeReport : public MakeForm {
public:
    frmMakeReport() : MakeForm("frmMakeReport", "Report") {}

private:
    Part name_{*this, "txtName", "Report name:", {"@", "@ "}, "Enter report name"};
    Part no_{*this, "txtNo", "Report No:", {"", "@ "}, "Enter report No"};
    Part institution_{*this, "txtInst", "Institution:", {}, "Enter institution name"};
    Part location_{*this, "txtLoc", "Location:", {", ", ""}};

    void TakeApart(SourceReader reader) override {
        name_.Text(reader.Marked('@'));
        reader.Skip(" ");
        no_.Text(reader.UpTo("@ "));
        institution_.Text(reader.UpTo(", "));
        location_.Text(reader.Rest());
    }
};

class frmMakePatent : public MakeForm {
public:
    frmMakePatent() : MakeForm("frmMakePatent", "Patent") {}

private:
    Part country_{*this, "txtCountry", "Country:", {"", " Patent "}, "Enter country"};
    Part no_{*this, "txtNo", "Patent No:", {}, "Enter patent No"};
    Part owner_{*this, "txtOwner", "Owner:", {", ", ""}};
    Part date_{*this, "txtDate", "Date:", {", ", ""}};

    void TakeApart(SourceReader reader) override {
        country_.Text(reader.UpTo(" Patent "));
        no_.Text(reader.UpTo(", "));
        TakeTextAndDate(reader, owner_, date_);
    }
};

constexpr std::string_view Thesis = " Thesis";
constexpr std::string_view Dissertation = " Dissertation";

class frmMakeThesis : public MakeForm {
public:
    frmMakeThesis() : MakeForm("frmMakeThesis", "Thesis/Dissertation") {
        asked_.insert(asked_.begin() + 1,
                      Asked{ui::Row({optT_, optD_}), nullptr,
                            [this] { return std::string(optD_.Value() ? Dissertation : Thesis); },
                            [this](const std::string& kind) {
                                (kind == Thesis ? optT_ : optD_).Value(true);
                            }});
        optT_.Value(true);
    }

private:
    Part degree_{*this, "txtDegree", "Degree:", {}, "Enter degree"};
    ui::OptionButton optT_{*this, "optT", "Thesis"};
    ui::OptionButton optD_{*this, "optD", "Dissertation"};
    Part institution_{*this, "txtInst", "Institution:", {}, "Enter institution name"};
    Part location_{*this, "txtLoc", "Location:"};

    std::string Compose() const override {
        return degree_.Entered() + std::string(optD_.Value() ? Dissertation : Thesis) +
               PartText(", ", institution_.Entered()) + PartText(", ", location_.Entered());
    }

    void TakeApart(SourceReader reader) override {
        const bool isThesis = reader.IsBefore(Thesis, Dissertation);
        degree_.Text(reader.UpTo(isThesis ? Thesis : Dissertation));
        (isThesis ? optT_ : optD_).Value(true);
        reader.Skip(", ");
        institution_.Text(reader.UpTo(", "));
        location_.Text(reader.Rest());
    }
};

/// A contribution to a conference.
class frmMakeConf : public MakeForm {
public:
    frmMakeConf() : MakeForm("frmMakeConf", "Conference proceedings") {}

private:
    Part name_{*this, "txtName", "Conference name:", {"@", "@"}, "Enter conference name"};
    Part location_{*this, "txtLoc", "Location:", {", ", ""}};
    Part date_{*this, "txtDate", "Date:", {", ", ""}};
    Part pages_{*this, "txtPages", "Page(s):", {", pp ", ""}};

    void TakeApart(SourceReader reader) override {
        name_.Text(reader.Marked('@'));
        SourceReader place(reader.UpToLast(", pp "));
        pages_.Text(reader.Rest());
        place.Skip(", ");
        TakeTextAndDate(place, location_, date_);
    }
};

class frmMakeDeposited : public MakeForm {
public:
    frmMakeDeposited() : MakeForm("frmMakeDeposited", "Deposited document") {}

private:
    Part no_{*this, "txtNo", "Document No:", {"@Deposited Document@ ", " "}, "Enter document No"};
    Part institution_{*this, "txtInst", "Institution:", {}, "Enter institution name"};
    Part pages_{*this, "txtPages", "Page(s):", {", pp", ""}};

    void TakeApart(SourceReader reader) override {
        reader.Marked('@');
        reader.Skip(" ");
        no_.Text(reader.UpTo(" "));
        institution_.Text(reader.UpToLast(", pp"));
        pages_.Text(reader.Rest());
    }
};

template <class Form>
std::unique_ptr<MakeForm> Make() {
    return std::make_unique<Form>();
}

constexpr std::pair<std::string_view, std::unique_ptr<MakeForm> (*)()> Makers[] = {
    {"frmMakeBook", Make<frmMakeBook>},           {"frmMakeJournal", Make<frmMakeJournal>},
    {"frmMakeReport", Make<frmMakeReport>},       {"frmMakePatent", Make<frmMakePatent>},
    {"frmMakeThesis", Make<frmMakeThesis>},       {"frmMakeConf", Make<frmMakeConf>},
    {"frmMakeDeposited", Make<frmMakeDeposited>},
};

} // namespace

void RegisterMakeForms(ui::Forms& forms) {
    for (const auto& [name, make] : Makers)
        forms.Register(std::string(name), make);
}

SourceText ComposeSource(std::string_view form, const DetailTexts& details) {
    for (const auto& [name, make] : Makers) {
        if (name != form) continue;
        const auto made = make();
        for (const auto& [field, text] : details)
            made->Enter(field, text);
        return made->Made();
    }
    return {};
}

} // namespace vexora
