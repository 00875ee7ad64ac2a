// The check of all pictures as a user sees it: by mouse and keyboard, stopped, and of a database
// that is only read.
#include "windows/albums/frmCheckPictures.h"

#include <QClipboard>
#include <QFile>
#include <QPlainTextEdit>

#include "albums/modImport.h"
#include "db/AlbumSums.h"
#include "harness/FolderState.h"
#include "harness/Heartbeat.h"
#include "windows/albums/AlbumHarness.h"

namespace neb {
namespace {

using namespace harness;

class CheckPictures : public AlbumWindows {
  protected:
    CheckPictures() {
        AlbumID = MakeAlbum(u"Garden"_s);
        Changes Door(Engine);
        for (const char* Each : {"red", "green", "blue"})
            EXPECT_TRUE(
                EnterPicture(Door, Engine, AlbumID,
                             {QLatin1String(Each), [Each] { return QByteArray(5000, *Each); },
                              QImage(72, 72, QImage::Format_RGB32)}));
    }
    QString Slide(int Number) {
        return SlidesFolder(Engine.DBPath(), AlbumID) + FileStem(Number) + u".jpg"_s;
    }
    QString ListPath() { return AlbumSumsPath(AlbumFolder(Engine.DBPath(), AlbumID)); }
    static std::string Said(const QWidget& Window) {
        return In<QLabel>(Window, "lblProgress").text().toStdString();
    }
    static std::string Found(const QWidget& Window) {
        return In<QPlainTextEdit>(Window, "txtFound").toPlainText().toStdString();
    }
    static bool IsOver(const QWidget& Window) {
        return !In<QPushButton>(Window, "cmdStop").isEnabled() && Said(Window) != "Stopping ...";
    }
    // Opens the window and acts in it once the check is over.
    void Check(const std::function<void(frmCheckPictures&)>& Do) {
        bool Acted = false;
        WhenOpen<frmCheckPictures>(
            [&](frmCheckPictures& Window) {
                Acted = true;
                Do(Window);
                Window.Unload();
            },
            [] { return IsOver(*Open<frmCheckPictures>()); });
        NewForm<frmCheckPictures>()->ShowModal();
        EXPECT_TRUE(Acted);
    }
    // A picture that takes seconds to read.
    void MakeLarge() {
        QFile File(Slide(2));
        ASSERT_TRUE(File.resize(qint64{4} << 30));
    }
    void WhenReading(std::function<void(frmCheckPictures&)> Do) {
        WhenOpen<frmCheckPictures>(std::move(Do), [] {
            return In<QProgressBar>(*Open<frmCheckPictures>(), "pgbCheck").value() > 0;
        });
    }

    std::int32_t AlbumID = 0;
};

TEST_F(CheckPictures, SaysThatAllIsWell) {
    const QStringList Before = Everything(Engine.DBPath());
    Check([](frmCheckPictures& Window) {
        EXPECT_EQ("All is well: 6 files are as they were stored.", Said(Window));
        EXPECT_EQ("", Found(Window));
        EXPECT_EQ("cmdStop cmdCopy", Off(Window, {"cmdStop", "cmdCopy", "cmdClose"}));
        const auto& Bar = In<QProgressBar>(Window, "pgbCheck");
        EXPECT_EQ(Bar.maximum(), Bar.value());
        Press(Window, "cmdClose");
        EXPECT_FALSE(Window.IsLoaded());
    });
    EXPECT_EQ("", Differences(Before, Everything(Engine.DBPath())));
}

TEST_F(CheckPictures, ListsWhatItFindsAndTheListCanBeCopiedByTheKeyboard) {
    WriteFile(Slide(1), QByteArray(5000, 'x'));
    DeleteFile(Slide(2));
    WriteFile(Slide(3), {});
    WriteFile(Slide(9), "stray");
    MakeDirs(Engine.DBPath() + u"Albums/77"_s);
    const QString Folder = SlidesFolder(Engine.DBPath(), AlbumID);
    const QString Wanted =
        u"changed: the picture of slide 1 in the album \"Garden\": "_s + Slide(1) +
        u"\nempty: the picture of slide 3 in the album \"Garden\": "_s + Slide(3) +
        u"\nno slide or show has it: "_s + Slide(9) +
        u"\nmissing: the picture of slide 2 in the album \"Garden\": "_s + Folder +
        u"00000002.JPG\nno slide or show has it: "_s + Engine.DBPath() + u"Albums/77"_s;
    QGuiApplication::clipboard()->clear();
    Check([&](frmCheckPictures& Window) {
        EXPECT_EQ("5 files are not as they should be.", Said(Window));
        EXPECT_EQ(Wanted.toStdString(), Found(Window));
        EXPECT_EQ("cmdStop", Off(Window, {"cmdStop", "cmdCopy", "cmdClose"}));
        Key(Window, Qt::Key_P, Qt::AltModifier);
        QTest::qWaitFor([] { return !QGuiApplication::clipboard()->text().isEmpty(); }, 2000);
        EXPECT_EQ(Wanted.toStdString(), QGuiApplication::clipboard()->text().toStdString());
        Key(Window, Qt::Key_Escape);
        EXPECT_FALSE(Window.IsLoaded());
    });
}

TEST_F(CheckPictures, MakesTheListsOfAlbumsThatHaveNone) {
    DeleteFile(ListPath());
    Check([](frmCheckPictures& Window) {
        EXPECT_NE(std::string::npos, Said(Window).find("One album had no check sums"))
            << Said(Window);
    });
    EXPECT_EQ(6u, SumsIn(ReadFile(ListPath())).size());
    Check([](frmCheckPictures& Window) {
        EXPECT_EQ("All is well: 6 files are as they were stored.", Said(Window));
    });
}

TEST_F(CheckPictures, LeavesAReadOnlyDatabaseAlone) {
    ReadOnlyDB = true;
    DeleteFile(ListPath());
    const QStringList Before = Everything(Engine.DBPath());
    Check([](frmCheckPictures& Window) {
        EXPECT_NE(std::string::npos, Said(Window).find("One album has no check sums"))
            << Said(Window);
    });
    EXPECT_EQ("", Differences(Before, Everything(Engine.DBPath())));
}

TEST_F(CheckPictures, EscStopsTheReadingAndEscAgainCloses) {
    WriteFile(Slide(1), QByteArray(5000, 'x'));
    MakeLarge();
    double Standstill = 0;
    bool Stopped = false, Closed = false;
    WhenReading([&](frmCheckPictures& Window) {
        const auto Held = Window.shared_from_this();
        Heartbeat Heart;
        QTest::qWait(300);
        Standstill = Heart.LongestStandstill();
        EXPECT_TRUE(Said(Window).starts_with("file ")) << Said(Window);
        EXPECT_NE(std::string::npos, Said(Window).find(" of 6, ")) << Said(Window);
        Key(Window, Qt::Key_Escape);
        EXPECT_TRUE(Window.IsLoaded()) << "what was found is to be seen";
        EXPECT_EQ("Stopping ...", Said(Window));
    });
    WhenOpen<frmCheckPictures>(
        [&](frmCheckPictures& Window) {
            Stopped = true;
            EXPECT_EQ("Stopped; not all was checked.\nOne file is not as it should be.",
                      Said(Window));
            EXPECT_TRUE(Found(Window).starts_with("changed: the picture of slide 1"));
            Key(Window, Qt::Key_Escape);
            Closed = !Window.IsLoaded();
        },
        [] { return Said(*Open<frmCheckPictures>()).starts_with("Stopped"); });
    NewForm<frmCheckPictures>()->ShowModal();
    EXPECT_TRUE(Stopped);
    EXPECT_TRUE(Closed);
    EXPECT_LT(Standstill, 100);
}

TEST_F(CheckPictures, TheStopButtonStopsAndTheEndOfTheProgramWaitsForIt) {
    MakeLarge();
    bool Refused = false, Gone = false;
    WhenReading([&](frmCheckPictures& Window) {
        Refused = !Window.Unload();
        EXPECT_EQ("Stopping ...", Said(Window));
    });
    WhenOpen<frmCheckPictures>(
        [&](frmCheckPictures& Window) { Gone = Window.Unload(); },
        [] { return Said(*Open<frmCheckPictures>()).starts_with("Stopped"); });
    NewForm<frmCheckPictures>()->ShowModal();
    EXPECT_TRUE(Refused);
    EXPECT_TRUE(Gone);
    WhenReading([&](frmCheckPictures& Window) { Press(Window, "cmdStop"); });
    Check([](frmCheckPictures& Window) {
        EXPECT_EQ("Stopped; not all was checked.\nNothing was found until then.", Said(Window));
    });
}

}  // namespace
}  // namespace neb
