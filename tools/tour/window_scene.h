#pragma once

#include "scenario/program_scene.h"
#include "tour/boxes.h"
#include "tour/camera.h"
#include "tour/hands.h"
#include "tour/keyboard.h"
#include "tour/legibility.h"

namespace orvane::tour {

// The program in its real windows, with a person's eyes and hands before them. What can be seen is
// asked of the windows, what a control says of the screens.
class WindowScene : public scenario::ProgramScene
{
  public:
    WindowScene(const std::filesystem::path& Folder, const QDir& Pictures)
        : ProgramScene(Folder),
          TheCamera(TheEyes, Pictures)
    {
    }

    // How to start a run that has its windows: at the first deed that needs it, so that rows can be
    // changed before. Its ends are counted here.
    void StartBy(std::function<Application&()> Start) { Starter = std::move(Start); }

    Camera& Photographer() { return TheCamera; }

    // Whether each photo comes with a look at the focus rings; and how many were seen.
    void LookAtRings(bool Wanted) { WithRings = Wanted; }
    int RingsSeen() const { return Rings; }

    // From then on each photo comes with a look at all words.
    void ReadWords() { WithWords = true; }
    QString LeastContrasts() const { return Words.Table(); }

    int Ends() const { return Quits; }

    // Something that went wrong without stopping anything; the deed in hand fails by it.
    void Complain(const QString& Text) { TheBoxes.Complain(Text); }

    void Click(const std::string& Control) override;
    void ClickItem(const std::string& Entry) override;
    std::vector<std::string> Entries(const std::string& List) override;
    void Pick(const std::string& List, std::size_t Row) override;
    void Type(const std::string& Box, const std::string& Text) override;
    void CloseByFrame() override;
    bool IsVisible(const std::string& Control) override;
    std::string Look(const std::string& What) override;
    void Act(const scenario::Step& Which) override;
    void Await(const std::vector<scenario::AwaitedBox>& Boxes) override;
    void CheckBoxes() override;

  private:
    Application& Running() override;

    // Turns to the window that a control stands in, which becomes the active one; the control's own
    // name is left.
    QString TurnTo(const std::string& Control);
    void Bring(Screen& Which);

    std::function<Application&()> Starter;
    Application* Run = nullptr;
    Eyes TheEyes;
    Camera TheCamera;
    Hands TheHands{TheEyes};
    Keyboard TheKeyboard{TheEyes};
    bool WithRings = false;
    bool WithWords = false;
    Legibility Words;
    int Rings = 0;
    bool KeysAlone = false; // the mouse is left alone
    Boxes TheBoxes{TheCamera};
};

} // namespace orvane::tour
