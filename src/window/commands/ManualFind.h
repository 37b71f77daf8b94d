// Looking for an item in the manual list on show: by a text, on from the last hit, or by the remembered position.
#pragma once

#include "app/Context.h"
#include "lists/ManualDesk.h"
#include "lists/ManualTables.h"

class ManualFind : public QObject
{
    Q_OBJECT

  public:
    ManualFind(const Context &context, const Menu &menu, const ManualDesk &desk, ManualTables &tables,
               const LongWork &work);

    /// The last search can go on. The text and the place are not bound to a list.
    [[nodiscard]] bool canGoOn() const { return !mFindTextMN.isEmpty() && mFindNextMN > 0; }
    void forget();

  private:
    void anyText();
    void next();
    void position();
    void tell(int found, const QString &text);

    Context mContext;
    const ManualDesk &mDesk;
    ManualTables &mTables;
    QString mFindTextMN;
    int mFindNextMN = 0;
};
