#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "records/DataSet.h"
#include "records/clsQ.h"

namespace vexora {

/// An equilibrium of a reaction, such as its constant, measured against one to three variables.
///
///   ^E k1 ... k6 s1 ... s6 PRPCODE unit PRPSETNO DATATYPE EXPERIMENTAL_DESIGN SOLVENTPHASE
///      STANDARD_STATE V1 U1 V2 U2 V3 U3 V4 U4 PH1 CP1 ... PH4 CP4 CV1 CN1 ... CV4 CN4
///   ^H ...
///
/// ^E has one variable, ^H as many as it names, at least two. For the first six participants: kn
/// coefficient (0 for none) and sn number of the sample; further ones are those of the reaction. Vn
/// is the code of a variable and Un the conversion code of its unit. PHn is a phase and CPn the
/// digits of the participants in it, "13" for the first and third; CVn is the code of a quantity
/// that is the same in all rows and CNn its value in the system unit. X and XI, mole fractions,
/// bear the digit of their participant: X2. Units are codes of one letter, "S" the system unit; "&"
/// is an empty field. A line may end behind the variables.
class clsE : public DataSet {
public:
    static constexpr int Participants = 6;
    static constexpr int Places = 4; // for phases, variables and constants

    std::string EXPERIMENTAL_DESIGN, SOLVENTPHASE, STANDARD_STATE;
    clsQ* Parent = nullptr;

    /// Of participant i, 1 to 6; empty outside.
    const std::string& PARTICIPANT_COEFF(int i) const { return At(coefficients_, i); }
    const std::string& SMPNM(int i) const { return At(samples_, i); }
    void PARTICIPANT_COEFF(int i, std::string_view text) { Set(coefficients_, i, text); }
    void SMPNM(int i, std::string_view number) { Set(samples_, i, number); }

    /// At place i, 1 to 4; empty outside. A phase that is not there is "" or "&".
    const std::string& PHASE(int i) const { return At(phases_, i); }
    const std::string& COMPONENTS_IN_PHASE(int i) const { return At(components_, i); }
    const std::string& CONSTANT_VARIABLE(int i) const { return At(constants_, i); }
    const std::string& CNVARVALUE(int i) const { return At(constantValues_, i); }
    const std::string& INDEPENDENT_VAR(int i) const { return At(variables_, i); }
    void PHASE(int i, std::string_view code) { Set(phases_, i, code); }
    void COMPONENTS_IN_PHASE(int i, std::string_view digits) { Set(components_, i, digits); }
    void CONSTANT_VARIABLE(int i, std::string_view code) { Set(constants_, i, code); }
    void CNVARVALUE(int i, std::string_view value) { Set(constantValues_, i, value); }
    void INDEPENDENT_VAR(int i, std::string_view code) { Set(variables_, i, code); }
    void VAR_UNIT(int i, std::string_view code) { Set(units_, i, code); }
    const std::string& VARIABLE_UNIT() const { return VAR_UNIT(1); }

    /// 0 is the property.
    const std::string& VARIABLE(int n) const override;
    const std::string& VAR_UNIT(int n) const override { return At(units_, n); }
    /// The mole fraction of a participant by its name.
    std::string VariableWords(int n) const override;
    const std::string& PhaseFor(int n) const override;
    std::vector<std::string> Phases() const override;
    std::string_view DataContext() const override { return "React"; }
    std::string SystemName() const override;
    /// "D" where logarithms are reported, for they have no limits, else "A".
    std::string_view Relation() const override;
    using DataSet::MolarMass;
    /// That of the first participant.
    double MolarMass(const clsData& row) const override;
    const Record* Owner() const override;
    std::vector<HeldConstant> Constants() const override;
    std::string ConstantOf(std::string_view code) const override;
    std::shared_ptr<DataSet> Copy() const override;
    void ExportAll(XmlWriter& xml) const override { ExportE(xml); }
    void ExportE(XmlWriter& xml) const;

    /// Reads the line of the definition; false when it ends before the property.
    /// `isWhole` gets false when words stand behind the last field.
    bool Load(std::string_view line, bool* isWhole = nullptr);
    void TakePending(const clsA& pending) override;
    void PrintE(LineWriter& out) const { Print(out); }
    void PrintAll(LineWriter& out) const { Print(out); }

    std::string Key() const override;
    std::string ShowKey() const override;
    /// Gives the reaction the samples of this set.
    void SetMe() override;
    void AttachTo(clsQ& reaction);
    std::size_t Leave() override;
    bool Return(std::size_t place) override;
    /// Takes over all fields and rows of another set and stays where it is: same parent, position
    /// and node, under the key that it has now.
    void Replace(const clsE& other);
    /// The participants move with those of the reaction, which still has the old order: what names
    /// one bears its new number.
    void Sort(const ParticipantOrder& number);

protected:
    std::string DefinitionLine() const override;

private:
    using Four = std::array<std::string, Places>;
    using Six = std::array<std::string, Participants>;
    static const std::string& Outside();
    template <std::size_t N>
    static const std::string& At(const std::array<std::string, N>& texts, int i) {
        return i >= 1 && i <= static_cast<int>(N) ? texts[static_cast<std::size_t>(i - 1)]
                                                  : Outside();
    }
    template <std::size_t N>
    static void Set(std::array<std::string, N>& texts, int i, std::string_view text) {
        if (i >= 1 && i <= static_cast<int>(N)) texts[static_cast<std::size_t>(i - 1)] = text;
    }

    Six coefficients_, samples_;
    Four phases_, components_, constants_, constantValues_, variables_, units_;
};

/// The number for a new set of a reaction: one above the highest among those of its property.
int NextSetNumber(const clsQ& reaction, const clsE& set);

/// A state variable of a reaction in words: "Temperature", "Mole fraction of water" where the code
/// names a participant; empty for one that a reaction has not. A reaction that is not known (null)
/// leaves "a participant".
std::string ReactionVariableName(const clsQ* reaction, std::string_view code);

} // namespace vexora
