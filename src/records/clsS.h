#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include "records/Record.h"
#include "ui/Collection.h"

namespace vexora {

class clsL;
class clsTwo;
class clsZ;
class LineWriter;
class XmlWriter;

/// A sample of a compound: its number and the coded line that says where it came from, how it was
/// purified and how pure it was.
///
///   ^S SMPNM SMPDESC
///
/// SMPNM counts the samples of a compound from "1" and never changes, for values name it; SMPDESC
/// is the rest of the line (see SampleDescription.h), "&" for none.
class clsS : public Record {
public:
    std::string SMPNM, SMPDESC;
    double Purity = 0; // best purity [per cent], 0 if none can be derived
    ui::Collection<clsZ> recZ;
    ui::Collection<clsTwo> recTwo;
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
    void EachChild(const std::function<void(Record&)>& visit) const override;
    /// Derives Purity from SMPDESC: the statement of the best rated method counts.
    void AssessPurity();
    std::string Formula() const;
    /// Molar mass of the compound [g/mol], 0 when it is not known.
    double MolarMass() const;
    /// The single value with this property, number of variables and set number, or null.
    /// Asks the records, not their keys: "P1" and set "1" read like "P" and set "11".
    std::shared_ptr<clsZ> FindZ(std::string_view code, int nVar, std::string_view setNumber) const;
    /// The next free set number for a property with so many variables.
    int NextSetNumber(std::string_view code, int nVar) const;
    /// The same for data sets against one or two state variables.
    std::shared_ptr<clsTwo> FindTwo(std::string_view code, int nVar,
                                    std::string_view setNumber) const;
    int NextTwoNumber(std::string_view code, int nVar) const;

    void ExportS(XmlWriter& xml) const;
};

} // namespace vexora
