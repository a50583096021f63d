#include "sources/frmRef.h"

#include "globals/KVOGlobal.h"
#include "records/SourceText.h"
#include "records/clsR.h"
#include "reference/KVODefinitions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "sources/frmDocument.h"
#include "ui/Desktop.h"
#include "ui/Forms.h"

namespace vexora {

namespace {

std::string Code(const ui::TextBox& field) {
    return LowerAscii(TrimBlanks(field.Text()));
}

bool HasOtherThanLetters(std::string_view code) {
    return code.find_first_not_of("abcdefghijklmnopqrstuvwxyz") != code.npos;
}

/// The code of a second author, "" when there is none.
std::string SecondCode(const ui::TextBox& field) {
    const std::string code = Code(field);
    return code == "&" ? std::string() : code;
}

} // namespace

frmRef::frmRef() : ChainForm("frmRef", "Add reference") {
    Arrangement = ui::Column(
        {ui::Note("(1) Enter the year of publication and the first 3 letters of the 1st and\n"
                  "    2nd (if present) authors' names, then click \"Search\""),
         ui::Note("(2) If the desired reference appears in \"Search Results\", select it and\n"
                  "    CLICK \"Accept\""),
         ui::Note("(3) If not found, CLICK \"Create new document description\""),
         ui::Field("Year of publication:", ui::Narrow(txtYear, 6)),
         ui::Field("Author 1:", ui::Narrow(txtAut1, 6)),
         ui::Field("Author 2:", ui::Narrow(txtAut2, 6)), ui::Row({cmdVerify, ui::Stretch()}),
         ui::Field("Search results:", lstSourceDoc), ui::Field("SeqNo:", ui::Narrow(txtSeqNo, 6)),
         ui::Field("Reference Source", cboSource),
         ui::ButtonRow({cmdAccept, cmdCreate, cmdCancel})});
    UseButtons(cmdAccept, cmdCancel, [this] { cmdAccept_Click(); });
    HelpContext = 228;
    PreferredColumns = 104;
    for (ui::TextBox* field : {&txtYear, &txtAut1, &txtAut2})
        field->OnChange = [this] { Identification_Change(); };
    cmdVerify.OnClick = [this] { cmdVerify_Click(); };
    lstSourceDoc.OnClick = [this] { lstSourceDoc_Click(); };
    cmdCreate.OnClick = [this] { cmdCreate_Click(); };
    txtSeqNo.Locked(true);
}

void frmRef::Load() {
    Globals().DialogAccepted = false;
    cboSource.FirstIsPrompt = lstSourceDoc.FirstIsPrompt = true;
    cboSource.Add("SELECT THE SOURCE OF INFORMATION HERE");
    for (const CodeText& kind : SourceKinds) {
        if (!kind.text.empty()) cboSource.Add(std::string(kind.text));
    }
    cboSource.Index(0);
}

void frmRef::Activate() {
    // Shown again behind a description that was accepted: there is nothing left to look for.
    if (Globals().DialogAccepted) Close();
}

void frmRef::Identification_Change() {
    if (!Filling) ClearResults();
}

void frmRef::ClearResults() {
    rows_.clear();
    lstSourceDoc.Clear();
    txtSeqNo.Text("");
}

void frmRef::cmdVerify_Click() {
    if (!CheckIdentification()) return;
    ClearResults();
    try {
        FindRows();
    } catch (const DatabaseError& error) {
        return ui::Say(error.what());
    }
    if (rows_.empty())
        return ui::Say("Reference not found\nClick \"Create\" button to describe a new source");
    lstSourceDoc.Add("SELECT A DOCUMENT HERE OR CLICK \"Create\" BUTTON");
    std::string readable = lstSourceDoc.Item(0);
    for (const Row& row : rows_) {
        lstSourceDoc.Add(row.SOURCE);
        readable += '\n' + PublicationInWords(row.SOURCE);
    }
    lstSourceDoc.Readable(std::move(readable));
    lstSourceDoc.Index(0);
    lstSourceDoc.SetFocus();
}

void frmRef::FindRows() {
    std::string statement = "select * from SOURCE_REFINFO where YEARPUB=? and AUTHOR1=?";
    SqlValues values{std::string(TrimBlanks(txtYear.Text())), Code(txtAut1).substr(0, 3)};
    if (const std::string second = SecondCode(txtAut2); !second.empty()) {
        statement += " and AUTHOR2=?";
        values.emplace_back(second.substr(0, 3));
    }
    auto rows = Globals().CompoundDb().Query(statement + " order by rowid", values);
    for (; !rows.IsEnd(); rows.MoveNext())
        rows_.push_back({rows.Text("SOURCE"), rows.Text("TITLE"), rows.Text("YEARPUB"),
                         rows.Text("AUTHOR1"), rows.Text("AUTHOR2"), rows.Text("AUTHORN"),
                         rows.Flag("NEW")});
}

const frmRef::Row* frmRef::ChosenRow() const {
    const auto place = static_cast<std::size_t>(lstSourceDoc.Index() - 1);
    return lstSourceDoc.Index() >= 1 && place < rows_.size() ? &rows_[place] : nullptr;
}

void frmRef::lstSourceDoc_Click() {
    const Row* row = ChosenRow();
    const ui::FillingScope filling(*this);
    txtSeqNo.Text(row ? row->AUTHORN : "");
    if (row == nullptr) return;
    txtAut1.Text(row->AUTHOR1);
    txtAut2.Text(row->AUTHOR2);
}

bool frmRef::CheckIdentification() {
    const auto year = ParseInteger(txtYear.Text());
    if (!year || *year < 1700 || *year > ui::TheDesktop().Today().year)
        return Refuse(txtYear, "Year between 1700 and the current year is allowed",
                      "Incorrect year");
    if (HasOtherThanLetters(Code(txtAut1)))
        return Refuse(txtAut1, "Illegal character in the 1st author code", "Error");
    if (HasOtherThanLetters(SecondCode(txtAut2)))
        return Refuse(txtAut2, "Illegal character in the 2nd author code", "Error");
    if (Code(txtAut1).empty())
        return Refuse(txtAut1, "First author code is required", "Missing author code");
    return true;
}

bool frmRef::CheckChoice() {
    const Row* row = ChosenRow();
    if (row == nullptr) {
        if (!CheckIdentification()) return false;
        return Refuse(cmdCreate, "The source you have selected is new\n"
                                 "Please create new document description");
    }
    for (const auto& source : Globals().recR) {
        if (source->YEARPUB == row->YEARPUB && EqualNoCase(source->AUTHOR1, row->AUTHOR1) &&
            (IsBlankField(source->AUTHOR2) ? "" : source->AUTHOR2) == row->AUTHOR2 &&
            source->AUTHORN == row->AUTHORN)
            return Refuse(lstSourceDoc, "This reference has already been entered");
    }
    if (cboSource.Index() <= 0) return Refuse(cboSource, "Select the source of information");
    return true;
}

void frmRef::Store(const Row& row) const {
    const auto source = std::make_shared<clsR>();
    source->YEARPUB = row.YEARPUB;
    source->AUTHOR1 = row.AUTHOR1;
    source->AUTHOR2 = row.AUTHOR2.empty() ? "&" : row.AUTHOR2;
    source->AUTHORN = row.AUTHORN;
    source->SSOURCE = row.SOURCE;
    source->TTITLE = row.TITLE;
    source->SOURCEDOC = CodeOfText(SourceKinds, cboSource.Chosen());
    source->isNew = row.isNew;
    if (row.isNew) source->RegisteredAs = source->Source();
    source->AttachTo();
}

void frmRef::cmdAccept_Click() {
    if (!CheckChoice()) return;
    Store(*ChosenRow());
    Globals().Saved = false;
    Globals().DialogAccepted = true;
    Close();
}

void frmRef::cmdCreate_Click() {
    const std::string year = txtYear.Text();
    LeadOnAndWait("frmRef", "frmDocument");
    if (auto* document = ui::Forms::Current().Find<frmDocument>("frmDocument"))
        document->txtYear.Text(year);
}

} // namespace vexora
