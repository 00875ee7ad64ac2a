// Saving and loading from the preview, and the PDF that it writes by itself when it closes.
#include "OutRig.h"
#include "windows/printing/PrintFiles.h"

namespace neb {
namespace {

using namespace harness;

const QString SaveTitle = u"Save Document"_s;

class OutSave : public OutRig {
  protected:
    // By the button, under the name that the user chooses.
    void SaveAs(const QString& Name) {
        Files.Answer = Out / Name;
        Click("cmdSave");
    }
    void ExpectReplaceQuestion(const QString& Name, BoxAnswer Answer) {
        Boxes.Expect((Out / Name) + u"\nis there already. Replace it?"_s, SaveTitle,
                     BoxIcon::Question, Answer);
    }
};

TEST_F(OutSave, TheDialogsOfferTheTwoKindsOfFile) {
    Click("cmdSave");
    Choose("mnuSave");
    Click("cmdLoad");
    Choose("mnuOpen");
    const QString Save = u"PDF (*.pdf)|*.pdf|Custom (*.ppd)|*.ppd"_s;
    const QString Open = u"Custom (*.ppd)|*.ppd"_s;
    EXPECT_EQ(QStringList({Save, Save, Open, Open}), Files.Asked);
    EXPECT_EQ(QStringList(4, Docs.Path()), Files.Begun);
}

TEST_F(OutSave, CancellingTheDialogsChangesNothing) {
    const auto Before = W->VSPrinter1().Document();
    Click("cmdSave");
    Click("cmdLoad");
    EXPECT_EQ(Before, W->VSPrinter1().Document());
    EXPECT_EQ("", Listed(Out.Path()));
    EXPECT_EQ(u"", Notice);
}

TEST_F(OutSave, WritesAPdfAndTellsItInTheStatusBar) {
    SaveAs(u"a.pdf"_s);
    EXPECT_EQ(3, tests::PagesIn(Out / u"a.pdf"_s));
    EXPECT_EQ((u"Saved: "_s + (Out / u"a.pdf"_s)).toStdString(), Notice.toStdString());
    EXPECT_TRUE(W->IsLoaded());
}

// The main window lies behind this one.
TEST_F(OutSave, TellsAtItsOwnFootAsWellUntilSomethingElseIsDone) {
    const auto Told = [this] { return In<QLabel>(*W, "lblNotice").text().toStdString(); };
    SaveAs(u"a.pdf"_s);
    EXPECT_TRUE(In<QLabel>(*W, "lblNotice").isVisible());
    EXPECT_EQ((u"Saved: "_s + (Out / u"a.pdf"_s)).toStdString(), Told());
    Files.Answer.clear();
    Click("cmdSave");
    EXPECT_EQ("", Told());
}

TEST_F(OutSave, APathThatIsLongerThanTheWindowLeavesItsSize) {
    const QSize Before = W->size();
    const QRect Pages = W->VSPrinter1().geometry();
    SaveAs(QString(200, u'w') + u".pdf"_s);
    EXPECT_TRUE(In<QLabel>(*W, "lblNotice").text().endsWith(u"www.pdf"_s));
    EXPECT_EQ(Before, W->size());
    EXPECT_EQ(Pages, W->VSPrinter1().geometry());
}

TEST_F(OutSave, TheExtensionSaysTheKindInAnyCase) {
    for (const char* Name : {"A.PDF", "B.Pdf", "C.ppd", "D.PPD"}) SaveAs(QLatin1String(Name));
    EXPECT_EQ("A.PDF B.Pdf C.ppd D.PPD", Listed(Out.Path()));
    for (const char* Name : {"A.PDF", "B.Pdf"})
        EXPECT_TRUE(ReadFile(Out / QLatin1String(Name)).startsWith("%PDF")) << Name;
    for (const char* Name : {"C.ppd", "D.PPD"})
        EXPECT_FALSE(ReadFile(Out / QLatin1String(Name)).startsWith("%PDF")) << Name;
}

TEST_F(OutSave, ANameWithoutAnExtensionBecomesAPdf) {
    SaveAs(u"trip"_s);
    EXPECT_EQ("trip.pdf", Listed(Out.Path()));
    ExpectReplaceQuestion(u"trip.pdf"_s, BoxAnswer::No);
    SaveAs(u"trip"_s);
}

TEST_F(OutSave, ProposesTheNameOfTheDocument) {
    EXPECT_EQ((Docs / u"Garden"_s).toStdString(), ProposedFile(u"Garden"_s).toStdString());
    EXPECT_EQ((Docs / u"a b"_s).toStdString(), ProposedFile(u" a/:\nb?"_s).toStdString());
    EXPECT_EQ(Docs.Path().toStdString(), ProposedFile({}).toStdString());
    const auto Named = std::make_shared<PrintDocument>(*Pages(2));
    Named->SetTitle(u"Garden"_s);
    W->ShowDocument(Named);
    Click("cmdSave");
    EXPECT_EQ((Docs / u"Garden"_s).toStdString(), Files.Begun.value(0).toStdString());
}

TEST_F(OutSave, APointInANameBeginsNoExtension) {
    SaveAs(u"Trip to St. Moritz"_s);
    SaveAs(u"Summer.panoramas"_s);
    EXPECT_EQ("Summer.panoramas.pdf Trip to St. Moritz.pdf", Listed(Out.Path()));
}

TEST_F(OutSave, NorDoesOneBetweenDigits) {
    SaveAs(u"Summer 2.5 wk"_s);
    EXPECT_EQ("Summer 2.5 wk.pdf", Listed(Out.Path()));
}

TEST_F(OutSave, AForeignExtensionIsRefusedInWords) {
    for (const char* Name : {"a.jpg", "a.pdf.txt", "a."}) {
        Boxes.Expect(u"\""_s + QLatin1String(Name) +
                         u"\" is neither a PDF file (.pdf) nor a document of the program's own "
                         "(.ppd).\nPlease choose one of these two extensions. Nothing was saved."_s,
                     SaveTitle, BoxIcon::Information, BoxAnswer::Ok);
        SaveAs(QLatin1String(Name));
    }
    EXPECT_EQ("", Listed(Out.Path()));
}

TEST_F(OutSave, AFileThatIsThereIsReplacedOnlyWhenTheUserSaysSo) {
    WriteFile(Out / u"a.pdf"_s, "old");
    ExpectReplaceQuestion(u"a.pdf"_s, BoxAnswer::No);
    SaveAs(u"a.pdf"_s);
    EXPECT_EQ(BoxAnswer::No, Boxes.Last().Default);
    EXPECT_EQ("old", ReadFile(Out / u"a.pdf"_s));
    ExpectReplaceQuestion(u"a.pdf"_s, BoxAnswer::Yes);
    SaveAs(u"a.pdf"_s);
    EXPECT_EQ(3, tests::PagesIn(Out / u"a.pdf"_s));
}

TEST_F(OutSave, AReadOnlyFileIsReplaced) {
    WriteFile(Out / u"a.pdf"_s, "old");
    SetReadOnly(Out / u"a.pdf"_s);
    ExpectReplaceQuestion(u"a.pdf"_s, BoxAnswer::Yes);
    SaveAs(u"a.pdf"_s);
    EXPECT_EQ(3, tests::PagesIn(Out / u"a.pdf"_s));
    EXPECT_FALSE(IsReadOnly(Out / u"a.pdf"_s));
}

TEST_F(OutSave, TheReadOnlyAttributeAloneIsCleared) {
    const QString Path = Out / u"a"_s;
    EXPECT_TRUE(frmPrintPreview::TryClearReadOnly(Path));
    WriteFile(Path, "old");
    EXPECT_TRUE(frmPrintPreview::TryClearReadOnly(Path));
    SetReadOnly(Path);
    const auto Changed = FileTime(Path);
    EXPECT_TRUE(frmPrintPreview::TryClearReadOnly(Path));
    EXPECT_FALSE(IsReadOnly(Path));
    EXPECT_EQ("old", ReadFile(Path));
    EXPECT_EQ(Changed, FileTime(Path));
    SetReadOnly(Path);
    SetHostWatcher([](HostStep, const QString& At, qint64&) { throw Fault(u"no"_s, At); });
    EXPECT_FALSE(frmPrintPreview::TryClearReadOnly(Path));
}

TEST_F(OutSave, AFailedSaveTellsWhyAndLeavesTheOldFileAsItWas) {
    for (const char* Name : {"a.pdf", "a.ppd"}) {
        const QString Path = Out / QLatin1String(Name);
        WriteFile(Path, "old");
        SetReadOnly(Path);
        DiskFull();
        const AgreeingBoxes Said;
        SaveAs(QLatin1String(Name));
        EXPECT_TRUE(Said.FaultTold().starts_with("The disk is full.")) << Said.FaultTold();
        SetHostWatcher({});
        EXPECT_EQ("old", ReadFile(Path));
        EXPECT_TRUE(IsReadOnly(Path));
    }
    EXPECT_EQ("a.pdf a.ppd", Listed(Out.Path()));
    EXPECT_EQ(u"", Notice);
}

TEST_F(OutSave, StopLeavesTheOldFile) {
    WriteFile(Out / u"a.pdf"_s, "old");
    ExpectReplaceQuestion(u"a.pdf"_s, BoxAnswer::Yes);
    W->ShowDocument(Pages(10000));
    SlowDisk();
    StopAt("Picture");
    SaveAs(u"a.pdf"_s);
    EXPECT_EQ("old", ReadFile(Out / u"a.pdf"_s));
    EXPECT_EQ("a.pdf", Listed(Out.Path()));
    EXPECT_EQ(u"Stopped; nothing was saved.", Notice);
}

TEST_F(OutSave, WhatWasSavedIsLoadedAndShown) {
    SaveAs(u"a.ppd"_s);
    W->ShowDocument(Pages(1));
    Files.Answer = Out / u"a.ppd"_s;
    Click("cmdLoad");
    EXPECT_EQ(3, W->VSPrinter1().PageCount());
    EXPECT_EQ(u"3", In<QLabel>(*W, "lblTotalPages").text());
}

TEST_F(OutSave, AFileThatCannotBeLoadedIsNamedAndTheShownDocumentStays) {
    const auto Before = W->VSPrinter1().Document();
    const QString Path = Out / u"a.ppd"_s;
    WriteFile(Path, "rubbish");
    for (const QString& Each : {Path, Out / u"none.ppd"_s}) {
        Files.Answer = Each;
        const AgreeingBoxes Said;
        Choose("mnuOpen");
        EXPECT_TRUE(Said.FaultTold().ends_with(Each.toStdString())) << Said.FaultTold();
    }
    EXPECT_EQ(Before, W->VSPrinter1().Document());
    EXPECT_EQ(3, W->VSPrinter1().PageCount());
}

class OutAutoSave : public OutRig {
  protected:
    ~OutAutoSave() override { EXPECT_EQ("", Listed(App.Path())) << "nothing beside the program"; }
};

TEST_F(OutAutoSave, WritesAPdfIntoTheUsersDocumentsWhenTheWindowCloses) {
    W->Settings().AutoSaveName = u"own.pdf"_s;
    Click("cmdExit");
    EXPECT_FALSE(W->IsLoaded());
    EXPECT_EQ(3, tests::PagesIn(Docs / u"own.pdf"_s));
    EXPECT_EQ(Docs.Path(), W->Settings().AutoSavePath);
}

TEST_F(OutAutoSave, GoesIntoTheDirectoryThatTheCallerHasSet) {
    W->Settings().AutoSaveName = u"own.pdf"_s;
    W->Settings().AutoSavePath = Out.Path().chopped(1);
    WriteFile(Out / u"own.pdf"_s, "old");
    SetReadOnly(Out / u"own.pdf"_s);
    W->Unload();
    EXPECT_EQ(3, tests::PagesIn(Out / u"own.pdf"_s));
    EXPECT_EQ(std::string::npos, Listed(Docs.Path()).find("own."));
}

TEST_F(OutAutoSave, IsAPdfWhateverItsNameIs) {
    W->Settings().AutoSaveName = u"own.ppd"_s;
    W->Unload();
    EXPECT_EQ(3, tests::PagesIn(Docs / u"own.ppd"_s));
}

TEST_F(OutAutoSave, NothingIsWrittenWithoutAName) {
    W->Settings().AutoSavePath = Out.Path();
    W->Unload();
    EXPECT_EQ("", Listed(Out.Path()));
    EXPECT_EQ(std::string::npos, Listed(Docs.Path()).find(".p"));
}

TEST_F(OutAutoSave, AFaultKeepsNobodyFromClosing) {
    W->Settings().AutoSaveName = u"own.pdf"_s;
    W->Settings().AutoSavePath = Out / u"nowhere"_s;
    EXPECT_TRUE(W->Unload());
    EXPECT_EQ(0, Boxes.ShownCount());
}

TEST_F(OutAutoSave, AlsoFollowsAPrint) {
    W->Settings().AutoSaveName = u"own.pdf"_s;
    Click("cmdPrint");
    EXPECT_FALSE(W->IsLoaded());
    EXPECT_EQ(3, tests::PagesIn(Docs / u"own.pdf"_s));
}

}  // namespace
}  // namespace neb
