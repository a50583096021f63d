#pragma once

#include <string>
#include <string_view>

#include "records/SampleDescription.h"

namespace vexora {

/// A statement of purity as a person reads it: "99.5 mol %, Gas chromatography"; empty for none.
std::string PurityInWords(const PurityStatement& statement);

/// The coded description of a sample in words, its parts in the order of the work; a text that
/// cannot be taken apart stands as it is.
std::string SampleInWords(std::string_view description);

} // namespace vexora
