#include "windows/rehearsal/SlidePictures.h"

#include "pictures/ImgX.h"
#include "support/Fault.h"

namespace neb {
namespace {

constexpr int PictureLookMs = 30;
constexpr int AtOnce = 4;      // so that the first are soon seen
constexpr int MostKept = 500;  // some 18 MB; on a fine screen fewer

QImage SmallPicture(const QString& Path, QSize Largest) {
    try {
        ImgX Picture;
        Picture.LoadAtLeast(Path, Largest);
        const QSize Size = QSize(Picture.Width(), Picture.Height())
                               .scaled(Largest, Qt::KeepAspectRatio)
                               .expandedTo({1, 1});
        Picture.Resize(Size.width(), Size.height(), 4);
        return Picture.Picture();
    } catch (const Fault&) {
        return {};
    }
}

QHash<QString, QImage> ReadAll(const QStringList& Paths, QSize Largest, const JobState& State) {
    QHash<QString, QImage> All;
    for (const QString& Each : Paths)
        if (!State.Stop) All.insert(Each, SmallPicture(Each, Largest));
    return All;
}

}  // namespace

SlidePictures::SlidePictures(QObject* Owner) : QObject(Owner) {
    mLook.setInterval(PictureLookMs);
    connect(&mLook, &QTimer::timeout, this, &SlidePictures::Look);
}

void SlidePictures::Ask(const QStringList& Paths, double Scale) {
    if (std::exchange(mScale, Scale) != Scale) Forget();
    if (mJob) return;
    QStringList Wanted;
    for (const QString& Each : Paths)
        if (!mPictures.contains(Each) && Wanted.size() < AtOnce) Wanted << Each;
    if (Wanted.isEmpty()) return;
    mJob = std::make_unique<Job<Pictures>>([Wanted, Pixels = Largest * Scale](JobState& State) {
        return ReadAll(Wanted, Pixels, State);
    });
    mLook.start();
}

void SlidePictures::Forget() {
    mLook.stop();
    mJob.reset();
    mPictures.clear();
}

void SlidePictures::Look() {
    if (!mJob->Wait(0)) return;
    mLook.stop();
    if (mPictures.size() > MostKept / (mScale * mScale)) mPictures.clear();
    mPictures.insert(mJob->Take());
    mJob.reset();
    Q_EMIT Read();
}

}  // namespace neb
