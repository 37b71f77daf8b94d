// The ways out of a program without a window: questions answer themselves, what would be shown goes to standard error.
#pragma once

#include "app/PictureScreen.h"
#include "app/Ports.h"
#include "app/SideWindows.h"

class ConsoleDialogs : public UserDialogs
{
  public:
    void tell(const QString &title, const QString &text) override;
    [[nodiscard]] Answer ask(const QString &title, const QString &text, Icon icon, Answer withoutWindow) override;
    [[nodiscard]] Answer askAboutError(const QString &title, const QString &record, const QString &prompt) override;
    [[nodiscard]] QString input(const QString &prompt, const QString &title, const QString &proposal) override;
    [[nodiscard]] QString chooseFile(const QString &directory, const QString &filter, const QString &title) override;
    [[nodiscard]] QString chooseFileToAppend(const QString &proposal, const QString &filter,
                                             const QString &title) override;
};

/// Nothing is opened from a terminal; what would have been is told.
class ConsoleDesktop : public Desktop
{
  public:
    void open(const QString &target) override;
};

class NoClipboard : public ClipboardText
{
  public:
    [[nodiscard]] QString text() const override { return {}; }
    void setText(const QString &) override {}
};

class NoMenus : public PopUpMenus
{
  protected:
    void show(Menu &) override {}
};

class NoSideWindows : public SideWindows
{
  public:
    void magnify(const QString &) override {}
    void showAbout() override {}
    void showHelp() override {}
    bool chooseDirectory(const QString &, std::function<void(const QString &)>) override { return false; }
};

class NoPictures : public PictureScreen
{
  public:
    void LoadPicture(const QString &) override {}
};

class NoWindow : public WindowPlace
{
  public:
    [[nodiscard]] QRect place() const override { return {}; }
    void moveTo(const QRect &) override {}
    [[nodiscard]] QRect screen() const override { return {}; }
    void putOnTop(bool) override {}
    void minimize() override {}
};
