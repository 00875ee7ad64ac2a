// Small pictures of slides, read beside the window as they come into view. Used by TimeLine.
#pragma once

#include <QHash>
#include <QImage>
#include <QStringList>
#include <QTimer>
#include <memory>

#include "support/work/Job.h"

namespace neb {

class SlidePictures : public QObject {
    Q_OBJECT

  public:
    static constexpr QSize Largest{128, 72};  // logical pixels, in the picture's own proportions

    explicit SlidePictures(QObject* Owner);

    // Those that are seen now, for a screen of so many pixels to the logical one. While earlier
    // ones are read nothing begins: Read comes, and whoever paints asks again.
    void Ask(const QStringList& Paths, double Scale);
    // Reads all anew: slides are turned and exchanged.
    void Forget();
    // Null where it is not there yet, and for one that cannot be read.
    QImage Of(const QString& Path) const { return mPictures.value(Path); }

  Q_SIGNALS:
    void Read();

  private:
    void Look();

    using Pictures = QHash<QString, QImage>;
    Pictures mPictures;
    std::unique_ptr<Job<Pictures>> mJob;
    double mScale = 1;
    QTimer mLook;
};

}  // namespace neb
