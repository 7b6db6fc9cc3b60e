#pragma once

#include "scenario/program_scene.h"

#include <deque>
#include <optional>

namespace orvane {

// The program without windows: the hands are the user's door, boxes answer as they are expected.
class HeadlessScene : public scenario::ProgramScene, private Dialogs
{
  public:
    using ProgramScene::ProgramScene;

    void Click(const std::string& Control) override;
    void ClickItem(const std::string& Entry) override;
    void Pick(const std::string& List, std::size_t Row) override;
    void Type(const std::string& Box, const std::string& Text) override;
    void CloseByFrame() override;
    std::string Look(const std::string& What) override;
    void Act(const scenario::Step& Which) override;
    void Await(const std::vector<scenario::AwaitedBox>& Boxes) override;
    void CheckBoxes() override;

  private:
    Application& Running() override;
    void Start();

    void MsgBox(const std::string& Text) override;
    std::string InputBox(const std::string& Prompt, const std::string& Title) override;
    std::optional<Colour> ShowColor() override;

    // The box that must come up now.
    scenario::AwaitedBox Next(const std::string& Kind, const std::string& Text);

    std::optional<Application> App;
    std::deque<scenario::AwaitedBox> Awaited;
    std::string Complaint;
    std::string LastTitle; // of the last question
};

} // namespace orvane
