#include "desktop/DesktopSideWindows.h"

#include "app/SettingKeys.h"
#include "desktop/KeptPlace.h"
#include "ui/windows/ScreenRoom.h"
#include "window/WindowPlaces.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QScreen>

using namespace Qt::StringLiterals;

void DesktopSideWindows::magnify(const QString &text)
{
    if (!mMain)
        return;
    const bool isNew = !frmMagnify;
    if (isNew) {
        frmMagnify = new MagnifyWindow(mMain);
        frmMagnify->setAttribute(Qt::WA_DeleteOnClose);
        QObject::connect(frmMagnify, &MagnifyWindow::closing, frmMagnify,
                         [this] { KeptPlace::store(*frmMagnify, mSettings); });
    }
    frmMagnify->Magnify(text);
    if (isNew)
        placeMagnifier();
    frmMagnify->show();
    frmMagnify->raise();
}

void DesktopSideWindows::placeMagnifier()
{
    frmMagnify->placeUnder(*mMain);
    saveOnTop(mSettings, frmMagnify->objectName(), true);
    if (mSettings.GetSetting(Sections::Main, Keys::KeepMagnifyPlace, u"0"_s) != "1"_L1)
        return;
    const QSize kept = storedSize(mSettings, frmMagnify->objectName(), frmMagnify->size());
    frmMagnify->resize(kept.width(), frmMagnify->height()); // as high as its text
    KeptPlace::restore(*frmMagnify, mSettings, *mMain);
}

void DesktopSideWindows::showAbout()
{
    if (!mMain)
        return;
    if (!frmAbout) {
        frmAbout = new AboutWindow(mMain);
        if (hasStoredPlace(mSettings, frmAbout->objectName()))
            KeptPlace::restore(*frmAbout, mSettings, *mMain);
        QObject::connect(frmAbout, &AboutWindow::helpRequested, frmAbout, [this] { showHelp(); });
        QObject::connect(frmAbout, &QDialog::finished, frmAbout, [this] { KeptPlace::store(*frmAbout, mSettings); });
    }
    frmAbout->show();
    frmAbout->raise();
}

void DesktopSideWindows::showHelp()
{
    const QString page = manual();
    if (!page.isEmpty())
        mDesktop.open(page);
}

QString DesktopSideWindows::manual()
{
    for (const auto &place : {u"/manual/index.html"_s, u"/../share/doc/trawlex/manual/index.html"_s,
                              u"/../../../docs/manual/index.html"_s}) {
        const QFileInfo page(QCoreApplication::applicationDirPath() + place);
        if (page.exists())
            return page.canonicalFilePath();
    }
    return {};
}

bool DesktopSideWindows::chooseDirectory(const QString &directory, std::function<void(const QString &directory)> chosen)
{
    if (!mMain || mobjDirSel)
        return false;
    mobjDirSel = new DirectoryWindow(mMain);
    mobjDirSel->InitDir(directory);
    mobjDirSel->adjustSize();
    ScreenRoom::placeInMiddle(*mobjDirSel, mMain->screen()->availableGeometry());
    QObject::connect(mobjDirSel, &DirectoryWindow::DirSelectionChanged, mobjDirSel,
                     [this, chosen = std::move(chosen)](const QString &choice) {
                         // Whoever is told may open the next one.
                         mobjDirSel.clear();
                         chosen(choice);
                     });
    mobjDirSel->show();
    return true;
}
