// The cookies that the built-in browser has been given, so that they can be asked for: the browser itself tells of each
// that comes and goes, and gives none when asked, those of an earlier run neither. Knows no page.
#pragma once

#include <QNetworkCookieJar>
#include <QObject>

class QWebEngineProfile;

class WebEngineCookies : public QObject
{
    Q_OBJECT

  public:
    /// Follows the cookies of `profile` from now on.
    explicit WebEngineCookies(QWebEngineProfile &profile);

    /// Value of the header "Cookie" for `url`, "" without any.
    [[nodiscard]] QString headerFor(const QUrl &url) const;

  private:
    QNetworkCookieJar mJar;
};
