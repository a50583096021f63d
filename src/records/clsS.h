#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include "records/Substance.h"
#include "ui/Collection.h"

namespace vexora {

class clsL;
class LineWriter;
class XmlWriter;

/// A sample of a compound: its number and the coded line that says where it came from, how it was
/// purified and how pure it was.
///
///   ^S SMPNM SMPDESC
///
/// SMPNM counts the samples of a compound from "1" and never changes, for values name it; SMPDESC
/// is the rest of the line (see SampleDescription.h), "&" for none.
class clsS : public SubstanceSample {
public:
    clsL* Parent = nullptr;

    /// "Sample n (description)".
    std::string Key() const override;
    std::string ShowKey() const override { return Key(); }
    void SetMe() override;
    void AttachTo(clsL& compound);
    std::size_t Leave() override;
    bool Return(std::size_t place) override;

    /// Takes any line; SMPNM is empty when it ends too soon. The description is judged by the
    /// check, not here, so that a file with an odd one can be opened and mended.
    void Load(std::string_view line);
    /// Its own line; values and sets write theirs.
    void PrintS(LineWriter& out) const;
    void Print(LineWriter& out) const override { PrintS(out); }
    /// Derives Purity from SMPDESC: the statement of the best rated method counts.
    void AssessPurity();
    Substance* System() const override;
    std::string_view NodeType() const override { return "RLS"; }
    std::string Formula() const override;
    double MolarMass() const override;

    void ExportS(XmlWriter& xml) const;
};

/// The sample of a compound that is the current one (KVOGlobal::CurrentS); null when there is none
/// or when it is the sample of a complex.
std::shared_ptr<clsS> CurrentCompoundSample();

} // namespace vexora
