#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "records/Notice.h"
#include "records/Record.h"
#include "ui/Collection.h"

namespace vexora {

namespace ui {
struct Date;
}

class BioSet;
class clsAuthor;
class clsBP;
class clsBR;
class clsComplex;
class clsL;
class clsM;
class clsQ;
class LineWriter;
class Substance;
class XmlWriter;

/// The literature source: root of the document, owner of compounds, mixtures, reactions, bio
/// records and authors.
///
///   (a blank line)
///   ^R YEARPUB AUTHOR1 AUTHOR2 AUTHORN
///   ^J#TYPDOC#SOURCEDOC#SSOURCE#TTITLE#KEYWORDS#ABSTRACT#NOTE#PRPCLASS#authors#CASCIT#CODEN#ISSN#BULCT
///   ^I... one for each author
///
/// ^J stands only for a source that is new to the reference database; of others the database has
/// citation and title, and the first data header says where the document was taken from.
///
/// YEARPUB has four digits, AUTHOR1 and AUTHOR2 are the first letters of two authors ("&" for no
/// second one), AUTHORN counts sources that have these three in common, 1 to 9999. TYPDOC is the
/// kind of document, SOURCEDOC where it was taken from, SSOURCE its citation, TTITLE its title,
/// PRPCLASS the letters of the properties in it, "authors" their number; CASCIT, CODEN, ISSN and
/// BULCT are its numbers in abstracts and catalogues. No field can hold "#".
class clsR : public Record {
public:
    std::string YEARPUB, AUTHOR1, AUTHOR2 = "&", AUTHORN;
    ui::Collection<clsL> recL;
    ui::Collection<clsComplex> recComplex;
    ui::Collection<clsM> recM;
    ui::Collection<clsQ> recQ;
    ui::Collection<clsBR> recBR;
    ui::Collection<clsBP> recBP;
    ui::Collection<clsAuthor> recAuthor;
    /// Stays true over saves, for elsewhere the database does not know the source.
    bool isNew = false;
    std::string TYPDOC, SOURCEDOC = "&", SSOURCE, TTITLE, KEYWORDS, ABSTRACT, NOTE, PRPCLASS,
                        CASCIT, CODEN, ISSN, BULCT;
    bool toRegister = false; // read from a file and not in the reference database yet
    bool toSettle = false;   // stands there with another text, which is to become that of the file
    /// Its identity in the reference database, "" while it stands not there. An edited source keeps
    /// it until it is saved.
    std::string RegisteredAs;
    std::string ManuscriptID; // of a submitted manuscript: the part of SSOURCE behind its last ", "

    /// The four identifying fields parted by blanks.
    std::string Source() const;
    std::string Key() const override { return Source(); }
    std::string ShowKey() const override { return Source(); }
    void SetMe() override;
    /// Joins the document as its source and makes the root node.
    void AttachTo();
    std::size_t Leave() override;
    bool Return(std::size_t place) override;
    /// Brings the node's text back in line with the record.
    void Synchronize();

    /// Reads a ^R line; on a bad one tells so, leaves AUTHORN empty and answers false.
    bool Load(std::string_view line, Notices& told);
    /// Reads a ^J line and compares the source with the reference database: an unknown source is to
    /// be added there (toRegister) once the whole file is read. The answer is a question about one
    /// that stands there with another text, else empty; when the two are different sources, this
    /// one is to take the next number.
    std::string LoadJ(std::string_view line);
    /// Takes the next free number of its authors and year. The document is changed thereby, which
    /// is told.
    /// A file name that was made from the old number is wrong from here on.
    Notice TakeNextNumber();
    /// Takes the number that goes with its year and authors, which have changed: the one under
    /// which it is registered with these, else the next free one.
    void Renumber();
    /// Of a source that the file does not describe, the reference database has citation and title.
    void TakeKnownCitation();
    /// Comes from where the first data come from, as long as nothing else is said.
    void TakeOriginOfData();
    void PrintR(LineWriter& out) const;
    void Print(LineWriter& out) const override { PrintR(out); }
    void EachChild(const std::function<void(Record&)>& visit) const override;
    /// Composes PRPCLASS and the letters of every compound and mixture from what the document
    /// holds. The answer is what does not fit, for the user.
    /// Nothing reads these letters back: they are made anew at every save.
    std::vector<std::string> UpdateRefInfo();
    /// Every compound that a mixture without data, a reaction or a complex names exists; missing
    /// ones are made. Of a complex that a reaction names nothing can be made.
    void CheckPresence();

    /// The compound with this RN, or null; its place from 1 goes into index.
    std::shared_ptr<clsL> FindL(std::string_view rn, std::size_t* index = nullptr) const;

    /// The complex with this RN ("-1"), or null; its place from 1 goes into index.
    std::shared_ptr<clsComplex> FindComplex(std::string_view rn,
                                            std::size_t* index = nullptr) const;
    /// The compound or the complex with this RN, or null.
    std::shared_ptr<Substance> FindSubstance(std::string_view rn) const;

    /// The mixture of the same components, in whatever order, or null.
    std::shared_ptr<clsM> FindM(const clsM& mixture) const;
    /// The mixture of this COMPOSITION, else, for a caller that has names only, the one whose
    /// components bear these; null for none. A mixture with an unknown component bears no name.
    std::shared_ptr<clsM> FindM(std::string_view composition) const;

    /// A mixture, reaction, complex or bio set of it is of this compound, or a reaction of this
    /// complex.
    bool Names(std::string_view rn) const;

    /// The reaction of the same class, participants, solvent and inert compound, or null.
    std::shared_ptr<clsQ> FindQ(const clsQ& reaction) const;

    /// The bio set with this number, or null.
    std::shared_ptr<clsBR> FindBR(int setNo) const;
    std::shared_ptr<clsBP> FindBP(int setNo) const;
    /// The number that a new one is offered: one above the count, or the next free one.
    int NextBRNumber() const;
    int NextBPNumber() const;
    /// Bio reactions, properties of bio substances, and phase equilibria of complex samples.
    void ForEachBioSet(const std::function<void(BioSet&)>& visit) const;

    /// File name for a document that has none, without its ending: the manuscript's identifier, or
    /// year, author codes and number in one.
    std::string ProposedName() const;
    /// The four parts of the identity in one word, fit for a file name.
    std::string IdentityName() const;

    /// The question to ask before the document is saved or exported when SOURCEDOC does not say
    /// where it was taken from, else empty; the answer goes in by TakeOrigin, its first letter
    /// being the code. Another letter leaves it open.
    std::string QuestionOfOrigin() const;
    void TakeOrigin(std::string_view answer);
    /// Says of every compound which kinds of data it has, and whether mixtures, reactions or bio
    /// sets name it.
    void MarkCompounds();
    /// Brings SYSTYPES and the property letters up to date, as saving and exporting need them. The
    /// answer is what does not fit, for the user.
    std::vector<std::string> PrepareOutput();

    void ExportR(XmlWriter& xml, const ui::Date& today) const;
    void ExportAll(XmlWriter& xml, const ui::Date& today);

private:
    void PrintDescription(LineWriter& out) const;
    void MakeCompound(const std::string& rn);
    void MarkCompoundsOfBioSets();
    bool StandsInBioSets(std::string_view rn) const;
};

/// The next free AUTHORN for the identity in SOURCE_REFINFO and in the document, one source of the
/// document left out: one above the greatest, 1 for none. A second author "&" or "" counts as none.
int NextAuthorNumber(std::string_view year, std::string_view author1, std::string_view author2,
                     const clsR* leftOut = nullptr);
/// The number for a source that is described anew: without a second author it counts on from all
/// sources of the first, whoever wrote them with him.
int NextNumberOfNewSource(std::string_view year, std::string_view author1,
                          std::string_view author2);
/// Adds the sources that a read has found new to SOURCE_REFINFO with NEW set, and writes the text
/// of those that are to be settled into their rows, all or nothing.
void RegisterReadSources();
/// Brings SOURCE_REFINFO and SOURCE_AUTHOR in line with the new sources of the saved document and
/// their authors, all or nothing: a row made here goes along with its source, one that came with
/// the database stays as it is. Throws DatabaseError.
void RegisterDocument();

} // namespace vexora
