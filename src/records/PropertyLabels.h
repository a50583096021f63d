#pragma once

#include <string>
#include <unordered_map>

namespace vexora {

class DataSet;
class SingleValue;

/// How the property of a set and the unit of its values read in the tree.
struct PropertyLabel {
    std::string name;
    std::string unit;
};

/// Looks labels up in the reference tables. While one lives, which is for a pass over all nodes,
/// each label is looked up once; otherwise nothing is kept.
class PropertyLabels {
public:
    PropertyLabels();
    ~PropertyLabels();
    PropertyLabels(const PropertyLabels&) = delete;
    PropertyLabels& operator=(const PropertyLabels&) = delete;

    static PropertyLabel Of(const SingleValue& value);
    static PropertyLabel Of(const DataSet& set);

private:
    template <class Set>
    static PropertyLabel LabelOf(const Set& set);

    std::unordered_map<std::string, PropertyLabel> known_;
};

} // namespace vexora
