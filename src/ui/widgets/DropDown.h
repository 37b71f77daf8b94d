// A combo box that tells when its list opens, and that neither the mouse wheel nor a key meant for another control
// changes in passing: a choice here may start a browser.
#pragma once

#include <QComboBox>
#include <QStringList>

class DropDown : public QComboBox
{
    Q_OBJECT
    Q_PROPERTY(QStringList shortTexts READ shortTexts WRITE setShortTexts)

  public:
    explicit DropDown(QWidget *parent = nullptr) : QComboBox(parent) {}
    /// What stands for each item while the list is closed; the box is no wider than these.
    [[nodiscard]] const QStringList &shortTexts() const { return mShortTexts; }
    void setShortTexts(const QStringList &texts);
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    void showPopup() override;

  Q_SIGNALS:
    void opening();

  protected:
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

  private:
    [[nodiscard]] QSize shortened(QSize size) const;

    QStringList mShortTexts;
};
