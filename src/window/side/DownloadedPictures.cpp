#include "window/side/DownloadedPictures.h"

#include "util/FileNames.h"

#include <QFileInfo>
#include <QUrl>

using namespace Qt::StringLiterals;
using cUtility::FilePart;

void DownloadedPictures::OpenFiles(const QString &name)
{
    const auto part = [&name](FilePart wanted) {
        return cUtility::filePart(wanted, name, cUtility::FolderSeparator).toString();
    };
    const bool isName = !name.contains(cUtility::FolderSeparator);
    const QString directory = isName ? mPlaces.txtSFMNDir.text() : part(FilePart::Folder);
    const QString path = directory + (isName ? name : part(FilePart::NameAndExtension));
    if (mPanel.chkSMOpenDownloadedGraphics.value() != 1)
        return;
    if (mPanel.chkMNUseFotoBrwse.value() != 1)
        mNavigation.OpenSite(QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded));
    else if (!mWindow.isOpen())
        mPictures.LoadDirectory(directory);
    else if (QFileInfo(path).isFile())
        mPictures.addPicture(path);
}
