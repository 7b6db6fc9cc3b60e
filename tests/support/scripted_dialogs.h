#pragma once

#include "toolkit/dialogs.h"

#include <deque>
#include <functional>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <utility>

namespace orvane {

// Boxes that answer by a script, in its order. A box that the script doesn't expect next fails the
// test, and so does a scripted one that never came up.
class ScriptedDialogs : public Dialogs
{
  public:
    ~ScriptedDialogs() override
    {
        for (const Step& Left : Script)
            ADD_FAILURE() << "box that never came up: " << Left.Text;
    }

    void ExpectMsgBox(std::string Text) { Script.push_back({Box::Message, std::move(Text), {}}); }

    void AnswerInputBox(std::string Prompt, std::string Answer)
    {
        Script.push_back({Box::Input, std::move(Prompt), std::move(Answer)});
    }

    // Whether every scripted box has come up.
    bool IsDone() const { return Script.empty(); }

    void MsgBox(const std::string& Text) override { Next(Box::Message, Text); }

    std::string InputBox(const std::string& Prompt, const std::string&) override
    {
        return Next(Box::Input, Prompt).Answer;
    }

    std::optional<Colour> ShowColor() override
    {
        ADD_FAILURE() << "nobody expects a choice of colour";
        return {};
    }

    std::function<void()> OnBox; // runs while a box is up

  private:
    enum class Box { Message, Input };

    struct Step
    {
        Box Kind;
        std::string Text;
        std::string Answer;
    };

    Step Next(Box Kind, const std::string& Text)
    {
        if (Script.empty() || Script.front().Kind != Kind) {
            ADD_FAILURE() << "unexpected box: " << Text;
            return {Kind, Text, {}};
        }
        Step Expected = std::move(Script.front());
        Script.pop_front();
        EXPECT_EQ(Text, Expected.Text) << "the box's text";
        if (OnBox)
            OnBox();
        return Expected;
    }

    std::deque<Step> Script;
};

} // namespace orvane
