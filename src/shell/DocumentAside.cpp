#include "shell/DocumentAside.h"

#include <utility>

#include "globals/KVOGlobal.h"

namespace vexora {

DocumentAside::DocumentAside(std::string& fileName, KnownFile& known)
    : dataContext_(Globals().DataContext), saved_(Globals().Saved), readOnly_(Globals().ReadOnly) {
    KVOGlobal& globals = Globals();
    if (globals.tvwTree != nullptr) nodes_ = globals.tvwTree->TakeOut();
    // From here on nothing needs memory, so that the document is never lost on the way.
    sources_ = std::exchange(globals.recR, {});
    fileName_ = std::exchange(fileName, {});
    known_ = std::exchange(known, {});
    globals.Saved = true;
    globals.ReadOnly = false;
    globals.ForgetCurrent();
}

void DocumentAside::PutBack(std::string& fileName, KnownFile& known) {
    KVOGlobal& globals = Globals();
    globals.ForgetCurrent();
    globals.recR = std::move(sources_);
    fileName = std::move(fileName_);
    known = std::move(known_);
    globals.DataContext = std::move(dataContext_);
    globals.Saved = saved_;
    globals.ReadOnly = readOnly_;
    // Last: who is told of the nodes may fail.
    if (globals.tvwTree != nullptr) globals.tvwTree->PutBack(std::move(nodes_));
}

} // namespace vexora
