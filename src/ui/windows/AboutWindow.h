// Which program this is, in which version, under which licences it and its parts stand, and on what system it runs. Its
// system information can be copied into a report.
#pragma once

#include <QDialog>
#include <memory>

namespace Ui {
class AboutWindow;
}

class AboutWindow : public QDialog
{
    Q_OBJECT

  public:
    explicit AboutWindow(QWidget *main);
    ~AboutWindow() override;

    /// Versions of program, toolkit and system, screens and scale, one a line.
    [[nodiscard]] static QString systemInformation();

  Q_SIGNALS:
    /// The picture or the name was clicked.
    void helpRequested();

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    std::unique_ptr<Ui::AboutWindow> mUi;
};
