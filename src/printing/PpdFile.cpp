#include "printing/PpdFile.h"

#include <QCryptographicHash>
#include <QtEndian>
#include <mutex>

#include "pictures/formats/PictureDecoder.h"
#include "printing/FileBeside.h"
#include "printing/PpdTable.h"
#include "support/Fault.h"
#include "support/Texts.h"

namespace neb {
namespace {

const QByteArray Mark("NEBPPD\r\n"), EndMark("\r\nPPDEND");
constexpr quint32 Version = 1;
constexpr qint64 SumLength = 32;
constexpr qint64 TrailerLength = 8 + SumLength + 8;  // the table's length, the sum, the mark

template <class Number>
QByteArray BytesOf(Number Value) {
    QByteArray Bytes(sizeof(Number), '\0');
    qToLittleEndian(Value, Bytes.data());
    return Bytes;
}

QByteArray Header() {
    return Mark + BytesOf(Version);
}

QByteArray SumOf(const QByteArray& Bytes) {
    return QCryptographicHash::hash(Bytes, QCryptographicHash::Sha256);
}

// Of all that is no picture.
QByteArray SumOfTable(const QByteArray& Table) {
    QCryptographicHash Sum(QCryptographicHash::Sha256);
    for (const QByteArray& Each : {Header(), Table, BytesOf<quint64>(Table.size())})
        Sum.addData(Each);
    return Sum.result();
}

// Empty when it cannot be read: then it could not be shown either.
QByteArray BytesIfAny(const PrintPicture& Picture) {
    try {
        const QByteArray Bytes = FileBytesOf(Picture);
        return Bytes.size() <= LargestPictureFile ? Bytes : QByteArray();
    } catch (const Fault&) {
        return {};
    }
}

class PpdOnItsWay {
  public:
    PpdOnItsWay(const PrintDocument& Document, const QString& Path)
        : mDocument(Document), mFile(Path) {
        Write(Header());
    }
    // False as soon as GoOn says so.
    bool WritePictures(const PrintGoOn& GoOn) {
        const int Count = mDocument.PictureCount();
        for (int Number = 0; Number < Count; ++Number) {
            WritePicture(mDocument.Picture(Number));
            if (GoOn && !GoOn({Number + 1, Count})) return false;
        }
        return true;
    }
    void Finish() {
        const QByteArray Table = PpdTableOf(mDocument, mPictures, mNumbers);
        for (const QByteArray& Each :
             {Table, BytesOf<quint64>(Table.size()), SumOfTable(Table), EndMark})
            Write(Each);
        mFile.TakePlace();
    }

  private:
    void Write(const QByteArray& Bytes) {
        mFile.Write(Bytes.constData(), Bytes.size());
        mLength += Bytes.size();
    }
    // Pictures of the same bytes are one in the file, whatever they are called.
    void WritePicture(const PrintPicture& Picture) {
        const QByteArray Bytes = BytesToKeep(Picture), Sum = SumOf(Bytes);
        const auto Known = mBySum.constFind(Sum);
        mNumbers.push_back(Known != mBySum.cend() ? *Known : static_cast<int>(mPictures.size()));
        if (Known != mBySum.cend()) return;
        mBySum.insert(Sum, mNumbers.back());
        mPictures.push_back({mLength, Bytes.size(), Sum});
        Write(Bytes);
    }
    QByteArray BytesToKeep(const PrintPicture& Picture) const {
        QByteArray Own = BytesIfAny(Picture);
        if (!Own.isEmpty()) return Own;
        QByteArray InItsPlace = BytesIfAny(mDocument.StandIn());
        if (!InItsPlace.isEmpty()) return InItsPlace;
        throw Fault(tr("Neither a picture of the document nor the one that stands in "
                       "for it can be read."),
                    Picture.Path);
    }

    const PrintDocument& mDocument;
    FileBeside mFile;
    qint64 mLength = 0;  // bytes so far
    std::vector<PpdPicture> mPictures;
    std::vector<int> mNumbers;  // in the file, of the document's pictures
    QHash<QByteArray, int> mBySum;
};

// A file that is held open, whatever becomes of its name.
class OpenPpd : public PictureShelf {
  public:
    explicit OpenPpd(const QString& Path) : mPath(Path), mFile(Path), mLength(mFile.Length()) {}

    qint64 Length() const { return mLength; }
    QByteArray Read(qint64 At, qint64 Length) const override {
        if (At < 0 || Length < 0 || At > mLength || Length > mLength - At) ThrowPpdDamaged();
        QByteArray Bytes(Length, Qt::Uninitialized);
        const std::lock_guard Alone(mGuard);
        mFile.Seek(At);
        if (mFile.Read(Bytes.data(), Length) != Length)
            throw Fault(tr("The print document has been cut off meanwhile."), mPath);
        return Bytes;
    }

  private:
    const QString mPath;
    mutable std::mutex mGuard;
    mutable HostReader mFile;
    const qint64 mLength;
};

void CheckHeader(const OpenPpd& File) {
    const QByteArray Start = File.Read(0, std::min(File.Length(), PpdPicturesAt));
    if (!Start.startsWith(Mark)) throw Fault(tr("The file is no print document of this program."));
    if (Start.size() < PpdPicturesAt) ThrowPpdDamaged();
    const auto Is = qFromLittleEndian<quint32>(Start.constData() + Mark.size());
    if (Is > Version)
        throw Fault(tr("The print document was saved by a later version of this program."));
    if (Is < Version) ThrowPpdDamaged();
}

// Read after its length and its sum were found to be right.
QByteArray TableOf(const OpenPpd& File) {
    if (File.Length() < PpdPicturesAt + TrailerLength) ThrowPpdDamaged();
    const qint64 End = File.Length() - TrailerLength;
    const QByteArray Trailer = File.Read(End, TrailerLength);
    const auto Length = qFromLittleEndian<quint64>(Trailer.constData());
    const auto Most = static_cast<quint64>(std::min(End - PpdPicturesAt, LargestPpdTable));
    if (!Trailer.endsWith(EndMark) || Length > Most) ThrowPpdDamaged();
    QByteArray Table = File.Read(End - static_cast<qint64>(Length), Length);
    if (SumOfTable(Table) != Trailer.mid(8, SumLength)) ThrowPpdDamaged();
    return Table;
}

QByteArray SumOf(const OpenPpd& File, const PpdPicture& Picture) {
    constexpr qint64 Piece = 1 << 20;
    QCryptographicHash Sum(QCryptographicHash::Sha256);
    for (qint64 Done = 0; Done < Picture.Length; Done += Piece)
        Sum.addData(File.Read(Picture.At + Done, std::min(Piece, Picture.Length - Done)));
    return Sum.result();
}

// False as soon as GoOn says so.
bool CheckPictures(const OpenPpd& File, const std::vector<PpdPicture>& Pictures,
                   const PrintGoOn& GoOn) {
    const auto Count = static_cast<int>(Pictures.size());
    for (int I = 0; I < Count; ++I) {
        const PpdPicture& Each = Pictures[static_cast<std::size_t>(I)];
        if (SumOf(File, Each) != Each.Sum)
            throw Fault(tr("Picture %1 of the print document is damaged.").arg(I + 1));
        if (GoOn && !GoOn({I + 1, Count})) return false;
    }
    return true;
}

std::shared_ptr<PrintDocument> DocumentIn(const std::shared_ptr<const OpenPpd>& File,
                                          const PrintPicture& StandIn, const PrintGoOn& GoOn) {
    CheckHeader(*File);
    const QByteArray Table = TableOf(*File);
    const PpdContents Found = ContentsOfPpdTable(Table, StandIn, File);
    const qint64 PicturesEnd = Found.Pictures.empty()
                                   ? PpdPicturesAt
                                   : Found.Pictures.back().At + Found.Pictures.back().Length;
    if (PicturesEnd + Table.size() + TrailerLength != File->Length()) ThrowPpdDamaged();
    return CheckPictures(*File, Found.Pictures, GoOn) ? Found.Document : nullptr;
}

}  // namespace

bool WritePpd(const PrintDocument& Document, const QString& Path, const PrintGoOn& GoOn) {
    PpdOnItsWay File(Document, Path);
    if (!File.WritePictures(GoOn)) return false;
    File.Finish();
    return true;
}

std::shared_ptr<PrintDocument> ReadPpd(const QString& Path, const PrintPicture& StandIn,
                                       const PrintGoOn& GoOn) {
    const auto File = std::make_shared<OpenPpd>(Path);
    try {
        return DocumentIn(File, StandIn, GoOn);
    } catch (const Fault& Reason) {
        throw Fault(Reason.What(), Path, Reason.Number());
    }
}

}  // namespace neb
