#include "EveryWindow.h"

#include <QPainter>
#include <QTest>

#include "albums/modImport.h"
#include "controls/forms/frmLoading.h"
#include "controls/forms/frmMsgBoxEx.h"
#include "controls/forms/frmProgress.h"
#include "db/modAlbumFiles.h"
#include "db/recovery/DatabaseHealth.h"
#include "program/frmAbout.h"
#include "program/help/frmHelp.h"
#include "sound/RecorderRig.h"
#include "windows/albums/frmAlbumDelete.h"
#include "windows/albums/frmAlbumRename.h"
#include "windows/albums/frmCheckPictures.h"
#include "windows/albums/frmDamage.h"
#include "windows/albums/frmGetObjectName.h"
#include "windows/albums/frmRestore.h"
#include "windows/compose/frmSlideShowDBM.h"
#include "windows/disc/frmDiscFolder.h"
#include "windows/film/modFilms.h"
#include "windows/frame/frmInputBox.h"
#include "windows/import/frmDirSelect.h"
#include "windows/import/frmFindGraphics.h"
#include "windows/import/frmImportFilter.h"
#include "windows/import/frmNewAlbumWzd1.h"
#include "windows/import/frmQuickShow.h"
#include "windows/lists/clsImageBuffer.h"
#include "windows/lists/frmPicturePopup.h"
#include "windows/printing/frmPrintAlbum.h"
#include "windows/printing/frmPrintPreview.h"
#include "windows/printing/frmPrintSheet.h"
#include "windows/printing/frmPrintSlide.h"
#include "windows/printing/frmPrintSlideShow.h"
#include "windows/recorder/frmSoundRecorder.h"
#include "windows/rehearsal/frmRehearsal.h"
#include "windows/slides/frmSlideDBM.h"
#include "windows/slides/frmSlideMgrBulk.h"
#include "windows/transfer/frmAlbumExport.h"
#include "windows/transfer/frmAlbumImport.h"
#include "windows/transfer/frmAlbumView.h"
#include "windows/transfer/frmSlideShowExport.h"
#include "windows/transfer/frmSlideShowImport.h"
#include "windows/transfer/frmSlideShowView.h"
#include "windows/transfer/frmTransferProgress.h"

namespace neb::harness {
namespace {

using namespace Qt::StringLiterals;

constexpr int SlideCount = 6;
constexpr int SettleTicks = 8, TickMs = 25, PatienceMs = 20000;

// What the windows are opened on.
struct Filled {
    std::int32_t AlbumID = 0, ShowID = 0;
    QString Picture, Pictures;  // a file, its folder
};

QImage SlidePicture(int Number) {
    QImage Made(320, Number % 2 ? 240 : 180, QImage::Format_RGB32);
    QPainter Painter(&Made);
    QLinearGradient Sky(0, 0, 320, 240);
    Sky.setColorAt(0, QColor::fromHsv(40 * Number, 120, 230));
    Sky.setColorAt(1, QColor::fromHsv(40 * Number, 200, 90));
    Painter.fillRect(Made.rect(), Sky);
    return Made;
}

void Fill(clsDBEngine& theDB, const QString& Folder, Filled& Made) {
    Changes Door(theDB);
    theDB.SaveAlbum(Made.AlbumID, u"Garden in the Summer of 2024"_s);
    MakeAlbumFolders(theDB, Made.AlbumID);
    std::int32_t& ShowID = Made.ShowID;
    theDB.GetAlbum(Made.AlbumID)->SaveSlideShow(ShowID, u"A Walk Through the Garden"_s, 1, theDB);
    for (int I = 1; I <= SlideCount; ++I) {
        const QString Caption = u"Roses behind the house %1"_s.arg(I);
        ImgX Jpeg;
        Jpeg.SetPicture(SlidePicture(I));
        const auto Bytes = [&] { return Jpeg.ToJpeg(); };
        const auto ID = *EnterPicture(Door, theDB, Made.AlbumID,
                                      {Caption, Bytes, MakeThumbnail(Jpeg.Picture())});
        theDB.GetAlbum(Made.AlbumID)->GetSlideShow(ShowID)->SaveDetail(ID, I, {});
        Made.Picture = Folder + u"/rose%1.jpg"_s.arg(I);
        SlidePicture(I).save(Made.Picture);
    }
    theDB.GetAlbum(Made.AlbumID)
        ->GetSlideShow(ShowID)
        ->SaveSoundTrack(1, u"C:\\Music\\Garden Waltz.mp3"_s, 1, 4, true, true, false);
}

template <class Window>
void OpenModeless(const Filled&) {
    NewForm<Window>()->ShowModeless();
}

template <class Window>
void OpenChild(const Filled&) {
    TheOpeners().ShowAsChild(*NewForm<Window>());
}

void OpenImport(const Filled& On) {
    const auto Window = NewForm<frmImportFilter>();
    Window->SetLoadSlideShowMgr(false);
    Window->SetImportDir(On.Pictures);
    Window->SetAlbumID(On.AlbumID);
    Window->SetAlbumName(u"Garden in the Summer of 2024"_s);
    TheOpeners().ShowAsChild(*Window);
}

void OpenQuickShow(const Filled& On) {
    const auto Window = NewForm<frmQuickShow>();
    Window->SetImportDir(On.Pictures);
    TheOpeners().ShowAsChild(*Window);
}

void OpenHelp(const Filled&) {
    const auto Window = NewForm<frmHelp>();
    Window->SetTopic(QStringLiteral(NEB_SOURCE_DIR "/assets/help/SlideShowHelp.hlp"),
                     u"contents"_s);
    TheOpeners().ShowAsChild(*Window);
}

// Under way for as long as it is looked at.
void OpenTransfer(const Filled&) {
    const auto Window = NewForm<frmTransferProgress>();
    Window->ShowOver([Window] {
        while (Window->Show(u"Copying 12 of 345 files of the album Garden"_s, 40) &&
               Window->IsLoaded())
            QTest::qWait(TickMs);
    });
}

// The same for what works under a bar.
struct Work : ProgressParent {
    void DoActivity() override { Wait(); }
    void StartOperation() override { Wait(); }
    void Wait() const {
        while (Under->IsLoaded()) QTest::qWait(TickMs);
    }
    std::shared_ptr<Form> Under;
};

template <class Window>
void OpenAtWork(const Filled&) {
    const auto Bar = NewForm<Window>();
    Work Doing;
    Doing.Under = Bar;
    Bar->ShowProgressMeter(Doing);
}

struct Row {
    const char* Name;
    void (*Open)(const Filled&);
    bool AlbumsOnly = false;  // does not open on none
};

const Row Rows[] = {
    {"frmAbout", &OpenModeless<frmAbout>},
    {"frmHelp", &OpenHelp},
    {"frmQuickShow", &OpenQuickShow},
    {"frmNewAlbumWzd1", &OpenModeless<frmNewAlbumWzd1>},
    {"frmImportFilter", &OpenImport},
    {"frmDirSelect", &OpenModeless<frmDirSelect>},
    {"frmFindGraphics", &OpenModeless<frmFindGraphics>},
    {"frmAlbumRename", [](auto& On) { NewForm<frmAlbumRename>()->ShowRenameAlbum(On.AlbumID); }},
    {"frmAlbumDelete", [](auto& On) { NewForm<frmAlbumDelete>()->ShowDeleteAlbum(On.AlbumID); }},
    {"frmRestore", &OpenModeless<frmRestore>},
    {"frmDamage",
     [](auto&) {
         NewForm<frmDamage>()->MakeSound(DBPath(), {.Wrong = {u"Albums.dat is cut."_s}});
     }},
    {"frmCheckPictures", &OpenModeless<frmCheckPictures>},
    {"frmGetObjectName",
     [](auto&) { NewForm<frmGetObjectName>()->GetObjectName(u"Garden in the Summer"_s); }},
    {"frmSlideDBM", [](auto&) { NewForm<frmSlideDBM>()->LoadSlideMgr(); }, true},
    {"frmSlideMgrBulk", [](auto& On) { NewForm<frmSlideMgrBulk>()->LoadAlbumMgr(On.AlbumID); }},
    {"frmSoundRecorder", &OpenModeless<frmSoundRecorder>},
    {"frmPicturePopup",
     [](auto& On) {
         QString Path = On.Picture;
         const auto Window = NewForm<frmPicturePopup>();
         Window->LoadSlide(Path);
         Window->ShowModeless();
     },
     true},
    {"frmSlideShowDBM",
     [](auto& On) { NewForm<frmSlideShowDBM>()->LoadSlideShowMgr(On.AlbumID, On.ShowID); }},
    {"frmRehearsal", [](auto& On) { NewForm<frmRehearsal>()->RehearseShow(On.AlbumID, On.ShowID); },
     true},
    {"frmFilm", [](auto& On) { ShowFilm(On.AlbumID, On.ShowID); }, true},
    {"frmPreferences", [](auto&) { NewForm<frmPreferences>()->LoadPreferences(); }},
    {"frmAlbumExport", &OpenChild<frmAlbumExport>},
    {"frmAlbumImport", &OpenChild<frmAlbumImport>},
    {"frmSlideShowExport", &OpenChild<frmSlideShowExport>},
    {"frmSlideShowImport", &OpenChild<frmSlideShowImport>},
    {"frmDiscFolder", &OpenChild<frmDiscFolder>},
    {"frmPrintPreview", [](auto&) { NewForm<frmPrintPreview>()->ShowPreview(); }},
    {"frmInputBox",
     [](auto&) { NewForm<frmInputBox>()->InputBox(u"Destination Email Address:"_s, u"Mail"_s); }},
    {"frmPrintAlbum", [](auto& On) { NewForm<frmPrintAlbum>()->PrintAlbum(On.AlbumID); }},
    {"frmPrintSlideShow",
     [](auto& On) { NewForm<frmPrintSlideShow>()->PrintSlideShow(On.AlbumID, On.ShowID); }},
    {"frmPrintSlide", [](auto& On) { NewForm<frmPrintSlide>()->PrintSlide(On.Picture); }, true},
    {"frmPrintSheet",
     [](auto& On) { NewForm<frmPrintSheet>()->PrintSlide(On.Picture, u"Roses"_s); }, true},
    {"frmTransferProgress", &OpenTransfer},
    {"frmAlbumView",
     [](auto& On) {
         NewForm<frmAlbumView>()->ViewAlbum(*DBEngine, On.AlbumID, u"Garden in the Summer"_s);
     },
     true},
    {"frmSlideShowView",
     [](auto& On) {
         NewForm<frmSlideShowView>()->ViewSlideShow(*DBEngine, On.AlbumID, u"Garden"_s, On.ShowID,
                                                    u"A Walk"_s);
     },
     true},
    {"frmLoading", &OpenAtWork<frmLoading>},
    {"frmProgress", &OpenAtWork<frmProgress>},
    {"frmMsgBoxEx",
     [](auto&) {
         NewForm<frmMsgBoxEx>()->ShowMsgBox(u"A Long Message"_s,
                                            u"What has happened. "_s.repeated(40));
     }},
};

std::shared_ptr<Form> Find(const QString& Name) {
    for (const auto& Each : LoadedForms())
        if (Each->isVisible() && Each->metaObject()->className() == u"neb::"_s + Name) return Each;
    return nullptr;
}

// Looks at the window of this name once it has stood for a while, from inside whatever loop runs.
class Looker : public QTimer {
  public:
    Looker(const QString& Name, const LookAtWindow& Look) : mName(Name), mLook(Look) {
        connect(this, &QTimer::timeout, this, &Looker::Tick);
        start(TickMs);
    }
    bool IsOver() const { return mOver; }

  private:
    void Tick() {
        const auto Window = Find(mName);
        if (!Window || (mName != u"frmLoading" && Find(u"frmLoading"_s))) return;
        if (++mTicks < SettleTicks) return;
        stop();
        mLook(mName, *Window);
        const LettingGo Answers;
        if (!Window->Unload() || Window->IsLoaded()) Window->done(0);
        mOver = true;
    }

    QString mName;
    const LookAtWindow& mLook;
    int mTicks = 0;
    bool mOver = false;
};

// Gives the rig of the main window its albums; TestBody is never run.
class Opened : public MainWindow {
  public:
    explicit Opened(Content Of) {
        Start();
        mOn.Pictures = mPictures.Path();
        if (Of == Content::Albums) Fill(*DBEngine, mOn.Pictures, mOn);
    }
    void TestBody() override {}

    void LookAll(Content Of, const LookAtWindow& Look, int& Count) {
        mWindow->showMaximized();
        DoEvents();
        Look(u"frmNEBSlideShow"_s, *mWindow);
        for (const Row& Each : Rows) {
            if (Each.AlbumsOnly && Of == Content::None) continue;
            const Looker At(QLatin1String(Each.Name), Look);
            Each.Open(mOn);
            EXPECT_TRUE(QTest::qWaitFor([&] { return At.IsOver(); }, PatienceMs)) << Each.Name;
            ++Count;
        }
    }

  private:
    TempFolder mPictures;
    test::FakeSound mSound;  // a microphone
    Filled mOn;
};

}  // namespace

int LookAtEveryWindow(Content Of, const LookAtWindow& Look) {
    int Count = 1;
    Opened(Of).LookAll(Of, Look, Count);
    return Count;
}

}  // namespace neb::harness
