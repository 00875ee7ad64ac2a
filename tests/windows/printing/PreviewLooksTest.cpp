// The views of the print preview, and the keys and the mouse in them.
#include <QMenu>
#include <QMenuBar>

#include "PreviewRig.h"

namespace neb {
namespace {

using namespace harness;

class PreviewLooks : public PreviewRig {
  protected:
    QAction& Way(const char* Text) {
        for (QAction* Each : View().actions())
            if (Each->text() == QLatin1String(Text)) return *Each;
        throw Fault(u"no such way"_s);
    }
    // Those with a checkmark, in the menu bar and where else they are shown.
    std::string Checked() {
        QStringList Texts;
        for (const QAction* Each : View().actions())
            if (Each->isChecked()) Texts << Each->text();
        return Texts.join(u' ').toStdString();
    }
    QPoint MiddleOf(int Page) { return View().PlaceOf(Page).center(); }
    void Click(QPoint At) { QTest::mouseClick(Port(), Qt::LeftButton, {}, At); }
    void DoubleClick(QPoint At) {
        Click(At);
        QTest::mouseDClick(Port(), Qt::LeftButton, {}, At);
    }
    // Where on the paper a point of the viewport is, in inches.
    QPointF PaperAt(QPoint At) {
        const double Scale = View().Zoom() * View().logicalDpiX() / 100;
        return QPointF(At - View().PlaceOf(View().PreviewPage()).topLeft()) / Scale;
    }
    void CloseMenu(const char* OpenedBy) {
        QWidget* Menu = QApplication::activePopupWidget();
        ASSERT_NE(nullptr, qobject_cast<QMenu*>(Menu)) << OpenedBy;
        EXPECT_EQ(View().actions(), Menu->actions());
        QTest::keyClick(Menu, Qt::Key_Escape);
        EXPECT_EQ(nullptr, QApplication::activePopupWidget());
    }
};

TEST_F(PreviewLooks, TheNavigationMenuIsOneTextOfWhichTheViewsAreMade) {
    Show(5);
    EXPECT_EQ("Whole &Page|Page &Width|&Two Pages|Thumb&nail",
              PrintView::NavigationMenu().toStdString());
    EXPECT_EQ("", Checked());
    for (const QString& Each : PrintView::NavigationMenu().split(u'|')) {
        Way(Each.toLatin1()).trigger();
        EXPECT_EQ(Each.toStdString(), Checked());
        EXPECT_EQ(-1, Zooms().currentIndex());
        EXPECT_EQ(QString(Each).remove(u'&'), Zooms().placeholderText());
        Way(Each.toLatin1()).trigger();  // chosen twice it stays
        EXPECT_EQ(Each.toStdString(), Checked());
    }
    Choose("75");
    EXPECT_EQ("", Checked());
    EXPECT_EQ("75", Zooms().currentText().toStdString());
}

TEST_F(PreviewLooks, TheViewMenuIsReachedByItsLetters) {
    Show(5);
    QTest::keyClick(Window.get(), Qt::Key_V, Qt::AltModifier);
    ASSERT_NE(nullptr, QApplication::activePopupWidget());
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_T);
    EXPECT_EQ(PageView::TwoPages, View().View());
}

TEST_F(PreviewLooks, TheNavigationMenuPopsUpAtThePointerAndByTheKeyboard) {
    Show(5);
    QContextMenuEvent ByMouse(QContextMenuEvent::Mouse, {50, 60},
                              Port()->mapToGlobal(QPoint(50, 60)));
    QCoreApplication::sendEvent(Port(), &ByMouse);
    CloseMenu("the mouse");
    Key(Qt::Key_F10, Qt::ShiftModifier);
    CloseMenu("Shift+F10");
    Key(Qt::Key_Menu);
    CloseMenu("the menu key");
}

TEST_F(PreviewLooks, EachViewShowsThePagesAsItSays) {
    Show(12);
    View().SetPreviewPage(3);
    const QSize Room = Port()->size();
    View().SetView(PageView::WholePage);
    EXPECT_TRUE(Shows(3));
    EXPECT_TRUE(Port()->rect().contains(View().PlaceOf(3)));
    EXPECT_GT(View().PlaceOf(3).height(), Room.height() - 40);
    View().SetView(PageView::PageWidth);
    EXPECT_TRUE(Shows(3));
    EXPECT_GT(View().PlaceOf(3).width(), Port()->width() - 40);
    EXPECT_LE(View().PlaceOf(3).width(), Port()->width());
    View().SetView(PageView::TwoPages);
    EXPECT_TRUE(Shows(3) && Shows(4));
    EXPECT_LT(View().PlaceOf(3).right(), View().PlaceOf(4).left());
    EXPECT_TRUE(Port()->rect().contains(View().PlaceOf(3) | View().PlaceOf(4)));
    EXPECT_TRUE(View().PlaceOf(5).isNull());
    View().SetView(PageView::Thumbnails);
    for (int Page = 1; Page <= 12; ++Page) EXPECT_TRUE(Shows(Page)) << Page;
    EXPECT_EQ(3, View().PreviewPage());
}

TEST_F(PreviewLooks, TheLastOfTwoPagesHasTheOneBeforeBesideIt) {
    Show(4);
    View().SetView(PageView::TwoPages);
    Key(Qt::Key_PageDown);
    EXPECT_EQ(3, View().PreviewPage());
    Key(Qt::Key_End);
    EXPECT_EQ("4", Label("lblCurPage"));
    EXPECT_TRUE(Shows(3) && Shows(4));
    Key(Qt::Key_PageUp);
    EXPECT_EQ(2, View().PreviewPage());
    EXPECT_TRUE(Shows(2) && Shows(3));
}

TEST_F(PreviewLooks, KeysTurnThePagesAndScroll) {
    Show(5);
    const struct {
        int Key;
        Qt::KeyboardModifiers With;
        int Page;
    } Steps[] = {{Qt::Key_PageDown, {}, 2},
                 {Qt::Key_PageDown, {}, 3},
                 {Qt::Key_PageUp, {}, 2},
                 {Qt::Key_End, {}, 5},
                 {Qt::Key_PageDown, {}, 5},
                 {Qt::Key_Home, {}, 1},
                 {Qt::Key_PageUp, {}, 1},
                 {Qt::Key_End, Qt::ControlModifier, 5},
                 {Qt::Key_Home, Qt::ControlModifier, 1}};
    for (const auto& Each : Steps) {
        Key(Each.Key, Each.With);
        EXPECT_EQ(std::to_string(Each.Page), Label("lblCurPage"));
    }
    View().SetZoom(200);
    View().SetScrollTop(0);
    View().SetScrollLeft(0);
    Key(Qt::Key_Down);
    Key(Qt::Key_Right);
    EXPECT_GT(View().ScrollTop(), 0);
    EXPECT_GT(View().ScrollLeft(), 0);
    EXPECT_EQ(1, View().PreviewPage());
    Key(Qt::Key_Up);
    Key(Qt::Key_Left);
    EXPECT_EQ(QPoint(0, 0), QPoint(View().ScrollLeft(), View().ScrollTop()));
}

TEST_F(PreviewLooks, PlusAndMinusZoomAlongTheList) {
    Show(1);
    Key(Qt::Key_Plus);
    EXPECT_EQ(150, View().Zoom());
    EXPECT_EQ("150", Zooms().currentText().toStdString());
    Key(Qt::Key_Plus);
    Key(Qt::Key_Plus);
    EXPECT_EQ(200, View().Zoom());
    for (int I = 0; I < 20; ++I) Key(Qt::Key_Minus);
    EXPECT_EQ(25, View().Zoom());
    Way("Zoom &In").trigger();
    EXPECT_EQ("30", Zooms().currentText().toStdString());
    QTest::keyClick(&Zooms(), Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(25, View().Zoom());
}

TEST_F(PreviewLooks, AZoomThatIsNotInTheListIsNamedAllTheSame) {
    Show(1);
    View().SetZoom(87.5);
    EXPECT_EQ(-1, Zooms().currentIndex());
    EXPECT_EQ("87.5", Zooms().placeholderText().toStdString());
    View().SetZoom(1e9);
    EXPECT_EQ(MostZoom, View().Zoom());
    View().SetZoom(-3);
    EXPECT_EQ(LeastZoom, View().Zoom());
    View().SetZoom(std::nan(""));
    EXPECT_EQ(LeastZoom, View().Zoom());
}

TEST_F(PreviewLooks, TheWheelWithCtrlZoomsAroundThePointer) {
    Show(3);
    View().SetZoom(150);
    View().SetScrollTop(200);
    const QPoint At(Port()->width() / 2 - 100, 300);
    const QPointF Was = PaperAt(At);
    Wheel(120, At, Qt::ControlModifier);
    EXPECT_EQ(200, View().Zoom());
    EXPECT_EQ("200", Zooms().currentText().toStdString());
    EXPECT_NEAR(Was.x(), PaperAt(At).x(), 0.02);
    EXPECT_NEAR(Was.y(), PaperAt(At).y(), 0.02);
    Wheel(-60, At, Qt::ControlModifier);
    EXPECT_EQ(200, View().Zoom()) << "half a step";
    Wheel(-60, At, Qt::ControlModifier);
    EXPECT_EQ(150, View().Zoom());
    EXPECT_EQ(1, View().PreviewPage());
}

TEST_F(PreviewLooks, TheWheelGoesOnToTheNextPageAtTheEndAndBack) {
    Show(3);
    int Turns = 0;
    for (int Was = -1; Was != View().ScrollTop() && View().PreviewPage() == 1; ++Turns) {
        Was = View().ScrollTop();
        Wheel(-120);
    }
    EXPECT_GT(Turns, 1) << "it scrolls first";
    EXPECT_EQ(2, View().PreviewPage());
    EXPECT_EQ(0, View().ScrollTop());
    Wheel(120);
    EXPECT_EQ("1", Label("lblCurPage"));
    EXPECT_EQ(View().verticalScrollBar()->maximum(), View().ScrollTop());
    View().SetScrollTop(0);
    Wheel(120);
    EXPECT_EQ("1", Label("lblCurPage"));
    View().SetView(PageView::WholePage);
    Wheel(-120);
    Wheel(-120);
    Wheel(-120);
    EXPECT_EQ("3", Label("lblCurPage"));
}

TEST_F(PreviewLooks, DraggingMovesThePaper) {
    Show(1);
    View().SetZoom(200);
    View().SetScrollTop(300);
    View().SetScrollLeft(100);
    EXPECT_EQ(Qt::OpenHandCursor, Port()->cursor().shape());
    QTest::mousePress(Port(), Qt::LeftButton, {}, {300, 300});
    EXPECT_EQ(Qt::ClosedHandCursor, Port()->cursor().shape());
    QTest::mouseMove(Port(), {320, 340});
    QTest::mouseRelease(Port(), Qt::LeftButton, {}, {320, 340});
    EXPECT_EQ(QPoint(80, 260), QPoint(View().ScrollLeft(), View().ScrollTop()));
    EXPECT_EQ(Qt::OpenHandCursor, Port()->cursor().shape());
    View().SetView(PageView::WholePage);
    EXPECT_EQ(Qt::ArrowCursor, Port()->cursor().shape());
}

TEST_F(PreviewLooks, ADoubleClickGoesToTheWholePageAndToOneHundredThere) {
    Show(3);
    DoubleClick({300, 300});
    EXPECT_EQ(PageView::WholePage, View().View());
    const QPoint At = View().PlaceOf(1).center() + QPoint(0, 200);
    const QPointF Was = PaperAt(At);
    DoubleClick(At);
    EXPECT_EQ(100, View().Zoom());
    EXPECT_EQ("100", Zooms().currentText().toStdString());
    EXPECT_NEAR(Was.y(), PaperAt(At).y(), 0.02);
}

TEST_F(PreviewLooks, AClickOnAThumbnailOpensThePageInTheViewOfBefore) {
    Show(12);
    for (const PageView Former : {PageView::ByZoom, PageView::TwoPages}) {
        View().SetView(Former);
        View().SetView(PageView::Thumbnails);
        Click(MiddleOf(7));
        EXPECT_EQ(Former, View().View());
        EXPECT_EQ("7", Label("lblCurPage"));
        EXPECT_TRUE(Shows(7));
        View().SetView(PageView::Thumbnails);
        DoubleClick(MiddleOf(5));
        EXPECT_EQ(Former, View().View()) << "by a double click";
        EXPECT_EQ(5, View().PreviewPage());
    }
    View().SetView(PageView::Thumbnails);
    QTest::mousePress(Port(), Qt::LeftButton, {}, MiddleOf(2));
    QTest::mouseRelease(Port(), Qt::LeftButton, {}, MiddleOf(3));
    Click({1, 1});
    EXPECT_EQ(PageView::Thumbnails, View().View());
}

TEST_F(PreviewLooks, ArrowKeysWalkAmongTheThumbnailsAndEnterOpens) {
    Show(400);
    View().SetView(PageView::Thumbnails);
    int Columns = 1;
    while (View().PlaceOf(Columns + 1).top() == View().PlaceOf(1).top()) ++Columns;
    ASSERT_GT(Columns, 2);
    Key(Qt::Key_Up);
    Key(Qt::Key_Left);
    EXPECT_EQ(1, View().PreviewPage());
    Key(Qt::Key_Right);
    Key(Qt::Key_Down);
    EXPECT_EQ(2 + Columns, View().PreviewPage());
    Key(Qt::Key_Up);
    Key(Qt::Key_PageDown);
    EXPECT_EQ(0, (View().PreviewPage() - 2) % Columns);
    EXPECT_GT(View().PreviewPage(), 2 + Columns);
    Key(Qt::Key_End);
    EXPECT_EQ("400", Label("lblCurPage"));
    EXPECT_TRUE(Port()->rect().contains(View().PlaceOf(400)));
    Push("cmdPrevPage");
    EXPECT_TRUE(Port()->rect().contains(View().PlaceOf(399)));
    EXPECT_EQ(PageView::Thumbnails, View().View());
    Key(Qt::Key_Return);
    EXPECT_EQ(PageView::ByZoom, View().View());
    EXPECT_EQ(399, View().PreviewPage());
    EXPECT_TRUE(Shows(399));
}

TEST_F(PreviewLooks, AZoomThatIsChosenAmongThumbnailsKeepsThePage) {
    Show(40);
    View().SetView(PageView::Thumbnails);
    View().SetPreviewPage(4);
    Choose("50");
    EXPECT_EQ(4, View().PreviewPage());
    EXPECT_EQ(50, View().Zoom());
    EXPECT_TRUE(Shows(4));
}

TEST_F(PreviewLooks, FollowsTheSizeOfTheWindow) {
    Show(3);
    for (const PageView Each : {PageView::WholePage, PageView::PageWidth, PageView::TwoPages})
        for (const QSize Size : {QSize(1000, 700), QSize(1200, 950), QSize(760, 990)}) {
            View().SetView(Each);
            Window->resize(Size);
            QCoreApplication::processEvents();
            EXPECT_TRUE(Shows(1)) << int(Each) << " at " << Size.width();
            EXPECT_EQ(0, View().horizontalScrollBar()->maximum());
        }
}

}  // namespace
}  // namespace neb
