// The desktop's clipboard.
#pragma once

#include "app/Ports.h"

class QtClipboard : public ClipboardText
{
  public:
    [[nodiscard]] QString text() const override;
    void setText(const QString &text) override;
};
