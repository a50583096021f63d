#include "shell/ReadingPane.h"

#include "chem/Balancer.h"
#include "chem/CommentTags.h"
#include "compounds/RegistryNumber.h"
#include "globals/KVOGlobal.h"
#include "records/BioSetFacts.h"
#include "records/MixtureWords.h"
#include "records/PropertyLabels.h"
#include "records/SampleDescription.h"
#include "records/SampleWords.h"
#include "records/StatedUncertainty.h"
#include "records/Walk.h"
#include "records/clsAuthor.h"
#include "records/clsBP.h"
#include "records/clsBR.h"
#include "records/clsC.h"
#include "records/clsComplex.h"
#include "records/clsComplexSample.h"
#include "records/clsCrS.h"
#include "records/clsE.h"
#include "records/clsL.h"
#include "records/clsM.h"
#include "records/clsMV.h"
#include "records/clsMZ.h"
#include "records/clsQ.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "records/clsTwo.h"
#include "records/clsZ.h"
#include "reference/Conversions.h"
#include "reference/KVODefinitions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/UnitText.h"
#include "reference/Vocabulary.h"
#include "shell/BioReading.h"
#include "shell/ComplexReading.h"
#include "shell/ReadingPage.h"
#include "shell/SetReading.h"

namespace vexora {

namespace {

std::string Counted(std::size_t count, const std::string& one, const std::string& many) {
    return std::to_string(count) + " " + (count == 1 ? one : many);
}

std::string AuthorsOf(const clsR& source) {
    std::string text;
    for (const auto& author : source.recAuthor)
        text += (text.empty() ? "" : "; ") + author->PrintedName();
    return text;
}

/// What is stated about the uncertainty of a value, the most telling statement first.
std::string UncertaintyText(const SingleValue& value) {
    const clsX stated = value.Statements(0);
    if (const std::string text = UncertaintyText(stated); !text.empty()) return text;
    if (!IsBlankField(value.PRPUNCERTY)) return value.PRPUNCERTY;
    if (stated.iRep && !IsBlankField(stated.RValue)) return stated.RValue;
    return IsBlankField(value.PRECIS) ? std::string() : std::string(value.PRECIS);
}

std::string ValueText(const SingleValue& value) {
    const std::string text = NumberWithUnit(value.PRPVALUE, PropertyLabels::Of(value).unit);
    const std::string uncertainty = UncertaintyText(value);
    return uncertainty.empty() ? text : text + " \xC2\xB1 " + uncertainty;
}

/// The value in the system unit, where it was entered in another one.
std::string ConvertedText(const SingleValue& value) {
    const std::string unit = DefaultUnit(PropertyName(value.PRPCODE, value.DataContext()));
    if (PropertyLabels::Of(value).unit == unit || !IsNumeric(value.PRPVALUE)) return {};
    const UnitConversion entered = value.PropertyConversion();
    if (!entered.IsPossible()) return {};
    return NumberWithUnit(entered.Converted(value.PRPVALUE).text, unit);
}

std::string VariableText(const clsZ& value) {
    const std::string unit = DefaultUnit(VariableName(value.Variable(), value.DataContext()));
    const std::string& code = value.VARIABLE_UNIT;
    return NumberWithUnit(value.INDVARIABLE, UnitText(unit, code, 0));
}

std::string ReadingOf(const clsR& source) {
    ReadingPage page("Source " + source.Source());
    page.Line("Title:", source.TTITLE);
    // The marks part the name and the volume from the rest.
    page.Line("Published in:", Replace(Replace(source.SSOURCE, "@", ""), "$", ""));
    page.Line("Authors:", AuthorsOf(source));
    page.Line("Compounds:", std::to_string(source.recL.Count()));
    if (!source.recM.IsEmpty()) page.Line("Mixtures:", std::to_string(source.recM.Count()));
    if (!source.recQ.IsEmpty()) page.Line("Reactions:", std::to_string(source.recQ.Count()));
    if (const std::size_t sets = source.recBR.Count() + source.recBP.Count(); sets > 0)
        page.Line("Bio data sets:", std::to_string(sets));
    if (!source.recComplex.IsEmpty())
        page.Line("Complexes:", std::to_string(source.recComplex.Count()));
    if (!source.isNew) page.Item("This source stands in the reference database; it is not edited.");
    page.Need(source.recL.IsEmpty(), "A compound");
    page.Need(source.isNew && source.TTITLE.empty(), "The title");
    page.Need(source.isNew && source.recAuthor.IsEmpty(), "The authors");
    return page.Html();
}

std::string HoldingsOf(const SubstanceSample& sample) {
    return Counted(sample.recZ.Count(), "single value", "single values") + ", " +
           Counted(sample.recTwo.Count(), "data set", "data sets");
}

void ListSets(ReadingPage& page, const SubstanceSample& sample) {
    for (const auto& set : sample.recTwo)
        page.Line(PropertyName(set->PRPCODE, set->DataContext()) + ":",
                  Counted(set->recData.Count(), "row", "rows"));
}

std::string ReadingOf(const clsL& compound) {
    ReadingPage page(compound.ShowKey());
    page.Line("Formula:", compound.Formula);
    if (compound.MMass > 0) page.Line("Molar mass:", NumberText(compound.MMass) + " g/mol");
    page.Line("Registry number:",
              compound.RN.size() < 4 ? compound.RN : DashedRegistryNumber(compound.RN));
    if (compound.isNew) page.Item("New to the reference database.");
    page.Line("Enzyme number (EC):", compound.EC);
    page.Line("Structure code (PDB):", compound.PDB);
    if (compound.Charge != 0)
        page.Line("Charge:", (compound.Charge > 0 ? "+" : "") + std::to_string(compound.Charge));
    page.Line("Samples:", std::to_string(compound.recS.Count()));
    for (const auto& sample : compound.recS) {
        page.Line("Sample " + sample->SMPNM + ":", HoldingsOf(*sample));
        ListSets(page, *sample);
    }
    page.Need(compound.Formula.empty(), "The formula");
    const auto* source = compound.Parent;
    const bool isNamed = source != nullptr && source->Names(compound.RN);
    page.Need(compound.recS.IsEmpty() && !isNamed,
              "A sample: without one the compound is not saved");
    return page.Html();
}

void DescribeSample(ReadingPage& page, const clsS& sample) {
    const auto description = ParseDescription(sample.SMPDESC);
    if (!description) {
        page.Line("Description:", sample.SMPDESC);
        page.Need(true, "A description that can be interpreted");
        return;
    }
    page.Line("Description:", TextOfCode(SampleAvailabilities, description->Availability));
    page.Line("Source:", TextOfCode(SampleSources, description->Source));
    page.Line("Initial purity:", PurityInWords(description->Initial));
    for (const std::string& code : description->Purification)
        page.Line("Purified by:", PurificationName(code));
    for (const PurityStatement& statement : description->Final)
        page.Line("Final purity:", PurityInWords(statement));
    const bool used = description->Availability.empty();
    page.Need(used && sample.Purity <= 0, "A statement of purity");
}

/// The data of a sample of a compound or a complex.
void DescribeData(ReadingPage& page, const SubstanceSample& sample, const std::string& more = {}) {
    page.Line("Holds:", HoldingsOf(sample) + more);
    for (const auto& value : sample.recZ)
        page.Line(PropertyName(value->PRPCODE, value->DataContext()) + ":", ValueText(*value));
    ListSets(page, sample);
}

std::string ReadingOf(const clsComplexSample& sample) {
    ReadingPage page(sample.ShowKey());
    DescribeComplexSample(page, sample);
    DescribeData(page, sample,
                 ", " + Counted(sample.recBP.Count(), "phase equilibrium", "phase equilibria") +
                     ", " +
                     Counted(sample.recCrS.Count(), "crystal structure", "crystal structures"));
    page.Need(sample.recZ.IsEmpty() && sample.recTwo.IsEmpty() && sample.recBP.IsEmpty() &&
                  sample.recCrS.IsEmpty() && !IsUsedInReactions(sample),
              "Data");
    return page.Html();
}

std::string ReadingOf(const clsS& sample) {
    ReadingPage page("Sample " + sample.SMPNM);
    if (sample.Parent != nullptr) page.Line("Compound:", sample.Parent->ShowKey());
    DescribeSample(page, sample);
    if (sample.Purity > 0) page.Line("Purity that counts:", NumberText(sample.Purity) + " %");
    DescribeData(page, sample);
    const bool hasOwn = !sample.recZ.IsEmpty() || !sample.recTwo.IsEmpty();
    page.Need(!hasOwn && !IsUsedInMixtures(sample) && !IsUsedInReactions(sample) &&
                  !IsUsedInBioSets(sample),
              "Data");
    return page.Html();
}

/// What is told of every single value behind what its class tells.
void DescribeRest(ReadingPage& page, const SingleValue& value) {
    page.Line("Method:", MethodText(value.Header, value.PRPCODE));
    page.Line("Purpose:", TextOfCode(ExperimentPurposes, value.Header.EXPPURPOSE));
    page.Line("Comment:", CommentTags(value.Header.DATACOMMENT).Text());
    page.Line("Set:", value.PRPSETNO);
    page.Line("Entered:", value.Header.DATEADDED);
    page.Need(!StatesUncertainty(value), "A statement of uncertainty");
}

std::string PropertyInWords(const clsMZ& value) {
    const std::string name = PropertyName(value.PRPCODE, value.DataContext());
    return WithComponents(name.empty() ? value.PRPCODE.View() : name, value.Parent);
}

std::string ReadingOf(const clsZ& value) {
    const std::string name = PropertyName(value.PRPCODE, value.DataContext());
    ReadingPage page(name.empty() ? value.PRPCODE.View() : name);
    page.Line("Value:", ValueText(value));
    page.Line("In system units:", ConvertedText(value));
    if (value.nVar == 1)
        page.Line("At " + LowerAscii(VariableName(value.Variable(), value.DataContext())) + ":",
                  VariableText(value));
    page.Line("Phase:", PhaseText(value.PHASE1));
    page.Line("In equilibrium with:", PhaseText(value.PhaseBeside()));
    page.Line("And with:", PhaseText(value.PHASE3));
    DescribeRest(page, value);
    return page.Html();
}

std::string ReadingOf(const clsM& mixture) {
    ReadingPage page(mixture.ShowKey());
    for (int n = 1; n <= mixture.MixType; ++n) {
        const auto compound = mixture.Component(n);
        page.Line("Component " + std::to_string(n) + ":",
                  compound ? compound->ShowKey() : mixture.RN(n));
    }
    page.Line("Holds:", Counted(mixture.recMZ.Count(), "single value", "single values") + ", " +
                            Counted(mixture.recMV.Count(), "data set", "data sets"));
    for (const auto& value : mixture.recMZ)
        page.Line(PropertyInWords(*value) + ":", ValueText(*value));
    for (const auto& set : mixture.recMV)
        page.Line(FirstCapital(QuantityInWords(*set, 0)) + ":",
                  Counted(set->recData.Count(), "row", "rows"));
    page.Need(!mixture.CheckSamples(), "A sample of each component");
    page.Need(!mixture.HasData(), "Data: without them the mixture is not saved");
    return page.Html();
}

std::string ReadingOf(const clsMZ& value) {
    ReadingPage page(PropertyInWords(value));
    page.Line("Mixture:", value.SystemName());
    page.Line("Value:", ValueText(value));
    page.Line("In system units:", ConvertedText(value));
    std::string phases;
    for (const std::string& phase : value.Phases())
        phases += (phases.empty() ? "" : " + ") + PhaseText(phase);
    page.Line("Phases:", phases);
    const CommentTags tags(value.Header.DATACOMMENT);
    for (const auto& [code, what, unit] :
         {std::array{"T", "At temperature:", "K"}, std::array{"P", "At pressure:", "kPa"}})
        if (const std::string constant = tags.Constant(code); !constant.empty())
            page.Line(what, NumberWithUnit(constant, unit));
    for (int n = 1; n <= value.MixType; ++n)
        page.Line("Sample of component " + std::to_string(n) + ":", value.SMPNM(n));
    DescribeRest(page, value);
    return page.Html();
}

/// A compound of the reaction's source by its number.
std::string NameOf(const clsQ& reaction, const std::string& rn) {
    const auto compound = reaction.Parent ? reaction.Parent->FindL(rn) : nullptr;
    return compound ? compound->ShowKey() : rn;
}

std::string ReadingOf(const clsQ& reaction) {
    ReadingPage page(reaction.ShowKey());
    const std::string type = ReactionType(reaction.REACTCLASS);
    page.Line("Class:", type.empty() ? reaction.REACTCLASS : type);
    for (int i = 1; i <= clsQ::MostParticipants; ++i)
        page.Line(reaction.Name(i) + ":", reaction.Formula(i));
    page.Line("Solvent:", NameOf(reaction, reaction.SOLVENTRN));
    page.Line("Inert compound:", NameOf(reaction, reaction.INERTRN));
    page.Line("Holds:", Counted(reaction.recC.Count(), "property change", "property changes") +
                            ", " + Counted(reaction.recE.Count(), "equilibrium", "equilibria"));
    for (const auto& value : reaction.recC)
        page.Line(PropertyName(value->PRPCODE, value->DataContext()) + ":", ValueText(*value));
    for (const auto& set : reaction.recE)
        page.Line(PropertyName(set->PRPCODE, set->DataContext()) + ":",
                  Counted(set->recData.Count(), "row", "rows"));
    const bool isBalanced = IsBalanced(reaction.Formulas(), reaction.Coefficients());
    page.Need(!isBalanced, "Coefficients that balance");
    page.Need(!reaction.HasData(), "Data");
    return page.Html();
}

std::string ReadingOf(const clsC& value) {
    const std::string name = PropertyName(value.PRPCODE, value.DataContext());
    ReadingPage page(name.empty() ? value.PRPCODE.View() : name);
    if (value.Parent != nullptr) page.Line("Reaction:", value.Parent->Equation(value.PhaseNames()));
    page.Line("Value:", ValueText(value));
    page.Line("In system units:", ConvertedText(value));
    const auto state = [](const std::string& temperature, const std::string& pressure) {
        const std::string at = IsBlankField(temperature) ? "" : temperature + " K";
        if (IsBlankField(pressure)) return at;
        return at + (at.empty() ? "" : ", ") + pressure + " kPa";
    };
    page.Line("Initial state:", state(value.INITIAL_TEMPERATURE, value.INITIAL_PRESSURE));
    page.Line("Final state:", state(value.FINAL_TEMPERATURE, value.FINAL_PRESSURE));
    page.Line("Standard state:", TextOfCode(StandardStates, value.STANDARD_STATE));
    page.Line("Solvent phase:", PhaseText(value.SOLVENT_PHASE));
    for (int i = 1; value.Parent && i <= clsQ::MostParticipants; ++i) {
        const std::string participant = value.Parent->Name(i);
        page.Line("Sample of " + participant + ":", value.SMPNM(i));
        const std::string kind = TextOfCode(ParticipantCompositions, value.COMPOSITION(i));
        page.Line((kind.empty() ? "Composition" : kind) + " (" + participant + "):",
                  value.COMPOSITION_VALUE(i));
    }
    DescribeRest(page, value);
    return page.Html();
}

/// What the pane shows of a record, by its class.
const ByClass<std::string>& Readings() {
    static const auto readings =
        ByClass<std::string>()
            .On<clsR>([](const clsR& one) { return ReadingOf(one); })
            .On<clsL>([](const clsL& one) { return ReadingOf(one); })
            .On<clsS>([](const clsS& one) { return ReadingOf(one); })
            .On<clsZ>([](const clsZ& one) { return ReadingOf(one); })
            .On<clsTwo>(ReadingOfSet)
            .On<clsM>([](const clsM& one) { return ReadingOf(one); })
            .On<clsMZ>([](const clsMZ& one) { return ReadingOf(one); })
            .On<clsMV>(ReadingOfMixtureSet)
            .On<clsQ>([](const clsQ& one) { return ReadingOf(one); })
            .On<clsC>([](const clsC& one) { return ReadingOf(one); })
            .On<clsE>(ReadingOfEquilibrium)
            .On<clsBR>(ReadingOfBioReaction)
            .On<clsBP>(ReadingOfBioProperty)
            .On<clsComplex>(ReadingOfComplex)
            .On<clsComplexSample>([](const clsComplexSample& one) { return ReadingOf(one); })
            .On<clsCrS>(ReadingOfStructure);
    return readings;
}

} // namespace

std::string ReadingHtml(const ui::TreeTag* record) {
    const auto* const selected = dynamic_cast<const Record*>(record);
    if (selected && Readings().Knows(*selected)) return Readings()(*selected);
    ReadingPage page("No record is selected");
    if (Globals().recR.IsEmpty())
        page.Item("Press \"Start\" to describe a document, or open one from the File menu.");
    else
        page.Item("Click a record in the tree to read it here.");
    return page.Html();
}

} // namespace vexora
