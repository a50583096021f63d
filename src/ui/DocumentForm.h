#pragma once

#include <string>
#include <vector>

#include "ui/Signal.h"
#include "ui/TreeView.h"

namespace vexora::ui {

/// The form that holds the open document derives from this besides: what its window tells of the
/// document beyond the controls. Scripts know the controls alone.
class DocumentForm {
public:
    virtual ~DocumentForm() = default;

    /// What the document is called, as a rule its file without the folder; empty while none is
    /// open.
    virtual std::string DocumentName() const = 0;
    virtual bool IsChanged() const = 0;
    /// The document that a question on the screen is about; empty for none.
    virtual std::string AskedAbout() const = 0;
    /// A node that came after the last choice of a node: to be marked and kept in sight while
    /// another one stays selected. Null for none.
    virtual const TreeNode* NewNode() const = 0;

    /// The page that greets who has no document open, as HTML with links; empty while one is open.
    /// The link to a recent document is "recent:" and its place, from 0.
    virtual std::string WelcomePage(const std::vector<std::string>& recent) const = 0;
    /// A person follows any other link of that page.
    virtual void FollowLink(const std::string& link) = 0;

    /// Something of the above may be another now.
    Signal<> DocumentAltered;
    /// The full path of a file that has been opened or saved as the document, and of one that could
    /// not be opened.
    Signal<const std::string&> Taken;
    Signal<const std::string&> Refused;
};

} // namespace vexora::ui
