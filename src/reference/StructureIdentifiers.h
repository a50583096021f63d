#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vexora {

/// How the structure of a compound is written for machines: the IUPAC identifier, its hash, and the
/// line notation.
struct StructureIdentifiers {
    std::string InChI, InChIKey, SMILES;
};

/// The identifiers of a registry number; nothing where the compound database knows none, as one of
/// an earlier edition.
std::optional<StructureIdentifiers> StructureOf(std::int64_t rn);
/// The registry number that one of the identifiers belongs to, to the letter; 0 for none.
std::int64_t NumberOfStructure(std::string_view identifier);

} // namespace vexora
