#include "entry/SystemInHand.h"

#include <algorithm>
#include <string_view>

#include "entry/PropertyEntries.h"
#include "globals/KVOGlobal.h"
#include "records/clsL.h"
#include "records/clsM.h"
#include "records/clsQ.h"
#include "ui/Form.h"

namespace vexora {

std::string SystemInHand() {
    const KVOGlobal& globals = Globals();
    if (globals.DataContext == "React")
        return globals.CurrentQ ? globals.CurrentQ->ShowKey() : std::string();
    if (IsMixtureContext(globals.DataContext))
        return globals.CurrentM ? globals.CurrentM->ShowKey() : std::string();
    return globals.CurrentL ? globals.CurrentL->ShowKey() : std::string();
}

std::string TitleOf(const ui::Form& form) {
    constexpr std::string_view ofFigures[] = {"frmData2", "frmUnc", "frmAverage", "frmKey"};
    const std::string& caption = form.Caption();
    if (std::ranges::find(ofFigures, form.Name()) == std::end(ofFigures)) return caption;
    const std::string system = SystemInHand();
    const bool isNamed = system.empty() || caption.find(system) != caption.npos;
    return isNamed ? caption : caption + " - " + system;
}

} // namespace vexora
