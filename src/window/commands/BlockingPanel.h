// The events of the blocked texts and of the Quick Block label, each led to the operation that answers it.
#pragma once

#include "app/Context.h"
#include "app/frmSearch.h"
#include "lists/Blocking.h"
#include "window/commands/ListMenu.h"

class BlockingPanel : public QObject
{
    Q_OBJECT

  public:
    BlockingPanel(const Context &context, frmSearch &form, Blocking &blocking, ListMenu &menu);

  private:
    void connectList(Blocking::Kind kind, BlockedTexts &texts, ListMenu &menu);
    void lblAutoCollect_MouseDown(MouseButton button);
    void lblAutoCollect_MouseMove();

    Context mContext;
    frmSearch &mForm;
    Blocking &mBlocking;
};
