#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "records/Record.h"
#include "ui/Collection.h"

namespace vexora {

class clsL;
class clsMMM;
class clsMV;
class clsMZ;
class clsR;
class clsS;
class LineWriter;
class MixtureLetters;
class XmlWriter;

/// A binary or ternary system of the source: two or three of its compounds, with what was measured
/// on their mixtures.
///
///   ^B RN1 RN2 REFPRP
///   ^T RN1 RN2 RN3 REFPRP
///
/// The registry numbers stand in ascending order. REFPRP has a letter for each kind of data, "&"
/// for none. A mixture without data leaves no line.
class clsM : public Record {
public:
    std::string RN1, RN2, RN3, REFPRP = "&";
    int MixType = 2; // number of components, 2 or 3
    ui::Collection<clsMZ> recMZ;
    ui::Collection<clsMV> recMV;
    clsR* Parent = nullptr;

    /// Registry number of component n, 1 to 3; empty outside.
    const std::string& RN(int n) const;
    void RN(int n, std::string_view number);
    /// RN1+RN2, or RN1+RN2+RN3.
    std::string COMPOSITION() const;
    /// The same in ascending order, whatever order the components stand in: what tells mixtures of
    /// a source apart.
    std::string Key() const override;
    /// The names of the components joined by " + ".
    std::string ShowKey() const override;
    /// The same, but empty when a component is no compound of the source; `fault` then gets the
    /// words to the user.
    std::string Mixture(std::string* fault = nullptr) const;
    /// Name of component n, short enough for a table head yet unlike those of the others.
    std::string Abbreviate(int n) const;
    /// The compound that is component n, null when the source has none.
    std::shared_ptr<clsL> Component(int n) const;
    /// Which component a compound is, 0 for none.
    int PlaceOf(const clsL& compound) const;
    /// Molar masses [g/mol] of the components, 0 for one that is not known.
    std::array<double, 3> MolarMasses() const;

    void SetMe() override;
    void AttachTo(clsR& source);
    std::size_t Leave() override;
    bool Return(std::size_t place) override;

    /// Reads a ^B or ^T line; false when it ends before the last component.
    bool Load(std::string_view line);
    void PrintM(LineWriter& out) const;
    /// Only when there are data.
    void Print(LineWriter& out) const override;
    /// The elements of all values and sets.
    void ExportAll(XmlWriter& xml);
    void EachChild(const std::function<void(Record&)>& visit) const override;

    /// The set with this Key or ShowKey, or null; its place from 1 goes into index.
    std::shared_ptr<clsMZ> FindMZ(std::string_view key, std::size_t* index = nullptr) const;
    std::shared_ptr<clsMV> FindMV(std::string_view key, std::size_t* index = nullptr) const;
    /// Brings REFPRP in line with the data. The answer is what does not fit, for the user: of each
    /// set once.
    std::vector<std::string> UpdateInfo(MixtureLetters& letters);
    /// Every component has a sample.
    bool CheckSamples() const;
    /// Brings the components into ascending order of their numbers, and all sets with them. True
    /// when that changed anything.
    bool Sort();
    bool HasData() const;

private:
    std::array<int, 4> AscendingOrder() const;
};

/// The components of a mixture for its average molar mass and its purity.
void SetMixture(clsMMM& calculator, const clsM& mixture);

/// A property of a mixture was measured on this sample of a component.
bool IsUsedInMixtures(const clsS& sample);

} // namespace vexora
