#include "shell/DocumentXml.h"

namespace vexora {

XmlMaker DocumentXml() {
    return nullptr;
}

} // namespace vexora
