// The errors of SQLite in the form that the rules know, and what they tell of the file. Inside store/ only.
#pragma once

#include "store/AdoErrors.h"
#include "store/StoreFault.h"

#include <SQLiteCpp/Exception.h>

struct sqlite3;

/// Throws what an error of SQLite means: a StoreError for a fault of the file at `path`, a RuntimeError for all else,
/// each with SQLite's own text. `handle` is the open file, nullptr where it could not be opened.
[[noreturn]] void raiseEngineError(const SQLite::Exception &error, const QString &path, sqlite3 *handle);

/// Runs one step that opens the file at `path`.
template <class Step> auto openingStep(const QString &path, Step &&step)
{
    try {
        return step();
    } catch (const SQLite::Exception &error) {
        raiseEngineError(error, path, nullptr);
    }
}

/// Runs the steps of one open file, and keeps the first fault that the file had.
class EngineSteps
{
  public:
    EngineSteps(sqlite3 *handle, QString path) : mHandle(handle), mPath(std::move(path)) {}

    template <class Step> auto run(Step &&step)
    {
        try {
            return step();
        } catch (const SQLite::Exception &error) {
            raise(error);
        }
    }

    /// Throws what a code of SQLite means.
    [[noreturn]] void raise(int code);

    [[nodiscard]] sqlite3 *handle() const { return mHandle; }
    [[nodiscard]] const QString &path() const { return mPath; }
    void note(StoreFault fault);
    /// None where nothing happened since it was forgotten.
    [[nodiscard]] StoreFault firstFault() const { return mFirstFault; }
    void forgetFaults() { mFirstFault = StoreFault::None; }

  private:
    [[noreturn]] void raise(const SQLite::Exception &error);

    sqlite3 *mHandle;
    QString mPath;
    StoreFault mFirstFault = StoreFault::None;
};
