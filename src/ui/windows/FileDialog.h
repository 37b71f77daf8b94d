// A box in which a file is chosen. It opens none of those that it shows, which no desktop's own box promises.
#pragma once

#include "ui/look/FileIcons.h"

#include <QFileDialog>

// The icons are in use for as long as any part of the box is there: they come first.
class FileDialog : private FileIcons, public QFileDialog
{
  public:
    /// Begins with `place`, a folder or a file in one (which may not be there), else at home. `filter` as Qt writes it.
    FileDialog(QWidget *parent, const QString &title, const QString &place, const QString &filter);
    /// Asks the user. "" when the box was cancelled.
    [[nodiscard]] QString choose();
};
