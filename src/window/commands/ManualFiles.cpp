#include "window/commands/ManualFiles.h"

#include "app/SettingKeys.h"
#include "lists/ChosenItem.h"
#include "lists/ListFile.h"
#include "pages/Addresses.h"
#include "util/FileNames.h"
#include "window/commands/CommandRows.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {
constexpr cIEText::ServerParts withoutType{false, true, true};
} // namespace

ManualFiles::ManualFiles(const Context &context, const Menu &menu, FilePlaces &places, const ManualDesk &desk,
                         const ManualWork &work, ManualFeed &feed, BrowserHolder &browser)
    : mContext(context), mPlaces(places), mDesk(desk), mWork(work), mFeed(feed), mBrowser(browser)
{
    static constexpr CommandRow<ManualFiles> rows[] = {
        {"mnuMNLoadLinksFile"_L1, "Sub mnuMNLoadLinksFile_Click"_L1, &ManualFiles::loadChosen},
        {"mnuMNSaveAsFile"_L1, "Sub mnuMNSaveAsFile_Click"_L1, &ManualFiles::saveAs},
    };
    connectCommands(*this, rows, menu, context.log, work.work());
}

bool ManualFiles::loadFile(const QString &path)
{
    bool taken = false;
    mWork.count(u"Please Wait"_s, [&] {
        QString message = mFeed.loadFile(mDesk.list(), path);
        taken = message.isEmpty();
        return message;
    });
    return taken;
}

void ManualFiles::loadChosen()
{
    mWork.count(u"Please Wait"_s, [&] {
        const QString last = mContext.settings.GetSetting(Sections::Main, Keys::FileOfUrls);
        const QString start = QFile::exists(last) ? last : mPlaces.txtSFMNDir.text();
        const QString path = mContext.dialogs.chooseFile(start, u"text (*.txt)|*.txt|"_s, u"Select File"_s);
        if (path.isEmpty())
            return QString();
        mContext.settings.SaveSetting(Sections::Main, Keys::FileOfUrls, path);
        return mFeed.loadFile(mDesk.list(), path);
    });
}

/// What the file is named after: the server of the one selected item, else of the page on show.
QString ManualFiles::base()
{
    const QString url = mDesk.list().selCount() == 1 ? chosenItem(mDesk.list())
                        : mBrowser.isSet()           ? mBrowser->GetSiteUrl()
                                                     : QString();
    return cIEText::GetServerFromUrl(url, withoutType);
}

void ManualFiles::keepFolder(const QString &path)
{
    const QString folder = path.left(path.lastIndexOf(cUtility::FolderSeparator) + 1);
    if (folder == mPlaces.txtSFMNDir.text())
        return;
    mPlaces.txtSFMNDir.setText(folder);
    mContext.settings.SaveSetting(Sections::Main, Keys::FileSaveDir, folder);
}

void ManualFiles::saveAs()
{
    if (mDesk.list().listCount() == 0)
        return;
    const QString path = mContext.dialogs.chooseFileToAppend(ListFile::proposal(mPlaces.txtSFMNDir.text(), base()),
                                                             u"Text (*.txt)|*.txt|"_s, u"Select File"_s);
    if (path.isEmpty())
        return;
    keepFolder(path);
    const QString fault = ListFile::append(path, mDesk.list().items());
    if (!fault.isEmpty())
        mContext.status.UpDateStatus(fault);
}
