#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "records/Record.h"
#include "ui/Collection.h"

namespace vexora {

class SubstanceSample;
class clsR;
class clsTwo;
class clsZ;

/// What data are measured on: a compound (clsL) or a complex system (clsComplex). Values and sets
/// of the samples of either are of the same classes.
/// Where a compound is meant, ask for one (CurrentCompound): a complex has no registry entry.
class Substance : public Record {
public:
    /// Registry number of a compound; of a complex "-" and its number.
    std::string RN;
    clsR* Parent = nullptr;

    /// Its formula as it is written; of a complex with the contents of its components, "Error" when
    /// one is not known.
    virtual std::string FormulaText() const = 0;
    /// Molar mass [g/mol], 0 when it is not known.
    virtual double MolarMass() const = 0;
    /// Its samples in the order of the document.
    virtual std::vector<std::shared_ptr<SubstanceSample>> Samples() const = 0;
    bool HasSamples() const { return !Samples().empty(); }
    /// The sample whose number has this value, or null.
    std::shared_ptr<SubstanceSample> FindSample(int number) const;
};

/// The formula of what takes part in a reaction with this sample (its number, empty for none): of a
/// complex it depends on the sample. Empty when it is not known, and for null.
std::string FormulaOfSample(const Substance* substance, std::string_view number);

/// A sample of a compound (clsS) or of a complex (clsComplexSample).
class SubstanceSample : public Record {
public:
    std::string SMPNM, SMPDESC;
    double Purity = 0; // best purity [per cent], 0 if none can be derived
    ui::Collection<clsZ> recZ;
    ui::Collection<clsTwo> recTwo;

    /// What it is a sample of, null while it is not attached.
    virtual Substance* System() const = 0;
    /// The type of its nodes: "RLS" or "RXS".
    virtual std::string_view NodeType() const = 0;
    virtual std::string Formula() const = 0;
    /// Molar mass [g/mol], 0 when it is not known.
    virtual double MolarMass() const = 0;
    /// Name of what it is a sample of, "" while it is not attached.
    std::string SystemName() const;

    /// The single value with this property, number of variables and set number, or null.
    /// Asks the records, not their keys: "P1" and set "1" read like "P" and set "11".
    std::shared_ptr<clsZ> FindZ(std::string_view code, int nVar, std::string_view setNumber) const;
    /// The next free set number for a property with so many variables.
    int NextSetNumber(std::string_view code, int nVar) const;
    /// The same for data sets against one or two state variables.
    std::shared_ptr<clsTwo> FindTwo(std::string_view code, int nVar,
                                    std::string_view setNumber) const;
    int NextTwoNumber(std::string_view code, int nVar) const;

    void EachChild(const std::function<void(Record&)>& visit) const override;
};

} // namespace vexora
