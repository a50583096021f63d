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
    {"^N", ' ', "-,formula,name"},
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
    {"^Q", ' ',
     "reaction class,participant 1,participant 2,participant 3,participant 4,-,-,participant 5,"
     "participant 6,participant 7,participant 8,solvent,inert compound"},
    {"CS", ' ', "number,type"},
    {"CC", ' ', "component,sample,function,content"},
    {"CE", ' ', "-"},
    {"SB", ' ', "number"},
    {"SS", ' ', "component,content,kind of content,sample"},
    {"GH", ' ',
     "preparation temperature,preparation pressure,composition of the preparation,method"},
    {"SE", ' ', "-"},
    {"BR", ' ', "set number,notation"},
    {"BN", ' ', "set number"},
    {"BH", ' ', "kind,sample,initial state,final state,phase 1,phase 2,phase 3,phase 4"},
    {"BC", ' ', "component,function,phase,sample,content"},
    {"BV", ' ', "quantity,unit,phase,component,uncertainty,role,value"},
    {"BM", ' ', "method"},
    {"B0", ' ', "first mark,second mark"},
    {"XB", ' ',
     "space group,a,b,c,alpha,beta,gamma,uncertainty of a,uncertainty of b,uncertainty of c,"
     "uncertainty of alpha,uncertainty of beta,uncertainty of gamma,method"},
    {"XD", ' ', "first atom,second atom,distance,uncertainty"},
    {"XC", ' ', "atom,x,uncertainty of x,y,uncertainty of y,z,uncertainty of z,occupancy"},
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

/// "coefficient 1,coefficient 2,..."
std::string Numbered(std::string_view what, int count) {
    std::string names;
    for (int n = 1; n <= count; ++n)
        names.append(n == 1 ? "" : ",").append(what).append(" ").append(std::to_string(n));
    return names;
}

/// The same of two fields that take turns.
std::string NumberedPairs(std::string_view first, std::string_view second, int count) {
    std::string names;
    for (int n = 1; n <= count; ++n)
        for (const std::string_view what : {first, second})
            names.append(names.empty() ? "" : ",")
                .append(what)
                .append(" ")
                .append(std::to_string(n));
    return names;
}

/// The fields of the lines of a reaction, which go by its participants; empty for other lines.
std::string ReactionNames(std::string_view kind) {
    constexpr int most = 8, ofEquilibrium = 6, places = 4;
    if (kind == "^q") return Numbered("coefficient", most) + "," + Numbered("sample", most);
    if (kind == "^C")
        return Numbered("coefficient", most) +
               ",property,unit,participant of the mass,set number," + Numbered("phase", most) +
               "," + Numbered("sample", most) + "," + Numbered("composition", most) + "," +
               Numbered("value of composition", most) +
               ",solvent phase,standard state,initial temperature,initial pressure,"
               "final temperature,final pressure,value,evaluated uncertainty,repeatability,"
               "repetitions";
    if (kind != "^E" && kind != "^H") return {};
    return Numbered("coefficient", ofEquilibrium) + "," + Numbered("sample", ofEquilibrium) +
           ",property,unit,set number,presentation,experimental design,solvent phase,"
           "standard state," +
           NumberedPairs("variable", "unit of variable", places) + "," +
           NumberedPairs("phase", "participants in phase", places) + "," +
           NumberedPairs("constant", "value of constant", places);
}

/// The fields of the lines of a bio set that have two forms, or a number of fields that the set
/// knows; empty for other lines. Keys and molar masses follow from the rest.
std::string BioNames(std::string_view kind, std::string_view line) {
    constexpr int mostColumns = 24;
    if (kind == "BD") return Numbered("value", mostColumns);
    if (kind != "BP") return {};
    WordReader words(line);
    for (int n = 0; n < 2; ++n)
        words.NextWord();
    // In the place of the key of a participant a property has a 0.
    return words.NextWord() == "0"
               ? "-,-,sample,-,name,registry number,formula,-,charge,EC number,PDB number"
               : "-,-,-,sample,registry number,name,formula,-,-,coefficient,phase,charge,"
                 "EC number,PDB number";
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
    // The coefficients of a reaction are no other form of its own line.
    return line.starts_with("^q") ? "^q" : UpperAscii(line.substr(0, tagLength));
}

std::vector<std::pair<std::string, std::string>> NamedFields(std::string_view line,
                                                             int components) {
    const std::string kind = LineKind(line);
    const std::string composed = IsOfMixture(kind, components)
                                     ? MixtureNames(kind, components)
                                     : ReactionNames(kind) + BioNames(kind, line);
    const LineGrammar* grammar = GrammarOf(kind);
    const char separator = grammar ? grammar->separator : ' ';
    std::string_view names = grammar ? grammar->names : std::string_view();
    if (!composed.empty()) names = composed;
    std::vector<std::pair<std::string, std::string>> fields;
    // The tag says whether figures stand in the units of the paper.
    fields.emplace_back("tag", TakePart(line, separator));
    for (int n = 1; !line.empty(); ++n) {
        std::string name(TakePart(names, ','));
        const bool isLast = (grammar || !composed.empty()) && names.empty();
        const std::string_view part =
            isLast ? std::exchange(line, std::string_view()) : TakePart(line, separator);
        if (name.empty()) name = "field " + std::to_string(n);
        if (name != "-") fields.emplace_back(std::move(name), Trim(part));
    }
    return fields;
}

} // namespace vexora
