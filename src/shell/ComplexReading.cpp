#include "shell/ComplexReading.h"

#include "chem/CommentTags.h"
#include "records/clsComplex.h"
#include "records/clsComplexSample.h"
#include "records/clsCrS.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "reference/KVODefinitions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "shell/ReadingPage.h"

namespace vexora {

namespace {

std::string ContentInWords(const ComplexContent& content) {
    const std::string kind = LowerAscii(TextOfCode(ContentCompositions, content.kind));
    return content.value.empty() || kind.empty() ? content.value : kind + " " + content.value;
}

std::string NameIn(const clsR* source, const std::string& rn) {
    const auto compound = source ? source->FindL(rn) : nullptr;
    return compound ? compound->ShowKey() : rn;
}

std::string FormulaIn(const clsR* source, const std::string& rn) {
    const auto compound = source ? source->FindL(rn) : nullptr;
    return compound ? compound->Formula : "not described";
}

std::string SampleText(const std::string& number) {
    return IsBlankField(number) ? "" : "sample " + number;
}

void DescribeFormula(ReadingPage& page, const std::string& formula, double molarMass) {
    if (formula != "Error") page.Line("Formula:", formula);
    if (molarMass > 0) page.Line("Molar mass:", NumberText(molarMass) + " g/mol");
}

std::string Stated(const std::string& value, const std::string& uncertainty,
                   const std::string& unit) {
    if (IsBlankField(value)) return {};
    return value + (IsBlankField(uncertainty) ? "" : " \xC2\xB1 " + uncertainty) + " " + unit;
}

void DescribeCell(ReadingPage& page, const clsCrS& structure) {
    page.Line("a:", Stated(structure.A, structure.dA, "\xC3\x85"));
    page.Line("b:", Stated(structure.B, structure.dB, "\xC3\x85"));
    page.Line("c:", Stated(structure.C, structure.dC, "\xC3\x85"));
    page.Line("alpha:", Stated(structure.Alpha, structure.dAlpha, "degrees"));
    page.Line("beta:", Stated(structure.Beta, structure.dBeta, "degrees"));
    page.Line("gamma:", Stated(structure.GammaText(), structure.DGammaText(), "degrees"));
    const CellConstants cell = CellOf(structure);
    if (const auto volume = VolumeOf(cell))
        page.Line("Volume of the cell:",
                  VolumeText(*volume, {structure.A, structure.B, structure.C}) +
                      " \xC3\x85\xC2\xB3");
    page.Line("Contradiction:", ContradictionText(structure.SpaceGroup, cell));
}

} // namespace

std::string ReadingOfComplex(const clsComplex& complex) {
    ReadingPage page(complex.ShowKey());
    page.Line("Type:", complex.CType);
    bool hasContents = true;
    for (const ComplexComponent& component : complex.Components) {
        const std::string function = component.function.empty() ? "Component" : component.function;
        page.Line(
            function + ":",
            Listed({NameIn(complex.Parent, component.RN), FormulaIn(complex.Parent, component.RN),
                    SampleText(component.SMPNM), ContentInWords(component.content)}));
        hasContents = hasContents && !component.content.value.empty();
    }
    DescribeFormula(page, complex.Formula(), complex.MMass());
    page.Line("Samples:", std::to_string(complex.recS.Count()));
    page.Need(complex.Components.empty(), "Components");
    page.Need(complex.recS.IsEmpty(), "A sample");
    return page.Html();
}

void DescribeComplexSample(ReadingPage& page, const clsComplexSample& sample) {
    const clsR* const source = sample.Parent ? sample.Parent->Parent : nullptr;
    if (sample.Parent != nullptr) page.Line("Complex:", sample.Parent->ShowKey());
    for (const SampleComponent& component : sample.Components)
        page.Line(NameIn(source, component.RN) + ":",
                  Listed({ContentInWords(component.content), SampleText(component.SMPNM)}));
    DescribeFormula(page, sample.Formula(), sample.MolarMass());
    page.Line("Prepared at:",
              Listed({Stated(sample.PrepT, {}, "K"), Stated(sample.PrepP, {}, "kPa")}));
    page.Line("Composition of the preparation:", sample.aComp);
    page.Line("Prepared by:", sample.Method);
    page.Line("Comment:", CommentTags(sample.Header.DATACOMMENT).Text());
    page.Line("Entered:", sample.Header.DATEADDED);
    page.Need(sample.Components.empty(), "The composition");
}

std::string ReadingOfStructure(const clsCrS& structure) {
    ReadingPage page(structure.ShowKey());
    page.Line("Space group:", Listed({structure.SpaceGroup, SystemInWords(structure.SpaceGroup)}));
    DescribeCell(page, structure);
    for (const CrystalDistance& one : structure.Distances)
        page.Line("Distance " + one.Atom1 + "-" + one.Atom2 + ":",
                  Stated(one.DD, one.deltaD, "\xC3\x85"));
    for (const CrystalAtom& atom : structure.Atoms)
        page.Line(atom.Atom + " at:", Listed({atom.XX, atom.YY, atom.ZZ, "occupancy " + atom.Occ}));
    page.Line("Method:", structure.Method);
    page.Need(IsBlankField(structure.SpaceGroup), "The space group");
    page.Need(!CellOf(structure).AreComplete(), "All constants of the cell");
    page.Need(structure.Atoms.empty() && structure.Distances.empty(), "Atoms or distances");
    page.Need(IsBlankField(structure.Method), "The method of determination");
    return page.Html();
}

} // namespace vexora
