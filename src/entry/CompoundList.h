#pragma once

#include <optional>
#include <string>
#include <vector>

#include "ui/Form.h"
#include "ui/Lists.h"

namespace vexora {

/// A list in which a dialog asks for a compound of the source, or for none; where complexes can be
/// meant, they follow the compounds. The dialog owns the list and this. The compounds end with
/// "New", which makes one on the way.
class CompoundList {
public:
    CompoundList(ui::Form& form, ui::ComboBox& list, bool withComplexes = false)
        : form_(form), list_(list), withComplexes_(withComplexes) {}

    /// Offers the compounds as the source has them now and chooses the one of this registry number;
    /// "" is none. A number that the source does not have joins the list as it is.
    void Fill(const std::string& rn);
    /// The registry number that a person has chosen, "" for none; nothing when "New" has made none.
    /// "New" opens frmSubst as a link of the chain behind the form.
    std::optional<std::string> Click();

private:
    std::optional<std::string> Make();

    ui::Form& form_;
    ui::ComboBox& list_;
    bool withComplexes_;
    std::vector<std::string> numbers_; // of the entries behind the first
};

} // namespace vexora
