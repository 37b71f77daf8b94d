// The small widgets by themselves: number box, status bar.
#include "WindowFixture.h"
#include "ui/widgets/AddressDelegate.h"
#include "ui/widgets/NumberEdit.h"
#include "ui/widgets/StatusBarLine.h"
#include "ui/windows/ScreenScale.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>

using namespace Qt::StringLiterals;
using Direction = NumberBox::Direction;
using HoldSpeed::Stage;

struct NumberEdits : WindowFixture
{
    NumberEdits() : edit(widget<NumberEdit>("incANTiming")), box(form.autoRun.incANTiming) {}

    void press(Direction direction)
    {
        QTest::mousePress(&edit, Qt::LeftButton, {}, edit.buttonRect(direction).center());
    }
    void release() { QTest::mouseRelease(&edit, Qt::LeftButton, {}, QPoint(1, 1)); }
    [[nodiscard]] QColor colour() const { return edit.findChild<QLineEdit *>()->palette().color(QPalette::Base); }

    NumberEdit &edit;
    NumberBox &box;
};

TEST_F(NumberEdits, ShowTheDigitsOfTheirBox)
{
    EXPECT_EQ(edit.text(), u"000"_s);
    box.setText(u"30"_s);
    settle();
    EXPECT_EQ(edit.text(), u"030"_s);
    const int narrow = edit.sizeHint().width();
    box.DigitCount(11);
    settle();
    EXPECT_EQ(edit.text(), u"00000000000"_s);
    EXPECT_GT(edit.sizeHint().width(), narrow);
}

TEST_F(NumberEdits, TakeTypedDigitsAndNothingElse)
{
    auto &line = *edit.findChild<QLineEdit *>();
    line.setFocus();
    line.selectAll();
    QTest::keyClicks(&line, u"4x2-"_s);
    settle();
    EXPECT_EQ(box.value(), 42);
    EXPECT_EQ(edit.text(), u"42"_s) << "as it is typed";
    QTest::keyClicks(&line, u"123"_s);
    EXPECT_EQ(box.value(), 421) << "no more than its digits";
}

TEST_F(NumberEdits, ShowTheirZerosAgainWhenTheyAreLeft)
{
    auto &line = *edit.findChild<QLineEdit *>();
    for (const auto &[typed, shown] : {std::pair{u""_s, u"000"_s}, {u"42"_s, u"042"_s}}) {
        edit.setFocus();
        line.selectAll();
        QTest::keyClick(&line, Qt::Key_Delete);
        QTest::keyClicks(&line, typed);
        widget<QWidget>("cmdANStart").setFocus();
        settle();
        EXPECT_EQ(edit.text(), shown);
        EXPECT_EQ(box.text(), shown);
    }
}

TEST_F(NumberEdits, StepOnceForAClickAndForAnArrowKey)
{
    press(Direction::Up);
    release();
    EXPECT_EQ(box.value(), 1);
    press(Direction::Down);
    release();
    press(Direction::Down);
    release();
    EXPECT_EQ(box.value(), 999);
    edit.setFocus();
    QTest::keyClick(edit.focusProxy(), Qt::Key_Up);
    EXPECT_EQ(box.value(), 0);
    QTest::keyClick(edit.focusProxy(), Qt::Key_Down);
    EXPECT_EQ(box.value(), 999);
}

TEST_F(NumberEdits, RunFasterAndFasterWhileHeldAndShowIt)
{
    box.DigitCount(6);
    settle();
    const QColor neutral = colour();
    edit.setSecond(std::chrono::milliseconds(40));
    press(Direction::Up);
    EXPECT_EQ(edit.stage(), Stage::None);
    QMap<Stage, QColor> colours;
    QMap<Stage, qint64> values;
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            colours.insert(edit.stage(), colour());
            values.insert(edit.stage(), box.value());
            return edit.stage() == Stage::Three && values[Stage::Three] > values[Stage::Two] + 500;
        },
        20000));
    EXPECT_EQ(colours[Stage::One], QColor(0, 255, 255));
    EXPECT_EQ(colours[Stage::Two], QColor(255, 0, 255));
    EXPECT_EQ(colours[Stage::Three], QColor(255, 0, 0));
    EXPECT_GE(values[Stage::One], 2);
    EXPECT_GT(values[Stage::Two], values[Stage::One] + 10);
    release();
    const qint64 stopped = box.value();
    EXPECT_EQ(edit.stage(), Stage::None);
    EXPECT_EQ(colour(), neutral);
    QTest::qWait(100);
    EXPECT_EQ(box.value(), stopped);
}

TEST_F(NumberEdits, StopWhenTheyAreDisabledOrHidden)
{
    for (const bool hide : {false, true}) {
        edit.setSecond(std::chrono::milliseconds(5));
        press(Direction::Down);
        EXPECT_TRUE(QTest::qWaitFor([&] { return edit.stage() != Stage::None; }, 5000));
        if (hide)
            box.setVisible(false);
        else
            box.setEnabled(false);
        settle();
        EXPECT_EQ(edit.stage(), Stage::None);
        box.setVisible(true);
        box.setEnabled(true);
        settle();
    }
}

TEST(HoldSpeeds, StandInTheirTable)
{
    struct Row
    {
        int seconds;
        Stage stage;
    };
    constexpr Row rows[] = {{0, Stage::None}, {1, Stage::One},  {8, Stage::One},    {9, Stage::Two},   {16, Stage::Two},
                            {17, Stage::Two}, {24, Stage::Two}, {25, Stage::Three}, {99, Stage::Three}};
    for (const Row &row : rows)
        EXPECT_EQ(HoldSpeed::stageAt(row.seconds), row.stage) << row.seconds;
    EXPECT_EQ(HoldSpeed::stepsPerSecond(Stage::None), 0);
    EXPECT_LT(HoldSpeed::stepsPerSecond(Stage::One), HoldSpeed::stepsPerSecond(Stage::Two));
    EXPECT_LT(HoldSpeed::stepsPerSecond(Stage::Two), HoldSpeed::stepsPerSecond(Stage::Three));
    EXPECT_EQ(HoldSpeed::colour(Stage::One, Direction::Down), rgb(255, 0, 0));
    EXPECT_EQ(HoldSpeed::colour(Stage::Two, Direction::Down), rgb(255, 0, 255));
    EXPECT_EQ(HoldSpeed::colour(Stage::Three, Direction::Down), rgb(0, 255, 255));
    EXPECT_EQ(HoldSpeed::colour(Stage::None, Direction::Up), Colours::Window);
}

TEST(StatusLines, ShortenAnAddressInItsMiddle)
{
    const QFontMetrics metrics{QFont()};
    const QString text = u"3/14 http://www.north-harbour.example/"_s + QString(200, u'x') + u"/index.html..."_s;
    const QString fitted = StatusBarLine::fitted(text, metrics, 400);
    EXPECT_LE(metrics.horizontalAdvance(fitted), 400);
    EXPECT_TRUE(fitted.startsWith(u"3/14 http://www."_s)) << qPrintable(fitted);
    EXPECT_TRUE(fitted.endsWith(u"/index.html..."_s)) << qPrintable(fitted);
}

TEST(StatusLines, ShortenOtherTextsAtTheirEndAndShortOnesNotAtAll)
{
    const QFontMetrics metrics{QFont()};
    EXPECT_EQ(StatusBarLine::fitted(u"Initialized..."_s, metrics, 400), u"Initialized..."_s);
    const QString fitted = StatusBarLine::fitted(u"Stopped "_s + QString(300, u'x'), metrics, 200);
    EXPECT_TRUE(fitted.startsWith(u"Stopped x"_s));
    EXPECT_LE(metrics.horizontalAdvance(fitted), 200);
    EXPECT_LE(metrics.horizontalAdvance(StatusBarLine::fitted(u"http://a/b"_s, metrics, 10)), 10);
}

TEST(StatusLines, ShowATallyAtTheirEndAndCopyAllOfIt)
{
    StatusBarLine line;
    line.resize(460, line.sizeHint().height());
    line.setText(u"Stopped (FINISHED)..."_s);
    const QImage without = line.grab().toImage();
    line.setTally(u"12 pages, 3 e-mail"_s);
    EXPECT_NE(line.grab().toImage(), without);
    QTest::keyClick(&line, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), u"Stopped (FINISHED)... (12 pages, 3 e-mail)"_s);
    line.setTally(QString());
    EXPECT_EQ(line.grab().toImage(), without);
    QTest::keyClick(&line, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), u"Stopped (FINISHED)..."_s);
}

TEST(StatusLines, KeepProgressWithinItsTotal)
{
    StatusBarLine line;
    line.resize(line.sizeHint());
    const QImage empty = line.grab().toImage();
    line.setProgress(3, 14);
    EXPECT_EQ(line.accessibleDescription(), u"3 of 14"_s);
    EXPECT_NE(line.grab().toImage(), empty);
    line.setProgress(20, 14);
    EXPECT_EQ(line.done(), 14);
    line.setProgress(-1, 14);
    EXPECT_EQ(line.done(), 0);
    line.setProgress(0, 0);
    EXPECT_EQ(line.grab().toImage(), empty);
    EXPECT_EQ(line.accessibleDescription(), QString());
}

TEST(StatusLines, DescribeWhatStandsBesideTheirText)
{
    StatusBarLine line;
    line.setTally(u"2 pages, 5 s left"_s);
    EXPECT_EQ(line.accessibleDescription(), u"2 pages, 5 s left"_s);
    line.setProgress(3, 14);
    EXPECT_EQ(line.accessibleDescription(), u"2 pages, 5 s left, 3 of 14"_s);
}

TEST(Addresses, HaveTheirServerStandOut)
{
    for (const auto &[address, server] :
         {std::pair{u"http://www.north-harbour.example/team/"_s, u"www.north-harbour.example"_s},
          {u"ftp://files.example"_s, u"files.example"_s},
          {u"www.north-harbour.example/a/b"_s, u"www.north-harbour.example"_s},
          {u"info@north-harbour.example"_s, u"info@north-harbour.example"_s},
          {u"http://www.north-har…html"_s, u"www.north-har"_s},
          {QString(), QString()}}) {
        const AddressDelegate::Server found = AddressDelegate::serverOf(address);
        EXPECT_EQ(address.mid(found.start, found.length), server);
    }
}

TEST(ScreenScales, CountThePixelsOfOtherPrograms)
{
    const QByteArray before = qgetenv("QT_SCALE_FACTOR");
    const QRect window(0, 0, 452, 703);
    struct Row
    {
        const char *factor;
        QRect others;
    };
    const Row rows[] = {{"", QRect(0, 0, 452, 703)},
                        {"none", QRect(0, 0, 452, 703)},
                        {"2", QRect(0, 0, 904, 1406)},
                        {"1.5", QRect(0, 0, 678, 1055)}};
    for (const Row &row : rows) {
        qputenv("QT_SCALE_FACTOR", row.factor);
        EXPECT_EQ(ScreenScale::toOthers(window), row.others) << row.factor;
        EXPECT_EQ(ScreenScale::toOurs(row.others), window) << row.factor;
    }
    qputenv("QT_SCALE_FACTOR", before);
}
