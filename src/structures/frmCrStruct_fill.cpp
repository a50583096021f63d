#include <algorithm>

#include "chem/Cif.h"
#include "chem/SpaceGroups.h"
#include "chem/clsAtom.h"
#include "records/clsComplexSample.h"
#include "reference/Numbers.h"
#include "reference/Text.h"
#include "structures/frmCrStruct.h"
#include "ui/Desktop.h"

namespace vexora {

namespace {

// Parts the usual groups from all of them; it is no group.
constexpr const char* Separator = "----------";

constexpr const char* Methods[] = {"Single crystal X-ray diffraction",
                                   "Powder X-ray diffraction",
                                   "Synchrotron X-ray powder diffraction",
                                   "Single crystal neutron diffraction",
                                   "Powder neutron diffraction",
                                   "Electron diffraction",
                                   "Molecular simulation",
                                   "Other method"};

template <class Row, std::size_t N>
void FillTable(TableEditor& table, const std::vector<Row>& rows,
               std::string Row::*const (&fields)[N]) {
    PastedTable block;
    for (const Row& row : rows) {
        auto& cells = block.rows.emplace_back();
        for (const auto field : fields)
            cells.push_back(row.*field);
    }
    TableUndo& history = table.History();
    PasteTable(history, block, history.Table().FixedRows(), 0, {.replaces = true});
}

} // namespace

void frmCrStruct::FillLists() {
    std::vector<std::string> groups;
    for (const std::string_view symbol : UsualSpaceGroups())
        groups.emplace_back(symbol);
    groups.emplace_back(Separator);
    for (const std::string_view symbol : SpaceGroupSymbols())
        groups.emplace_back(symbol);
    cboGroup.Assign(std::move(groups));
    cboMethod.Assign({std::begin(Methods), std::end(Methods)});
    cboView.Assign({"along a", "along b", "along c", "aslant"});
    cboView.Index(static_cast<int>(CellView::Aslant));
}

void frmCrStruct::Fill(const CrystalContent& content) {
    {
        const ui::FillingScope filling(*this);
        cboGroup.Text(content.SpaceGroup);
        if (!content.Method.empty()) cboMethod.Text(content.Method);
        const std::string texts[] = {content.A,     content.dA,          content.B,
                                     content.dB,    content.C,           content.dC,
                                     content.Alpha, content.dAlpha,      content.Beta,
                                     content.dBeta, content.GammaText(), content.DGammaText()};
        for (std::size_t n = 0; n < constants_.size(); ++n) {
            constants_[n].value.Text(texts[2 * n]);
            constants_[n].uncertainty.Text(texts[2 * n + 1]);
        }
        FillTable(atomEditor_, content.Atoms, AtomFields);
        FillTable(distanceEditor_, content.Distances, DistanceFields);
    }
    ShowWhatFollows();
}

void frmCrStruct::ChooseGroup() {
    if (cboGroup.Text() == Separator) cboGroup.Text("");
    ShowWhatFollows();
}

/// "11.877(3)" goes into both fields; what stands in the second one already stays.
void frmCrStruct::PartOff(const Constant& constant) {
    CifNumber number;
    const bool isPair = ReadCifNumber(NormalizeNumber(constant.value.Text()), number) &&
                        !number.uncertainty.empty();
    if (!isPair || !constant.uncertainty.IsEmpty()) return;
    constant.value.Text(number.value);
    constant.uncertainty.Text(number.uncertainty);
}

/// Values of 0 or less are none.
CellConstants frmCrStruct::Cell() const {
    CellConstants cell;
    for (std::size_t n = 0; n < constants_.size(); ++n) {
        const auto value = NumberIn(NormalizeNumber(constants_[n].value.Text()));
        if (value && *value > 0) (n < 3 ? cell.lengths : cell.angles).at(n % 3) = *value;
    }
    return cell;
}

/// Follows all that is typed. Nothing of it is stored.
void frmCrStruct::ShowWhatFollows() {
    if (Filling) return;
    const CellConstants cell = Cell();
    const std::string group(Trim(cboGroup.Text()));
    const auto volume = VolumeOf(cell);
    lblSystem.Caption(SystemText(cell));
    lblContradiction.Caption(ContradictionText(group, cell));
    lblContradiction.Visible(!lblContradiction.Caption().empty());
    lblVolume.Caption(volume ? VolumeCaption(*volume)
                             : "The volume follows from six cell constants");
    lblDensity.Caption(volume ? DensityText(*volume) : "");
    lblDensity.Visible(!lblDensity.Caption().empty());
    mnuSavePicture.Enabled(volume.has_value());
    picCell.Strokes(
        CellPicture(cell, group, atoms_.Rows(), static_cast<CellView>(cboView.Index())));
}

std::string frmCrStruct::SystemText(const CellConstants& cell) const {
    const std::string group(Trim(cboGroup.Text()));
    if (!group.empty()) return SystemInWords(group);
    const CrystalSystem shape = ShapeOf(cell);
    return shape == CrystalSystem::Unknown ? "" : "the cell is " + std::string(NameOf(shape));
}

/// With the digits of the lengths.
std::string frmCrStruct::VolumeCaption(double volume) const {
    return "Volume of the cell: " +
           VolumeText(volume, {NormalizeNumber(txtA.Text()), NormalizeNumber(txtB.Text()),
                               NormalizeNumber(txtC.Text())}) +
           " A3";
}

std::string frmCrStruct::DensityText(double volume) const {
    const std::string formula = !formula_.empty() || !sample_ ? formula_ : sample_->Formula();
    const double mass = MolarMassOfFormula(formula);
    if (units_ <= 0 || mass <= 0) return {};
    constexpr int digits = 4;
    return "Density with Z = " + NumberText(units_) + " of " + formula + ": " +
           FormatValue(DensityOf(volume, mass, units_), digits) + " g/cm3";
}

/// The CIF takes the place of what the form says, for review; a bad one changes nothing.
void frmCrStruct::OpenCif() {
    for (TableEditor* table : {&atomEditor_, &distanceEditor_})
        table->EndTyping();
    const auto path = ui::TheDesktop().Choose({false, {}, {}, "CIF files (*.cif *.txt)"});
    if (!path) return;
    std::string error;
    const auto text = ui::TheDesktop().Files().Read(*path, error);
    if (!text) return ui::Say(error);
    const CifReading reading = ReadCif(*text);
    if (!reading.fault.empty())
        return ui::Say("The CIF was not read, and nothing has changed\n" + reading.fault);
    const bool isEmpty = Typed() == CrystalContent();
    if (!isEmpty && !ui::AskYesNo("The structure in the form will be replaced\nGo on?")) return;
    Take(reading.structure);
    std::string told;
    for (const std::string& line : reading.structure.told)
        told += "\n" + line;
    if (!told.empty()) ui::Say("The CIF was read. Not all of it came over as it stands:" + told);
}

/// The method is none of what a CIF tells here, and distances are not read from one.
void frmCrStruct::Take(const CifStructure& structure) {
    CrystalContent content;
    content.SpaceGroup = structure.spaceGroup;
    content.Method = std::string(Trim(cboMethod.Text()));
    content.A = structure.cell[0].value;
    content.dA = structure.cell[0].uncertainty;
    content.B = structure.cell[1].value;
    content.dB = structure.cell[1].uncertainty;
    content.C = structure.cell[2].value;
    content.dC = structure.cell[2].uncertainty;
    content.Alpha = structure.cell[3].value;
    content.dAlpha = structure.cell[3].uncertainty;
    content.Beta = structure.cell[4].value;
    content.dBeta = structure.cell[4].uncertainty;
    content.GammaText(structure.cell[5].value);
    content.DGammaText(structure.cell[5].uncertainty);
    content.Distances = distances_.Rows();
    for (const CifAtom& atom : structure.atoms) {
        const auto& [x, y, z] = atom.position;
        content.Atoms.push_back({atom.symbol, x.value, x.uncertainty, y.value, y.uncertainty,
                                 z.value, z.uncertainty, atom.occupancy});
    }
    units_ = structure.units;
    formula_ = structure.formula;
    Fill(content);
}

} // namespace vexora
