#include "pictures/XmpFacts.h"

#include <QLocale>
#include <QXmlStreamReader>

namespace neb {
namespace {

constexpr QStringView Rdf = u"http://www.w3.org/1999/02/22-rdf-syntax-ns#";
constexpr int MostDepth = 64;

struct Property {
    QStringView Space, Name;
    QString XmpFacts::*Into;
};
const Property Properties[] = {
    {u"http://purl.org/dc/elements/1.1/", u"title", &XmpFacts::Title},
    {u"http://purl.org/dc/elements/1.1/", u"description", &XmpFacts::Description},
    {u"http://ns.adobe.com/photoshop/1.0/", u"Headline", &XmpFacts::Headline},
    {u"http://ns.adobe.com/photoshop/1.0/", u"DateCreated", &XmpFacts::Created},
    {u"http://ns.adobe.com/exif/1.0/", u"DateTimeOriginal", &XmpFacts::Taken},
    {u"http://ns.adobe.com/xap/1.0/", u"CreateDate", &XmpFacts::Digitized}};

const Property* PropertyOf(QStringView Space, QStringView Name) {
    for (const Property& Each : Properties)
        if (Each.Space == Space && Each.Name == Name) return &Each;
    return nullptr;
}

// How well a text of this language serves: the user's own, then what goes for all, then any.
int WorthOf(QStringView Language) {
    const QString Own = QLocale::languageToCode(QLocale().language());
    if (!Own.isEmpty() && Language.startsWith(Own, Qt::CaseInsensitive)) return 3;
    return Language.compare(u"x-default", Qt::CaseInsensitive) == 0 ? 2 : 1;
}

class PacketReader {
  public:
    explicit PacketReader(const QByteArray& Bytes) : mXml(Bytes) {}

    XmpFacts Read() {
        while (!mXml.atEnd())
            if (mXml.readNext() == QXmlStreamReader::StartElement) TakeElement();
        return mFacts;
    }

  private:
    void Take(const Property& Is, const QString& Text) {
        if ((mFacts.*Is.Into).isEmpty()) mFacts.*Is.Into = Text.simplified();
    }
    // Short properties may stand in the element that holds them all.
    void TakeElement() {
        if (mXml.namespaceUri() == Rdf && mXml.name() == u"Description")
            for (const auto& Each : mXml.attributes())
                if (const Property* Is = PropertyOf(Each.namespaceUri(), Each.name()))
                    Take(*Is, Each.value().toString());
        if (const Property* Is = PropertyOf(mXml.namespaceUri(), mXml.name())) Take(*Is, Text());
    }
    // All letters of the item that has begun, whatever stands in it. A loop: a file may nest its
    // elements deeper than a thread has room for calls.
    QString ItemText() {
        QString Text;
        for (qint64 Depth = 1; Depth > 0 && !mXml.atEnd();) {
            const auto Token = mXml.readNext();
            Depth += Token == QXmlStreamReader::StartElement;
            Depth -= Token == QXmlStreamReader::EndElement;
            if (Token == QXmlStreamReader::Characters) Text += mXml.text();
        }
        return Text;
    }
    // Of the element that has begun: its own letters, or those of the best of its items.
    QString Text() {
        QString Own, Best;
        int Worth = 0;
        for (int Depth = 1; Depth > 0 && Depth < MostDepth && !mXml.atEnd();) {
            const auto Token = mXml.readNext();
            Depth += Token == QXmlStreamReader::StartElement;
            Depth -= Token == QXmlStreamReader::EndElement;
            if (Token == QXmlStreamReader::Characters) Own += mXml.text();
            if (Token != QXmlStreamReader::StartElement || mXml.name() != u"li") continue;
            const int Its = WorthOf(mXml.attributes().value(QLatin1String("xml:lang")));
            const QString Item = ItemText();
            --Depth;
            if (Its > Worth && !Item.isEmpty()) Best = Item, Worth = Its;
        }
        return Worth > 0 ? Best : Own;
    }

    QXmlStreamReader mXml;
    XmpFacts mFacts;
};

}  // namespace

XmpFacts ReadXmp(const QByteArray& Packet) {
    const qsizetype End = Packet.lastIndexOf('>');
    return End < 0 ? XmpFacts() : PacketReader(Packet.first(End + 1)).Read();
}

}  // namespace neb
