#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "records/Notice.h"
#include "records/Record.h"

namespace vexora {

class LineWriter;
class clsR;

/// One author of a source.
///
///   ^I#AUTHSEQNO#LASTNM#INITNM#[FULLNM]
///
/// FULLNM stands in the line whenever it is known, so that the document reads alike everywhere;
/// only for a line without it SOURCE_AUTHOR is asked.
class clsAuthor : public Record {
public:
    /// Key of the author in the list of the source: the first author is the one cited.
    std::string AUTHSEQNO; // place in the list, from "1"
    /// Both codes are looked up without trailing blanks, which a database may have cut.
    std::string LASTNM; // six letters of the last name, padded with blanks
    std::string INITNM; // two initials and a mark that keeps namesakes apart
    /// "Last,F.M." without blanks, "Last" without initials.
    std::string FULLNM;                         // name as printed
    std::string LastName, FirstName, Extension; // as typed
    bool isNew = false; // not known to be in SOURCE_AUTHOR: to be added there with the document

    /// Derives LASTNM, INITNM (two characters) and FULLNM from the typed parts.
    void CreateAbbr();
    /// The name for lists and export: FULLNM, or of an author whose name is known nowhere what the
    /// codes tell of it.
    std::string PrintedName() const;
    /// Fills LastName and FirstName from the name when nothing was typed, so that CreateAbbr gives
    /// the name back in this system's spelling.
    void SplitName();
    /// FULLNM of the row with these codes in SOURCE_AUTHOR; nothing when there is none or no
    /// database is open.
    std::optional<std::string> KnownName() const;
    /// Whether a full name has the same letters.
    bool CompareName(std::string_view fullName) const;
    /// Reads a ^I line. An author who is nowhere to be found is told, and stays without a name.
    Notices Load(std::string_view line);
    void Print(LineWriter& out) const override;

    std::string Key() const override { return AUTHSEQNO; }
    std::string ShowKey() const override { return FULLNM; }
    void SetMe() override {}
};

} // namespace vexora
