#include "shell/ReadingPane.h"

#include <vector>

#include "globals/KVOGlobal.h"
#include "plot/frmBox.h"
#include "records/clsAuthor.h"
#include "records/clsL.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "records/clsZ.h"
#include "reference/Conversions.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "reference/Vocabulary.h"

namespace vexora {

namespace {

/// Collects a page: a heading, lines of "what: value", and what is missing.
class Page {
public:
    explicit Page(std::string_view heading) : html_("<h3>" + HtmlOfText(heading) + "</h3>\n") {}

    void Line(std::string_view what, std::string_view value) {
        if (IsBlankField(value)) return;
        html_ += "<p><b>" + HtmlOfText(what) + "</b> " + HtmlOfText(value) + "</p>\n";
    }
    void Item(std::string_view text) { html_ += "<p>" + HtmlOfText(text) + "</p>\n"; }
    void Need(bool missing, std::string text) {
        if (missing) missing_.push_back(std::move(text));
    }

    std::string Html() const {
        if (missing_.empty()) return html_;
        std::string html = html_ + "<h4>Still missing</h4>\n";
        for (const std::string& text : missing_)
            html += "<p>" + HtmlOfText(text) + "</p>\n";
        return html;
    }

private:
    std::string html_;
    std::vector<std::string> missing_;
};

std::string Counted(std::size_t count, const std::string& one, const std::string& many) {
    return std::to_string(count) + " " + (count == 1 ? one : many);
}

std::string AuthorsOf(const clsR& source) {
    std::string text;
    for (const auto& author : source.recAuthor) {
        if (!text.empty()) text += "; ";
        text += std::string(TrimBlanks(author->LASTNM)) + ", " +
                std::string(TrimBlanks(author->INITNM));
    }
    return text;
}

/// The unit in which the record keeps its values.
std::string UnitOf(const clsZ& value) {
    const std::string unit = DefaultUnit(PropertyName(value.PRPCODE, "Pure"));
    std::string code = value.PROPERTY_UNIT;
    if (!value.isOriginalUnit || IsSystemUnit(code)) return unit == "1" ? std::string() : unit;
    const std::string text = ConversionText(code, unit);
    return text.empty() ? unit : text;
}

/// What is stated about the uncertainty of a value, the most telling statement first.
std::string UncertaintyText(const clsZ& value) {
    const clsX& stated = value.UX[0];
    const auto with = [](const std::string& text, const std::string& level) {
        return IsBlankField(level) ? text : text + " (" + level + " % confidence)";
    };
    if (stated.iCU && !IsBlankField(stated.CValue)) return with(stated.CValue, stated.CLevel);
    if (stated.iUnc && !IsBlankField(stated.UValue)) return with(stated.UValue, stated.ULevel);
    if (!IsBlankField(value.PRPUNCERTY)) return value.PRPUNCERTY;
    if (stated.iRep && !IsBlankField(stated.RValue)) return stated.RValue;
    return IsBlankField(value.PRECIS) ? std::string() : value.PRECIS;
}

/// Value and uncertainty, with the unit only where there is one.
std::string ValueText(const clsZ& value) {
    std::string text = value.PRPVALUE;
    const std::string unit = UnitOf(value);
    if (!unit.empty()) text += " " + unit;
    const std::string uncertainty = UncertaintyText(value);
    return uncertainty.empty() ? text : text + " \xC2\xB1 " + uncertainty;
}

std::string VariableText(const clsZ& value) {
    const std::string unit = DefaultUnit(VariableName(value.Variable(), "Pure"));
    std::string code = value.VARIABLE_UNIT;
    const std::string text = IsSystemUnit(code) ? unit : ConversionText(code, unit);
    return value.INDVARIABLE + " " + (text.empty() ? unit : text);
}

std::string PhaseText(std::string_view code) {
    return IsBlankField(code) ? std::string() : PhaseName(code);
}

std::string ReadingOf(const clsR& source) {
    Page page("Source " + source.Source());
    page.Line("Title:", source.TTITLE);
    page.Line("Published in:", source.SSOURCE);
    page.Line("Authors:", AuthorsOf(source));
    page.Line("Compounds:", std::to_string(source.recL.Count()));
    if (!source.isNew) page.Item("This source stands in the reference database; it is not edited.");
    page.Need(source.recL.IsEmpty(), "A compound");
    page.Need(source.isNew && source.TTITLE.empty(), "The title");
    page.Need(source.isNew && source.recAuthor.IsEmpty(), "The authors");
    return page.Html();
}

std::string ReadingOf(const clsL& compound) {
    Page page(compound.ShowKey());
    page.Line("Formula:", compound.Formula);
    if (compound.MMass > 0) page.Line("Molar mass:", NumberText(compound.MMass) + " g/mol");
    page.Line("Registry number:", compound.RN);
    if (compound.isNew) page.Item("New to the reference database.");
    page.Line("Samples:", std::to_string(compound.recS.Count()));
    page.Need(compound.Formula.empty(), "The formula");
    page.Need(compound.recS.IsEmpty(), "A sample: without one the compound is not saved");
    return page.Html();
}

std::string ReadingOf(const clsS& sample) {
    Page page("Sample " + sample.SMPNM);
    if (sample.Parent != nullptr) page.Line("Compound:", sample.Parent->ShowKey());
    page.Line("Description:", sample.SMPDESC);
    if (sample.Purity > 0) page.Line("Purity:", NumberText(sample.Purity) + " %");
    page.Line("Holds:", Counted(sample.recZ.Count(), "single value", "single values") + ", " +
                            Counted(sample.recTwo.Count(), "data set", "data sets"));
    for (const auto& value : sample.recZ)
        page.Line(PropertyName(value->PRPCODE, "Pure") + ":", ValueText(*value));
    page.Need(sample.Purity <= 0, "A statement of purity");
    page.Need(sample.recZ.IsEmpty() && sample.recTwo.IsEmpty(), "Data");
    return page.Html();
}

std::string ReadingOf(const clsZ& value) {
    const std::string name = PropertyName(value.PRPCODE, "Pure");
    Page page(name.empty() ? value.PRPCODE : name);
    page.Line("Value:", ValueText(value));
    if (value.nVar == 1)
        page.Line("At " + VariableName(value.Variable(), "Pure") + ":", VariableText(value));
    page.Line("Phase:", PhaseText(value.PHASE1));
    page.Line("In equilibrium with:", PhaseText(value.PHASE2));
    page.Line("Set:", value.PRPSETNO);
    page.Need(UncertaintyText(value).empty(), "A statement of uncertainty");
    return page.Html();
}

} // namespace

std::string ReadingHtml(const ui::TreeTag* record) {
    if (const auto* source = dynamic_cast<const clsR*>(record)) return ReadingOf(*source);
    if (const auto* compound = dynamic_cast<const clsL*>(record)) return ReadingOf(*compound);
    if (const auto* sample = dynamic_cast<const clsS*>(record)) return ReadingOf(*sample);
    if (const auto* value = dynamic_cast<const clsZ*>(record)) return ReadingOf(*value);
    Page page("No record is selected");
    if (Globals().recR.IsEmpty())
        page.Item("Press \"Start\" to describe a document, or open one from the File menu.");
    else
        page.Item("Click a record in the tree to read it here.");
    return page.Html();
}

} // namespace vexora
