#include "app/MainMenu.h"

namespace kiv::app::MainMenu {

using namespace Qt::StringLiterals;
using ui::Command;
using ui::MenuDescription;
using ui::MenuEntry;

namespace {

const MenuEntry separator;

QList<MenuEntry> accountEntries(bool signedIn) {
    if (signedIn)
        return {{u"Log Out"_s, Command::LogOut, {}}};
    return {{u"Sign In…"_s, Command::ShowSignIn, {u"Ctrl+L"_s}},
            {u"Create Account…"_s, Command::ShowSignUp, {u"Ctrl+Shift+L"_s}}};
}

// clang-format off
QList<MenuEntry> applicationEntries(bool signedIn) {
    return QList<MenuEntry>{
        {u"About KIV"_s,          Command::About,        {}},
        {u"Check for Updates…"_s, Command::CheckUpdates, {}},
        separator,
        {u"Settings…"_s,          Command::OpenSettings, {u"Ctrl+,"_s}}}
        + accountEntries(signedIn) +
    QList<MenuEntry>{
        separator,
        {u"Hide KIV"_s,           Command::Hide,         {u"Ctrl+H"_s}},
        {u"Hide Others"_s,        Command::HideOthers,   {u"Ctrl+Alt+H"_s}},
        {u"Show All"_s,           Command::ShowAll,      {}},
        separator,
        {u"Quit KIV"_s,           Command::Quit,         {u"Ctrl+Q"_s}}};
}

QList<MenuEntry> fileEntries() {
    return {{u"New Chat"_s,       Command::NewChat,      {u"Ctrl+N"_s}},
            separator,
            {u"Close Window"_s,   Command::CloseWindow,  {u"Ctrl+W"_s}}};
}

QList<MenuEntry> editEntries() {
    return {{u"Undo"_s,           Command::Undo,         {u"Ctrl+Z"_s}},
            {u"Redo"_s,           Command::Redo,         {u"Ctrl+Shift+Z"_s}},
            separator,
            {u"Cut"_s,            Command::Cut,          {u"Ctrl+X"_s}},
            {u"Copy"_s,           Command::Copy,         {u"Ctrl+C"_s}},
            {u"Paste"_s,          Command::Paste,        {u"Ctrl+V"_s}},
            {u"Select All"_s,     Command::SelectAll,    {u"Ctrl+A"_s}},
            separator,
            {u"Ask Anything"_s,   Command::FocusAsk,     {u"Ctrl+K"_s}}};
}

QList<MenuEntry> viewEntries() {
    return {{u"Toggle Sidebar"_s,    Command::ToggleRail,    {u"Ctrl+\\"_s}},
            {u"Toggle Chat Dock"_s,  Command::ToggleDock,    {u"Ctrl+J"_s}},
            {u"History"_s,           Command::ToggleHistory, {u"Ctrl+Y"_s}},
            separator,
            // Meta is what the system's Control key is where Ctrl stands for its command key.
#ifdef Q_OS_MACOS
            {u"Enter Full Screen"_s, Command::FullScreen,    {u"Meta+Ctrl+F"_s}}};
#else
            {u"Enter Full Screen"_s, Command::FullScreen,    {u"F11"_s, u"Meta+Ctrl+F"_s}}};
#endif
}

QList<MenuEntry> agentsEntries() {
    return {{u"Overseer"_s,       Command::GoOverseer,   {u"Ctrl+0"_s}},
            separator,
            {u"Start Call"_s,     Command::ToggleCall,   {u"Ctrl+D"_s}}};
}

QList<MenuEntry> windowEntries() {
    return {{u"Minimize"_s,       Command::Minimize,     {u"Ctrl+M"_s}},
            {u"Zoom"_s,           Command::Zoom,         {}}};
}

QList<MenuEntry> helpEntries() {
    return {{u"KIV Help"_s,       Command::None,         {u"Ctrl+?"_s}}};
}
// clang-format on

} // namespace

QList<MenuDescription> build(bool signedIn) {
    return {{u"KIV"_s, applicationEntries(signedIn)},
            {u"File"_s, fileEntries()},
            {u"Edit"_s, editEntries()},
            {u"View"_s, viewEntries()},
            {u"Agents"_s, agentsEntries()},
            {u"Window"_s, windowEntries()},
            {u"Help"_s, helpEntries()}};
}

} // namespace kiv::app::MainMenu
