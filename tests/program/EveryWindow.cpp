#include "EveryWindow.h"

#include <QDir>
#include <QFile>
#include <QLocale>
#include <QPainter>
#include <QProgressBar>
#include <QTest>

#include "albums/modImport.h"
#include "controls/forms/frmLoading.h"
#include "controls/forms/frmMsgBoxEx.h"
#include "controls/forms/frmProgress.h"
#include "db/modAlbumFiles.h"
#include "db/recovery/DatabaseHealth.h"
#include "help/HelpRig.h"
#include "program/frmAbout.h"
#include "program/help/frmHelp.h"
#include "program/language/SpeakLanguage.h"
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
    QString Album, Show, Song;
};

struct Sample {
    QString Caption;
    QImage Picture;
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

// Photographs of a folder, where somebody wants to see the windows with such; else made ones.
std::vector<Sample> SamplesFor(const QString& Folder, Filled& Made) {
    std::vector<Sample> All;
    Made.Album = u"Garden in the Summer of 2024"_s;
    Made.Show = u"A Walk Through the Garden"_s;
    Made.Song = u"C:\\Music\\Garden Waltz.mp3"_s;
    for (int I = 1; Folder.isEmpty() && I <= SlideCount; ++I)
        All.push_back({u"Roses behind the house %1"_s.arg(I), SlidePicture(I)});
    if (Folder.isEmpty()) return All;
    Made.Album = SampleWords(u"A Year in Pictures"_s);
    Made.Show = SampleWords(u"Four Seasons"_s);
    Made.Song = Folder + u"/music/"_s + SampleWords(u"Evening Waltz"_s) + u".wav"_s;
    for (const QFileInfo& Each : QDir(Folder).entryInfoList({u"*.jpg"_s}, QDir::Files, QDir::Name))
        All.push_back({SampleWords(Each.completeBaseName()), QImage(Each.filePath())});
    return All;
}

void EnterSlide(clsDBEngine& theDB, const Filled& On, int Number, const Sample& Its) {
    Changes Door(theDB);
    ImgX Jpeg;
    Jpeg.SetPicture(Its.Picture);
    const auto Bytes = [&] { return Jpeg.ToJpeg(); };
    const auto ID =
        *EnterPicture(Door, theDB, On.AlbumID, {Its.Caption, Bytes, MakeThumbnail(Jpeg.Picture())});
    theDB.GetAlbum(On.AlbumID)->GetSlideShow(On.ShowID)->SaveDetail(ID, Number, {});
}

void Fill(clsDBEngine& theDB, const QString& Folder, Filled& Made) {
    const auto Samples = SamplesFor(qEnvironmentVariable("NEB_WINDOWS_SAMPLES"), Made);
    theDB.SaveAlbum(Made.AlbumID, Made.Album);
    MakeAlbumFolders(theDB, Made.AlbumID);
    std::int32_t& ShowID = Made.ShowID;
    theDB.GetAlbum(Made.AlbumID)->SaveSlideShow(ShowID, Made.Show, 1, theDB);
    int Number = 0;
    for (const Sample& Each : Samples) {
        EnterSlide(theDB, Made, ++Number, Each);
        Made.Picture = Folder + u'/' + Each.Caption + u".jpg"_s;
        Each.Picture.save(Made.Picture);
    }
    theDB.GetAlbum(Made.AlbumID)
        ->GetSlideShow(ShowID)
        ->SaveSoundTrack(1, Made.Song, 1, 4, true, true, false);
}

template <class Window>
void OpenModal(const Filled&) {
    NewForm<Window>()->ShowModal();
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
    Window->SetAlbumName(On.Album);
    TheOpeners().ShowAsChild(*Window);
}

void OpenQuickShow(const Filled& On) {
    const auto Window = NewForm<frmQuickShow>();
    Window->SetImportDir(On.Pictures);
    TheOpeners().ShowAsChild(*Window);
}

void OpenHelp(const Filled&) {
    const auto Window = NewForm<frmHelp>();
    LayHelpInto(AppPath());
    Window->SetTopic(AppPath() + kHelpFile, u"start/help"_s);
    TheOpeners().ShowAsChild(*Window);
}

// Work goes on, also while its window is looked at.
struct Beat : QTimer {
    explicit Beat(QProgressBar& Bar) {
        connect(this, &QTimer::timeout, &Bar,
                [this, &Bar] { Bar.setValue(Bar.maximum() * 2 / 5 + ++mCount % 2); });
        start(TickMs);
    }
    int mCount = 0;
};

// Under way for as long as it is looked at.
void OpenTransfer(const Filled&) {
    const auto Window = NewForm<frmTransferProgress>();
    Window->ShowOver([Window] {
        const Beat Going(*Window->findChild<QProgressBar*>());
        while (Window->Show(SampleWords(u"Copying 12 of 345 files of the album Garden"_s), 40) &&
               Window->IsLoaded())
            QTest::qWait(TickMs);
    });
}

// The same for what works under a bar.
struct Work : ProgressParent {
    void DoActivity() override { GoOn(); }
    void StartOperation() override { GoOn(); }
    void GoOn() const {
        const Beat Going(*Bar);
        while (Under->IsLoaded()) QTest::qWait(TickMs);
    }
    std::shared_ptr<Form> Under;
    QProgressBar* Bar = nullptr;
};

template <class Window>
void OpenAtWork(const Filled&) {
    const auto Bar = NewForm<Window>();
    Work Doing;
    Doing.Under = Bar;
    Doing.Bar = Bar->pgbLoadingProgress();
    Bar->ShowProgressMeter(Doing);
}

struct Row {
    const char* Name;
    void (*Open)(const Filled&);
    bool AlbumsOnly = false;  // does not open on none
};

const Row Rows[] = {
    {"frmAbout", &OpenModal<frmAbout>},
    {"frmHelp", &OpenHelp},
    {"frmQuickShow", &OpenQuickShow},
    {"frmNewAlbumWzd1", &OpenModal<frmNewAlbumWzd1>},
    {"frmImportFilter", &OpenImport},
    {"frmDirSelect", &OpenModal<frmDirSelect>},
    {"frmFindGraphics", &OpenModal<frmFindGraphics>},
    {"frmAlbumRename", [](auto& On) { NewForm<frmAlbumRename>()->ShowRenameAlbum(On.AlbumID); }},
    {"frmAlbumDelete", [](auto& On) { NewForm<frmAlbumDelete>()->ShowDeleteAlbum(On.AlbumID); }},
    {"frmRestore", &OpenModal<frmRestore>},
    {"frmDamage",
     [](auto&) {
         NewForm<frmDamage>()->MakeSound(DBPath(),
                                         {.Wrong = {SampleWords(u"Albums.dat is cut."_s)}});
     }},
    {"frmCheckPictures", &OpenModal<frmCheckPictures>},
    {"frmGetObjectName",
     [](auto&) { NewForm<frmGetObjectName>()->GetObjectName(u"Garden in the Summer"_s); }},
    {"frmSlideDBM", [](auto&) { NewForm<frmSlideDBM>()->LoadSlideMgr(); }, true},
    {"frmSlideMgrBulk", [](auto& On) { NewForm<frmSlideMgrBulk>()->LoadAlbumMgr(On.AlbumID); }},
    {"frmSoundRecorder", &OpenModal<frmSoundRecorder>},
    {"frmPicturePopup",
     [](auto& On) {
         QString Path = On.Picture;
         const auto Window = NewForm<frmPicturePopup>();
         Window->LoadSlide(Path);
         Window->ShowModal();
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
     [](auto& On) { NewForm<frmAlbumView>()->ViewAlbum(*DBEngine, On.AlbumID, On.Album); }, true},
    {"frmSlideShowView",
     [](auto& On) {
         NewForm<frmSlideShowView>()->ViewSlideShow(*DBEngine, On.AlbumID, On.Album, On.ShowID,
                                                    On.Show);
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
        QTest::qWait(SettleTicks * TickMs);  // the home shows what it has found
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

void SpeakLanguageOfWindows() {
    const QString Language = qEnvironmentVariable("NEB_WINDOWS_LANGUAGE");
    if (Language.isEmpty()) return;
    SpeakLanguage({Language});
    QLocale::setDefault(QLocale(Language));
}

QString SampleWords(const QString& Text) {
    QFile Words(qEnvironmentVariable("NEB_WINDOWS_WORDS"));
    if (Words.fileName().isEmpty() || !Words.open(QIODevice::ReadOnly)) return Text;
    for (const QString& Line : QString::fromUtf8(Words.readAll()).split(u'\n'))
        if (Line.section(u'=', 0, 0) == Text) return Line.section(u'=', 1);
    return Text;
}

int LookAtEveryWindow(Content Of, const LookAtWindow& Look) {
    int Count = 1;
    Opened(Of).LookAll(Of, Look, Count);
    return Count;
}

}  // namespace neb::harness
