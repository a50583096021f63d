// What the reader knows of the numbers of samples and sets that are there already.
#include "records/ReaderState.h"

#include "globals/KVOGlobal.h"
#include "records/Record.h"
#include "records/Substance.h"
#include "reference/Numbers.h"

#include <algorithm>

namespace vexora {

std::string ReaderState::SettledNumber(const Record& owner, const Record& set,
                                       const std::string& place) {
    // The number stands at the end of the key, behind what tells the kind.
    const auto kindOf = [](const std::string& key) { return key.substr(0, key.rfind(' ')); };
    const auto numberOf = [](const std::string& key) { return key.substr(key.rfind(' ') + 1); };
    const auto [entry, isFirst] = setNumbers.try_emplace(&owner);
    const auto note = [&numbers = entry->second](const std::string& kind,
                                                 const std::string& number) {
        SetNumbers& known = numbers[kind];
        known.taken.insert(number);
        known.highest = std::max(known.highest, ToInteger(Val(number)));
    };
    if (isFirst) { // an owner that an earlier read brought
        owner.EachChild([&](const Record& known) {
            const std::string key = known.Key();
            note(kindOf(key), numberOf(key));
        });
    }
    const std::string kind = kindOf(set.Key());
    std::string number = numberOf(set.Key());
    if (entry->second[kind].taken.contains(number)) {
        Tell({{"Duplicate data set number will be changed" + place, {}}});
        number = std::to_string(entry->second[kind].highest + 1);
        Globals().Saved = false;
    }
    note(kind, number);
    return number;
}

std::unordered_map<int, std::shared_ptr<SubstanceSample>>&
ReaderState::SamplesOf(const Substance& owner) {
    const auto [entry, isFirst] = samples.try_emplace(&owner);
    if (isFirst) {
        for (const auto& sample : owner.Samples())
            entry->second.try_emplace(static_cast<int>(ToInteger(Val(sample->SMPNM))), sample);
    }
    return entry->second;
}

} // namespace vexora
