// Shows the program's name while it starts.
#pragma once

#include <QSplashScreen>

class Splash : public QSplashScreen
{
    Q_OBJECT

  public:
    Splash();

  protected:
    void drawContents(QPainter *painter) override;
};
