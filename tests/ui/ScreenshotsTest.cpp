// Takes the pictures of docs/images. Not a test, so it runs only when asked for:
//   [QT_SCALE_FACTOR=2] test_ui --gtest_also_run_disabled_tests --gtest_filter='*Screenshots*'
#include "WindowFixture.h"
#include "desktop/internal/BareBrowserWindow.h"
#include "engine/webengine/WebEngineBrowser.h"
#include "support/Places.h"
#include "ui/look/Theme.h"
#include "ui/windows/AboutWindow.h"
#include "ui/windows/GridWindow.h"
#include "ui/windows/MagnifyWindow.h"
#include "ui/windows/PictureWindow.h"
#include "window/options/OptionTable.h"

#include <QApplication>
#include <QBuffer>
#include <QCursor>
#include <QDir>
#include <QLineEdit>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

struct DISABLED_Screenshots : WindowFixture
{
    /// Options as a first start has them, and no pointer over the window.
    DISABLED_Screenshots()
    {
        QCursor::setPos(window.screen()->geometry().bottomRight());
        for (const OptionRow &row : optionRows()) {
            if (!row.caption.isEmpty())
                form.control(row.control)->setCaption(row.caption);
            if (!row.fits)
                form.control(row.control)->restore(row.byDefault);
        }
    }
    ~DISABLED_Screenshots() override { Theme::of(*qApp).setMode(Theme::Mode::Desktop); }

    void take(const QString &name) { take(name, window); }

    /// Pictures at another scale than 1 go into a folder of their own, named after it in per cent.
    void take(const QString &name, QWidget &shown)
    {
        const int percent = qRound(window.devicePixelRatioF() * 100);
        for (const auto &[mode, ending] :
             {std::pair{Theme::Mode::Light, u"-light.png"_s}, {Theme::Mode::Dark, u"-dark.png"_s}}) {
            Theme::of(*qApp).setMode(mode);
            settle();
            const QDir images(inSourceTree(u"docs/images"_s) + (percent == 100 ? QString() : u"/%1"_s.arg(percent)));
            EXPECT_TRUE(images.mkpath(u"."_s));
            EXPECT_TRUE(shown.grab().save(images.filePath(name + ending)));
        }
    }

    /// A run that has just screened its third page of fourteen.
    void showRun()
    {
        form.autoRun.cmdANStart.setCaption(u"X"_s);
        form.browser.cmdANInitialize.setEnabled(false);
        form.browser.lblTrawlexTimer.setCaption(u"12"_s);
        form.browser.lblTrawlexTimer.setBackColor(Colours::Red);
        form.browser.lblTrawlexTimer.setForeColor(Colours::White);
        form.autoRun.incANTiming.setText(u"30"_s);
        form.saved.cboANSavedUrls.addItem(u"Results-104"_s);
        form.saved.cboANSavedUrls.setListIndex(0);
        for (CheckBox *const box : {&form.saved.chkUseSavedUrls, &form.outputs.chkSaveSummary, &form.outputs.chkSaveUrl,
                                    &form.outputs.chkSavePages, &form.outputs.chkSaveEmail, &form.blocking.urls.on,
                                    &form.criteria.mustContain.on, &form.criteria.mustNotContain.on,
                                    &form.criteria.mustNotContain.caseSensitive})
            box->setValue(1);
        form.blocking.email.on.setEnabled(false);
        form.outputs.txtANStartTag.setText(u"<main"_s);
        form.outputs.txtANStartTag.setBackColor(Colours::Green);
        form.outputs.txtANStopTag.setText(u"</main>"_s);
        form.outputs.txtANStopTag.setBackColor(Colours::Red);
        form.outputs.lblSummarySaved.setBackColor(Colours::Green);
        form.outputs.lblUrlSaved.setBackColor(Colours::Green);
        form.outputs.lblPageSaved.setBackColor(Colours::Green);
        form.outputs.lblEmailSaved.setBackColor(Colours::Red);
        form.criteria.mustContain.lamp.setBackColor(Colours::Green);
        form.criteria.mustNotContain.lamp.setBackColor(Colours::Green);
        form.collect.lblAutoPgUrls.setCaption(u"A"_s);
        form.collect.lblAutoPgUrls.setBackColor(Colours::Blue);
        form.collect.lblAutoPgUrls.setForeColor(Colours::White);
        form.criteria.cboANMCMNCMask.addItem(u"Criteria-0"_s);
        form.criteria.cboANMCMNCMask.setListIndex(0);
        for (const auto &text : {u"contact"_s, u"about us"_s, u"imprint"_s})
            form.criteria.mustContain.items.addItem(text);
        form.criteria.mustContain.items.setSelected(0, true);
        for (const auto &text : {u"casino"_s, u"cookie wall"_s})
            form.criteria.mustNotContain.items.addItem(text);
        form.criteria.mustContain.demand.setListIndex(1);
        form.criteria.mustNotContain.demand.setListIndex(1);
        form.frame.picStatus.print(
            u"3/14 http://www.north-harbour.example/contact/team/people/directory/index.html..."_s);
        window.setProgress(3, 14);
    }

    /// List B of the tab "Manual" in the middle of a walk.
    void showLists()
    {
        form.manual.cmdMNStart.setCaption(u"X"_s);
        form.manual.cboFilesSites.setListIndex(0);
        form.browser.lblTrawlexTimer.setBackColor(Colours::Blue);
        form.manual.incMNTiming.setText(u"8"_s);
        form.manual.incMNDLTiming.setText(u"4"_s);
        form.series.cboMNAutoUrl.setText(u"http://www.north-harbour.example/gallery/boats-001.jpg"_s);
        form.series.incMNAutoUrl.setText(u"1"_s);
        form.series.incMNStep.setText(u"1"_s);
        form.lists.cboMNList.setListIndex(1);
        form.collect.lblAutoCollect.setCaption(u"B"_s);
        form.collect.lblAutoCollect.setBackColor(Colours::Blue);
        form.collect.lblAutoCollect.setForeColor(Colours::White);
        form.urlFilter.cboMNMCMNC.setListIndex(1);
        form.urlFilter.cboMNMCMNCFilter.setText(u"/team/"_s);
        ListBox &list = form.lists.lstMN(1);
        list.setBackColor(rgb(158, 255, 159));
        for (int i = 1; i <= 24; ++i)
            list.addItem(u"http://www.north-harbour.example/team/people/%1/index.html?view=all&from=list"_s.arg(i));
        list.setListIndex(3);
        list.setSelected(3, true);
    }

    void showRecord()
    {
        SiteEditor &editor = form.siteEditor;
        const QStringList texts{u"North Harbour"_s, u"search.north-harbour.example"_s,
                                u"url="_s,          u"&ref="_s,
                                u"http"_s,          u"north-harbour"_s,
                                u"advanced"_s,      u"next"_s};
        for (int i = 1; i <= 8; ++i) {
            editor.cboSD(i).addItem(texts.at(i - 1));
            editor.cboSD(i).setListIndex(0);
        }
        editor.incSDUrlLen.setText(u"20"_s);
        editor.cboSDLen.setListIndex(1);
        const QStringList counts{u"214"_s, u"96"_s, u"90"_s, u"31"_s, u"12"_s, u"10"_s};
        for (int i = 1; i <= 6; ++i)
            editor.lblSDCount(i).setCaption(counts.at(i - 1));
        editor.chkSDHex.setValue(1);
    }

    void showPlaces()
    {
        form.places.txtSFDBDir.setText(u"/home/anna/harvest/"_s);
        form.places.txtSFDBFile.setText(u"Trawlex-0.mdb"_s);
        form.places.txtSFMNDir.setText(u"/home/anna/harvest/files/"_s);
        form.areaCodes.txtSBSelAreaCodes.setText(u"212,646"_s);
        form.areaCodes.cboSBSelectState.addItem(u"New York"_s);
        form.areaCodes.cboSBSelectState.setListIndex(0);
        form.areaCodes.txtSBStateACs.setText(u"212,315,347,516,518,585,607,631,646,716,718"_s);
        for (const auto &text : {u"/ads/"_s, u"doubleclick"_s, u"login"_s})
            form.blocking.urls.items.addItem(text);
        form.blocking.urls.items.setListIndex(1);
    }

    void showRows()
    {
        form.data.cboDBTables.addItem(u"SiteSummary"_s);
        form.data.cboDBTables.setListIndex(0);
        form.data.cboDBFields.addItem(u"Title"_s);
        form.data.cboDBFields.setListIndex(0);
        form.data.fxgTrawlex.setDataSource(std::make_shared<Summaries>());
        const int widths[] = {700, 1100, 2200, 3400};
        for (int column = 0; column < 4; ++column)
            form.data.fxgTrawlex.setColWidth(column, widths[column]);
        form.data.fxgTrawlex.select(4, 2);
    }

    /// The row in use as a card, below the grid and beside it; the detached grid.
    void showCard()
    {
        form.data.chkDBCard.setValue(1);
        form.data.crdDBRow.setContent(
            {.title = u"People of the harbour, page 5"_s,
             .address = u"http://www.north-harbour.example/team/people/5/index.html"_s,
             .date = u"2026-11-05"_s,
             .picture = harbour(),
             .found = {u"anna.berg@north-harbour.example"_s, u"office@north-harbour.example"_s, u"212-555-0142"_s},
             .page = u"<h1>People of the harbour</h1><p>The pilots' house has been open to visitors since 1911. Boats "
                     "leave from the eastern pier at nine, at noon and at three."_s});
        form.data.crdDBRow.setVisible(true);
        take(u"data-card"_s);
        const QSize before = window.size();
        window.resize(860, before.height());
        take(u"data-card-wide"_s);
        window.resize(before);
        form.data.crdDBRow.setVisible(false);
        frmfxg detached;
        detached.lstMN.setVisible(false);
        GridWindow grid(detached, nullptr);
        detached.fxgTrawlex.setDataSource(std::make_shared<Summaries>());
        const int widths[] = {700, 1100, 4000, 6000};
        for (int column = 0; column < 4; ++column)
            detached.fxgTrawlex.setColWidth(column, widths[column]);
        detached.fxgTrawlex.select(2, 3, {2, 3, 4, 3});
        grid.resize(720, 400);
        grid.show();
        take(u"data-window"_s, grid);
    }

    /// A small picture as a page could have one.
    [[nodiscard]] static QByteArray harbour()
    {
        QImage image(240, 120, QImage::Format_RGB32);
        image.fill(QColor(158, 196, 222));
        QPainter painter(&image);
        painter.fillRect(0, 80, 240, 40, QColor(52, 96, 128));
        painter.setBrush(QColor(244, 240, 230));
        painter.setPen(Qt::NoPen);
        painter.drawPolygon(QPolygon({{70, 76}, {70, 24}, {106, 76}}));
        painter.setBrush(QColor(120, 62, 40));
        painter.drawPolygon(QPolygon({{52, 78}, {124, 78}, {108, 94}, {66, 94}}));
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        image.save(&buffer, "jpg");
        return bytes;
    }

    void showSideWindows()
    {
        auto *const about = new AboutWindow(&window);
        about->findChild<QPushButton *>(u"cmdSysInFo"_s)->click();
        about->findChild<QPlainTextEdit *>(u"systemText"_s)
            ->setPlainText(u"Trawlex, system, kernel, Qt, screens: one a line"_s);
        about->show();
        take(u"about"_s, *about);
        MagnifyWindow magnifier(&window);
        magnifier.Magnify(u"http://www.north-harbour.example/team/people/directory/index.html?view=all&from=list"_s);
        magnifier.resize(900, magnifier.height());
        magnifier.show();
        take(u"magnifier"_s, magnifier);
    }

    /// The built-in browser with a page, as it stands under its address.
    void showBrowser()
    {
        const QTemporaryDir folder;
        QFile page(folder.filePath(u"harbour.html"_s));
        ASSERT_TRUE(page.open(QIODevice::WriteOnly));
        page.write("<title>People of the harbour</title><body style='font-family:sans-serif;margin:2em'>"
                   "<h1>People of the harbour</h1><p><img src='data:image/jpeg;base64," +
                   harbour().toBase64() +
                   "'><p>The pilots' house has been open to visitors since 1911. Boats leave from the eastern pier at "
                   "nine, at noon and at three.<p><a href='x'>Anna Berg, pilot</a><br><a href='y'>The office</a>");
        page.close();
        BareBrowserWindow browser(std::make_shared<WebEngineBrowser>());
        browser.resize(640, 480);
        browser.show();
        browser.NavigateToUrl(QUrl::fromLocalFile(page.fileName()).toString());
        ASSERT_TRUE(QTest::qWaitFor([&] { return browser.windowTitle() == u"People of the harbour"_s; }, 30000));
        QTest::qWait(500); // until it is drawn
        browser.findChild<QLineEdit *>(u"txtAddressBar"_s)
            ->setText(u"http://www.north-harbour.example/team/people/index.html"_s);
        take(u"browser"_s, browser);
        browser.close();
    }

    /// Some pictures of a harbour at all times of day, the last one on show.
    void showPictures()
    {
        const QTemporaryDir folder;
        QStringList names;
        for (int hour = 0; hour < 9; ++hour) {
            QImage picture(640, 400, QImage::Format_RGB32);
            QPainter painter(&picture);
            QLinearGradient sky(0, 0, 0, 260);
            sky.setColorAt(0, QColor::fromHsv(200 + 15 * hour, 160, 240 - 18 * hour));
            sky.setColorAt(1, QColor::fromHsv(30 + 2 * hour, 40 + 20 * hour, 250 - 8 * hour));
            painter.fillRect(0, 0, 640, 260, sky);
            painter.fillRect(0, 260, 640, 140, QColor::fromHsv(210, 120, 150 - 10 * hour));
            painter.setBrush(QColor(0x22, 0x2a, 0x38));
            painter.setPen(Qt::NoPen);
            const int x = 60 + 45 * hour;
            painter.drawPolygon(QPolygon({{x, 300}, {x + 160, 300}, {x + 130, 335}, {x + 30, 335}}));
            painter.drawPolygon(QPolygon({{x + 75, 120}, {x + 75, 290}, {x + 150, 290}}));
            painter.end();
            names.append(u"boats-%1.jpg"_s.arg(hour + 1, 3, 10, QChar(u'0')));
            EXPECT_TRUE(picture.save(folder.filePath(names.constLast())));
        }
        frmFoto foto;
        foto.setPictures(folder.path(), names);
        foto.setMoveToDirectory(u"/home/anna/harvest/kept/"_s);
        foto.setCaption(u"9 of 9"_s);
        foto.mnuFotoMore.item("mnuFotoThumbnails"_L1).setChecked(true);
        foto.choosePicture(8);
        PictureWindow pictures(foto);
        pictures.show();
        pictures.LoadPicture(foto.chosenPath());
        QTest::qWait(500); // for the thumbnails
        take(u"pictures"_s, pictures);
    }

    struct Summaries : GridRows
    {
        [[nodiscard]] QStringList heads() const override { return {u"Index"_s, u"Date"_s, u"Title"_s, u"Url"_s}; }
        [[nodiscard]] int rowCount() const override { return 128; }
        [[nodiscard]] QString text(int row, int column) const override
        {
            const QStringList cells{QString::number(row + 1), u"2026-11-%1"_s.arg(row % 28 + 1, 2, 10, QChar(u'0')),
                                    u"People of the harbour, page %1"_s.arg(row + 1),
                                    u"http://www.north-harbour.example/team/people/%1/index.html"_s.arg(row + 1)};
            return cells.at(column);
        }
        [[nodiscard]] SortMark order() const override { return {2, Qt::AscendingOrder}; }
        [[nodiscard]] bool canSort() const override { return true; }
    };
};

TEST_F(DISABLED_Screenshots, AreTaken)
{
    showRun();
    take(u"auto"_s);
    form.autoRun.cmdANStart.setCaption(u"Go"_s);
    showLists();
    showRecord();
    showPlaces();
    showRows();
    struct Page
    {
        QString name;
        int search, settings, files, misc;
    };
    const Page pages[] = {{u"manual"_s, Tab::Manual, 0, 0, 0},
                          {u"blocking"_s, Tab::Settings, Tab::Blocking, 0, 0},
                          {u"directory"_s, Tab::Settings, Tab::Files, Tab::Directory, 0},
                          {u"import"_s, Tab::Settings, Tab::Files, Tab::Import, 0},
                          {u"auto-manual"_s, Tab::Settings, Tab::Misc, 0, Tab::AutoAndManual},
                          {u"save"_s, Tab::Settings, Tab::Misc, 0, Tab::Save},
                          {u"view"_s, Tab::Settings, Tab::Misc, 0, Tab::View},
                          {u"sites"_s, Tab::Settings, Tab::Misc, 0, Tab::Sites},
                          {u"data"_s, Tab::Data, 0, 0, 0}};
    for (const Page &page : pages) {
        form.frame.sstSearch.setTab(page.search);
        form.frame.sstSettings.setTab(page.settings);
        form.frame.sstFiles.setTab(page.files);
        form.frame.sstMiscOptions.setTab(page.misc);
        take(page.name);
    }
    showCard();
    showSideWindows();
    showBrowser();
    showPictures();
}
