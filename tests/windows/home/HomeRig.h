// A user at the home: a page in a window of its own, as large as a main window, on a database with
// albums, shows and pictures; what is listed is read as one line.
#pragma once

#include <QListView>
#include <QMenu>
#include <QToolButton>

#include "db/Changes.h"
#include "settings/SettingKeys.h"
#include "windows/frame/Openers.h"
#include "windows/gallery/AlbumPage.h"
#include "windows/home/BigButton.h"
#include "windows/home/CardPictures.h"
#include "windows/home/HomeList.h"
#include "windows/home/HomePage.h"
#include "windows/home/HomeView.h"
#include "windows/import/IntakeHarness.h"
#include "windows/lists/clsImageBuffer.h"

namespace neb::harness {

class HomeRig : public Intake {
  protected:
    HomeRig() {
        Buffer.BufferGrid = &Store;
        Buffer.UseSmallFiles = true;
        ImageBuffer = &Buffer;
        TheOpeners().ShowAsChild = [](Form& Child) { Child.ShowModeless(); };
    }
    ~HomeRig() override {
        {
            const LettingGo Answers;
            for (const auto& Each : LoadedForms()) Each->Unload();
        }
        Page.reset();
        TheOpeners() = {};
        ImageBuffer = nullptr;
        Buffer.BufferGrid = nullptr;
    }

    // An album with slides of these captions, each with a picture of the size.
    std::int32_t AddAlbum(const QString& Name, const QStringList& Captions = {},
                          QSize Size = {80, 60}) {
        const std::int32_t AlbumID = MakeAlbum(Name);
        for (const QString& Each : Captions) AddSlide(AlbumID, Each, Size);
        return AlbumID;
    }
    std::int32_t AddSlide(std::int32_t AlbumID, const QString& Caption, QSize Size = {80, 60},
                          QColor Colour = Qt::red) {
        std::int32_t SlideID = 0;
        clsNEBSlide& Slide =
            *Engine.GetAlbum(AlbumID)->SaveSlide2(SlideID, Caption, {}, {}, false, false, Engine);
        Slide.SlideLoc = FileStem(SlideID) + u".JPG"_s;
        MakePicture(SlidesFolder(Engine.DBPath(), AlbumID) + FileStem(SlideID) + u".jpg"_s,
                    Size.width(), Size.height(), Colour);
        return SlideID;
    }
    // A show of all slides of the album.
    std::int32_t AddShow(std::int32_t AlbumID, const QString& Name) {
        std::int32_t ShowID = 0, Place = 0;
        clsNEBAlbum& Album = *Engine.GetAlbum(AlbumID);
        EXPECT_TRUE(Album.SaveSlideShow(ShowID, Name, 0, Engine));
        for (const auto& Each : Album.Slides)
            Album.GetSlideShow(ShowID)->SaveDetail(Each->SlideID, ++Place, {});
        return ShowID;
    }
    void LeaveShowAt(std::int32_t AlbumID, std::int32_t ShowID, int Seq) {
        clsSettings Settings = OpenSettings();
        PutNumber(Settings, Setting::ActiveAlbum, AlbumID);
        PutNumber(Settings, Setting::ActiveSlideShow, ShowID);
        PutNumber(Settings, Setting::NextSlideSeq, Seq);
        Settings.Save();
    }

    void Open(QSize Size = {1000, 700}) {
        Page = std::make_unique<HomePage>();
        Page->resize(Size);
        Page->show();
        Page->activateWindow();
        EXPECT_TRUE(neb::harness::AwaitActive(*Page));
        Page->Fill();
        QCoreApplication::processEvents();
    }

    HomeList& List() { return *Page->List(); }
    HomeView& View() { return In<HomeView>(*Page, "lstHome"); }
    QLineEdit& Field() { return In<QLineEdit>(*Page, "txtHomeSearch"); }
    QString Summary() { return In<QLabel>(*Page, "lblHomeSummary").text(); }
    std::string Shown() {
        QStringList All;
        for (const HomeCard& Each : View().Cards().All()) All << Each.Name;
        return All.join(u'|').toStdString();
    }
    int RowOf(const QString& Name) {
        const auto& All = View().Cards().All();
        const auto Found = std::ranges::find(All, Name, &HomeCard::Name);
        EXPECT_NE(Found, All.end()) << Name.toStdString();
        return static_cast<int>(Found - All.begin());
    }
    QPoint PlaceOf(const QString& Name) {
        View().Choose(RowOf(Name));
        QCoreApplication::processEvents();
        return View().visualRect(View().currentIndex()).center();
    }
    void Click(const QString& Name) {
        QTest::mouseClick(View().viewport(), Qt::LeftButton, {}, PlaceOf(Name));
    }
    void DoubleClick(const QString& Name) {
        Click(Name);
        QTest::mouseDClick(View().viewport(), Qt::LeftButton, {}, PlaceOf(Name));
        QCoreApplication::processEvents();
    }
    std::string Chosen() {
        const HomeCard* Card = View().Current();
        return Card ? Card->Name.toStdString() : "";
    }
    void Key(int What, Qt::KeyboardModifiers With = {}) {
        QTest::keyClick(Page->focusWidget() ? Page->focusWidget() : Page.get(), Qt::Key(What),
                        With);
        QCoreApplication::processEvents();
    }
    void Type(const QString& Text) {
        for (const QChar Each : Text) {
            QTest::keyClick(Page->focusWidget(), Each.toLatin1());
            QCoreApplication::processEvents();
        }
    }
    // Changes are followed a moment later.
    void Settle() {
        QTest::qWaitFor([] { return false; }, 150);
    }
    // The texts of the menu of a card, which is opened as a user does.
    QMenu& OpenMenu(const QString& Name) {
        const QPoint At = PlaceOf(Name);
        QContextMenuEvent Event(QContextMenuEvent::Mouse, At, View().viewport()->mapToGlobal(At));
        QCoreApplication::sendEvent(View().viewport(), &Event);
        auto* Menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (!Menu) throw Fault(u"no menu"_s);
        return *Menu;
    }
    std::string MenuTexts(const QString& Name) {
        QMenu& Menu = OpenMenu(Name);
        QStringList Texts;
        for (const QAction* Each : Menu.actions())
            if (!Each->isSeparator()) Texts << Each->text().remove(u'&').remove(u"..."_s);
        Menu.close();
        return Texts.join(u'|').toStdString();
    }
    void ChooseInMenu(const QString& Name, const QString& Entry) {
        QMenu& Menu = OpenMenu(Name);
        for (QAction* Each : Menu.actions())
            if (Each->text().remove(u'&').remove(u"..."_s) == Entry) {
                QTest::mouseClick(&Menu, Qt::LeftButton, {}, Menu.actionGeometry(Each).center());
                QCoreApplication::processEvents();
                return;
            }
        Menu.close();
        ADD_FAILURE() << "no entry " << Entry.toStdString();
    }

    std::unique_ptr<HomePage> Page;
    clsImageBuffer Buffer;
    FlexGrid Store;
};

}  // namespace neb::harness
