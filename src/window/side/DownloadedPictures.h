// Shows what the Manual run has fetched: in the browser, or in the picture browser's window, if that is wanted at all.
#pragma once

#include "app/FormGroups.h"
#include "driver/Navigation.h"
#include "window/side/PictureBrowser.h"

class DownloadedPictures
{
  public:
    DownloadedPictures(const FilePlaces &places, const ManualPanel &panel, const frmFoto &window,
                       PictureBrowser &pictures, Navigation &navigation)
        : mPlaces(places), mPanel(panel), mWindow(window), mPictures(pictures), mNavigation(navigation)
    {
    }

    /// `name` is a file of the user's folder for downloads, or a path.
    void OpenFiles(const QString &name);

  private:
    const FilePlaces &mPlaces;
    const ManualPanel &mPanel;
    const frmFoto &mWindow;
    PictureBrowser &mPictures;
    Navigation &mNavigation;
};
