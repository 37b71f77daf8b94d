// A file that takes its name only once it is complete, and never takes one that is taken. Until then it lies beside its
// place under a name of its own, which goes with the object. For this user alone to read and write. Knows store's
// faults.
#pragma once

#include <QTemporaryFile>

class NewFile
{
  public:
    /// Errors: 58 for a name that is taken, 76 for a folder that is not there, 75 for one that may not be written.
    explicit NewFile(const QString &path);

    /// Where the file lies until it is complete, for those that write by name.
    [[nodiscard]] QString placeUntilComplete() const { return mFile.fileName(); }
    /// Appends. Error 61 for a full disk, 57 for another fault.
    void write(const QByteArray &bytes);
    /// Gives the file its name. Errors as those of writing, and 58 where the name has been taken meanwhile.
    void commit();

  private:
    [[noreturn]] void fail() const;

    QString mPath;
    QTemporaryFile mFile;
};
