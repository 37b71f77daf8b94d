// The small windows beside the main one, as the logic asks for them. A program without windows shows none.
#pragma once

#include <QString>

#include <functional>

class SideWindows
{
  public:
    virtual ~SideWindows() = default;
    /// Shows `text` large, above all other windows: one box a line, 20 at most.
    virtual void magnify(const QString &text) = 0;
    virtual void showAbout() = 0;
    virtual void showHelp() = 0;
    /// Lets the user choose a directory, beginning with `directory` if it is there, and returns at once. `chosen` gets
    /// the directory with a separator behind it, or "" if the user wants none. One chooser is open at a time: while it
    /// is, a second call does nothing and answers False. Without a window: False.
    virtual bool chooseDirectory(const QString &directory, std::function<void(const QString &directory)> chosen) = 0;
};
