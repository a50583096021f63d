#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "records/SingleValue.h"
#include "records/clsQ.h"

namespace vexora {

/// One value of a property change of a reaction between an initial and a final state, such as an
/// enthalpy of reaction.
///
///   ^A header
///   ^M factor     (for a unit that has no letter of its own)
///   ^C k1 ... k8 PRPCODE U1 U2 PRPSETNO ph1 ... ph8 s1 ... s8 c1 ... c8 v1 ... v8
///      SOLVENT_PHASE STANDARD_STATE INITIAL_TEMPERATURE INITIAL_PRESSURE
///      FINAL_TEMPERATURE FINAL_PRESSURE PRPVALUE PRPUNCERTY PRECIS DETERMNM
///   ^M 0          (where a factor stands)
///   ^X
///
/// ^c holds a value in the unit of the paper, ^C in the system unit. For each participant: kn
/// coefficient (0 for none), phn phase, sn number of the sample, cn kind of its composition and vn
/// the value of that (0 for none). U1 is the conversion code of the unit; U2 the registry number of
/// the participant per whose mass the value stands, "S" where that is not said. Temperatures [K],
/// pressures [kPa]. "&" is an empty field.
class clsC : public SingleValue {
public:
    std::string SOLVENT_PHASE, STANDARD_STATE, INITIAL_TEMPERATURE, INITIAL_PRESSURE,
        FINAL_TEMPERATURE, FINAL_PRESSURE;
    clsQ* Parent = nullptr;

    /// Of participant i, 1 to 8; empty outside. COMPOSITION is the kind of the composition.
    const std::string& PARTICIPANT_COEFF(int i) const { return At(coefficients_, i); }
    const std::string& PARTICIPANT_PHASE(int i) const { return At(phases_, i); }
    const std::string& SMPNM(int i) const { return At(samples_, i); }
    const std::string& COMPOSITION(int i) const { return At(compositions_, i); }
    const std::string& COMPOSITION_VALUE(int i) const { return At(values_, i); }
    void PARTICIPANT_COEFF(int i, std::string_view text) { Set(coefficients_, i, text); }
    void PARTICIPANT_PHASE(int i, std::string_view code) { Set(phases_, i, code); }
    void SMPNM(int i, std::string_view number) { Set(samples_, i, number); }
    void COMPOSITION(int i, std::string_view kind) { Set(compositions_, i, kind); }
    void COMPOSITION_VALUE(int i, std::string_view text) { Set(values_, i, text); }
    /// The phases of the participants in words.
    ParticipantTexts PhaseNames() const;

    /// PROPERTY_UNIT holds the code, and for a unit by mass a blank and the registry number of the
    /// participant whose mass is meant; without one it is the first.
    std::string UnitCode() const override;
    void UnitCode(std::string_view code) override;
    std::string UnitBasis() const override;
    /// The registry number of that participant as the unit names it, "" for none.
    std::string MassOf() const;
    void MassOf(std::string_view rn);

    std::string_view DataContext() const override { return "React"; }
    std::string SystemName() const override;
    double MolarMass() const override;
    bool HasMolarMass() const override { return false; }
    bool StatesInUnitsOfLine() const override { return true; }
    const Record* Owner() const override;
    void ExportAll(XmlWriter& xml) const override { ExportC(xml); }
    void ExportC(XmlWriter& xml) const;

    /// Reads the value line; false when it ends before the property.
    bool Load(std::string_view line);
    void PrintC(LineWriter& out) const { Print(out); }

    std::string Key() const override;
    std::string ShowKey() const override;
    /// Gives the reaction the samples of this value.
    void SetMe() override;
    void AttachTo(clsQ& reaction);
    std::size_t Leave() override;
    bool Return(std::size_t place) override;
    /// Puts it under the key that it has now, at the same place among its siblings.
    void Rekey();
    /// The participants move with those of the reaction.
    void Sort(const ParticipantOrder& number);

protected:
    std::vector<std::string> LineFields(std::string unitField) const override;
    bool ClosesFactor(bool factorStands) const override { return factorStands; }

private:
    static const std::string& At(const ParticipantTexts& texts, int i);
    static void Set(ParticipantTexts& texts, int i, std::string_view text);
    std::array<ParticipantTexts*, 5> Groups();

    ParticipantTexts coefficients_, phases_, samples_, compositions_, values_;
};

/// The number for a new value of a reaction: one above the highest among those of its property.
int NextSetNumber(const clsQ& reaction, const clsC& value);

} // namespace vexora
