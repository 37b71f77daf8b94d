// A combo box that tells when its list opens, and that the mouse wheel does not change in passing: a choice here may
// start a browser.
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
    void wheelEvent(QWheelEvent *event) override;
};
