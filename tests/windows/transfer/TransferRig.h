// A user at the windows of transfer: the program's own database with the album Garden, another one
// with the album Attic, and empty folders beside them.
#pragma once

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QDropEvent>
#include <QGroupBox>
#include <QMenu>
#include <QMimeData>
#include <QProgressBar>

#include "ViewRig.h"
#include "db/modDatabaseLock.h"
#include "windows/frame/Openers.h"
#include "windows/transfer/TransferDirectories.h"
#include "windows/transfer/frmAlbumExport.h"
#include "windows/transfer/frmAlbumImport.h"
#include "windows/transfer/frmSlideShowExport.h"
#include "windows/transfer/frmSlideShowImport.h"
#include "windows/transfer/frmTransferProgress.h"

namespace neb::harness {

// Answers the questions for a file's place and for a folder, and notes what was proposed.
class FolderDialogs : public FileDialogs {
  public:
    FolderDialogs() : mBefore(TheServices().Dialogs) { TheServices().Dialogs = this; }
    ~FolderDialogs() override { TheServices().Dialogs = mBefore; }
    QString OpenFile(const QString&, const QString&, const QString&) override { return {}; }
    QString SaveFile(const QString&, const QString& Start, const QString&) override {
        Asked << Start;
        return File;
    }
    QString ChooseFolder(const QString&, const QString& Start) override {
        Asked << Start;
        return Folder;
    }
    QString File, Folder;
    QStringList Asked;

  private:
    FileDialogs* mBefore;
};

class TransferRig : public ViewRig {
  protected:
    TransferRig() {
        TheOpeners().Notice = [this](const QString& Text) { Notice = Text; };
        MakeDirs(Db / u"Temp"_s);
        AddShowOf(Engine, u"Summer"_s, {AddSlide(Engine, u"rose"_s), AddSlide(Engine, u"tulip"_s)});
        AddShowOf(Other, u"Winter"_s, {AddSlide(Other, u"lamp"_s)});
        Other.FinalizeDB();
        Others->Load();
    }
    ~TransferRig() override {
        for (const auto& Each : LoadedForms()) Each->Unload();  // before the folders go
        TheOpeners().Notice = {};
        TheOpeners().ShowAsChild = {};
        SetHostWatcher({});
    }

    clsNEBSlideShow& AddShowOf(clsDBEngine& In, const QString& Name,
                               const std::vector<std::int32_t>& Slides) {
        clsNEBSlideShow& Show = AddShow(In, Name);
        for (const std::int32_t Each : Slides)
            Show.SaveDetail(Each, static_cast<std::int32_t>(Show.Details.size()) + 1, {});
        return Show;
    }

    template <class Window>
    static std::shared_ptr<Window> OpenNew() {
        const auto Made = NewForm<Window>();
        ShowActive(*Made);
        return Made;
    }
    static QLineEdit& Directory(const QWidget& Window) {
        auto* Found = Window.findChild<QLineEdit*>(u"txtDstDB"_s);
        return Found ? *Found : In<QLineEdit>(Window, "txtSrcDB");
    }
    static void Retype(QLineEdit& Field, const QString& Text) {
        Field.setFocus();
        Field.selectAll();
        QTest::keyClick(&Field, Qt::Key_Delete);
        QTest::keyClicks(&Field, Text);
    }
    static void Retype(const QWidget& Window, const char* Field, const QString& Text) {
        Retype(In<QLineEdit>(Window, Field), Text);
    }
    // Types a directory and presses Enter.
    static void Load(QWidget& Window, const QString& Dir) {
        Retype(Directory(Window), Dir);
        QTest::keyClick(&Directory(Window), Qt::Key_Return);
    }
    // With the arrow keys.
    static void Choose(const QWidget& Window, const char* Combo, const QString& Text) {
        auto& Box = In<QComboBox>(Window, Combo);
        Box.setFocus();
        QTest::keyClick(&Box, Qt::Key_Home);
        for (int I = 0; I < Box.count() && Box.currentText() != Text; ++I)
            QTest::keyClick(&Box, Qt::Key_Down);
        EXPECT_EQ(Text.toStdString(), Box.currentText().toStdString());
    }
    // The entries of a list; a star stands at the chosen one.
    static std::string Listed(const QWidget& Window, const char* Combo) {
        const auto& Box = In<QComboBox>(Window, Combo);
        QStringList All;
        for (int I = 0; I < Box.count(); ++I)
            All << Box.itemText(I) + (I == Box.currentIndex() ? u"*"_s : u""_s);
        return All.join(u'|').toStdString();
    }
    static std::string Text(const QWidget& Window, const char* Field) {
        return In<QLineEdit>(Window, Field).text().toStdString();
    }
    static std::string DirectoryIn(const QWidget& Window) {
        return Directory(Window).text().toStdString();
    }
    static std::string HintIn(const QWidget& Window) {
        return In<QLabel>(Window, "lblHint").text().toStdString();
    }
    static bool IsOn(const QWidget& Window, const char* Control) {
        return In<QWidget>(Window, Control).isEnabled();
    }
    // As the desktop does it: the drag comes in and is let go.
    static bool Drop(QWidget& On, const QString& Path) {
        QMimeData Data;
        Data.setUrls({QUrl::fromLocalFile(Path)});
        QDragEnterEvent Enter({9, 9}, Qt::CopyAction, &Data, Qt::LeftButton, {});
        Enter.ignore();
        QCoreApplication::sendEvent(&On, &Enter);
        if (!Enter.isAccepted()) return false;
        QDropEvent Event({9, 9}, Qt::CopyAction, &Data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&On, &Event);
        QCoreApplication::processEvents();
        return Event.isAccepted();
    }
    std::int32_t AddAlbum(const QString& Name) {
        const std::int32_t Made = MakeAlbum(Name);
        return Made;
    }

    void ExpectInformation(const QString& Text, const QString& Title) {
        Boxes.Expect(Text, Title, BoxIcon::Information, BoxAnswer::Ok);
    }
    void ExpectStopQuestion(BoxAnswer Answer) {
        Boxes.Expect(AbortQuestion, u"Abort Confirmation"_s, BoxIcon::Question, Answer);
    }
    std::string Heard() const { return Others->Heard.join(u'|').toStdString(); }

    // A database as it lies on the disk: its albums, with captions and shows.
    static std::string OnDisk(const QString& Dir) {
        clsDBEngine Read;
        Read.SetDBPath(Dir);
        Read.InitializeDB(Recovery::InMemory);
        return Content(Read);
    }
    static std::string Content(const clsDBEngine& Of) {
        QStringList All;
        for (const auto& Album : Of.Albums) {
            QStringList Parts;
            for (const auto& Slide : Album->Slides) Parts << Slide->SlideText;
            for (const auto& Show : Album->SlideShows)
                Parts << u'[' + Show->SlideShowName + u' ' + QString::number(Show->Details.size()) +
                             u']';
            All << Album->AlbumName + u": "_s + Parts.join(u' ');
        }
        return All.join(u'|').toStdString();
    }
    // Each write takes its time.
    static void SlowDown(int MillisecondsAWrite) {
        SetHostWatcher([MillisecondsAWrite](HostStep Step, const QString&, qint64&) {
            if (Step == HostStep::Write) QThread::msleep(MillisecondsAWrite);
        });
    }

    FolderDialogs Dialogs;
    TempFolder Empty;
    std::shared_ptr<Listener> Others = NewForm<Listener>();
    QString Notice;
};

inline const QString NoDatabase =
    u"The specified directory does not hold an NEB Slide Show Database."_s;
inline const QString InvalidDirectory = u"Invalid Directory"_s;

// A window that exports an album, which stands open.
class ExportRig : public TransferRig {
  protected:
    std::shared_ptr<frmAlbumExport> W = OpenNew<frmAlbumExport>();
    void Reopen() {
        W->Unload();
        W = OpenNew<frmAlbumExport>();
    }
    void ExpectOffer(BoxAnswer Answer) {
        Boxes.Expect(NoDatabase + u"\nDo you want to make a new one there?"_s, InvalidDirectory,
                     BoxIcon::Question, Answer);
    }
};

}  // namespace neb::harness
