#include "shell/DocumentXml.h"

#include "export/ExportDocument.h"
#include "ui/Desktop.h"

namespace vexora {

XmlMaker DocumentXml() {
    return [] { return ExportDocument(ui::TheDesktop().Today()); };
}

} // namespace vexora
