// A desktop for tests of what stands below the shell: every box must have been announced, and every
// announcement must be used up.
#pragma once

#include "ui/Desktop.h"

#include <gtest/gtest.h>

#include <deque>
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
    }

    /// The next box shows this: the text, and behind " | " the title if there is one.
    void Expect(std::string text, ui::Answer answer = ui::Answer::Ok) {
        messages_.push_back({std::move(text), answer});
    }
    /// The next question for a text begins so.
    void ExpectInput(std::string prompt, std::optional<std::string> answer) {
        inputs_.emplace_back(std::move(prompt), std::move(answer));
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
    void RunModal(ui::Form&) override { ADD_FAILURE() << "unexpected modal form"; }
    void EndProgram() override { ended_ = true; }

private:
    struct Expected {
        std::string text;
        ui::Answer answer;
    };
    ui::FileSystem* files_;
    std::deque<Expected> messages_;
    std::deque<std::pair<std::string, std::optional<std::string>>> inputs_;
    std::string clipboard_;
    int hourglass_ = 0;
    bool ended_ = false;
};

} // namespace vexora::test
