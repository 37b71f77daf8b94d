// A server, a folder and both ways of fetching.
#pragma once

#include "RawServer.h"
#include "support/Fakes.h"
#include "transfer/Body.h"
#include "transfer/cInetWS.h"
#include "transfer/cInternet.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>
#include <gtest/gtest.h>

/// A turn of the event loop as the programs make it.
inline void waitForEvents(qint64 milliseconds)
{
    QTimer deadline;
    deadline.setSingleShot(true);
    deadline.start(int(milliseconds));
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

[[nodiscard]] inline QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
}

inline void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(bytes), bytes.size());
}

/// Every byte there is, `size` of them.
[[nodiscard]] inline QByteArray allBytes(int size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    for (int at = 0; at < size; ++at)
        bytes[at] = char((at * 7 + at / 256) & 0xFF);
    return bytes;
}

class TransferTest : public testing::Test
{
  protected:
    /// The path of a file of the folder.
    [[nodiscard]] QString at(const QString &name) const { return folder.path() + u'/' + name; }
    /// The names in the folder, hidden ones too.
    [[nodiscard]] QStringList names() const
    {
        return QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }
    [[nodiscard]] Download byFirst(const QString &address, const QString &name, qint64 minSize = 0)
    {
        return first.DownLoad(address, at(name), minSize);
    }
    [[nodiscard]] Download bySecond(const QString &address, const QString &name, qint64 minSize = 0)
    {
        return second.APIDownLoad(address, at(name), minSize);
    }

    QTemporaryDir folder;
    RawServer server;
    RecordingLog log;
    Transfers transfers{waitForEvents, 10'000};
    cInetWS first{transfers, log};
    cInternet second{transfers, log};
};
