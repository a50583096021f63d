#include "records/clsC.h"

#include "export/ReactionParts.h"
#include "export/SingleValues.h"
#include "export/XmlWriter.h"
#include "records/LineWriter.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

namespace vexora {

namespace {

std::string StateFault(const std::string& quantity, const std::string& typed) {
    if (IsBlankField(typed) || IsNumeric(NormalizeNumber(typed))) return {};
    return "The initial " + quantity + " is no number: " + typed;
}

std::string FaultOf(const clsC& value, const DataSubject& subject,
                    const ReactionParticipants& participants) {
    std::string fault = ReactionFault(*value.Parent, subject, value.Header, participants);
    if (fault.empty()) fault = StateFault("temperature", value.INITIAL_TEMPERATURE);
    if (fault.empty()) fault = StateFault("pressure", value.INITIAL_PRESSURE);
    return fault.empty() ? ValueFault(subject, value) : fault;
}

/// States are kept in system units.
void ExportState(XmlWriter& xml, const char* element, const char* digits,
                 const std::string& typed) {
    if (IsBlankField(typed)) return;
    const ExportNumber number = ExportedValue(typed, {});
    xml.Element(element, number.text);
    xml.Element(digits, std::to_string(number.digits));
}

/// Empty where both states have the same figure, or no final one is given.
std::string FinalWarning(const clsC& value, const std::string& quantity, const std::string& final,
                         const std::string& initial) {
    if (IsBlankField(final)) return {};
    const auto first = NumberIn(NormalizeNumber(initial));
    const auto last = NumberIn(NormalizeNumber(final));
    if (first && last && Equal(*first, *last)) return {};
    return value.SystemName() + ": WARNING: XML cannot store final " + quantity + " of reaction " +
           final + " different that initial " + quantity + " " +
           std::string(WithoutPlaceholder(initial));
}

} // namespace

void clsC::ExportC(XmlWriter& xml) const {
    // A value outside a document has no compounds to refer to.
    if (Parent == nullptr || Parent->Parent == nullptr) return;
    const ReactionParticipants participants = ParticipantsOf(*this);
    const DataSubject subject = SubjectOf(*this, participants);
    const std::string fault = FaultOf(*this, subject, participants);
    if (!fault.empty()) return TellDataError(subject, fault);
    OpenReaction(xml, *Parent, participants, Header);
    OpenReactionProperty(xml, *Parent, subject, Header);
    ExportState(xml, "nTemperature-K", "nTemperatureDigits", INITIAL_TEMPERATURE);
    ExportState(xml, "nPressure-kPa", "nPressureDigits", INITIAL_PRESSURE);
    const clsX item = Statements(0);
    item.ExportX(xml, "Prop");
    xml.Close();
    xml.Open("NumValues");
    const bool isWhole = ExportPropertyValue(xml, *this, item);
    xml.Close();
    if (!isWhole) TellDataError(subject, NoRepeatability);
    xml.Close();
}

std::vector<std::string> FinalStateWarnings(const clsC& value) {
    if (value.Parent == nullptr || value.Parent->Parent == nullptr) return {};
    std::vector<std::string> warnings;
    // Spelled as it always was, for its readers may look for the words.
    for (std::string text :
         {FinalWarning(value, "tempareture", value.FINAL_TEMPERATURE, value.INITIAL_TEMPERATURE),
          FinalWarning(value, "pressure", value.FINAL_PRESSURE, value.INITIAL_PRESSURE)})
        if (!text.empty()) warnings.push_back(std::move(text));
    if (warnings.empty()) return {};
    // What has not left has not lost its final state.
    const ReactionParticipants participants = ParticipantsOf(value);
    const bool leaves = FaultOf(value, SubjectOf(value, participants), participants).empty();
    return leaves ? warnings : std::vector<std::string>();
}

} // namespace vexora
