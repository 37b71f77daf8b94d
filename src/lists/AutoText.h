// Remembered series: for each manual list a table of addresses with a number that changes, and how it changes. The
// address box of the Manual tab offers those of the list on show. Knows the store.
#pragma once

#include "app/Context.h"
#include "lists/ManualDesk.h"
#include "pages/Series.h"
#include "store/DatabaseHolder.h"

#include <optional>

class AutoText
{
  public:
    AutoText(const Context &context, SeriesPanel &panel, const ManualDesk &desk, DatabaseHolder &database)
        : mContext(context), mPanel(panel), mDesk(desk), mDatabase(database)
    {
    }

    /// What is remembered of the address in the box; position 0 where nothing is.
    [[nodiscard]] SeriesRules::Row GetAutoTextData();
    /// The position of a row; "" for either means the list on show or the address in the box. 0 without such a row.
    [[nodiscard]] qint64 GetAutoIncrNumber(const QString &table, const QString &url);
    /// The address in the box is remembered with that position, in the form that it is stored in.
    [[nodiscard]] bool isRemembered(int position);
    /// Offers the addresses of the list on show; the text in the box stays.
    void LoadAutoTextUrls();
    /// Remembers `url`, or with "" the address in the box, with the numbers as the boxes show them.
    void AddAutoTextUrl(const QString &url, int position);
    /// Forgets it, and empties the box.
    void RemoveAutoTextUrl(const QString &url);
    /// Forgets every form of `series` that was remembered before.
    void removeSameSeries(const Series &series);

  private:
    struct Stored
    {
        QString start, position, step;
    };
    [[nodiscard]] QString table() const;
    [[nodiscard]] Stored stored(const QString &table, const QString &url);
    [[nodiscard]] QString add(const QString &url, int position);
    [[nodiscard]] int placeOf(const QString &url) const;
    [[nodiscard]] std::optional<QString> forget(const QString &url);
    [[nodiscard]] QString remove(const QString &url);
    [[nodiscard]] bool isStored(const QString &url);

    Context mContext;
    SeriesPanel &mPanel;
    const ManualDesk &mDesk;
    DatabaseHolder &mDatabase;
};
