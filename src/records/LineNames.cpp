#include "records/LineNames.h"

#include "reference/Text.h"

#include <algorithm>
#include <iterator>

namespace vexora {

namespace {

/// Field names of a line in their order, parted by commas; the last one takes the rest of the line
/// and "-" leaves a field out.
struct LineGrammar {
    std::string_view kind;
    char separator; // of the fields
    std::string_view names;
};

constexpr LineGrammar Grammars[] = {
    {"^R", ' ', "year,first author,second author,number"},
    {"^J", '#',
     "type of document,taken from,publication,title,key words,abstract,note,-,-,CAS citation,CODEN,"
     "ISSN,bulletin"},
    {"^I", '#', "-,surname code,initials,full name"},
    {"^L", ' ', "registry number,-,-"},
    {"^N", ' ', "registry number,formula,name"},
    {"BL", ' ', "registry number,EC number,PDB number,formula,charge,name"},
    {"^S", ' ', "sample number,description"},
    {"^A", ' ', "note,taken from,purpose,flags,compiler,contributor,date added,comment"},
    {"^M", ' ', "factor"},
    {"^Z", ' ',
     "sample,property,unit,set number,phase 1,phase 2,phase 3,value,evaluated uncertainty,"
     "repeatability,repetitions"},
    {"^F", ' ',
     "sample,property,unit,set number,phase,fixed value,unit of the fixed value,value,"
     "evaluated uncertainty,repeatability,repetitions"},
    {"^1", ' ',
     "sample,property,unit,relation,set number,presentation,phase 1,phase 2,constraint,"
     "unit of the variable,reference temperature,reference pressure,reference phase"},
    {"^2", ' ',
     "sample,property,unit,relation,set number,presentation,phase 1,phase 2,constraint,"
     "first variable,unit of the first variable,second variable,unit of the second variable,"
     "reference temperature,reference pressure,reference phase"},
    {"^B", ' ', "first component,second component,-"},
    {"^T", ' ', "first component,second component,third component,-"},
    {"^X", ' ',
     "-,quantity,phase,device specification,judge of the device,confidence of the device,"
     "specified by the device,repeatability,kind of repeatability,repeatability value,repetitions,"
     "uncertainty,confidence,uncertainty value,combined uncertainty,kind of combined uncertainty,"
     "confidence of the combined one,curve deviation,deviation value,curve,"
     "combined uncertainty value"},
};

/// The fields of a value or set of a mixture; a binary has no third sample and a phase less.
std::string MixtureNames(std::string_view kind, int components) {
    const std::string samples =
        components == 2 ? "sample 1,sample 2" : "sample 1,sample 2,sample 3";
    if (kind == "^Z") {
        const std::string last = components == 2 ? "" : "phase 5,";
        return samples + ",property,unit,set number,phase 1,phase 2,phase 3,phase 4," + last +
               "value,evaluated uncertainty,repeatability,repetitions";
    }
    const int variables = kind[1] - '0';
    std::string names = samples + ",property,unit,relation,set number,presentation,phase 1";
    for (int n = 1; n <= components + 1 - variables; ++n) {
        const std::string constraint = "constraint " + std::to_string(n);
        names += "," + constraint + ",value of " + constraint;
    }
    for (int n = 1; n <= variables; ++n) {
        const std::string variable = "variable " + std::to_string(n);
        names += "," + variable + ",unit of " + variable;
    }
    return names + ",solvent,standard state,composition,reference temperature,reference pressure,"
                   "reference phase";
}

bool IsOfMixture(std::string_view kind, int components) {
    return components > 1 && IsOneOf(kind, {"^Z", "^1", "^2", "^3"});
}

const LineGrammar* GrammarOf(std::string_view kind) {
    const auto* found = std::find_if(std::begin(Grammars), std::end(Grammars),
                                     [kind](const auto& g) { return g.kind == kind; });
    return found == std::end(Grammars) ? nullptr : found;
}

/// Takes the next part off a text; blanks and tabs count as one separator however many there are.
std::string_view TakePart(std::string_view& text, char separator) {
    const bool byWords = separator == ' ';
    const std::string_view ends = byWords ? " \t" : std::string_view(&separator, 1);
    const std::size_t end = std::min(text.find_first_of(ends), text.size());
    const std::string_view part = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    while (byWords && !text.empty() && ends.find(text.front()) != ends.npos)
        text.remove_prefix(1);
    return part;
}

} // namespace

std::string LineKind(std::string_view line) {
    constexpr std::size_t tagLength = 2;
    return UpperAscii(line.substr(0, tagLength));
}

std::vector<std::pair<std::string, std::string>> NamedFields(std::string_view line,
                                                             int components) {
    const std::string kind = LineKind(line);
    const std::string ofMixture =
        IsOfMixture(kind, components) ? MixtureNames(kind, components) : std::string();
    const LineGrammar* grammar = GrammarOf(kind);
    const char separator = grammar ? grammar->separator : ' ';
    std::string_view names = grammar ? grammar->names : std::string_view();
    if (!ofMixture.empty()) names = ofMixture;
    std::vector<std::pair<std::string, std::string>> fields;
    // The tag says whether figures stand in the units of the paper.
    fields.emplace_back("tag", TakePart(line, separator));
    for (int n = 1; !line.empty(); ++n) {
        std::string name(TakePart(names, ','));
        const bool isLast = (grammar || !ofMixture.empty()) && names.empty();
        const std::string_view part =
            isLast ? std::exchange(line, std::string_view()) : TakePart(line, separator);
        if (name.empty()) name = "field " + std::to_string(n);
        if (name != "-") fields.emplace_back(std::move(name), Trim(part));
    }
    return fields;
}

} // namespace vexora
