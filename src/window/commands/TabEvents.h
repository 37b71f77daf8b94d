// The clicks on tabs: each tells where the user is.
#pragma once

#include "app/Context.h"
#include "app/FormGroups.h"

class TabEvents : public QObject
{
    Q_OBJECT

  public:
    TabEvents(const Context &context, const WindowFrame &frame);

  private:
    void tell(const QStringList &path);

    Context mContext;
};
