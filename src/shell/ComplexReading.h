#pragma once

#include <string>

namespace vexora {

class clsComplex;
class clsComplexSample;
class clsCrS;
class ReadingPage;

/// A complex system in plain words: its type and components, and what is still missing.
std::string ReadingOfComplex(const clsComplex& complex);
/// What a sample of it was prepared from, and how; its data are told by the caller.
void DescribeComplexSample(ReadingPage& page, const clsComplexSample& sample);
/// A crystal structure: its cell with what follows from it, distances and atoms.
std::string ReadingOfStructure(const clsCrS& structure);

} // namespace vexora
