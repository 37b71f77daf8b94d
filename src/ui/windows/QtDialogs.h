// Questions to the user as boxes over the window in use. They block all windows, the built-in browser's too: what
// stands below on the stack, a run or an open transaction, goes on when the box is answered and not before. The answer
// that changes nothing is the default one.
#pragma once

#include "app/Ports.h"

class QtDialogs : public UserDialogs
{
  public:
    void tell(const QString &title, const QString &text) override;
    [[nodiscard]] Answer ask(const QString &title, const QString &text, Icon icon, Answer withoutWindow) override;
    [[nodiscard]] Answer askAboutError(const QString &title, const QString &record, const QString &prompt) override;
    [[nodiscard]] QString input(const QString &prompt, const QString &title, const QString &proposal) override;
    [[nodiscard]] QString chooseFile(const QString &directory, const QString &filter, const QString &title) override;
    [[nodiscard]] QString chooseFileToAppend(const QString &proposal, const QString &filter,
                                             const QString &title) override;

    /// A filter of the form "Programs (*.exe)|*.exe|" as Qt writes it: "Programs (*.exe)", more of them behind ";;".
    [[nodiscard]] static QString qtFilter(const QString &filter);
};
