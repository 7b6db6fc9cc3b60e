#include "toolkit/user.h"

#include "base/failure.h"

namespace orvane {

User::User(Forms& TheForms, Dialogs& TheDialogs, std::function<void()> AfterEvent)
    : TheForms(TheForms),
      TheDialogs(TheDialogs),
      AfterEvent(std::move(AfterEvent))
{
}

void User::Type(TextBox& Box, const std::string& NewText)
{
    On(Box, [&] {
        if (Box.Locked)
            return;
        Box.Text = NewText;
        if (Box.OnTyped)
            Box.OnTyped();
    });
}

void User::Type(ComboBox& Box, const std::string& NewText)
{
    On(Box, [&] { Box.Text = NewText; });
}

void User::Pick(ListControl& List, int Index)
{
    On(List, [&] {
        if (Index >= 0 && Index < List.ListCount())
            List.Pick(Index);
    });
}

void User::Pick(ListControl& List, const std::string& Entry)
{
    On(List, [&] {
        if (const int Index = List.FindItem(Entry); Index >= 0)
            List.Pick(Index);
    });
}

void User::Click(PictureControl& Which)
{
    On(Which, [&] {
        if (Which.OnClick)
            Which.OnClick();
    });
}

void User::ClickItem(SideMenu& Menu, const std::string& Key)
{
    On(Menu, [&] {
        const SideMenu::Item* Found = Menu.FindItem(Key);
        if (Found == nullptr || !Menu.OnItemClick)
            return;
        const SideMenu::Item Item = *Found; // the handler may build the menu anew
        Menu.OnItemClick(Item);
    });
}

void User::Activate(Screen& Which)
{
    Event([&] { TheForms.Activate(Which); });
}

void User::Close(Screen& Which)
{
    Event([&] {
        if (!Which.IsVisible())
            return;
        TheForms.Activate(Which);
        Which.WayBack();
    });
}

void User::Event(const std::function<void()>& Action)
{
    std::string Sentence;
    try {
        Action();
    } catch (const Failure& Given) {
        Sentence = Given.Sentence();
    } catch (const std::exception& Unexpected) {
        Sentence = Failure(FailureKind::Program, Unexpected.what()).Sentence();
    }
    AfterEvent();
    if (!Sentence.empty())
        TheDialogs.MsgBox(Sentence);
}

void User::On(Control& Which, const std::function<void()>& Action)
{
    Event([&] {
        const auto Reachable = [&] { return Which.Visible && Which.Owner().IsVisible(); };
        if (!Reachable())
            return;
        TheForms.Activate(Which.Owner());
        if (Reachable()) // the activation may have hidden it
            Action();
    });
}

} // namespace orvane
