// Decodes sounds behind the door as the program's own part does, but for files that begin with
// HOSTILE: these name a moment and what is tried then, as if a damaged file had taken over its
// decoder. For tests alone.
#include <fcntl.h>
#include <unistd.h>

#include <QList>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <map>
#include <stdexcept>
#include <vector>

#include "sound/workers/ServeSounds.h"
#include "sound/workers/SoundTalk.h"
#include "support/Fault.h"

using namespace neb;

namespace {

LockedRoom* Room = nullptr;

void Say(SoundTalk Kind, std::array<std::int64_t, 6> Numbers) {
    Room->Send(LockedMessage(Kind, Numbers));
    Room->Receive();
}

volatile int Sink = 0;

void TakeMemory() {
    constexpr size_t Piece = 16 << 20;
    for (;;) {
        auto* const Bytes = static_cast<volatile char*>(std::malloc(Piece));
        if (!Bytes) std::abort();
        for (size_t I = 0; I < Piece; I += 4096) Bytes[I] = 1;
    }
}

using Deed = void (*)();
const std::map<QByteArray, Deed> Deeds = {
    {"crash", [] { *static_cast<volatile int*>(nullptr) = 1; }},
    {"end", [] { std::_Exit(0); }},
    {"throw", [] { throw std::runtime_error("nobody catches this"); }},
    {"wait", [] { Room->Receive(); }},
    {"spin",
     [] {
         for (;;) Sink = Sink + 1;
     }},
    {"take memory", TakeMemory},
    {"open a file",
     [] {
         Sink = ::open("/etc/passwd", O_RDONLY);
         std::abort();
     }},
    {"start a process",
     [] {
         Sink = ::fork();
         std::abort();
     }},
    {"ask for too much",
     [] {
         Say(SoundTalk::AskBytes, {0, MostPiece + 1, 0});
     }},
    {"ask for less than nothing",
     [] {
         Say(SoundTalk::AskBytes, {0, -1, 0});
     }},
    {"ask before the start",
     [] {
         Say(SoundTalk::AskBytes, {-1, 1, 0});
     }},
    {"ask it beyond the memory",
     [] {
         Say(SoundTalk::AskBytes, {0, 1, SoundInBytes});
     }},
    {"ask it before the memory",
     [] {
         Say(SoundTalk::AskBytes, {0, 1, -1});
     }},
    {"ask for ever",
     [] {
         for (;;) Say(SoundTalk::AskBytes, {0, MostPiece, 0});
     }},
    {"say gibberish",
     [] {
         Sink = int(::write(LockedTalk, "gibberish", 9));
         Room->Receive();
     }},
    {"say an unknown word", [] { Say(SoundTalk(999), {}); }},
    {"say a request", [] { Say(SoundTalk::Open, {1}); }},
    {"tell of tags",
     [] {
         Say(SoundTalk::TagTexts, {-5, 1LL << 62});
     }},
    {"tell of too long tags",
     [] {
         Say(SoundTalk::TagTexts, {1LL << 62, 1LL << 62});
     }},
    {"tell of a problem without end", [] { Say(SoundTalk::Problem, {1LL << 62}); }},
    {"tell of too many samples", [] { Say(SoundTalk::Samples, {1LL << 62}); }},
    {"tell of too few samples", [] { Say(SoundTalk::Samples, {-1}); }},
};

struct Told {
    int Rate = 44100, Channels = 2;
    qint64 Frames = 100000;
};
const std::map<QByteArray, Told> Lies = {
    {"no rate", {0}},
    {"a rate too many", {1000001}},
    {"no channels", {44100, 0}},
    {"a channel too many", {44100, 9}},
    {"channels below none", {44100, -2}},
    {"frames below none", {44100, 2, -1}},
    {"frames without end", {44100, 2, 1LL << 62}},
};

class HostileSound : public SoundDecoder {
  public:
    HostileSound(QByteArray When, QByteArray What, Told Says)
        : mWhen(std::move(When)), mWhat(std::move(What)), mSays(Says) {}
    int Rate() const override { return mSays.Rate; }
    int Channels() const override { return mSays.Channels; }
    qint64 Frames() const override { return mSays.Frames; }
    qint64 Read(float* Into, qint64 MaxFrames) override {
        if (mWhen == "read") Deeds.at(mWhat)();
        const float Worst[] = {std::nanf(""), std::numeric_limits<float>::infinity(), -1e30F, 2};
        for (qint64 I = 0; I < MaxFrames * mSays.Channels; ++I) Into[I] = Worst[I % 4];
        if (mWhen == "too many") return MaxFrames + 1;
        if (mWhen == "too few") return -1;
        return MaxFrames;
    }
    void Seek(qint64) override {
        if (mWhen == "seek") Deeds.at(mWhat)();
    }

  private:
    QByteArray mWhen, mWhat;
    Told mSays;
};

// "HOSTILE", when, what: a word a line. Of any other file the first word is another.
QList<QByteArray> WordsOf(SoundBytes& Bytes) {
    QByteArray Head(200, '\0');
    Head.resize(Bytes.ReadAt(0, Head.data(), Head.size()));
    return Head.split('\n');
}

std::unique_ptr<SoundDecoder> Open(std::unique_ptr<SoundBytes> Bytes) {
    const QList<QByteArray> Words = WordsOf(*Bytes);
    if (Words[0] != "HOSTILE") return DecodeSound(std::move(Bytes));
    if (Words[1] == "open") Deeds.at(Words[2])();
    const auto Lie = Lies.find(Words[2]);
    return std::make_unique<HostileSound>(Words[1], Words[2],
                                          Lie == Lies.end() ? Told() : Lie->second);
}

SongTags Tags(std::unique_ptr<SoundBytes> Bytes) {
    const QList<QByteArray> Words = WordsOf(*Bytes);
    if (Words[0] != "HOSTILE") return DecodeTags(std::move(Bytes));
    if (Words[1] == "tags") Deeds.at(Words[2])();
    if (Words[1] == "words") throw Fault(QStringLiteral("<a href=x>\n\x07 & Click here"));
    return {QString(1 << 22, u'x'), QStringLiteral("two\nlines\x01")};
}

}  // namespace

int main() {
    LockedRoom Its;
    Room = &Its;
    Its.Prepare();
    Its.Close();
    const SoundDecoders Hostile{Open, Tags};
    ServeSounds(Its, Hostile);
}
