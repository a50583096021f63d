// How quantities of a mixture read: by the names of the components, and with the phase that they
// are meant in.
#pragma once

#include <string>
#include <string_view>

namespace vexora {

class clsM;
class clsMV;

/// A text of the tables with "component n" replaced by the name of that component. A mixture that
/// is not known (null) changes nothing.
std::string WithComponents(std::string_view text, const clsM* mixture);
/// " in the liquid", " in liquid mixture 1", " at the liquid-gas critical state" and so on; empty
/// for no phase.
std::string InPhase(std::string_view phaseCode);
/// The name of a state variable or constraint in the words of the tables, with the components
/// named: "Mole fraction of ethanol". The code itself where no table knows it.
std::string VariableInWords(const clsMV& set, std::string_view code);
/// Item n of a set (0 the property, then the variables and constraints) with its phase, where the
/// set has several phases or the quantity is a composition: "mole fraction of ethanol in the
/// liquid". Begins with a small letter.
std::string QuantityInWords(const clsMV& set, int n);
/// How a quantity of a set reads on forms, by its code, its name in the tables and the phase in
/// which it is meant: "Mole fraction of ethanol, Gas". The phase is said where there are several.
std::string NameOnForms(const clsMV& set, std::string_view code, const std::string& name,
                        std::string_view phase);
/// A text with its first letter small, but for the names of persons; and with a capital one.
std::string FirstSmall(std::string text);
std::string FirstCapital(std::string text);

} // namespace vexora
