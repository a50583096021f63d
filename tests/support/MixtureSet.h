// A set of a mixture with any codes, units and phases, for what works on all kinds of sets.
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "records/DataSet.h"
#include "reference/Numbers.h"

namespace vexora::test {

/// One quantity: its code, its unit, the phase in which it is meant.
struct SetQuantity {
    std::string code, unit, phase;
};

class MixtureSet : public DataSet {
public:
    std::vector<SetQuantity> quantities; // 0 the property
    std::vector<std::string> phases;
    std::vector<SetConstant> constants;
    std::string context = "Bin";
    SetSurroundings around;
    bool areTied = true;

    /// Rows are written as behind the tag of a row in the units of the paper: the variables, the
    /// property, its uncertainty, and the tie number of tied ones.
    MixtureSet(std::vector<SetQuantity> all, std::vector<std::string> phasesThere,
               std::vector<SetConstant> same, const std::vector<std::string>& rows)
        : quantities(std::move(all)), phases(std::move(phasesThere)), constants(std::move(same)) {
        nVar = static_cast<int>(quantities.size()) - 1;
        PRPCODE = quantities[0].code;
        PROPERTY_UNIT = quantities[0].unit;
        for (const std::string& row : rows)
            LoadRow("^d " + row);
    }
    std::string_view DataContext() const override { return context; }
    std::string SystemName() const override { return "a mixture"; }
    const std::string& VARIABLE(int n) const override { return At(n).code; }
    const std::string& VAR_UNIT(int n) const override { return At(n).unit; }
    const std::string& PhaseFor(int n) const override { return At(n).phase; }
    std::vector<std::string> Phases() const override { return phases; }
    bool HasTies() const override { return areTied; }
    std::vector<HeldConstant> Constants() const override {
        std::vector<HeldConstant> held;
        for (const SetConstant& same : constants)
            held.push_back({nVar + static_cast<int>(held.size()) + 1, same.code,
                            NumberText(same.value), "S", same.phase});
        return held;
    }
    SetSurroundings Surroundings() const override { return around; }
    double MolarMass(const clsData&) const override { return 0; }
    const Record* Owner() const override { return nullptr; }
    std::shared_ptr<DataSet> Copy() const override { return std::make_shared<MixtureSet>(*this); }
    void ExportAll(XmlWriter&) const override {}
    std::string Key() const override { return PRPCODE; }
    std::string ShowKey() const override { return Key(); }
    void SetMe() override {}

protected:
    std::string DefinitionLine() const override { return "^3 " + PRPCODE; }

private:
    const SetQuantity& At(int n) const {
        static const SetQuantity none;
        return n >= 0 && n <= nVar ? quantities[static_cast<std::size_t>(n)] : none;
    }
};

} // namespace vexora::test
