// Two panels side by side, or one above the other where there is too little width for both.
#pragma once

#include <QResizeEvent>
#include <QSplitter>

class SideSplitter : public QSplitter
{
    Q_OBJECT

  public:
    explicit SideSplitter(QWidget *parent = nullptr) : QSplitter(Qt::Vertical, parent)
    {
        setChildrenCollapsible(false);
        setHandleWidth(8);
    }

  protected:
    void resizeEvent(QResizeEvent *event) override
    {
        constexpr int roomForBoth = 640;
        setOrientation(event->size().width() < roomForBoth ? Qt::Vertical : Qt::Horizontal);
        QSplitter::resizeEvent(event);
    }
};
