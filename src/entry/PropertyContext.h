// The working context of the data dialogs: what frmProperty hands to them, and what they put there
// from a stored record, as if its property had just been chosen.
// It lies in the globals, because several forms in turn work on one datum; only one data dialog is
// open at a time.
#pragma once

#include <string>
#include <string_view>

#include "reference/Vocabulary.h"
#include "ui/TextBox.h"

namespace vexora {

class clsA;
class clsProperty;

/// What a record says about its property.
/// Values stand in that unit while isOriginalUnit, else in system units; nVar counts state
/// variables.
struct StoredProperty {
    std::string code;
    std::string unit;  // conversion code
    double factor = 0; // of a non-standard unit, 0 when none
    bool isOriginalUnit = true;
    int nVar = 0;
};

/// Puts a stored property into the context, with a new head of the property chain.
/// Method, phase and purity of the context stay. An unknown property code is taken as its own name.
void TakeProperty(const StoredProperty& stored, const clsA& header);
/// Takes a stored comment apart: free-text method, tags and the precisions of the chain go into the
/// context; the answer is the operator's text.
/// To be called once for an opened record, behind TakeProperty: what was taken out is written again
/// by BuildComment only.
std::string TakeComment(std::string_view comment);
/// What a record is to say about the property in the context: the inverse of TakeProperty.
StoredProperty PropertyToStore();
/// The row of the property in the context; one that no table knows is its own name.
PropertyRow PropertyInForce();
/// Lets property and method be reviewed together with the operator's comment, which follows; true
/// when the review has changed anything. A cancelled one has not.
/// The comment is changed as by filling, not by typing.
bool ReviewProperty(ui::TextBox& comment);
/// Says in the header of a new record who adds it, when, and where the paper was taken from.
void SignHeader(clsA& header);
/// Writes the header of a record from the context. Who added it, and when, is of a new one only.
/// The date is m/d/y of the desktop's day.
void FillHeader(clsA& header, bool isNew, const std::string& comment);
/// Why values in the unit of the head cannot be brought to the system unit: the message to show,
/// empty when they can. A unit by mass
/// needs the molar mass of the context.
std::string UnitFault(const clsProperty& head);

} // namespace vexora
