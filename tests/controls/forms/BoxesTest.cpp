#include <QAbstractButton>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

#include "controls/forms/DesktopBoxes.h"
#include "controls/forms/ScreenPointer.h"
#include "controls/forms/TestForm.h"
#include "controls/forms/frmMsgBoxEx.h"
#include "harness/AwaitActive.h"
#include "harness/TempFolder.h"
#include "support/files/modHostFiles.h"

using namespace neb;
using namespace neb::harness;

namespace {

// Does something with the box or dialog of this type once it stands on the screen.
template <class Dialog>
void WhenOpen(const std::function<void(Dialog&)>& Action) {
    QTimer::singleShot(30, qApp, [Action] {
        auto* Open = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        ASSERT_NE(nullptr, Open);
        Action(*Open);
        if (QApplication::activeModalWidget() == Open) Open->reject();
    });
}

BoxAnswer Answer(const BoxRequest& Request, const std::function<void(QMessageBox&)>& Action) {
    WhenOpen<QMessageBox>(Action);
    return DesktopBoxes().Show(Request);
}

const BoxRequest YesNo{QStringLiteral("Really?"), QStringLiteral("Delete Confirmation"),
                       BoxIcon::Question, BoxButtons::YesNo};

struct Boxes : ::testing::Test {
    NoFormsLeft Clean;
    void TearDown() override { SetScreenPointer(Pointer::Default); }
};

}  // namespace

TEST_F(Boxes, ShowsTextTitleAndIconAsGiven) {
    const auto Given = Answer(YesNo, [](QMessageBox& Box) {
        EXPECT_EQ(u"Really?", Box.text());
        EXPECT_EQ(u"Delete Confirmation", Box.windowTitle());
        EXPECT_EQ(QMessageBox::Question, Box.icon());
        EXPECT_EQ(QMessageBox::Yes | QMessageBox::No, Box.standardButtons());
        Box.button(QMessageBox::No)->click();
    });
    EXPECT_EQ(BoxAnswer::No, Given);
}

TEST_F(Boxes, EnterAnswersAsTheQuestionWants) {
    const auto Enter = [](QMessageBox& Box) { QTest::keyClick(&Box, Qt::Key_Return); };
    BoxRequest Request = YesNo;
    EXPECT_EQ(BoxAnswer::No, Answer(Request, Enter)) << "unless it says otherwise";
    Request.Default = BoxAnswer::Yes;
    EXPECT_EQ(BoxAnswer::Yes, Answer(Request, Enter));
}

TEST_F(Boxes, ABoxThatAsksAboutSavingAnswersWithItsButtonsAndCancelsByAnyOtherWay) {
    BoxRequest Request = YesNo;
    Request.Buttons = BoxButtons::SaveDiscardCancel;
    const auto Click = [](QMessageBox::StandardButton Which) {
        return [Which](QMessageBox& Box) { Box.button(Which)->click(); };
    };
    EXPECT_EQ(BoxAnswer::Save, Answer(Request, Click(QMessageBox::Save)));
    EXPECT_EQ(BoxAnswer::Discard, Answer(Request, Click(QMessageBox::Discard)));
    EXPECT_EQ(BoxAnswer::Cancel, Answer(Request, Click(QMessageBox::Cancel)));
    for (const auto Key : {Qt::Key_Return, Qt::Key_Escape})
        EXPECT_EQ(BoxAnswer::Cancel,
                  Answer(Request, [Key](QMessageBox& Box) { QTest::keyClick(&Box, Key); }));
    EXPECT_EQ(BoxAnswer::Cancel, Answer(Request, [](QMessageBox& Box) { Box.close(); }));
}

TEST_F(Boxes, AnAnswerInWordsIsGivenByItsButtonAlone) {
    BoxRequest Request = YesNo;
    Request.YesWords = QStringLiteral("End and Lose the Changes");
    Request.NoWords = QStringLiteral("Go On");
    const auto Press = [](const QString& Words) {
        return [Words](QMessageBox& Box) {
            for (QAbstractButton* Each : Box.buttons())
                if (Each->text() == Words) Each->click();
        };
    };
    EXPECT_EQ(BoxAnswer::Yes, Answer(Request, Press(Request.YesWords)));
    EXPECT_EQ(BoxAnswer::No, Answer(Request, Press(Request.NoWords)));
    for (const auto Key : {Qt::Key_Return, Qt::Key_Escape})
        EXPECT_EQ(BoxAnswer::No,
                  Answer(Request, [Key](QMessageBox& Box) { QTest::keyClick(&Box, Key); }));
    EXPECT_EQ(BoxAnswer::No, Answer(Request, [](QMessageBox& Box) { Box.close(); }));
}

TEST_F(Boxes, DetailsOpenAtAButtonAndChangeNoAnswer) {
    BoxRequest Request = YesNo;
    Request.Default = BoxAnswer::No;
    Request.Details = QStringLiteral("a line\n").repeated(2000);
    const auto Given = Answer(Request, [&](QMessageBox& Box) {
        EXPECT_EQ(Request.Details, Box.detailedText());
        for (QAbstractButton* Each : Box.buttons())
            if (Box.buttonRole(Each) == QMessageBox::ActionRole) Each->click();
        EXPECT_TRUE(Box.isVisible());
        EXPECT_LE(Box.height(), 600);
        QTest::keyClick(&Box, Qt::Key_Return);
    });
    EXPECT_EQ(BoxAnswer::No, Given);
    EXPECT_EQ(BoxAnswer::No,
              Answer(Request, [](QMessageBox& Box) { QTest::keyClick(&Box, Qt::Key_Escape); }));
}

TEST_F(Boxes, DetailsOfAMessageAreOpenAtOnce) {
    BoxRequest Request{.Text = QStringLiteral("1 folder could not be opened."),
                       .Details = QStringLiteral("/media/stick/locked")};
    const auto Given = Answer(Request, [&](QMessageBox& Box) {
        const auto* Details = Box.findChild<QTextEdit*>();
        ASSERT_NE(nullptr, Details);
        EXPECT_TRUE(Details->isVisible());
        ASSERT_TRUE(harness::AwaitActive(Box));
        EXPECT_TRUE(Box.button(QMessageBox::Ok)->hasFocus());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    });
    EXPECT_EQ(BoxAnswer::Ok, Given);
}

TEST_F(Boxes, AMessageThatIsTooLongScrollsInAWindow) {
    for (const QString& Long : {QStringLiteral("A line.\n").repeated(30).trimmed(),
                                QStringLiteral("word ").repeated(600).trimmed()}) {
        bool Seen = false;
        WhenOpen<QDialog>([&](QDialog& Window) {
            Seen = qobject_cast<frmMsgBoxEx*>(&Window) != nullptr;
            EXPECT_EQ(u"Delete Confirmation", Window.windowTitle());
            const auto* Text = Window.findChild<QPlainTextEdit*>();
            ASSERT_NE(nullptr, Text);
            EXPECT_EQ(Long, Text->toPlainText());
            EXPECT_LE(Window.height(), 600);
            Window.findChild<QPushButton*>(QStringLiteral("cmdOkay"))->click();
        });
        EXPECT_EQ(BoxAnswer::Ok, DesktopBoxes().Show({Long, YesNo.Title, BoxIcon::Information}));
        EXPECT_TRUE(Seen);
    }
}

TEST_F(Boxes, AQuestionStaysAQuestionHoweverLong) {
    BoxRequest Long = YesNo;
    Long.Text = QStringLiteral("A line.\n").repeated(30);
    EXPECT_EQ(BoxAnswer::Yes,
              Answer(Long, [](QMessageBox& Box) { Box.button(QMessageBox::Yes)->click(); }));
}

TEST_F(Boxes, AnOkBoxHasOneButtonAndAnswersOkHoweverItIsClosed) {
    const BoxRequest Plain{QStringLiteral("Done."), {}, BoxIcon::Information, BoxButtons::Ok};
    EXPECT_EQ(BoxAnswer::Ok, Answer(Plain, [](QMessageBox& Box) {
                  EXPECT_EQ(1, Box.buttons().size());
                  EXPECT_EQ(QMessageBox::Information, Box.icon());
                  QTest::keyClick(&Box, Qt::Key_Return);
              }));
    EXPECT_EQ(BoxAnswer::Ok,
              Answer(Plain, [](QMessageBox& Box) { QTest::keyClick(&Box, Qt::Key_Escape); }));
}

TEST_F(Boxes, TheTitleIsTheProgramsNameWhenNoneIsGiven) {
    const QString Before = QGuiApplication::applicationDisplayName();
    QGuiApplication::setApplicationDisplayName(QStringLiteral("NEB Slide Show"));
    Answer({QStringLiteral("Done."), {}, BoxIcon::Plain, BoxButtons::Ok}, [](QMessageBox& Box) {
        EXPECT_EQ(u"NEB Slide Show", Box.windowTitle());
        EXPECT_EQ(QMessageBox::NoIcon, Box.icon());
    });
    QGuiApplication::setApplicationDisplayName(Before);
}

TEST_F(Boxes, EnterAndEscapeAndTheCloseButtonAreNo) {
    EXPECT_EQ(BoxAnswer::No, Answer(YesNo, [](QMessageBox& Box) {
                  EXPECT_EQ(Box.button(QMessageBox::No), Box.defaultButton());
                  QTest::keyClick(&Box, Qt::Key_Return);
              }));
    EXPECT_EQ(BoxAnswer::No,
              Answer(YesNo, [](QMessageBox& Box) { QTest::keyClick(&Box, Qt::Key_Escape); }));
    EXPECT_EQ(BoxAnswer::No, Answer(YesNo, [](QMessageBox& Box) { Box.close(); }));
}

TEST_F(Boxes, TextThatLooksLikeMarkupIsShownToTheLetter) {
    const BoxRequest Odd{
        QStringLiteral("<b>Holiday</b> & <i>Sea</i>"), {}, BoxIcon::Critical, BoxButtons::Ok};
    Answer(Odd, [&](QMessageBox& Box) {
        EXPECT_EQ(Qt::PlainText, Box.textFormat());
        EXPECT_EQ(Odd.Text, Box.text());
        EXPECT_EQ(QMessageBox::Critical, Box.icon());
    });
}

TEST_F(Boxes, ThePointerIsNormalWhileABoxIsUpAndBackAfterwards) {
    SetScreenPointer(Pointer::Hourglass);
    Answer(YesNo, [](QMessageBox&) { EXPECT_EQ(Pointer::Default, ScreenPointer()); });
    EXPECT_EQ(Pointer::Hourglass, ScreenPointer());
}

TEST_F(Boxes, ABoxSurvivesTheWindowThatItStandsOver) {
    auto Under = NewForm<TestForm>();
    Under->ShowModeless();
    Under->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(Under.get()));
    const QPointer<Form> Watched = Under.get();
    const auto Given = Answer(YesNo, [&](QMessageBox&) {
        Under->Unload();
        Under.reset();
        QTest::qWait(20);
    });
    EXPECT_EQ(BoxAnswer::No, Given);
    Settle();
    EXPECT_TRUE(Watched.isNull());
}

TEST_F(Boxes, FileDialogsOfferTheFiltersInOrder) {
    const QString Filters = QStringLiteral("Pictures (*.bmp;*.jpg)|*.bmp;*.jpg|Sounds|*.wav");
    WhenOpen<QFileDialog>([](QFileDialog& Dialog) {
        EXPECT_EQ(QStringList(
                      {QStringLiteral("Pictures (*.bmp *.jpg)"), QStringLiteral("Sounds (*.wav)")}),
                  Dialog.nameFilters());
        EXPECT_EQ(u"Choose", Dialog.windowTitle());
        EXPECT_EQ(QFileDialog::AcceptOpen, Dialog.acceptMode());
    });
    EXPECT_TRUE(DesktopFileDialogs().OpenFile(QStringLiteral("Choose"), {}, Filters).isEmpty());
}

TEST_F(Boxes, AFileDialogOpensOnTheFilterThatShowsMost) {
    const QString Filters = QStringLiteral("BMP|*.bmp|JPEG|*.jpg;*.jpeg|All|*.bmp;*.jpg;*.jpeg");
    WhenOpen<QFileDialog>([](QFileDialog& Dialog) {
        EXPECT_EQ(QStringLiteral("All (*.bmp *.jpg *.jpeg)"), Dialog.selectedNameFilter());
    });
    EXPECT_TRUE(DesktopFileDialogs().OpenFile(QStringLiteral("Choose"), {}, Filters).isEmpty());
}

TEST_F(Boxes, TheFilterForAllFilesTakesNamesWithoutADotToo) {
    WhenOpen<QFileDialog>([](QFileDialog& Dialog) {
        EXPECT_EQ(QStringList(QStringLiteral("All Files (*)")), Dialog.nameFilters());
        EXPECT_EQ(QFileDialog::AcceptSave, Dialog.acceptMode());
    });
    const QString Filters = QStringLiteral("All Files (*.*)|*.*");
    EXPECT_TRUE(DesktopFileDialogs().SaveFile(QStringLiteral("Save"), {}, Filters).isEmpty());
}

// A file may stand for the folder that it lies in: nobody is to be frightened for it.
TEST_F(Boxes, NamingAFileThatIsThereAsksNothing) {
    const TempFolder Folder;
    const QString Path = Folder / QStringLiteral("NextIDs.dat");
    WriteFile(Path, "kept");
    WhenOpen<QFileDialog>(
        [](QFileDialog& Dialog) { QMetaObject::invokeMethod(&Dialog, "accept"); });
    EXPECT_EQ(Path, DesktopFileDialogs().SaveFile(QStringLiteral("Save"), Path, {}));
    EXPECT_EQ("kept", ReadFile(Path));
}

TEST_F(Boxes, ANameWithoutAnExtensionGetsThatOfTheChosenFilter) {
    const TempFolder Folder;
    const QString Filters = QStringLiteral("PDF (*.pdf)|*.pdf|Two (*.a;*.b)|*.a;*.b|All|*.*");
    const auto Named = [&](const char* Name, const char* Filter) {
        WhenOpen<QFileDialog>([&](QFileDialog& Dialog) {
            Dialog.selectNameFilter(QLatin1String(Filter));
            Dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))
                ->setText(QLatin1String(Name));
            QMetaObject::invokeMethod(&Dialog, "accept");
        });
        return DesktopFileDialogs()
            .SaveFile(QStringLiteral("Save"), Folder.Path(), Filters)
            .mid(Folder.Path().size())
            .toStdString();
    };
    EXPECT_EQ("trip.pdf", Named("trip", "PDF (*.pdf)"));
    EXPECT_EQ("trip.x", Named("trip.x", "PDF (*.pdf)"));
    EXPECT_EQ("trip", Named("trip", "Two (*.a *.b)"));
    EXPECT_EQ("trip", Named("trip", "All (*)"));
}

namespace {

struct LongMessage : Boxes {
    std::shared_ptr<frmMsgBoxEx> Box = NewForm<frmMsgBoxEx>();
    int Show(const std::function<void()>& WhileUp) {
        QTimer::singleShot(30, Box.get(), WhileUp);
        return Box->ShowMsgBox(QStringLiteral("Operation Failed"),
                               QStringLiteral("<one>\ntwo & three"));
    }
};

}  // namespace

TEST_F(LongMessage, ShowsTheWholeTextUnderItsTitleAndAnswersZero) {
    const int Result = Show([&] {
        const auto* txtErrorText = Box->findChild<QPlainTextEdit*>(QStringLiteral("txtErrorText"));
        ASSERT_NE(nullptr, txtErrorText);
        EXPECT_EQ(u"<one>\ntwo & three", txtErrorText->toPlainText());
        EXPECT_TRUE(txtErrorText->isReadOnly());
        EXPECT_EQ(u"Operation Failed", Box->windowTitle());
        EXPECT_TRUE(Box->isModal());
        QTest::mouseClick(Box->findChild<QPushButton*>(QStringLiteral("cmdOkay")), Qt::LeftButton);
    });
    EXPECT_EQ(0, Result);
    EXPECT_FALSE(Box->IsLoaded());
}

TEST_F(LongMessage, EnterInTheTextAndEscapeCloseIt) {
    Show([&] {
        auto* txtErrorText = Box->findChild<QPlainTextEdit*>(QStringLiteral("txtErrorText"));
        QTest::keyClick(txtErrorText, Qt::Key_Return);
        EXPECT_FALSE(Box->isVisible());
        Box->Unload();
    });
    Box = NewForm<frmMsgBoxEx>();
    Show([&] {
        QTest::keyClick(Box.get(), Qt::Key_Escape);
        EXPECT_FALSE(Box->isVisible());
        Box->Unload();
    });
}

TEST_F(LongMessage, HasANormalPointerWhileItIsUpAndPutsTheOldOneBack) {
    SetScreenPointer(Pointer::Hourglass);
    Show([&] {
        EXPECT_EQ(Pointer::Default, ScreenPointer());
        Box->Unload();
    });
    EXPECT_EQ(Pointer::Hourglass, ScreenPointer());
}
