// The other end of the process that reads other programs' files: starts it, takes its frames one by one, and holds it
// to its limits. Inside store/ only.
#pragma once

#include "store/reader/Frames.h"

#include <QByteArray>
#include <QProcess>
#include <QStringList>
#include <optional>

class ReaderProcess
{
  public:
    struct Frame
    {
        char kind = 0;
        QByteArray bytes;
    };

    /// Starts the reader with these arguments. Error 53 where its program is missing.
    explicit ReaderProcess(const QStringList &arguments);
    /// Ends the process.
    ~ReaderProcess();
    ReaderProcess(const ReaderProcess &) = delete;
    ReaderProcess &operator=(const ReaderProcess &) = delete;

    /// The next frame; nothing behind the last one of a complete answer. Error AdoError::Engine for an answer that
    /// fails, breaks off, breaks the form, or stays out for ten seconds.
    [[nodiscard]] std::optional<Frame> next();

  private:
    void fill(qsizetype count);
    void requireNoComplaint();

    QProcess mProcess;
    QByteArray mBytes;
    qsizetype mPlace = 0;
    QByteArray mComplaint;
};
