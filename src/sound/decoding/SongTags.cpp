#include "sound/decoding/SongTags.h"

namespace neb {

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
