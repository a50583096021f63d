// A desktop for tests of what stands below the shell: every box must have been announced, and every
// announcement must be used up.
#pragma once

#include "ui/Desktop.h"
#include "ui/Form.h"

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <utility>

namespace vexora::test {

class StrictDesktop : public ui::Desktop {
public:
    explicit StrictDesktop(ui::FileSystem* fileSystem = nullptr) : files_(fileSystem) {}
    ~StrictDesktop() override {
        for (const auto& expected : messages_)
            ADD_FAILURE() << "never shown: " << expected.text;
        for (const auto& expected : inputs_)
            ADD_FAILURE() << "never asked: " << expected.first;
        for (const auto& expected : modals_)
            ADD_FAILURE() << "never opened: " << expected.first;
    }

    /// The next box shows this: the text, and behind " | " the title if there is one.
    void Expect(std::string text, ui::Answer answer = ui::Answer::Ok) {
        messages_.push_back({std::move(text), answer});
    }
    /// The next question for a text begins so.
    void ExpectInput(std::string prompt, std::optional<std::string> answer) {
        inputs_.emplace_back(std::move(prompt), std::move(answer));
    }
    /// The next modal form has this name; the user works on it until it has closed.
    void ExpectModal(std::string name, std::function<void(ui::Form&)> user) {
        modals_.emplace_back(std::move(name), std::move(user));
    }
    bool Ended() const { return ended_; }

    ui::Answer Show(const ui::Message& message) override {
        const std::string text =
            message.text + (message.title.empty() ? "" : " | " + message.title);
        if (messages_.empty()) {
            ADD_FAILURE() << "unexpected box: " << text;
            return message.safe;
        }
        EXPECT_EQ(text, messages_.front().text);
        const ui::Answer answer = messages_.front().answer;
        messages_.pop_front();
        return answer;
    }
    std::optional<std::string> Ask(const ui::Input& input) override {
        if (inputs_.empty()) {
            ADD_FAILURE() << "unexpected question: " << input.prompt;
            return std::nullopt;
        }
        EXPECT_TRUE(input.prompt.starts_with(inputs_.front().first)) << input.prompt;
        const auto answer = inputs_.front().second;
        inputs_.pop_front();
        return answer;
    }
    std::optional<std::string> Choose(const ui::FileChoice&) override {
        ADD_FAILURE() << "unexpected chooser";
        return std::nullopt;
    }
    std::string ClipboardText() override { return clipboard_; }
    void ClipboardText(const std::string& text) override { clipboard_ = text; }
    void Hourglass(bool on) override { hourglass_ += on ? 1 : -1; }
    int HourglassDepth() const { return hourglass_; }
    void ShowHelp(int) override {}
    void Print(const std::string&, const std::string&) override {}
    ui::Date Today() override { return {2026, 1, 15}; }
    ui::FileSystem& Files() override { return *files_; }
    void RunModal(ui::Form& form) override {
        if (modals_.empty()) {
            ADD_FAILURE() << "unexpected modal form " << form.Name();
            form.Close();
            return;
        }
        const auto expected = std::move(modals_.front());
        modals_.pop_front();
        EXPECT_EQ(form.Name(), expected.first);
        expected.second(form);
        EXPECT_FALSE(form.IsOpen()) << "left open: " << form.Name();
    }
    void EndProgram() override { ended_ = true; }

private:
    struct Expected {
        std::string text;
        ui::Answer answer;
    };
    ui::FileSystem* files_;
    std::deque<Expected> messages_;
    std::deque<std::pair<std::string, std::optional<std::string>>> inputs_;
    std::deque<std::pair<std::string, std::function<void(ui::Form&)>>> modals_;
    std::string clipboard_;
    int hourglass_ = 0;
    bool ended_ = false;
};

} // namespace vexora::test
