#include "ui/windows/AboutWindow.h"

#include "ui/look/Icons.h"
#include "ui/windows/ScreenRoom.h"
#include "ui_AboutWindow.h"

#include <QClipboard>
#include <QEvent>
#include <QGuiApplication>
#include <QLayout>
#include <QLibraryInfo>
#include <QMouseEvent>
#include <QScreen>
#include <QSysInfo>
#include <QtWebEngineCore/qtwebenginecoreversion.h>

using namespace Qt::StringLiterals;

namespace {
constexpr QSize pictureSize(56, 56);
constexpr double titleSize = 1.7;
} // namespace

AboutWindow::AboutWindow(QWidget *main) : QDialog(main), mUi(std::make_unique<Ui::AboutWindow>())
{
    mUi->setupUi(this);
    setObjectName(u"frmAbout"_s);
    setAttribute(Qt::WA_DeleteOnClose);
    mUi->picDisplay->setPixmap(Icons::application().pixmap(pictureSize, devicePixelRatioF()));
    QFont large = mUi->lblTitle->font();
    large.setPointSizeF(large.pointSizeF() * titleSize);
    large.setBold(true);
    mUi->lblTitle->setFont(large);
    mUi->lblTitle->setText(u"Trawlex"_s);
    mUi->lblVersion->setText(u"Version "_s + QStringLiteral(TRAWLEX_VERSION));
    mUi->lblName->setForegroundRole(QPalette::Link);
    mUi->systemText->setPlainText(systemInformation());
    mUi->systemText->hide();
    mUi->copyButton->hide();
    for (QLabel *const link : {mUi->picDisplay, mUi->lblName}) {
        link->setCursor(Qt::PointingHandCursor);
        link->installEventFilter(this);
    }
    connect(mUi->cmdOK, &QPushButton::clicked, this, &QDialog::accept);
    connect(mUi->cmdSysInFo, &QPushButton::toggled, this, [this](bool shown) {
        mUi->systemText->setVisible(shown);
        mUi->copyButton->setVisible(shown);
        mUi->aboutScroller->updateGeometry();
        adjustSize();
        ScreenRoom::keepOnScreen(*this);
        mUi->aboutScroller->ensureVisible(0, mUi->systemText->geometry().bottom() + 1, 0, 0);
    });
    connect(mUi->copyButton, &QPushButton::clicked, this,
            [this] { QGuiApplication::clipboard()->setText(mUi->systemText->toPlainText()); });
    mUi->cmdOK->setFocus();
    mUi->aboutSheet->layout()->activate(); // or the window comes up as high as it was without what was filled in
}

AboutWindow::~AboutWindow() = default;

QString AboutWindow::systemInformation()
{
    QStringList lines{u"Trawlex "_s + QStringLiteral(TRAWLEX_VERSION),
                      u"System: %1, %2"_s.arg(QSysInfo::prettyProductName(), QSysInfo::currentCpuArchitecture()),
                      u"Kernel: %1 %2"_s.arg(QSysInfo::kernelType(), QSysInfo::kernelVersion()),
                      u"Qt: %1, windows by %2"_s.arg(QString::fromLatin1(qVersion()), QGuiApplication::platformName()),
                      u"Built-in browser: Qt WebEngine " QTWEBENGINECORE_VERSION_STR ""_s};
    for (const QScreen *const screen : QGuiApplication::screens()) {
        const QSize size = screen->size();
        lines.append(
            u"Screen: %1 x %2, scale %3"_s.arg(size.width()).arg(size.height()).arg(screen->devicePixelRatio()));
    }
    return lines.join(u'\n');
}

bool AboutWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Enter || event->type() == QEvent::Leave) {
        QFont shown = mUi->lblName->font();
        shown.setUnderline(event->type() == QEvent::Enter);
        mUi->lblName->setFont(shown);
    }
    if (event->type() == QEvent::MouseButtonRelease)
        Q_EMIT helpRequested();
    return QDialog::eventFilter(watched, event);
}
