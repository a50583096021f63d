#include "records/clsCrS.h"

#include "globals/KVOGlobal.h"
#include "records/LineWriter.h"
#include "records/SetLines.h"
#include "records/clsComplexSample.h"
#include "reference/Numbers.h"
#include "reference/Text.h"

#include <iterator>

namespace vexora {

namespace {

/// The text typed while it says what the number says: "90.00" for 90. A text that is no number
/// stands for 0 and must not vanish either.
std::string TextOf(const std::string& typed, double number) {
    if (Val(typed) == number && (number != 0 || !IsNumeric(typed))) return typed;
    return number == 0 ? std::string() : NumberText(number);
}

template <class Row, std::size_t N>
bool LoadRow(std::string_view line, std::vector<Row>& rows, std::string Row::*const (&fields)[N]) {
    WordReader words(line);
    words.NextWord();
    Row& row = rows.emplace_back();
    for (const auto field : fields)
        row.*field = NextField(words);
    return words.AtEnd();
}

template <class Row, std::size_t N>
void PrintRows(LineWriter& out, const char* tag, const std::vector<Row>& rows,
               std::string Row::*const (&fields)[N]) {
    for (const Row& row : rows) {
        std::vector<std::string> words = {tag};
        for (const auto field : fields)
            words.push_back(row.*field);
        out.Fields(words);
    }
}

} // namespace

std::string CrystalContent::GammaText() const {
    return TextOf(gammaTyped_, Gamma);
}

std::string CrystalContent::DGammaText() const {
    return TextOf(dGammaTyped_, dGamma);
}

void CrystalContent::GammaText(std::string_view typed) {
    Gamma = Val(typed);
    gammaTyped_ = TextOf(std::string(typed), Gamma);
}

void CrystalContent::DGammaText(std::string_view typed) {
    dGamma = Val(typed);
    dGammaTyped_ = TextOf(std::string(typed), dGamma);
}

CellConstants CellOf(const CrystalContent& content) {
    const std::string typed[] = {content.A,     content.B,    content.C,
                                 content.Alpha, content.Beta, content.GammaText()};
    CellConstants cell;
    for (std::size_t n = 0; n < std::size(typed); ++n) {
        if (!IsNumeric(typed[n]) || Val(typed[n]) <= 0) continue;
        (n < 3 ? cell.lengths : cell.angles).at(n % 3) = Val(typed[n]);
    }
    return cell;
}

std::string clsCrS::Key() const {
    return std::to_string(SetNo) + "CrS";
}

std::string clsCrS::ShowKey() const {
    return "Crystal Structure # " + std::to_string(SetNo);
}

void clsCrS::SetMe() {
    KVOGlobal& globals = Globals();
    globals.CurrentCrS = As<clsCrS>();
    if (globals.CurrentKey.empty()) globals.CurrentKey = "RXSX";
    if (Parent) Parent->SetMe();
}

void clsCrS::AttachTo(clsComplexSample& sample) {
    Parent = &sample;
    sample.recCrS.Add(As<clsCrS>(), Key());
    if (sample.tNode) MakeNode(sample.tNode);
}

std::size_t clsCrS::Leave() {
    return Parent ? LeaveFrom(Parent->recCrS) : 0;
}

bool clsCrS::Return(std::size_t place) {
    return Parent && ReturnTo(Parent->recCrS, place, Parent->recCrS.Item(Key()));
}

std::shared_ptr<clsCrS> clsCrS::Copy() const {
    auto copy = std::make_shared<clsCrS>();
    copy->SetNo = SetNo;
    copy->Replace(*this);
    return copy;
}

void clsCrS::Replace(const CrystalContent& other) {
    static_cast<CrystalContent&>(*this) = other;
}

void clsCrS::Load(std::string_view line) {
    WordReader words(line);
    words.NextWord();
    SpaceGroup = UnderscoresToBlanks(NextField(words));
    for (std::string* field : {&A, &B, &C, &Alpha, &Beta})
        *field = NextField(words);
    GammaText(NextField(words));
    for (std::string* field : {&dA, &dB, &dC, &dAlpha, &dBeta})
        *field = NextField(words);
    DGammaText(NextField(words));
    Method = WithoutPlaceholder(Trim(words.Rest()));
}

bool clsCrS::LoadDistance(std::string_view line) {
    return LoadRow(line, Distances, DistanceFields);
}

bool clsCrS::LoadAtom(std::string_view line) {
    return LoadRow(line, Atoms, AtomFields);
}

void clsCrS::PrintCrS(LineWriter& out) const {
    out.Fields({"XB", SpaceGroup, A, B, C, Alpha, Beta, GammaText(), dA, dB, dC, dAlpha, dBeta,
                DGammaText()},
               Method);
    PrintRows(out, "XD", Distances, DistanceFields);
    out.Line("XE");
    PrintRows(out, "XC", Atoms, AtomFields);
}

int NextStructureNumber(const clsComplexSample& sample) {
    int number = static_cast<int>(sample.recCrS.Count()) + 1;
    while (sample.recCrS.Item(std::to_string(number) + "CrS"))
        ++number;
    return number;
}

} // namespace vexora
