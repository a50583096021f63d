#include "shell/NodeWords.h"

#include "compounds/RegistryNumber.h"
#include "records/MixtureWords.h"
#include "records/PropertyLabels.h"
#include "records/Walk.h"
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
#include "reference/Vocabulary.h"
#include "shell/ReadingPage.h"

namespace vexora {

namespace {

std::string NumberOfSet(std::string_view number) {
    return number.empty() ? std::string() : "set " + std::string(number);
}

std::string NumberOfRows(std::size_t count) {
    return std::to_string(count) + (count == 1 ? " row" : " rows");
}

std::string PhasesText(const std::vector<std::string>& phases) {
    std::string text;
    for (const std::string& phase : phases) {
        const std::string name = PhaseText(phase);
        if (!name.empty()) text += (text.empty() ? "" : " + ") + name;
    }
    return text;
}

/// The unit of a ratio is no news.
std::string UnitInTip(const std::string& unit) {
    return unit == "1" ? std::string() : unit;
}

template <class Set>
std::string NameOfProperty(const Set& set) {
    const std::string name = PropertyName(set.PRPCODE, set.DataContext());
    return name.empty() ? std::string(set.PRPCODE) : name;
}

std::string TipOfSet(const DataSet& set) {
    const auto* const mixtureSet = dynamic_cast<const clsMV*>(&set);
    const std::string name =
        mixtureSet ? FirstCapital(QuantityInWords(*mixtureSet, 0)) : NameOfProperty(set);
    return Listed({name, PhasesText(set.Phases()), UnitInTip(PropertyLabels::Of(set).unit),
                   NumberOfSet(set.PRPSETNO), MethodText(set.Header, set.PRPCODE),
                   NumberOfRows(set.recData.Count())});
}

std::string TipOfValue(const SingleValue& value, const std::vector<std::string>& phases) {
    return Listed({NameOfProperty(value), PhasesText(phases),
                   UnitInTip(PropertyLabels::Of(value).unit), NumberOfSet(value.PRPSETNO),
                   MethodText(value.Header, value.PRPCODE)});
}

std::string TipOfCompound(const clsL& one) {
    const std::string number = one.RN.size() < 4 ? one.RN : DashedRegistryNumber(one.RN);
    return Listed({"Compound " + one.ShowKey(), one.Formula, number});
}

std::string TipOfBioSet(const BioSet& set) {
    std::string names;
    for (const BioQuantity& quantity : set.Quantities())
        names += (names.empty() ? "" : ", ") + set.NameOf(quantity);
    return Listed({names, NumberOfSet(std::to_string(set.SetNo)), NumberOfRows(set.recD.size())});
}

std::string NoTip(const Record&) {
    return {};
}

struct Looks {
    const char* icon = "";
    std::string (*tip)(const Record&) = NoTip;
};

template <class T, std::string (*Tip)(const T&)>
std::string TipAs(const Record& record) {
    return Tip(static_cast<const T&>(record));
}

std::string TipOfZ(const clsZ& one) {
    return TipOfValue(one, {std::string(one.PHASE1), one.PhaseBeside(), std::string(one.PHASE3)});
}
std::string TipOfMZ(const clsMZ& one) {
    return TipOfValue(one, one.Phases());
}
std::string TipOfC(const clsC& one) {
    return TipOfValue(one, {});
}

const ByClass<Looks>& LooksOfKinds() {
    static const auto as = [](const Looks& looks) {
        return [looks](const Record&) { return looks; };
    };
    static const auto kinds =
        ByClass<Looks>()
            .On<clsR>(as({"source", NoTip}))
            .On<clsL>(as({"compound", TipAs<clsL, TipOfCompound>}))
            .On<clsS>(as({"sample", NoTip}))
            .On<clsZ>(as({"value", TipAs<clsZ, TipOfZ>}))
            .On<clsTwo>(as({"set", TipAs<DataSet, TipOfSet>}))
            .On<clsM>(as({"mixture", NoTip}))
            .On<clsMZ>(as({"value", TipAs<clsMZ, TipOfMZ>}))
            .On<clsMV>(as({"set", TipAs<DataSet, TipOfSet>}))
            .On<clsQ>(as({"reaction", NoTip}))
            .On<clsC>(as({"value", TipAs<clsC, TipOfC>}))
            .On<clsE>(as({"set", TipAs<DataSet, TipOfSet>}))
            .On<clsBR>(as({"bio", TipAs<BioSet, TipOfBioSet>}))
            .On<clsBP>([](const clsBP& one) {
                return Looks{one.PrpType == "G" ? "set" : "bio", TipAs<BioSet, TipOfBioSet>};
            })
            .On<clsComplex>(as({"complex", NoTip}))
            .On<clsComplexSample>(as({"sample", NoTip}))
            .On<clsCrS>(as({"structure", NoTip}));
    return kinds;
}

} // namespace

std::string IconOfRecord(const ui::TreeTag* record) {
    const auto* const known = dynamic_cast<const Record*>(record);
    return known && LooksOfKinds().Knows(*known) ? LooksOfKinds()(*known).icon : std::string();
}

std::string TipOfRecord(const ui::TreeTag* record) {
    const auto* const known = dynamic_cast<const Record*>(record);
    return known && LooksOfKinds().Knows(*known) ? LooksOfKinds()(*known).tip(*known)
                                                 : std::string();
}

} // namespace vexora
