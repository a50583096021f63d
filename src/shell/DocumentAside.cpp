#include "shell/DocumentAside.h"

#include <utility>

#include "globals/KVOGlobal.h"

namespace vexora {

DocumentAside::DocumentAside(std::string& fileName, KnownFile& known)
    : sources_(std::exchange(Globals().recR, {})), fileName_(std::exchange(fileName, {})),
      known_(std::exchange(known, {})), dataContext_(Globals().DataContext),
      saved_(std::exchange(Globals().Saved, true)),
      readOnly_(std::exchange(Globals().ReadOnly, false)) {
    KVOGlobal& globals = Globals();
    globals.ForgetCurrent();
    if (globals.tvwTree != nullptr) nodes_ = globals.tvwTree->TakeOut();
}

void DocumentAside::PutBack(std::string& fileName, KnownFile& known) {
    KVOGlobal& globals = Globals();
    globals.ForgetCurrent();
    globals.recR = std::move(sources_);
    if (globals.tvwTree != nullptr) globals.tvwTree->PutBack(std::move(nodes_));
    fileName = std::move(fileName_);
    known = std::move(known_);
    globals.DataContext = std::move(dataContext_);
    globals.Saved = saved_;
    globals.ReadOnly = readOnly_;
}

} // namespace vexora
