#pragma once

#include <cstdint>
#include <string>

namespace vexora {

/// The working context of the data dialog that is open: method, molar mass, phase and purity in
/// hand, and the tags of the comment. There is one instance, CurrentMethod of the globals, made
/// anew before each dialog opens.
/// Nothing in it is saved as it stands: the dialog writes what it needs into its record.
class clsMethod {
public:
    std::string Method;      // code of the measuring method
    std::string sMethod;     // free text of a method that the table does not list
    double MMass = 0;        // molar mass of the compound in hand [g/mol]
    std::string PHASE;       // phase in hand
    double Purity = 0;       // purity of the sample in hand [per cent]
    int nComponent = 1;      // number of components of the system in hand
    std::string Context;     // property context: kind of equilibrium that names the property
    std::int32_t Year = 0;   // publication year of the source
    std::string KeySaved;    // tag string stored in the comment of the data set
    std::string KeyVolatile; // tag string that lives only while the dialog is open
    double f = 1;            // uncertainty factor entered by the operator, 1 when none; only stored
    double Factor = 0;       // factor of a non-standard unit to the system unit, 0 when none
};

} // namespace vexora
