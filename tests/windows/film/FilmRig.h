// A user at the window of films: a show of three slides with a song that is missing, a maker of
// films that goes as far as a test lets it, and a folder for what it makes.
#pragma once

#include <QCheckBox>
#include <QLabel>
#include <QMutex>
#include <QProgressBar>
#include <QSlider>
#include <QSpinBox>
#include <atomic>

#include "controls/picture/PictureView.h"
#include "settings/SettingKeys.h"
#include "windows/compose/ManagerRig.h"
#include "windows/compose/modShowManagers.h"
#include "windows/film/FilmWorks.h"
#include "windows/film/frmFilm.h"
#include "windows/film/modFilms.h"
#include "windows/frame/Openers.h"

namespace neb::harness {

// In place of what takes its time; put back at its end.
class FakeMaker {
  public:
    FakeMaker() {
        FilmWorks& Works = TheFilmWorks();
        Works.Make = [this](clsDBEngine&, const FilmOrder& Order, const FilmPlan& Plan,
                            const FilmWatch& Watch) { return Make(Order, Plan, Watch); };
        Works.Estimate = [this](const FilmOrder& Order, const FilmPlan&,
                                const std::function<bool()>& GoesOn) {
            return Estimate(Order, GoesOn);
        };
        Works.CheckRoom = [this](const FilmOrder&, qint64 Bytes) -> Answer<> {
            return Bytes <= Room ? Answer<>(Done()) : Refuse(QStringLiteral("There is no room."));
        };
        Works.FirstLook = [](const FilmOrder&, const FilmPlan&) { return Frame(Qt::blue); };
        Works.Open = [this](const QString& Path) { Opened << Path; };
    }
    ~FakeMaker() { TheFilmWorks() = OwnFilmWorks(); }

    static QImage Frame(QColor Colour) {
        QImage Made(640, 360, QImage::Format_RGB32);
        Made.fill(Colour);
        return Made;
    }
    std::vector<FilmOrder> Orders() {
        const QMutexLocker Held(&mLock);
        return mOrders;
    }
    FilmOrder Last() { return Orders().back(); }

    std::atomic<double> Until = 1e9;    // seconds of the film to which it goes
    std::atomic<double> LastTotal = 0;  // seconds of the film that was begun last, by its plan
    std::atomic<bool> Fails = false, EstimateHangs = false;
    std::atomic<int> Stopped = 0, Estimates = 0, EstimatesGivenUp = 0;
    std::atomic<qint64> Expected = 34'000'000, Room = 1'000'000'000'000;
    std::vector<RehearsalFinding> Faults;  // before it begins
    QStringList Opened;

  private:
    std::optional<qint64> Estimate(const FilmOrder& Order, const std::function<bool()>& GoesOn) {
        ++Estimates;
        while (EstimateHangs && GoesOn()) QThread::msleep(1);
        EstimatesGivenUp += !GoesOn();
        return Expected * Order.Quality / 75;
    }
    FilmReport Make(const FilmOrder& Order, const FilmPlan& Plan, const FilmWatch& Watch) {
        {
            const QMutexLocker Held(&mLock);
            mOrders.push_back(Order);
        }
        const double Total = LastTotal = Plan.Sheet.RunningTime;
        for (double At = 0; At < Total; At < Until ? At += 1 : At) {
            if (!Watch.GoesOn({At, Total, qint64(At * 1e6), SlideAt(Plan, At)}))
                return ++Stopped, FilmReport{.End = FilmEnd::Stopped};
            Watch.Look(Frame(QColor::fromHsv(int(At) * 20 % 360, 200, 200)), At);
            if (Fails) throw Fault(QStringLiteral("The disk is full."), Order.Path);
            if (At >= Until) QThread::msleep(1);
        }
        WriteFile(Order.Path, "a film");
        return {.Seconds = 83, .Bytes = 34'000'000, .Faults = Faults};
    }
    static std::int32_t SlideAt(const FilmPlan& Plan, double At) {
        std::int32_t SlideSeq = 0;
        for (const RehearsalRow& Each : Plan.Sheet.Rows)
            if (Each.At <= At) SlideSeq = Each.SlideSeq;
        return SlideSeq;
    }

    QMutex mLock;
    std::vector<FilmOrder> mOrders;
};

// Answers where a film is to go, and notes what was proposed.
class FilmDialogs : public FakeDialogs {
  public:
    QString SaveFile(const QString&, const QString& Path, const QString& Asked) override {
        Proposed = Path;
        Filters = Asked;
        return Answer;
    }
    QString Proposed;
};

// Stands still until it is told otherwise.
class HeldClock : public Clock {
  public:
    HeldClock() : mBefore(std::exchange(TheServices().Time, this)) {}
    ~HeldClock() override { TheServices().Time = mBefore; }
    QDateTime Now() const override { return QDate(2026, 11, 22).startOfDay(); }
    double Ticks() const override { return Seconds * 1000; }
    std::atomic<double> Seconds = 0;

  private:
    Clock* mBefore;
};

class FilmRig : public ManagerRig {
  protected:
    FilmRig() {
        TheOpeners().SlideOfShow = &ShowSlideInManager;
        RememberFolder();
        AddAlbumSlides({u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s});
        ShowID = AddShow(u"Walk"_s, {3, 1, 5});
        AddTrack(ShowID, 1, 2, 3, u"none.mp3"_s);
    }
    ~FilmRig() override {
        const LettingGo Answers;
        for (const auto& Each : LoadedForms()) Each->Unload();
        TheOpeners().SlideOfShow = {};
    }

    void RememberFolder() {
        clsSettings Settings = OpenMemory();
        PutText(Settings, Setting::FilmFolder, Out.Path());
        Settings.Save();
    }
    frmFilm& OpenFilm(std::int32_t Of = 0) {
        Films.push_back(NewForm<frmFilm>());
        F = Films.back().get();
        F->MakeFilmOf(AlbumID, Of ? Of : ShowID);
        if (F->IsLoaded()) Activate(*F);
        return *F;
    }
    // All is known that is found out before a film.
    void OpenReady() {
        OpenFilm();
        ASSERT_TRUE(Waits([&] { return Text("lblExpected").startsWith(u"About "_s); }));
    }
    static bool Waits(const std::function<bool()>& For) { return QTest::qWaitFor(For, 10000); }
    bool IsMade() {
        return Waits([&] { return Text("lblSummary").startsWith(u"The film is made: "_s); });
    }
    bool IsMaking() { return In<QWidget>(*F, "pgbFilm").isVisible(); }
    bool Chooses() {
        return Waits([&] { return In<QWidget>(*F, "cmdMake").isVisible(); });
    }
    // A film on its way that goes no further than that.
    void MakeUpTo(double Seconds) {
        Maker.Until = Seconds;
        OpenReady();
        Press(*F, "cmdMake");
        ASSERT_TRUE(Waits([&] { return F->windowTitle().contains(u'%'); }));
    }
    QString Text(const char* Label) { return In<QLabel>(*F, Label).text(); }
    QLineEdit& File() { return In<QLineEdit>(*F, "txtFile"); }
    QString FilePath() { return File().text(); }
    void TypeFile(const QString& Name) {
        File().setFocus();
        File().selectAll();
        QTest::keyClicks(&File(), Name);
    }
    QComboBox& List(const char* Name) { return In<QComboBox>(*F, Name); }
    void ChooseByKeys(const char* Box, const QString& First) {
        List(Box).setFocus();
        QTest::keyClicks(&List(Box), First);
    }
    void PutNumber(const char* Spin, int Number) {
        auto& Field = In<QSpinBox>(*F, Spin);
        Field.setFocus();
        Field.selectAll();
        QTest::keyClicks(&Field, QString::number(Number));
        QTest::keyClick(&Field, Qt::Key_Tab);
    }
    void Tick(const char* Box) {
        auto& Its = In<QCheckBox>(*F, Box);
        QTest::mouseClick(&Its, Qt::LeftButton, {}, {8, Its.height() / 2});
    }
    FlexGrid& Findings() { return In<FlexGrid>(*F, "flxFindings"); }
    void ExpectStop(const QString& Words, BoxAnswer Answer) {
        Boxes.Expect(Words, u"Make a Film"_s, BoxIcon::Question, Answer);
    }
    QString StopWords() {
        return u"Stop making the film?\n%1\n\nNothing of it is left then."_s.arg(Out /
                                                                                 u"Walk.mp4"_s);
    }
    QString CloseWords() {
        return u"A film is being made:\n%1\n\nWhen this window closes the film is given up, and "
               "nothing of it is left."_s.arg(Out / u"Walk.mp4"_s);
    }

    TempFolder Out;
    FakeMaker Maker;
    FilmDialogs Where;
    std::vector<std::shared_ptr<frmFilm>> Films;
    frmFilm* F = nullptr;
    std::int32_t ShowID = 0;
};

}  // namespace neb::harness
