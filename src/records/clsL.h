#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "records/Notice.h"
#include "records/Substance.h"
#include "ui/Collection.h"

namespace vexora {

namespace ui {
class ItemList;
}

class clsR;
class clsS;
class LineWriter;
class WordReader;
class XmlWriter;

/// One compound of the source, known by its registry number.
///
///   ^L RN SYSTYPES REFPROP
///   ^N RN Formula Name                  (behind it, for a compound new to the reference database)
///   ^N RN & Name                        (behind it, for one that it knows under another name)
///   BL RN EC PDB Formula Charge Name    (instead of both, for a bio compound)
///
/// RN is the number without dashes, its last digit the check digit. SYSTYPES has a letter for pure,
/// binary and ternary data, reaction changes and equilibria, "D" for data and "N" for none; REFPROP
/// one for each kind of pure property. Name is the rest of its line and may hold blanks, EC and PDB
/// write theirs as "_"; "&" is an empty field.
class clsL : public Substance {
public:
    /// NewRn is empty unless the file had a wrong check digit.
    std::string NewRn, SYSTYPES = "NNNNN", REFPROP = "&", Name;
    /// Follows from the formula; units by mass cannot be converted while it is 0.
    double MMass = 0; // molar mass [g/mol]
    std::string Formula;
    /// Not in the reference database, so name and formula have to travel in the file.
    bool isNew = false;
    /// Known there, but its name was chosen among others and has to travel too.
    bool isNamed = false;
    bool isBio = false;
    /// A mixture, reaction or bio set names it: its line is needed though it has no samples. Known
    /// behind clsR::MarkCompounds.
    bool isUsed = false;
    /// Enzyme classification and protein data bank code of a bio compound.
    std::string EC, PDB;
    std::int32_t Charge = 0;
    ui::Collection<clsS> recS;

    std::string Key() const override { return RN; }
    /// The name, or the RN of a compound without one.
    std::string ShowKey() const override;
    void SetMe() override;
    void AttachTo(clsR& source);
    std::size_t Leave() override;
    bool Return(std::size_t place) override;
    std::string FormulaText() const override { return Formula; }
    double MolarMass() const override;
    std::vector<std::shared_ptr<SubstanceSample>> Samples() const override;

    /// Reads a ^L or BL line and mends a wrong check digit, which it tells; NewRn then holds the
    /// mended number. False for a line without a number, and for one that is not numeric, which is
    /// told.
    bool Load(std::string_view line, Notices& told);
    /// Takes name, formula and molar mass as the reference database has them, by the RN.
    void TakeKnownIdentity();
    /// Writes its lines whatever hangs below it.
    void PrintL(LineWriter& out) const;
    /// Of compounds without samples only those that are new to the reference database, or stand in
    /// a mixture or reaction.
    /// One that is neither used nor new says nothing that the database does not know.
    void Print(LineWriter& out) const override;
    void EachChild(const std::function<void(Record&)>& visit) const override;
    /// The sample whose SMPNM has this value, or null; its place from 1 goes into index.
    std::shared_ptr<clsS> FindS(int number, std::size_t* index = nullptr) const;
    /// Brings the first letter of SYSTYPES and REFPROP in line with the data.
    void UpdateInfo();
    /// Number for the next sample: one above the count, or the next free one.
    int NextSampleNumber() const;

    void ExportL(XmlWriter& xml) const;
    void ExportAll(XmlWriter& xml) const;

private:
    void MendCheckDigit(Notices& told);
    void LoadPlain(WordReader& words);
    void LoadBio(WordReader& words);
};

/// Check digit of a registry number without its last digit: the digits from the right weigh one,
/// two, three and so on, and the sum counts modulo 10 (the rule of the CAS Registry). Nothing for a
/// text that is not all digits.
std::optional<char> CheckDigit(std::string_view digits);

/// The compound that is the current one (KVOGlobal::CurrentL); null when there is none or when it
/// is a complex.
std::shared_ptr<clsL> CurrentCompound();

/// Name, formula and molar mass [g/mol] of a compound or complex of the current source; empty or 0
/// for "", for "999999994", for a text that is not numeric and for 0. Water is known without being
/// entered.
std::string NameOfRN(std::string_view rn);
std::string FormulaOfRN(std::string_view rn);
double MolarMassOfRN(std::string_view rn, const clsR* source = nullptr);
/// A fresh number for a compound that the reference database does not know, with its check digit.
std::string NewSubstanceRN();
/// Lists all compounds of the current source by name, in place of what the list held.
void FillCompoundList(ui::ItemList& list);

} // namespace vexora
