// What becomes of the property, the phases and the states of a mixture set when one component is
// alone.
#include "records/PureOfMixture.h"

#include <algorithm>

#include "records/clsL.h"
#include "records/clsM.h"
#include "records/clsMV.h"
#include "records/clsS.h"
#include "reference/MixtureCodes.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

namespace vexora {

namespace {

constexpr const char* Misfit = "Incorrect data combination: ";
constexpr const char* NotPure = "Mixture composition error:";

bool IsCriticalProperty(std::string_view code) {
    return IsOneOf(code, {"TC", "PC", "VC", "VSC", "VDC", "ZC"});
}

bool IsExcess(std::string_view code) {
    return IsOneOf(code, {"CEX", "VEX", "GEX"}) || code.starts_with("HEX");
}

bool IsAvailable(const std::string& code, std::string_view mode) {
    return !PureAvailable(code, mode).empty();
}

/// The phase of a mixture by its name among those of pure compounds.
std::string PurePhase(const std::string& phase) {
    if (IsOneOf(phase, {"L1", "L2", "L3", "LM", "S", "S1", "S2"})) return "L";
    return phase.starts_with("Cp") ? "C" : phase;
}

std::string WrongStates(const std::vector<int>& states, const clsMV& set) {
    std::string codes;
    for (const int n : states)
        codes += (codes.empty() ? "" : " and ") + set.VARIABLE(n);
    return "Wrong combination of independent variables:\n" + codes +
           "\nFix the problem and repeat detection";
}

} // namespace

PureOfMixture::PureOfMixture(const clsMV& set, int component)
    : set_(set), component_(component), property_(set, 0) {
    const auto compound = set.Parent ? set.Parent->Component(component) : nullptr;
    if (compound) sample_ = compound->FindS(static_cast<int>(ToInteger(Val(set.SMPNM(component)))));
    isSilent_ = !sample_ || FindExpected();
    if (!isSilent_) Prepare();
}

/// True for a property that makes no record: contents, what is left of two liquids, quantities that
/// compare the mixture with its components, and such of a component that is not there.
bool PureOfMixture::FindExpected() {
    const std::string& code = set_.PRPCODE;
    const bool isOfState = IsOneOf(code, {"T", "TB", "P"});
    if (IsComposition(code) || (isOfState && set_.Context() == "lle")) return true;
    const bool isOwn = ComponentOf(code) == component_;
    const std::string stem = ComponentOf(code) > 0 ? code.substr(0, code.size() - 1) : code;
    if (IsExcess(code)) {
        expected_ = 0;
    } else if (stem == "AC" || stem == "AP") {
        if (isOwn) expected_ = 1;
        // At infinite dilution an activity coefficient may be anything.
        if (!isOwn && stem == "AP") expected_ = 0;
    } else {
        return stem == "ND" && !isOwn;
    }
    return true;
}

void PureOfMixture::Prepare() {
    if (!TakePhases() || !TakeCurves() || !TakeCode()) {
        fault_ = Misfit;
        return;
    }
    TakeConstants();
    if (TakeStates()) ChooseForm();
}

/// False for phases that the compound alone cannot have.
bool PureOfMixture::TakePhases() {
    isCritical_ = IsCriticalProperty(set_.PRPCODE);
    for (const std::string& phase : set_.Phases()) {
        const bool ofOther = phase.starts_with("Cp") && ComponentOf(phase) != component_;
        if (ofOther || IsOneOf(phase, {"Cm", "CUL", "CLL"})) return false;
        if (phase == "CLG" && !isCritical_) return false;
        if (phase == "air") hasAir_ = true;
        if (phase == "CLG" || (phase == "air" && set_.PRPCODE != "IST")) continue;
        const std::string pure = PurePhase(phase);
        if (std::ranges::find(phases_, pure) != phases_.end()) return false;
        phases_.push_back(pure);
    }
    if (isCritical_) phases_ = {"L", "G"};
    return !phases_.empty();
}

/// A critical curve ends in the critical point of the compound; others do not come to it.
bool PureOfMixture::TakeCurves() {
    for (int n = 1; n <= set_.ConstraintCount(); ++n) {
        const std::string& code = set_.CONSTRAINT(n);
        if (IsCriticalCurve(code) && !(isCritical_ && IsOneOf(code, {"CLG", "MCL"}))) return false;
    }
    return true;
}

bool PureOfMixture::HasGas() const {
    return std::ranges::find(phases_, "G") != phases_.end();
}

bool PureOfMixture::HasSolid() const {
    return std::ranges::any_of(phases_, IsCrystalPhase);
}

/// What is measured of both phases alike is said of the condensed one, of solids before liquids.
void PureOfMixture::OrderPhases(bool condensedFirst) {
    if (!condensedFirst) return;
    const auto rank = [](const std::string& phase) {
        return IsCrystalPhase(phase) ? 0 : phase == "G" ? 2 : 1;
    };
    std::ranges::stable_sort(phases_, {}, rank);
}

bool PureOfMixture::TakeCode() {
    const std::string& code = set_.PRPCODE;
    setCode_ = valueCode_ = code.starts_with("ND") && ComponentOf(code) > 0 ? "NDC" : code;
    const bool isOfState = IsOneOf(code, {"T", "TB", "P", "PV"});
    OrderPhases(isOfState);
    if (isOfState) return TakeEquilibrium(code);
    for (const char* mode : {"Single", "Fixed", "One", "Two"})
        if (IsAvailable(setCode_, mode)) return true;
    return false;
}

/// Temperatures and pressures are named by the phases that they are of.
bool PureOfMixture::TakeEquilibrium(const std::string& code) {
    const bool isTemperature = code == "T" || code == "TB";
    if (phases_.size() > 2) { // gas, liquid and crystal of one compound meet in one point
        setCode_ = valueCode_ = isTemperature ? "TTP" : "PTP";
        return phases_.size() == 3 && HasGas() && HasSolid();
    }
    const std::string context = set_.Context();
    const bool boils = context == "vle" || code == "TB";
    if (boils && phases_.size() == 1 && hasAir_) phases_.emplace_back("G");
    if (isTemperature && context == "sle" && HasSolid()) {
        if (phases_.size() != 2 || phases_[1] != "L") return false;
        setCode_ = valueCode_ = "TF";
    } else if (isTemperature && boils) {
        setCode_ = "T";
        valueCode_ = "TB";
    } else if (!isTemperature && HasGas()) {
        setCode_ = valueCode_ = "PV";
    }
    return phases_.size() == 2;
}

void PureOfMixture::TakeConstants() {
    for (const HeldConstant& constant : set_.Constants()) {
        const bool isStated = IsNumeric(constant.value) && !IsCriticalCurve(constant.code);
        if (isStated && !IsComposition(constant.code)) constants_.push_back(InSystemUnit(constant));
    }
    if (hasAir_ && set_.PRPCODE != "IST" && !ConstantOf("P") && !set_.HasVariable("P"))
        constants_.push_back({-1, "P", "101.325", "S", {}});
    // Temperature first, then pressure: the one that a value is said to hold at.
    std::ranges::stable_sort(constants_, {}, [](const HeldConstant& constant) {
        return constant.code == "T" ? 0 : constant.code == "P" ? 1 : 2;
    });
}

const HeldConstant* PureOfMixture::ConstantOf(std::string_view code) const {
    const auto found = std::ranges::find(constants_, code, &HeldConstant::code);
    return found == constants_.end() ? nullptr : &*found;
}

bool PureOfMixture::TakeStates() {
    for (int n = 1; n <= set_.nVar; ++n)
        if (!IsComposition(set_.VARIABLE(n))) states_.push_back(n);
    const auto isPure = [&](int n) { return VariableValid(set_.VARIABLE(n)); };
    if (!std::ranges::all_of(states_, isPure)) {
        fault_ = WrongStates(states_, set_);
        return false;
    }
    if (!std::ranges::all_of(constants_, VariableValid, &HeldConstant::code)) fault_ = Misfit;
    return fault_.empty();
}

void PureOfMixture::ChooseForm() {
    if (setCode_ == "TF" && states_.empty()) {
        const HeldConstant* const pressure = ConstantOf("P");
        if (!pressure || Equal(Val(pressure->value), NormalPressure)) {
            valueCode_ = "TMN";
            phases_.emplace_back("air");
            std::erase_if(constants_, [](const HeldConstant& held) { return held.code == "P"; });
        }
    }
    const HeldConstant* const fixed = ConstantOf(IndVarFixed(valueCode_));
    // The line of a value at a fixed variable has no second phase, but a gas can be told.
    const bool toldBeside =
        phases_.size() == 1 || phases_[1] == "G" || phases_[1] == "air" || valueCode_ == "TF";
    mayBeSet_ = states_.empty() && !constants_.empty() && valueCode_ != "TMN" &&
                IsAvailable(setCode_, "One");
    if (!states_.empty()) {
        const bool isCriticalT =
            isCritical_ && states_.size() == 1 && set_.VARIABLE(states_[0]) == "T";
        const char* const mode = states_.size() == 1 ? "One" : "Two";
        if (states_.size() <= 2 && IsAvailable(setCode_, mode))
            form_ = Form::Set;
        else if (isCriticalT)
            form_ = Form::Single;
        else
            fault_ = WrongStates(states_, set_);
    } else if (fixed && toldBeside && IsAvailable(valueCode_, "Fixed")) {
        form_ = Form::Fixed;
    } else if (mayBeSet_) {
        form_ = Form::Set;
    } else if (IsAvailable(valueCode_, "Single")) {
        form_ = Form::Single;
    } else {
        fault_ = Misfit;
    }
}

/// A value has no count of digits beside its text; a set of one row has.
PureOfMixture::Form PureOfMixture::FormOf(const clsData& row) const {
    const bool isText = row.DigitCount(0) == SignificantDigits(row.PRPVALUE());
    return mayBeSet_ && !isText ? Form::Set : form_;
}

/// The constant that has a field of its own in such a record.
const HeldConstant* PureOfMixture::Consumed(Form form) const {
    if (form == Form::Fixed) return ConstantOf(IndVarFixed(valueCode_));
    return form == Form::Set && states_.empty() ? &constants_.front() : nullptr;
}

bool PureOfMixture::Take(const clsData& row, std::string& fault) {
    if (isSilent_) {
        const auto value = expected_ && property_.Converts(row) ? property_.Of(row) : std::nullopt;
        if (value && !Equal(*value, *expected_)) fault = NotPure;
        return false;
    }
    if (!IsNumeric(row.PRPVALUE())) return false;
    fault = fault_;
    if (!fault_.empty()) return false;
    const auto isEmpty = [&row](int n) { return !IsNumeric(row.VARIABLE(n)); };
    if (std::ranges::any_of(states_, isEmpty)) return false;
    const Form form = FormOf(row);
    return form == Form::Set ? TakeSet(row) : TakeValue(form, row);
}

} // namespace vexora
