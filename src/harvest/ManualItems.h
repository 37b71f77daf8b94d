// One address of the Manual tab, as the user wants it taken: a file to be fetched, or a site to be opened. Knows lists.
#pragma once

#include "driver/Navigation.h"
#include "harvest/Downloads.h"
#include "lists/ManualDesk.h"

class ManualItems : public QObject
{
    Q_OBJECT

  public:
    ManualItems(const Context &context, const ManualPanel &panel, const ManualDesk &desk, Downloads &downloads,
                Navigation &navigation)
        : mContext(context), mPanel(panel), mDesk(desk), mDownloads(downloads), mNavigation(navigation)
    {
    }

    [[nodiscard]] bool areFiles() const { return mPanel.cboFilesSites.listIndex() == 0; }
    /// The name of the file at `url`; "" where it is none, or where items are sites.
    [[nodiscard]] QString GetFileNameMNDL(const QString &url) const;
    /// Fetches the file at `url`, or opens it as a site unless `noOpen`. With "" the address that GetUseBaseUrl gives
    /// for `mode`. The file's name, whether it came or was refused; "" for what is no file.
    QString NavFileOrSite(int mode, const QString &url, bool noOpen, Downloads::Turn turn = Downloads::Turn::First);
    /// What came of the last file: it is there, or it was too small.
    [[nodiscard]] bool hasArrived() const { return mDownloads.hasArrived(); }
    [[nodiscard]] qint64 leastSize() const { return mDownloads.leastSize(); }

  Q_SIGNALS:
    /// A file has come, under that name in the user's folder.
    void fileArrived(const QString &name);

  private:
    Context mContext;
    const ManualPanel &mPanel;
    const ManualDesk &mDesk;
    Downloads &mDownloads;
    Navigation &mNavigation;
};
