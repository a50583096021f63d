#include "records/Outline.h"

#include "globals/KVOGlobal.h"
#include "records/DataSet.h"
#include "records/LineNames.h"
#include "records/LineWriter.h"
#include "records/PropertyChain.h"
#include "records/RegistryNumbers.h"
#include "records/Walk.h"
#include "records/clsBR.h"
#include "records/clsL.h"
#include "records/clsMV.h"
#include "records/clsMZ.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "reference/Text.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <string_view>
#include <typeinfo>
#include <utility>

namespace vexora {

namespace {

/// A key may hold what the user can change; the number stays.
std::string IdentityOf(const Record& record) {
    static const auto number =
        ByClass<std::string>()
            .On<clsR>([](const clsR&) { return std::string("source"); })
            .On<clsS>([](const clsS& sample) { return sample.SMPNM; })
            .On<clsBR>([](const clsBR& set) { return std::to_string(set.SetNo); });
    return std::string(typeid(record).name()) + " " +
           (number.Knows(record) ? number(record) : record.Key());
}

/// Lines of data have other fields in a mixture.
int ComponentsOf(const Record& record) {
    static const auto components = ByClass<int>()
                                       .On<clsMZ>([](const clsMZ& value) { return value.MixType; })
                                       .On<clsMV>([](const clsMV& set) { return set.MixType; });
    return components.Knows(record) ? components(record) : 1;
}

constexpr std::string_view RowKinds[] = {"^D", "^G", "^Y", "BD"};

bool IsRow(std::string_view kind) {
    return std::find(std::begin(RowKinds), std::end(RowKinds), kind) != std::end(RowKinds);
}

/// Lines of one kind after the first get a number; those of a statement bear its quantity, those of
/// a bio set the quantity or the compound that they are about.
class FieldCollector {
public:
    FieldCollector(Outline& outline, const Record& record)
        : outline_(outline), components_(ComponentsOf(record)),
          bioSet_(dynamic_cast<const BioSet*>(&record)) {}

    void Add(std::string_view line) {
        const std::string kind = LineKind(line);
        auto fields = NamedFields(line, components_);
        std::string prefix = SubjectOf(kind, fields);
        if (kind == "^X" && fields.size() > 1)
            prefix = fields[1].second + ", ";
        else if (kind == "^I")
            prefix = "author ";
        const int n = ++count_[kind + prefix];
        if (n > 1 || kind == "^I") prefix += std::to_string(n) + ", ";
        fields.front().first += " of the " + kind + " line";
        for (auto& [name, text] : fields)
            outline_.fields.emplace_back(prefix + name, std::move(text));
    }

private:
    /// The name of a complex follows from what may have been changed; its number stays.
    static std::string NameOfKey(const std::string& key) {
        const std::string rn = BioSet::RNOfKey(key);
        return NamesComplex(rn) ? "complex " + rn.substr(1) : NameOfRN(rn);
    }
    using Fields = std::vector<std::pair<std::string, std::string>>;
    std::string SubjectOf(std::string_view kind, const Fields& fields) {
        if (kind == "BV" && bioSet_ && quantity_ < bioSet_->Quantities().size())
            return bioSet_->NameOf(bioSet_->Quantities()[quantity_++]) + ", ";
        if (!IsOneOf(kind, {"BP", "BC", "CC", "SS"})) return {};
        for (const auto& [name, text] : fields)
            if (name == (kind == "BP" ? "registry number" : "component"))
                return (kind == "BP" ? "" : "component ") +
                       (NameOfKey(text).empty() ? text : NameOfKey(text)) + ", ";
        return {};
    }

    Outline& outline_;
    int components_; // of the system that the lines are about
    const BioSet* bioSet_;
    std::size_t quantity_ = 0; // of the next line about one
    std::map<std::string, int> count_;
};

void AddColumns(Outline& outline, const std::vector<Quantity>& quantities) {
    std::vector<std::string> names;
    names.reserve(quantities.size());
    for (const Quantity& quantity : quantities)
        names.push_back(quantity.name);
    outline.columns = {"units"};
    for (const std::string& name : names)
        outline.columns.push_back(name);
    for (const std::string& name : names)
        outline.columns.push_back("digits of " + name);
    outline.columns.insert(outline.columns.end(), {"evaluated uncertainty", "tie"});
    for (const std::string& name : names) {
        for (const char* what :
             {"device specification", "repeatability", "repetitions", "uncertainty"})
            outline.columns.push_back(std::string(what) + " of " + name);
    }
    outline.columns.insert(outline.columns.end(), {"combined uncertainty", "curve deviation"});
}

std::string RowText(const clsData& row, const std::vector<int>& items, bool hasTies) {
    std::string text = row.inOriginalUnits ? "of the paper" : "system";
    const auto add = [&text](std::string_view part) { text.append("\t").append(part); };
    for (const int item : items)
        add(row.Values[static_cast<std::size_t>(item)]);
    for (const int item : items)
        add(row.isDigit ? std::to_string(row.DigitCount(item)) : "");
    add(row.PRPUNCERTY);
    add(hasTies ? std::string_view(row.TIELINE) : std::string_view());
    for (const int item : items) {
        const RowStatements& stated = row.StatementsOf(item);
        for (const std::string* part : {&stated.DS, &stated.Rep, &stated.Repetitions, &stated.Unc})
            add(*part);
    }
    add(row.Extras ? std::string_view(row.Extras->userCU) : std::string_view());
    add(row.Extras ? std::string_view(row.Extras->CD) : std::string_view());
    return text;
}

/// Rows as the record bears them, or as they stand in a set that cannot be written.
void AddRows(Outline& outline, const DataSet& set, bool isWritten) {
    const std::vector<Quantity> quantities = NamedQuantities(set);
    outline.variables = static_cast<std::size_t>(set.nVar);
    AddColumns(outline, quantities);
    std::vector<int> items;
    items.reserve(quantities.size());
    for (const Quantity& quantity : quantities)
        items.push_back(quantity.item);
    outline.rows.reserve(set.recData.Count());
    const bool hasTies = set.HasTies();
    const auto add = [&](const clsData& row) {
        outline.rows.push_back(RowText(row, items, hasTies));
    };
    if (isWritten)
        set.ForEachWrittenRow(add);
    else
        std::ranges::for_each(set.recData, add);
}

void AddRows(Outline& outline, const BioSet& set) {
    const std::size_t properties = set.CountOf(BioRole::Property);
    std::vector<std::size_t> places; // the variables first
    for (std::size_t n = 0; n < set.Columns(); ++n)
        places.push_back((n + properties) % set.Columns());
    outline.variables = set.Columns() - properties;
    outline.columns = {"units"};
    for (const std::size_t place : places)
        outline.columns.push_back(set.NameOf(set.Quantities()[place]));
    for (const std::size_t place : places)
        outline.columns.push_back("uncertainty of " + set.NameOf(set.Quantities()[place]));
    for (const clsBD& row : set.recD) {
        std::string text;
        const auto add = [&text](std::string_view part) { text.append("\t").append(part); };
        for (const auto part : {&BioCell::value, &BioCell::uncertainty})
            for (const std::size_t place : places)
                add(place < row.Cells.size() ? std::string_view(row.Cells[place].*part)
                                             : std::string_view());
        outline.rows.push_back(std::move(text));
    }
}

std::string IdentityOfSource(std::size_t place) {
    return "source " + std::to_string(place);
}

Record* Below(Record& record, const std::string& identity) {
    Record* below = nullptr;
    record.EachChild([&](Record& child) {
        if (below == nullptr && IdentityOf(child) == identity) below = &child;
    });
    return below;
}

Record* FurtherSource(const std::string& identity) {
    const auto& sources = Globals().recR;
    for (std::size_t place = 2; place <= sources.Count(); ++place)
        if (identity == IdentityOfSource(place)) return sources.Item(place).get();
    return nullptr;
}

Outline OutlineOf(Record& record) {
    Outline outline;
    outline.identity = IdentityOf(record);
    outline.label = record.ShowKey();
    LineWriter lines;
    bool isWritten = true;
    try {
        record.Print(lines);
    } catch (const SaveRefused& refused) {
        outline.fields.emplace_back("cannot be written", refused.what());
        isWritten = false;
    }
    FieldCollector fields(outline, record);
    for (const std::string& line : Split(lines.Text(), '\n'))
        if (!Trim(line).empty() && !IsRow(LineKind(line))) fields.Add(line);
    if (const auto* set = dynamic_cast<const DataSet*>(&record)) AddRows(outline, *set, isWritten);
    if (const auto* set = dynamic_cast<const BioSet*>(&record)) AddRows(outline, *set);
    record.EachChild([&outline](Record& child) { outline.children.push_back(OutlineOf(child)); });
    return outline;
}

/// Names are those of the source itself, whatever is in hand.
Outline OutlineOfSource(const std::shared_ptr<clsR>& source) {
    const auto inHand = std::exchange(Globals().CurrentR, source);
    Outline outline = OutlineOf(*source);
    Globals().CurrentR = inHand;
    return outline;
}

} // namespace

Outline OutlineOfDocument() {
    const auto& sources = Globals().recR;
    for (const auto& source : sources)
        source->MarkCompounds(); // those that are named have lines
    Outline document = OutlineOfSource(sources.Item(std::size_t{1}));
    for (std::size_t place = 2; place <= sources.Count(); ++place) {
        document.children.push_back(OutlineOfSource(sources.Item(place)));
        document.children.back().identity = IdentityOfSource(place);
    }
    return document;
}

Record* RecordAt(const std::vector<std::string>& identities) {
    Record* at = Globals().recR.Item(std::size_t{1}).get();
    for (const std::string& identity : identities) {
        Record* further = &identity == &identities.front() ? FurtherSource(identity) : nullptr;
        at = further != nullptr ? further : Below(*at, identity);
        if (at == nullptr) return nullptr;
    }
    return at;
}

} // namespace vexora
