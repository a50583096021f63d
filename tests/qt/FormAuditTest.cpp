#include "qt/FormAudit.h"

#include <QApplication>
#include <QStyleFactory>

#include <gtest/gtest.h>

#include "host/PosixFileSystem.h"
#include "qt/Look.h"
#include "qt/QtDesktop.h"

namespace vexora::qt::test {

namespace {

/// A form with every fault that an audit looks for.
class frmFaulty : public ui::Form {
public:
    frmFaulty() : Form("frmFaulty", "") {
        using namespace ui;
        Arrangement = Column({Row({cmdOne, cmdTwo}), Narrow(cmdWide, 2), lstNames, picNameless,
                              Field("Second:", txtSecond), Field("First:", txtFirst)});
    }
    ui::CommandButton cmdOne{*this, "cmdOne", "&Same"};
    ui::CommandButton cmdTwo{*this, "cmdTwo", "&Some"};
    ui::CommandButton cmdWide{*this, "cmdWide", "A caption that is cut"};
    ui::ListBox lstNames{*this, "lstNames"};
    ui::Picture picNameless{*this, "picNameless", 100, 100};
    ui::TextBox txtFirst{*this, "txtFirst"};
    ui::TextBox txtSecond{*this, "txtSecond"};
    ui::TextBox txtStray{*this, "txtStray"};
};

} // namespace

TEST(FormAudit, FindsEachKindOfFault) {
    QApplication::setStyle(QStyleFactory::create("Fusion")); // marks fields alone
    FormAudit audit;
    host::PosixFileSystem files;
    Windows windows; // shows the boxes of the desktop, of which there are none
    QtDesktop desktop(windows, files, {});
    ui::Forms forms(desktop);
    forms.Register<frmFaulty>("frmFaulty");
    auto& form = forms.Get<frmFaulty>("frmFaulty");
    form.Show();
    audit.Settle();
    EXPECT_EQ(
        audit.Faults,
        (std::set<std::string>{
            "frmFaulty: cmdOne shows no mark", "frmFaulty: cmdTwo shares Alt+S",
            "frmFaulty: cmdTwo shows no mark", "frmFaulty: cmdWide is cut off",
            "frmFaulty: cmdWide shows no mark", "frmFaulty: lstNames has no name to be spoken",
            "frmFaulty: lstNames shows no mark", "frmFaulty: picNameless has no name to be spoken",
            "frmFaulty: txtSecond follows txtFirst by Tab",
            "frmFaulty: txtStray has no name to be spoken",
            "frmFaulty: txtStray stands outside of the layout"}));
    form.Close();
    forms.DropClosed();
    TakeLook("");
}

} // namespace vexora::qt::test
