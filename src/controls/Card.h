// A card as a plain object: what is known of one thing in a few short texts, a picture and a long text.
#pragma once

#include "controls/Control.h"

#include <QStringList>

/// What stands on a card; what is empty is left out.
struct CardContent
{
    QString title = {}, address = {}, date = {};
    QByteArray picture = {}; ///< in the form of a picture file
    QStringList found = {};  ///< what was found on the page
    QString page = {};       ///< the beginning of the page, as markup
    friend bool operator==(const CardContent &, const CardContent &) = default;
};

class Card : public Control
{
    Q_OBJECT

  public:
    using Control::Control;
    [[nodiscard]] const CardContent &content() const { return mContent; }
    void setContent(const CardContent &content) { assign(mContent, content); }
    /// The user's click on the address.
    void follow() { Q_EMIT followed(mContent.address); }

  Q_SIGNALS:
    void followed(const QString &address);

  private:
    CardContent mContent;
};
