#include "entry/ValueQuestions.h"

#include "reference/Numbers.h"
#include "support/StrictDesktop.h"
#include "ui/Forms.h"

namespace vexora {
namespace {

class ValueQuestions : public testing::Test {
protected:
    static std::string Evaluate(const std::string& code, const std::string& text,
                                const ConfirmValue& confirm) {
        clsProperty head;
        head.PropertyCode = head.Name = code;
        head.ConversionCode = "S";
        head.Relation = "A";
        head.Text = text;
        const std::string result = EvaluateUncertainty(head, 0, confirm);
        return result.empty() ? NumberText(head.SystemValue) : result;
    }
    void Ask(const std::string& value, ui::Answer answer) {
        desktop.Expect("Value " + value + " is suspicious\nIs that all right?", answer);
    }
    test::StrictDesktop desktop;
    ui::Forms forms{desktop};
};

TEST_F(ValueQuestions, AnInvalidValueIsRefusedAndASuspiciousOneAsked) {
    desktop.Expect("Value -1 VDN is not valid");
    EXPECT_EQ(Evaluate("VDN", "-1", ConfirmInBox), "Error");
    Ask("5001 VDN", ui::Answer::No);
    EXPECT_EQ(Evaluate("VDN", "5001", ConfirmInBox), "Error");
    Ask("5001 VDN", ui::Answer::Yes);
    EXPECT_EQ(Evaluate("VDN", "5001", ConfirmInBox), "5001");
    EXPECT_EQ(Evaluate("VDN", "5000", ConfirmInBox), "5000");
}

TEST_F(ValueQuestions, AnswersHoldToTheEndOfARun) {
    SuspicionsOfRun run;
    const auto evaluate = [&](const std::string& code, const std::string& text) {
        return Evaluate(code, text, [&](const ValueDoubt& doubt) { return run.Confirm(doubt); });
    };
    Ask("5001 VDN", ui::Answer::Yes);
    EXPECT_EQ(evaluate("VDN", "5001"), "5001");
    EXPECT_EQ(evaluate("VDN", "5001.0"), "5001");
    Ask("5002 VDN", ui::Answer::YesToAll);
    EXPECT_EQ(evaluate("VDN", "5002"), "5002");
    EXPECT_EQ(evaluate("VDN", "6000"), "6000");
    Ask("2500 T", ui::Answer::No); // of another quantity nothing was said
    EXPECT_EQ(evaluate("T", "2500"), "Error");
    Ask("2500 T", ui::Answer::No); // and a No is no answer for the next row
    EXPECT_EQ(evaluate("T", "2500"), "Error");
    desktop.Expect("Value -1 VDN is not valid"); // which no Yes covers
    EXPECT_EQ(evaluate("VDN", "-1"), "Error");
    run = {};
    Ask("6000 VDN", ui::Answer::No);
    EXPECT_EQ(evaluate("VDN", "6000"), "Error");
}

} // namespace
} // namespace vexora
