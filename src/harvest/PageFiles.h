// Writes an accepted page as a file of its own, or at the end of the one file. Knows driver.
#pragma once

#include "harvest/PageData.h"
#include "store/StoreFault.h"

class QFileDevice;

class PageFiles
{
  public:
    PageFiles(ErrorReceiver &log, const Outputs &outputs, const FilePlaces &places, PageData &data)
        : mLog(log), mOutputs(outputs), mPlaces(places), mData(data)
    {
    }

    /// True if the page was written; a file that could not be written whole is not left behind.
    [[nodiscard]] bool SaveFile(PageReading &page);
    /// Why the last SaveFile wrote nothing although there was something to write; None otherwise.
    [[nodiscard]] StoreFault fault() const { return mFault; }
    /// Undoes the last SaveFile.
    void takeBack();

  private:
    [[nodiscard]] QString path(const QString &folder) const;
    [[noreturn]] void fail(const QString &folder, const QFileDevice &file, StoreFault otherwise);
    [[nodiscard]] QByteArray inFile(const QString &data, bool atBegin) const;

    ErrorReceiver &mLog;
    const Outputs &mOutputs;
    const FilePlaces &mPlaces;
    PageData &mData;
    StoreFault mFault = StoreFault::None;
    QString mLast; ///< the file last written to, as long as that can be taken back
    qint64 mSizeBefore = 0;
};
