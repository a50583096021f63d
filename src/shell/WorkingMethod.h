#pragma once

namespace vexora {

/// Makes the working method anew, with the year of the source; done before each dialog.
void RenewCurrentMethod();

} // namespace vexora
