// What a reading passes over is told by name: pictures that cannot be read and folders that cannot
// be opened in a box at its end, files of another kind in a quiet line of the window.
#include <QFile>

#include "IntakeHarness.h"
#include "harness/WithoutPrivileges.h"
#include "windows/import/frmQuickShow.h"

namespace neb {
namespace {

using namespace harness;

class ImportPassedOver : public Intake {
  protected:
    ~ImportPassedOver() override {
        if (Window) Drop(*Window);
    }
    void Put(const char* Name) { WriteFile(Pics / QString::fromLatin1(Name), "no picture"); }
    static std::string Line(const QWidget& Of) {
        const auto& Label = In<QLabel>(Of, "lblPassedOver");
        return Label.isVisible() ? Label.text().toStdString() : std::string("(none)");
    }
    std::shared_ptr<Form> Window;
};

TEST_F(ImportPassedOver, NothingSaysNothing) {
    MakePictures(2);
    Window = ShowFilter(0, Pics.Path());
    EXPECT_EQ("(none)", Line(*Window));
    EXPECT_FALSE(In<QPushButton>(*Window, "cmdPassedOver").isVisible());
    EXPECT_EQ(0, Boxes.ShownCount());
}

TEST_F(ImportPassedOver, FilesOfAnotherKindAreALineThatNamesThemAtAPress) {
    MakePictures(2);
    Put("film.mp4");
    Put("a.xmp");
    Window = ShowFilter(0, Pics.Path());
    EXPECT_EQ(0, Boxes.ShownCount()) << "nothing to stop anybody for";
    EXPECT_EQ("2 files were passed over.", Line(*Window));
    Boxes.Expect(u"2 files are of another kind."_s);
    Press(*Window, "cmdPassedOver");
    EXPECT_EQ(
        u"These files are of another kind:\n%1\n%2"_s.arg(Pics / u"a.xmp"_s, Pics / u"film.mp4"_s)
            .toStdString(),
        Boxes.Last().Details.toStdString());
}

TEST_F(ImportPassedOver, UnreadablePicturesAreABoxAndGroupedBeforeTheOthers) {
    MakePictures(2);
    Put("c.jpg");
    Put("notes.txt");
    Boxes.Expect(u"1 picture could not be read.\n1 file is of another kind."_s, QString(),
                 BoxIcon::Information, BoxAnswer::Ok);
    Window = ShowFilter(0, Pics.Path());
    EXPECT_EQ(
        u"These pictures could not be read:\n%1: The file is not a picture that this program "
        "can read.\n\nThese files are of another kind:\n%2"_s
            .arg(Pics / u"c.jpg"_s, Pics / u"notes.txt"_s)
            .toStdString(),
        Boxes.Last().Details.toStdString());
    EXPECT_EQ("2 files were passed over.", Line(*Window)) << "they can be looked at again";
}

TEST_F(ImportPassedOver, FoldersThatCannotBeOpenedAreNamed) {
    MakePicture(Pics / u"locked/b.jpg"_s);
    QFile::setPermissions(Pics / u"locked"_s, {});
    const auto Others = QFile::ReadOther | QFile::ExeOther;
    QFile::setPermissions(Pics.Path(),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | Others);
    Boxes.Expect(u"1 folder could not be opened."_s);
    {
        const WithoutPrivileges User;
        Window = LoadFilter(0, Pics.Path(), true);
    }
    QFile::setPermissions(Pics / u"locked"_s,
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    EXPECT_EQ(
        u"These folders could not be opened:\n%1: Permission denied"_s.arg(Pics / u"locked/"_s)
            .toStdString(),
        Boxes.Last().Details.toStdString());
    ShowActive(*Window);
    EXPECT_EQ("1 folder was passed over.", Line(*Window));
}

TEST_F(ImportPassedOver, AReadingThatWasStoppedTellsNothing) {
    MakePictures(6);
    Put("aa.jpg");
    Put("notes.txt");
    Boxes.Expect(AbortQuestion, BoxAnswer::Yes);
    AtReadValue(4, [] { QTest::keyClick(Open<frmLoading>(), Qt::Key_Escape); });
    Window = ShowFilter(0, Pics.Path());
    EXPECT_EQ(1, Boxes.ShownCount());
    EXPECT_EQ("(none)", Line(*Window));
}

TEST_F(ImportPassedOver, QuickShowTellsItAlike) {
    MakePictures(2);
    Put("c.jpg");
    Put("film.mp4");
    const auto Show = NewForm<frmQuickShow>();
    Window = Show;
    Show->SetImportDir(Pics.Path());
    Boxes.Expect(u"1 picture could not be read.\n1 file is of another kind."_s);
    ShowActive(*Show);
    EXPECT_EQ("2 files were passed over.", Line(*Show));
}

}  // namespace
}  // namespace neb
