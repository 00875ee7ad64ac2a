// The print preview on a real print service: what comes out of the printer, and what the window
// says when the printer does not print. The window stands in a copy of this program, which knows no
// other service than the test's own.
#include <signal.h>
#include <sys/resource.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTimer>
#include <iostream>

#include "PrivateCups.h"
#include "harness/ChildRole.h"
#include "printing/PrintRig.h"
#include "printing/SheetComposer.h"
#include "program/desktop/DesktopPrinters.h"
#include "windows/printing/frmPrintPreview.h"
#include "windows/transfer/frmTransferProgress.h"

namespace neb {
namespace {

using namespace harness;

// An album of nine slides, each of a colour of its own, four to a page.
constexpr Qt::GlobalColor Colours[] = {Qt::red,     Qt::green,    Qt::blue,
                                       Qt::cyan,    Qt::magenta,  Qt::black,
                                       Qt::darkRed, Qt::darkBlue, Qt::darkCyan};

QString SlideFile(const QString& Dir, std::size_t Number) {
    return Dir + u"/slide%1.jpg"_s.arg(Number);
}

void MakeSlides(const QString& Dir, QSize Size) {
    for (std::size_t I = 0; I < std::size(Colours); ++I)
        tests::SaveJpeg(SlideFile(Dir, I), tests::Plain(Colours[I], Size));
}

std::shared_ptr<PrintDocument> AlbumIn(const QString& Dir, PageTurn Turn, QSizeF Paper) {
    const auto Made = std::make_shared<PrintDocument>(PrintPicture{SlideFile(Dir, 0), {}}, Paper);
    Made->SetOrientation(Turn);
    SheetContents Contents;
    for (std::size_t I = 0; I < std::size(Colours); ++I) Contents.Paths << SlideFile(Dir, I);
    GridWish Wish;
    Wish.Turn = Turn;
    Wish.PerRow = 2;
    Wish.RowsPerPage = 2;
    ComposeSheets(*Made, *GridFor(Wish), Contents);
    return Made;
}

// A picture an inch high and wide, so far from the page's left edge.
std::shared_ptr<PrintDocument> PictureAt(const QString& Dir, PageTurn Turn, double Left) {
    const auto Made =
        std::make_shared<PrintDocument>(PrintPicture{SlideFile(Dir, 0), {}}, LetterPaper);
    Made->SetOrientation(Turn);
    Made->StartDoc();
    tests::Place(*Made, {SlideFile(Dir, 0), {}}, {Left, 1, 1, 1});
    Made->EndDoc();
    return Made;
}

// --- the copy ---

QString Asked(const char* Name) {
    return qEnvironmentVariable(Name);
}

// Notes every box in a line; agrees.
class SaidBoxes : public MessageBoxes {
    BoxAnswer Show(const BoxRequest& Request) override {
        std::cout << Request.Title.toStdString() << ": "
                  << QString(Request.Text).replace(u'\n', u' ').toStdString() << std::endl;
        return Request.Buttons == BoxButtons::Ok ? BoxAnswer::Ok : BoxAnswer::Yes;
    }
};

// The test does something meanwhile.
void WaitForTest() {
    std::string Word;
    std::cout << "ready" << std::endl;
    std::getline(std::cin, Word);
}

template <class Thing>
Thing* Find(const char* Name) {
    for (QWidget* Each : QApplication::topLevelWidgets())
        if (auto* Found = Each->findChild<Thing*>(QString::fromLatin1(Name));
            Found && Each->isVisible())
            return Found;
    return nullptr;
}

// The system's dialog asks before it takes a file that is there.
void AgreeToReplace() {
    auto* Question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!Question) return QTimer::singleShot(20, &AgreeToReplace);
    Question->button(QMessageBox::Yes)->click();
}

// A disk on which no file has room for more bytes than that.
void LimitFiles(rlim_t Bytes) {
    ::signal(SIGXFSZ, SIG_IGN);
    const rlimit Room{Bytes, Bytes};
    ::setrlimit(RLIMIT_FSIZE, &Room);
}

// A user at the system's own dialog.
void AnswerDialog() {
    auto* Dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
    if (!Dialog) return QTimer::singleShot(20, &AnswerDialog);
    const QString Answer = Asked("NEB_DIALOG");
    if (Answer == u"cancel") return Dialog->reject();
    if (Answer == u"pages") {
        Find<QRadioButton>("printRange")->click();
        Find<QSpinBox>("from")->setValue(2);
        Find<QSpinBox>("to")->setValue(3);
        Find<QSpinBox>("copies")->setValue(2);
    }
    if (Answer == u"list") {
        const bool IsSound = Find<QRadioButton>("pagesRadioButton")->isHidden() &&
                             Find<QSpinBox>("from")->value() == 1 &&
                             Find<QSpinBox>("to")->value() == 3;
        if (!IsSound) return Dialog->reject();
    }
    if (Answer == u"duplex") Find<QRadioButton>("duplexLong")->click();
    if (Answer == u"reverse") Find<QCheckBox>("reverse")->click();
    if (Answer.startsWith(u'/')) {
        auto* Printers = Find<QComboBox>("printers");
        Printers->setCurrentIndex(Printers->findText(u"Print to File (PDF)"_s));
        Find<QLineEdit>("filename")->setText(Answer);
        if (FileExists(Answer)) AgreeToReplace();
    }
    Dialog->accept();
}

// The printing is under way.
bool IsPrinting() {
    const auto* Line = Find<QLabel>("lblProgress");
    return Line && Line->text().startsWith(u"Page"_s);
}

void PressStopOnce() {
    if (!IsPrinting()) return QTimer::singleShot(2, &PressStopOnce);
    Find<QPushButton>("cmdStop")->click();
}

void WaitForTestWhilePrinting() {
    if (!IsPrinting()) return QTimer::singleShot(2, &WaitForTestWhilePrinting);
    WaitForTest();
}

int PrintByPreview() {
    SaidBoxes Boxes;
    DesktopPrinters Printers;
    TheServices().Boxes = &Boxes;
    TheServices().Printers = &Printers;
    const auto Window = NewForm<frmPrintPreview>();
    const PageTurn Turn =
        Asked("NEB_TURN") == u"landscape" ? PageTurn::Landscape : PageTurn::Portrait;
    const QString Left = Asked("NEB_LEFT");
    Window->ShowDocument(Left.isEmpty() ? AlbumIn(Asked("NEB_ALBUM"), Turn, LetterPaper)
                                        : PictureAt(Asked("NEB_ALBUM"), Turn, Left.toDouble()));
    Window->setWindowTitle(u"Garden"_s);
    Window->ShowModeless();
    if (!Asked("NEB_DEVICE").isEmpty()) Window->SetDefaultPrinter(Asked("NEB_DEVICE"));
    if (!Asked("NEB_ROOM").isEmpty()) LimitFiles(Asked("NEB_ROOM").toUInt());
    const QString When = Asked("NEB_WHEN");
    if (When == u"before") WaitForTest();
    if (When == u"while") WaitForTestWhilePrinting();
    if (When == u"stop") PressStopOnce();
    if (!Asked("NEB_DIALOG").isEmpty()) {
        AnswerDialog();
        Window->findChild<QAction*>(u"mnuPrint"_s)->trigger();
    } else {
        QTest::mouseClick(Window->findChild<QPushButton*>(u"cmdPrint"_s), Qt::LeftButton);
    }
    std::cout << (Window->Printed() ? "printed" : "not printed")
              << (Window->IsLoaded() ? ", open" : ", closed") << std::endl;
    Window->Unload();
    TheServices().Boxes = nullptr;
    TheServices().Printers = nullptr;
    return 0;
}

const ChildRole Printing("print-by-preview", &PrintByPreview);

// --- the test ---

class RealPrint : public ::testing::Test {
  protected:
    void SetUp() override {
        if (!PrivateCups::IsInstalled()) GTEST_SKIP() << "no print service is installed";
        Cups.emplace();
        MakeSlides(Album.Path(), {300, 200});
    }
    using Wishes = std::map<QString, QString>;
    // What the window said, a line each; Meanwhile runs when the copy waits for it.
    std::string Print(const Wishes& Given = {}, const std::function<void()>& Meanwhile = {}) {
        QProcess Copy;
        QProcessEnvironment Around = QProcessEnvironment::systemEnvironment();
        Around.insert(u"CUPS_SERVER"_s, Cups->Server());
        Around.insert(u"NEB_ALBUM"_s, Album.Path());
        for (const auto& [Name, Value] : Given) Around.insert(Name, Value);
        Copy.setProcessEnvironment(Around);
        Copy.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        Copy.start(QCoreApplication::applicationFilePath(), {u"--role"_s, u"print-by-preview"_s});
        QByteArray Said;
        while (Copy.waitForReadyRead(40000)) {
            Said += Copy.readAllStandardOutput();
            if (!Said.contains("ready\n")) continue;
            Said.replace("ready\n", "");
            if (Meanwhile) Meanwhile();
            Copy.write("go on\n");
        }
        Copy.waitForFinished(1000);
        EXPECT_EQ(QProcess::NormalExit, Copy.exitStatus());
        EXPECT_EQ(0, Copy.exitCode());
        return Said.trimmed().toStdString();
    }
    // Every slide of the album at its place on the paper.
    void ExpectAlbum(const QString& Pdf, PageTurn Turn) {
        const auto Document = AlbumIn(Album.Path(), Turn, LetterPaper);
        ASSERT_EQ(3, Document->PageCount());
        ASSERT_EQ(3, tests::PagesIn(Pdf));
        std::size_t Slide = 0;
        for (int Page = 1; Page <= 3; ++Page) {
            QImage Shown = tests::PageIn(Pdf, Page);
            // a sheet goes through the printer upright, whatever is on it
            if (Turn == PageTurn::Landscape) Shown = Shown.transformed(QTransform().rotate(-90));
            for (const PlacedPicture& Each : Document->PlacesOn(Page))
                tests::ExpectPlace(Shown, Colours[Slide++], Each.Place);
        }
        EXPECT_EQ(std::size(Colours), Slide);
    }
    bool AnythingPrinted() {
        return !Cups->Jobs(0).isEmpty() || FileExists(Cups->Paper(u"First"_s));
    }

    TempFolder Album;
    std::optional<PrivateCups> Cups;
};

TEST_F(RealPrint, AnAlbumComesOutOfTheDefaultPrinterWithItsPicturesInPlace) {
    Cups->AddPrinter(u"First"_s);
    Cups->AddPrinter(u"Second"_s);
    EXPECT_EQ("printed, closed", Print());
    EXPECT_EQ("First|3|Garden|Letter|one-sided", Cups->Jobs().join(u'\n').toStdString());
    ExpectAlbum(Cups->Paper(u"First"_s), PageTurn::Portrait);
}

TEST_F(RealPrint, ALandscapeAlbumComesOutTurned) {
    Cups->AddPrinter(u"First"_s);
    EXPECT_EQ("printed, closed", Print({{u"NEB_TURN"_s, u"landscape"_s}}));
    EXPECT_EQ(1, Cups->Jobs().size());
    ExpectAlbum(Cups->Paper(u"First"_s), PageTurn::Landscape);
}

TEST_F(RealPrint, AnotherPrinterIsTakenWhenItIsSet) {
    Cups->AddPrinter(u"First"_s);
    Cups->AddPrinter(u"Second"_s);
    EXPECT_EQ("printed, closed", Print({{u"NEB_DEVICE"_s, u"Second"_s}}));
    EXPECT_TRUE(Cups->Jobs().join(u'\n').startsWith(u"Second|3|"_s));
    EXPECT_FALSE(FileExists(Cups->Paper(u"First"_s)));
}

TEST_F(RealPrint, WithoutAPrinterItCannotAccessOne) {
    EXPECT_EQ("Operation Failed: Could not access printer.\nnot printed, open", Print());
}

TEST_F(RealPrint, AStoppedPrinterDoesNotRespond) {
    Cups->AddPrinter(u"First"_s);
    EXPECT_EQ(0, Cups->Admin(u"cupsdisable"_s, {u"First"_s}));
    EXPECT_EQ("Operation Failed: The Printer is not responding.\nnot printed, open", Print());
    EXPECT_FALSE(AnythingPrinted());
}

TEST_F(RealPrint, APrinterThatTakesNoJobsDoesNotRespond) {
    Cups->AddPrinter(u"First"_s);
    EXPECT_EQ(0, Cups->Admin(u"cupsreject"_s, {u"First"_s}));
    EXPECT_EQ("Operation Failed: The Printer is not responding.\nnot printed, open", Print());
    EXPECT_FALSE(AnythingPrinted());
}

TEST_F(RealPrint, ADeadServiceOffersNoPrinter) {
    Cups->AddPrinter(u"First"_s);
    Cups->End();
    EXPECT_EQ("Operation Failed: Could not access printer.\nnot printed, open", Print());
}

TEST_F(RealPrint, APrinterWhoseServiceDiesDoesNotRespond) {
    Cups->AddPrinter(u"First"_s);
    EXPECT_EQ("Operation Failed: The Printer is not responding.\nnot printed, open",
              Print({{u"NEB_DEVICE"_s, u"First"_s}, {u"NEB_WHEN"_s, u"before"_s}},
                    [this] { Cups->End(); }));
}

TEST_F(RealPrint, AJobThatTheServiceDoesNotTakeAnyMoreIsNotCalledPrinted) {
    Cups->AddPrinter(u"First"_s);
    MakeSlides(Album.Path(), {3000, 2000});
    EXPECT_EQ("Operation Failed: The Printer is not responding.\nnot printed, open",
              Print({{u"NEB_WHEN"_s, u"while"_s}},
                    [this] { Cups->Admin(u"cupsreject"_s, {u"First"_s}); }));
    EXPECT_FALSE(AnythingPrinted());
}

TEST_F(RealPrint, AServiceThatDiesMeanwhileIsNotCalledPrintedEither) {
    Cups->AddPrinter(u"First"_s);
    MakeSlides(Album.Path(), {3000, 2000});
    EXPECT_EQ("Operation Failed: The Printer is not responding.\nnot printed, open",
              Print({{u"NEB_WHEN"_s, u"while"_s}}, [this] { Cups->End(); }));
}

TEST_F(RealPrint, WhatIsStoppedHalfWayNeverReachesThePrinter) {
    Cups->AddPrinter(u"First"_s);
    MakeSlides(Album.Path(), {3000, 2000});
    EXPECT_EQ(
        "Abort Confirmation: Are you sure you want to Abort the current process?\n"
        "Operation Failed: The User Canceled the print job.\nnot printed, open",
        Print({{u"NEB_WHEN"_s, u"stop"_s}}));
    EXPECT_FALSE(AnythingPrinted());
}

TEST_F(RealPrint, ThePagesAndCopiesOfTheSystemsDialogCount) {
    Cups->AddPrinter(u"First"_s);
    EXPECT_EQ("printed, closed", Print({{u"NEB_DIALOG"_s, u"pages"_s}}));
    EXPECT_EQ("First|4|Garden|Letter|one-sided", Cups->Jobs().join(u'\n').toStdString());
    const QImage First = tests::PageIn(Cups->Paper(u"First"_s), 1);
    EXPECT_TRUE(tests::WhereIs(First, Colours[0]).isEmpty());
    EXPECT_FALSE(tests::WhereIs(First, Colours[4]).isEmpty());
}

TEST_F(RealPrint, TheSystemsDialogOffersAllPagesAndNoListThatItWouldRefuse) {
    Cups->AddPrinter(u"First"_s);
    EXPECT_EQ("printed, closed", Print({{u"NEB_DIALOG"_s, u"list"_s}}));
    EXPECT_EQ("First|3|Garden|Letter|one-sided", Cups->Jobs().join(u'\n').toStdString());
}

TEST_F(RealPrint, TheSidesOfTheSystemsDialogCount) {
    Cups->AddPrinter(u"First"_s);
    EXPECT_EQ("printed, closed", Print({{u"NEB_DIALOG"_s, u"duplex"_s}}));
    EXPECT_EQ("First|3|Garden|Letter|two-sided-long-edge", Cups->Jobs().join(u'\n').toStdString());
}

TEST_F(RealPrint, TheOrderOfTheSystemsDialogCounts) {
    Cups->AddPrinter(u"First"_s);
    EXPECT_EQ("printed, closed", Print({{u"NEB_DIALOG"_s, u"reverse"_s}}));
    EXPECT_EQ(1, Cups->Jobs().size());
    const QImage First = tests::PageIn(Cups->Paper(u"First"_s), 1);
    EXPECT_FALSE(tests::WhereIs(First, Colours[8]).isEmpty());
}

TEST_F(RealPrint, AFileIsAPrinterOfTheSystemsDialogToo) {
    Cups->AddPrinter(u"First"_s);
    const QString Pdf = Album / u"out.pdf"_s;
    EXPECT_EQ("printed, closed", Print({{u"NEB_DIALOG"_s, Pdf}}));
    ExpectAlbum(Pdf, PageTurn::Portrait);
    EXPECT_FALSE(AnythingPrinted());
    MakeSlides(Album.Path(), {3000, 2000});
    DeleteFile(Pdf);
    const std::string Said = Print({{u"NEB_DIALOG"_s, Pdf}, {u"NEB_WHEN"_s, u"stop"_s}});
    EXPECT_TRUE(Said.ends_with("Canceled the print job.\nnot printed, open")) << Said;
    EXPECT_FALSE(FileExists(Pdf));
}

TEST_F(RealPrint, AFileThatIsPrintedOverStaysAsItWasUntilTheNewOneIsWhole) {
    Cups->AddPrinter(u"First"_s);
    const QString Pdf = Album / u"out.pdf"_s;
    WriteFile(Pdf, "old");
    const std::string Full = Print({{u"NEB_DIALOG"_s, Pdf}, {u"NEB_ROOM"_s, u"5000"_s}});
    EXPECT_EQ("Operation Failed: Could not access printer.\nnot printed, open", Full);
    EXPECT_EQ("old", ReadFile(Pdf));
    EXPECT_EQ("printed, closed", Print({{u"NEB_DIALOG"_s, Pdf}}));
    ExpectAlbum(Pdf, PageTurn::Portrait);
    MakeSlides(Album.Path(), {3000, 2000});
    WriteFile(Pdf, "old");
    const std::string Said = Print({{u"NEB_DIALOG"_s, Pdf}, {u"NEB_WHEN"_s, u"stop"_s}});
    EXPECT_TRUE(Said.ends_with("Canceled the print job.\nnot printed, open")) << Said;
    EXPECT_EQ("old", ReadFile(Pdf));
    EXPECT_EQ(1, ListMask(Pdf + u'*').size()) << "nothing is left beside it";
}

TEST_F(RealPrint, CancellingTheSystemsDialogIsTold) {
    Cups->AddPrinter(u"First"_s);
    EXPECT_EQ("Operation Failed: The User Canceled the print job.\nnot printed, open",
              Print({{u"NEB_DIALOG"_s, u"cancel"_s}}));
    EXPECT_FALSE(AnythingPrinted());
}

TEST_F(RealPrint, PicturesThatThePaperCannotShowAreAskedAbout) {
    Cups->AddPrinter(u"First"_s);
    EXPECT_EQ(0, Cups->Admin(u"lpadmin"_s, {u"-p"_s, u"First"_s, u"-o"_s, u"PageSize=A6"_s}));
    const std::string Said = Print();
    EXPECT_TRUE(Said.starts_with("Print Document: The paper, 4.1")) << Said;
    EXPECT_TRUE(Said.ends_with("printed, closed")) << Said;
}

// Which way a landscape page goes through is the printer's business; it leaves a quarter of an inch
// at either side, and half an inch at the end.
TEST_F(RealPrint, PicturesNearerToTheEdgeThanThePrinterReachesAreAskedAbout) {
    Cups->AddPrinter(u"First"_s);
    const std::string Question =
        "Print Document: The printer cannot reach so near to the edge of the paper as pictures lie "
        "on page 1: they will be cut off there.  Print all the same?\nprinted, closed";
    const QString Landscape = u"landscape"_s, Portrait = u"portrait"_s;
    EXPECT_EQ(Question, Print({{u"NEB_LEFT"_s, u"0.2"_s}, {u"NEB_TURN"_s, Portrait}}));
    EXPECT_EQ("printed, closed", Print({{u"NEB_LEFT"_s, u"0.3"_s}, {u"NEB_TURN"_s, Portrait}}));
    EXPECT_EQ(Question, Print({{u"NEB_LEFT"_s, u"0.4"_s}, {u"NEB_TURN"_s, Landscape}}));
    EXPECT_EQ("printed, closed", Print({{u"NEB_LEFT"_s, u"0.6"_s}, {u"NEB_TURN"_s, Landscape}}));
}

TEST_F(RealPrint, PaperThatIsOutIsAskedAbout) {
    Cups->AddPrinter(u"First"_s);
    EXPECT_EQ(0, Cups->Admin(u"lpadmin"_s, {u"-p"_s, u"First"_s, u"-o"_s,
                                            u"printer-state-reasons=media-empty-warning"_s}));
    EXPECT_EQ(
        "Print Document: There is no paper in the printer.  Print all the same?\n"
        "printed, closed",
        Print());
}

}  // namespace
}  // namespace neb
