#include "records/RecordChecks.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>

#include "globals/KVOGlobal.h"
#include "records/BioSetFacts.h"
#include "records/SampleDescription.h"
#include "records/SourceText.h"
#include "records/clsAuthor.h"
#include "records/clsL.h"
#include "records/clsM.h"
#include "records/clsQ.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "records/clsTwo.h"
#include "records/clsZ.h"
#include "reference/NameKey.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

namespace vexora {

namespace {

/// By what a compound can be met again: its name, and name and formula together, of one that the
/// reference database knows all of its names there.
std::vector<std::string> Identities(const clsL& compound) {
    std::vector<std::string> identities;
    const auto add = [&identities](const std::string& name, const std::string& formula) {
        identities.push_back(LowerAscii(name) + "\n" + formula);
    };
    if (!compound.Name.empty()) {
        identities.push_back(LowerAscii(compound.Name));
        add(compound.Name, compound.Formula);
    }
    if (compound.isNew) return identities;
    for (const CompoundRow& row : CompoundsOf(ToInteger(Val(compound.RN))))
        add(row.NAME, row.FORMULA);
    return identities;
}

/// Data of one substance under two numbers are never seen together again.
void CheckTwins(const clsR& source, Findings& findings) {
    std::unordered_map<std::string, const clsL*> known;
    for (const auto& compound : source.recL) {
        const clsL* twin = nullptr;
        for (const std::string& identity : Identities(*compound)) {
            const clsL* other = known.try_emplace(identity, compound.get()).first->second;
            if (other == compound.get() || twin) continue;
            // Isomers that the database knows may share a trivial name there.
            const bool isName = identity.find('\n') == identity.npos;
            if (isName || compound->isNew || other->isNew) twin = other;
        }
        if (!twin) continue;
        Remarks(findings, *compound)
            .Warn("Compound " + compound->Name + " stands twice: " + twin->RN + " and " +
                  compound->RN);
    }
}

bool IsKnownJournal(const std::string& name) {
    const Database& local = Globals().LocalDb();
    if (!local.IsOpen()) return true;
    const std::string bare = TitleKey(name);
    for (auto rows = local.Query("select ShortTitle from Journals"); !rows.IsEnd(); rows.MoveNext())
        if (TitleKey(rows.Text("ShortTitle")) == bare) return true;
    return false;
}

/// What a reader needs to find the article again. A manuscript ("S") has no volume and pages yet.
void CheckArticle(const clsR& source, Remarks& remarks) {
    // As older files have it: the export takes what stands in front of the first comma.
    if (!IsBlankField(source.SSOURCE) && source.SSOURCE.find('@') == std::string::npos)
        return remarks.Hint("The parts of the citation cannot be told apart: " + source.SSOURCE);
    const std::string journal = PublicationName(source.SSOURCE);
    if (journal.empty()) return remarks.Warn("The citation names no journal");
    if (!IsKnownJournal(journal)) remarks.Hint("The journal is in no table: " + journal);
    if (source.TYPDOC == "S") return;
    if (VolumeOf(source.SSOURCE).empty()) remarks.Hint("The citation names no volume");
    if (PagesOf(source.SSOURCE, source.TYPDOC).empty()) remarks.Hint("The citation names no pages");
}

bool IsYear(std::string_view text) {
    constexpr std::size_t digits = 4;
    return text.size() == digits && ParseInteger(text).value_or(0) > 0;
}

void CheckCitation(const clsR& source, Remarks& remarks) {
    if (!IsYear(source.YEARPUB))
        remarks.Warn("The source has no year that can be read: " + source.YEARPUB);
    // Of a known source the database has citation, title and authors, and the file need not.
    if (!source.isNew) return;
    if (IsBlankField(source.TTITLE)) remarks.Warn("The source has no title");
    if (source.recAuthor.IsEmpty()) remarks.Warn("The source has no authors");
    if (IsOneOf(source.TYPDOC, {"J", "S"}))
        CheckArticle(source, remarks);
    else if (IsBlankField(source.SSOURCE))
        remarks.Warn("The source has no citation");
}

} // namespace

void CheckSource(const clsR& source, Findings& findings) {
    CheckTwins(source, findings);
    Remarks remarks(findings, source);
    CheckCitation(source, remarks);
    if (!source.QuestionOfOrigin().empty())
        remarks.Warn("The source does not say where it was taken from: saving will ask for it");
    if (source.recL.IsEmpty()) remarks.Warn("The source has no compounds");
}

void CheckCompound(const clsL& compound, Findings& findings) {
    Remarks remarks(findings, compound);
    const std::string name = "Compound " + compound.ShowKey();
    // Only a number stands in the file of a compound that is not new: all else is looked up.
    if (compound.Name.empty()) remarks.Warn(name + " is not in the reference database");
    if (compound.Formula.empty()) remarks.Warn(name + " has no formula");
    // What a mixture or reaction lacks is told there.
    if (compound.recS.IsEmpty() && !compound.isUsed)
        remarks.Warn(name + " has no sample" + (compound.isNew ? "" : " and will not be saved"));
}

void CheckSample(const clsS& sample, Findings& findings) {
    Remarks remarks(findings, sample);
    const auto description = ParseDescription(sample.SMPDESC);
    if (!description)
        remarks.Error("Sample description cannot be interpreted: " + sample.SMPDESC);
    else if (description->Availability.empty() && sample.Purity <= 0)
        remarks.Hint(sample.Key() + ": no purity is stated");
    if (sample.recZ.IsEmpty() && sample.recTwo.IsEmpty() && !IsUsedInMixtures(sample) &&
        !IsUsedInReactions(sample) && !IsUsedInBioSets(sample))
        remarks.Warn(sample.Key() + " has no data");
    CheckEqualValues(sample, findings);
    CheckEqualPoints(sample, findings);
}

} // namespace vexora
