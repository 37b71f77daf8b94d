// Light and dark, contrast, and that no text is cut at any scale.
#include "WindowFixture.h"
#include "ui/look/Theme.h"
#include "ui/look/Tones.h"
#include "ui/widgets/DropDown.h"
#include "ui/widgets/ItemList.h"
#include "ui/widgets/Mark.h"
#include "ui/widgets/NumberEdit.h"
#include "ui/widgets/StatusBarLine.h"
#include "ui/widgets/TimerLabel.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QStyleOptionButton>

using namespace Qt::StringLiterals;
using Mode = Theme::Mode;

namespace {
constexpr std::array<Colour, 5> outcomes{Colours::ButtonFace, Colours::Green, Colours::Red, Colours::Yellow,
                                         Colours::Blue};

double brightness(const QImage &image, const QPoint &place)
{
    return image.pixelColor(place).lightnessF();
}
} // namespace

struct Look : WindowFixture
{
    ~Look() override { Theme::of(*qApp).setMode(Mode::Desktop); }
};

TEST(Contrast, IsMeasuredAsTheEyeSeesIt)
{
    EXPECT_NEAR(contrast(Qt::black, Qt::white), 21.0, 0.01);
    EXPECT_NEAR(contrast(Qt::white, Qt::black), 21.0, 0.01);
    EXPECT_NEAR(contrast(Qt::red, Qt::red), 1.0, 0.01);
    EXPECT_NEAR(contrast(QColor(0x77, 0x77, 0x77), Qt::white), 4.48, 0.01);
}

TEST(Contrast, TextReadsInBothThemes)
{
    for (const Mode mode : {Mode::Light, Mode::Dark}) {
        const QPalette palette = Theme::palette(mode);
        const Shades shades = Shades::of(palette);
        EXPECT_EQ(shades.dark, mode == Mode::Dark);
        for (const QColor &ground : {shades.window, shades.strip, shades.panel, shades.field}) {
            EXPECT_GE(contrast(shades.text, ground), 7.0);
            EXPECT_GE(contrast(shades.quiet, ground), 4.5);
        }
        EXPECT_GE(contrast(shades.accent, shades.onAccent), 4.5);
        EXPECT_GE(contrast(shades.mark, shades.panel), 3.0);
        for (const QColor &ground : {shades.panel, shades.window, shades.field})
            EXPECT_GE(contrast(shades.edge, ground), 3.0);
        EXPECT_GE(contrast(shades.accent, shades.panel), 3.0);
        EXPECT_GE(contrast(palette.color(QPalette::PlaceholderText), shades.field), 4.5);
    }
}

TEST(Contrast, AForeignPaletteIsMadeToRead)
{
    QPalette palette = Theme::palette(Mode::Light);
    palette.setColor(QPalette::Highlight, QColor(0xFF, 0xE0, 0x30));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    const Shades shades = Shades::of(palette);
    EXPECT_GE(contrast(shades.accent, shades.onAccent), 4.5);
}

TEST(Contrast, ReportColoursStandOutAndTheirInkReads)
{
    for (const Mode mode : {Mode::Light, Mode::Dark}) {
        const Shades shades = Shades::of(Theme::palette(mode));
        for (const Colour colour : {Colours::Green, Colours::Red, Colours::Blue, Colours::Yellow}) {
            const auto tone = Tones::of(colour, Colours::ButtonText, shades);
            ASSERT_TRUE(tone.has_value());
            EXPECT_GE(contrast(tone->fill, tone->ink), 4.5) << colour;
            // Yellow on white cannot; its sign does.
            if (colour != Colours::Yellow || mode == Mode::Dark) {
                EXPECT_GE(contrast(tone->fill, shades.panel), 3.0) << colour;
            }
        }
    }
}

TEST(Contrast, ATextColourThatWasAskedForIsKeptWhereItReads)
{
    for (const Mode mode : {Mode::Light, Mode::Dark}) {
        const Shades shades = Shades::of(Theme::palette(mode));
        for (const Colour ground : {Colours::Red, Colours::Blue}) {
            const auto tone = Tones::of(ground, Colours::White, shades);
            EXPECT_EQ(tone->ink, QColor(Qt::white)) << ground;
            EXPECT_GE(contrast(tone->fill, tone->ink), 4.5) << ground;
        }
        const auto unreadable = Tones::of(Colours::Yellow, Colours::White, shades);
        EXPECT_GE(contrast(unreadable->fill, unreadable->ink), 4.5);
    }
    const Shades light = Shades::of(Theme::palette(Mode::Light));
    EXPECT_FALSE(Tones::of(Colours::ButtonFace, Colours::ButtonText, light).has_value());
    EXPECT_EQ(Tones::of(rgb(158, 255, 159), Colours::WindowText, light)->fill, QColor(158, 255, 159));
}

TEST(Contrast, OfEachListReadsAndTheOneThatASeriesStandsForIsGrey)
{
    const Colour lists[] = {Colours::White, rgb(158, 255, 159), rgb(185, 228, 255), rgb(255, 184, 186),
                            Colours::Yellow};
    for (const Mode mode : {Mode::Light, Mode::Dark}) {
        const Shades shades = Shades::of(Theme::palette(mode));
        EXPECT_FALSE(Tones::ofList(Colours::White, Colours::WindowText, shades).has_value()) << "the desktop's own";
        const auto grey = Tones::ofList(Colours::ButtonFace, Colours::WindowText, shades);
        ASSERT_TRUE(grey.has_value());
        EXPECT_GE(contrast(grey->ink, grey->fill), 4.5);
        for (const Colour colour : lists) {
            const auto tone = Tones::ofList(colour, Colours::WindowText, shades);
            const QColor fill = tone ? tone->fill : shades.field;
            EXPECT_NE(fill, grey->fill) << colour;
            EXPECT_GE(contrast(tone ? tone->ink : shades.text, fill), 7.0) << colour;
        }
    }
}

TEST_F(Look, LampsHaveASignForEachColour)
{
    auto &lamp = widget<Lamp>("lblSummarySaved");
    QList<Drawing::Sign> signs;
    QStringList meanings;
    QList<QImage> pictures;
    for (const Colour colour : outcomes) {
        form.outputs.lblSummarySaved.setBackColor(colour);
        settle();
        signs.append(lamp.sign());
        meanings.append(lamp.accessibleDescription());
        pictures.append(lamp.grab().toImage().convertToFormat(QImage::Format_Grayscale8));
    }
    using Drawing::Sign;
    EXPECT_EQ(signs, (QList<Sign>{Sign::Dash, Sign::Tick, Sign::Cross, Sign::Equals, Sign::Square}));
    EXPECT_EQ(QSet<QString>(meanings.begin(), meanings.end()).size(), 5);
    for (int i = 0; i < pictures.size(); ++i) {
        for (int j = 0; j < i; ++j)
            EXPECT_NE(pictures[i], pictures[j]) << "told apart without colour: " << i << ' ' << j;
    }
}

TEST_F(Look, AFoundTextShowsASignAsWellAsAColour)
{
    auto &edit = widget<QLineEdit>("txtANStartTag");
    const auto picture = [&](Colour colour) {
        form.outputs.txtANStartTag.setBackColor(colour);
        settle();
        return edit.grab().toImage();
    };
    const QImage neutral = picture(Colours::Window);
    const QImage found = picture(Colours::Green);
    EXPECT_EQ(edit.accessibleDescription(), u"found in the last page"_s);
    const QImage missing = picture(Colours::Red);
    EXPECT_EQ(edit.accessibleDescription(), u"not found in the last page"_s);
    EXPECT_NE(found, missing);
    EXPECT_NE(found, neutral);
    EXPECT_EQ(picture(Colours::Window), neutral);
}

TEST_F(Look, FollowsALightAndADarkDesktop)
{
    const QPoint onPanel(20, window.height() - 60);
    Theme::of(*qApp).setMode(Mode::Light);
    settle();
    EXPECT_GT(brightness(window.grab().toImage(), onPanel), 0.85);
    Theme::of(*qApp).setMode(Mode::Dark);
    settle();
    EXPECT_LT(brightness(window.grab().toImage(), onPanel), 0.25);
    // A desktop that changes its palette while the program runs.
    QApplication::setPalette(Theme::palette(Mode::Light));
    settle();
    EXPECT_GT(brightness(window.grab().toImage(), onPanel), 0.85);
}

TEST_F(Look, ColouredControlsTakeTheTonesOfTheNewTheme)
{
    auto &timer = widget<TimerLabel>("lblTrawlexTimer");
    form.browser.lblTrawlexTimer.setBackColor(Colours::Yellow);
    Theme::of(*qApp).setMode(Mode::Light);
    settle();
    const QColor light = timer.palette().color(QPalette::Base);
    Theme::of(*qApp).setMode(Mode::Dark);
    settle();
    EXPECT_NE(timer.palette().color(QPalette::Base), light);
}

TEST_F(Look, TheEnvironmentForcesATheme)
{
    qputenv("TRAWLEX_THEME", "dark");
    EXPECT_EQ(Theme::modeOfEnvironment(), Mode::Dark);
    qputenv("TRAWLEX_THEME", "Light");
    EXPECT_EQ(Theme::modeOfEnvironment(), Mode::Light);
    qputenv("TRAWLEX_THEME", "purple");
    EXPECT_EQ(Theme::modeOfEnvironment(), Mode::Desktop);
    qunsetenv("TRAWLEX_THEME");
}

TEST_F(Look, TheFocusIsShownToTheKeyboardAndNotToTheMouse)
{
    auto &box = widget<QCheckBox>("chkSavePages");
    auto &chip = widget<QWidget>("lblAutoCollect");
    for (QWidget *const shown : std::initializer_list<QWidget *>{&box, &chip}) {
        widget<QWidget>("txtANStartTag").setFocus();
        settle();
        const QImage without = shown->grab().toImage();
        QTest::mousePress(&window, Qt::LeftButton, {}, QPoint(2, 60));
        shown->setFocus(Qt::MouseFocusReason);
        settle();
        EXPECT_EQ(shown->grab().toImage(), without);
        QTest::keyClick(shown, Qt::Key_Shift);
        settle();
        EXPECT_NE(shown->grab().toImage(), without);
        QTest::mousePress(&window, Qt::LeftButton, {}, QPoint(2, 60));
    }
}

TEST_F(Look, TheFocusIsShownToShortcutsToo)
{
    QTest::mousePress(&window, Qt::LeftButton, {}, QPoint(2, 60));
    widget<QWidget>("chkSaveSummary").setFocus(Qt::MouseFocusReason);
    ASSERT_FALSE(window.testAttribute(Qt::WA_KeyboardFocusChange));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6);
    EXPECT_NE(QApplication::focusWidget(), &widget<QWidget>("chkSaveSummary"));
    EXPECT_TRUE(window.testAttribute(Qt::WA_KeyboardFocusChange));
}

TEST_F(Look, ATextThatIsTooLongForItsComboLosesItsMiddle)
{
    DropDown combo;
    combo.addItems({u"http://www.example.com/a/very/long/address/page.html"_s,
                    u"http://www.example.com/another/long/address/page.html"_s,
                    u"http://www.example.com/a/very/long/address/else.html"_s});
    combo.resize(160, combo.sizeHint().height());
    combo.setAttribute(Qt::WA_DontShowOnScreen);
    combo.show();
    const auto shown = [&combo](int index) {
        combo.setCurrentIndex(index);
        return combo.grab().toImage();
    };
    const QImage first = shown(0);
    EXPECT_EQ(shown(1), first);
    EXPECT_NE(shown(2), first);
}

struct Captions : WindowFixture
{
    void expectNoneCut()
    {
        for (const QAbstractButton *const button : window.findChildren<QAbstractButton *>()) {
            if (button->text().isEmpty() || button->visibleRegion().isEmpty())
                continue;
            EXPECT_GE(button->width(), button->sizeHint().width()) << qPrintable(button->objectName());
            EXPECT_GE(button->height(), button->fontMetrics().height()) << qPrintable(button->objectName());
        }
        for (const QLabel *const label : window.findChildren<QLabel *>()) {
            if (!label->visibleRegion().isEmpty() && !label->wordWrap()) {
                EXPECT_GE(label->width(), label->sizeHint().width()) << qPrintable(label->objectName());
            }
        }
        for (const NumberEdit *const edit : window.findChildren<NumberEdit *>()) {
            if (!edit->visibleRegion().isEmpty()) {
                EXPECT_GE(edit->width(), edit->sizeHint().width()) << qPrintable(edit->objectName());
            }
        }
        for (const DropDown *const combo : window.findChildren<DropDown *>()) {
            if (combo->visibleRegion().isEmpty())
                continue;
            const QString shown = combo->currentIndex() < 0 ? combo->placeholderText() : combo->currentText();
            const int room = combo->width() - 32;
            EXPECT_GE(room, combo->fontMetrics().horizontalAdvance(shown)) << qPrintable(combo->objectName());
        }
    }
};

TEST_F(Captions, AreNotCutAtThisScale)
{
    expectNoneCut();
    form.frame.sstSearch.setTab(2);
    for (const int page : {0, 1, 2}) {
        form.frame.sstSettings.setTab(page);
        for (const int options : {0, 1, 2, 3}) {
            form.frame.sstMiscOptions.setTab(options);
            settle();
            expectNoneCut();
        }
    }
}

TEST_F(Captions, AreNotCutWithALargeFontOrLongTranslations)
{
    QFont large = QApplication::font();
    const QFont usual = large;
    large.setPointSizeF(large.pointSizeF() * 1.6);
    QApplication::setFont(large);
    settle();
    window.resize(window.minimumSizeHint());
    settle();
    expectNoneCut();
    QApplication::setFont(usual);
}

TEST(Scales, NoCaptionIsCutAtOtherScales)
{
    for (const char *const scale : {"1.5", "2", "3"}) {
        QProcess process;
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"QT_SCALE_FACTOR"_s, QLatin1StringView(scale));
        process.setProcessEnvironment(environment);
        process.start(QCoreApplication::applicationFilePath(), {u"--gtest_filter=Captions.AreNotCutAtThisScale"_s});
        ASSERT_TRUE(process.waitForFinished(60000));
        EXPECT_EQ(process.exitCode(), 0) << scale << '\n' << process.readAllStandardOutput().constData();
    }
}
