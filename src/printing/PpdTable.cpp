#include "printing/PpdTable.h"

#include <QSet>
#include <QtEndian>

#include "pictures/formats/PictureDecoder.h"
#include "support/Fault.h"
#include "support/Texts.h"

namespace neb {
namespace {

constexpr qsizetype TableSumLength = 32;
// Far beyond any paper, and still a number of dots that a painter can count.
constexpr double MostInches = 100000;

bool IsMeasure(double Inches) {
    return Inches >= -MostInches && Inches <= MostInches;  // and thereby a number
}

bool IsPlace(const QRectF& Place) {
    return IsMeasure(Place.x()) && IsMeasure(Place.y()) && IsMeasure(Place.width()) &&
           IsMeasure(Place.height()) && Place.width() >= 0 && Place.height() >= 0;
}

bool IsSize(QSizeF Size) {
    return Size.width() > 0 && Size.height() > 0 && Size.width() <= MostInches &&
           Size.height() <= MostInches;
}

// Where a page has next to no size no scale shows it.
bool IsPaper(QSizeF Size) {
    constexpr double Least = 0.01;
    return IsSize(Size) && Size.width() >= Least && Size.height() >= Least;
}

class TableBytes {
  public:
    const QByteArray& Bytes() const { return mBytes; }

    template <class Number>
    void Add(Number Value) {
        char Into[sizeof(Number)];
        qToLittleEndian(Value, Into);
        mBytes.append(Into, sizeof Into);
    }
    void AddCount(std::size_t Count) { Add(static_cast<quint32>(Count)); }
    void AddBytes(const QByteArray& Bytes) { mBytes += Bytes; }
    void AddMeasure(double Inches) {
        if (!IsMeasure(Inches)) ThrowNoRoom();
        Add(Inches);
    }
    void AddPaper(QSizeF Size) {
        if (!IsPaper(Size)) ThrowNoRoom();
        Add(Size.width());
        Add(Size.height());
    }
    void AddPlace(const QRectF& Place) {
        if (!IsPlace(Place)) ThrowNoRoom();
        for (const double Each : {Place.x(), Place.y(), Place.width(), Place.height()}) Add(Each);
    }
    void AddText(const QString& Text) {
        AddCount(static_cast<std::size_t>(Text.size()));
        for (const QChar Unit : Text) Add(Unit.unicode());
    }
    void MustHaveRoom() const {
        if (mBytes.size() > LargestPpdTable) ThrowNoRoom();
    }

  private:
    [[noreturn]] static void ThrowNoRoom() {
        throw Fault(
            tr("The document has measures or a size that a print document file cannot hold."));
    }
    QByteArray mBytes;
};

void AddSetting(TableBytes& To, const PrintDocument& Document) {
    const QMarginsF& Margins = Document.Margins();
    To.AddPaper(Document.Paper());
    To.Add(static_cast<quint32>(Document.Orientation()));
    for (const double Each : {Margins.left(), Margins.top(), Margins.right(), Margins.bottom()})
        To.AddMeasure(Each);
}

void AddPage(TableBytes& To, const PrintDocument& Document, int Page,
             const std::vector<int>& Numbers) {
    const auto Places = Document.PlacesOn(Page);
    To.AddCount(Places.size());
    for (const PlacedPicture& Each : Places) {
        To.Add(static_cast<quint32>(Numbers.at(static_cast<std::size_t>(Each.Picture))));
        To.AddPlace(Each.Place);
    }
    const auto Texts = Document.TextsOn(Page);
    To.AddCount(Texts.size());
    for (const PlacedText& Each : Texts) {
        To.Add(static_cast<quint32>(Each.Side));
        To.AddPlace(Each.Place);
        To.AddText(Each.Text);
    }
    To.MustHaveRoom();
}

// Hands out a table from its front. It may hold anything: each step asks whether it can be so.
class TableReader {
  public:
    explicit TableReader(QByteArrayView Table) : mRest(Table) {}

    bool AtEnd() const { return mRest.isEmpty(); }
    QByteArrayView TakeBytes(qsizetype Count) {
        Must(Count <= mRest.size());
        const QByteArrayView Taken = mRest.first(Count);
        mRest = mRest.sliced(Count);
        return Taken;
    }
    template <class Number>
    Number Take() {
        return qFromLittleEndian<Number>(TakeBytes(sizeof(Number)).data());
    }
    // One of so many, the first one being 0.
    int TakeOneOf(std::size_t Count) {
        const auto Value = Take<quint32>();
        Must(Value < Count);
        return static_cast<int>(Value);
    }
    double TakeMeasure() {
        const auto Inches = Take<double>();
        Must(IsMeasure(Inches));
        return Inches;
    }
    QSizeF TakePaper() {
        const double Width = TakeMeasure(), Height = TakeMeasure();
        Must(IsPaper({Width, Height}));
        return {Width, Height};
    }
    QRectF TakePlace() {
        const double X = TakeMeasure(), Y = TakeMeasure();
        const double Width = TakeMeasure(), Height = TakeMeasure();
        const QRectF Place(X, Y, Width, Height);
        Must(IsPlace(Place));
        return Place;
    }
    QString TakeText() {
        const auto Count = static_cast<qsizetype>(Take<quint32>());
        const QByteArrayView Units = TakeBytes(2 * Count);
        Must(Count > 0);
        QString Text(Count, Qt::Uninitialized);
        for (qsizetype I = 0; I < Count; ++I)
            Text[I] = QChar(qFromLittleEndian<quint16>(Units.data() + 2 * I));
        return Text;
    }
    static void Must(bool IsSo) {
        if (!IsSo) ThrowPpdDamaged();
    }

  private:
    QByteArrayView mRest;
};

// Each picture is there once: two with one sum are not.
std::vector<PpdPicture> TakePictures(TableReader& From) {
    std::vector<PpdPicture> Pictures;
    QSet<QByteArray> Sums;
    qint64 At = PpdPicturesAt;
    for (auto Left = From.Take<quint32>(); Left > 0; --Left) {
        const auto Length = From.Take<quint64>();
        From.Must(Length > 0 && Length <= LargestPictureFile);
        Pictures.push_back(
            {At, static_cast<qint64>(Length), From.TakeBytes(TableSumLength).toByteArray()});
        At += Pictures.back().Length;
        Sums.insert(Pictures.back().Sum);
    }
    From.Must(static_cast<std::size_t>(Sums.size()) == Pictures.size());
    return Pictures;
}

// Fills the pages of a document that has been started.
class Pages {
  public:
    Pages(TableReader& From, const std::vector<PpdPicture>& Pictures,
          const std::shared_ptr<const PictureShelf>& Shelf, PrintDocument& Into)
        : mFrom(From), mPictures(Pictures), mShelf(Shelf), mInto(Into) {}

    void TakePage() {
        for (auto Left = mFrom.Take<quint32>(); Left > 0; --Left) TakePicture();
        for (auto Left = mFrom.Take<quint32>(); Left > 0; --Left) TakeText();
    }

  private:
    // They are numbered as they come up: the next new one has the next number.
    void TakePicture() {
        const auto Next = static_cast<std::size_t>(mInto.PictureCount());
        const int Number = mFrom.TakeOneOf(std::min(Next + 1, mPictures.size()));
        const QRectF Place = mFrom.TakePlace();
        mFrom.Must(IsSize(Place.size()));
        const PpdPicture& Lies = mPictures[static_cast<std::size_t>(Number)];
        mInto.DrawPicture({{}, {}, mShelf, Lies.At, Lies.Length}, Place);
    }
    void TakeText() {
        const auto Side = static_cast<TextSide>(mFrom.TakeOneOf(2));
        const QRectF Place = mFrom.TakePlace();
        mInto.DrawText({mFrom.TakeText(), Place, Side});
    }

    TableReader& mFrom;
    const std::vector<PpdPicture>& mPictures;
    const std::shared_ptr<const PictureShelf>& mShelf;
    PrintDocument& mInto;
};

void TakeSetting(TableReader& From, PrintDocument& Into) {
    Into.SetOrientation(static_cast<PageTurn>(From.TakeOneOf(2)));
    Into.SetMarginLeft(InchText(From.TakeMeasure()));
    Into.SetMarginTop(InchText(From.TakeMeasure()));
    Into.SetMarginRight(InchText(From.TakeMeasure()));
    Into.SetMarginBottom(InchText(From.TakeMeasure()));
}

void TakePages(TableReader& From, Pages Filled, PrintDocument& Into) {
    const auto Count = From.Take<quint32>();
    if (Count == 0) return;
    Into.StartDoc();
    for (quint32 Page = 0; Page < Count; ++Page) {
        if (Page > 0) Into.NewPage();
        Filled.TakePage();
    }
    Into.EndDoc();
}

}  // namespace

void ThrowPpdDamaged() {
    throw Fault(tr("The print document is damaged or not whole."));
}

QByteArray PpdTableOf(const PrintDocument& Document, const std::vector<PpdPicture>& Pictures,
                      const std::vector<int>& Numbers) {
    TableBytes Table;
    AddSetting(Table, Document);
    Table.AddCount(Pictures.size());
    for (const PpdPicture& Each : Pictures) {
        Table.Add(static_cast<quint64>(Each.Length));
        Table.AddBytes(Each.Sum);
    }
    Table.AddCount(static_cast<std::size_t>(Document.PageCount()));
    for (int Page = 1; Page <= Document.PageCount(); ++Page)
        AddPage(Table, Document, Page, Numbers);
    Table.MustHaveRoom();
    return Table.Bytes();
}

PpdContents ContentsOfPpdTable(const QByteArray& Table, const PrintPicture& StandIn,
                               const std::shared_ptr<const PictureShelf>& Shelf) {
    TableReader From(Table);
    PpdContents Found;
    Found.Document = std::make_shared<PrintDocument>(StandIn, From.TakePaper());
    TakeSetting(From, *Found.Document);
    Found.Pictures = TakePictures(From);
    TakePages(From, {From, Found.Pictures, Shelf, *Found.Document}, *Found.Document);
    const auto Used = static_cast<std::size_t>(Found.Document->PictureCount());
    From.Must(From.AtEnd() && Used == Found.Pictures.size());
    return Found;
}

}  // namespace neb
