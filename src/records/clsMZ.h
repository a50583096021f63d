#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "records/SingleValue.h"

namespace vexora {

class clsM;

/// One value of a property of a mixture at a stated condition: a critical, azeotropic or eutectic
/// state.
///
///   ^A header
///   ^M factor     (for a unit that has no letter of its own)
///   ^Z SMPNM1 SMPNM2 PRPCODE PROPERTY_UNIT PRPSETNO PHASE1 PHASE2 PHASE3 PHASE4
///      PRPVALUE PRPUNCERTY PRECIS DETERMNM
///   ^Z SMPNM1 SMPNM2 SMPNM3 PRPCODE PROPERTY_UNIT PRPSETNO PHASE1 ... PHASE5
///      PRPVALUE PRPUNCERTY PRECIS DETERMNM                                    (of a ternary)
///   ^M 0          (behind a ^z, or where a factor stands)
///   ^X
///
/// ^z holds a value in the unit of the paper, ^Z in the system unit. SMPNMn is the number of the
/// sample of component n. Temperature and pressure at which the value holds stand in the comment,
/// as tags ":T = v:" [K] and ":P = v:" [kPa]. PRECIS is written as typed, per cent included.
class clsMZ : public SingleValue {
public:
    int MixType = 2; // number of components, 2 or 3
    /// "&" for no such phase.
    ShortText SMPNM1, SMPNM2, SMPNM3, PHASE1 = "&", PHASE2 = "&", PHASE3 = "&", PHASE4 = "&",
                                      PHASE5 = "&";
    clsM* Parent = nullptr;
    bool isPhaseErrorTold = false; // once a session is enough

    /// Sample number of component n, 1 to 3; phase n, 1 to 5; empty outside.
    std::string SMPNM(int n) const;
    std::string PHASE(int n) const;
    void SMPNM(int n, std::string_view number);
    void PHASE(int n, std::string_view code);

    std::string_view DataContext() const override { return MixType == 2 ? "Bin" : "Tern"; }
    std::string SystemName() const override;
    /// 0: a unit by mass needs a composition, which a single value does not state.
    double MolarMass() const override { return 0; }
    bool HasMolarMass() const override { return false; }
    const Record* Owner() const override;
    bool StatesInUnitsOfLine() const override { return true; }
    void ExportAll(XmlWriter& xml) const override { ExportMZ(xml); }
    void ExportMZ(XmlWriter& xml) const;

    /// Reads the value line; MixType has to be set. False when it ends before the value.
    bool Load(std::string_view line);
    /// How many phases of the kind are there, among the first MixType + 1; negative when PHASE1 is
    /// of that kind.
    int iSolid() const;
    int iLiquid() const;
    int iGas() const;
    /// The codes of the phases that are there.
    std::vector<std::string> Phases() const;

    std::string Key() const override;
    std::string ShowKey() const override;
    void SetMe() override;
    void AttachTo(clsM& mixture);
    std::size_t Leave() override;
    bool Return(std::size_t place) override;
    /// Puts it under the key that it has now, at the same place among its siblings.
    void Rekey();
    /// Renumbers what names a component: component n becomes number[n].
    void Sort(const std::array<int, 4>& number);

protected:
    std::vector<std::string> LineFields(std::string unitField) const override;
    bool ClosesFactor(bool factorStands) const override { return factorStands || isOriginalUnit; }
};

/// The number for a new value of a mixture: one above the highest among those of equal samples and
/// property.
int NextSetNumber(const clsM& mixture, const clsMZ& value);

} // namespace vexora
