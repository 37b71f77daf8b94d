// A picture that goes: for a moment it slides away or fades, over the one that has taken its place. Goes by itself.
#pragma once

#include <QPixmap>
#include <QWidget>

class PictureGoing : public QWidget
{
    Q_OBJECT

  public:
    enum class Way { Slide, Fade };
    static constexpr int milliseconds = 120;

    /// Lets what `view` shows go, in the middle of it; one that still goes is cut short. Nothing happens where the
    /// desktop wants no motion.
    static void letGo(QWidget &view, Way way);

  protected:
    void paintEvent(QPaintEvent *event) override;

  private:
    PictureGoing(QWidget &view, Way way);

    QPixmap mPicture;
    Way mWay;
    double mProgress = 0; ///< 0 to 1
};
