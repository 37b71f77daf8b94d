// What the skin brings for the ports: dialogs, desktop, clipboard.
#include "WindowFixture.h"
#include "ui/windows/FileDialog.h"
#include "ui/windows/QtClipboard.h"
#include "ui/windows/QtDesktop.h"
#include "ui/windows/QtDialogs.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>

using namespace Qt::StringLiterals;
using Answer = UserDialogs::Answer;
using Icon = UserDialogs::Icon;

struct Dialogs : WindowFixture
{
    /// Does `action` with the dialog as soon as it stands.
    template <class Kind, class Action> void whenShown(Action action)
    {
        auto *const timer = new QTimer(&window);
        QObject::connect(timer, &QTimer::timeout, timer, [this, timer, action] {
            auto *const dialog = window.findChild<Kind *>();
            if (dialog == nullptr || !dialog->isVisible())
                return;
            timer->deleteLater();
            modality = dialog->windowModality();
            // A dialog that its answer does not close fails the test instead of holding it up.
            QTimer::singleShot(5000, dialog, [dialog] {
                ADD_FAILURE() << "the dialog stands after its answer";
                dialog->reject();
            });
            action(*dialog);
        });
        timer->start(10);
    }

    QtDialogs dialogs;
    Qt::WindowModality modality = Qt::NonModal;
};

TEST_F(Dialogs, AskYesOrNo)
{
    for (const auto &[button, answer] : {std::pair{QMessageBox::Yes, Answer::Yes}, {QMessageBox::No, Answer::No}}) {
        QString title, text;
        whenShown<QMessageBox>([&, pressed = button](QMessageBox &box) {
            title = box.windowTitle();
            text = box.text();
            box.button(pressed)->click();
        });
        EXPECT_EQ(dialogs.ask(u"Program will terminate"_s, u"Shut <b>down</b> Trawlex?"_s, Icon::Critical, Answer::No),
                  answer);
        EXPECT_EQ(title, u"Program will terminate"_s);
        EXPECT_EQ(text, u"Shut <b>down</b> Trawlex?"_s);
        EXPECT_EQ(modality, Qt::ApplicationModal) << "no other window may go on under a question";
    }
}

TEST_F(Dialogs, AClosedQuestionIsNo)
{
    whenShown<QMessageBox>([](QMessageBox &box) { box.reject(); });
    EXPECT_EQ(dialogs.ask(u"title"_s, u"text"_s, Icon::Question, Answer::Yes), Answer::No);
}

TEST_F(Dialogs, TheAnswerThatChangesNothingIsTheDefault)
{
    whenShown<QMessageBox>([](QMessageBox &box) { QTest::keyClick(&box, Qt::Key_Return); });
    EXPECT_EQ(dialogs.ask(u"title"_s, u"Shut down?"_s, Icon::Critical, Answer::Yes), Answer::No);
    whenShown<QMessageBox>([](QMessageBox &box) { QTest::keyClick(&box, Qt::Key_Escape); });
    EXPECT_EQ(dialogs.askAboutError(u"title"_s, u"record"_s, u"Open?"_s), Answer::No);
}

TEST_F(Dialogs, ATitleFitsAndTheSignIsOurs)
{
    const QString title = u"A title that is a good deal longer than what the box has to say"_s;
    int width = 0, needed = 0;
    QSize sign;
    whenShown<QMessageBox>([&](QMessageBox &box) {
        width = box.width();
        needed = box.fontMetrics().horizontalAdvance(title);
        sign = box.iconPixmap().deviceIndependentSize().toSize();
        box.accept();
    });
    dialogs.tell(title, u"No."_s);
    EXPECT_GE(width, needed + 100);
    EXPECT_EQ(sign, QSize(32, 32));
}

TEST_F(Dialogs, TextIsNeverMarkup)
{
    Qt::TextFormat format = Qt::AutoText;
    whenShown<QMessageBox>([&](QMessageBox &box) {
        format = box.textFormat();
        box.accept();
    });
    dialogs.tell(u"title"_s, u"<img src=x>"_s);
    EXPECT_EQ(format, Qt::PlainText);
}

TEST_F(Dialogs, AnErrorHasThreeAnswers)
{
    for (const auto &[button, answer] : {std::pair{QMessageBox::Yes, Answer::Yes},
                                         {QMessageBox::No, Answer::No},
                                         {QMessageBox::Cancel, Answer::Cancel}}) {
        whenShown<QMessageBox>([pressed = button](QMessageBox &box) { box.button(pressed)->click(); });
        EXPECT_EQ(dialogs.askAboutError(u"Error"_s, u"record"_s, u"Show more?"_s), answer);
    }
}

TEST_F(Dialogs, ALineOfTextIsAskedFor)
{
    whenShown<QInputDialog>([](QInputDialog &dialog) {
        EXPECT_EQ(dialog.textValue(), u"Criteria-0"_s);
        EXPECT_GE(dialog.width(), 300) << "room for a longer text, whatever the question";
        dialog.setTextValue(u"mine"_s);
        dialog.accept();
    });
    EXPECT_EQ(dialogs.input(u"Enter"_s, u"New"_s, u"Criteria-0"_s), u"mine"_s);
    whenShown<QInputDialog>([](QInputDialog &dialog) { dialog.reject(); });
    EXPECT_EQ(dialogs.input(u"Enter"_s, u"New"_s, u"Criteria-0"_s), QString());
}

TEST_F(Dialogs, AFileIsChosen)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"browser.exe"_s);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    whenShown<QFileDialog>([&](QFileDialog &dialog) {
        // As the user types it: selectFile() leaves a line alone that has the focus already.
        dialog.findChild<QLineEdit *>(u"fileNameEdit"_s)->setText(path);
        QMetaObject::invokeMethod(&dialog, "accept");
    });
    EXPECT_EQ(dialogs.chooseFile(folder.path(), u"Programs (*.exe)|*.exe|"_s, u"Locate"_s), path);
    whenShown<QFileDialog>([](QFileDialog &dialog) { dialog.reject(); });
    EXPECT_EQ(dialogs.chooseFile(folder.path(), QString(), u"Locate"_s), QString());
}

TEST(FileBoxes, BeginInTheFolderOfTheirPlaceWhetherItsFileIsThereOrNot)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"Trawlex-1.mdb"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    const QString here = QDir(folder.path()).path();
    for (const auto &[place, begin] : {std::pair{folder.path(), here},
                                       {file.fileName(), here},
                                       {folder.filePath(u"Trawlex-0.mdb"_s), here},
                                       {folder.filePath(u"none/Trawlex-0.mdb"_s), QDir::homePath()},
                                       {QString(), QDir::homePath()}}) {
        const FileDialog dialog(nullptr, u"Select File"_s, place, u"all (*)"_s);
        EXPECT_EQ(dialog.directory().path(), begin) << qPrintable(place);
    }
}

TEST(FileFilters, AreWrittenAsQtDoes)
{
    EXPECT_EQ(QtDialogs::qtFilter(u"Programs (*.exe)|*.exe|"_s), u"Programs (*.exe)"_s);
    EXPECT_EQ(QtDialogs::qtFilter(u"All Files (*.*)|*.*|"_s), u"All Files (*)"_s);
    EXPECT_EQ(QtDialogs::qtFilter(u"Pictures|*.jpg;*.gif|Text|*.txt"_s), u"Pictures (*.jpg *.gif);;Text (*.txt)"_s);
    EXPECT_EQ(QtDialogs::qtFilter(QString()), QString());
}

TEST(DesktopTargets, ArePathsOrAddresses)
{
    const QTemporaryDir folder;
    EXPECT_EQ(QtDesktop::addressOf(u"mailto:a@b.example"_s), QUrl(u"mailto:a@b.example"_s));
    EXPECT_EQ(QtDesktop::addressOf(u"http://www.north-harbour.example/x?y=1"_s).host(), u"www.north-harbour.example"_s);
    EXPECT_EQ(QtDesktop::addressOf(folder.path()), QUrl::fromLocalFile(folder.path()));
    EXPECT_EQ(QtDesktop::addressOf(u"/tmp/a file#1.html"_s).toLocalFile(), u"/tmp/a file#1.html"_s);
    QFile odd(folder.filePath(u"mailto:x"_s));
    ASSERT_TRUE(odd.open(QIODevice::WriteOnly));
    EXPECT_TRUE(QtDesktop::addressOf(odd.fileName()).isLocalFile());
}

TEST(Clipboards, KeepText)
{
    QtClipboard clipboard;
    clipboard.setText(u"info@north-harbour.example"_s);
    EXPECT_EQ(clipboard.text(), u"info@north-harbour.example"_s);
}
