// A log that counts the records of a text routine and refuses those that are not its own.
#pragma once

#include "util/Errors.h"
#include "util/QtPrint.h"

class Records : public ErrorReceiver
{
  public:
    /// Expects errors of number 5 of this procedure.
    explicit Records(QLatin1StringView location) : mLocation(location) {}

    void ErrorLogger(qint64 number, const QString &description, const QString &module, const QString &location) override
    {
        EXPECT_EQ(number, ErrorNumber::InvalidProcedureCall);
        EXPECT_EQ(description, QStringLiteral("Invalid procedure call or argument"));
        EXPECT_EQ(module, QStringLiteral("cIEObject"));
        EXPECT_EQ(location, QString(mLocation));
        ++count;
    }
    int count = 0;

  private:
    QLatin1StringView mLocation;
};
