// Plays an old-style Windows metafile (WMF) on a painter. Used by the metafile decoder for the
// files that carry no enhanced metafile with them.
#pragma once

#include <QByteArray>
#include <QPainter>
#include <QRectF>
#include <vector>

#include "pictures/metafiles/WmfCanvas.h"

namespace neb {

class WmfPlayer {
  public:
    // Wmf must outlive the player. Throws Fault when the records are damaged or do not reach the
    // end mark.
    explicit WmfPlayer(const QByteArray& Wmf);

    // Pixels at 96 dots an inch; where the file tells no measure, its units are pixels. It is the
    // size that the file names, unless what is drawn goes beyond that: then nothing is cut.
    QSize NaturalSize() const { return mSeen.size(); }
    // Fills the rectangle from (0, 0) to Size. What is not understood is left away.
    void Play(QPainter& Painter, QSize Size) const;

  private:
    struct Record {
        int Function;
        qint64 At, Length;  // of the arguments
    };
    void ReadRecords(qint64 At);
    void ReadFrame();
    QSize FrameSize() const;
    QRect Drawn() const;
    void PlayAt(QPainter& Painter, QSize Size) const;

    ByteView mBytes;
    std::vector<Record> mRecords;
    QRect mFrame;          // in logical units
    int mUnitsAnInch = 0;  // 0: not told
    QRect mSeen;           // in pixels from the frame's corner: what becomes the picture
};

// The enhanced metafile in the comments of a metafile; empty when there is none, or not all of it.
QByteArray CarriedEmf(const QByteArray& Wmf);

}  // namespace neb
