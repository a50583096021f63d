#pragma once

#include <map>
#include <string>

namespace vexora {

/// While one lives, AtomicMass answers from what it read at its start: for passes over formulas by
/// the ten thousand. Otherwise nothing is kept. The databases must be installed before.
class KeptAtomicMasses {
public:
    KeptAtomicMasses();
    ~KeptAtomicMasses();
    KeptAtomicMasses(const KeptAtomicMasses&) = delete;
    KeptAtomicMasses& operator=(const KeptAtomicMasses&) = delete;

private:
    std::map<std::string, double, std::less<>> masses_;
    const std::map<std::string, double, std::less<>>* before_;
};

} // namespace vexora
