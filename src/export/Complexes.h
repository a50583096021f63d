// Complex systems in the export: compounds of their own, behind those of the source. Of their data
// the phase equilibria leave.
#pragma once

#include <memory>
#include <string>
#include <vector>

namespace vexora {

class XmlWriter;
class clsComplex;
class clsR;

/// Those that data in the file are of: phase equilibria of their samples, or reactions.
std::vector<std::shared_ptr<clsComplex>> ExportedComplexes(const clsR& source);
/// Their elements, as compounds with samples.
void ExportComplexes(XmlWriter& xml, const clsR& source);
/// The phase equilibria of all samples.
void ExportDataOfComplexes(XmlWriter& xml, const clsR& source);
/// How many values, sets and structures of complexes the document has, for which the file has no
/// place, in words for the user; empty for none.
std::string DataOfComplexesLeftOut();

} // namespace vexora
