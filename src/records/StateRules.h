// What has to be known of a state before a value means something.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vexora {

class clsTwo;
class clsZ;

/// Codes of properties that are a temperature or a pressure of the state themselves.
bool IsTemperature(std::string_view property);
bool IsPressure(std::string_view property);
/// The variable without which a spectral property says nothing; empty for others.
std::string_view SpectralVariable(std::string_view property);

/// What a set or a value needs and nothing states, each in words: "pressure", "reference phase".
/// What an unknown code of a property may need is not told.
std::vector<std::string> UnstatedOf(const clsTwo& set);
std::vector<std::string> UnstatedOf(const clsZ& value);

} // namespace vexora
