// Pictures that bring down the process that reads them: everything else comes in, and each of them
// is named with what happened.
#include "IntakeHarness.h"
#include "harness/HostileReading.h"
#include "windows/frame/Openers.h"

namespace neb {
namespace {

using namespace harness;

const QString BringsDown = u": The picture cannot be read: it brings its reader down."_s;
const QString TalksNonsense = u": The picture cannot be read: its reader talks nonsense."_s;

class ImportHostile : public Intake {
  protected:
    ImportHostile() { Reading.TakeOver(); }
    ~ImportHostile() override {
        TheOpeners() = {};
        if (Window) Drop(*Window);
    }
    QString Picture(const char* Name) { return Pics / QString::fromLatin1(Name); }
    void MakeHostile(const char* Name, const QByteArray& Command) {
        const QByteArray Own = PlainPicture(qRgb(Name[0], 2, 3), {40, 30});
        WriteFile(Picture(Name), harness::Hostile(Command, Own));
    }
    // a, b, d, e are pictures; c and f bring their readers down.
    void MakeEveryThird() {
        MakePictures(6);
        MakeHostile("c.jpg", "segv");
        MakeHostile("f.jpg", "write 10");
    }
    QStringList Named() { return Boxes.Last().Details.split(u'\n'); }
    std::string Slides(std::int32_t AlbumID) {
        QStringList Captions;
        const QString Folder = SlidesFolder(Engine.DBPath(), AlbumID);
        for (const auto& Slide : Engine.GetAlbum(AlbumID)->Slides) {
            Captions << Slide->SlideText;
            EXPECT_FALSE(QImage(Folder + Slide->SlideLoc.toLower()).isNull());
        }
        return Captions.join(u',').toStdString();
    }

    HostileReading Reading;
    std::shared_ptr<frmImportFilter> Window;
};

TEST_F(ImportHostile, OfAFolderTheOthersAreReadAndComeIn) {
    MakeEveryThird();
    const std::int32_t AlbumID = MakeAlbum(u"Garden"_s);
    Boxes.Expect(u"2 pictures could not be read."_s);
    Window = ShowFilter(AlbumID, Pics.Path());
    EXPECT_EQ("a,b,d,e", CaptionsOf(NonSelected(*Window)));
    EXPECT_TRUE(Named().contains(Picture("c.jpg") + BringsDown))
        << Named().join(u'\n').toStdString();
    EXPECT_TRUE(Named().contains(Picture("f.jpg") + TalksNonsense));
    Press(*Window, "cmdMoveRightAll");
    Boxes.Expect(u"4 slides successfully imported."_s, QString());
    Press(*Window, "cmdImport");
    EXPECT_EQ("a,b,d,e", Slides(AlbumID));
}

TEST_F(ImportHostile, ThoseThatTurnOutToBeSoAreNamedAndStaySelected) {
    MakePictures(4);
    const std::int32_t AlbumID = MakeAlbum(u"Garden"_s);
    Window = ShowFilter(AlbumID, Pics.Path());
    Press(*Window, "cmdMoveRightAll");
    MakeHostile("b.jpg", "abort");
    Boxes.Expect(u"3 slides successfully imported.\n1 slides discarded."_s, QString());
    Press(*Window, "cmdImport");
    EXPECT_TRUE(Boxes.Last().Details.contains(Picture("b.jpg") + BringsDown))
        << Boxes.Last().Details.toStdString();
    EXPECT_EQ("a,c,d", Slides(AlbumID));
    EXPECT_EQ("b", CaptionsOf(Selected(*Window)));
    MakePicture(Picture("b.jpg"));
    Boxes.Expect(u"1 slides successfully imported."_s, QString());
    Press(*Window, "cmdImport");
    EXPECT_EQ("a,c,d,b", Slides(AlbumID)) << "a file that was mended is another one";
}

}  // namespace
}  // namespace neb
