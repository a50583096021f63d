// What the record lines of all data sets share: words, unit fields, the factor line, and the
// precisions that ride in the comment.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "reference/Text.h"

namespace vexora {

class LineWriter;
class Record;

/// The next word; "&" is read as empty.
std::string NextField(WordReader& words);
/// The next word of a phase, in which "&" is a value.
/// There it says that the value has no such phase; it is compared and written as it stands.
std::string NextPhase(WordReader& words);

/// The codes of the phases that are there, parted by "+".
std::string PhasesInBrief(std::initializer_list<std::string_view> phases);

/// What the unit field of a record line holds: letters stay, all else stands as system unit.
/// The field has room for one letter; what a named or numeric unit means goes in front, as ^M.
std::string UnitField(std::string_view code);
/// A unit field as read: the text of the system unit itself counts as "S", and becomes it where it
/// could not be written back, being no letter.
std::string KeptField(std::string_view field, std::string_view unit);
/// Factor of a unit that has no letter to this system unit. Throws SaveRefused, which names the set
/// and its parent, for a unit that has none.
double FactorOfLongUnit(std::string_view code, std::string_view unit, const Record& set,
                        const Record* parent);
/// The line that states a factor.
void PrintFactor(LineWriter& out, double factor);

/// A stored comment with each precision tag brought to system units by `toSystem`, which takes the
/// code of the quantity and the text typed.
/// A record is read back without the unit in which a precision was typed, hence the change.
std::string CommentInSystemUnits(
    const std::string& stored,
    const std::function<std::string(const std::string&, const std::string&)>& toSystem);

} // namespace vexora
