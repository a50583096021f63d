// Hidden data of lower systems among the rows of a mixture set.
#include <algorithm>
#include <array>
#include <memory>

#include "records/BinaryOfTernary.h"
#include "records/HiddenRows.h"
#include "records/PureOfMixture.h"
#include "records/clsM.h"
#include "records/clsMV.h"

namespace vexora {

namespace {

/// The rows of one set on their way to the compounds and binaries that they are of.
class Detection {
public:
    Detection(clsMV& set, std::vector<std::string>& told) : set_(set), hidden_(set), told_(told) {}

    bool Take(const clsData& row) {
        const Presence presence = hidden_.Of(row);
        const int absent = presence.AbsentCount();
        if (absent == 0) return false;
        std::string fault;
        bool isNew = false;
        if (presence.Contradicts() || absent == set_.MixType)
            fault = "Incorrect data combination: ";
        else if (absent == set_.MixType - 1)
            isNew = TakePure(Lone(presence, false), row, fault);
        else
            isNew = TakeBinary(Lone(presence, true), row, fault);
        if (!fault.empty()) Tell(fault);
        return isNew;
    }

private:
    /// The component that alone is absent, or alone is not.
    int Lone(const Presence& presence, bool isAbsent) const {
        int n = 1;
        while (n < set_.MixType && presence.IsAbsent(n) != isAbsent)
            ++n;
        return n;
    }

    bool TakePure(int component, const clsData& row, std::string& fault) {
        auto& pure = pure_[static_cast<std::size_t>(component)];
        if (!pure) pure = std::make_unique<PureOfMixture>(set_, component);
        return pure->Take(row, fault);
    }

    bool TakeBinary(int absent, const clsData& row, std::string& fault) {
        auto& binary = binary_[static_cast<std::size_t>(absent)];
        if (!binary) binary = std::make_unique<BinaryOfTernary>(set_, absent);
        if (!binary->Take(row, fault)) return false;
        if (binary->MakesValues())
            Tell("Single Value record for a binary mixture was created,\n"
                 "Please check for duplicate records");
        return true;
    }

    void Tell(const std::string& text) {
        const std::string whole = text + "\n" + set_.ShowKey();
        if (std::ranges::find(told_, whole) == told_.end()) told_.push_back(whole);
    }

    clsMV& set_;
    HiddenRows hidden_;
    std::vector<std::string>& told_;
    std::array<std::unique_ptr<PureOfMixture>, 4> pure_;     // by component
    std::array<std::unique_ptr<BinaryOfTernary>, 4> binary_; // by the component that is absent
};

} // namespace

bool clsMV::Detect(std::vector<std::string>& told) {
    if (PROPERTY_FUNCT != "DIR" || Parent == nullptr || Parent->Parent == nullptr) return false;
    std::vector<std::string> ofSet;
    Detection detection(*this, ofSet);
    bool isNew = false;
    for (const clsData& row : recData)
        isNew = detection.Take(row) || isNew;
    told.insert(told.end(), ofSet.begin(), ofSet.end());
    return isNew;
}

} // namespace vexora
