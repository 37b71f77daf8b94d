// The private profile folder of one free-standing browser, held by one running Trawlex at a time: two of them never
// drive the same window.
#pragma once

#include <QLockFile>
#include <QString>
#include <memory>

class ChromiumProfile
{
  public:
    /// Takes the first of the folders `name`, `name`-2, … under `dataFolder` that no other process holds; it is held to
    /// the end of this object. The folder is made if need be, for its owner alone, with settings under which no page
    /// can make the browser ask anything. Raises a RuntimeError when `dataFolder` cannot be written.
    ChromiumProfile(const QString &dataFolder, const QString &name);

    [[nodiscard]] const QString &folder() const { return mFolder; }
    /// Where a browser that runs on this profile, and outlives its program, is offered.
    [[nodiscard]] QString socketPath() const;
    /// Takes away what a browser that nobody can drive any more has left: itself, if it still runs, and what would keep
    /// the next one from starting.
    void clear();

  private:
    [[nodiscard]] bool take(const QString &folder);
    void make();

    QString mFolder;
    std::unique_ptr<QLockFile> mLock;
};
