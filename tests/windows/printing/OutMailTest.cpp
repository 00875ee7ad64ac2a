// Mail from the preview: to whom, with what texts, under which name, and what it says when nobody
// takes it.
#include "OutRig.h"
#include "windows/frame/frmInputBox.h"

namespace neb {
namespace {

using namespace harness;

class OutMail : public OutRig {
  protected:
    void SendTo(const QString& Address) {
        W->Settings().EmailAddress = Address;
        Click("cmdEmail");
    }
    void ExpectNotSent(const QString& Path) {
        Boxes.Expect(u"There is no mail program that takes the message.\nThe document is in\n"_s +
                         Path + u"\nand can be attached to a message from there."_s,
                     u"Email Document"_s, BoxIcon::Information, BoxAnswer::Ok);
    }
    std::string CallsDone() const { return Carrier.Calls.join(u'|').toStdString(); }
    ~OutMail() override { EXPECT_EQ("", Listed(App.Path())) << "nothing beside the program"; }
    const QString Own = Docs.Path();
};

TEST_F(OutMail, GoesToTheAddressThatTheCallerHasSetWithoutAQuestion) {
    SendTo(u"ann@example.org"_s);
    EXPECT_EQ("SignOn  |Send 7|SignOff 7", CallsDone());
    EXPECT_EQ(u"ann@example.org", Carrier.Message.RecipAddress);
    EXPECT_TRUE(W->IsLoaded());
}

TEST_F(OutMail, AsksForTheAddressWhereThereIsNone) {
    WhenOpen<frmInputBox>([](frmInputBox& Box) {
        EXPECT_EQ(u"Destination Email Address Entry", Box.windowTitle());
        EXPECT_EQ(u"Enter the Email Address to Send To:", In<QLabel>(Box, "lblPrompt").text());
        QTest::keyClicks(&In<QLineEdit>(Box, "txtAnswer"), u"bob@example.org"_s);
        QTest::keyClick(&In<QLineEdit>(Box, "txtAnswer"), Qt::Key_Return);
    });
    Choose("mnuMail");
    EXPECT_EQ(u"bob@example.org", Carrier.Message.RecipAddress);
    EXPECT_EQ(u"", W->Settings().EmailAddress);
}

TEST_F(OutMail, AnEmptyAnswerSendsNothingAndOpensNoSession) {
    const std::function<void(frmInputBox&)> Answers[] = {
        [](frmInputBox& Box) { Press(Box, "cmdOkay"); },
        [](frmInputBox& Box) { Press(Box, "cmdCancel"); },
        [](frmInputBox& Box) { QTest::keyClick(&Box, Qt::Key_Escape); },
        [](frmInputBox& Box) {
            QTest::keyClicks(&In<QLineEdit>(Box, "txtAnswer"), u"  "_s);
            Press(Box, "cmdOkay");
        }};
    for (const auto& Each : Answers) {
        WhenOpen<frmInputBox>(Each);
        Click("cmdEmail");
    }
    EXPECT_EQ("", CallsDone());
    EXPECT_EQ("", Listed(Own));
}

TEST_F(OutMail, TheTextsStandBetweenBlanksAndHaveOneThatStandsForBoth) {
    SendTo(u"a@b"_s);
    EXPECT_EQ(u" Print Preview Document Attached. ", Carrier.Message.MsgNoteText);
    EXPECT_EQ(u" Print Preview Document Attached. ", Carrier.Message.MsgSubject);
    W->Settings().EmailMsg = u"See page 2"_s;
    W->Settings().EmailSubject = u"Garden"_s;
    Click("cmdEmail");
    EXPECT_EQ(u" See page 2 ", Carrier.Message.MsgNoteText);
    EXPECT_EQ(u" Garden ", Carrier.Message.MsgSubject);
}

TEST_F(OutMail, SignsOnWithTheNameAndThePasswordOfTheCaller) {
    W->Settings().UserName = u"ann"_s;
    W->Settings().UserPassword = u"secret"_s;
    SendTo(u"a@b"_s);
    EXPECT_EQ("SignOn ann secret|Send 7|SignOff 7", CallsDone());
}

TEST_F(OutMail, TheAttachmentIsAPdfNamedAfterTheTime) {
    SendTo(u"a@b"_s);
    EXPECT_EQ(u"AutoSave20040309080507.pdf", Carrier.Message.AttachmentName);
    EXPECT_EQ(Own + u"AutoSave20040309080507.pdf"_s, Carrier.Message.AttachmentPathName);
    EXPECT_EQ(3, tests::PagesIn(Carrier.Message.AttachmentPathName));
}

TEST_F(OutMail, TwoWithinASecondOverwriteOneFile) {
    SendTo(u"a@b"_s);
    W->ShowDocument(Pages(2));
    Click("cmdEmail");
    EXPECT_EQ("AutoSave20040309080507.pdf", Listed(Own));
    EXPECT_EQ(2, tests::PagesIn(Carrier.Message.AttachmentPathName));
    Time.At = Time.At.addSecs(1);
    Click("cmdEmail");
    EXPECT_EQ("AutoSave20040309080507.pdf AutoSave20040309080508.pdf", Listed(Own));
}

TEST_F(OutMail, TheNameAndTheDirectoryMayBeTheCallersOwn) {
    W->Settings().AutoSaveName = u"trip.pdf"_s;
    W->Settings().AutoSavePath = Out.Path().chopped(1);
    WriteFile(Out / u"trip.pdf"_s, "old");
    SendTo(u"a@b"_s);
    EXPECT_EQ(u"trip.pdf", Carrier.Message.AttachmentName);
    EXPECT_EQ(Out / u"trip.pdf"_s, Carrier.Message.AttachmentPathName);
    EXPECT_EQ(3, tests::PagesIn(Out / u"trip.pdf"_s));
    EXPECT_EQ("", Listed(Own));
}

TEST_F(OutMail, TheAttachmentIsAPdfWhateverItsNameIs) {
    W->Settings().AutoSaveName = u"trip.ppd"_s;
    SendTo(u"a@b"_s);
    EXPECT_EQ(3, tests::PagesIn(Own + u"trip.ppd"_s));
}

TEST_F(OutMail, WhereNobodyTakesItTheUserIsToldWhereItLies) {
    const QString Path = Own + u"AutoSave20040309080507.pdf"_s;
    Carrier.Takes = false;
    ExpectNotSent(Path);
    SendTo(u"a@b"_s);
    EXPECT_EQ("SignOn  |Send 7|SignOff 7", CallsDone());
    EXPECT_EQ(3, tests::PagesIn(Path));

    Carrier.Calls.clear();
    Carrier.Session = 0;
    ExpectNotSent(Path);
    Click("cmdEmail");
    EXPECT_EQ("SignOn  ", CallsDone());

    TheServices().Mail = nullptr;
    ExpectNotSent(Path);
    Click("cmdEmail");
    TheServices().Mail = &Carrier;
}

TEST_F(OutMail, SaysWhenSomebodyHasTakenIt) {
    SendTo(u"a@b"_s);
    EXPECT_EQ(u"The message was handed to the mail program.", Notice);
    EXPECT_EQ(Notice, In<QLabel>(*W, "lblNotice").text());
}

TEST_F(OutMail, AnAttachmentThatCannotBeWrittenIsToldAndTheSessionEnds) {
    DiskFull();
    const AgreeingBoxes Said;
    SendTo(u"a@b"_s);
    EXPECT_TRUE(Said.FaultTold().starts_with("The disk is full.")) << Said.FaultTold();
    EXPECT_EQ("SignOn  |SignOff 7", CallsDone());
}

TEST_F(OutMail, StopSendsNothing) {
    W->ShowDocument(Pages(10000));
    SlowDisk();
    StopAt("Picture");
    SendTo(u"a@b"_s);
    EXPECT_EQ("SignOn  |SignOff 7", CallsDone());
    EXPECT_EQ(u"Stopped; nothing was sent.", Notice);
    EXPECT_EQ("", Listed(Own));
}

}  // namespace
}  // namespace neb
