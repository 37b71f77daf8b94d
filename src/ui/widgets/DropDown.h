// A combo box that tells when its list opens, and that neither the mouse wheel nor a key meant for another control
// changes in passing: a choice here may start a browser.
#pragma once

#include <QComboBox>

class DropDown : public QComboBox
{
    Q_OBJECT

  public:
    explicit DropDown(QWidget *parent = nullptr) : QComboBox(parent) {}
    void showPopup() override;

  Q_SIGNALS:
    void opening();

  protected:
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
};
