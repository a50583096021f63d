#include "records/clsBP.h"

#include "globals/KVOGlobal.h"
#include "records/BioLines.h"
#include "records/LineWriter.h"
#include "records/SetLines.h"
#include "records/clsComplex.h"
#include "records/clsComplexSample.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

namespace vexora {

namespace {

/// Formula and molar mass are those of the sample that was measured.
CompoundWords WordsOf(const clsComplexSample& sample) {
    const double mass = sample.MolarMass();
    // Without the contents of all components there is no formula.
    return {RunTogether(sample.SystemName()),
            mass > 0 ? RunTogether(sample.Formula()) : std::string(),
            NumberText(mass),
            "0",
            {},
            {}};
}

} // namespace

BioQuantityTexts clsBP::TableOf(BioRole role) const {
    if (PrpType == "G") return HydrateQuantities;
    if (role == BioRole::Property) return BioProperties;
    return BioVariables;
}

std::vector<std::string> clsBP::ParticipantKeys() const {
    return {RN};
}

bool clsBP::Uses(std::string_view rn) const {
    return BioSet::Uses(rn) || (!rn.empty() && rn == RN);
}

bool clsBP::UsesSample(std::string_view rn, std::string_view sample) const {
    return BioSet::UsesSample(rn, sample) || (rn == RN && IsSameSample(SMPNM, sample));
}

std::string clsBP::PlaceKey(int setNo) {
    return std::to_string(setNo) + "BP";
}

std::string clsBP::ShowKey() const {
    const std::string number = std::to_string(SetNo);
    if (PrpType == "G") return "Gas Hydrate Data Set # " + number + ": Phase Equilibrium";
    if (PrpType != "S")
        return "BioProperty Set # " + number + " (" + CompoundName(RN) + ") from DSC (" + State1 +
               ", " + State2 + ")";
    std::string solvents;
    for (const BioComponent& component : Components)
        if (component.function == "Solvent")
            solvents += (solvents.empty() ? " in " : " + ") + CompoundName(component.RN);
    return number + ": Solubility of " + CompoundName(RN) + solvents;
}

void clsBP::SetMe() {
    KVOGlobal& globals = Globals();
    globals.CurrentBP = As<clsBP>();
    const bool isOfSample = PrpType == "G";
    if (globals.CurrentKey.empty()) globals.CurrentKey = isOfSample ? "RXSP" : "RBP";
    if (Sample)
        Sample->SetMe();
    else if (Parent)
        Parent->SetMe();
    // Last, for the owner would say what its own data are.
    globals.DataContext = isOfSample ? "Pure" : "Bio";
}

void clsBP::AttachTo(clsR& source) {
    Parent = &source;
    source.recBP.Add(As<clsBP>(), Key());
    if (source.tNode) MakeNode(source.tNode);
}

void clsBP::AttachTo(clsComplexSample& sample) {
    Sample = &sample;
    Parent = sample.Parent ? sample.Parent->Parent : nullptr;
    RN = sample.Parent ? sample.Parent->RN : std::string();
    SMPNM = sample.SMPNM;
    sample.recBP.Add(As<clsBP>(), Key());
    if (sample.tNode) MakeNode(sample.tNode);
}

std::size_t clsBP::Leave() {
    if (Sample) return LeaveFrom(Sample->recBP);
    return Parent ? LeaveFrom(Parent->recBP) : 0;
}

bool clsBP::Return(std::size_t place) {
    if (Sample) return ReturnTo(Sample->recBP, place, Sample->FindBP(SetNo));
    return Parent && ReturnTo(Parent->recBP, place, Parent->FindBP(SetNo));
}

std::shared_ptr<clsBP> clsBP::Copy() const {
    auto copy = std::make_shared<clsBP>(*this);
    // The node goes on belonging to the set in the document.
    copy->tNode = nullptr;
    return copy;
}

void clsBP::Replace(const clsBP& other) {
    clsR* const parent = Parent;
    clsComplexSample* const sample = Sample;
    ui::TreeNode* const node = tNode;
    *this = other;
    Parent = parent;
    Sample = sample;
    tNode = node;
    if (Sample)
        Sample->recBP.Rekey(this, Key());
    else if (Parent)
        Parent->recBP.Rekey(this, Key());
}

bool clsBP::Load(std::string_view line) {
    WordReader words(line);
    words.NextWord();
    SetNo = BioSetNumber(words.NextWord());
    return SetNo > 0;
}

void clsBP::PrintBP(LineWriter& out) const {
    PrintHeader(out);
    out.Fields({"BN", std::to_string(SetNo)});
    const std::vector<std::string> keys = Keys();
    for (std::size_t n = 0; n < keys.size(); ++n) {
        const CompoundWords words = n == 0 && Sample ? WordsOf(*Sample) : WordsOf(*this, keys[n]);
        out.Fields({"BP", keys[n], "0", n == 0 ? SMPNM : Components[n - 1].SMPNM, "&", words.name,
                    n == 0 ? RN : Components[n - 1].RN, words.formula, words.molarMass,
                    words.charge, words.EC, words.PDB});
    }
    out.Fields({"BH", PrpType, SMPNM, RunTogether(State1), RunTogether(State2), PHASE1, PHASE2,
                PHASE3, PHASE4});
    PrintDefinition(out);
    PrintRows(out);
    PrintStatements(out);
}

void clsBP::AddParts(std::vector<BioPart>& parts) const {
    parts.push_back({"kind", PrpType});
    parts.push_back({"substance", Joined({RN, SMPNM})});
    parts.push_back({"states", Joined({State1, State2})});
    parts.push_back({"phases", Joined({PHASE1, PHASE2, PHASE3, PHASE4})});
}

std::vector<std::string> clsBP::ParticipantTexts() const {
    return {Joined({RN, SMPNM})};
}

} // namespace vexora
