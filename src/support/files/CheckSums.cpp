#include "support/files/CheckSums.h"

#include <openssl/evp.h>

#include <algorithm>
#include <atomic>
#include <memory>
#include <set>

#include "support/Fault.h"
#include "support/Texts.h"
#include "support/files/HostNames.h"
#include "support/files/modHostFiles.h"
#include "support/modFUFL.h"
#include "support/work/Job.h"

namespace neb {
namespace {

constexpr qsizetype SumDigits = 64;
constexpr qint64 PieceLength = 1 << 20;

// As fast as the processor can: the toolkit's own takes ten times as long, which an import and a
// check of all pictures would feel.
class Sha256 {
  public:
    Sha256() : mState(EVP_MD_CTX_new(), &EVP_MD_CTX_free) {
        if (!mState || !EVP_DigestInit_ex(mState.get(), EVP_sha256(), nullptr))
            throw std::bad_alloc();
    }
    void Add(QByteArrayView Bytes) {
        EVP_DigestUpdate(mState.get(), Bytes.data(), static_cast<size_t>(Bytes.size()));
    }
    QByteArray Digits() {
        QByteArray Sum(SumDigits / 2, '\0');
        EVP_DigestFinal_ex(mState.get(), reinterpret_cast<unsigned char*>(Sum.data()), nullptr);
        return Sum.toHex();
    }

  private:
    std::unique_ptr<EVP_MD_CTX, decltype(&EVP_MD_CTX_free)> mState;
};

bool HasDrive(const QString& Path) {
    return Path.size() > 2 && Path[1] == u':' && IsSeparator(Path[2]);
}

// Whatever a list says, nothing is opened but what lies in the folder.
bool LiesBelow(const QString& Path) {
    if (Path.isEmpty() || IsSeparator(Path.front()) || HasDrive(Path)) return false;
    const QStringList Parts = QString(Path).replace(u'\\', u'/').split(u'/');
    return !Parts.contains(u"..");
}

// Nothing for what cannot have been written so.
std::optional<QByteArray> WithoutEscapes(const QByteArray& Name) {
    QByteArray Plain;
    for (qsizetype I = 0; I < Name.size(); ++I) {
        if (Name[I] != '\\') {
            Plain += Name[I];
            continue;
        }
        const qsizetype Which = QByteArrayView("\\nr").indexOf(++I < Name.size() ? Name[I] : '?');
        if (Which < 0) return std::nullopt;
        Plain += "\\\n\r"[Which];
    }
    return Plain;
}

bool IsSum(const QByteArray& Digits) {
    return Digits.size() == SumDigits && std::all_of(Digits.begin(), Digits.end(), [](char Each) {
               return std::isxdigit(static_cast<unsigned char>(Each)) != 0;
           });
}

// Told by the thread that reads to the one that waits.
struct Count {
    std::atomic<int> Files = 0, OfFiles = 0;
    std::atomic<qint64> Bytes = 0, OfBytes = 0;
    SumsProgress Now() const { return {Files, OfFiles, Bytes, OfBytes}; }
};

// The folder as seen by the thread that reads it: a disc may be slow, or hang for good.
class SumsReader {
  public:
    SumsReader(QString Dir, Count& Done, const JobState& State)
        : mDir(std::move(Dir)), mRoot(WithSeparator(RealDir(mDir))), mDone(Done), mState(State) {}

    const QString& Dir() const { return mDir; }
    bool IsStopped() const { return mState.Stop; }
    template <class Listed>
    void Expect(const std::vector<Listed>& Files) {
        mDone.OfFiles = static_cast<int>(Files.size());
        for (size_t I = 0; I < Files.size() && !IsStopped(); ++I)
            mDone.OfBytes += std::max<qint64>(0, FileSize(mDir + Files[I].Path));
    }
    // Of one file, as digits; senseless once the work is stopped.
    QByteArray SumOf(const QString& Path) {
        return SumOfFile(mDir + Path,
                         [this](qint64 Piece) {
                             mDone.Bytes += Piece;
                             return !IsStopped();
                         })
            .value_or(QByteArray());
    }
    void NextFile() { ++mDone.Files; }
    // A link in the folder may lead anywhere.
    bool LeadsOutside(const QString& Path) const {
        const QString Real = RealDir(mDir + Path);
        return !Real.isEmpty() && !Real.startsWith(mRoot);
    }
    // Whether the file is not there at all: what only cannot be seen is not missing.
    bool IsMissing(const QString& Path) {
        if (NameExists(mDir + Path)) return false;
        const QString Parent = GetFilePath(mDir + Path);
        if (Parent != mListed) List(Parent);
        return !mHidden && !mNames.contains(UpperName(GetFileName(Path)));
    }

  private:
    void List(const QString& Parent) {
        std::error_code Error;
        mListed = Parent;
        mNames.clear();
        for (const DirEntry& Entry : ListDir(Parent, Error)) mNames.insert(UpperName(Entry.Name));
        mHidden = Error && Error != std::errc::no_such_file_or_directory &&
                  Error != std::errc::not_a_directory;
    }

    const QString mDir, mRoot;
    Count& mDone;
    const JobState& mState;
    QString mListed;  // the directory that was looked into last, and what is there
    std::set<QString> mNames;
    bool mHidden = false;
};

// Does Work(SumsReader&) on a thread of its own and tells GoOn meanwhile. Nothing when it was
// stopped: then the thread is left to itself, so that a medium that hangs keeps nobody.
template <class Function>
auto Aside(const QString& Dir, const std::shared_ptr<Count>& Done, const SumsGoOn& GoOn,
           Function Work) -> std::optional<std::invoke_result_t<Function, SumsReader&>> {
    constexpr int Patience = 20;  // milliseconds
    Job<std::invoke_result_t<Function, SumsReader&>> Busy(
        [Done, Dir = WithSeparator(Dir), Work](JobState& State) {
            SumsReader Reader(Dir, *Done, State);
            return Work(Reader);
        });
    do {
        if (GoOn && !GoOn(Done->Now())) return std::nullopt;
    } while (!Busy.Wait(Patience));
    auto Result = Busy.Take();
    if (GoOn && !GoOn(Done->Now())) return std::nullopt;
    return Result;
}

// The names of open databases' locks, and of the list while it is being written.
bool ComesAndGoes(const QString& Path) {
    const QString Name = SumsName;
    return Path == Name || Path == Name + QStringLiteral(".new") ||
           GetFileName(Path) == QStringLiteral("InUse.lock");
}

// Links are no files of the folder: on the disc for which a list is written there are none.
void Collect(const SumsReader& Reader, const QString& Below, std::vector<ListedSum>& Files) {
    std::error_code Error;
    const auto Entries = ListDir(Reader.Dir() + Below, Error);
    if (Error)
        throw Fault(
            tr("The directory cannot be read: %1.").arg(QString::fromStdString(Error.message())),
            Reader.Dir() + Below);
    for (const DirEntry& Entry : Entries) {
        const QString Path = Below + Entry.Name;
        if (Entry.IsLink || Reader.IsStopped()) continue;
        if (Entry.IsFolder)
            Collect(Reader, Path + u'/', Files);
        else if (!ComesAndGoes(Path))
            Files.push_back({Path, {}});
    }
}

QByteArray MakeList(SumsReader& Reader) {
    std::vector<ListedSum> Files;
    Collect(Reader, {}, Files);
    std::sort(Files.begin(), Files.end(), [](const ListedSum& A, const ListedSum& B) {
        return HostBytes(A.Path) < HostBytes(B.Path);
    });
    Reader.Expect(Files);
    QByteArray List;
    for (ListedSum& File : Files) {
        if (!LiesBelow(File.Path))
            throw Fault(tr("A file of this name cannot stand in a list of check sums."),
                        Reader.Dir() + File.Path);
        File.Sum = Reader.SumOf(File.Path);
        List += SumLine(File);
        Reader.NextFile();
    }
    return List;
}

// Also as other programs and editors leave it: with a mark of the encoding, CR LF, blank lines.
std::vector<ListedSum> ReadList(const QString& Dir) {
    const QString Path = Dir + SumsName;
    QByteArray Text = ReadFile(Path);
    if (Text.startsWith("\xEF\xBB\xBF")) Text.remove(0, 3);
    std::vector<ListedSum> Files;
    int Number = 0;
    for (QByteArray& Line : Text.split('\n')) {
        ++Number;
        if (Line.endsWith('\r')) Line.chop(1);
        if (Line.trimmed().isEmpty() || Line.startsWith('#')) continue;
        auto File = ReadSumLine(Line);
        if (!File) throw Fault(tr("Line %1 cannot be understood.").arg(Number), Path);
        Files.push_back(std::move(*File));
    }
    if (Files.empty()) throw Fault(tr("The list of check sums is empty."), Path);
    return Files;
}

std::optional<SumsFinding::Kind> Compare(SumsReader& Reader, const ListedSum& File) {
    if (Reader.LeadsOutside(File.Path)) return SumsFinding::Kind::Unreadable;
    try {
        if (Reader.SumOf(File.Path) == File.Sum) return std::nullopt;
        return SumsFinding::Kind::Changed;
    } catch (const Fault&) {
        return Reader.IsMissing(File.Path) ? SumsFinding::Kind::Missing
                                           : SumsFinding::Kind::Unreadable;
    }
}

std::vector<SumsFinding> CompareAll(SumsReader& Reader) {
    const std::vector<ListedSum> Files = ReadList(Reader.Dir());
    Reader.Expect(Files);
    std::vector<SumsFinding> Found;
    for (const ListedSum& File : Files) {
        if (Reader.IsStopped()) break;
        if (const auto What = Compare(Reader, File)) Found.push_back({*What, File.Path});
        Reader.NextFile();
    }
    return Found;
}

}  // namespace

QByteArray SumLine(const ListedSum& File) {
    QByteArray Name = HostBytes(File.Path);
    const QByteArray Plain = Name;
    Name.replace('\\', "\\\\").replace('\n', "\\n").replace('\r', "\\r");
    return (Name == Plain ? "" : "\\") + File.Sum + "  " + Name + '\n';
}

std::optional<ListedSum> ReadSumLine(QByteArray Line) {
    const bool Escaped = Line.startsWith('\\');
    if (Escaped) Line.remove(0, 1);
    const QByteArray Marker = Line.mid(SumDigits, 2);
    if (!IsSum(Line.left(SumDigits)) || (Marker != "  " && Marker != " *")) return std::nullopt;
    const QByteArray Name = Line.mid(SumDigits + 2);
    const auto Plain = Escaped ? WithoutEscapes(Name) : std::optional(Name);
    const QString Path = Plain ? HostName(*Plain) : QString();
    return LiesBelow(Path) ? std::optional(ListedSum{Path, Line.left(SumDigits).toLower()})
                           : std::nullopt;
}

QByteArray SumOfBytes(const QByteArray& Bytes) {
    Sha256 Sum;
    Sum.Add(Bytes);
    return Sum.Digits();
}

std::optional<QByteArray> SumOfFile(const QString& Path,
                                    const std::function<bool(qint64 Piece)>& Tell) {
    HostReader File(Path);
    Sha256 Sum;
    std::vector<char> Piece(static_cast<size_t>(std::clamp<qint64>(File.Length(), 1, PieceLength)));
    while (const qint64 Length = File.Read(Piece.data(), static_cast<qint64>(Piece.size()))) {
        Sum.Add(QByteArrayView(Piece.data(), Length));
        if (Tell && !Tell(Length)) return std::nullopt;
    }
    return Sum.Digits();
}

bool WriteSums(const QString& Dir, const SumsGoOn& GoOn) {
    const auto Done = std::make_shared<Count>();
    const auto List = Aside(Dir, Done, GoOn, &MakeList);
    if (!List) return false;
    // Too late to stop; but a slow medium must not keep the caller's windows even now.
    const SumsGoOn Tell = [&GoOn](const SumsProgress& Now) {
        if (GoOn) GoOn(Now);
        return true;
    };
    Aside(Dir, Done, Tell, [List](const SumsReader& Reader) {
        ReplaceFile(Reader.Dir() + SumsName, *List);
        SyncDir(Reader.Dir());
        return true;
    });
    return true;
}

std::optional<std::vector<SumsFinding>> CheckSums(const QString& Dir, const SumsGoOn& GoOn) {
    return Aside(Dir, std::make_shared<Count>(), GoOn, &CompareAll);
}

}  // namespace neb
