#pragma once

#include <string>

#include "records/clsR.h"
#include "shell/KnownFile.h"
#include "ui/Collection.h"
#include "ui/TreeView.h"

namespace vexora {

/// The open document put aside, with its nodes and its names, while another one is read or found.
/// The globals are those of an empty document then. It goes with this object unless it is put back.
class DocumentAside {
public:
    /// Takes the document out of the globals; fileName and known are left empty.
    DocumentAside(std::string& fileName, KnownFile& known);
    /// Puts it in place of what stands there now. Nothing of it is current: that comes with the
    /// selection, which it keeps.
    void PutBack(std::string& fileName, KnownFile& known);

private:
    ui::Collection<clsR> sources_;
    ui::TreeView::Content nodes_;
    std::string fileName_;
    KnownFile known_;
    std::string dataContext_;
    bool saved_;
    bool readOnly_;
};

} // namespace vexora
