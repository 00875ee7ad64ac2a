// A user at the windows of transfer between two databases full of slides, shows, pictures and
// sounds; behind each transfer both are compared record by record and file by file with what the
// rules make of them.
#pragma once

#include "TransferRig.h"
#include "harness/FilledDatabase.h"
#include "harness/MemoryFolder.h"
#include "harness/TransferChecker.h"
#include "harness/UntouchedDatabases.h"

namespace neb::harness {

inline const QString NewAlbum = u"<NEW ALBUM>"_s;
inline const QString NewShow = u"<NEW SLIDE SHOW>"_s;

// What the user chooses and types, in the words on the screen.
struct Steps {
    bool Imports = false;
    bool ToOwn = false;     // the other database is the program's own as well
    QString SrcAlbum = {};  // and the show, where one is transferred
    QString SrcShow = {};
    QString DstAlbum = NewAlbum;
    QString DstShow = NewShow;
    bool Replaces = false;
    QString Proposed = {}, ProposedShow = {};  // the names that stand in the fields then
    QString Typed = {}, TypedShow = {};        // over those; null: left alone
};

class CombinationsRig : private TempInMemory, public TransferRig {
  protected:
    CombinationsRig() {
        DBEngine = &Mine.Engine;
        BroadcastChangesOf(Mine.Engine);
        Mine.AddFilledAlbum(u"Garden"_s);
        Mine.AddFilledAlbum(u"Sea"_s);
        Theirs.AddFilledAlbum(u"Hills"_s);
        Theirs.Engine.NextSlideID += 40;
        Theirs.Engine.NextSlideShowID += 10;
        Theirs.AddFilledAlbum(u"Town"_s);
        WriteBoth();
    }
    ~CombinationsRig() override {
        for (const auto& Each : LoadedForms()) Each->Unload();
        DBEngine = &Engine;
    }
    void WriteBoth() {
        Mine.Engine.FinalizeDB();
        Theirs.Engine.FinalizeDB();
    }

    const QString& SourceOf(const Steps& User) const {
        return User.Imports && !User.ToOwn ? TheirDir : MyDir;
    }
    const QString& TargetOf(const Steps& User) const {
        return !User.Imports && !User.ToOwn ? TheirDir : MyDir;
    }
    static std::shared_ptr<Form> OpenFor(const Steps& User) {
        if (User.SrcShow.isNull())
            return User.Imports ? std::shared_ptr<Form>(OpenNew<frmAlbumImport>())
                                : OpenNew<frmAlbumExport>();
        return User.Imports ? std::shared_ptr<Form>(OpenNew<frmSlideShowImport>())
                            : OpenNew<frmSlideShowExport>();
    }
    void FillIn(Form& Window, const Steps& User) {
        Load(Window, User.ToOwn ? MyDir : TheirDir);
        Choose(Window, "cboSrcAlbum", User.SrcAlbum);
        Choose(Window, "cboDstAlbum", User.DstAlbum);
        if (!User.SrcShow.isNull()) {
            Choose(Window, "cboSrcSlideShow", User.SrcShow);
            Choose(Window, "cboDstSlideShow", User.DstShow);
            EXPECT_EQ(User.ProposedShow.toStdString(), Text(Window, "txtSlideShowName"));
        }
        EXPECT_EQ(User.Proposed.toStdString(), Text(Window, "txtAlbumName"));
        if (User.Replaces) ClickReplace(Window);
        if (!User.Typed.isNull()) Retype(Window, "txtAlbumName", User.Typed);
        if (!User.TypedShow.isNull()) Retype(Window, "txtSlideShowName", User.TypedShow);
    }
    static void ClickReplace(const Form& Window) {
        auto& Box = In<QCheckBox>(Window, "chkReplace");
        const bool Was = Box.isChecked();
        QTest::mouseClick(&Box, Qt::LeftButton, {}, {8, Box.height() / 2});
        EXPECT_NE(Was, Box.isChecked());
    }
    static void PressStart(const Form& Window, const Steps& User) {
        Press(Window, User.Imports ? "cmdImport" : "cmdExport");
    }

    static std::int32_t AlbumNamed(const DatabaseState& In, const QString& Name) {
        if (Name == NewAlbum) return 0;
        for (const AlbumRow& Each : In.Albums)
            if (FieldText(Each.AlbumName) == Name.toLatin1()) return Each.AlbumID;
        ADD_FAILURE() << "no album " << Name.toStdString();
        return 0;
    }
    static std::int32_t ShowNamed(const DatabaseState& In, std::int32_t AlbumID,
                                  const QString& Name) {
        if (Name.isNull() || Name == NewShow) return 0;
        for (const ShowRow& Each : In.Shows)
            if (Each.AlbumID == AlbumID && FieldText(Each.SlideShowName) == Name.toLatin1())
                return Each.SlideShowID;
        ADD_FAILURE() << "no show " << Name.toStdString();
        return 0;
    }
    static StatedTransfer Stated(const Steps& User, const DatabaseState& Source,
                                 const DatabaseState& Target) {
        StatedTransfer What{.SrcAlbumID = AlbumNamed(Source, User.SrcAlbum),
                            .DstAlbumID = AlbumNamed(Target, User.DstAlbum),
                            .Replace = User.Replaces,
                            .NewAlbumName = User.Typed.isNull() ? User.Proposed : User.Typed};
        What.SrcSlideShowID = ShowNamed(Source, What.SrcAlbumID, User.SrcShow);
        What.DstSlideShowID = ShowNamed(Target, What.DstAlbumID, User.DstShow);
        What.NewSlideShowName = User.TypedShow.isNull() ? User.ProposedShow : User.TypedShow;
        return What;
    }

    // Both databases of one moment, with the dates of their files.
    struct Moment {
        DatabaseState My, Their;
        QStringList MyFiles, TheirFiles;
    };
    Moment Now() const {
        return {ReadDatabase(MyDir), ReadDatabase(TheirDir), WithDates(MyDir), WithDates(TheirDir)};
    }
    // The one that nothing was brought into is as it was, down to the dates of its files.
    static void ExpectUntouched(const QStringList& Before, const QStringList& Files) {
        if (Before != Files) ADD_FAILURE() << Differences(Before, Files);
    }
    void ExpectArrived(const Moment& Before, const Steps& User) {
        const bool ToMine = TargetOf(User) == MyDir;
        if (ToMine) {
            ExpectAsWritten(Mine.Engine);
            Mine.Engine.FinalizeDB();
        }
        const DatabaseState& Source = SourceOf(User) == MyDir ? Before.My : Before.Their;
        const DatabaseState& Target = ToMine ? Before.My : Before.Their;
        EXPECT_EQ("", CheckTransfer(Source, Target, ReadDatabase(Target.Dir),
                                    Stated(User, Source, Target)));
        const QString& Kept = ToMine ? TheirDir : MyDir;
        ExpectUntouched(ToMine ? Before.TheirFiles : Before.MyFiles, WithDates(Kept));
        if (!ToMine) ExpectAsWritten(Mine.Engine);
    }
    // What another program would read from the disk at this moment.
    static void ExpectAsWritten(const clsDBEngine& Engine) {
        clsDBEngine Reader;
        Reader.SetDBPath(Engine.DBPath());
        Reader.InitializeDB(Recovery::InMemory);
        EXPECT_EQ(MemoryOf(Engine), MemoryOf(Reader)) << "memory and disk disagree";
    }

    // The whole way, from the empty window on.
    void ExpectDone(const Steps& User) {
        const Moment Before = Now();
        const auto Window = OpenFor(User);
        FillIn(*Window, User);
        PressStart(*Window, User);
        ASSERT_FALSE(Window->IsLoaded());
        ExpectArrived(Before, User);
    }
    // In a window that is filled in: a box of which the test knows, and nothing changes.
    void ExpectRefused(const Form& Window, const Steps& User) {
        const Moment Before = Now();
        const auto Memory = MemoryOf(Mine.Engine);
        const int Boxed = Boxes.ShownCount();
        PressStart(Window, User);
        EXPECT_LT(Boxed, Boxes.ShownCount());
        EXPECT_TRUE(Window.IsLoaded());
        ExpectUntouched(Before.MyFiles, WithDates(MyDir));
        EXPECT_EQ("", DifferencesFrom(Before.Their, ReadDatabase(TheirDir)));
        EXPECT_EQ(Memory, MemoryOf(Mine.Engine));
        EXPECT_EQ("", DifferencesFrom(Before.My, ReadDatabase(MyDir)));
    }

    MemoryFolder MyFolder, TheirFolder;
    const QString MyDir = MyFolder.Path(), TheirDir = TheirFolder.Path();
    FilledDatabase Mine{MyDir, u"own"_s}, Theirs{TheirDir, u"other"_s};
};

}  // namespace neb::harness
