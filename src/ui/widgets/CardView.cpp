#include "ui/widgets/CardView.h"

#include "ui/look/Shades.h"
#include "ui/pictures/PictureReader.h"

#include <QEvent>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextDocumentFragment>

using namespace Qt::StringLiterals;

namespace {
constexpr QSize shownPicture(320, 200);
constexpr int longestWords = 6000;

/// Writes one paragraph after another.
class Paragraphs
{
  public:
    explicit Paragraphs(QTextDocument &document) : mCursor(&document) {}

    void add(const QString &text, const QTextCharFormat &format, int above = 0)
    {
        if (text.isEmpty())
            return;
        begin(above);
        mCursor.insertText(text, format);
    }
    void add(const QImage &picture)
    {
        if (picture.isNull())
            return;
        begin(8);
        mCursor.insertImage(picture);
    }

  private:
    void begin(int above)
    {
        QTextBlockFormat block;
        block.setTopMargin(above);
        if (!std::exchange(mBegun, true))
            mCursor.setBlockFormat(block);
        else
            mCursor.insertBlock(block);
    }

    QTextCursor mCursor;
    bool mBegun = false;
};
} // namespace

CardView::CardView(QWidget *parent) : QTextBrowser(parent)
{
    setOpenLinks(false);
    setUndoRedoEnabled(false);
    document()->setDocumentMargin(8);
    connect(this, &QTextBrowser::anchorClicked, this, &CardView::addressClicked);
}

QString CardView::wordsOf(const QString &markup)
{
    // The reader takes what follows a link's tag for its content, which is not shown.
    static const QRegularExpression links(u"<link\\b[^>]*>"_s, QRegularExpression::CaseInsensitiveOption);
    const QString plain = QTextDocumentFragment::fromHtml(QString(markup).remove(links)).toPlainText();
    const QStringList lines = plain.split(u'\n');
    QStringList kept;
    for (const QString &line : lines) {
        if (const QString words = line.simplified(); !words.isEmpty())
            kept.append(words);
    }
    return kept.join(u'\n').left(longestWords).remove(QChar(QChar::ObjectReplacementCharacter));
}

void CardView::setContent(const CardContent &content)
{
    mContent = content;
    write();
}

void CardView::setEmptyText(const QString &text)
{
    mEmptyText = text;
    write();
}

void CardView::write()
{
    const Shades shades = Shades::of(palette());
    QTextCharFormat plain, quiet, title, link;
    plain.setForeground(palette().text());
    quiet.setForeground(shades.quiet);
    title.setForeground(palette().text());
    title.setFontWeight(QFont::Bold);
    link.setForeground(shades.accent);
    link.setAnchor(true);
    link.setAnchorHref(u"address"_s);
    clear();
    Paragraphs paragraphs(*document());
    if (mContent == CardContent())
        return paragraphs.add(mEmptyText, quiet);
    paragraphs.add(mContent.title, title);
    paragraphs.add(mContent.address, link, 2);
    paragraphs.add(mContent.date, quiet, 2);
    paragraphs.add(PictureReader::read(mContent.picture, shownPicture).image);
    if (!mContent.found.isEmpty())
        paragraphs.add(tr("Found on this page"), quiet, 8);
    paragraphs.add(mContent.found.join(u'\n'), plain, 2);
    if (const QString words = wordsOf(mContent.page); !words.isEmpty()) {
        paragraphs.add(tr("The page"), quiet, 8);
        paragraphs.add(words, plain, 2);
    }
    moveCursor(QTextCursor::Start);
    verticalScrollBar()->setValue(0);
}

void CardView::changeEvent(QEvent *event)
{
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        write();
}
