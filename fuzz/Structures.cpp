#include "FuzzRoom.h"
#include "Target.h"
#include "chem/Cif.h"
#include "reference/Numbers.h"

namespace vexora::fuzz {

namespace {

bool IsFigure(const CifNumber& number) {
    return (number.value.empty() || IsNumeric(number.value)) &&
           (number.uncertainty.empty() || IsNumeric(number.uncertainty));
}

} // namespace

void Try(std::string_view text) {
    static Room room;
    const CifReading read = ReadCif(text);
    for (const CifNumber& number : read.structure.cell)
        Must(IsFigure(number), "lengths and angles are numbers");
    for (const CifAtom& atom : read.structure.atoms) {
        for (const CifNumber& number : atom.position)
            Must(IsFigure(number), "a position is made of numbers");
    }
}

} // namespace vexora::fuzz
