// A card for the eye: title, address, picture, what was found, and the page's words. All of it is text that can be
// selected; nothing on it is fetched from anywhere.
#pragma once

#include "controls/Card.h"

#include <QTextBrowser>

class CardView : public QTextBrowser
{
    Q_OBJECT
    Q_PROPERTY(QString emptyText READ emptyText WRITE setEmptyText)

  public:
    explicit CardView(QWidget *parent = nullptr);

    void setContent(const CardContent &content);
    [[nodiscard]] const QString &emptyText() const { return mEmptyText; }
    void setEmptyText(const QString &text);
    [[nodiscard]] QSize minimumSizeHint() const override { return {180, 96}; }
    [[nodiscard]] QSize sizeHint() const override { return {220, 180}; }

    /// The words of a page's markup, a line for each paragraph.
    [[nodiscard]] static QString wordsOf(const QString &markup);

  Q_SIGNALS:
    void addressClicked();

  protected:
    /// Nothing: what a page names is not for a card to open.
    [[nodiscard]] QVariant loadResource(int, const QUrl &) override { return {}; }
    void changeEvent(QEvent *event) override;

  private:
    void write();

    CardContent mContent;
    QString mEmptyText;
};
