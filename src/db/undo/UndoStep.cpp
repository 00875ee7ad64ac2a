#include "db/undo/UndoStep.h"

#include <algorithm>
#include <functional>

#include "db/clsDBEngine.h"
#include "support/Texts.h"
#include "support/modCharacters.h"

namespace neb {
namespace {

constexpr char SlideChanged[] = QT_TR_NOOP("The slide has been changed since.");
constexpr char ShowChanged[] = QT_TR_NOOP("The slide show has been changed since.");
constexpr char AlbumGone[] = QT_TR_NOOP("Its album is not there any more.");
constexpr qsizetype MostInMenu = 40, MostInName = 80;

QString Quoted(const QString& Verb, const QString& Text) {
    const QString Line = Text.simplified();
    if (Line.isEmpty()) return Verb;
    const QString Short =
        Line.size() <= MostInMenu ? Line : FirstUnits(Line, MostInMenu).trimmed() + u'…';
    return tr("%1 \"%2\"").arg(Verb, Short);
}

// A slide without a caption is called by its number, as in the list of slides.
QString QuotedSlide(const QString& Verb, const clsNEBSlide& Slide) {
    const bool HasText = !Slide.SlideText.simplified().isEmpty();
    return HasText ? Quoted(Verb, Slide.SlideText)
                   : Verb + QStringLiteral(" %1").arg(Slide.SlideID);
}

template <class Field>
bool Differ(const clsNEBSlide& One, const clsNEBSlide& Other, Field clsNEBSlide::*Its) {
    return One.*Its != Other.*Its;
}

template <class Do>
void ForEachField(const Do& Each) {
    Each(&clsNEBSlide::SlideText);
    Each(&clsNEBSlide::SlideLoc);
    Each(&clsNEBSlide::SoundTrackLoc);
    Each(&clsNEBSlide::Override);
    Each(&clsNEBSlide::Repeat);
}

bool IsCaptionAlone(const clsNEBSlide& Was, const clsNEBSlide& Now) {
    clsNEBSlide WithCaption = Was;
    WithCaption.SlideText = Now.SlideText;
    bool IsSame = Was.SlideText != Now.SlideText;
    ForEachField([&](auto Field) { IsSame = IsSame && !Differ(WithCaption, Now, Field); });
    return IsSame;
}

QString NameOfSlides(const UndoStep& Step) {
    const auto& Slides = Step.Were.Slides;
    const auto Count = QString::number(Slides.size());
    const bool AreGone = std::ranges::all_of(Step.SlidesNow, [](const auto& Now) { return !Now; });
    if (Slides.size() > 1)
        return AreGone              ? tr("Delete %1 Slides").arg(Count)
               : Step.Files.empty() ? tr("Change %1 Captions").arg(Count)
                                    : tr("Change %1 Slides").arg(Count);
    const clsNEBSlide& Was = *Slides[0].Was;
    if (AreGone) return QuotedSlide(tr("Delete Slide"), Was);
    const clsNEBSlide& Now = *Step.SlidesNow[0];
    if (!Step.Verb.isEmpty()) return QuotedSlide(Step.Verb, Now);
    const bool IsCaption = Step.Files.empty() && IsCaptionAlone(Was, Now);
    return IsCaption ? Quoted(tr("Change Caption"), Now.SlideText)
                     : QuotedSlide(tr("Change Slide"), Now);
}

// A slide that is still there, of which the step's own fields are as it left them.
bool IsAsLeft(const clsNEBSlide& There, const clsNEBSlide& Was, const clsNEBSlide& Now) {
    bool Is = true;
    ForEachField([&](auto Field) {
        if (Differ(Was, Now, Field) && Differ(There, Now, Field)) Is = false;
    });
    return Is;
}

QString WhyNotSlides(const UndoStep& Step, const clsNEBAlbum& Album) {
    const SlidesByID Slides(Album);
    for (size_t I = 0; I < Step.Were.Slides.size(); ++I) {
        const auto& Was = Step.Were.Slides[I].Was;
        const auto& Now = Step.SlidesNow[I];
        const clsNEBSlide* There = Slides.Find(Step.Were.Slides[I].ID);
        if (!There != !Now) return tr(SlideChanged);
        if (!Now) continue;
        if (Was ? !IsAsLeft(*There, *Was, *Now) : !IsSameSlide(*There, *Now))
            return tr(SlideChanged);
    }
    return {};
}

QString WhyNotShows(const UndoStep& Step, const clsNEBAlbum& Album) {
    for (size_t I = 0; I < Step.Were.Shows.size(); ++I) {
        const auto& Now = Step.ShowsNow[I];
        const clsNEBSlideShow* There = Album.GetSlideShow(Step.Were.Shows[I].ID);
        if (!There != !Now || (Now && !IsSameShow(*There, *Now))) return tr(ShowChanged);
    }
    return {};
}

// Walk, Walk (2), Walk (3): the first that is not taken.
QString FreeName(const QString& Wanted, const std::function<bool(const QString&)>& IsTaken) {
    QString Name = Wanted;
    for (int Number = 2; IsTaken(Name); ++Number) {
        const QString End = QStringLiteral(" (%1)").arg(Number);
        Name = FirstUnits(Wanted, MostInName - End.size()).trimmed() + End;
    }
    return Name;
}

QString FreeAlbumName(const clsDBEngine& Engine, std::int32_t AlbumID, const QString& Wanted) {
    return FreeName(Wanted, [&](const QString& Name) {
        return std::ranges::any_of(Engine.Albums, [&](const auto& Each) {
            return Each->AlbumID != AlbumID && Each->AlbumName == Name;
        });
    });
}

QString FreeShowName(const clsNEBAlbum& Album, const clsNEBSlideShow& Show) {
    return FreeName(Show.SlideShowName, [&](const QString& Name) {
        return std::ranges::any_of(Album.SlideShows, [&](const auto& Each) {
            return Each->SlideShowID != Show.SlideShowID &&
                   Each->SlideShowName.toUpper() == Name.toUpper();
        });
    });
}

// What is not the step's own stays as it is.
void MergeSlide(clsNEBSlide& Was, const clsNEBSlide& Now, const clsNEBSlide& There) {
    ForEachField([&](auto Field) {
        if (!Differ(Was, Now, Field)) Was.*Field = There.*Field;
    });
}

bool ShareSlide(const UndoStep& One, const UndoStep& Other) {
    return std::ranges::any_of(
        One.Were.Slides, [&](const auto& Each) { return Other.SlidePlaces.contains(Each.ID); });
}

template <class Parts>
bool ShareKey(const Parts& One, const Parts& Other) {
    return std::ranges::any_of(One, [&](const auto& Each) {
        return std::ranges::any_of(Other, [&](const auto& Its) { return Its.ID == Each.ID; });
    });
}

}  // namespace

QString NameOfStep(const UndoStep& Step) {
    if (!Step.Name.isEmpty()) return Step.Name;
    if (Step.Were.Album) return Quoted(tr("Delete Album"), Step.Were.Album->Was->AlbumName);
    if (Step.Were.Name) return Quoted(tr("Rename Album"), Step.NameNow);
    if (!Step.Were.Shows.empty())
        return Step.ShowsNow[0]
                   ? Quoted(tr("Change Slide Show"), Step.ShowsNow[0]->SlideShowName)
                   : Quoted(tr("Delete Slide Show"), Step.Were.Shows[0].Was->SlideShowName);
    return Step.Were.Slides.empty() ? QString() : NameOfSlides(Step);
}

SlidesByID::SlidesByID(const clsNEBAlbum& Album) {
    mSlides.reserve(static_cast<qsizetype>(Album.Slides.size()));
    for (const auto& Each : Album.Slides)
        if (!mSlides.contains(Each->SlideID)) mSlides.insert(Each->SlideID, Each.get());
}

bool ShareAnything(const UndoStep& One, const UndoStep& Other) {
    const bool AreOfOneAlbum = One.Were.AlbumID == Other.Were.AlbumID;
    if (AreOfOneAlbum && (One.Were.Album || Other.Were.Album)) return true;
    if (AreOfOneAlbum && One.Were.Name && Other.Were.Name) return true;
    return One.Paths.intersects(Other.Paths) || ShareSlide(One, Other) ||
           ShareKey(One.Were.Shows, Other.Were.Shows);
}

bool IsSameSlide(const clsNEBSlide& One, const clsNEBSlide& Other) {
    bool Is = One.SlideID == Other.SlideID;
    ForEachField([&](auto Field) { Is = Is && !Differ(One, Other, Field); });
    return Is;
}

bool IsSameShow(const clsNEBSlideShow& One, const clsNEBSlideShow& Other) {
    const auto SameDetail = [](const auto& A, const auto& B) {
        return A->SlideID == B->SlideID && A->SlideSeq == B->SlideSeq &&
               A->SlideText == B->SlideText;
    };
    const auto SameTrack = [](const auto& A, const auto& B) {
        return A->SoundTrackSeq == B->SoundTrackSeq && A->SoundTrackLoc == B->SoundTrackLoc &&
               A->SlideSeqStart == B->SlideSeqStart && A->SlideSeqEnd == B->SlideSeqEnd &&
               A->Repeat == B->Repeat && A->FitToSong == B->FitToSong && A->Fade == B->Fade;
    };
    return One.SlideShowID == Other.SlideShowID && One.SlideShowName == Other.SlideShowName &&
           One.ProgressionMethod == Other.ProgressionMethod &&
           std::ranges::equal(One.Details, Other.Details, SameDetail) &&
           std::ranges::equal(One.SoundTracks, Other.SoundTracks, SameTrack);
}

QString WhyNot(const UndoStep& Step, const clsDBEngine& Engine) {
    clsNEBAlbum* const Album = Engine.GetAlbum(Step.Were.AlbumID);
    if (Step.Were.Album)
        return !Album == !!Step.Were.Album->Was ? QString()
                                                : tr("The album has been changed since.");
    if (!Album) return tr(AlbumGone);
    if (Step.Were.Name && Album->AlbumName != Step.NameNow)
        return tr("The album has been renamed since.");
    const QString Slides = WhyNotSlides(Step, *Album);
    return Slides.isEmpty() ? WhyNotShows(Step, *Album) : Slides;
}

void FitToNow(UndoStep& Step, const clsDBEngine& Engine) {
    AlbumParts& Were = Step.Were;
    if (Were.Album && Were.Album->Was)
        Were.Album->Was->AlbumName =
            FreeAlbumName(Engine, Were.AlbumID, Were.Album->Was->AlbumName);
    if (Were.Name) Were.Name = FreeAlbumName(Engine, Were.AlbumID, *Were.Name);
    clsNEBAlbum* const Album = Engine.GetAlbum(Were.AlbumID);
    if (!Album) return;
    for (const auto& Show : Were.Shows)
        if (Show.Was) Show.Was->SlideShowName = FreeShowName(*Album, *Show.Was);
    const SlidesByID Slides(*Album);
    for (size_t I = 0; I < Were.Slides.size(); ++I)
        if (Were.Slides[I].Was && Step.SlidesNow[I])
            MergeSlide(*Were.Slides[I].Was, *Step.SlidesNow[I], *Slides.Find(Were.Slides[I].ID));
}

}  // namespace neb
