// A control's value as text: what is stored, what comes back, what a user may write.
#include "controls/ListControls.h"
#include "controls/NumberBox.h"
#include "controls/SimpleControls.h"
#include "util/Errors.h"

#include <functional>
#include <gtest/gtest.h>
#include <memory>

using namespace Qt::StringLiterals;

namespace {
qint64 errorOf(const std::function<void()> &body)
{
    try {
        body();
    } catch (const RuntimeError &error) {
        return error.number();
    }
    return 0;
}

QString refusalOf(Control &control, const QString &value)
{
    try {
        control.enter(value);
    } catch (const RuntimeError &error) {
        return error.description();
    }
    return {};
}

std::unique_ptr<ComboBox> combo()
{
    return std::make_unique<ComboBox>(u"cbo"_s, ComboBox::Style::DropDownList, nullptr, QStringList{u"A"_s, u"1"_s});
}
} // namespace

TEST(StoredValues, EachKindComesBackAsItWas)
{
    CheckBox box(u"chk"_s, nullptr), otherBox(u"chk"_s, nullptr);
    box.setValue(2);
    otherBox.restore(box.stored());
    EXPECT_EQ(otherBox.value(), 2);

    const auto list = combo(), otherList = combo();
    list->setListIndex(1);
    EXPECT_EQ(list->stored(), u"1"_s);
    otherList->restore(list->stored());
    EXPECT_EQ(otherList->listIndex(), 1);

    NumberBox number(u"inc"_s, nullptr, 4), otherNumber(u"inc"_s, nullptr, 4);
    number.setText(u"42"_s);
    EXPECT_EQ(number.stored(), u"0042"_s);
    otherNumber.restore(number.stored());
    EXPECT_EQ(otherNumber.value(), 42);

    TextBox text(u"txt"_s, nullptr), otherText(u"txt"_s, nullptr);
    text.setText(u"-1"_s);
    otherText.restore(text.stored());
    EXPECT_EQ(otherText.text(), u"-1"_s);

    ComboBox typed(u"cbo"_s, nullptr), otherTyped(u"cbo"_s, nullptr);
    typed.setText(u"www.a.com"_s);
    otherTyped.restore(typed.stored());
    EXPECT_EQ(otherTyped.text(), u"www.a.com"_s);
}

TEST(StoredValues, WhatDoesNotConvertIsAnErrorAndChangesNothing)
{
    CheckBox box(u"chk"_s, nullptr);
    for (const auto *bad : {"yes", "", "1.5"})
        EXPECT_EQ(errorOf([&] { box.restore(QString::fromLatin1(bad)); }), 13) << bad;
    EXPECT_EQ(errorOf([&] { box.restore(u"3"_s); }), 380);
    EXPECT_EQ(box.value(), 0);
    const auto list = combo();
    EXPECT_EQ(errorOf([&] { list->restore(u"A"_s); }), 13);
    EXPECT_EQ(errorOf([&] { list->restore(u"2"_s); }), 380);
    EXPECT_EQ(list->listIndex(), 0);
    NumberBox number(u"inc"_s, nullptr);
    number.restore(u"not digits"_s);
    EXPECT_EQ(number.text(), u"000"_s);
}

TEST(StoredValues, AListHasNoneWhileNothingIsChosenAndALabelNever)
{
    const auto list = combo();
    EXPECT_TRUE(list->hasValue());
    list->setListIndex(-1);
    EXPECT_FALSE(list->hasValue());
    EXPECT_TRUE(ComboBox(u"cbo"_s, nullptr).hasValue());
    Label label(u"lbl"_s, nullptr);
    EXPECT_FALSE(label.hasValue());
    EXPECT_EQ(label.stored(), QString());
    EXPECT_EQ(errorOf([&] { label.restore(u"1"_s); }), 380);
}

TEST(StoredValues, AnItemsTextComesBeforeAnIndex)
{
    const auto list = combo();
    list->enter(u"0"_s);
    EXPECT_EQ(list->listIndex(), 0);
    list->enter(u"1"_s); // the text of the second
    EXPECT_EQ(list->listIndex(), 1);
    EXPECT_EQ(refusalOf(*list, u"B"_s), u"there is no item \"B\""_s);
    ComboBox typed(u"cbo"_s, nullptr);
    typed.enter(u"anything"_s);
    EXPECT_EQ(typed.text(), u"anything"_s);
}

TEST(StoredValues, WhatCannotBeWrittenIntoAControlIsSaidInOneLine)
{
    CheckBox box(u"chk"_s, nullptr);
    EXPECT_EQ(refusalOf(box, u"2"_s), u"a box takes 0 or 1, not \"2\""_s);
    NumberBox number(u"inc"_s, nullptr);
    EXPECT_EQ(refusalOf(number, u"1000"_s), u"takes up to 3 digits, not \"1000\""_s);
    Label label(u"lbl"_s, nullptr);
    EXPECT_EQ(refusalOf(label, u"x"_s), u"this control has no value"_s);
    ListBox list(u"lst"_s, nullptr);
    list.enter(u"tea"_s);
    list.enter(u"tea"_s);
    EXPECT_EQ(list.items(), (QStringList{u"tea"_s, u"tea"_s}));
}

TEST(StoredValues, AChangeIsToldAheadOfTheControlsOwnEvent)
{
    QStringList order;
    const auto record = [&order](const QString &what) { return [&order, what] { order.append(what); }; };
    CheckBox box(u"chk"_s, nullptr);
    QObject::connect(&box, &Control::altered, &box, record(u"altered"_s));
    QObject::connect(&box, &CheckBox::Click, &box, record(u"Click"_s));
    TextBox text(u"txt"_s, nullptr);
    QObject::connect(&text, &Control::altered, &text, record(u"altered"_s));
    QObject::connect(&text, &TextBox::Change, &text, record(u"Change"_s));
    const auto list = combo();
    QObject::connect(list.get(), &Control::altered, list.get(), record(u"altered"_s));
    QObject::connect(list.get(), &ComboBox::Click, list.get(), record(u"Click"_s));
    NumberBox number(u"inc"_s, nullptr);
    QObject::connect(&number, &Control::altered, &number, record(u"altered"_s));
    QObject::connect(&number, &NumberBox::ValueChanged, &number, record(u"ValueChanged"_s));
    box.restore(u"1"_s);
    text.restore(u"a"_s);
    list->restore(u"1"_s);
    number.restore(u"5"_s);
    EXPECT_EQ(order, (QStringList{u"altered"_s, u"Click"_s, u"altered"_s, u"Change"_s, u"altered"_s, u"Click"_s,
                                  u"altered"_s, u"ValueChanged"_s}));
    order.clear();
    box.restore(u"1"_s);
    text.restore(u"a"_s);
    list->restore(u"1"_s);
    number.restore(u"5"_s);
    EXPECT_TRUE(order.isEmpty());
}
