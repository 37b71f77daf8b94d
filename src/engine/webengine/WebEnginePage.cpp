#include "engine/webengine/WebEnginePage.h"
#include "engine/EngineResources.h"

#include <QAuthenticator>
#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUuid>
#include <QWebEngineCertificateError>
#include <QWebEngineClientCertificateSelection>
#include <QWebEngineFileSystemAccessRequest>
#include <QWebEngineFullScreenRequest>
#include <QWebEngineLoadingInfo>
#include <QWebEngineProfile>
#include <QWebEngineQuotaRequest>
#include <QWebEngineRegisterProtocolHandlerRequest>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>
#include <QWebEngineSettings>
#include <QWebEngineUrlRequestInfo>
#include <QWebEngineUrlRequestInterceptor>
#include <functional>
#include <utility>

namespace {

struct Setting
{
    QWebEngineSettings::WebAttribute attribute;
    bool on;
};

constexpr Setting settingRows[] = {
    {QWebEngineSettings::JavascriptEnabled, true},
    {QWebEngineSettings::JavascriptCanOpenWindows, true}, // else NewWindow2 is never heard of
    {QWebEngineSettings::ErrorPageEnabled, true},
    {QWebEngineSettings::PluginsEnabled, false},
    {QWebEngineSettings::PdfViewerEnabled, false}, // a document that is no page is a download
    {QWebEngineSettings::FullScreenSupportEnabled, false},
    {QWebEngineSettings::JavascriptCanAccessClipboard, false},
    {QWebEngineSettings::AllowWindowActivationFromJavaScript, false},
    {QWebEngineSettings::FocusOnNavigationEnabled, false},
    {QWebEngineSettings::PlaybackRequiresUserGesture, true},
    {QWebEngineSettings::AutoLoadIconsForPage, false},
    {QWebEngineSettings::DnsPrefetchEnabled, false},
};

// Looks on while documents of the top frame are asked for. What has been asked for by a page has an initiator, over all
// redirections.
class DocumentRequests : public QWebEngineUrlRequestInterceptor
{
  public:
    using Tell = std::function<void(bool byPage)>;
    DocumentRequests(QObject *parent, Tell tell) : QWebEngineUrlRequestInterceptor(parent), mTell(std::move(tell)) {}
    void interceptRequest(QWebEngineUrlRequestInfo &info) override
    {
        if (info.resourceType() == QWebEngineUrlRequestInfo::ResourceTypeMainFrame)
            mTell(!info.initiator().isEmpty());
    }

  private:
    const Tell mTell;
};

QString framesScript(const QString &token)
{
    return QString::fromUtf8(engineResource(QStringLiteral("js/webengine-frames.js")))
        .replace(QStringLiteral("\"TOKEN\""), u'"' + token + u'"');
}

} // namespace

WebEnginePage::WebEnginePage(QWebEngineProfile *profile, const QString &token)
    : QWebEnginePage(profile, nullptr), mToken(token)
{
    setUp();
    refuseRequests();
    listenToFrames();
    setUrlRequestInterceptor(new DocumentRequests(this, [this](bool byPage) { decide(byPage || mNameless); }));
    connect(this, &QWebEnginePage::loadingChanged, this, &WebEnginePage::onLoadingChanged);
}

QString WebEnginePage::newToken()
{
    return QUuid::createUuid().toString(QUuid::Id128) + QUuid::createUuid().toString(QUuid::Id128);
}

void WebEnginePage::setUp()
{
    for (const Setting &row : settingRows)
        settings()->setAttribute(row.attribute, row.on);
    settings()->setUnknownUrlSchemePolicy(QWebEngineSettings::DisallowUnknownUrlSchemes);
}

void WebEnginePage::refuseRequests()
{
    connect(this, &QWebEnginePage::featurePermissionRequested, this, [this](const QUrl &origin, Feature feature) {
        setFeaturePermission(origin, feature, PermissionDeniedByUser);
    });
    // Without a name and a password the browser shows what came along with the demand for them.
    connect(this, &QWebEnginePage::authenticationRequired, this,
            [](const QUrl &, QAuthenticator *authenticator) { *authenticator = QAuthenticator(); });
    connect(this, &QWebEnginePage::proxyAuthenticationRequired, this,
            [](const QUrl &, QAuthenticator *authenticator, const QString &) { *authenticator = QAuthenticator(); });
    connect(this, &QWebEnginePage::certificateError, this,
            [](QWebEngineCertificateError error) { error.rejectCertificate(); });
    connect(this, &QWebEnginePage::selectClientCertificate, this,
            [](QWebEngineClientCertificateSelection selection) { selection.selectNone(); });
    connect(this, &QWebEnginePage::fullScreenRequested, this,
            [](QWebEngineFullScreenRequest request) { request.reject(); });
    connect(this, &QWebEnginePage::quotaRequested, this, [](QWebEngineQuotaRequest request) { request.reject(); });
    connect(this, &QWebEnginePage::registerProtocolHandlerRequested, this,
            [](QWebEngineRegisterProtocolHandlerRequest request) { request.reject(); });
    connect(this, &QWebEnginePage::fileSystemAccessRequested, this,
            [](QWebEngineFileSystemAccessRequest request) { request.reject(); });
}

// A page's own script can miss a frame of a page whose process has crashed, a profile's script a process that has
// crashed and come back; the script itself sees to it that it works once.
void WebEnginePage::listenToFrames()
{
    QWebEngineScript script;
    script.setName(QStringLiteral("frames"));
    script.setSourceCode(framesScript(mToken));
    script.setInjectionPoint(QWebEngineScript::DocumentCreation);
    script.setWorldId(QWebEngineScript::ApplicationWorld);
    script.setRunsOnSubFrames(true);
    scripts().insert(script);
    if (profile()->scripts()->find(script.name()).isEmpty())
        profile()->scripts()->insert(script);
}

bool WebEnginePage::acceptNavigationRequest(const QUrl &url, NavigationType type, bool isMainFrame)
{
    if (isMainFrame && type == NavigationTypeRedirect)
        mSentOnTo = url;
    else if (isMainFrame)
        begin(url, type == NavigationTypeTyped);
    return true;
}

void WebEnginePage::begin(const QUrl &url, bool asGiven)
{
    ++mUnderWay;
    mLatest = url;
    Q_EMIT navigationBegun(asGiven);
}

// Whether a server or the page itself has sent it on is told by the request that follows; without one it was the page.
void WebEnginePage::decide(bool byPage)
{
    const QUrl url = std::exchange(mSentOnTo, {});
    if (url.isEmpty())
        return;
    if (byPage)
        begin(url, false);
    else
        mLatest = url;
}

void WebEnginePage::onTopDocument(const QString &url)
{
    decide(true);
    mUnderWay = std::max(0, mUnderWay - 1);
    mCalls = 0;
    mHasDocument = true;
    mNameless = false;
    Q_EMIT documentCreated(url, true);
}

void WebEnginePage::onLoadingChanged(const QWebEngineLoadingInfo &info)
{
    if (info.status() == QWebEngineLoadingInfo::LoadStartedStatus) {
        if (!isUnderWay() && info.url() != requestedUrl())
            ++mCalls;
    } else if (info.status() == QWebEngineLoadingInfo::LoadStoppedStatus) {
        decide(true);
        if (mUnderWay == 1 && mLatest == info.url()) // of several, any may go on
            mUnderWay = 0;
    }
}

QWebEnginePage *WebEnginePage::createWindow(WebWindowType)
{
    Q_EMIT windowRefused();
    return nullptr;
}

QStringList WebEnginePage::chooseFiles(FileSelectionMode, const QStringList &, const QStringList &)
{
    return {};
}

void WebEnginePage::javaScriptAlert(const QUrl &, const QString &) {}

// "Leave this page?" comes this way too, and can be told only by the browser's own words for it.
bool WebEnginePage::javaScriptConfirm(const QUrl &, const QString &message)
{
    return message == QCoreApplication::translate("QWebEnginePage", "Are you sure you want to leave this page? Changes "
                                                                    "that you made may not be saved.");
}

bool WebEnginePage::javaScriptPrompt(const QUrl &, const QString &, const QString &, QString *)
{
    return false;
}

void WebEnginePage::javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString &message, int,
                                             const QString &)
{
    if (!message.startsWith(mToken))
        return;
    const QJsonObject told = QJsonDocument::fromJson(QStringView(message).mid(mToken.size()).toUtf8()).object();
    const QString url = told[QLatin1StringView("url")].toString();
    const bool top = told[QLatin1StringView("top")].toBool();
    if (told[QLatin1StringView("moment")].toString() == u"load")
        Q_EMIT documentLoaded(url, top);
    else if (top)
        onTopDocument(url);
    else
        Q_EMIT documentCreated(url, false);
    mNameless = mNameless || told[QLatin1StringView("origin")].toString() == u"null";
}
