#include "entry/StatementMemory.h"

#include "chem/clsMethod.h"
#include "globals/KVOGlobal.h"
#include "reference/Text.h"

namespace vexora {

namespace {

/// Property and method of the record, quantity and unit of the item.
std::string KeyOf(const clsX& property, const clsX& item) {
    std::string key = property.PRPCODE;
    if (const auto& method = Globals().CurrentMethod)
        key += '\t' + method->Method + '\t' + method->sMethod;
    return key + '\t' + item.PRPCODE + '\t' + item.Unit + (item.Constr ? "\tc" : "");
}

/// What can be repeated of a statement: its blocks with a figure that holds for the whole record.
clsX Repeatable(const clsX& item) {
    clsX kept;
    if (item.iDS && !item.DSValue.empty()) {
        kept.iDS = true;
        kept.DSEvaluator = item.DSEvaluator;
        kept.DSLevel = item.DSLevel;
        kept.DSValue = item.DSValue;
    }
    if (item.iRep && !item.RValue.empty()) {
        kept.iRep = true;
        kept.RType = item.RType;
        kept.Repetitions = item.Repetitions;
        kept.RValue = item.RValue;
    }
    if (item.iUnc && !item.UValue.empty()) {
        kept.iUnc = true;
        kept.ULevel = item.ULevel;
        kept.UValue = item.UValue;
    }
    if (item.iCU && !item.CValue.empty()) {
        kept.iCU = true;
        kept.CLevel = item.CLevel;
        kept.CValue = item.CValue;
        kept.CType = item.CType;
    }
    if (item.iCD && !item.CDRms.empty()) {
        kept.iCD = true;
        kept.CDSpec = item.CDSpec;
        kept.CDRms = item.CDRms;
    }
    kept.N = 0; // as one that states something
    return kept;
}

bool SaysNothing(const clsX& item) {
    return !item.IsKept() && item.RValue.empty() && item.Repetitions.empty();
}

/// The statement about the quantity of `item`, which stays what it is.
clsX About(const clsX& item, clsX statement) {
    statement.N = item.N;
    statement.PRPCODE = item.PRPCODE;
    statement.PHASE = item.PHASE;
    statement.Name = item.Name;
    statement.Unit = item.Unit;
    statement.Constr = item.Constr;
    return statement;
}

std::string Figure(const std::string& text, const std::string& unit) {
    if (text.empty()) return "in each row";
    const bool perCent = text.ends_with('%');
    std::string shown = "\u00b1" + (perCent ? text.substr(0, text.size() - 1) + " %" : text);
    if (!perCent && !unit.empty() && unit != "1") shown += " " + unit;
    return shown;
}

std::string WithLevel(const std::string& figure, const std::string& level) {
    return level.empty() ? figure + " (standard)" : figure + " (" + level + " %)";
}

std::string WordsOf(const clsX& item) {
    std::string words;
    const auto say = [&words](const std::string& text) {
        words += (words.empty() ? "" : ", ") + text;
    };
    const auto figure = [&item](const std::string& text) { return Figure(text, item.Unit); };
    if (item.iCU && !item.CValue.empty())
        say("combined " + WithLevel(figure(item.CValue), item.CLevel));
    if (item.iUnc) say(WithLevel(figure(item.UValue), item.ULevel));
    if (item.iDS) say("device " + WithLevel(figure(item.DSValue), item.DSLevel));
    if (item.iRep) {
        const bool several = !item.Repetitions.empty() && item.Repetitions != "1";
        say("repeatability " + figure(item.RValue) +
            (several ? ", " + item.Repetitions + " times" : ""));
    }
    if (item.iCD) say("curve " + figure(item.CDRms));
    return words;
}

/// What a line of a form has room for; a tip has it all.
std::string Shortened(const std::string& words) {
    constexpr std::size_t most = 70; // characters
    return CodePointCount(words) <= most ? words : Substring(words, 1, most) + "...";
}

} // namespace

void StatementMemory::Keep(std::span<const clsX> items) {
    for (const clsX& item : items) {
        const clsX kept = Repeatable(item);
        if (item.Name.empty() || item.inSystemUnits || !kept.IsStated()) continue;
        last_[KeyOf(items.front(), item)] = kept;
    }
}

std::optional<std::vector<clsX>> StatementMemory::Offer(std::span<const clsX> items) const {
    std::vector<clsX> offered(items.begin(), items.end());
    bool any = false;
    for (clsX& item : offered) {
        if (item.Name.empty() || !SaysNothing(item)) continue;
        const auto last = last_.find(KeyOf(items.front(), item));
        if (last == last_.end()) continue;
        item = About(item, last->second);
        any = true;
    }
    if (!any) return std::nullopt;
    return offered;
}

StatementMemory& RememberedStatements() {
    auto& memory = Globals().Statements;
    if (!memory) memory = std::make_shared<StatementMemory>();
    return *memory;
}

std::string StatementWords(std::span<const clsX> items) {
    std::string words;
    for (const clsX& item : items) {
        const std::string own = item.Name.empty() ? std::string() : WordsOf(item);
        if (own.empty()) continue;
        const bool isProperty = &item == &items.front();
        words += (words.empty() ? "" : "; ") + (isProperty ? own : item.Name + ": " + own);
    }
    return words;
}

StatementOffer::StatementOffer(ui::Label& stated, ui::CommandButton& last,
                               std::function<Items()> read, std::function<void(const Items&)> take)
    : stated_(stated), last_(last), read_(std::move(read)), take_(std::move(take)) {
    last_.Visible(false);
    last_.OnClick = [this] { Take(); };
}

void StatementOffer::Show() {
    const Items items = read_();
    const std::string words = StatementWords(items);
    stated_.Caption(words.empty() ? "none stated" : Shortened(words));
    stated_.ToolTip(words);
    const auto offer = RememberedStatements().Offer(items);
    last_.Visible(offer.has_value());
    if (!offer) return;
    // Of what is stated already the button says nothing: it stays.
    Items taken = *offer;
    for (std::size_t i = 0; i < taken.size(); ++i)
        if (taken[i] == items[i]) taken[i] = About(taken[i], {});
    const std::string last = StatementWords(taken);
    last_.Caption("Use &last: " + Shortened(last));
    last_.ToolTip("Takes what was last stated for this property and method: " + last);
}

void StatementOffer::Keep(const Items& items) {
    RememberedStatements().Keep(items);
}

void StatementOffer::Take() {
    const auto offer = RememberedStatements().Offer(read_());
    if (!offer) return;
    take_(*offer);
    Show();
}

} // namespace vexora
