#include "ProjectorRig.h"

#include <QBuffer>
#include <QTest>

#include "harness/ByTheClock.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"

namespace neb::test {
namespace {

QString WordOf(StepCause Cause) {
    switch (Cause) {
        case StepCause::Start:
            return QStringLiteral("at the start");
        case StepCause::User:
            return QStringLiteral("by the user");
        case StepCause::Timer:
            return QStringLiteral("in time");
        case StepCause::Restart:
            return QStringLiteral("again");
    }
    return {};
}

class LoggedSound : public ShowSound {
  public:
    explicit LoggedSound(SoundLog& Log) : mLog(Log) {}
    void Play(bool Repeat) override { Note(QStringLiteral("Play %1").arg(Repeat)); }
    void PauseSound() override { Note(QStringLiteral("Pause")); }
    void StopSound() override { Note(QStringLiteral("Stop")); }
    void LoadAhead(const SlideSound& Next) override { mLog.Ahead.push_back(Next.SlideSeq); }
    void Release() override {
        Note(QStringLiteral("Release"));
        if (mLog.OnRelease) mLog.OnRelease();
    }
    void SetVolume(int Value) override { Note(QStringLiteral("Volume %1").arg(Value)); }
    void CheckRepeat() override { Note(QStringLiteral("CheckRepeat")); }
    bool SoundStep(const SlideSound& Slide, StepCause Cause, ShowSoundFields& Fields) override {
        Note(QStringLiteral("Step %1%2%3%4 %5")
                 .arg(Slide.SlideSeq)
                 .arg(Slide.SoundTrackLoc.isEmpty() ? QString() : u' ' + Slide.SoundTrackLoc,
                      Slide.Override ? QStringLiteral(" override") : QString(),
                      Slide.Repeat ? QStringLiteral(" repeat") : QString(), WordOf(Cause)));
        return mLog.OnStep && mLog.OnStep(Slide, Fields);
    }

  private:
    void Note(const QString& Call) { mLog.Calls << Call; }
    SoundLog& mLog;
};

// Pictures of the disk are here at once, on a busy machine, too.
constexpr int PatientMs = 5000;

QImage Decode(const QString& Path) {
    const QImage Image = QImage::fromData(ReadFile(Path));
    if (Image.isNull()) throw Fault(QStringLiteral("The picture cannot be read."), Path);
    return Image;
}

}  // namespace

ProjectorRig::ProjectorRig() : mBefore(TheServices()) {
    harness::GoByTheClock();
    TheServices().Time = &Time;
    TheServices().Blanking = &Blanking;
    Maker = [this](const ShowTeller&) { return std::make_unique<LoggedSound>(Sound); };
    XShow::SetReader(
        [this](const QString& Path) {
            const QMutexLocker Lock(&mReadLock);
            mRead.push_back(Path);
            return Decode(Path);
        },
        PatientMs);
    SetDocumentsPath(Folder.Path());
    AppPathCache = Folder / QStringLiteral("program/");
    OwnPathCache = Folder / QStringLiteral("own/");
    DBPathCache.clear();
    MakeDirs(AppPathCache);
    MakePicture(AppPathCache + QStringLiteral("NoSlide.bmp"), Qt::gray);
    Engine.SetDBPath(Folder / QStringLiteral("db/"));
    Engine.InitializeDB();
    Engine.SaveAlbum(Album, QStringLiteral("Holiday"));
    clsNEBAlbum* InAlbum = Engine.GetAlbum(Album);
    InAlbum->SaveSlideShow(Show, QStringLiteral("Lake"), 0, Engine);
    SlideShow = InAlbum->GetSlideShow(Show);
    DBEngine = &Engine;
    for (const char* Step : {"StepL", "StepM", "StepH"}) Put(Step, QStringLiteral("100"));
}

// A window that is on its way out may still be reading a picture ahead.
ProjectorRig::~ProjectorRig() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    XShow::SetReader({});
    DBEngine = nullptr;
    ReadOnlyDB = false;
    AppPathCache.clear();
    OwnPathCache.clear();
    DBPathCache.clear();
    DocumentsPath.clear();
    TheServices().Time = mBefore.Time;
    TheServices().Blanking = mBefore.Blanking;
}

ShowWorld ProjectorRig::World() const {
    ShowWorld Of = DesktopShowWorld();
    Of.Sound = Maker;
    return Of;
}

void ProjectorRig::Put(const char* Key, const QString& Value, const QString& Section) {
    clsSettings Settings = OpenSettings();
    Settings.PutValue(Section, QString::fromLatin1(Key), Value);
    Settings.Save();
}

QString ProjectorRig::Setting(const char* Key) const {
    return OpenSettings().GetValue({}, QString::fromLatin1(Key), QStringLiteral("none"));
}

void ProjectorRig::MakeActive() {
    Put("ActiveAlbum", QString::number(Album));
    Put("ActiveSlideShow", QString::number(Show));
}

void ProjectorRig::AddSlides(int Count) {
    for (int Seq = 1; Seq <= Count; ++Seq) {
        std::int32_t SlideID = 0;
        Engine.GetAlbum(Album)->SaveSlide(SlideID, QStringLiteral("Slide %1").arg(Seq), {}, {},
                                          false, false, Engine);
        SlideShow->SaveDetail(SlideID, static_cast<std::int32_t>(SlideShow->Details.size()) + 1,
                              {});
        Slide(Seq).SlideLoc = QStringLiteral("%1.jpg").arg(SlideID, 8, 10, QLatin1Char('0'));
        MakePicture(PicturePath(Seq), QColor::fromHsv(Seq * 40 % 360, 200, 200));
    }
}

clsNEBSlideShowDetail& ProjectorRig::Detail(int Seq) {
    return *SlideShow->Details.at(static_cast<size_t>(Seq) - 1);
}

clsNEBSlide& ProjectorRig::Slide(int Seq) {
    return *Engine.GetAlbum(Album)->GetSlide(Detail(Seq).SlideID);
}

QString ProjectorRig::PicturePath(int Seq) const {
    return Folder / QStringLiteral("db/Albums/%1/Slides/%2.jpg")
                        .arg(Album)
                        .arg(SlideShow->Details.at(static_cast<size_t>(Seq) - 1)->SlideID, 8, 10,
                             QLatin1Char('0'));
}

void ProjectorRig::MakePicture(const QString& Path, QColor Colour, QSize Size) {
    QImage Image(Size, QImage::Format_RGB32);
    Image.fill(Colour);
    QByteArray Bytes;
    QBuffer Buffer(&Bytes);
    Buffer.open(QIODevice::WriteOnly);
    Image.save(&Buffer, "BMP");
    MakeDirs(Path.left(Path.lastIndexOf(u'/') + 1));
    WriteFile(Path, Bytes);
}

void ProjectorRig::Attach(frmSlideShowProjector& Window) {
    Picture = Window.findChild<XShow*>(QStringLiteral("Show1"));
    Label = Window.findChild<CaptionLabel*>(QStringLiteral("lblCaption"));
    Timer1 = Window.findChild<QTimer*>(QStringLiteral("Timer1"));
    Timer2 = Window.findChild<QTimer*>(QStringLiteral("Timer2"));
}

void ProjectorRig::WhenStarted(Action Do) {
    for (const auto& Loaded : LoadedForms()) {
        const auto Window = std::dynamic_pointer_cast<frmSlideShowProjector>(Loaded);
        if (!Window || Window->State().PlayCommand.isEmpty()) continue;
        Attach(*Window);
        Do(*Window);
        Window->Unload();
        return;
    }
    QTimer::singleShot(0, qApp, [this, Do = std::move(Do)] { WhenStarted(Do); });
}

void ProjectorRig::Run(Action Do) {
    const auto Window = NewForm<frmSlideShowProjector>(World());
    Window->SetAlbumID(Album);
    Window->SetAlbumName(QStringLiteral("Holiday"));
    WhenStarted(std::move(Do));
    Window->LoadSlideShow(Show);
}

void ProjectorRig::RunThroughModule(Action Do) {
    WhenStarted(std::move(Do));
    RunSlideShowIn(World(), Album, QStringLiteral("Holiday"), Show);
}

std::string ProjectorRig::Timers() const {
    return std::string(Timer1->isActive() ? "on " : "off ") + (Timer2->isActive() ? "on" : "off");
}

std::string ProjectorRig::Words(const frmSlideShowProjector& Window) const {
    return (Window.State().PlayCommand + u'/' + Window.State().StopCommand).toStdString();
}

// Inside an event the toolkit may leave those that wait already for later, unless one more comes.
void ProjectorRig::Spin(int Milliseconds) {
    QMetaObject::invokeMethod(
        qApp, [] {}, Qt::QueuedConnection);
    QTest::qWait(Milliseconds);
}

std::vector<QString> ProjectorRig::Read() {
    const QMutexLocker Lock(&mReadLock);
    return mRead;
}

}  // namespace neb::test
