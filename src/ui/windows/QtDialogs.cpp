#include "ui/windows/QtDialogs.h"

#include "ui/look/Icons.h"
#include "ui/windows/FileDialog.h"
#include "ui/windows/ScreenRoom.h"

#include <QApplication>
#include <QFileInfo>
#include <QGridLayout>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {
constexpr int inputWidth = 336;
constexpr QSize iconSize(32, 32);
/// What the buttons and margins of a title bar take.
constexpr int titleButtons = 140;

QWidget *windowInUse()
{
    if (QWidget *const active = QApplication::activeWindow())
        return active;
    for (QWidget *const window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->windowType() == Qt::Window)
            return window;
    }
    return nullptr;
}

void prepare(QDialog &dialog, const QString &title)
{
    dialog.setWindowTitle(title);
    dialog.setWindowModality(Qt::ApplicationModal);
    // One that is wider than the window on which it is centred.
    QTimer::singleShot(0, &dialog, [&dialog] { ScreenRoom::keepOnScreen(dialog); });
}

/// A box is as wide as its title and the buttons beside it need.
void makeRoomForTitle(QMessageBox &box)
{
    const int width = box.fontMetrics().horizontalAdvance(box.windowTitle()) + titleButtons;
    auto *const grid = qobject_cast<QGridLayout *>(box.layout());
    if (grid != nullptr)
        grid->addItem(new QSpacerItem(width, 0, QSizePolicy::Minimum, QSizePolicy::Fixed), grid->rowCount(), 0, 1,
                      grid->columnCount());
}

UserDialogs::Answer answerTo(const QString &icon, const QString &title, const QString &text,
                             QMessageBox::StandardButtons buttons)
{
    QMessageBox box(QMessageBox::NoIcon, title, text, buttons, windowInUse());
    box.setTextFormat(Qt::PlainText);
    box.setIconPixmap(Icons::inked(icon).pixmap(iconSize, box.devicePixelRatioF()));
    if (buttons.testFlag(QMessageBox::No)) {
        box.setDefaultButton(QMessageBox::No);
        box.setEscapeButton(QMessageBox::No);
    }
    prepare(box, title);
    makeRoomForTitle(box);
    const int pressed = box.exec();
    if (pressed == QMessageBox::Yes)
        return UserDialogs::Answer::Yes;
    return pressed == QMessageBox::Cancel ? UserDialogs::Answer::Cancel : UserDialogs::Answer::No;
}
} // namespace

void QtDialogs::tell(const QString &title, const QString &text)
{
    answerTo(u"warning"_s, title, text, QMessageBox::Ok);
}

UserDialogs::Answer QtDialogs::ask(const QString &title, const QString &text, Icon icon, Answer)
{
    return answerTo(icon == Icon::Critical ? u"warning"_s : u"question"_s, title, text,
                    QMessageBox::Yes | QMessageBox::No);
}

UserDialogs::Answer QtDialogs::askAboutError(const QString &title, const QString &record, const QString &prompt)
{
    return answerTo(u"warning"_s, title, record + u"\n\n"_s + prompt,
                    QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
}

QString QtDialogs::input(const QString &prompt, const QString &title, const QString &proposal)
{
    QInputDialog dialog(windowInUse());
    prepare(dialog, title);
    dialog.setLabelText(prompt);
    dialog.setTextValue(proposal);
    // The dialog takes its size from what is in it.
    if (auto *const line = dialog.findChild<QLineEdit *>())
        line->setMinimumWidth(inputWidth);
    return dialog.exec() == QDialog::Accepted ? dialog.textValue() : QString();
}

QString QtDialogs::chooseFile(const QString &directory, const QString &filter, const QString &title)
{
    FileDialog dialog(windowInUse(), title, directory, qtFilter(filter));
    prepare(dialog, title);
    dialog.setFileMode(QFileDialog::ExistingFile);
    return dialog.choose();
}

QString QtDialogs::chooseFileToAppend(const QString &proposal, const QString &filter, const QString &title)
{
    const QFileInfo proposed(proposal);
    FileDialog dialog(windowInUse(), title, proposed.path(), qtFilter(filter));
    prepare(dialog, title);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setOption(QFileDialog::DontConfirmOverwrite); // what the file holds stays
    dialog.selectFile(proposed.fileName());
    return dialog.choose();
}

QString QtDialogs::qtFilter(const QString &filter)
{
    QStringList filters;
    const QStringList parts = filter.split(u'|');
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString name = parts.at(i).section(u" ("_s, 0, 0);
        const QString pattern = parts.at(i + 1) == "*.*"_L1 ? u"*"_s : parts.at(i + 1);
        if (!pattern.isEmpty())
            filters.append(u"%1 (%2)"_s.arg(name, QString(pattern).replace(u';', u' ')));
    }
    return filters.join(u";;"_s);
}
