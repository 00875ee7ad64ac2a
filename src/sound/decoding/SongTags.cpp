#include "sound/decoding/SongTags.h"

#include "sound/decoding/SoundDecoderSource.h"
#include "support/Fault.h"

namespace neb {

SongTags ReadSongTags(const QString& Path) try {
    SoundSource Source(Path);
    const SongTags Found = MpegTags(Source);
    return Found == SongTags() ? WaveTags(Source) : Found;
} catch (const Fault&) {
    return {};
}

QString SongTitle(const SongTags& Tags) {
    if (Tags.Title.isEmpty() || Tags.Artist.isEmpty()) return Tags.Title;
    return Tags.Artist + QStringLiteral(" - ") + Tags.Title;
}

QString TagText(const QByteArray& Bytes) {
    QString Text = QString::fromUtf8(Bytes);
    if (Text.contains(QChar::ReplacementCharacter)) Text = QString::fromLatin1(Bytes);
    for (QChar& Each : Text)
        if (Each.category() == QChar::Other_Control) Each = u' ';
    return Text.simplified();
}

}  // namespace neb
