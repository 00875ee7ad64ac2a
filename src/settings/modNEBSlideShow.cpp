#include "settings/modNEBSlideShow.h"

#include <QCoreApplication>
#include <QStandardPaths>

#include "db/records/modJournal.h"
#include "settings/ProgramFiles.h"
#include "settings/SettingKeys.h"
#include "settings/clsFileSystem.h"
#include "support/Fault.h"
#include "support/Services.h"
#include "support/files/modHostFiles.h"
#include "support/modFUFL.h"

namespace neb {

clsDBEngine* DBEngine = nullptr;
clsImageBuffer* ImageBuffer = nullptr;
clsFileSystem* FileSystem = nullptr;
bool DebugMode = false;
bool ReadOnlyDB = false;
QString AppPathCache;
QString OwnPathCache;
QString DBPathCache;
QString DocumentsPath;

namespace {

constexpr char16_t LegalSigns[] = u"!#$().,_-~@^:;'<>/\\=+|[]{} ";

constexpr char Maker[] = "NEB";
constexpr char OwnFolder[] = "NEB Slide Show/";

// A database that is opened as it lies, on a disc or a stick, with its own settings beside its
// records: it stands for the documents folder then.
QString DatabaseAsDocuments;
// One that cannot be changed is still visited with settings: they last as long as the program runs.
std::unique_ptr<ScratchDir> SettingsOfVisit;

QString UserDocuments() {
    const QString Path = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    if (FolderExists(GetParentDir(Path))) MakeDir(Path);  // else the disk with it is not there
    return Path;
}

clsSettings SettingsIn(const QString& Folder) {
    clsSettings Settings;
    Settings.SetFileName(Folder + INIFileName());
    Settings.Load();
    return Settings;
}

// Without one the settings can be read alone.
std::unique_ptr<ScratchDir> PlaceForSettings() {
    try {
        return std::make_unique<ScratchDir>();
    } catch (const Fault&) {
        return nullptr;
    }
}

clsSettings VisitorsSettings() {
    const QString Path = SettingsOfVisit->Path();
    const bool Begun = FileExists(Path + INIFileName());
    clsSettings Settings = SettingsIn(Begun ? Path : DatabaseAsDocuments);
    Settings.SetFileName(Path + INIFileName());
    return Settings;
}

// Whether a place is that of albums which may not be changed, or below it.
bool LieWithFixedAlbums(const QString& Place) {
    return (ReadOnlyDB || SettingsOfVisit) && Place.startsWith(DBPath());
}

// Where the settings of a folder say that its database is.
QString DatabaseOf(const QString& Folder) {
    const QString Chosen = ReadText(SettingsIn(Folder), Setting::DBPath);
    // A relative one means the same database wherever the program was started from.
    return WithSeparator(Chosen.isEmpty() ? Folder : AbsolutePath(Chosen, Folder));
}

// The settings' folder below a documents folder, or below the maker's folder in it; empty when it
// is neither.
QString SettingsFolderBelow(const QString& Dir) {
    const QString Below = Dir + QLatin1String(Maker) + u'/' + QLatin1String(OwnFolder);
    if (FolderExists(Below)) return ResolvePath(Below);
    QString Name = AbsolutePath(Dir);
    while (Name.size() > 1 && IsSeparator(Name.back())) Name.chop(1);
    const bool IsMaker = GetFileName(Name).compare(QLatin1String(Maker), Qt::CaseInsensitive) == 0;
    return IsMaker && FolderExists(Dir + QLatin1String(OwnFolder))
               ? ResolvePath(Dir + QLatin1String(OwnFolder))
               : QString();
}

}  // namespace

void SetDocumentsPath(const QString& Path) {
    DocumentsPath = WithSeparator(AbsolutePath(Path));
    DatabaseAsDocuments = HoldsDatabase(DocumentsPath) ? DocumentsPath : QString();
    DBPathCache = DatabaseAsDocuments;
    const bool IsFixed = !DatabaseAsDocuments.isEmpty() && !MayWriteDatabase(DatabaseAsDocuments);
    SettingsOfVisit = IsFixed ? PlaceForSettings() : nullptr;
}

QString AppPath() {
    if (AppPathCache.isEmpty())
        AppPathCache = ProgramFilesOf(QCoreApplication::applicationDirPath());
    return AppPathCache;
}

QString INIFileName() {
    return QStringLiteral("QLM.ini");
}

QString SettingsDir() {
    if (DocumentsPath.isEmpty()) DocumentsPath = WithSeparator(UserDocuments());
    if (DocumentsPath == DatabaseAsDocuments) return DocumentsPath;
    return DocumentsPath + QLatin1String(Maker) + u'/' + QLatin1String(OwnFolder);
}

clsSettings OpenSettings() {
    if (SettingsOfVisit && DocumentsPath == DatabaseAsDocuments) return VisitorsSettings();
    return SettingsIn(SettingsDir());
}

QString DBPath() {
    if (DBPathCache.isEmpty()) DBPathCache = DatabaseOf(SettingsDir());
    return DBPathCache;
}

QString DatabaseIn(const QString& Dir) {
    const QString Place = WithSeparator(Dir);
    if (HoldsDatabase(Place)) return Place;
    const QString Below = SettingsFolderBelow(Place);
    if (!Below.isEmpty()) return DatabaseOf(Below);
    return FileExists(Place + INIFileName()) ? DatabaseOf(Place) : Place;
}

QString OwnPath() {
    if (OwnPathCache.isEmpty())
        OwnPathCache =
            WithSeparator(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)) +
            QLatin1String(Maker) + u'/' + QLatin1String(OwnFolder);
    return OwnPathCache;
}

QString OwnSumsFolder() {
    return OwnPath() + QStringLiteral("Made here/");
}

QString MemoryDir() {
    return LieWithFixedAlbums(SettingsDir()) ? OwnPath() : SettingsDir();
}

clsSettings OpenMemory() {
    return SettingsIn(MemoryDir());
}

bool MayRememberIn(const clsSettings& Settings) {
    return !LieWithFixedAlbums(Settings.FileName());
}

void LogMessage(const QString& Level, const QString& Message) {
    const QString Time = TheServices().Time->Now().toString(QStringLiteral("MM-dd-yyyy hh:mm"));
    const QString Line = Time + u'\t' + Level + u'\t' + Message + u'\n';
    try {
        MakeDirs(OwnPath());
        AppendFile(OwnPath() + QStringLiteral("QLM.log"), Line.toUtf8());
    } catch (const Fault&) {
        // a folder that cannot be written simply has no log
    }
}

void MakeDir(const QString& Path) {
    try {
        MakeDirs(Path);
    } catch (const Fault&) {
        // whoever needs the directory will say what is missing
    }
}

bool IsLegalChar(QChar CharCode) {
    const QChar Upper = CharCode.toUpper();
    return (Upper >= u'A' && Upper <= u'Z') || (Upper >= u'0' && Upper <= u'9') ||
           QStringView(LegalSigns).contains(CharCode) || CharCode == QChar(8);
}

QString IllegalChars(const QString& Text) {
    QString Illegal;
    for (const char32_t Code : Text.toStdU32String()) {
        const QString Sign = QString::fromUcs4(&Code, 1);  // two units outside the basic plane
        const bool Legal = Sign.size() == 1 && IsLegalChar(Sign.front());
        if (!Legal && !Illegal.contains(Sign)) Illegal += Sign;
    }
    return Illegal;
}

bool StartsWithVowel(const QString& Word) {
    return !Word.isEmpty() && QStringView(u"AEIOU").contains(Word.front().toUpper());
}

// Nobody types a path that is used unseen: every one comes from a dialog or a tree. It and the next
// stand ready for whoever takes a path from elsewhere.
bool IsPathValid(const QString& Path) {
    if (!FileSystem) return false;
    if (FileSystem->DriveExists(Path)) return true;
    if (FileSystem->FileExists(Path)) return CanOpenFile(Path);
    return FileSystem->FolderExists(Path);
}

bool CanListDir(const QString& Path) {
    bool Readable = false;
    ListDir(Path, &Readable);
    return Readable;
}

bool CanOpenFile(const QString& Path) {
    return CanReadFile(Path);
}

}  // namespace neb
