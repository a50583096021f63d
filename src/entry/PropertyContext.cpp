#include "entry/PropertyContext.h"

#include "chem/CommentTags.h"
#include "chem/MethodTags.h"
#include "chem/clsMethod.h"
#include "chem/clsProperty.h"
#include "entry/PropertyEntries.h"
#include "entry/PropertyRules.h"
#include "globals/KVOGlobal.h"
#include "records/clsA.h"
#include "records/clsR.h"
#include "reference/Conversions.h"
#include "reference/UnitText.h"
#include "reference/Vocabulary.h"
#include "ui/Desktop.h"
#include "ui/Form.h"
#include "ui/Forms.h"

namespace vexora {

namespace {

/// What a review of property and method can change.
/// As one text, for it is only compared before and after.
std::string ChoiceInForce() {
    const KVOGlobal& globals = Globals();
    const clsMethod& method = *globals.CurrentMethod;
    std::string text;
    for (const std::string& part :
         {globals.PropertyCode, globals.PropertyUnit, globals.PropertyText, globals.ExpPurpose,
          globals.PropertyFlags, globals.PropertyComment, globals.KeyRest, method.Method,
          method.sMethod, method.Context, std::to_string(method.f),
          std::to_string(globals.OriginalUnits)}) {
        text += part + "\n";
    }
    return text;
}

std::string DateText(const ui::Date& date) {
    return std::to_string(date.month) + "/" + std::to_string(date.day) + "/" +
           std::to_string(date.year);
}

} // namespace

void TakeProperty(const StoredProperty& stored, const clsA& header) {
    KVOGlobal& globals = Globals();
    globals.PropertyCode = stored.code;
    const PropertyRow row = PropertyInForce();
    // Values that stand in system units are shown in these, whatever unit the paper had.
    const std::string unit = stored.isOriginalUnit ? stored.unit : "S";
    const double factor = stored.isOriginalUnit ? stored.factor : 0;
    // The unit of the paper is kept as what the record knows, even where its values are converted.
    globals.PropertyUnit = stored.unit;
    globals.OriginalUnits = stored.isOriginalUnit;
    globals.VariableCount = stored.nVar;
    globals.ExpPurpose = header.EXPPURPOSE;
    globals.PropertyFlags = header.PRPFLAG;
    globals.CurrentMethod->Factor = stored.factor;
    globals.PropertyText = UnitText(row.Unit, unit, factor);
    globals.CurrentProperty = std::make_shared<clsProperty>();
    clsProperty& head = *globals.CurrentProperty;
    head.PropertyCode = stored.code;
    head.ConversionCode = CodeInField(unit, row.Unit);
    head.Factor = factor;
    // Absolute values. A set that states differences says so when its own chain is made.
    head.Relation = "A";
    head.Name = PropertyInWords(row);
}

std::string TakeComment(std::string_view comment) {
    KVOGlobal& globals = Globals();
    // First, for an unclosed free text reaches to the end of all tags.
    const CommentTags others(TakeSMethod(comment));
    globals.CurrentMethod->Method.clear();
    globals.CurrentMethod->KeySaved = others.Tags();
    SplitCommentTags();
    DecodePrecisionTags(*globals.CurrentProperty);
    return others.Text();
}

StoredProperty PropertyToStore() {
    const KVOGlobal& globals = Globals();
    const bool original = globals.OriginalUnits;
    // "*" means nothing without its factor.
    const bool nameless = !original && globals.PropertyUnit == "*"; // its factor is not kept
    return {globals.PropertyCode, nameless ? "S" : globals.PropertyUnit,
            original ? globals.CurrentMethod->Factor : 0, original, globals.VariableCount};
}

PropertyRow PropertyInForce() {
    const KVOGlobal& globals = Globals();
    const std::string& code = globals.PropertyCode;
    const std::string kind = globals.CurrentMethod ? globals.CurrentMethod->Context : "";
    if (const auto row = FindProperty(code, globals.DataContext, kind)) return *row;
    PropertyRow row;
    row.Code = row.Property = code;
    return row;
}

bool ReviewProperty(ui::TextBox& comment) {
    Globals().PropertyComment = comment.Text();
    const std::string before = ChoiceInForce();
    ui::Forms::Current().Get("frmProperty").ShowModal();
    if (ChoiceInForce() == before) return false;
    const ui::FillingScope filling(comment.Owner());
    comment.Text(Globals().PropertyComment);
    return true;
}

void SignHeader(clsA& header) {
    const KVOGlobal& globals = Globals();
    header.SOURCEDOC = globals.CurrentR ? globals.CurrentR->SOURCEDOC : std::string();
    header.COMPILER = globals.CompilerCode;
    header.CONTRIBUTOR = globals.ContributorCode;
    header.DATEADDED = DateText(ui::TheDesktop().Today());
}

void FillHeader(clsA& header, bool isNew, const std::string& comment) {
    const KVOGlobal& globals = Globals();
    // An edit leaves who compiled the datum first, and when.
    if (isNew) SignHeader(header);
    header.EXPPURPOSE = globals.ExpPurpose;
    header.PRPFLAG = globals.PropertyFlags;
    header.DATACOMMENT = comment;
}

std::string UnitFault(const clsProperty& head) {
    // The operator's factor goes before the code and before the molar mass.
    if (head.Factor > 0) return {};
    const std::string& code = head.ConversionCode;
    const std::string unit = UnitOfProperty(head.PropertyCode, Globals().DataContext);
    if (code == "*" || ConversionFactor(code, unit) <= 0) return "Invalid conversion factor";
    // Per mass into per mole: without the molar mass every value would be 0.
    if (IsMassBased(code) && Globals().CurrentMethod->MMass <= 0)
        return IsMixtureContext(Globals().DataContext) ? "Molar mass of the mixture is not known"
                                                       : "Molar mass of the compound is not known";
    return {};
}

} // namespace vexora
