// What is asked of bio sets from outside: by check, deletion, reading and search.
#pragma once

namespace vexora {

class BioSet;
class clsL;
class clsS;

/// A compound takes part in a bio set of its source, or stands in its solution.
bool IsUsedInBioSets(const clsL& compound);
/// This sample of its compound does.
bool IsUsedInBioSets(const clsS& sample);
/// The uncertainty of some property is stated, for all rows or in one of them.
bool StatesUncertainty(const BioSet& set);

} // namespace vexora
