// How the windows of transfer look: nothing is cut with a large font, and their letters do not
// stand in each other's way.
#include <QApplication>

#include "TransferRig.h"

namespace neb {
namespace {

using namespace harness;

class TransferLooks : public TransferRig {
  protected:
    static std::vector<std::shared_ptr<Form>> All() {
        return {NewForm<frmAlbumExport>(), NewForm<frmAlbumImport>(), NewForm<frmSlideShowExport>(),
                NewForm<frmSlideShowImport>()};
    }
    static int HeightNeeded(const QWidget& Part) {
        const int Wrapped = Part.hasHeightForWidth() ? Part.heightForWidth(Part.width()) : 0;
        return std::max(Wrapped, Part.sizeHint().height());
    }
};

TEST_F(TransferLooks, NothingIsCutInAFontHalfAsLargeAgain) {
    const QFont Before = QApplication::font();
    QFont Large = Before;
    Large.setPointSizeF(Before.pointSizeF() * 1.5);
    for (const QFont& Each : {Before, Large}) {
        QApplication::setFont(Each);
        for (const auto& Window : All()) {
            ShowActive(*Window);
            for (const QWidget* Part : Window->findChildren<QWidget*>()) {
                const bool Says = qobject_cast<const QPushButton*>(Part) ||
                                  qobject_cast<const QCheckBox*>(Part) ||
                                  qobject_cast<const QLabel*>(Part);
                if (!Says || !Part->isVisible()) continue;
                EXPECT_GE(Part->width(), Part->sizeHint().width())
                    << Part->objectName().toStdString();
                EXPECT_GE(Part->height(), HeightNeeded(*Part)) << Part->objectName().toStdString();
            }
            const auto& View = In<QPushButton>(*Window, "cmdViewSrcAlbum");
            EXPECT_EQ(View.sizeHint().width(), View.width()) << "the lists have the room";
            EXPECT_LE(Window->width(), 1000);
            EXPECT_LE(Window->height(), 700);
            Window->Unload();
        }
    }
    QApplication::setFont(Before);
}

TEST_F(TransferLooks, TheFieldsOfBothSidesStandBelowEachOther) {
    for (const auto& Window : All()) {
        ShowActive(*Window);
        const auto PlaceOf = [&](const char* Name) {
            const auto& Part = In<QWidget>(*Window, Name);
            const int Left = Part.mapTo(Window.get(), QPoint()).x();
            return std::pair(Left, Left + Part.width());
        };
        EXPECT_EQ(PlaceOf("cboSrcAlbum"), PlaceOf("cboDstAlbum"));
        Window->Unload();
    }
}

// Reached as children of the main window, whose menu has the letters F, A, L, I, P, W and H.
TEST_F(TransferLooks, TheirLettersAreFreeInTheMainMenuAndDifferent) {
    for (const auto& Window : All()) {
        ShowActive(*Window);
        QString Letters = u"FALIPWH"_s;
        QStringList Texts;
        for (const auto* Each : Window->findChildren<QLabel*>())
            if (Each->buddy() && Each->isVisible()) Texts << Each->text();
        for (const auto* Each : Window->findChildren<QCheckBox*>())
            if (Each->isVisible()) Texts << Each->text();
        QStringList Without;
        for (const auto* Each : Window->findChildren<QPushButton*>())
            if (Each->isVisible())
                (Each->text().contains(u'&') ? Texts : Without)
                    << (Each->text().contains(u'&') ? Each->text() : Each->objectName());
        const bool OfShows = In<QWidget>(*Window, "cboDstSlideShow").isVisible();
        EXPECT_EQ(OfShows ? u"cmdViewSrcSlideShow cmdViewDstAlbum cmdViewDstSlideShow"_s : u""_s,
                  Without.join(u' '))
            << "for these three no letter is left";
        EXPECT_GE(Texts.size(), 11);
        for (const QString& Each : Texts) {
            const QString Keys = QKeySequence::mnemonic(Each).toString();
            ASSERT_FALSE(Keys.isEmpty()) << Each.toStdString();
            EXPECT_FALSE(Letters.contains(Keys.back())) << Each.toStdString();
            Letters += Keys.back();
        }
        Window->Unload();
    }
}

TEST_F(TransferLooks, TabGoesFromTheTopToTheBottom) {
    for (const auto& Window : All()) {
        ShowActive(*Window);
        int Before = -1;
        QSet<QWidget*> Seen;
        for (QWidget* At = Window->focusWidget(); At && !Seen.contains(At);) {
            Seen << At;
            const int Place = At->mapTo(Window.get(), QPoint(0, At->height() / 2)).y();
            EXPECT_GE(Place, Before - 2) << At->objectName().toStdString();
            Before = Place;
            QTest::keyClick(At, Qt::Key_Tab);
            At = QApplication::focusWidget();
        }
        EXPECT_GE(Seen.size(), 11);
        Window->Unload();
    }
}

// What is said while the window is open is said in the room that there is.
TEST_F(TransferLooks, NoHintIsCut) {
    clsDBEngine Bare;
    Bare.SetDBPath(Empty.Path());
    Bare.InitializeDB();
    Bare.FinalizeDB();
    for (const auto& Window : All()) {
        ShowActive(*Window);
        const auto& Hint = In<QLabel>(*Window, "lblHint");
        const QSize Before = Window->size();
        for (const QString& Dir : {u"nowhere"_s, OtherDb.Path()}) {
            Retype(Directory(*Window), Dir);
            QCoreApplication::processEvents();
            EXPECT_GE(Hint.height(), Hint.sizeHint().height()) << HintIn(*Window);
        }
        Load(*Window, Empty.Path());
        QCoreApplication::processEvents();
        EXPECT_GE(Hint.height(), Hint.sizeHint().height()) << HintIn(*Window);
        EXPECT_EQ(Before, Window->size());
        Window->Unload();
    }
}

}  // namespace
}  // namespace neb
