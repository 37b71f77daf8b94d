// Run-time errors as the rules of the program know them: a number and a description.
// A procedure ends its own errors: it hands them to an ErrorReceiver and yields what it has built. Knows nobody.
#pragma once

#include <QString>
#include <exception>

/// The error numbers that the rules name.
namespace ErrorNumber {
constexpr qint64 InvalidProcedureCall = 5;
constexpr qint64 OutOfMemory = 7;
constexpr qint64 SubscriptOutOfRange = 9;
constexpr qint64 TypeMismatch = 13;
constexpr qint64 InternalError = 51;
constexpr qint64 FileNotFound = 53;
constexpr qint64 BadFileName = 52;
constexpr qint64 DeviceIoError = 57;
constexpr qint64 PathAccessError = 75;
constexpr qint64 PathNotFound = 76;
constexpr qint64 ObjectNotSet = 91;
constexpr qint64 InvalidPropertyValue = 380;
constexpr qint64 InvalidPicture = 481;
} // namespace ErrorNumber

/// An error with its number and description.
class RuntimeError : public std::exception
{
  public:
    RuntimeError(qint64 number, QString description)
        : mNumber(number), mDescription(std::move(description)), mWhat(mDescription.toUtf8())
    {
    }
    [[nodiscard]] qint64 number() const { return mNumber; }
    [[nodiscard]] const QString &description() const { return mDescription; }
    [[nodiscard]] const char *what() const noexcept override { return mWhat.constData(); }

  private:
    qint64 mNumber;
    QString mDescription;
    QByteArray mWhat;
};

/// Takes every error that a procedure ends.
class ErrorReceiver
{
  public:
    virtual ~ErrorReceiver() = default;
    virtual void ErrorLogger(qint64 number, const QString &description, const QString &module,
                             const QString &location) = 0;
    /// This receiver for callers that would have thousands of records to make; null while nothing becomes of them.
    [[nodiscard]] virtual ErrorReceiver *ifListening() { return this; }
};

/// Where an error happened: the object's name and the kind and name of the procedure, as they stand in the log.
struct Place
{
    QLatin1StringView module;
    QLatin1StringView location;
};

/// The error being handled, whatever its type, in the form that the log takes. Call inside a catch block only.
[[nodiscard]] RuntimeError currentError();

/// Runs `body` as one procedure: an error goes to `log` under `place` and ends there. True when `body` ran to its end.
template <class Body> bool guarded(ErrorReceiver &log, Place place, Body &&body)
{
    try {
        body();
        return true;
    } catch (...) {
        const RuntimeError error = currentError();
        log.ErrorLogger(error.number(), error.description(), place.module, place.location);
        return false;
    }
}

/// Runs `body(result)` as one function: what it has built in `result` is the answer, also after an error.
template <class Result, class Body>
[[nodiscard]] Result guardedResult(ErrorReceiver &log, Place place, Result result, Body &&body)
{
    guarded(log, place, [&] { body(result); });
    return result;
}
