// Shows one picture on a dark ground: fitted into the room that there is, or pixel for pixel, to be dragged about. What
// moves is played.
#pragma once

#include "ui/pictures/PictureReader.h"

#include <QMovie>
#include <QScrollArea>
#include <memory>

class PictureView : public QScrollArea
{
    Q_OBJECT

  public:
    explicit PictureView(QWidget *parent = nullptr);
    ~PictureView() override;

    /// Shows a picture; `path` is played if it moves.
    void showPicture(const Picture &picture, const QString &path);
    /// Says in the picture's place why there is none.
    void refuse(const QString &reason);
    /// Pixel for pixel, instead of fitted.
    void setActualSize(bool actual);
    [[nodiscard]] bool isActualSize() const { return mActualSize; }
    /// What is drawn now, at the size at which it is drawn.
    [[nodiscard]] QSize drawnSize() const;
    [[nodiscard]] const QMovie *movie() const { return mMovie.get(); }

  Q_SIGNALS:
    void doubleClicked();

  protected:
    void resizeEvent(QResizeEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    [[nodiscard]] QImage current() const;
    /// In our pixels, as the picture is in the screen's.
    [[nodiscard]] QSize wholeSize() const;
    void arrange();
    void paintPicture();
    void drag(const QPoint &to);

    QWidget *mCanvas;
    Picture mPicture;
    QString mReason;
    std::unique_ptr<QMovie> mMovie;
    QPoint mDraggedFrom;
    bool mActualSize = false;
};
