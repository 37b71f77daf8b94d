// A line to a browser on which each command comes some time after the one before it, as from a program that gets little
// of the processor. What the browser says comes through at once.
#pragma once

#include "engine/chromium/DevToolsPipe.h"

#include <QTimer>
#include <chrono>
#include <deque>

class SlowLine : public DevToolsPipe
{
  public:
    SlowLine(std::shared_ptr<DevToolsPipe> browser, std::chrono::milliseconds gap);

    void send(const QJsonObject &message) override { mCommands.push_back(message); }
    [[nodiscard]] qint64 nextId() override { return mBrowser->nextId(); }
    [[nodiscard]] bool isOpen() const override { return mBrowser->isOpen(); }

  private:
    const std::shared_ptr<DevToolsPipe> mBrowser;
    QTimer mGap;
    std::deque<QJsonObject> mCommands;
};
