// The buttons, labels, lists and menus of the print preview.
#include <QMenu>
#include <QSignalSpy>

#include "PreviewRig.h"

namespace neb {
namespace {

using namespace harness;

class PreviewWindow : public PreviewRig {
  protected:
    // The page that is shown, as the view, the label and a screen reader know it.
    void ExpectPage(int Page, int Of) {
        EXPECT_EQ(Page, View().PreviewPage());
        EXPECT_EQ(std::to_string(Page), Label("lblCurPage"));
        EXPECT_EQ(u"Page %1 of %2"_s.arg(Page).arg(Of), View().accessibleDescription());
    }
    void ExpectEnabled(bool Back, bool On) {
        EXPECT_EQ(Back, IsEnabled("cmdMoveFirst"));
        EXPECT_EQ(Back, IsEnabled("cmdPrevPage"));
        EXPECT_EQ(On, IsEnabled("cmdNextPage"));
        EXPECT_EQ(On, IsEnabled("cmdMoveLast"));
    }
};

TEST_F(PreviewWindow, OffersTheZoomsWithOneHundredChosen) {
    Show(3);
    QStringList Offered;
    for (int I = 0; I < Zooms().count(); ++I) Offered << Zooms().itemText(I);
    EXPECT_EQ("200 150 100 90 80 75 70 60 50 40 30 25", Offered.join(u' ').toStdString());
    EXPECT_EQ(2, Zooms().currentIndex());
    EXPECT_EQ(100, View().Zoom());
    ExpectPage(1, 3);
    EXPECT_EQ("3", Label("lblTotalPages"));
    EXPECT_TRUE(View().hasFocus());
}

TEST_F(PreviewWindow, TheHelpNamesEachKeyOfItsMenus) {
    Show(1);
    const QByteArray Help = ReadFile(NEB_SOURCE_DIR "/assets/help/en/paper/print-preview.html");
    int Named = 0;
    for (const QAction* Each : Window->findChildren<QAction*>()) {
        QByteArray Key = Each->shortcut().toString().toUtf8();
        if (Key.isEmpty() || Each->objectName() == u"mnuExit") continue;
        Key.replace("++", "+Plus").replace("+-", "+Minus");
        EXPECT_TRUE(Help.contains("<kbd>" + Key + "</kbd>")) << Key.toStdString();
        ++Named;
    }
    EXPECT_EQ(6, Named);
}

// Some desktops leave hints dark on dark.
TEST_F(PreviewWindow, TheNameOfAViewIsAsEasyToReadAsAZoom) {
    const QPalette Before = QApplication::palette();
    QPalette Dark(QColor(0x31, 0x36, 0x3b));
    Dark.setColor(QPalette::PlaceholderText, QColor(0, 0, 0, 128));
    QApplication::setPalette(Dark);
    Show(1);
    for (const QPalette::ColorGroup Group : {QPalette::Active, QPalette::Inactive}) {
        const QPalette Colours = Zooms().palette();
        EXPECT_EQ(Colours.color(Group, QPalette::ButtonText).rgba(),
                  Colours.color(Group, QPalette::PlaceholderText).rgba());
    }
    QApplication::setPalette(Before);
}

TEST_F(PreviewWindow, ZoomsToTheEntryThatIsClicked) {
    Show(3);
    for (const char* Each : {"200", "75", "25"}) {
        Choose(Each);
        EXPECT_EQ(QByteArray(Each).toDouble(), View().Zoom());
        EXPECT_EQ(816 * View().Zoom() / 100, View().PlaceOf(1).width());
    }
    ExpectPage(1, 3);
}

TEST_F(PreviewWindow, TurnsThePagesByItsButtons) {
    Show(4);
    ExpectEnabled(false, true);
    Push("cmdNextPage");
    ExpectPage(2, 4);
    ExpectEnabled(true, true);
    Push("cmdMoveLast");
    ExpectPage(4, 4);
    ExpectEnabled(true, false);
    Push("cmdPrevPage");
    ExpectPage(3, 4);
    EXPECT_TRUE(Shows(3));
    Push("cmdMoveFirst");
    ExpectPage(1, 4);
    EXPECT_TRUE(Shows(1));
}

TEST_F(PreviewWindow, NextOnTheLastPageAndPreviousOnTheFirstDoNothing) {
    Show(2);
    View().SetScrollTop(5);
    Push("cmdPrevPage");
    Push("cmdMoveFirst");
    ExpectPage(1, 2);
    EXPECT_EQ(5, View().ScrollTop());
    Push("cmdMoveLast");
    View().SetScrollTop(5);
    Push("cmdNextPage");
    Push("cmdMoveLast");
    ExpectPage(2, 2);
    EXPECT_EQ(5, View().ScrollTop());
}

TEST_F(PreviewWindow, ShowsEveryPageThatIsTurnedToFromItsCorner) {
    Show(4);
    View().SetZoom(200);
    for (const char* Each : {"cmdNextPage", "cmdPrevPage", "cmdMoveLast", "cmdMoveFirst"}) {
        View().SetScrollTop(70);
        View().SetScrollLeft(60);
        ASSERT_EQ(QPoint(60, 70), QPoint(View().ScrollLeft(), View().ScrollTop()));
        Push(Each);
        EXPECT_EQ(QPoint(0, 0), QPoint(View().ScrollLeft(), View().ScrollTop())) << Each;
    }
}

TEST_F(PreviewWindow, IsCalmWithoutADocumentAndWithoutPages) {
    const SharedDocument Empty = std::make_shared<PrintDocument>(PictureOf(Qt::gray));
    for (const SharedDocument& Each : {SharedDocument(), Empty}) {
        Show(Each);
        EXPECT_EQ("1", Label("lblCurPage"));
        EXPECT_EQ("0", Label("lblTotalPages"));
        ExpectEnabled(false, false);
        for (QAction* Way : View().actions()) Way->trigger();
        for (const int Pressed : {Qt::Key_PageDown, Qt::Key_End, Qt::Key_Return, Qt::Key_Plus})
            Key(Pressed);
        Wheel(-240);
        QTest::mouseDClick(Port(), Qt::LeftButton, {}, {100, 100});
        EXPECT_EQ("1", Label("lblCurPage"));
        EXPECT_EQ(u"There are no pages to look at."_s, View().accessibleDescription());
        const QImage Image = Seen();
        const QRect Middle(QPoint(), Image.size() / 2);
        QSet<QRgb> Colours;
        for (int X = Image.width() / 4; X < Image.width() * 3 / 4; ++X)
            for (int Y = Image.height() / 2 - 12; Y < Image.height() / 2 + 12; ++Y)
                Colours << Image.pixel(X, Y);
        EXPECT_GT(Colours.size(), 1) << "says nothing";
        EXPECT_TRUE(Window->Unload());
    }
}

TEST_F(PreviewWindow, ShowsAnotherDocumentFromItsBeginning) {
    Show(9);
    View().SetZoom(200);
    Push("cmdMoveLast");
    View().SetScrollTop(50);
    View().SetScrollLeft(50);
    Window->ShowDocument(MakeDocument(3));
    ExpectPage(1, 3);
    EXPECT_EQ("3", Label("lblTotalPages"));
    ExpectEnabled(false, true);
    EXPECT_EQ(QPoint(0, 0), QPoint(View().ScrollLeft(), View().ScrollTop()));
    EXPECT_TRUE(Shows(1));
}

TEST_F(PreviewWindow, TellsWhatItsButtonsDo) {
    Show(1);
    const std::pair<const char*, const char*> Tips[] = {
        {"cmdEmail", "Email Document"},
        {"cmdExit", "Exit Document Print Preview"},
        {"cmdPrint", "Print Document"},
        {"cmdSave", "Save Document"},
        {"cmdLoad", "Load Document"},
        {"cboZoom", "Zoom In/Out on Document"},
        {"cmdMoveFirst", "Move to the 1st Page"},
        {"cmdPrevPage", "Prev Page"},
        {"cmdNextPage", "Next Page"},
        {"cmdMoveLast", "Move to the Last Page"},
    };
    for (const auto& [Name, Tip] : Tips) {
        EXPECT_EQ(Tip, In<QWidget>(*Window, Name).toolTip().toStdString());
        EXPECT_FALSE(In<QWidget>(*Window, Name).accessibleName().isEmpty()) << Name;
    }
}

TEST_F(PreviewWindow, HasItsEntriesInTheMenus) {
    Show(1);
    const auto Entries = [&](const char* Menu) {
        QStringList Texts;
        for (const QAction* Each : In<QMenu>(*Window, Menu).actions())
            if (!Each->isSeparator()) Texts << Each->text() + u' ' + Each->shortcut().toString();
        return Texts.join(u'|').toStdString();
    };
    EXPECT_EQ("&File", In<QMenu>(*Window, "mnuFile").title().toStdString());
    EXPECT_EQ("&Open... Ctrl+O|&Save... Ctrl+S|&Print... Ctrl+P|&Mail... Ctrl+E|E&xit Ctrl+W",
              Entries("mnuFile"));
    EXPECT_EQ("Whole &Page |Page &Width |&Two Pages |Thumb&nail |Zoom &In Ctrl++|Zoom &Out Ctrl+-",
              Entries("mnuView"));
}

TEST_F(PreviewWindow, EnterPressesTheButtonWithTheFocusAndNoOther) {
    Show(3);
    const QSignalSpy Prints(&In<QPushButton>(*Window, "cmdPrint"), &QPushButton::clicked);
    Key(Qt::Key_Return);
    Key(Qt::Key_Enter);
    QTest::keyClick(&Zooms(), Qt::Key_Return);
    QTest::keyClick(static_cast<QWidget*>(Window.get()), Qt::Key_Return);
    EXPECT_EQ(0, Prints.count());
    for (const QPushButton* Each : Window->findChildren<QPushButton*>())
        EXPECT_FALSE(Each->isDefault() || Each->autoDefault()) << Each->objectName().toStdString();
    EXPECT_TRUE(Window->IsLoaded());
    auto& Next = In<QPushButton>(*Window, "cmdNextPage");
    Next.setFocus();
    QTest::keyClick(&Next, Qt::Key_Return);
    ExpectPage(2, 3);
    EXPECT_EQ(0, Prints.count());
}

TEST_F(PreviewWindow, AButtonAtTheEndLeavesTheFocusToThePages) {
    Show(2);
    auto& Next = In<QPushButton>(*Window, "cmdNextPage");
    Next.setFocus();
    QTest::keyClick(&Next, Qt::Key_Space);
    ExpectPage(2, 2);
    EXPECT_TRUE(View().hasFocus());
}

TEST_F(PreviewWindow, ThePagesAreReachedByTheTabKey) {
    Show(2);
    QStringList Order;
    for (int I = 0; I < 10; ++I) {
        Order << Window->focusWidget()->objectName();
        QTest::keyClick(Window->focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(
        "VSPrinter1 cmdPrint cmdSave cmdLoad cmdEmail cmdNextPage cmdMoveLast cboZoom "
        "cmdExit VSPrinter1",
        Order.join(u' ').toStdString());
}

TEST_F(PreviewWindow, EscapeAndTheExitsClose) {
    Show(2);
    Key(Qt::Key_Escape);
    EXPECT_FALSE(Window->IsLoaded());
    Show(2);
    Push("cmdExit");
    EXPECT_FALSE(Window->IsLoaded());
    Show(2);
    Key(Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(Window->IsLoaded());
}

TEST_F(PreviewWindow, OpensWithMostOfTheScreenAndThenAsItWasLeft) {
    Show(1);
    const QSize Free = Window->screen()->availableSize();
    EXPECT_NEAR(Free.width() * 0.9, Window->width(), 2);
    EXPECT_NEAR(Free.height() * 0.9, Window->height(), 2);
    Window->resize(1000, 720);
    EXPECT_TRUE(Window->Unload());
    Show(1);
    EXPECT_EQ(QSize(1000, 720), Window->size());
}

TEST_F(PreviewWindow, KeepsNothingBesideADatabaseThatMayNotBeChanged) {
    Show(1);
    ReadOnlyDB = true;
    Window->resize(1000, 720);
    EXPECT_TRUE(Window->Unload());
    EXPECT_FALSE(FileExists(SettingsDir() + INIFileName()));
    Show(1);
    EXPECT_EQ(QSize(1000, 720), Window->size()) << "the user's own folder has it";
}

}  // namespace
}  // namespace neb
