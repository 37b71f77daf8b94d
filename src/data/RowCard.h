// The row in use as a card: its title and address, and what else is stored of its page. Filled while it is on show, a
// moment after the user has come to rest on a row. Knows controls and store.
#pragma once

#include "app/FormGroups.h"
#include "store/DatabaseHolder.h"
#include "util/Errors.h"

#include <QTimer>

class RowCard : public QObject
{
    Q_OBJECT

  public:
    RowCard(ErrorReceiver &log, DataBoxes &data, DatabaseHolder &database);

    /// Fills the card at once.
    void show();

  private:
    [[nodiscard]] QString value(QLatin1StringView field) const;
    [[nodiscard]] QString pageIndex() const;
    [[nodiscard]] CardContent content();
    void addPage(CardContent &card, const QString &index);
    [[nodiscard]] QStringList found(QLatin1StringView table, QLatin1StringView field, const QString &index,
                                    const QString &url);

    ErrorReceiver &mLog;
    DataBoxes &mData;
    DatabaseHolder &mDatabase;
    QTimer mRest;
};
