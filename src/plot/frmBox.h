#pragma once

#include <string>

#include "ui/Form.h"

namespace vexora {

/// The viewer of a text that is only read: the introduction, the scope of the data, a page of help.
/// Whoever shows it fills it first. It is a helper: it takes no part in the chain of dialogs.
class frmBox : public ui::Form {
public:
    frmBox();

    ui::RichText RichTextBox1{*this, "RichTextBox1"};
    ui::CommandButton cmdPrint{*this, "cmdPrint", "&Print"};
    ui::CommandButton cmdOK{*this, "cmdOK", "OK"};

    /// Takes a file; the ending of its name tells rich text (.rtf), HTML (.html, .htm) and plain
    /// text apart. The answer is empty, or why it cannot be read.
    std::string LoadFile(const std::string& path);

private:
    void cmdPrint_Click();
};

} // namespace vexora
