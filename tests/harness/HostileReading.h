// Pictures read by a program that does what they say (tests/hostile), as the program's own reader
// or beside it; and pictures that bring it down.
#pragma once

#include <QBuffer>
#include <QFile>
#include <QImage>

#include "harness/TempFolder.h"
#include "pictures/workers/ReadingLocked.h"
#include "support/files/modHostFiles.h"

namespace neb::harness {

inline QByteArray PlainPicture(QRgb Colour = 0xFF204060, QSize Size = {40, 30},
                               const char* Format = "JPG") {
    QImage Picture(Size, QImage::Format_RGB32);
    Picture.fill(Colour);
    QByteArray Bytes;
    QBuffer Buffer(&Bytes);
    Picture.save(&Buffer, Format, 95);
    return Bytes;
}

// The same with a word to its reader.
inline QByteArray Hostile(const QByteArray& Command, const QByteArray& Picture = PlainPicture()) {
    return Picture + "NEB-HOSTILE:" + Command;
}

// Patient enough for a machine that does much else, unless hanging is what is tested.
inline ReadingCosts ShortCosts(double Seconds = 0.5) {
    ReadingCosts Costs;
    Costs.HeaderSeconds = Seconds;
    Costs.WallTimes = 2;
    Costs.BytesASecond = 1e12;
    return Costs;
}

class HostileReading {
  public:
    explicit HostileReading(const ReadingCosts& Costs = {})
        : mLog((qputenv("NEB_HOSTILE_LOG", QFile::encodeName(mDir / QStringLiteral("log"))),
                mDir / QStringLiteral("log"))),
          mReader(Program(), Program(), Program(), Costs) {}
    ~HostileReading() {
        SetPictureReader(nullptr);
        qunsetenv("NEB_HOSTILE_LOG");
    }

    static LockedProgram Program() {
        return ReadingLocked::ProgramAt(QStringLiteral(NEB_BINARY_DIR "/tests/hostile/neb-hostile"),
                                        "hostile");
    }
    // From here on the program reads by it.
    void TakeOver() { SetPictureReader(&mReader); }
    ReadingLocked& operator*() { return mReader; }
    ReadingLocked* operator->() { return &mReader; }
    const QString& LogPath() const { return mLog; }
    // Processes that have been started.
    int Started() const {
        return FileExists(mLog) ? static_cast<int>(ReadFile(mLog).count('\n')) : 0;
    }

  private:
    TempFolder mDir;
    QString mLog;
    ReadingLocked mReader;
};

}  // namespace neb::harness
