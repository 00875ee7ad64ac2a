// Windows whose content is larger than the screen: what is too much scrolls, what stands in rows
// breaks, and the buttons at the end stay in view.
#include "controls/fields/ScrollWithin.h"

#include <gtest/gtest.h>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QTest>
#include <QVBoxLayout>

#include "controls/forms/Form.h"

namespace neb {
namespace {

using namespace Qt::StringLiterals;

// Fields below each other, each as high as asked for, and a row of buttons.
class Sheet : public Form {
  public:
    Sheet(int Fields, int High) {
        auto* All = new QVBoxLayout(this);
        for (int I = 0; I < Fields; ++I) {
            auto* Field = new QLineEdit;
            Field->setObjectName(u"txt%1"_s.arg(I));
            Field->setMinimumHeight(High);
            All->addWidget(Field);
        }
        auto* Row = new QHBoxLayout;
        Row->setObjectName(u"lytButtons"_s);
        for (const char* Name : {"cmdSave", "cmdCancel"}) {
            auto* Button = new QPushButton(QString::fromLatin1(Name));
            Button->setObjectName(QString::fromLatin1(Name));
            Row->addWidget(Button);
        }
        All->addLayout(Row);
    }
    QScrollArea* Area() const { return findChild<QScrollArea*>(u"areContent"_s); }
    bool Shows(const char* Name) const {
        const auto* Found = findChild<QWidget*>(QString::fromLatin1(Name));
        const QRect Place(Found->mapTo(this, QPoint()), Found->size());
        return rect().contains(Place) && !Found->visibleRegion().isEmpty();
    }
};

TEST(ScrollWithin, AWindowThatFitsStaysAsItIs) {
    const auto Window = NewForm<Sheet>(3, 40);
    Window->ShowModeless();
    EXPECT_FALSE(Window->Area());
    Window->Unload();
}

TEST(ScrollWithin, ATallWindowScrollsAndItsButtonsStayInView) {
    const auto Window = NewForm<Sheet>(30, 60);
    Window->ShowModeless();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(Window.get()));
    ASSERT_TRUE(Window->Area());
    EXPECT_LE(Window->height(), Window->screen()->availableSize().height());
    EXPECT_TRUE(Window->Shows("cmdSave"));
    EXPECT_TRUE(Window->Shows("cmdCancel"));
    EXPECT_TRUE(Window->Shows("txt0"));
    EXPECT_FALSE(Window->Shows("txt29"));
    Window->Unload();
}

TEST(ScrollWithin, WhatTheKeyboardComesToIsScrolledIntoView) {
    const auto Window = NewForm<Sheet>(30, 60);
    Window->ShowModeless();
    Window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(Window.get()));
    Window->findChild<QWidget*>(u"txt0"_s)->setFocus();
    for (int I = 0; I < 29; ++I) QTest::keyClick(Window->focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(u"txt29"_s, Window->focusWidget()->objectName());
    EXPECT_TRUE(Window->Shows("txt29"));
    EXPECT_FALSE(Window->Shows("txt0"));
    QTest::keyClick(Window->focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(u"cmdSave"_s, Window->focusWidget()->objectName());
    Window->Unload();
}

TEST(ScrollWithin, ContentThatGrowsInAnOpenWindowScrollsFromThenOn) {
    const auto Window = NewForm<Sheet>(3, 40);
    Window->ShowModeless();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(Window.get()));
    Window->findChild<QWidget*>(u"txt1"_s)->setMinimumHeight(3000);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Window->Area() != nullptr; }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return Window->Shows("cmdSave"); }));
    Window->Unload();
}

// A dialog of one long row of buttons, in two groups, with a field that has a label.
class LongRow : public Form {
  public:
    explicit LongRow(int Wide) {
        auto* All = new QVBoxLayout(this);
        auto* Row = new QHBoxLayout;
        auto* Label = new QLabel(u"&Zoom"_s);
        auto* Field = new QLineEdit;
        Label->setBuddy(Field);
        for (QWidget* Each : {AddButton(), AddButton(), static_cast<QWidget*>(Label),
                              static_cast<QWidget*>(Field), AddButton()}) {
            Row->addWidget(Each);
            if (Each != Label) Each->setMinimumWidth(Wide);
        }
        All->addLayout(Row);
        mLabel = Label;
        mField = Field;
    }
    QLabel* mLabel;
    QLineEdit* mField;

  private:
    static QWidget* AddButton() { return new QPushButton; }
};

TEST(BreakRows, ARowThatIsTooLongBecomesSeveralAndALabelStaysWithItsField) {
    const auto Window = NewForm<LongRow>(500);
    Window->ShowModeless();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(Window.get()));
    EXPECT_FALSE(Window->findChild<QScrollArea*>(u"areContent"_s)) << "there is room for two rows";
    EXPECT_LE(Window->width(), Window->screen()->availableSize().width());
    for (const QPushButton* Each : Window->findChildren<QPushButton*>())
        EXPECT_TRUE(Window->rect().contains(Each->geometry()));
    EXPECT_LT(
        qAbs(Window->mLabel->geometry().center().y() - Window->mField->geometry().center().y()), 4);
    Window->Unload();
}

TEST(BreakRows, ARowThatFitsStaysOne) {
    const auto Window = NewForm<LongRow>(100);
    Window->ShowModeless();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(Window.get()));
    const auto Buttons = Window->findChildren<QPushButton*>();
    EXPECT_EQ(Buttons.first()->y(), Buttons.last()->y());
    Window->Unload();
}

}  // namespace
}  // namespace neb
