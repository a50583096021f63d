// The 230 space groups and what each crystal system demands of its cell.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace vexora {

enum class CrystalSystem {
    Unknown,
    Triclinic,
    Monoclinic,
    Orthorhombic,
    Tetragonal,
    Trigonal,
    Hexagonal,
    Cubic
};

/// "cubic"; "" for an unknown one.
std::string_view NameOf(CrystalSystem system);

/// The short Hermann-Mauguin symbols without blanks, the one of number n at place n - 1.
std::span<const std::string_view> SpaceGroupSymbols();
/// Those that hydrates and ices have most often.
std::span<const std::string_view> UsualSpaceGroups();

/// The number of a symbol, 0 for one that is none of the 230. Blanks do not count, nor the bar that
/// older papers leave out ("Pm3n"), and renamed groups go by their old symbols as well ("Cmca").
int SpaceGroupNumber(std::string_view symbol);
/// The crystal system of number n, 1 to 230.
CrystalSystem SystemOfNumber(int number);
/// The system of a symbol, also in another setting than the standard one ("P21/n", "Pbnm").
CrystalSystem SystemOfSymbol(std::string_view symbol);
/// "cubic, no. 223", "monoclinic, in another setting", "none of the 230 symbols"; "" for none.
std::string SystemInWords(std::string_view symbol);

} // namespace vexora
