#pragma once

#include "scenario/script.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace orvane::scenario {

// Where scenarios are played: the program without windows, or its real windows. Controls are told
// by their names, on the active screen or behind a screen's name: "frm_Configuration/cbo_Skin".
class Scene
{
  public:
    virtual ~Scene() = default;

    virtual void Click(const std::string& Control) = 0;
    virtual void ClickItem(const std::string& Entry) = 0; // of the side menu
    virtual std::vector<std::string> Entries(const std::string& List) = 0;
    virtual void Pick(const std::string& List, std::size_t Row) = 0; // from 0
    virtual void Type(const std::string& Box, const std::string& Text) = 0;
    virtual void CloseByFrame() = 0;

    virtual bool IsVisible(const std::string& Control) = 0;

    // What can be seen of a control, "txt_Gain", or one side of it, "cbo_Objet.liste".
    virtual std::string Look(const std::string& What) = 0;

    // Whatever else a scene can do. CannotGoOn for a verb that it doesn't know.
    virtual void Act(const Step& Which) = 0;

    // Before and after each action: the boxes that it must bring up, and no other.
    virtual void Await(const std::vector<AwaitedBox>& Boxes) = 0;
    virtual void CheckBoxes() = 0;
};

// Whether a text is the wanted one, or begins with it when that ends in …
bool IsWanted(const std::string& Seen, std::string Wanted);

// Plays a scenario and compares what is seen with what must be seen.
class Stage
{
  public:
    // Told of each difference; the scenario goes on.
    using Reporter =
        std::function<void(const Place& At, const std::string& Wanted, const std::string& Seen)>;

    Stage(Scene& TheScene, const Views& TheViews, Reporter Report)
        : TheScene(TheScene),
          TheViews(TheViews),
          Report(std::move(Report))
    {
    }

    // CannotGoOn at a step that can't be done, with its place.
    void Play(const Scenario& Which);

  private:
    void Act(const Step& Which);
    void Pick(const std::string& List, const std::string& Entry);
    void PickUntilSeen(const std::string& List, const std::string& Controls);
    void Look(const Step& Which);
    bool SeesAll(const std::string& Controls);
    std::string Shown(const std::string& What);
    std::string Filled(const std::string& Template);

    Scene& TheScene;
    const Views& TheViews;
    Reporter Report;
    std::map<std::string, std::string> Kept;
};

} // namespace orvane::scenario
