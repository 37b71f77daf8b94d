// Stand-ins for the ways out of the program: what was asked for is kept, what is answered is set by the test.
#pragma once

#include "app/PictureScreen.h"
#include "app/Ports.h"
#include "app/SideWindows.h"
#include "util/Errors.h"
#include "util/QtPrint.h"

#include <QHash>
#include <QList>
#include <functional>

/// Keeps what is logged.
class RecordingLog : public ErrorReceiver
{
  public:
    struct Entry
    {
        qint64 number;
        QString description;
        QString module;
        QString location;
    };

    void ErrorLogger(qint64 number, const QString &description, const QString &module, const QString &location) override
    {
        entries.append({number, description, module, location});
    }
    [[nodiscard]] QStringList locations() const
    {
        QStringList all;
        for (const Entry &entry : entries)
            all.append(entry.location);
        return all;
    }

    QList<Entry> entries;
};

class FakeDialogs : public UserDialogs
{
  public:
    struct Box
    {
        QString title;
        QString text;
        QString prompt; ///< of an error box; the proposal of an input box
    };

    void tell(const QString &title, const QString &text) override { told.append({title, text, {}}); }
    [[nodiscard]] Answer ask(const QString &title, const QString &text, Icon icon, Answer) override
    {
        asked.append({title, text, {}});
        lastIcon = icon;
        return answer;
    }
    [[nodiscard]] Answer askAboutError(const QString &title, const QString &record, const QString &prompt) override
    {
        errors.append({title, record, prompt});
        if (duringError)
            duringError();
        return errorAnswer;
    }
    [[nodiscard]] QString input(const QString &prompt, const QString &title, const QString &proposal) override
    {
        inputs.append({title, prompt, proposal});
        return inputAnswers.isEmpty() ? QString() : inputAnswers.takeFirst();
    }
    [[nodiscard]] QString chooseFile(const QString &, const QString &filter, const QString &title) override
    {
        files.append({title, filter, {}});
        return fileAnswer;
    }

    [[nodiscard]] QString chooseFileToAppend(const QString &proposal, const QString &filter,
                                             const QString &title) override
    {
        files.append({title, filter, proposal});
        return fileAnswer;
    }

    QList<Box> told, asked, errors, inputs, files;
    Icon lastIcon = Icon::Question;
    Answer answer = Answer::Yes;
    Answer errorAnswer = Answer::No;
    QStringList inputAnswers;
    QString fileAnswer;
    std::function<void()> duringError;
};

class FakeDesktop : public Desktop
{
  public:
    void open(const QString &target) override { opened.append(target); }
    QStringList opened;
};

class FakeClipboard : public ClipboardText
{
  public:
    [[nodiscard]] QString text() const override { return held; }
    void setText(const QString &text) override { held = text; }
    QString held;
};

/// Settings in memory, and the order in which they were written.
class MemorySettings : public SettingsStore
{
  public:
    void SaveSetting(const QString &section, const QString &key, const QString &value) override
    {
        values.insert(section + u'/' + key, value);
        written.append(section + u'/' + key);
    }
    [[nodiscard]] QString GetSetting(const QString &section, const QString &key,
                                     const QString &byDefault) const override
    {
        return values.value(section + u'/' + key, byDefault);
    }
    /// The value under a key of the main window's section; "(none)" where nothing was ever stored.
    [[nodiscard]] QString of(const char *key) const
    {
        return values.value(QStringLiteral("SecFrmSearch/") + QLatin1StringView(key), QStringLiteral("(none)"));
    }
    /// Stores without counting as written.
    void preset(const char *key, const QString &value)
    {
        values.insert(QStringLiteral("SecFrmSearch/") + QLatin1StringView(key), value);
    }

    QHash<QString, QString> values;
    QStringList written;
};

/// Keeps what was shown. A directory chooser stays open until choose().
class FakeSideWindows : public SideWindows
{
  public:
    void magnify(const QString &text) override { magnified.append(text); }
    void showAbout() override { shown.append(QStringLiteral("about")); }
    void showHelp() override { shown.append(QStringLiteral("help")); }
    bool chooseDirectory(const QString &directory, std::function<void(const QString &directory)> chosen) override
    {
        if (mChosen)
            return false;
        asked.append(directory);
        mChosen = std::move(chosen);
        return true;
    }
    void choose(const QString &directory) { std::exchange(mChosen, nullptr)(directory); }

    QStringList magnified, shown, asked;

  private:
    std::function<void(const QString &directory)> mChosen;
};

/// Keeps which pictures were shown; refuses those whose names hold `refused`.
class FakePictures : public PictureScreen
{
  public:
    void LoadPicture(const QString &path) override
    {
        if (!refused.isEmpty() && path.contains(refused))
            throw RuntimeError(ErrorNumber::InvalidPicture, QStringLiteral("Invalid picture"));
        shown.append(path);
    }
    QStringList shown;
    QString refused;
};

/// Keeps which menus were shown; `choice` does what the user does in one that is open.
class FakeMenus : public PopUpMenus
{
  public:
    QStringList shown;
    std::function<void(Menu &)> choice;

  protected:
    void show(Menu &menu) override
    {
        shown.append(menu.name());
        if (choice)
            choice(menu);
    }
};

class FakePlace : public WindowPlace
{
  public:
    [[nodiscard]] QRect place() const override { return rect; }
    void moveTo(const QRect &place) override { rect = place; }
    [[nodiscard]] QRect screen() const override { return {0, 0, 1920, 1080}; }
    void putOnTop(bool onTop) override { onTopCalls.append(onTop); }
    void minimize() override { ++minimized; }

    QRect rect{300, 200, 400, 560};
    int minimized = 0;
    QList<bool> onTopCalls;
};

/// Counts the calls instead of deciding about controls.
class CountingStates : public ControlStates
{
  public:
    void SetStateOfControls() override { ++calls; }
    int calls = 0;
};
