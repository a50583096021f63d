#pragma once

#include <string_view>
#include <vector>

#include "chem/UnitCell.h"
#include "records/clsCrS.h"
#include "ui/Picture.h"

namespace vexora {

/// The surface that CellPicture draws for, in its own units.
inline constexpr double CellPictureWidth = 600, CellPictureHeight = 420;

/// A cell with its atoms as seen from somewhere, with a legend of the elements. Atoms are the
/// listed ones, brought into the cell, and their repeats by the lattice: on the far sides of the
/// cell, and where the first letter of the space group centres it. Those that other symmetry makes
/// of them are not drawn. A text in place of a cell that does not close.
std::vector<ui::Picture::Stroke> CellPicture(const CellConstants& cell, std::string_view spaceGroup,
                                             const std::vector<CrystalAtom>& atoms, CellView view);

} // namespace vexora
