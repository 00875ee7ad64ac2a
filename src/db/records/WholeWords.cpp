#include "db/records/WholeWords.h"

#include "support/modText.h"

namespace neb {
namespace {

// Nearly all texts are; no more need be asked about them.
bool IsPlain(const QString& Text, int Width) {
    return Text.size() <= Width && std::all_of(Text.begin(), Text.end(), [](QChar Unit) {
               return Unit.unicode() >= 0x20 && Unit.unicode() < 0x80 && Unit != u'\\';
           });
}

}  // namespace

namespace words {

std::optional<QByteArray> StoredInstead(FieldKind Kind, int Width, const QString& Text) {
    if (Kind == FieldKind::Padded || IsPlain(Text, Width)) return std::nullopt;
    const QString Whole = Kept(Text);
    if (Whole.isEmpty()) return std::nullopt;
    QByteArray Bytes = codec::Stored(Kind, Width, Text);
    QString Back;
    codec::Decode(Bytes.constData(), Kind, static_cast<int>(Bytes.size()), Back);
    const bool IsOneText = Kind != FieldKind::Path;
    if (Back == Whole || (IsOneText && Back == Whole.normalized(QString::NormalizationForm_C)))
        return std::nullopt;
    return Bytes;
}

QString Kept(const QString& Text) {
    const qsizetype End = Text.indexOf(QChar(0));
    return ValidText(End < 0 ? Text : Text.first(End));
}

}  // namespace words

WholeWords::WholeWords(std::vector<WholeText> Texts) {
    for (WholeText& Each : Texts) {
        const Place At{Each.File, Each.Field, Each.Key};
        mTexts[At].push_back(std::move(Each));
    }
}

void WholeWords::Take(const Place& At, const QByteArray& Stored, QString& Text) {
    const auto Found = mTexts.find(At);
    if (Found == mTexts.end()) return;
    std::vector<WholeText>& Texts = Found->second;
    const auto Its = std::ranges::find(Texts, Stored, &WholeText::Stored);
    if (Its == Texts.end()) return;
    Text = std::move(Its->Text);
    Texts.erase(Its);
}

std::vector<WholeText> WholeWords::Left() const {
    std::vector<WholeText> All;
    for (const auto& [At, Texts] : mTexts) All.insert(All.end(), Texts.begin(), Texts.end());
    return All;
}

}  // namespace neb
