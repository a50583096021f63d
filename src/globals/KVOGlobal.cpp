#include "globals/KVOGlobal.h"

#include <stdexcept>

#include "globals/Sitting.h"

namespace vexora {

namespace {

KVOGlobal* present = nullptr;
Sitting sitting;

} // namespace

KVOGlobal::KVOGlobal() {
    present = this;
    sitting = {};
    UseDatabases(&Databases);
}

KVOGlobal::~KVOGlobal() {
    if (present != this) return;
    present = nullptr;
    UseDatabases(nullptr);
}

void KVOGlobal::ForgetCurrent() {
    CurrentR = nullptr;
    CurrentL = nullptr;
    CurrentS = nullptr;
    CurrentZ = nullptr;
    CurrentTwo = nullptr;
    CurrentM = nullptr;
    CurrentMZ = nullptr;
    CurrentMV = nullptr;
    CurrentQ = nullptr;
    CurrentC = nullptr;
    CurrentE = nullptr;
    CurrentBR = nullptr;
    CurrentBP = nullptr;
    CurrentComplex = nullptr;
    CurrentComplexSample = nullptr;
    CurrentCrS = nullptr;
    CurrentKey.clear();
}

bool KVOGlobal::IsEditingInPlace() const {
    return EditCompound || EditSample || EditSingle || EditTwo || EditMixtSingle || EditMixtVar ||
           EditReaction || EditChanged || EditEquilibrium || EditBioReact || EditBioProp ||
           EditCrystal || EditComplex || EditComplexSample;
}

Sitting& TheSitting() {
    return sitting;
}

KVOGlobal& Globals() {
    if (!present) throw std::logic_error("no globals");
    return *present;
}

} // namespace vexora
