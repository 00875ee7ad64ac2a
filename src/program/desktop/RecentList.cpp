#include "program/desktop/RecentList.h"

#include <QRegularExpression>
#include <QStringDecoder>
#include <QXmlStreamReader>

namespace neb {
namespace {

const QString Ours = QStringLiteral("neb-slide-show");

const QString NewList = QStringLiteral(
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<xbel version=\"1.0\"\n"
    "      xmlns:bookmark=\"http://www.freedesktop.org/standards/desktop-bookmarks\"\n"
    "      xmlns:mime=\"http://www.freedesktop.org/standards/shared-mime-info\"\n>\n</xbel>");

// A stretch of the text; none: Begin is below 0.
struct Stretch {
    qsizetype Begin = -1, End = -1;
    bool Is() const { return Begin >= 0; }
};

// Where in the list things stand.
struct Places {
    Stretch Bookmark;             // of the address
    Stretch Ours;                 // our application in it
    qsizetype Applications = -1;  // the end of the last of them
    int Count = 0;                // of applications in it
    qsizetype EndOfList = -1;     // before its closing mark
};

std::optional<QString> TextOf(const QByteArray& List) {
    QStringDecoder Decoder(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
    const QString Text = Decoder(List);
    if (Decoder.hasError() || Text.toUtf8() != List) return std::nullopt;
    return Text;
}

// Reads on by one mark, and says where it began.
class Marks {
  public:
    explicit Marks(const QString& Text) : mText(Text), mXml(Text) {}
    bool Next() {
        mBegin = mXml.characterOffset();
        mXml.readNext();
        return !mXml.atEnd();
    }
    bool Begins(QStringView Name) const { return mXml.isStartElement() && mXml.name() == Name; }
    bool Ends(QStringView Name) const { return mXml.isEndElement() && mXml.name() == Name; }
    QString Value(const char* Key) const {
        return mXml.attributes().value(QLatin1String(Key)).toString();
    }
    bool IsWhole() const {
        return !mXml.hasError() && mXml.tokenType() == QXmlStreamReader::EndDocument;
    }
    // An empty element is told as two marks; the text of both is that of the first.
    qsizetype Begin() const { return mText.lastIndexOf(u'<', End() - 1); }
    qsizetype End() const { return mXml.characterOffset(); }

  private:
    const QString& mText;
    QXmlStreamReader mXml;
    qsizetype mBegin = 0;
};

// Takes what lies inside the bookmark of the address.
void TakeInside(const Marks& At, Places& Found) {
    if (At.Begins(u"application")) {
        ++Found.Count;
        if (At.Value("name") == Ours) Found.Ours.Begin = At.Begin();
    }
    if (At.Ends(u"application")) {
        Found.Applications = At.End();
        if (Found.Ours.Is() && Found.Ours.End < 0) Found.Ours.End = At.End();
    }
}

std::optional<Places> Look(const QString& Text, const QString& Uri) {
    Places Found;
    Marks At(Text);
    bool IsInside = false, IsList = false;
    while (At.Next()) {
        IsList |= At.Begins(u"xbel");
        if (At.Begins(u"bookmark") && At.Value("href") == Uri) {
            IsInside = true;
            Found.Bookmark.Begin = At.Begin();
        }
        if (IsInside) TakeInside(At, Found);
        if (IsInside && At.Ends(u"bookmark")) {
            IsInside = false;
            Found.Bookmark.End = At.End();
        }
        if (At.Ends(u"xbel")) Found.EndOfList = At.Begin();
    }
    if (!At.IsWhole() || !IsList || Found.EndOfList < 0) return std::nullopt;
    return Found;
}

QString TimeOf(const QDateTime& When) {
    return When.toUTC().toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss.zzz000Z"));
}

QString Application(const RecentItem& Item) {
    return QStringLiteral(
               "<bookmark:application name=\"%1\" exec=\"&apos;%1 %u&apos;\" modified=\"%2\" "
               "count=\"1\"/>")
        .arg(Ours, TimeOf(Item.When));
}

QString Bookmark(const RecentItem& Item) {
    const QString Time = TimeOf(Item.When);
    return QStringLiteral("  <bookmark href=\"%1\" added=\"%2\" modified=\"%2\" visited=\"%2\">\n")
               .arg(Item.Uri.toHtmlEscaped(), Time) +
           QStringLiteral(
               "    <title>%1</title>\n    <info>\n"
               "      <metadata owner=\"http://freedesktop.org\">\n"
               "        <mime:mime-type type=\"%2\"/>\n"
               "        <bookmark:applications>\n          %3\n"
               "        </bookmark:applications>\n      </metadata>\n    </info>\n"
               "  </bookmark>\n")
               .arg(Item.Title.toHtmlEscaped(), Item.MimeType, Application(Item));
}

// The entry's own times stand in its first mark.
void Renew(QString& Text, const Places& Found, const RecentItem& Item) {
    const qsizetype End = Text.indexOf(u'>', Found.Bookmark.Begin);
    QString Head = Text.mid(Found.Bookmark.Begin, End - Found.Bookmark.Begin);
    static const QRegularExpression Times(
        QStringLiteral("\\b(modified|visited)=([\"'])[^\"']*\\2"));
    Head.replace(Times, QStringLiteral("\\1=\\2") + TimeOf(Item.When) + QStringLiteral("\\2"));
    Text.replace(Found.Bookmark.Begin, End - Found.Bookmark.Begin, Head);
}

void Cut(QString& Text, Stretch Part) {
    while (Part.Begin > 0 && Text[Part.Begin - 1] == u' ') --Part.Begin;
    if (Part.End < Text.size() && Text[Part.End] == u'\n') ++Part.End;
    Text.remove(Part.Begin, Part.End - Part.Begin);
}

}  // namespace

std::optional<QByteArray> WithRecent(const QByteArray& List, const RecentItem& Item) {
    std::optional<QString> Text = List.isEmpty() ? NewList : TextOf(List);
    const auto Found = Text ? Look(*Text, Item.Uri) : std::nullopt;
    if (!Found) return std::nullopt;
    // from the end to the beginning: places that are still needed stay
    if (!Found->Bookmark.Is()) {
        Text->insert(Found->EndOfList, Bookmark(Item));
    } else if (Found->Count == 0 || (Found->Count == 1 && Found->Ours.Is())) {
        Cut(*Text, Found->Bookmark);
        const auto Then = Look(*Text, Item.Uri);
        Text->insert(Then->EndOfList, Bookmark(Item));
    } else {
        if (Found->Ours.Is())
            Text->replace(Found->Ours.Begin, Found->Ours.End - Found->Ours.Begin,
                          Application(Item));
        else
            Text->insert(Found->Applications, Application(Item));
        Renew(*Text, *Found, Item);
    }
    if (!Look(*Text, Item.Uri)) return std::nullopt;  // a list without the names of ours
    return Text->toUtf8();
}

std::optional<QByteArray> WithoutRecent(const QByteArray& List, const QString& Uri) {
    std::optional<QString> Text = TextOf(List);
    const auto Found = Text ? Look(*Text, Uri) : std::nullopt;
    if (!Found || !Found->Ours.Is()) return std::nullopt;
    Cut(*Text, Found->Count == 1 ? Found->Bookmark : Found->Ours);
    return Text->toUtf8();
}

}  // namespace neb
