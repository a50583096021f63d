// A source with the compounds of some combustions, benzoic acid with two samples, and a person's
// hands for the dialogs of reactions.
#pragma once

#include "reactions/frmReact.h"
#include "records/LineWriter.h"
#include "records/Walk.h"
#include "records/clsC.h"
#include "records/clsE.h"
#include "records/clsL.h"
#include "records/clsQ.h"
#include "records/clsR.h"
#include "records/clsS.h"
#include "support/DataDialogFixture.h"

namespace vexora::test {

class ReactionFixture : public DataDialogFixture {
protected:
    ReactionFixture() {
        globals.CurrentR = std::make_shared<clsR>();
        globals.CurrentR->SOURCEDOC = "O";
        globals.CurrentR->AttachTo();
        globals.DataContext = "React";
        const auto acid = AddCompound("65850", "benzoic acid", "C7H6O2");
        AddSample(acid);
        AddSample(acid);
        AddSample(AddCompound("7732185", "water", "H2O"));
        AddCompound("7782447", "oxygen", "O2");
        AddCompound("124389", "carbon dioxide", "CO2");
    }
    ~ReactionFixture() override { forms.CloseAll(); }

    std::shared_ptr<clsL> AddCompound(const std::string& rn, const std::string& name,
                                      const std::string& formula) {
        auto compound = std::make_shared<clsL>();
        compound->RN = rn;
        compound->Name = name;
        compound->Formula = formula;
        compound->AttachTo(*globals.CurrentR);
        return compound;
    }
    static void AddSample(const std::shared_ptr<clsL>& compound) {
        auto sample = std::make_shared<clsS>();
        sample->SMPNM = std::to_string(compound->NextSampleNumber());
        sample->AttachTo(*compound);
    }
    std::shared_ptr<clsQ> AddReaction(const std::string& line, const std::string& coefficients) {
        auto reaction = std::make_shared<clsQ>();
        EXPECT_TRUE(reaction->Load(line));
        reaction->LoadCoefficients(coefficients);
        reaction->Reaction = "=";
        reaction->AttachTo(*globals.CurrentR);
        return reaction;
    }
    std::shared_ptr<clsQ> AddCombustion() {
        return AddReaction("^Q CMO 65850 124389 7732185 7782447 N N & & & & & &",
                           "^q -1 7 3 -7.5 & & & & 1 & & & & & & &");
    }
    static std::shared_ptr<clsC> AddValue(clsQ& reaction, const std::string& line) {
        auto value = std::make_shared<clsC>();
        EXPECT_TRUE(value->Load(line));
        value->Header.Load("^A & O P & XXX YYY 1/15/2026 &");
        value->AttachTo(reaction);
        return value;
    }
    /// All reactions with their data, as the file has them.
    std::string Lines() const {
        LineWriter out;
        for (const auto& reaction : globals.CurrentR->recQ)
            Walk(*reaction, [&out](Record& record) { record.Print(out); });
        return out.Text();
    }

    frmReact& Begin() { return Open<frmReact>("frmReact"); }
    frmReact& Edit(const std::shared_ptr<clsQ>& reaction) {
        forms.DropClosed();
        globals.EditReaction = true;
        globals.OpenForms.clear();
        reaction->SetMe();
        auto& form = forms.Get<frmReact>("frmReact");
        form.Show();
        return form;
    }
    static void Put(frmReact& form, int n, const std::string& compound,
                    const std::string& coefficient) {
        Pick(form.cmbComp(n), compound);
        form.txtCoeff(n).UserReplaceAll(coefficient);
    }
    /// The rows that are in use: compound, coefficient, sample.
    static std::string Rows(const frmReact& form) {
        std::string text;
        for (int n = 0; n < form.cmbComp.Count(); ++n)
            if (form.cmbComp(n).Index() > 0)
                text += form.cmbComp(n).Chosen() + " " + form.txtCoeff(n).Text() + " " +
                        form.cboSample(n).Chosen() + "|";
        return text;
    }
};

} // namespace vexora::test
