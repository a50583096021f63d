// The lines of mixtures in a record file.
#pragma once

#include <string_view>

namespace vexora {

struct ReaderState;

/// ^B ^T: a mixture begins. A repeat keeps the first; a line that has the components in another
/// order is read as it stands.
void ReadMixture(ReaderState& state, std::string_view line);
/// When all lines are read: puts components in order, and tells of those that no line describes.
void FinishMixtures(ReaderState& state);

} // namespace vexora
