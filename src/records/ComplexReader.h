// The lines of complex systems and their samples.
#pragma once

#include <string_view>

namespace vexora {

struct ReaderState;

/// CS opens a complex, CC adds a component to it, also behind the CE that makes it join the source
/// and the system of the samples that follow. A number that is taken gives way to the one above the
/// highest, which is told.
void ReadComplex(ReaderState& state, std::string_view line);
void ReadComplexComponent(ReaderState& state, std::string_view line);
void CloseComplex(ReaderState& state, std::string_view line);
/// SB opens a sample of the complex, SS and GH add to it, SE makes it join its complex and the one
/// to which values and sets belong.
void ReadComplexSample(ReaderState& state, std::string_view line);
void ReadSampleComponent(ReaderState& state, std::string_view line);
void ReadPreparation(ReaderState& state, std::string_view line);
void CloseComplexSample(ReaderState& state, std::string_view line);
/// Names a complex or sample that nothing has closed: it is lost.
void LoseOpenComplex(ReaderState& state);

} // namespace vexora
