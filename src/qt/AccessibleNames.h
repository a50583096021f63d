#pragma once

namespace vexora::qt {

class FormWindow;

/// Gives every field, list, table and plot the name that a screen reader says: the one that its
/// model brings, else its label, else the caption of its group or of the form. What shows a caption
/// of its own needs none. To be called again when captions have changed.
void NameFields(const FormWindow& window);

} // namespace vexora::qt
