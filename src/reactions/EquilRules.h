// What frmEquil offers and refuses for a set of an equilibrium of a reaction. Functions of codes
// and texts; no form is known here.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vexora {

class clsQ;

/// A participant of the reaction; one without a name is no participant.
struct EquilParticipant {
    std::string name;
    bool hasCoefficient = false;
    bool hasSample = false;
};

/// A phase by its code, "" for none, and the digits of the participants in it: "13".
struct EquilPhase {
    std::string code, participants;
};

/// A quantity by its code, "" for an open choice: a variable with its unit as listed, or what is
/// the same in all rows with its value in the system unit.
struct EquilQuantity {
    std::string code, unit, value = {};
};

/// What stands on frmEquil.
struct EquilDraft {
    std::string property, setNumber;
    std::vector<EquilParticipant> participants; // the first six places of the reaction
    std::vector<EquilPhase> phases;
    std::vector<EquilQuantity> constants, variables;
    std::string solventPhase, standardState;
    std::string numerical;
    bool saysNumerical = true; // no set from a file that leaves it open
};

enum class EquilField {
    SetNumber,
    Coefficients,
    Sample,
    Participant,
    Phase,
    ConstantValue,
    Variable,
    VariableUnit,
    Constant,
    StandardState,
    Numerical
};

/// What keeps a draft from being accepted, and the field that mends it; of fields in a row the one
/// at the index, from 0.
struct EquilFault {
    EquilField field;
    std::string text;
    int index = 0;
};

/// All that keeps a draft from being accepted, in the order in which it is told.
std::vector<EquilFault> CheckEquil(const EquilDraft& draft);

/// Codes of the phases of an equilibrium, the solutions last.
std::vector<std::string> EquilPhases();
/// Codes of what can vary or be held constant: temperature, pressure, and the mole fractions of the
/// participants, at equilibrium (X1) and at the beginning (XI1).
std::vector<std::string> EquilVariables(const clsQ& reaction);
/// The participants of a phase when those of `shown` are as `ticked` says, both as digits. What
/// else a file has there is kept, and an unchanged choice as it was written.
std::string EquilDigits(const std::string& before, std::string_view shown, std::string_view ticked);

} // namespace vexora
