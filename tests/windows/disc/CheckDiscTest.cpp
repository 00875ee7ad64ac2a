// The check of a folder that was written for a disc: what it tells of a good one, of a damaged one
// and of one that is none.
#include "DiscRig.h"

namespace neb {
namespace {

using namespace harness;

class DiscCheck : public DiscUser {
  protected:
    DiscCheck() { Dialog.Answer = Dir; }
    ~DiscCheck() override { SetDoEventsHook({}); }

    void WriteDisc() { ASSERT_TRUE(WriteDiscFolder(Source.Engine, Source.All(), Dir)); }
    // Runs the check; the text of its one box, or the notice.
    std::string Check() {
        Said.Shown.clear();
        Notice.clear();
        CheckDisc();
        EXPECT_LE(Said.Shown.size(), 1u);
        return (Said.Shown.empty() ? Notice : LastBox().Text).toStdString();
    }
    int FilesListed() const {
        return static_cast<int>(ReadFile(Dir + u"Sums.sha256"_s).count('\n'));
    }
};

TEST_F(DiscCheck, AGoodOneIsToldWithTheNumberOfItsFiles) {
    WriteDisc();
    const QStringList Before = Everything(Dir);
    EXPECT_EQ(u"All is well: %1 files in\n%2\nare as they were written."_s.arg(FilesListed())
                  .arg(Dir)
                  .toStdString(),
              Check());
    EXPECT_EQ(BoxIcon::Information, LastBox().Icon);
    EXPECT_EQ("", Differences(Before, Everything(Dir)));
    Dialog.Answer = Dir.chopped(1);
    EXPECT_EQ(0u, Check().find("All is well"));
}

TEST_F(DiscCheck, ChangedAndMissingFilesAreListedInTheWordsOfTheCommandLine) {
    WriteDisc();
    QByteArray Bytes = ReadFile(Dir + u"Albums/1/Slides/00000002.jpg"_s);
    Bytes[Bytes.size() / 2] = static_cast<char>(Bytes[Bytes.size() / 2] ^ 1);
    WriteFile(Dir + u"Albums/1/Slides/00000002.jpg"_s, Bytes);
    DeleteFile(Dir + u"README.txt"_s);
    EXPECT_EQ(
        u"2 of %1 files in\n%2\nare not as they were written.\n\n"
        "changed: Albums/1/Slides/00000002.jpg\nmissing: README.txt"_s.arg(FilesListed())
            .arg(Dir)
            .toStdString(),
        Check());
    EXPECT_EQ(BoxIcon::Critical, LastBox().Icon);
    EXPECT_EQ(u"Check a Disc"_s, LastBox().Title);
}

TEST_F(DiscCheck, AFolderWithoutAListIsTold) {
    MakeDirs(Dir);
    EXPECT_EQ(("There is no list of check sums in\n" + Dir +
               "\nA folder that was written for a disc has one, named Sums.sha256.")
                  .toStdString(),
              Check());
}

TEST_F(DiscCheck, AListThatIsNoneIsTold) {
    MakeDirs(Dir);
    WriteFile(Dir + u"Sums.sha256"_s, "hello\n");
    EXPECT_FALSE(Check().empty());
    EXPECT_EQ(BoxIcon::Critical, LastBox().Icon);
    EXPECT_EQ(u"Check a Disc"_s, LastBox().Title);
}

TEST_F(DiscCheck, BeginsInTheOpenDatabaseWhereThatHasAList) {
    Dialog.Answer.clear();
    EXPECT_EQ("", Check());
    WriteSums(Own.Path());
    EXPECT_EQ("", Check()) << "cancelled";
    EXPECT_EQ(QStringList({QString(), Own.Path()}), Dialog.Proposed);
}

TEST_F(DiscCheck, CanBeStopped) {
    WriteDisc();
    Said.Answer = BoxAnswer::Yes;
    StopWhen([] { return true; });
    CheckDisc();
    ASSERT_EQ(1u, Said.Shown.size());
    EXPECT_EQ(AbortQuestion, LastBox().Text);
    EXPECT_EQ(u"Stopped; not all was checked."_s, Notice);
}

}  // namespace
}  // namespace neb
