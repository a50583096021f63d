// Parts of the lines of bio sets.
#pragma once

#include <string>
#include <string_view>

namespace vexora {

class BioSet;
class WordReader;
struct BioQuantity;

/// A text as one word of a line, with "_" for each run of blanks; and the next word of a line as a
/// text. An underscore that was typed comes back as a blank.
std::string RunTogether(std::string_view text);
std::string NextText(WordReader& words);

/// The number of a set, 0 for a word that can be none.
int BioSetNumber(std::string_view word);

/// The words of a BV line. One without a role has that which its code can have; so has one with an
/// unknown letter in its place, and then `knowsRole` gets false.
BioQuantity ReadQuantity(WordReader& words, const BioSet& set, bool* knowsRole);

/// What the BP line of a set says of a compound.
struct CompoundWords {
    std::string name, formula, molarMass, charge, EC, PDB; // the name with "_" for blanks
};
/// That of the compound which a key of the set names; empty words when the source lacks it.
CompoundWords WordsOf(const BioSet& set, std::string_view key);

} // namespace vexora
