#include "records/RecordChecks.h"

#include "records/LineWriter.h"
#include "records/MixtureWords.h"
#include "records/clsComplex.h"
#include "records/clsComplexSample.h"
#include "records/clsCrS.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

#include <cmath>
#include <utility>

namespace vexora {

namespace {

/// The compound of a component and its sample are described.
void CheckCompound(const clsR* source, const std::string& rn, const std::string& sample,
                   const std::string& name, Remarks& remarks) {
    const auto compound = source ? source->FindL(rn) : nullptr;
    if (!compound) return remarks.Error(name + ": component not described: " + rn);
    if (!sample.empty() && !compound->FindS(static_cast<int>(ToInteger(Val(sample)))))
        remarks.Error(name + ": " + compound->ShowKey() + " has no sample " + sample);
}

std::string NameIn(const clsR* source, const std::string& rn) {
    const auto compound = source ? source->FindL(rn) : nullptr;
    return compound ? compound->ShowKey() : rn;
}

/// The contents of a system or sample, one by one and as a whole.
class ContentCheck {
public:
    ContentCheck(std::string name, Remarks& remarks) : name_(std::move(name)), remarks_(remarks) {}

    void Add(const ComplexContent& content, const std::string& compound) {
        if (content.value.empty()) {
            isWhole_ = false;
            return;
        }
        const std::string words = name_ + ", content of " + compound + ": ";
        if (!IsNumeric(content.value)) {
            isWhole_ = false;
            return remarks_.Error(words + "this is no number: " + content.value);
        }
        const double value = Val(content.value);
        if (content.kind.empty())
            remarks_.Error(words + "neither mole fraction nor moles are stated");
        else if (value < 0 || (content.kind == "X" && value > 1))
            remarks_.Error(words + "value " + NumberText(value) + " is not valid");
        if (!kind_.empty() && kind_ != content.kind) isMixed_ = true;
        kind_ = content.kind;
        sum_ += value;
    }
    void TellWhole() {
        constexpr double slack = 0.005; // two or three decimals, as papers print them
        if (isMixed_) return remarks_.Warn(name_ + ": mole fractions and moles stand together");
        if (isWhole_ && kind_ == "X" && std::abs(sum_ - 1) > slack)
            remarks_.Warn(name_ + ": the mole fractions add up to " + NumberText(sum_));
    }

private:
    std::string name_, kind_;
    Remarks& remarks_;
    bool isWhole_ = true, isMixed_ = false;
    double sum_ = 0;
};

void CheckPreparation(const clsComplexSample& sample, const std::string& name, Remarks& remarks) {
    const std::pair<const char*, const std::string*> figures[] = {
        {"preparation temperature", &sample.PrepT}, {"preparation pressure", &sample.PrepP}};
    for (const auto& [what, text] : figures) {
        const bool isValid = IsNumeric(*text) && Val(*text) > 0;
        if (!IsBlankField(*text) && !isValid)
            remarks.Error(name + ": invalid " + what + " " + *text);
    }
}

/// A figure of a structure that is stated, and none that it stands beside.
void CheckFigure(const std::string& what, const std::string& value, const std::string& uncertainty,
                 const std::string& name, Remarks& remarks) {
    for (const std::string& text : {value, uncertainty})
        if (!IsBlankField(text) && !IsNumeric(text))
            remarks.Error(name + ", " + what + ": this is no number: " + text);
    if (IsBlankField(value) && !IsBlankField(uncertainty))
        remarks.Error(name + ", " + what + ": an uncertainty without a value");
}

void CheckNeededFigure(const std::string& what, const std::string& value,
                       const std::string& uncertainty, const std::string& name, Remarks& remarks) {
    if (IsBlankField(value)) return remarks.Error(name + ": no " + what + " is stated");
    CheckFigure(what, value, uncertainty, name, remarks);
}

void CheckAtomSymbol(const std::string& symbol, const std::string& name, Remarks& remarks) {
    if (!IsOneOf(symbol, {"H", "C", "N", "O"}))
        remarks.Error(name + ": unknown atom " + OrPlaceholder(symbol));
}

void CheckCell(const clsCrS& structure, const std::string& name, Remarks& remarks) {
    CheckFigure("a", structure.A, structure.dA, name, remarks);
    CheckFigure("b", structure.B, structure.dB, name, remarks);
    CheckFigure("c", structure.C, structure.dC, name, remarks);
    CheckFigure("alpha", structure.Alpha, structure.dAlpha, name, remarks);
    CheckFigure("beta", structure.Beta, structure.dBeta, name, remarks);
    CheckFigure("gamma", structure.GammaText(), structure.DGammaText(), name, remarks);
    const CellConstants cell = CellOf(structure);
    if (!cell.AreComplete()) remarks.Warn(name + ": the cell is incomplete");
    const std::string contradiction = ContradictionText(structure.SpaceGroup, cell);
    if (!contradiction.empty()) remarks.Warn(name + ": " + FirstSmall(contradiction));
}

void CheckAtoms(const clsCrS& structure, const std::string& name, Remarks& remarks) {
    for (std::size_t n = 0; n < structure.Atoms.size(); ++n) {
        const CrystalAtom& atom = structure.Atoms[n];
        const std::string where = name + ", atom " + std::to_string(n + 1);
        CheckAtomSymbol(atom.Atom, where, remarks);
        CheckNeededFigure("x", atom.XX, atom.dX, where, remarks);
        CheckNeededFigure("y", atom.YY, atom.dY, where, remarks);
        CheckNeededFigure("z", atom.ZZ, atom.dZ, where, remarks);
        const bool isOccupied = IsNumeric(atom.Occ) && Val(atom.Occ) >= 0 && Val(atom.Occ) <= 1;
        if (!isOccupied) remarks.Error(where + ": invalid occupancy " + OrPlaceholder(atom.Occ));
    }
}

void CheckDistances(const clsCrS& structure, const std::string& name, Remarks& remarks) {
    for (std::size_t n = 0; n < structure.Distances.size(); ++n) {
        const CrystalDistance& one = structure.Distances[n];
        const std::string where = name + ", distance " + std::to_string(n + 1);
        for (const std::string& symbol : {one.Atom1, one.Atom2})
            CheckAtomSymbol(symbol, where, remarks);
        CheckNeededFigure("value", one.DD, one.deltaD, where, remarks);
        if (IsNumeric(one.DD) && Val(one.DD) <= 0)
            remarks.Error(where + ": value " + one.DD + " is not valid");
    }
}

} // namespace

bool FitsSystem(const clsComplexSample& sample) {
    for (const SampleComponent& component : sample.Components)
        if (sample.Parent == nullptr || !sample.Parent->FindComponent(component.RN)) return false;
    return true;
}

void CheckComplex(const clsComplex& complex, Findings& findings) {
    Remarks remarks(findings, complex);
    const std::string name = "Complex " + complex.ShowKey();
    if (IsBlankField(complex.CType)) remarks.Warn(name + ": no type is stated");
    if (complex.Components.empty()) remarks.Error(name + ": no component is stated");
    ContentCheck contents(name, remarks);
    for (const ComplexComponent& component : complex.Components) {
        const std::string who = NameIn(complex.Parent, component.RN);
        CheckCompound(complex.Parent, component.RN, component.SMPNM, name, remarks);
        if (IsBlankField(component.function))
            remarks.Warn(name + ": no function of " + who + " is stated");
        contents.Add(component.content, who);
    }
    contents.TellWhole();
    if (complex.recS.IsEmpty()) remarks.Warn(name + " has no sample");
}

void CheckComplexSample(const clsComplexSample& sample, Findings& findings) {
    Remarks remarks(findings, sample);
    const clsR* const source = sample.Parent ? sample.Parent->Parent : nullptr;
    const std::string name = sample.ShowKey() + " of " + sample.SystemName();
    if (!FitsSystem(sample)) remarks.Error(name + ": " + FirstSmall(BesideSystemText));
    ContentCheck contents(name, remarks);
    for (const SampleComponent& component : sample.Components) {
        CheckCompound(source, component.RN, component.SMPNM, name, remarks);
        contents.Add(component.content, NameIn(source, component.RN));
    }
    contents.TellWhole();
    CheckPreparation(sample, name, remarks);
    if (sample.recZ.IsEmpty() && sample.recTwo.IsEmpty() && sample.recBP.IsEmpty() &&
        sample.recCrS.IsEmpty())
        remarks.Warn(name + " has no data");
    CheckEqualValues(sample, findings);
    CheckEqualPoints(sample, findings);
}

void CheckStructure(const clsCrS& structure, Findings& findings) {
    Remarks remarks(findings, structure);
    const std::string name = structure.ShowKey();
    if (IsBlankField(structure.SpaceGroup))
        remarks.Warn(name + ": no space group is stated");
    else if (SystemOfSymbol(structure.SpaceGroup) == CrystalSystem::Unknown)
        remarks.Warn(name + ": unknown space group " + structure.SpaceGroup);
    CheckCell(structure, name, remarks);
    CheckAtoms(structure, name, remarks);
    CheckDistances(structure, name, remarks);
    if (IsBlankField(structure.Method)) remarks.Warn(name + ": no method is stated");
}

} // namespace vexora
