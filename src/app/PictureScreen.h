// Where pictures are shown. A program without windows shows none.
#pragma once

#include <QString>

class PictureScreen
{
  public:
    virtual ~PictureScreen() = default;
    /// Shows the picture file at `path`, which is a jpg, gif or bmp by its name and by its content. Throws RuntimeError
    /// for anything else, for what is damaged and for what is larger than can be shown.
    virtual void LoadPicture(const QString &path) = 0;
};
