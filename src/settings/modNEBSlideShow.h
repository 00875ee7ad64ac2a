// The module that every window leans on: the shared globals, the paths of the program and of the
// database, the settings file, the debug log, and the tests of typed names and paths.
#pragma once

#include <QString>

#include "settings/clsSettings.h"

namespace neb {

class clsDBEngine;
class clsFileSystem;
class clsImageBuffer;

// Set by the main window and released by it; null outside its life.
extern clsDBEngine* DBEngine;        // the main database
extern clsImageBuffer* ImageBuffer;  // the shared thumbnails
extern clsFileSystem* FileSystem;    // used by IsPathValid
extern bool DebugMode;               // log lines are wanted
extern bool ReadOnlyDB;              // the database may not be changed

// Caches, empty until first asked; all with closing separator. A test may set or empty them.
extern QString AppPathCache;
extern QString OwnPathCache;
extern QString DBPathCache;
extern QString DocumentsPath;

// Another documents folder than the user's own, for portable use; before anything asks. A database
// directory is opened as it lies: it is DBPath and SettingsDir then.
void SetDocumentsPath(const QString& Path);

QString AppPath();      // the program's own files, which are only read
QString INIFileName();  // "QLM.ini"
QString SettingsDir();  // the folder of the settings file
QString DBPath();       // the database directory: the key "DBPath", else SettingsDir
// The database that a user means by a directory: the directory itself where it is one; where it is
// a documents folder, the database that the program keeps below it, its own key "DBPath" included;
// else the directory itself. With closing separator.
QString DatabaseIn(const QString& Dir);
// Those of a database that is opened as it lies and cannot be changed are kept elsewhere when they
// are saved, and last as long as the program runs.
clsSettings OpenSettings();

// The user's own folder for what the program notes for him, wherever it is installed and wherever
// the albums lie.
QString OwnPath();
// What the program remembers of the pictures that it has made itself, for all albums.
QString OwnSumsFolder();
// Where the program keeps what it remembers of its windows and of the folders that were looked at:
// beside the settings, but in OwnPath where these lie with albums that may not be changed.
QString MemoryDir();
clsSettings OpenMemory();  // the settings file there
// Whether what is remembered may be written into a settings file.
bool MayRememberIn(const clsSettings& Settings);

// One line of date and time, level and text at the end of "QLM.log" in OwnPath; every error is
// ignored.
void LogMessage(const QString& Level, const QString& Message);
void MakeDir(const QString& Path);  // every error is ignored

bool IsLegalChar(QChar CharCode);
// Each illegal character of the text once, in order of first appearance.
QString IllegalChars(const QString& Text);
bool StartsWithVowel(const QString& Word);  // whether "an" goes before it; false for none
bool IsPathValid(const QString& Path);      // a drive, a file that opens, or a folder
bool CanListDir(const QString& Path);
bool CanOpenFile(const QString& Path);

}  // namespace neb
