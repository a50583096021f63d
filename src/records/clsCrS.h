#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "chem/UnitCell.h"
#include "records/Record.h"

namespace vexora {

class clsComplexSample;
class LineWriter;
class XmlWriter;

/// A distance [A] between two atoms, as typed; empty where nothing is said.
struct CrystalDistance {
    std::string Atom1, Atom2, DD, deltaD;
    bool operator==(const CrystalDistance&) const = default;
};
inline constexpr std::string CrystalDistance::*DistanceFields[] = {
    &CrystalDistance::Atom1, &CrystalDistance::Atom2, &CrystalDistance::DD,
    &CrystalDistance::deltaD};

/// An atom of the cell: symbol, coordinates as parts of the cell lengths with their uncertainties,
/// and the part of its places that is occupied; as typed.
struct CrystalAtom {
    std::string Atom, XX, dX, YY, dY, ZZ, dZ, Occ;
    bool operator==(const CrystalAtom&) const = default;
};
inline constexpr std::string CrystalAtom::*AtomFields[] = {
    &CrystalAtom::Atom, &CrystalAtom::XX, &CrystalAtom::dX, &CrystalAtom::YY,
    &CrystalAtom::dY,   &CrystalAtom::ZZ, &CrystalAtom::dZ, &CrystalAtom::Occ};

/// What a crystal structure says, wherever it belongs: lengths [A] and angles [degree] with their
/// uncertainties, as typed.
struct CrystalContent {
    std::string SpaceGroup, A, B, C, Alpha, Beta, dA, dB, dC, dAlpha, dBeta;
    double Gamma = 0, dGamma = 0; // 0 for none
    std::vector<CrystalDistance> Distances;
    std::vector<CrystalAtom> Atoms;
    std::string Method;

    /// The third angle as typed ("90.00"), or the number that it has been given since; "" for none.
    std::string GammaText() const;
    std::string DGammaText() const;
    void GammaText(std::string_view typed);
    void DGammaText(std::string_view typed);

    bool operator==(const CrystalContent&) const = default;

private:
    std::string gammaTyped_, dGammaTyped_;
};

/// The constants that are numbers above 0.
CellConstants CellOf(const CrystalContent& content);

/// The crystal structure of a complex sample. It is kept and checked, and not exported.
///
///   XB SpaceGroup A B C Alpha Beta Gamma dA dB dC dAlpha dBeta dGamma Method
///   XD Atom1 Atom2 DD deltaD                    (a distance)
///   XE
///   XC Atom XX dX YY dY ZZ dZ Occ               (an atom)
///
/// "&" is an empty field; Method is the rest of its line. Its number is its place in the sample.
class clsCrS : public Record, public CrystalContent {
public:
    int SetNo = 0; // number of the structure within its sample
    clsComplexSample* Parent = nullptr;

    std::string Key() const override;
    std::string ShowKey() const override;
    void SetMe() override;
    void AttachTo(clsComplexSample& sample);
    std::size_t Leave() override;
    bool Return(std::size_t place) override;
    /// One of its own with the same content and no node.
    std::shared_ptr<clsCrS> Copy() const;
    /// Takes over what another says and stays where it is.
    void Replace(const CrystalContent& other);

    /// Reads the XB line; what it lacks is empty.
    void Load(std::string_view line);
    /// Reads an XD or XC line; false when words stand behind its last field.
    bool LoadDistance(std::string_view line);
    bool LoadAtom(std::string_view line);
    void PrintCrS(LineWriter& out) const;
    void Print(LineWriter& out) const override { PrintCrS(out); }
    /// The format has no place for structures.
    void ExportAll(XmlWriter&) const {}
};

/// The number for a new structure of a sample: one above their count, or the next that is free.
int NextStructureNumber(const clsComplexSample& sample);

} // namespace vexora
