// Printing from the preview: the order of its steps, what it says when it fails, and what becomes
// of the window.
#include <set>

#include "OutRig.h"

namespace neb {
namespace {

using namespace harness;

class OutPrint : public OutRig {
  protected:
    // Prints, and leaves the window open.
    void PrintAndStay() {
        const auto Stays = QObject::connect(W.get(), &frmPrintPreview::BeforePrint, W.get(),
                                            [this] { W->Settings().UnloadAfterPrint = false; });
        Click("cmdPrint");
        QObject::disconnect(Stays);
    }
    void ExpectFailure(const QString& Text) {
        Boxes.Expect(Text, OperationFailed, BoxIcon::Critical, BoxAnswer::Ok);
    }
};

TEST_F(OutPrint, TheButtonPrintsAllPagesWithoutADialogAndClosesTheWindow) {
    Click("cmdPrint");
    ASSERT_EQ(1u, Printers.Wishes.size());
    EXPECT_FALSE(Printers.Wishes[0].ShowDialog);
    EXPECT_EQ(u"", Printers.Wishes[0].Device);
    EXPECT_EQ(W->windowTitle().toStdString(), Printers.Wishes[0].Title.toStdString());
    EXPECT_EQ(3, Printers.Pages);
    EXPECT_TRUE(W->Printed());
    EXPECT_TRUE(W->Settings().UnloadAfterPrint);
    EXPECT_FALSE(W->IsLoaded());
}

TEST_F(OutPrint, TheWindowAndTheJobBearTheNameOfTheDocument) {
    const auto Named = std::make_shared<PrintDocument>(*Pages(2));
    Named->SetTitle(u"Garden"_s);
    W->ShowDocument(Named);
    EXPECT_EQ("Print Preview - Garden", W->windowTitle().toStdString());
    Click("cmdPrint");
    EXPECT_EQ("Garden", Printers.Wishes.at(0).Title.toStdString());
}

TEST_F(OutPrint, SaysThatItIsDoneWhereTheWindowHasGone) {
    Click("cmdPrint");
    EXPECT_EQ(u"The document was handed over for printing.", Notice);
}

TEST_F(OutPrint, TheMenuEntryShowsTheDialogAndClosesTheWindowAsWell) {
    Choose("mnuPrint");
    ASSERT_EQ(1u, Printers.Wishes.size());
    EXPECT_TRUE(Printers.Wishes[0].ShowDialog);
    EXPECT_TRUE(W->Printed());
    EXPECT_FALSE(W->IsLoaded());
}

TEST_F(OutPrint, GoesToThePrinterThatTheCallerHasSet) {
    W->SetDefaultPrinter(u"Ink"_s);
    EXPECT_EQ(u"Ink", W->DefaultPrinter());
    Click("cmdPrint");
    EXPECT_EQ(u"Ink", Printers.Wishes.at(0).Device);
}

TEST_F(OutPrint, APrinterThatIsNotThereLeavesTheOneBeforeAndNothingIsSaid) {
    W->SetDefaultPrinter(u"Nowhere"_s);
    EXPECT_EQ(u"", W->DefaultPrinter());
    W->SetDefaultPrinter(u"Laser"_s);
    W->SetDefaultPrinter(u"Nowhere"_s);
    EXPECT_EQ(u"Laser", W->DefaultPrinter());
}

TEST_F(OutPrint, AHandlerOfTheEventBeforeCanPreventIt) {
    int After = 0;
    QObject::connect(W.get(), &frmPrintPreview::BeforePrint, [](bool& Cancel) { Cancel = true; });
    QObject::connect(W.get(), &frmPrintPreview::AfterPrint, [&After] { ++After; });
    Click("cmdPrint");
    EXPECT_TRUE(Printers.Wishes.empty());
    EXPECT_EQ(0, After);
    EXPECT_FALSE(W->Printed());
    EXPECT_TRUE(W->IsLoaded());
    EXPECT_TRUE(W->Settings().UnloadAfterPrint);
}

TEST_F(OutPrint, TheEventAfterComesWhenTheWindowHasGone) {
    std::vector<bool> Loaded;
    QObject::connect(W.get(), &frmPrintPreview::AfterPrint,
                     [&] { Loaded.push_back(W->IsLoaded()); });
    Click("cmdPrint");
    EXPECT_EQ(std::vector<bool>{false}, Loaded);
}

TEST_F(OutPrint, EachFailureIsToldInItsBoxAndTheWindowStaysOpen) {
    const std::pair<PrintError, QString> Table[] = {
        {PrintError::NoAccess, u"Could not access printer."_s},
        {PrintError::NotResponding, u"The Printer is not responding."_s},
        {PrintError::Cancelled, u"The User Canceled the print job."_s}};
    int After = 0;
    QObject::connect(W.get(), &frmPrintPreview::AfterPrint, [&After] { ++After; });
    for (const auto& [Error, Text] : Table)
        for (PrintError* When : {&Printers.OnChoose, &Printers.OnPrint}) {
            Printers.OnChoose = Printers.OnPrint = PrintError::None;
            PrintAndStay();
            EXPECT_TRUE(W->Printed());
            *When = Error;
            ExpectFailure(Text);
            Click("cmdPrint");
            EXPECT_FALSE(W->Printed()) << Text.toStdString();
            EXPECT_TRUE(W->IsLoaded());
        }
    EXPECT_EQ(6, After);
}

TEST_F(OutPrint, AFailureThatNobodyHandledIsTold) {
    PrintAndStay();
    Printers.OnPrint = PrintError::Unhandled;
    Boxes.Expect(u"KIP you are supposed to have handled this error!"_s, u""_s, BoxIcon::Plain,
                 BoxAnswer::Ok);
    Click("cmdPrint");
    EXPECT_TRUE(W->Printed());
    EXPECT_TRUE(W->IsLoaded());
}

TEST_F(OutPrint, AnyOtherFailureIsIgnored) {
    PrintAndStay();
    for (const int Code : {1, 2, 6, 99}) {
        Printers.OnPrint = static_cast<PrintError>(Code);
        Click("cmdPrint");
        EXPECT_TRUE(W->Printed()) << Code;
        EXPECT_TRUE(W->IsLoaded());
    }
    EXPECT_EQ(0, Boxes.ShownCount());
}

TEST_F(OutPrint, WithoutAPrinterTheDocumentIsOneKeyFromAPdf) {
    Printers.OnChoose = PrintError::NoAccess;
    ExpectFailure(u"Could not access printer."_s);
    Click("cmdPrint");
    EXPECT_TRUE(In<QPushButton>(*W, "cmdSave").hasFocus());
    EXPECT_EQ(u"Save writes the pages to a PDF instead.", In<QLabel>(*W, "lblNotice").text());
    Files.Answer = Out / u"a.pdf"_s;
    QTest::keyClick(W->focusWidget(), Qt::Key_Space);
    EXPECT_EQ(3, tests::PagesIn(Out / u"a.pdf"_s));
}

TEST_F(OutPrint, WithoutAnyServiceForPrintersItSaysSo) {
    TheServices().Printers = nullptr;
    ExpectFailure(u"Could not access printer."_s);
    Click("cmdPrint");
    W->SetDefaultPrinter(u"Ink"_s);
    TheServices().Printers = &Printers;
    EXPECT_EQ(u"", W->DefaultPrinter());
}

TEST_F(OutPrint, WhatThePrinterCannotDoIsAskedBeforePaperIsSpent) {
    PrintAndStay();
    Printers.Pages = 0;
    Printers.Warned = {u"One."_s, u"Two."_s};
    Boxes.Expect(u"One.\nTwo.\n\nPrint all the same?"_s, u"Print Document"_s, BoxIcon::Question,
                 BoxAnswer::No);
    Click("cmdPrint");
    EXPECT_EQ(BoxAnswer::No, Boxes.Last().Default);
    EXPECT_EQ(0, Printers.Pages);
    EXPECT_FALSE(W->Printed());
    EXPECT_TRUE(W->IsLoaded());
    Boxes.Expect(u"One.\nTwo.\n\nPrint all the same?"_s, BoxAnswer::Yes);
    Click("cmdPrint");
    EXPECT_EQ(3, Printers.Pages);
    EXPECT_TRUE(W->Printed());
}

TEST_F(OutPrint, TellsWhichPageItIsAtAndTheWindowLives) {
    Printers.PageTime = 600;
    std::set<std::string> Lines;
    QString Title;
    Heartbeat Beats([&] {
        if (!Bar()) return;
        Title = Bar()->windowTitle();
        Lines.insert(BarText());
    });
    Click("cmdPrint");
    EXPECT_EQ("Printing ...", Title.toStdString());
    for (const char* Line : {"Page 1 of 3", "Page 2 of 3", "Page 3 of 3"})
        EXPECT_TRUE(Lines.contains(Line)) << Line;
    EXPECT_LT(Beats.LongestStandstill(), 100);
}

TEST_F(OutPrint, StopEndsItAsTheUsersOwnWish) {
    Printers.PageTime = 200;
    StopAt("Page 2 of 3");
    ExpectFailure(u"The User Canceled the print job."_s);
    Click("cmdPrint");
    EXPECT_LT(Printers.Pages, 3);
    EXPECT_FALSE(W->Printed());
    EXPECT_TRUE(W->IsLoaded());
}

TEST_F(OutPrint, TheWindowDoesNotCloseAndBeginsNothingElseMeanwhile) {
    Printers.PageTime = 100;
    int Refused = 0;
    SetDoEventsHook([&] {
        if (!Bar()) return;
        Refused += W->Unload() ? 0 : 1;
        In<QAction>(*W, "mnuMail").trigger();
        In<QAction>(*W, "mnuSave").trigger();
        SetDoEventsHook({});
    });
    Click("cmdPrint");
    EXPECT_EQ(1, Refused);
    EXPECT_TRUE(Files.Asked.isEmpty());
    EXPECT_TRUE(W->Printed());
}

TEST_F(OutPrint, ThePreviewAnswersWhetherItWasPrinted) {
    const auto Shown = NewForm<frmPrintPreview>();
    Shown->ShowDocument(Pages(1));
    WhenOpen<frmPrintPreview>([&](frmPrintPreview&) { Press(*Shown, "cmdPrint"); },
                              [&] { return Shown->isVisible(); });
    EXPECT_TRUE(Shown->ShowPreview());
    const auto Left = NewForm<frmPrintPreview>();
    Left->ShowDocument(Pages(1));
    WhenOpen<frmPrintPreview>([&](frmPrintPreview&) { Press(*Left, "cmdExit"); },
                              [&] { return Left->isVisible(); });
    EXPECT_FALSE(Left->ShowPreview());
}

}  // namespace
}  // namespace neb
