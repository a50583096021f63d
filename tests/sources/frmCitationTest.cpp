#include "sources/frmCitation.h"
#include "reference/TableText.h"
#include "reference/Text.h"
#include "support/SourceFixture.h"

namespace vexora::test {

namespace {

const std::string Folder = VEXORA_SOURCE_DIR "/tests/sources/citations/";

std::string FileText(const std::string& path) {
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

/// The lines of a table but for its heading.
std::vector<std::vector<std::string>> RowsOf(const std::string& path) {
    std::vector<std::vector<std::string>> rows;
    TableReader reader(path);
    EXPECT_TRUE(reader.IsOpen()) << path;
    reader.NextRow();
    while (auto row = reader.NextRow())
        rows.push_back(std::move(*row));
    return rows;
}

std::string Joined(const std::vector<std::string>& texts) {
    std::string all;
    for (const std::string& text : texts)
        all += (all.empty() ? "" : " | ") + text;
    return all;
}

class frmCitationTest : public SourceFixture {
protected:
    frmDocument& Open() {
        forms.CloseAll();
        forms.DropClosed();
        return OpenNew();
    }
    /// Pastes the text, presses a button of the review, and answers its remarks.
    std::string Paste(frmDocument& document, const std::string& text,
                      const std::string& button = "cmdAccept") {
        std::string remarks = "not opened";
        desktop.ClipboardText(text);
        desktop.ExpectModal("frmCitation", [&](ui::Form& opened) {
            remarks = Joined(dynamic_cast<frmCitation&>(opened).lstRemarks.Items());
            Click(opened, button);
        });
        document.cmdPasteCitation.UserClick();
        return remarks;
    }
    static std::vector<std::string> State(const frmDocument& document) {
        const std::string authors = document.txtAuthors.Text();
        return {document.cboTypeDoc.Chosen(),
                document.txtTitle.Entered(),
                authors,
                document.txtYear.Text(),
                document.Source(),
                document.txtKeyWords.Entered(),
                document.txtAbstract.Entered()};
    }
};

TEST_F(frmCitationTest, EveryFieldOfACitationGoesToItsPlace) {
    for (const auto& row : RowsOf(Folder + "expected.tsv")) {
        frmDocument& document = Open();
        const std::string remarks = Paste(document, FileText(Folder + row.at(0)));
        std::vector<std::string> found = State(document);
        found.insert(found.begin(), row.at(0));
        found.push_back(remarks);
        EXPECT_EQ(found, row);
    }
}

TEST_F(frmCitationTest, ABrokenCitationIsToldAndChangesNothing) {
    frmDocument& document = Open();
    Paste(document, FileText(Folder + "elsevier.ris"));
    const auto before = State(document);
    for (const auto& row : RowsOf(Folder + "broken/expected.tsv")) {
        SCOPED_TRACE(row.at(0));
        const std::string message = Replace(row.at(1), "\\n", "\n") + " | Paste citation";
        desktop.ClipboardText(FileText(Folder + "broken/" + row.at(0)));
        desktop.Expect(message);
        document.cmdPasteCitation.UserClick();
        EXPECT_EQ(State(document), before);
    }
}

} // namespace

} // namespace vexora::test
