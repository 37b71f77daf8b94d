// The picture browser's window: the list at the left, the picture beside it, below them the two commands of a walk. It
// follows the size of the picture as far as the screen has room.
#pragma once

#include "app/frmFoto.h"
#include "ui/binding/Binder.h"
#include "ui/pictures/PictureView.h"
#include "ui/pictures/PicturesAhead.h"

class ItemList;
class PathLabel;
class QLabel;
class QPushButton;

class PictureWindow : public QWidget
{
    Q_OBJECT

  public:
    /// `form` outlives the window.
    explicit PictureWindow(frmFoto &form, QWidget *main = nullptr);
    ~PictureWindow() override;

    /// Shows a picture. Throws RuntimeError for what is none, and says so in its place.
    void LoadPicture(const QString &path);

  Q_SIGNALS:
    /// The window still stands where it was.
    void closing();

  protected:
    void resizeEvent(QResizeEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

  private:
    void build();
    [[nodiscard]] QWidget *commands();
    [[nodiscard]] QPushButton *command(MenuItem &item, const QString &name);
    void connectKeys();
    void connectForm();
    void readAhead();
    void showState();
    void showActualSize();
    void showThumbnails();
    void showMore();
    /// What the screen leaves to a picture.
    [[nodiscard]] QSize roomForPictures() const;
    void follow(QSize picture);

    frmFoto &mForm;
    Binder mBinder;
    PicturesAhead mAhead;
    ItemList *lstFoto;
    PictureView *picFoto;
    PathLabel *mTarget;
    QLabel *mPosition;
    QPushButton *mMore;
    QString mPath;
    int mLastIndex = -1;
};
