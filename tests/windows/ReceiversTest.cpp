// What every open window makes of a change in another: for each kind of change and each window that
// makes it, what two windows of each kind on the album show afterwards, and that windows on another
// album stay as they were. The changes are made by a user in the real windows.
#include "AllWindowsRig.h"
#include "controls/picture/XShow.h"
#include "windows/albums/frmAlbumDelete.h"
#include "windows/albums/frmAlbumRename.h"
#include "windows/albums/modAlbumNames.h"
#include "windows/import/frmQuickShow.h"
#include "windows/show/frmSlideShowProjector.h"
#include "windows/transfer/frmAlbumExport.h"
#include "windows/transfer/frmAlbumImport.h"
#include "windows/transfer/frmSlideShowExport.h"
#include "windows/transfer/frmSlideShowImport.h"

namespace neb {
namespace {

using namespace harness;

// A window that counts what it is told.
template <class Window>
struct Hearing : Window {
    void ReceiveEvent(const QString& ObjectType, const QString& EventType,
                      const EventKeys& EventData) override {
        ++Heard;
        Window::ReceiveEvent(ObjectType, EventType, EventData);
    }
    int Heard = 0;
};

using Manager = std::shared_ptr<Hearing<frmSlideDBM>>;
using Bulk = std::shared_ptr<Hearing<frmSlideMgrBulk>>;
using Filter = std::shared_ptr<Hearing<frmImportFilter>>;

// What a user sees of a window, each part under its name.
using Look = QMap<QString, QString>;

// The entries of a list; a star stands at the chosen one.
QString Entries(const QWidget& Window, const char* Name) {
    const auto& Box = In<QComboBox>(Window, Name);
    QStringList All;
    for (int I = 0; I < Box.count(); ++I)
        All << Box.itemText(I) + (I == Box.currentIndex() ? u"*"_s : u""_s);
    return All.join(u'|');
}

QString Size(const QImage& Picture) {
    return u"%1x%2"_s.arg(Picture.width()).arg(Picture.height());
}

Look LookOf(const frmSlideDBM& Window) {
    const QWidget* Place = In<QStackedWidget>(Window, "stkPicture").currentWidget();
    const auto* Picture = qobject_cast<const PictureView*>(Place);
    return {{u"title"_s, Window.windowTitle()},
            {u"albums"_s, Entries(Window, "cboAlbum")},
            {u"slides"_s, Entries(Window, "cboSlides")},
            {u"caption"_s, In<QLineEdit>(Window, "txtDscr").text()},
            {u"picture"_s, Picture ? Size(Picture->Picture()) : u"none"_s},
            {u"save"_s, In<QWidget>(Window, "cmdSave").isEnabled() ? u"on"_s : u"off"_s},
            {u"delete"_s, In<QWidget>(Window, "cmdDelete").isEnabled() ? u"on"_s : u"off"_s}};
}

Look LookOf(const frmSlideMgrBulk& Window) {
    const auto& Grid = In<FlexGrid>(Window, "flxAlbum");
    QStringList Rows;
    for (int Row = 0; Row < Grid.Rows(); ++Row) {
        Rows << Grid.TextMatrix(Row, clsImageBuffer::ColText) +
                    (Grid.IsSelected(Row) ? u"*"_s : u""_s);
        const QImage& Thumbnail = Grid.CellPicture(Row, clsImageBuffer::ColPicture);
        if (Thumbnail.isNull()) Rows.back() += u" without a picture"_s;
    }
    return {{u"title"_s, Window.windowTitle()},
            {u"albums"_s, Entries(Window, "cboAlbum")},
            {u"rows"_s, Rows.join(u'|')}};
}

Look LookOf(const frmImportFilter& Window) {
    if (!Window.IsLoaded()) return {{u"title"_s, u"closed"_s}};
    return {{u"title"_s, Window.windowTitle()},
            {u"rows"_s, Column(In<FlexGrid>(Window, "flxNonSelected"), 1).join(u'|')}};
}

// The parts that have changed, as they are now.
std::string Changes(const Look& Before, const Look& Now) {
    QStringList Parts;
    for (auto Part = Now.begin(); Part != Now.end(); ++Part)
        if (Before.value(Part.key()) != Part.value()) Parts << Part.key() + u'=' + Part.value();
    return Parts.join(u"; "_s).toStdString();
}

class OpenWindows;

struct Row {
    const char* Change;
    void (OpenWindows::*Make)();
    const char* Event;                           // as the windows are told
    const char *InManager, *InBulk, *InFilter;   // what changes in those on the album
    const char *FarManager = "", *FarBulk = "";  // and in those on another
    bool KeepsCaption = true;                    // which is typed in a bulk window and not saved
};

std::ostream& operator<<(std::ostream& Out, const Row& Each) {
    return Out << Each.Change;
}

class OpenWindows : public AllWindowsRig {
  public:
    // The album Garden has the slides a, b and c, and b is chosen everywhere; Attic has d.
    OpenWindows() {
        Other = MakeAlbum(u"Attic"_s);
        for (const char* Text : {"a", "b", "c"}) AddSlide(QString::fromLatin1(Text));
        const std::int32_t Garden = std::exchange(AlbumID, Other);
        AddSlide(u"d"_s);
        AlbumID = Garden;
        MakePicture(Pics / u"p.jpg"_s);
        XShow::SetReader(&ReadBack);
        Faulty->OnEvent = [] { throw Fault(u"broken"_s); };
        Faulty->Load();
        One = OpenAll(AlbumID);
        Two = OpenAll(AlbumID);
        Far = OpenAll(Other);
        Last->Load();
    }
    ~OpenWindows() override { XShow::SetReader({}); }

    // One window of each kind.
    struct Set {
        Manager Slides;
        Bulk Captions;
        Filter Import;
    };
    Set OpenAll(std::int32_t Album) {
        Set Made;
        Made.Slides = NewForm<Hearing<frmSlideDBM>>();
        Made.Slides->LoadSlideMgr();
        Activate(*Made.Slides);
        QCoreApplication::processEvents();
        Pick(*Made.Slides, "cboAlbum", Album);
        In<QComboBox>(*Made.Slides, "cboSlides").setCurrentIndex(Album == AlbumID ? 2 : 1);
        Made.Captions = NewForm<Hearing<frmSlideMgrBulk>>();
        Made.Captions->LoadAlbumMgr(Album);
        Grid(*Made.Captions).SetRow(Album == AlbumID ? 1 : 0);
        Made.Import = NewForm<Hearing<frmImportFilter>>();
        Prepare(*Made.Import, Album);
        Made.Import->ShowModeless();
        return Made;
    }
    void Prepare(frmImportFilter& Window, std::int32_t Album) {
        Window.SetImportDir(Pics.Path());
        Window.SetAlbumID(Album);
        Window.SetAlbumName(Album == 0 ? u"Zoo"_s : Engine.GetAlbum(Album)->AlbumName);
    }
    static void Pick(const QWidget& Window, const char* Name, std::int32_t Data) {
        auto& Box = In<QComboBox>(Window, Name);
        Box.setCurrentIndex(Box.findData(Data));
    }
    static FlexGrid& Grid(const frmSlideMgrBulk& Window) {
        return In<FlexGrid>(Window, "flxAlbum");
    }
    static void Retype(const QWidget& Window, const QString& Text) {
        auto& Field = In<QLineEdit>(Window, "txtDscr");
        Field.clear();
        QTest::keyClicks(&Field, Text);
    }
    static void RetypeCell(const frmSlideMgrBulk& Window, int Row, const QString& Text) {
        ASSERT_TRUE(Grid(Window).EditCell(Row, clsImageBuffer::ColText));
        auto* Editor = Grid(Window).findChildren<QLineEdit*>().back();
        Editor->selectAll();
        QTest::keyClicks(Editor, Text);
        QTest::keyClick(Editor, Qt::Key_Return);
    }

    // What the user does.
    void ChangeTheSlideOnView() {
        Retype(*One.Slides, u"zinnia"_s);
        Press(*One.Slides, "cmdRotate1");
        Press(*One.Slides, "cmdSave");
    }
    void ChangeAnotherSlide() {
        Pick(*One.Slides, "cboSlides", 1);
        Retype(*One.Slides, u"zinnia"_s);
        Press(*One.Slides, "cmdSave");
    }
    void MakeASlide() {
        Press(*One.Slides, "cmdNew");
        W = One.Slides.get();
        PickPicture(Pics / u"p.jpg"_s);
        Retype(*One.Slides, u"apple"_s);
        Press(*One.Slides, "cmdSave");
    }
    void DeleteTheSlideOnView() {
        ExpectSlideDeletion();
        Press(*One.Slides, "cmdDelete");
    }
    void DeleteAnotherSlide() {
        Pick(*One.Slides, "cboSlides", 3);
        DeleteTheSlideOnView();
    }
    void SaveCaptions() {
        RetypeCell(*One.Captions, 0, u"zinnia"_s);
        RetypeCell(*One.Captions, 1, u"begonia"_s);
        ExpectDone(u"2 slides successfully saved."_s);
        Press(*One.Captions, "cmdSave");
    }
    void DeleteRows() {
        Grid(*One.Captions).SelectRow(2);
        Boxes.Expect(u"Are you sure you want to delete the selected slides?"_s,
                     u"Delete Confirmation"_s, BoxIcon::Question, BoxAnswer::Yes);
        ExpectDone(u"2 slides successfully deleted."_s);
        Press(*One.Captions, "cmdDelete");
    }
    void ImportInto(ImportForm& Window) {
        Activate(Window);
        Press(Window, "cmdMoveRightAll");
        Press(Window, "cmdImport");
    }
    void ImportPictures() {
        Boxes.Expect(u"1 slides successfully imported."_s);
        ImportInto(*One.Import);
    }
    void ImportANewAlbum() {
        const auto Window = NewForm<frmImportFilter>();
        Prepare(*Window, 0);
        Window->ShowModeless();
        Boxes.Expect(u"1 slides successfully imported."_s);
        ImportInto(*Window);
    }
    void MakeAQuickShow() {
        const auto Window = NewForm<frmQuickShow>();
        Window->SetImportDir(Pics.Path());
        Window->ShowModeless();
        In<QLineEdit>(*Window, "txtName").setText(u"Zoo"_s);
        WhenOpen<frmSlideShowProjector>(
            [](frmSlideShowProjector& Shown) { QTest::keyClick(&Shown, Qt::Key_Escape); });
        ImportInto(*Window);
    }
    void RenameTheAlbum() {
        WhenOpen<frmAlbumRename>([](frmAlbumRename& Window) {
            In<QLineEdit>(Window, "txtAlbumName").setText(u"Zoo"_s);
            Press(Window, "cmdSave");
        });
        EXPECT_TRUE(ShowRenameAlbum(AlbumID));
    }
    void DeleteTheAlbum() {
        ExpectAlbumDeletion();
        WhenOpen<frmAlbumDelete>([](frmAlbumDelete& Window) { Press(Window, "cmdDelete"); });
        EXPECT_TRUE(ShowDeleteAlbum(AlbumID));
    }

    std::string Told() const { return Last->Heard.join(u'|').toStdString(); }
    void ExpectAllButTheSenderHeard(const QString& Change) const {
        const int Told = static_cast<int>(Last->Heard.size());
        EXPECT_EQ(Change.endsWith(u"InASlideManager") ? 0 : Told, One.Slides->Heard);
        EXPECT_EQ(Change.endsWith(u"InABulkManager") ? 0 : Told, One.Captions->Heard);
        EXPECT_EQ(Change == u"PicturesImported" ? 0 : Told, One.Import->Heard);
        for (const Set* Each : {&Two, &Far}) {
            EXPECT_EQ(Told, Each->Slides->Heard);
            EXPECT_EQ(Told, Each->Captions->Heard);
            EXPECT_EQ(Told, Each->Import->Heard);
        }
    }

    std::int32_t Other = 0;
    std::shared_ptr<Listener> Faulty = NewForm<Listener>(), Last = NewForm<Listener>();
    Set One, Two, Far;
};

constexpr char AlbumsWithZoo[] = "albums=Attic|Garden*|Zoo";
constexpr char FarAlbumsWithZoo[] = "albums=Attic*|Garden|Zoo";

const Row Rows[] = {
    {"TheSlideOnViewChangedInASlideManager", &OpenWindows::ChangeTheSlideOnView,
     "Album Add Slides 1 2",
     "caption=zinnia; picture=30x40; slides=<NEW SLIDE>|000001 a|000003 c|000002 zinnia*",
     "rows=a|zinnia*|c", ""},
    {"AnotherSlideChangedInASlideManager", &OpenWindows::ChangeAnotherSlide, "Album Add Slides 1 1",
     "slides=<NEW SLIDE>|000002 b*|000003 c|000001 zinnia", "rows=zinnia|b*|c", ""},
    {"ASlideMadeInASlideManager", &OpenWindows::MakeASlide, "Album Add Slides 1 5",
     "slides=<NEW SLIDE>|000001 a|000005 apple|000002 b*|000003 c", "rows=a|b*|c|apple", ""},
    {"CaptionsSavedInABulkManager", &OpenWindows::SaveCaptions, "Album Add Slides 1 0",
     "caption=begonia; slides=<NEW SLIDE>|000002 begonia*|000003 c|000001 zinnia",
     "rows=begonia*|c|zinnia", ""},
    {"PicturesImported", &OpenWindows::ImportPictures, "Album Add Slides 1 0",
     "slides=<NEW SLIDE>|000001 a|000002 b*|000003 c|000005 p", "rows=a|b*|c|p", ""},
    {"TheSlideOnViewDeletedInASlideManager", &OpenWindows::DeleteTheSlideOnView,
     "Album Delete Slides 1 2",
     "caption=; delete=off; picture=none; slides=<NEW SLIDE>|000001 a|000003 c", "rows=a|c", ""},
    {"AnotherSlideDeletedInASlideManager", &OpenWindows::DeleteAnotherSlide,
     "Album Delete Slides 1 3", "slides=<NEW SLIDE>|000001 a|000002 b*", "rows=a|b*", ""},
    {"SlidesDeletedInABulkManager", &OpenWindows::DeleteRows,
     "Album Delete Slides 1 2|Album Delete Slides 1 3",
     "caption=; delete=off; picture=none; slides=<NEW SLIDE>|000001 a", "rows=a", ""},
    {"AnAlbumMadeByAnImport", &OpenWindows::ImportANewAlbum, "Album Insert 3|Album Add Slides 3 0",
     AlbumsWithZoo, AlbumsWithZoo, "", FarAlbumsWithZoo, FarAlbumsWithZoo},
    {"AnAlbumMadeByAQuickShow", &OpenWindows::MakeAQuickShow, "Album Insert 3", AlbumsWithZoo,
     AlbumsWithZoo, "", FarAlbumsWithZoo, FarAlbumsWithZoo},
    {"TheAlbumRenamed", &OpenWindows::RenameTheAlbum, "Album Update 1",
     "albums=Attic|Zoo*; title=Slide Manager - Zoo",
     "albums=Attic|Zoo*; title=Bulk Slide Manager - Zoo", "title=Picture Import Filter - Zoo",
     "albums=Attic*|Zoo", "albums=Attic*|Zoo"},
    {"TheAlbumDeleted", &OpenWindows::DeleteTheAlbum, "Album Delete 1",
     "albums=Attic; caption=; delete=off; picture=none; slides=; title=Slide Manager",
     "albums=Attic; rows=; title=Bulk Slide Manager", "title=closed", "albums=Attic*",
     "albums=Attic*", false},
};

class Receivers : public OpenWindows, public ::testing::WithParamInterface<Row> {};

TEST_P(Receivers, FollowOnTheAlbumAndStayAsTheyWereOnAnother) {
    const Row& Expected = GetParam();
    const Look Slides = LookOf(*Two.Slides), Captions = LookOf(*Two.Captions),
               Import = LookOf(*Two.Import), FarSlides = LookOf(*Far.Slides),
               FarCaptions = LookOf(*Far.Captions), FarImport = LookOf(*Far.Import);
    (this->*Expected.Make)();
    ExpectAllButTheSenderHeard(QString::fromLatin1(Expected.Change));
    EXPECT_EQ(Expected.Event, Told()) << "though a window before it failed";
    EXPECT_EQ(Expected.InManager, Changes(Slides, LookOf(*Two.Slides)));
    EXPECT_EQ(Expected.InBulk, Changes(Captions, LookOf(*Two.Captions)));
    EXPECT_EQ(Expected.InFilter, Changes(Import, LookOf(*Two.Import)));
    EXPECT_EQ(Expected.FarManager, Changes(FarSlides, LookOf(*Far.Slides)));
    EXPECT_EQ(Expected.FarBulk, Changes(FarCaptions, LookOf(*Far.Captions)));
    EXPECT_EQ("", Changes(FarImport, LookOf(*Far.Import)));
}

TEST_P(Receivers, KeepWhatWasTypedAndIsNotSaved) {
    for (const Set* Each : {&Two, &Far}) {
        Retype(*Each->Slides, u"mine"_s);
        RetypeCell(*Each->Captions, 0, u"mine"_s);
    }
    (this->*GetParam().Make)();
    for (const Set* Each : {&Two, &Far}) {
        EXPECT_EQ(u"mine"_s, LookOf(*Each->Slides)[u"caption"_s]);
        EXPECT_EQ(u"on"_s, LookOf(*Each->Slides)[u"save"_s]);
        const bool Kept = Column(Grid(*Each->Captions), clsImageBuffer::ColText).contains(u"mine");
        EXPECT_EQ(Each == &Far || GetParam().KeepsCaption, Kept);
    }
}

INSTANTIATE_TEST_SUITE_P(, Receivers, ::testing::ValuesIn(Rows),
                         [](const auto& Each) { return std::string(Each.param.Change); });

// The windows of transfer list albums as the managers do; what they show in detail is tested beside
// them.
TEST_F(OpenWindows, ThoseOfTransferListTheAlbumsThatAreThere) {
    const std::vector<std::shared_ptr<Form>> Transfers = {
        NewForm<Hearing<frmAlbumExport>>(), NewForm<Hearing<frmAlbumImport>>(),
        NewForm<Hearing<frmSlideShowExport>>(), NewForm<Hearing<frmSlideShowImport>>()};
    for (const auto& Each : Transfers) Each->ShowModeless();
    const auto ListedNow = [&] {
        return Entries(*Transfers[0], "cboSrcAlbum") + u' ' +
               Entries(*Transfers[1], "cboDstAlbum") + u' ' +
               Entries(*Transfers[2], "cboSrcAlbum") + u' ' + Entries(*Transfers[3], "cboDstAlbum");
    };
    EXPECT_EQ(u"Attic*|Garden <NEW ALBUM>*|Attic|Garden Attic*|Garden <NEW ALBUM>*|Attic|Garden"_s,
              ListedNow());
    RenameTheAlbum();
    EXPECT_EQ(u"Attic*|Zoo <NEW ALBUM>*|Attic|Zoo Attic*|Zoo <NEW ALBUM>*|Attic|Zoo"_s,
              ListedNow());
    DeleteTheAlbum();
    EXPECT_EQ(u"Attic* <NEW ALBUM>*|Attic Attic* <NEW ALBUM>*|Attic"_s, ListedNow());
    MakeAQuickShow();
    EXPECT_EQ(u"Attic*|Zoo <NEW ALBUM>*|Attic|Zoo Attic*|Zoo <NEW ALBUM>*|Attic|Zoo"_s,
              ListedNow());
    for (const char* Event : {"Delete", "Insert", "Update", "Add Slides", "Delete Slides"})
        BroadcastEvent(u"Album"_s, QString::fromLatin1(Event), nullptr, {});
    EXPECT_EQ(u"Attic*|Zoo <NEW ALBUM>*|Attic|Zoo Attic*|Zoo <NEW ALBUM>*|Attic|Zoo"_s, ListedNow())
        << "an event that lacks its keys harms nothing";
}

// Told of what is no concern of theirs, while the engine is other than they show: nothing moves.
TEST_F(OpenWindows, IgnoreAllOtherEvents) {
    const Look Before[] = {LookOf(*One.Slides), LookOf(*One.Captions), LookOf(*One.Import)};
    Engine.SaveAlbum(AlbumID, u"Unseen"_s);
    Slide(2).SlideText = u"unseen"_s;
    Slide(2).SlideLoc.clear();
    const struct {
        const char *ObjectType, *EventType;
    } Strange[] = {{"Slide Show", "Insert"},
                   {"Slide Show", "Update"},
                   {"Slide Show", "Delete"},
                   {"Album", "insert"},
                   {"Album", "UPDATE"},
                   {"Album", "delete"},
                   {"Album", "Add slides"},
                   {"Album", "Delete slides"},
                   {"Album", "Add Slide"},
                   {"album", "Delete"},
                   {"Slide", "Delete Slides"},
                   {"Slide", "Delete"},
                   {"Album", ""},
                   {"", "Delete"},
                   {"Album", "Delete "},
                   {"Slide Show", "Add Slides"},
                   {"Slide Show", "Delete Slides"}};
    for (const auto& Each : Strange)
        BroadcastEvent(QString::fromLatin1(Each.ObjectType), QString::fromLatin1(Each.EventType),
                       nullptr, {AlbumID, 2});
    EXPECT_EQ(static_cast<int>(std::size(Strange)), One.Slides->Heard);
    EXPECT_EQ("", Changes(Before[0], LookOf(*One.Slides)));
    EXPECT_EQ("", Changes(Before[1], LookOf(*One.Captions)));
    EXPECT_EQ("", Changes(Before[2], LookOf(*One.Import)));
}

// An event that lacks its keys, as a fault elsewhere might send it, harms no window.
TEST_F(OpenWindows, SurviveEventsWithoutKeys) {
    const Look Before[] = {LookOf(*One.Slides), LookOf(*One.Captions), LookOf(*One.Import)};
    for (const char* Event : {"Delete", "Insert", "Update", "Add Slides", "Delete Slides"})
        BroadcastEvent(u"Album"_s, QString::fromLatin1(Event), nullptr, {});
    EXPECT_EQ(5, Last->Heard.size());
    EXPECT_EQ("", Changes(Before[0], LookOf(*One.Slides)));
    EXPECT_EQ("", Changes(Before[1], LookOf(*One.Captions)));
    EXPECT_EQ("", Changes(Before[2], LookOf(*One.Import)));
    RenameTheAlbum();
    EXPECT_EQ(u"Slide Manager - Zoo"_s, One.Slides->windowTitle()) << "and it follows on";
}

}  // namespace
}  // namespace neb
