// Captions of every kind in the slide manager: what is typed is kept, to the next start and beyond
// as far as a record can hold it, and slides are told apart by more than their captions.
#include <QClipboard>
#include <QInputMethodEvent>

#include "SlideRig.h"
#include "controls/fields/CaptionCount.h"
#include "support/modDEValidation.h"
#include "support/modText.h"

namespace neb {
namespace {

using namespace harness;

class SlideDBMCaption : public SlideRig {};

TEST_F(SlideDBMCaption, CaptionsOfEveryKindComeThrough) {
    OpenAlbum();
    MakePicture(Pics / u"a.png"_s);
    for (const QString& Words :
         {u"€‚ƒ„…†‡ˆ‰Š‹Œ Ž‘’“”•–—˜™š›œ žŸ ¡ÿ"_s, u"日本 Ελλάς"_s, u"Мир 😀"_s, u"same"_s}) {
        Push("cmdNew");
        PickPicture(Pics / u"a.png"_s);
        Caption().setText(Words);
        Push("cmdSave");
        EXPECT_EQ(Words.toStdString(), Slide(Chosen()).SlideText.toStdString());
        EXPECT_EQ(Words.toStdString(), Text());
    }
    EXPECT_EQ(4u, Album().Slides.size());
}

// The quotes that are straight are turned on the way, as in every caption.
TEST_F(SlideDBMCaption, EveryCharacterThatARecordHoldsIsThereAtTheNextStart) {
    QStringList Captions{u"€‚ƒ„…†‡ˆ‰Š‹ŒŽ‘’“”•–—˜™š›œžŸ"_s};
    for (const auto& [First, Last] : {std::pair{0x21, 0x60}, {0x61, 0x7E}, {0xA0, 0xFF}}) {
        QString Words;
        for (int Code = First; Code <= Last; ++Code) Words += QChar(Code);
        for (int At = 0; At < Words.size(); At += 60) Captions << u"x"_s + Words.mid(At, 60) + u'x';
    }
    OpenAlbum();
    MakePicture(Pics / u"a.png"_s);
    for (const QString& Words : Captions) {
        Push("cmdNew");
        PickPicture(Pics / u"a.png"_s);
        Caption().setText(Words);
        Push("cmdSave");
    }
    Push("cmdClose");
    Engine.FinalizeDB();
    Engine.InitializeDB();
    ASSERT_EQ(size_t(Captions.size()), Album().Slides.size());
    for (int I = 0; I < Captions.size(); ++I) {
        OpenSlide(I + 1);
        EXPECT_EQ(ConvertQuotes(Captions[I]).toStdString(), Text());
        Push("cmdClose");
    }
}

TEST_F(SlideDBMCaption, CharactersThatNoRecordHoldsAreThereAfterTheEndAsWell) {
    OpenAlbum();
    PickPicture(MakePicture(Pics / u"a.png"_s));
    Caption().insert(u"Мир "_s);
    Caption().insert(u"😀"_s);
    Push("cmdSave");
    EXPECT_EQ(u"Мир 😀"_s.toStdString(), Text());
    EXPECT_EQ(u"000001 Мир 😀"_s, Box("cboSlides").currentText());
    Push("cmdClose");
    Engine.FinalizeDB();
    Engine.InitializeDB();
    OpenSlide(1);
    EXPECT_EQ(u"Мир 😀"_s.toStdString(), Text());
    EXPECT_FALSE(ShowsMessage());
}

TEST_F(SlideDBMCaption, ALongCaptionStaysWholeAndIsCountedAtItsField) {
    OpenAlbum();
    PickPicture(MakePicture(Pics / u"a.png"_s));
    const QString Long = u"Лето на даче, \"яблоки\" и самовар 🍎 "_s.repeated(6).trimmed();
    Caption().setFocus();
    QInputMethodEvent Typed;
    Typed.setCommitString(Long);
    QApplication::sendEvent(&Caption(), &Typed);
    const QLabel& Count = In<QLabel>(Caption(), "lblCaptionCount");
    EXPECT_TRUE(Count.isVisible());
    EXPECT_EQ(CaptionCount::About(Caption().text()).toStdString(), Count.toolTip().toStdString());
    Push("cmdSave");
    EXPECT_EQ(ConvertQuotes(Long).toStdString(), Text());
    EXPECT_EQ(ConvertQuotes(Long).toStdString(), Slide(1).SlideText.toStdString());
    Caption().clear();
    EXPECT_FALSE(Count.isVisible());
    EXPECT_EQ("The text under the slide", Caption().toolTip().toStdString());
}

TEST_F(SlideDBMCaption, WhatIsLongerThanAnyCaptionIsCutWhereTheUserSeesIt) {
    OpenAlbum();
    PickPicture(MakePicture(Pics / u"a.png"_s));
    QGuiApplication::clipboard()->setText(QString(MaxCaption - 1, u'ﬁ') + u"🌹"_s);
    Caption().setFocus();
    Caption().paste();
    Push("cmdSave");
    EXPECT_TRUE(Caption().text() == QString(MaxCaption - 1, u'ﬁ')) << "no half of a rose";
    EXPECT_TRUE(Caption().text() == Slide(1).SlideText);
}

TEST_F(SlideDBMCaption, TwoSlidesOfTheSameCaptionStayTwo) {
    const auto One = AddSlide(u"same"_s, 40, 30), Two = AddSlide(u"same"_s, 50, 20);
    OpenSlide(Two);
    EXPECT_EQ("000002 same", Box("cboSlides").currentText().toStdString());
    EXPECT_EQ(QSize(50, 20), Shown().size());
    Push("cmdRotate1");
    Push("cmdSave");
    EXPECT_EQ(Two, Chosen());
    EXPECT_EQ(QSize(20, 50), Shown().size());
    Choose("cboSlides", One);
    EXPECT_EQ(QSize(40, 30), Shown().size());
    Push("cmdNext");
    EXPECT_EQ(Two, Chosen());
}

}  // namespace
}  // namespace neb
