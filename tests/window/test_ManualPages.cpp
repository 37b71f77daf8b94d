// The manual tells every option that the program has, under its caption and with its first value.
#include "app/frmSearch.h"
#include "support/Places.h"
#include "window/options/OptionTable.h"

#include <QFile>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {
QString page(const QString &name)
{
    QFile file(inSourceTree(u"docs/manual/"_s + name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return QString::fromUtf8(file.readAll());
}
} // namespace

TEST(ManualPages, TellEverySwitchWithItsCaptionAndItsFirstValue)
{
    const QString settings = page(u"settings.html"_s);
    int told = 0;
    for (const OptionRow &row : optionRows()) {
        if (row.caption.isEmpty())
            continue;
        const QString first = row.byDefault == "1"_L1 ? u"on"_s : u"off"_s;
        EXPECT_TRUE(settings.contains(u"<td><b>%1</b></td><td>%2</td>"_s.arg(row.caption, first)))
            << row.caption.data() << ", " << first.toStdString();
        ++told;
    }
    EXPECT_GE(told, 27);
}

TEST(ManualPages, TellEveryNumberUnderItsCaption)
{
    const frmSearch form;
    const QString settings = page(u"settings.html"_s);
    for (const Label *label :
         {&form.limits.lblNotFoundMinSize, &form.limits.lblSFMinPageSize, &form.limits.lblMNFileDLMinSize,
          &form.limits.lblMinHtmlSize, &form.limits.lblAutoTxtBoxElongate, &form.limits.lblSMRPPauseTime,
          &form.limits.lblSMAIEWidth, &form.limits.lblSMAIEHeight})
        EXPECT_TRUE(settings.contains(u"<b>%1</b>"_s.arg(label->caption()))) << label->caption().toStdString();
}
