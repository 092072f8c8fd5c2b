#pragma once

#include "ui/FrameMeter.h"
#include "ui/Gallery.h"
#include "ui/Workspace.h"

namespace kiv::bench {

/// The program's window with the conversation open in the dock, signed in to a made-up workspace.
class ChatWindow {
public:
    ChatWindow();

    ui::Workspace &workspace() { return m_workspace; }
    store::AppStore &store() { return *m_workspace.store; }
    ui::Gallery &gallery() { return m_gallery; }
    ui::FrameMeter &meter() { return *m_meter; }

private:
    ui::Workspace m_workspace;
    ui::Gallery m_gallery;
    std::unique_ptr<ui::FrameMeter> m_meter;
};

/// A piece of an answer with every kind of block; no two are the same.
QString mixedSection(int number);

/// What a QTextDocument takes to read a text as markdown and to lay it out.
double documentTime(const QString &markdown);

} // namespace kiv::bench
