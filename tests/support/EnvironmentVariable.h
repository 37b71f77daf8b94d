// An environment variable with another value for one test.
#pragma once

#include <QByteArray>
#include <QtGlobal>

class EnvironmentVariable
{
  public:
    EnvironmentVariable(const char *name, const QByteArray &value) : mName(name), mBefore(qgetenv(name))
    {
        qputenv(name, value);
    }
    ~EnvironmentVariable()
    {
        if (mBefore.isNull())
            qunsetenv(mName);
        else
            qputenv(mName, mBefore);
    }
    Q_DISABLE_COPY_MOVE(EnvironmentVariable)

  private:
    const char *mName;
    QByteArray mBefore;
};
