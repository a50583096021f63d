#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "records/Record.h"
#include "ui/Collection.h"

namespace vexora {

class clsC;
class clsE;
class clsL;
class clsR;
class LineWriter;
class Substance;
class SubstanceSample;
class XmlWriter;

/// A text for each of the eight participants.
using ParticipantTexts = std::array<std::string, 8>;

/// Where each participant goes when a reaction is sorted: number[n] for the one at n, from 1.
using ParticipantOrder = std::array<int, 9>;

/// A chemical reaction of the source with up to eight participants, and what was measured of it:
/// property changes between two states, and equilibria.
///
///   ^Q REACTCLASS RN1 RN2 RN3 RN4 CHANGEDSTATE EQUILIBRIUM RN5 RN6 RN7 RN8 SOLVENTRN INERTRN
///   ^q k1 ... k8 s1 ... s8
///
/// RNn are the registry numbers of the participants, "999999994" for none at the third and fourth
/// place and "&" at the others; SOLVENTRN is that of the solvent and INERTRN that of an inert
/// compound or catalyst. CHANGEDSTATE is "Y" with property changes and "N" without, EQUILIBRIUM the
/// same with equilibria. kn are coefficients, negative ones of reactants, and sn numbers of
/// samples. Coefficients and samples stand in the lines of the data: ^q is there for a reaction
/// without any, and for the participants that equilibria have no room for.
class clsQ : public Record {
public:
    static constexpr int MostParticipants = 8;

    std::string REACTCLASS, SOLVENTRN, INERTRN;
    /// The equation as the dialog has built it; "=" of a reaction that was read from a file.
    std::string Reaction;
    ui::Collection<clsC> recC;
    ui::Collection<clsE> recE;
    clsR* Parent = nullptr;

    /// "Y" with property changes, "N" without; the same of equilibria.
    std::string CHANGEDSTATE() const { return recC.IsEmpty() ? "N" : "Y"; }
    std::string EQUILIBRIUM() const { return recE.IsEmpty() ? "N" : "Y"; }

    /// Of participant i, 1 to 8: coefficient as typed, number of its sample, registry number, ""
    /// for none (the number of an empty slot counts as none). Empty outside.
    const std::string& Coeff(int i) const;
    const std::string& SMPNM(int i) const;
    const std::string& RN(int i) const;
    void Coeff(int i, std::string_view text);
    void SMPNM(int i, std::string_view number);
    void RN(int i, std::string_view number);
    /// Takes compound, coefficient and sample out of a slot; the later ones move up by one.
    void RemoveParticipant(int i);
    /// Class, participants with coefficients and samples, solvent and inert compound of another.
    void TakeDefinition(const clsQ& other);

    /// The compound or complex that is participant i, null when the source has none; the compound,
    /// null for a complex as well.
    std::shared_ptr<Substance> Participant(int i) const;
    std::shared_ptr<clsL> Compound(int i) const;
    /// Its name, or the registry number of a compound without one; its formula, of a complex that
    /// of its sample, empty when it is not known; its molar mass [g/mol], 0 when it is not known.
    std::string Name(int i) const;
    std::string Formula(int i) const;
    double MolarMass(int i) const;
    /// Which participant has this registry number, 0 for none.
    int PlaceOf(std::string_view rn) const;
    /// A compound takes part, or is the solvent or the inert one.
    bool Uses(std::string_view rn) const;
    /// The formulas and coefficients of all slots, as the balancer takes them.
    std::vector<std::string> Formulas() const;
    std::vector<std::string> Coefficients() const;
    /// The equation with the names of the participants, and their phases (in words) where given.
    std::string Equation(const ParticipantTexts& phases = {}) const;

    /// Class, participants, solvent and inert compound: what tells reactions of a source apart.
    std::string Key() const override;
    /// The equation when all coefficients are known, else the names joined by " + ".
    std::string ShowKey() const override;
    void SetMe() override;
    void AttachTo(clsR& source);
    std::size_t Leave() override;
    bool Return(std::size_t place) override;
    /// Puts it under the key that it has now, at the same place among its siblings.
    void Rekey();

    /// Reads a ^Q line; false for one without a participant, or with one that is no number.
    bool Load(std::string_view line);
    /// Coefficients and samples of a ^q line fill what is still empty. `isWhole` gets false when a
    /// word of the line says something else than what stands there, or is one too many.
    void LoadCoefficients(std::string_view line, bool* isWhole = nullptr);
    /// The same for those of a set, as long as the reaction has no coefficient at all.
    void TakeCoefficients(const clsC& set);
    void TakeCoefficients(const clsE& set);
    void PrintQ(LineWriter& out) const;
    void Print(LineWriter& out) const override { PrintQ(out); }
    /// The elements of all its data.
    void ExportAll(XmlWriter& xml) const;
    void EachChild(const std::function<void(Record&)>& visit) const override;

    /// The set with this Key or ShowKey, or null; its place from 1 goes into index.
    std::shared_ptr<clsC> FindC(std::string_view key, std::size_t* index = nullptr) const;
    std::shared_ptr<clsE> FindE(std::string_view key, std::size_t* index = nullptr) const;
    bool HasData() const { return !recC.IsEmpty() || !recE.IsEmpty(); }

    /// No element but carbon, hydrogen, nitrogen and oxygen takes part.
    bool OnlyCHNO() const;
    /// Phosphorus, chlorine, bromine or iodine takes part.
    bool IsPClBr() const;
    /// Brings the participants into the order of all reactions (by number; then carbon dioxide,
    /// hydrogen, nitrogen, water, carbon, oxygen) and closes gaps; all data go along. True when
    /// that changed anything. The key is another one then.
    bool Sort();

private:
    bool PrintsCoefficients() const;
    ParticipantOrder AscendingOrder() const;

    struct Slot {
        std::string RN, coefficient, sample;
    };
    const Slot* SlotAt(int i) const; // null outside
    std::array<Slot, MostParticipants> slots_;
};

/// A reaction has this sample of its compound or complex.
bool IsUsedInReactions(const SubstanceSample& sample);
/// The same, and a property change or equilibrium of it does.
bool IsUsedInReactionData(const SubstanceSample& sample);

} // namespace vexora
