// The card of a row for the eye, beside the grid or below it.
#include "ui/widgets/CardView.h"
#include "WindowFixture.h"
#include "ui/widgets/DropDown.h"
#include "ui/widgets/GridTable.h"
#include "ui/widgets/SideSplitter.h"

#include <QBuffer>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QTextBlock>

using namespace Qt::StringLiterals;

namespace {
QByteArray picture(int width, int height, const char *format = "jpg")
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::red);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes;
}

/// The pictures in a document, by their sizes.
QList<QSize> picturesIn(const QTextDocument &document)
{
    QList<QSize> sizes;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
            const QTextImageFormat format = piece.fragment().charFormat().toImageFormat();
            if (format.isValid())
                sizes.append(document.resource(QTextDocument::ImageResource, format.name()).value<QImage>().size());
        }
    }
    return sizes;
}
} // namespace

struct Cards : WindowFixture
{
    Cards() : card(widget<CardView>("crdDBRow"))
    {
        form.frame.sstSearch.setTab(Tab::Data);
        form.data.crdDBRow.setVisible(true);
        settle();
    }
    CardView &card;
};

TEST_F(Cards, AreClosedAtFirst)
{
    const frmSearch fresh;
    EXPECT_FALSE(fresh.data.crdDBRow.isVisible());
    form.data.crdDBRow.setVisible(false);
    settle();
    EXPECT_FALSE(card.isVisible());
}

TEST_F(Cards, ShowWhatThereIsAndNothingOfWhatThereIsNot)
{
    form.data.crdDBRow.setContent({.title = u"Harbour <b>"_s,
                                   .address = u"http://a.com/?a=1&b=2"_s,
                                   .found = {u"ann@a.com"_s, u"212-555-0100"_s},
                                   .page = u"<h1>Boats</h1><script>run()</script><p>and   piers"_s});
    settle();
    EXPECT_EQ(card.toPlainText(), u"Harbour <b>\nhttp://a.com/?a=1&b=2\nFound on this page\nann@a.com\n212-555-0100\n"
                                  "The page\nBoats\nand piers"_s);
    form.data.crdDBRow.setContent({.title = u"T"_s});
    settle();
    EXPECT_EQ(card.toPlainText(), u"T"_s);
    form.data.crdDBRow.setContent({});
    settle();
    EXPECT_TRUE(card.toPlainText().contains(u"choose one"_s)) << "empty, it says what belongs there";
}

TEST_F(Cards, ShowPicturesNoLargerThanTheirPlaceAndRefuseWhatIsNone)
{
    form.data.crdDBRow.setContent({.title = u"T"_s, .picture = picture(1000, 500)});
    settle();
    EXPECT_EQ(picturesIn(*card.document()), QList<QSize>{QSize(320, 160)});
    const QByteArray drawing =
        "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'><rect width='9' height='9'/></svg>";
    for (const QByteArray &bytes :
         {QByteArray("no picture"), QByteArray("BM no picture"), picture(9, 9, "png"), drawing}) {
        form.data.crdDBRow.setContent({.title = u"T"_s, .picture = bytes});
        settle();
        EXPECT_TRUE(picturesIn(*card.document()).isEmpty());
    }
}

TEST_F(Cards, FetchNothingThatAPageNames)
{
    const QString words =
        CardView::wordsOf(u"<link rel=stylesheet href='file:///etc/passwd'><img src='http://127.0.0.1:1/x.png'>a"_s);
    EXPECT_EQ(words, u"a"_s);
}

TEST_F(Cards, ReadAPageOfAnyFormInNoTime)
{
    QElapsedTimer time;
    time.start();
    for (const QString &piece : {u"<"_s, u"<table><tr><td>"_s, u"&amp;"_s, u"<p>x"_s, u"x"_s})
        EXPECT_LE(CardView::wordsOf(piece.repeated(60'000 / piece.size())).size(), 6000);
    EXPECT_LT(time.elapsed(), 20'000) << "slow machines included";
}

TEST_F(Cards, TellAClickOnTheAddress)
{
    const Raised follows(form.data.crdDBRow, &Card::followed);
    form.data.crdDBRow.setContent({.title = u"T"_s, .address = u"http://a.com"_s});
    settle();
    QTextCursor place(card.document());
    place.setPosition(5);
    QTest::mouseClick(card.viewport(), Qt::LeftButton, {}, card.cursorRect(place).center());
    EXPECT_EQ(follows.times(), 1);
    EXPECT_EQ(card.toPlainText(), u"T\nhttp://a.com"_s) << "the card itself goes nowhere";
}

TEST_F(Cards, StandBelowTheGridInANarrowWindowAndBesideItInAWideOne)
{
    auto &splitter = widget<SideSplitter>("dataSplitter");
    EXPECT_EQ(splitter.orientation(), Qt::Vertical);
    window.resize(900, window.height());
    settle();
    EXPECT_EQ(splitter.orientation(), Qt::Horizontal);
    EXPECT_TRUE(card.isVisible() && widget<GridTable>("fxgTrawlex").isVisible());
}

TEST_F(Cards, OpenByTheirButtonAndItsKey)
{
    form.frame.sstSearch.setEnabled(true);
    auto &button = widget<QPushButton>("chkDBCard");
    click(button);
    EXPECT_TRUE(form.data.chkDBCard.isOn() && button.isChecked());
    QTest::keyClick(&window, Qt::Key_I, Qt::ControlModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !form.data.chkDBCard.isOn(); }))
        << "a button takes its time to go down";
    EXPECT_FALSE(button.isChecked());
}

TEST_F(Cards, ThePlaceOfTheFilterIsShownShortAndToldByTheEmptyBox)
{
    auto &place = widget<DropDown>("cboDBPlace");
    EXPECT_EQ(place.count(), 3);
    EXPECT_LT(place.width(), 80) << "the words are for the list";
    EXPECT_EQ(widget<QLineEdit>("txtDBQuery").placeholderText(), u"contains…"_s);
    form.data.cboDBPlace.setListIndex(1);
    settle();
    EXPECT_EQ(widget<QLineEdit>("txtDBQuery").placeholderText(), u"begins with…"_s);
}

TEST_F(Cards, TheHeadOfTheSortedColumnShowsIt)
{
    struct Rows : GridRows
    {
        [[nodiscard]] QStringList heads() const override { return {u"Index"_s, u"Url"_s}; }
        [[nodiscard]] int rowCount() const override { return 2; }
        [[nodiscard]] QString text(int row, int) const override { return QString::number(row); }
        [[nodiscard]] SortMark order() const override { return mark; }
        [[nodiscard]] bool canSort() const override { return true; }
        SortMark mark;
    };
    form.data.fxgTrawlex.setDataSource(std::make_shared<Rows>());
    settle();
    QHeaderView &heads = *widget<GridTable>("fxgTrawlex").horizontalHeader();
    EXPECT_FALSE(heads.isSortIndicatorShown());
    const auto sorted = std::make_shared<Rows>();
    sorted->mark = {1, Qt::DescendingOrder};
    form.data.fxgTrawlex.setDataSource(sorted);
    settle();
    EXPECT_TRUE(heads.isSortIndicatorShown());
    EXPECT_EQ(heads.sortIndicatorSection(), 1);
    EXPECT_EQ(heads.sortIndicatorOrder(), Qt::DescendingOrder);
    QTest::mouseClick(heads.viewport(), Qt::LeftButton, {}, QPoint(heads.sectionViewportPosition(1) + 20, 8));
    EXPECT_EQ(heads.sortIndicatorOrder(), Qt::DescendingOrder)
        << "the order is what the rows have, not what was clicked";
    form.data.fxgTrawlex.setDataSource(std::make_shared<Rows>());
    settle();
    EXPECT_FALSE(heads.isSortIndicatorShown());
}
