// Files, folders and addresses go to whatever the desktop opens them with.
#pragma once

#include "app/Ports.h"

#include <QUrl>

class QtDesktop : public Desktop
{
  public:
    void open(const QString &target) override;

    /// A path as a file address, an address ("mailto:", "http://", "file:") as it stands.
    [[nodiscard]] static QUrl addressOf(const QString &target);
};
