// The lines of bio sets.
#pragma once

#include <string_view>

namespace vexora {

class BioSet;
class WordReader;
class clsX;
struct ReaderState;

/// BR BN: a set begins.
void ReadBioReaction(ReaderState& state, std::string_view line);
void ReadBioProperty(ReaderState& state, std::string_view line);
/// BP: a participant, the substance, or the compound of a component. The source gets it when it
/// lacks it.
void ReadBioCompound(ReaderState& state, std::string_view line);
/// BH: the kind of a property, with its states and phases.
void ReadBioKind(ReaderState& state, std::string_view line);
/// BC: a component.
void ReadBioComponent(ReaderState& state, std::string_view line);
/// BV: a quantity. They may come in any order.
void ReadBioQuantity(ReaderState& state, std::string_view line);
/// BE: the set joins the source or the complex sample.
void ReadBioEnd(ReaderState& state, std::string_view line);
/// BM: the method.
void ReadBioMethod(ReaderState& state, std::string_view line);
/// B0: two marks for the rows that follow; without two, a copy of the last bio reaction begins.
void ReadBioFlags(ReaderState& state, std::string_view line);
/// BD: a row.
void ReadBioRow(ReaderState& state, std::string_view line);

/// The set that a line belongs to; null, which is told, when none has been begun.
BioSet* SetInHand(ReaderState& state);
/// Names what is lost with words behind the last field, if there are any.
void LoseWordsLeft(ReaderState& state, const WordReader& words);
void LoseWordsLeft(ReaderState& state);

/// Gives a statement the place of the quantity that its line numbers.
void PlaceStatement(const ReaderState& state, clsX& item);
/// The set in hand gets no more lines; one that was never attached is named as lost.
void LeaveBioSet(ReaderState& state);

} // namespace vexora
