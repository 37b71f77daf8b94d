// Icons and kinds of files by their names alone. The usual ones look into files whose name says nothing, and a program
// that has opened and closed a file has given up every lock that it holds on it: those on the files beside a database
// too, which keep other programs from clearing them away.
#pragma once

#include <QFileIconProvider>

class FileIcons : public QFileIconProvider
{
  public:
    using QFileIconProvider::icon;
    [[nodiscard]] QIcon icon(const QFileInfo &file) const override;
    [[nodiscard]] QString type(const QFileInfo &file) const override;
};
