#include "shell/NextStep.h"

#include "globals/KVOGlobal.h"
#include "records/Presentation.h"
#include "records/StatedUncertainty.h"
#include "records/Walk.h"
#include "records/clsBP.h"
#include "records/clsBR.h"
#include "records/clsComplex.h"
#include "records/clsComplexSample.h"
#include "records/clsE.h"
#include "records/clsL.h"
#include "records/clsM.h"
#include "records/clsMV.h"
#include "records/clsQ.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "records/clsTwo.h"

namespace vexora {

namespace {

std::string NextForSet(const DataSet& set) {
    const bool hasRows = !set.recData.IsEmpty();
    if (!hasRows) return Presentation::Of(set.DATATYPE).HasNumbers() ? "its rows" : "";
    return StatesUncertainty(set) ? "" : "its uncertainty";
}

std::string NextForBioSet(const BioSet& set) {
    return set.recD.empty() ? "its rows" : "";
}

const ByClass<std::string>& Nexts() {
    const auto property = [](const Record&) { return std::string("a property"); };
    static const auto nexts =
        ByClass<std::string>()
            .On<clsR>([](const clsR& one) { return one.recL.IsEmpty() ? "a compound" : ""; })
            .On<clsL>([](const clsL& one) { return one.recS.IsEmpty() ? "its sample" : ""; })
            .On<clsComplex>(
                [](const clsComplex& one) { return one.recS.IsEmpty() ? "its sample" : ""; })
            .On<clsS>(property)
            .On<clsComplexSample>(property)
            .On<clsQ>(property)
            .On<clsM>([](const clsM& one) {
                return one.CheckSamples() ? "a property" : "a sample of each component";
            })
            .On<clsTwo>(NextForSet)
            .On<clsMV>(NextForSet)
            .On<clsE>(NextForSet)
            .On<clsBR>(NextForBioSet)
            .On<clsBP>(NextForBioSet);
    return nexts;
}

struct Place {
    std::string_view button;
    const char* where; // the button lives
};

constexpr Place Places[] = {
    {"AddComp", "Select the source, the top of the tree, first"},
    {"AddComplex", "Select the source, the top of the tree, first"},
    {"AddSample", "Select a compound first"},
    {"AddMixt", "Select the source or a compound first"},
    {"AddReact", "Select the source or a compound first"},
    {"AddProp", "Select a sample, a mixture or a reaction first"},
    {"AddTable", "Select a sample or a mixture first"},
};

} // namespace

std::string_view NextButton() {
    const KVOGlobal& globals = Globals();
    if (globals.recR.IsEmpty()) return "AddRef";
    const std::string_view key = globals.CurrentKey;
    if (key == "R" && globals.CurrentR && globals.CurrentR->recL.IsEmpty()) return "AddComp";
    if (key == "RL" && globals.CurrentL && !globals.CurrentL->HasSamples()) return "AddSample";
    if (key == "RX" && globals.CurrentComplex && globals.CurrentComplex->recS.IsEmpty())
        return "AddSample";
    if (key == "RM" && globals.CurrentM && !globals.CurrentM->CheckSamples()) return {};
    const bool holdsData = key == "RLS" || key == "RXS" || key == "RM" || key == "RQ";
    return holdsData ? "AddProp" : std::string_view();
}

std::string NextFor(const ui::TreeTag* record) {
    const auto* const known = dynamic_cast<const Record*>(record);
    return known == nullptr ? std::string() : Nexts()(*known);
}

std::string WhyNotOffered(std::string_view button, bool reachedByKey) {
    const KVOGlobal& globals = Globals();
    if (globals.ShellLocked) return "A dialog is open: it has to be closed first";
    if (globals.recR.IsEmpty()) return "Start a document first, or open one";
    if (globals.ReadOnly) return "This document is open for reading only";
    if (button == "AddRef") return "A document describes one source: it is the top of the tree";
    if (reachedByKey) return "Press Enter on the node, or click it: the toolbar follows then";
    const bool needsCompound = button == "AddMixt" || button == "AddReact" ||
                               button == "AddComplex" || button == "AddSample";
    if (needsCompound && globals.recR.Item(std::size_t{1})->recL.IsEmpty())
        return "Add a compound first";
    for (const Place& place : Places)
        if (place.button == button) return place.where;
    return {};
}

} // namespace vexora
