#pragma once

#include <string>

namespace vexora {

class Record;

/// Asks whether a record may go; of a set with rows, whether these may go too. A title tells which
/// one is meant where that is not in sight.
bool AskToDelete(const Record& record, const std::string& title = {});

} // namespace vexora
