#include "records/clsE.h"

#include "chem/CommentTags.h"
#include "globals/KVOGlobal.h"
#include "records/LineWriter.h"
#include "records/PropertyLabels.h"
#include "records/ReactionText.h"
#include "records/SetLines.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

#include <algorithm>

namespace vexora {

namespace {

const std::string NoText;
constexpr const char* ReportedAsLogarithm = "L"; // a statement that is a tag of the comment

} // namespace

const std::string& clsE::Outside() {
    return NoText;
}

const std::string& clsE::VARIABLE(int n) const {
    return n == 0 ? PRPCODE : At(variables_, n);
}

std::string clsE::VariableWords(int n) const {
    return ReactionVariableName(Parent, VARIABLE(n));
}

const std::string& clsE::PhaseFor(int) const {
    return NoText; // a reaction may run through several at once
}

std::vector<std::string> clsE::Phases() const {
    std::vector<std::string> phases;
    for (const std::string& phase : phases_)
        if (!IsBlankField(phase)) phases.push_back(phase);
    return phases;
}

std::string clsE::SystemName() const {
    return Parent ? Parent->ShowKey() : std::string();
}

std::string_view clsE::Relation() const {
    return CommentTags(Header.DATACOMMENT).Has(ReportedAsLogarithm) ? "D" : "A";
}

double clsE::MolarMass(const clsData&) const {
    for (int i = 1; Parent && i <= clsQ::MostParticipants; ++i)
        if (!Parent->RN(i).empty()) return Parent->MolarMass(i);
    return 0;
}

const Record* clsE::Owner() const {
    return Parent;
}

std::vector<HeldConstant> clsE::Constants() const {
    std::vector<HeldConstant> constants;
    int item = nVar;
    for (int i = 1; i <= Places; ++i) {
        if (IsBlankField(CONSTANT_VARIABLE(i))) continue;
        // Of the places for statements the last constant gets none when there are many.
        ++item;
        constants.push_back(
            {item < Items ? item : 0, CONSTANT_VARIABLE(i), CNVARVALUE(i), "S", {}});
    }
    return constants;
}

std::string clsE::ConstantOf(std::string_view code) const {
    for (const HeldConstant& constant : Constants())
        if (constant.code == code && IsNumeric(constant.value)) return constant.value;
    return DataSet::ConstantOf(code);
}

std::shared_ptr<DataSet> clsE::Copy() const {
    auto copy = std::make_shared<clsE>(*this);
    // The node goes on belonging to the set in the document.
    copy->tNode = nullptr;
    return copy;
}

bool clsE::Load(std::string_view line, bool* isWhole) {
    WordReader words(line);
    const bool hasOneVariable = words.NextWord() == "^E";
    for (std::string& coefficient : coefficients_) {
        coefficient = NextField(words);
        if (coefficient == "0") coefficient.clear();
    }
    for (std::string& sample : samples_)
        sample = NextField(words);
    if (words.AtEnd()) return false;
    for (std::string* field : {&PRPCODE, &PROPERTY_UNIT, &PRPSETNO, &DATATYPE, &EXPERIMENTAL_DESIGN,
                               &SOLVENTPHASE, &STANDARD_STATE})
        *field = NextField(words);
    const auto nextPairs = [&words](Four& first, Four& second) {
        for (std::size_t i = 0; i < first.size(); ++i) {
            first[i] = NextField(words);
            second[i] = NextField(words);
        }
    };
    nextPairs(variables_, units_);
    nextPairs(phases_, components_);
    nextPairs(constants_, constantValues_);
    if (isWhole) *isWhole = words.AtEnd();
    const auto named = std::ranges::count_if(variables_, [](const auto& v) { return !v.empty(); });
    nVar = hasOneVariable ? 1 : std::clamp(static_cast<int>(named), 2, MostVariables);
    Factor = 0;
    isOriginalUnit = true;
    // What the file holds has been converted by its writer and is never converted again.
    commentInSystemUnits = true;
    return true;
}

void clsE::TakePending(const clsA& pending) {
    DataSet::TakePending(pending);
    for (std::size_t i = 0; i < units_.size(); ++i)
        units_[i] = KeptField(units_[i], UnitOfVariable(ParticipantCodeOf(variables_[i]).code));
}

std::string clsE::DefinitionLine() const {
    std::string line = nVar == 1 ? "^E" : "^H";
    const auto add = [&line](std::string_view field) { AppendField(line, field); };
    for (const std::string& coefficient : coefficients_)
        add(IsBlankField(coefficient) ? "0" : coefficient);
    for (const std::string& sample : samples_)
        add(sample);
    for (const std::string& field : {PRPCODE, PropertyUnitField(), PRPSETNO, DATATYPE,
                                     EXPERIMENTAL_DESIGN, SOLVENTPHASE, STANDARD_STATE})
        add(field);
    for (std::size_t i = 0; i < variables_.size(); ++i) {
        add(variables_[i]);
        add(units_[i].empty() ? units_[i] : UnitField(units_[i]));
    }
    const auto addPairs = [&add](const Four& first, const Four& second) {
        for (std::size_t i = 0; i < first.size(); ++i) {
            add(first[i]);
            add(second[i]);
        }
    };
    addPairs(phases_, components_);
    addPairs(constants_, constantValues_);
    return line;
}

std::string clsE::Key() const {
    return "E" + PRPCODE + " " + PRPSETNO;
}

std::string clsE::ShowKey() const {
    const PropertyLabel label = PropertyLabels::Of(*this);
    return "^E: " + label.name + " (" + label.unit + ", Set " + PRPSETNO + ")";
}

void clsE::SetMe() {
    KVOGlobal& globals = Globals();
    globals.CurrentE = As<clsE>();
    if (globals.CurrentKey.empty()) globals.CurrentKey = "RQE";
    if (!Parent) return;
    Parent->SetMe();
    for (int i = 1; i <= Participants; ++i)
        Parent->SMPNM(i, SMPNM(i));
}

void clsE::AttachTo(clsQ& reaction) {
    Parent = &reaction;
    reaction.recE.Add(As<clsE>(), Key());
    if (reaction.tNode) MakeNode(reaction.tNode);
}

std::size_t clsE::Leave() {
    return Parent ? LeaveFrom(Parent->recE) : 0;
}

bool clsE::Return(std::size_t place) {
    return Parent && ReturnTo(Parent->recE, place, Parent->recE.Item(Key()));
}

void clsE::Replace(const clsE& other) {
    clsQ* const parent = Parent;
    ui::TreeNode* const node = tNode;
    *this = other;
    Parent = parent;
    tNode = node;
    if (Parent) Parent->recE.Rekey(this, Key());
}

int NextSetNumber(const clsQ& reaction, const clsE& set) {
    std::int64_t highest = 0;
    for (const auto& one : reaction.recE)
        if (one->PRPCODE == set.PRPCODE) highest = std::max(highest, ToInteger(Val(one->PRPSETNO)));
    return static_cast<int>(highest) + 1;
}

std::string ReactionVariableName(const clsQ* reaction, std::string_view code) {
    const ParticipantCode parts = ParticipantCodeOf(code);
    if (parts.participant == 0 && !IsOneOf(code, {"T", "P"})) return {};
    const std::string name = VariableName(parts.code, "React");
    if (parts.participant == 0 || reaction == nullptr) return name;
    const std::string participant = reaction->Name(parts.participant);
    return participant.empty() ? participant : Replace(name, "a participant", participant);
}

} // namespace vexora
