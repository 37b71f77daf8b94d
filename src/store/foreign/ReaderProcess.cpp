#include "store/foreign/ReaderProcess.h"
#include "store/AdoErrors.h"
#include "store/StoreFault.h"
#include "util/ProgramParts.h"

#include <QElapsedTimer>
#include <QtEndian>
#include <array>

using namespace Qt::StringLiterals;

namespace {
// How long the reader may be silent, and how long it is waited for at a time, in milliseconds.
constexpr int patience = 10'000;
constexpr int slice = 100;
// A damaged file can send the library round in circles, complaining at each turn. No readable file has so many faults.
constexpr qsizetype longestComplaint = 262'144;
constexpr qsizetype headLength = 5;
// What the library says of pages and rows that it passes over. Of properties, which are no part of the rows, it
// complains too, with their bytes in between.
constexpr std::array seriousComplaints{
    "beyond EOF",          "reading page",          "not a valid table definition", "doesn't match",
    "Invalid page buffer", "Invalid data location", "incorrect memo length",        "unrecognized usage map"};

[[noreturn]] void breakOff(const QString &why)
{
    throw StoreError(StoreFault::Damaged, AdoError::Engine, why);
}
} // namespace

ReaderProcess::ReaderProcess(const QStringList &arguments)
{
    // Settings of the library that a user may have must not change what is read.
    auto environment = QProcessEnvironment::systemEnvironment();
    for (const QString &name : environment.keys()) {
        if (name.startsWith("MDB"_L1))
            environment.remove(name);
    }
    mProcess.setProcessEnvironment(environment);
    mProcess.setStandardInputFile(QProcess::nullDevice());
    mProcess.start(cUtility::programPart(u"trawlex-mdb-reader"_s), arguments, QIODevice::ReadOnly);
    if (!mProcess.waitForStarted(patience))
        breakOff(u"The reader of other databases cannot be started."_s);
}

ReaderProcess::~ReaderProcess()
{
    mProcess.kill();
    mProcess.waitForFinished();
}

void ReaderProcess::fill(qsizetype count)
{
    if (mPlace > 0) {
        mBytes.remove(0, mPlace);
        mPlace = 0;
    }
    QElapsedTimer silence;
    silence.start();
    while (mBytes.size() < count) {
        const bool ended = mProcess.state() == QProcess::NotRunning;
        if (mProcess.bytesAvailable() == 0 && !ended)
            mProcess.waitForReadyRead(slice);
        mComplaint += mProcess.readAllStandardError();
        const QByteArray arrived = mProcess.readAllStandardOutput();
        if (!arrived.isEmpty())
            silence.restart();
        else if (ended || mComplaint.size() > longestComplaint || silence.hasExpired(patience))
            breakOff(u"The database cannot be read: its reader ended or does not answer."_s);
        mBytes += arrived;
    }
}

// The library goes on after what it complains about; what it gives then is not all that there is.
void ReaderProcess::requireNoComplaint()
{
    mProcess.waitForFinished(patience);
    mComplaint += mProcess.readAllStandardError();
    for (const char *serious : seriousComplaints) {
        if (mComplaint.contains(serious))
            breakOff(u"The database is damaged: %1."_s.arg(QLatin1StringView(serious)));
    }
}

std::optional<ReaderProcess::Frame> ReaderProcess::next()
{
    if (mBytes.size() - mPlace < headLength)
        fill(headLength);
    const char *head = mBytes.constData() + mPlace;
    const auto length = qFromLittleEndian<quint32>(head + 1);
    if (length > Frames::maxLength)
        breakOff(u"The reader's answer is damaged."_s);
    if (mBytes.size() - mPlace < headLength + qsizetype(length))
        fill(headLength + qsizetype(length));
    Frame frame{mBytes.at(mPlace), mBytes.mid(mPlace + headLength, length)};
    mPlace += headLength + qsizetype(length);
    if (frame.kind == Frames::Failure)
        breakOff(QString::fromUtf8(frame.bytes));
    if (frame.kind == Frames::End) {
        requireNoComplaint();
        return std::nullopt;
    }
    return frame;
}
